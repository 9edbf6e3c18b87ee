#include "ensemble/GestesDesPrets.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using namespace ensemble;
using testing::ElementsAre;
using testing::IsEmpty;

class PretsTest : public FenetreEdition {
  protected:
    void SetUp() override {
        Fenetre::SetUp();
        const auto range = [this](const char* titre, const char* pret, const char* reserve, const char* date) {
            ajouteFilm(titre, {{"Realisateur", "R"}});
            possede(titre, "R", {{"Pret", pret}, {"Reserve", reserve}, {"Date", date}, {"Support", "DVD"}});
        };
        range("Alien", "Zoé", "", "20/11/2026");
        range("Brazil", "alice", "Bob", "12/03/2026");
        range("Cube", "Alice", "", "un jour");
        range("Dune", "", "Alice", "01/01/2020");
        range("Éden", "", "", "");
        ajouteFilm("Fargo", {{"Realisateur", "R"}});
        montre(browse::kZoneTous, browse::kTriTitre2);
    }
    static std::vector<std::string> titresDe(const std::vector<Pret>& prets) {
        std::vector<std::string> titres;
        for (const Pret& pret : prets)
            titres.push_back(pret.film.titre);
        return titres;
    }
    static db::CleFilm cle(const char* titre) { return {titre, "R"}; }
};

TEST_F(PretsTest, SaysWhoHasWhatSinceWhenAndWhoWaits) {
    BureauDesPrets bureau = bureauDesPrets(c);
    EXPECT_EQ(bilan(bureau, 30), "3 films prêtés à 2 personnes, dont 1 depuis plus de 30 jours. 2 films réservés.");
    EXPECT_THAT(titresDe(bureau.reservations), ElementsAre("Dune", "Brazil"));
    trie(bureau.prets, TriDesPrets::Personne);
    EXPECT_THAT(titresDe(bureau.prets), ElementsAre("Brazil", "Cube", "Alien"));
    trie(bureau.prets, TriDesPrets::Film);
    EXPECT_THAT(titresDe(bureau.prets), ElementsAre("Alien", "Brazil", "Cube"));
    trie(bureau.prets, TriDesPrets::Jours);
    EXPECT_THAT(titresDe(bureau.prets), ElementsAre("Brazil", "Alien", "Cube"));
    EXPECT_EQ(texteDepuis(bureau.prets[0]), "depuis 254 jours");
    EXPECT_EQ(texteDepuis(bureau.prets[1]), "depuis hier");
    EXPECT_EQ(texteDepuis(bureau.prets[2]), "depuis « un jour »");
    EXPECT_TRUE(enRetard(bureau.prets[0], 253));
    EXPECT_FALSE(enRetard(bureau.prets[0], 254));
    EXPECT_FALSE(enRetard(bureau.prets[2], 0)) << "no known day is not overdue";
    EXPECT_FALSE(enRetard(bureau.reservations[0], 30)) << "it is at home";
    EXPECT_EQ(
        texteDuRappel(bureau.prets, "Alice"),
        "Bonjour Alice,\n\nCes films de ma collection sont chez vous :\n- « Brazil » de R (DVD), depuis le "
        "12/03/2026\n- « Cube » de R (DVD), depuis « un jour »\n\nPourriez-vous me les rendre quand vous les aurez "
        "vus ?\n\nMerci !\n");
    EXPECT_EQ(texteDuRappel(bureau.prets, "Bob"), "");
    horloge.jour = "19/11/2026";
    EXPECT_EQ(texteDepuis(bureauDesPrets(c).prets.back()), "depuis « 20/11/2026 »") << "a day to come";
}

