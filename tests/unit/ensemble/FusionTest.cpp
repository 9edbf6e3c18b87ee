#include "ensemble/Fusion.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using namespace ensemble;
using testing::ElementsAre;
using testing::IsEmpty;

const db::CleFilm kGauche{"Solaris", "Andreï Tarkovski"}, kDroite{"Solarise", "Andrei Tarkovski"};

class FusionTest : public FenetreEdition {
  protected:
    void SetUp() override {
        Fenetre::SetUp();
        ajouteFilm("Solaris", {{"Realisateur", kGauche.realisateur}, {"Annee", "1972"}, {"Genre", "Drame"}});
        ajouteFilm("Solarise", {{"Realisateur", kDroite.realisateur},
                                {"Annee", "1972"},
                                {"Genre", "Science-fiction"},
                                {"Duree", "2H47"},
                                {"Note", 9},
                                {"Affiche", dao::Valeur::octets("STO\xffxyz")}});
        montre(browse::kZoneTous, browse::kTriTitre2);
    }
    void possedeGauche(Ligne champs) { possede("Solaris", "Andreï Tarkovski", std::move(champs)); }
    void possedeDroite(Ligne champs) { possede("Solarise", "Andrei Tarkovski", std::move(champs)); }
    std::vector<std::string> ligne(const char* table, const std::vector<const char*>& champs) {
        std::vector<std::string> valeurs;
        for (const char* champ : champs)
            for (const std::string& valeur : colonne(table, champ))
                valeurs.push_back(valeur);
        return valeurs;
    }
};

TEST_F(FusionTest, TheOneIsCompletedByTheOther) {
    possedeDroite({{"Support", "DVD"}});
    clique("Solarise");
    const auto plan = planDeFusion(c, kGauche, kDroite);
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->texte(),
              "La fiche « Solaris » reste, la fiche « Solarise » est supprimée.\nElle en reçoit : durée, "
              "note, affiche.\nElle garde, malgré une autre valeur : titre, réalisateur, genre.\nElle "
              "reçoit aussi sa possession.");
    EXPECT_TRUE(fusionne(c, *plan));
    EXPECT_THAT(ligne("Films", {"Titre", "Realisateur", "Genre", "Duree", "Note"}),
                ElementsAre("Solaris", "Andreï Tarkovski", "Drame", "2H47", "9"));
    EXPECT_EQ(base.base.OpenRecordset("Films").valeur("Affiche"), dao::Valeur::octets("STO\xffxyz"));
    EXPECT_THAT(ligne("Personnel", {"Titre2", "Realisateur2", "Support"}),
                ElementsAre("Solaris", "Andreï Tarkovski", "DVD"));
    EXPECT_THAT(titres(), ElementsAre("Solaris"));
    EXPECT_FALSE(film.estUnFilm()) << "the film that was shown is gone";
    EXPECT_FALSE(planDeFusion(c, kGauche, kDroite));
}

TEST_F(FusionTest, TheFilesOfBothHoldingsFindRoomAndChoicesHold) {
    possedeGauche({{"Support", "K7"}, {"Fichier1", "a"}});
    possedeDroite({{"Support", "DVD"}, {"Fichier1", "b"}, {"Fichier2", "a"}, {"Pret", "Zoé"}});
    auto plan = planDeFusion(c, kGauche, kDroite);
    ASSERT_TRUE(plan);
    EXPECT_THAT(plan->texte(), testing::EndsWith("genre, support."));
    for (auto* champs : {&plan->film, &plan->possession})
        for (ChampCompare& champ : *champs)
            if (champ.legende == "Support" || champ.legende == "Titre") champ.prendDroite = true;
    EXPECT_TRUE(fusionne(c, *plan));
    EXPECT_THAT(ligne("Personnel", {"Titre2", "Fichier1", "Fichier2", "Fichier3", "Pret", "Support"}),
                ElementsAre("Solarise", "a", "b", "", "Zoé", "DVD"));
    EXPECT_THAT(titresDesFilms(), ElementsAre("Solarise"));
}

TEST_F(FusionTest, AFilmThatChangedMeanwhileIsLeftAlone) {
    const auto plan = planDeFusion(c, kGauche, kDroite);
    base.base.Execute("UPDATE Films SET Duree='2H45' WHERE Titre='Solaris'");
    EXPECT_FALSE(fusionne(c, *plan));
    EXPECT_THAT(titresDesFilms(), ElementsAre("Solaris", "Solarise"));
}

TEST_F(FusionTest, FilmsOfOneNameAreTwoRowsAllTheSame) {
    base.base.Execute("UPDATE Films SET Titre='SOLARIS', Realisateur='Andreï Tarkovski' WHERE Titre='Solarise'");
    possedeGauche({{"Support", "DVD"}, {"Fichier1", "a"}});
    possede("solaris", "Andreï Tarkovski", {{"Rangement", "Étagère"}, {"Fichier1", "b"}});
    const auto plan = planDeFusion(c, kGauche, kGauche);
    ASSERT_TRUE(plan);
    EXPECT_TRUE(fusionne(c, *plan));
    EXPECT_THAT(ligne("Films", {"Titre", "Note"}), ElementsAre("Solaris", "9"));
    EXPECT_THAT(ligne("Personnel", {"Titre2", "Rangement", "Fichier1", "Fichier2"}),
                ElementsAre("Solaris", "Étagère", "a", "b"));
    EXPECT_FALSE(planDeFusion(c, kGauche, kGauche)) << "one row is not two films";
}

}  // namespace
