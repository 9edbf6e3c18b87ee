#include "edit/cmdPonctuation_Click.h"
#include "platform/fichiers/Fichiers.h"
#include "unit/edit/FenetreEdition.h"
#include "util/Capitales.h"

#include <algorithm>
#include <cstdlib>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class PonctuationTest : public FenetreEdition {
  protected:
    void corrige(const std::string& rapport) {
        dialogues.attendMsgBox("Êtes-vous sûr(e) de vouloir corriger tous les titres de la base ?", 36,
                               dialogues::kOui);
        dialogues.attendMsgBox(rapport, 64);
        cmdPonctuation_Click(c);
    }
    void ajouteAvecPossession(const std::string& titre, const char* titre2) {
        ajouteFilm(titre.c_str(), {{"Realisateur", "R"}});
        possede(titre2, "R");
    }
    long possedes() {
        montre(browse::kZoneMesFilms, browse::kTriTitre2);
        return base.liste.RecordCount();
    }
};

TEST_F(PonctuationTest, EveryTitleIsCorrectedOnceAndOwnedFilmsStillMatch) {
    ajouteAvecPossession("le PARRAIN II", "Le Parrain ii");
    ajouteAvecPossession("l'été meurtrier", "l'été meurtrier");
    ajouteFilm("Rocky IV");
    ajouteFilm("");
    base.base.Execute("INSERT INTO Films(Titre) VALUES (NULL)");
    montre(browse::kZoneMesFilms, browse::kTriTitre2);
    dialogues.attendMsgBox("Êtes-vous sûr(e) de vouloir corriger tous les titres de la base ?", 36, dialogues::kNon);
    cmdPonctuation_Click(c);
    EXPECT_EQ(titresDesFilms()[0], "le PARRAIN II");

    panneaux.montre(panneaux.frameListeFonctions);
    corrige("2 titres modifiés.");
    EXPECT_THAT(titres(), ElementsAre("Le Parrain II", "L'Été Meurtrier"));
    EXPECT_THAT(titresPossedes(), ElementsAre("Le Parrain II", "L'Été Meurtrier"));
    EXPECT_TRUE(panneaux.frameListeFonctions.Visible);
    EXPECT_TRUE(base.base.OpenRecordset("SELECT * FROM films WHERE titre IS NULL").valeur("Titre").estNull());
    corrige("Aucun titre modifié.");
    ajouteFilm("rocky");
    corrige("Un titre modifié.");
}

TEST_F(PonctuationTest, AStopAnywhereKeepsOwnedFilmsMatching) {
    // A dotless i has a capital that the base holds for another letter.
    const std::vector<std::string> originaux{"alien", "ırmak", "ırmak", "zorro"};
    for (int arret = 1; arret <= 8; ++arret) {
        for (const std::string& titre : originaux)
            ajouteAvecPossession(titre, titre.c_str());
        ASSERT_EQ(possedes(), 6);  // the twins are joined both ways
        ecranMuet.souffles = 0;
        ecranMuet.arretApres = arret;
        corrige(arret == 1 ? "Un titre modifié." : arret <= 3 ? "3 titres modifiés." : "4 titres modifiés.");
        EXPECT_EQ(possedes(), 6) << arret;
        EXPECT_EQ(ecranMuet.debuts, ecranMuet.fins);
        EXPECT_FALSE(travaux.ProgressBar3.Visible);
        base.base.Execute("DELETE FROM Films; DELETE FROM Personnel");
    }
    EXPECT_EQ(travaux.ProgressBar3.Max, 8);
}

TEST_F(PonctuationTest, AFailureUndoesItsLotAndIsTold) {
    ajouteFilm("alien");
    ajouteFilm("zorro");
    ajouteFilm("Zorro");
    base.base.Execute("CREATE UNIQUE INDEX garde ON Films(Titre)");
    dialogues.attendMsgBox("Êtes-vous sûr(e) de vouloir corriger tous les titres de la base ?", 36, dialogues::kOui);
    dialogues.attendMsgBox(
        "Erreur 3022 : La modification contredit une règle de la base (UNIQUE constraint failed: Films.Titre).");
    dialogues.attendMsgBox("Aucun titre modifié.", 64);
    cmdPonctuation_Click(c);
    EXPECT_THAT(titresDesFilms(), ElementsAre("alien", "zorro", "Zorro"));
    EXPECT_FALSE(base.base.enTransaction());
}

TEST_F(PonctuationTest, RealTitlesAreCorrectedOnceForAll) {
    const char* choisi = std::getenv("AMBRELIS_DONNEES");
    const std::string fiches = std::string(choisi ? choisi : AMBRELIS_DONNEES_DEFAUT) + "/fiches/";
    std::size_t vus = 0;
    for (const std::string& nom : fichiers::listeFichiers(fiches)) {
        const auto lignes = fichiers::litLignes(fiches + nom, 1);
        if (fichiers::extension(nom).size() != 4 || !lignes || lignes->empty()) continue;
        for (const std::string& titre : {lignes->front(), util::metEnCapitales(lignes->front())})
            ajouteAvecPossession(titre, lignes->front().c_str());
        ++vus;
    }
    if (vus == 0) GTEST_SKIP() << "no real sheets here";
    const long avant = possedes();
    dialogues.attendMsgBox("Êtes-vous sûr(e) de vouloir corriger tous les titres de la base ?", 36, dialogues::kOui);
    const auto brutes = titresDesFilms();
    const auto modifies =
        std::count_if(brutes.begin(), brutes.end(), [](const auto& t) { return t != util::metEnCapitales(t); });
    dialogues.attendMsgBox(edit::rapportTitresModifies(modifies), 64);
    cmdPonctuation_Click(c);
    EXPECT_EQ(possedes(), avant);
    corrige("Aucun titre modifié.");
}

}  // namespace