TEST_F(PretsTest, AFilmThatComesBackSaysWhoWaitsForIt) {
    clique("Brazil");
    const BilanDesPrets rendus = rendFilms(c, {cle("Brazil"), cle("Dune"), cle("Fargo"), cle("Cube")});
    EXPECT_EQ(rendus.texte("rendu"),
              "2 films rendus. 1 film n'est pas possédé : « Fargo ». « Brazil » est attendu par Bob.");
    EXPECT_THAT(colonne("Personnel", "Pret"), ElementsAre("Zoé", "", "", "", ""));
    EXPECT_THAT(colonne("Personnel", "Date"), ElementsAre("20/11/2026", "12/03/2026", "un jour", "01/01/2020", ""));
    EXPECT_EQ(film.titre, "Brazil");
    EXPECT_EQ(fiche.Combo7[0].Text, "") << "the sheet shows it";
    EXPECT_THAT(fiche.Combo7[0].Items, ElementsAre("Zoé"));

    const auto bob = preteFilms(c, {rendus.attendus.at(0).film}, rendus.attendus.at(0).pourQui);
    EXPECT_EQ(bob.texte("prêté"), "1 film prêté à Bob.");
    const auto bureau = bureauDesPrets(c);
    EXPECT_THAT(titresDe(bureau.reservations), ElementsAre("Dune"));
    EXPECT_EQ(bureau.prets[0].aQui, "Bob");
    EXPECT_EQ(texteDepuis(bureau.prets[0]), "aujourd'hui");
}

TEST_F(PretsTest, SeveralAreLentAtOnceAndNoneIsTakenFromAnyone) {
    liste.TreeView1.coches = {noeud("Alien"), noeud("Dune"), noeud("Éden"), noeud("Fargo"), 99};
    const auto films = filmsChoisis(c, {});
    ASSERT_EQ(films.size(), 4U);
    EXPECT_EQ(texteDuChoix(liste.TreeView1, {}), "4 films cochés");
    EXPECT_EQ(preteFilms(c, films, "Bob").texte("prêté"),
              "2 films prêtés à Bob. 1 film n'est pas possédé : « Fargo ». « Alien » est chez Zoé.");
    EXPECT_THAT(colonne("Personnel", "Pret"), ElementsAre("Zoé", "alice", "Alice", "Bob", "Bob"));
    EXPECT_THAT(colonne("Personnel", "Reserve"), ElementsAre("", "Bob", "", "Alice", ""));
    EXPECT_THAT(colonne("Personnel", "Date"),
                ElementsAre("20/11/2026", "12/03/2026", "un jour", "21/11/2026", "21/11/2026"));
    EXPECT_EQ(preteFilms(c, films, " ").faits, 0);
    EXPECT_EQ(ecranMuet.debuts, 1);
}

TEST_F(PretsTest, WhatCameBackIsHandedOnByTheNotice) {
    cmdRendu_Click(c, {cle("Brazil"), cle("Alien")});
    EXPECT_EQ(etatAvis.lblAvis.Caption, "2 films rendus. « Brazil » est attendu par Bob.");
    ASSERT_EQ(etatAvis.cmdAvis[0].Caption, "Le lui prêter");
    avis.cmdAvis_Click(0);
    EXPECT_EQ(etatAvis.lblAvis.Caption, "1 film prêté à Bob.");
    EXPECT_THAT(colonne("Personnel", "Pret"), ElementsAre("", "Bob", "Alice", "", ""));
    EXPECT_THAT(colonne("Personnel", "Reserve"), ElementsAre("", "", "", "Alice", ""));

    cmdPreterAQuiAttend_Click(c, {cle("Brazil"), cle("Dune"), cle("Éden")});
    EXPECT_EQ(etatAvis.lblAvis.Caption, "1 film prêté à Alice. « Brazil » est chez Bob.");
    clique("Éden");
    EXPECT_EQ(texteDuChoix(liste.TreeView1, {}), "« Éden »");
    cmdPreter_Click(c, {}, "  Zoé\t");
    EXPECT_EQ(etatAvis.lblAvis.Caption, "1 film prêté à Zoé.");
    cmdPreter_Click(c, {}, "zoé");
    EXPECT_EQ(etatAvis.lblAvis.Caption, "0 film prêté. « Éden » est chez Zoé.");
    EXPECT_THAT(personnes(bureauDesPrets(c)), ElementsAre("Alice", "Bob", "Zoé"));
}

TEST_F(PretsTest, AnEmptyDeskSaysSo) {
    base.base.Execute("DELETE FROM Personnel");
    EXPECT_EQ(bilan(bureauDesPrets(c), 30), "Aucun film n'est prêté ni réservé.");
    EXPECT_THAT(filmsChoisis(c, {}), IsEmpty());
}

}  // namespace
