#include "edit/SaisiePossession.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "unit/edit/FenetreEdition.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Possession : public FenetreEdition {
  protected:
    void SetUp() override {
        FenetreEdition::SetUp();
        ajouteFilm("Alien", {{"Realisateur", "Ridley \"R\" Scott"}});
        ajouteFilm("Solaris", {{"Realisateur", "Tarkovski"}});
        montre(browse::kZoneTous, browse::kTriTitre2);
    }
    void choisit1(std::size_t option) {
        ecran::choisit(fiche.Option1, option);
        Option1_Click(c);
    }
    dao::Valeur lu(const char* champ) { return base.base.OpenRecordset("Personnel").valeur(champ); }
};

TEST_F(Possession, isWrittenFromThePanelAndDeletedWithIt) {
    clique("Alien");
    choisit1(1);
    for (std::size_t i = 0; i < fiche.Text10.size(); ++i)
        fiche.Text10[i].Text = "zone " + std::to_string(i);
    fiche.Text10[4].Text = std::string(29, 'n') + "ÉÉ";
    fiche.Combo7[0].Text = "Zoé";
    fiche.Combo7[1].Text = "Paul";
    fiche.Combo7[2].Text = std::string(19, 's') + "👨‍👩‍👧" + "s";
    cmdValiderInfosPossessions_Click(c);
    const std::vector<std::pair<const char*, std::string>> attendus{
        {"Titre2", "Alien"},
        {"Realisateur2", "Ridley \"R\" Scott"},
        {"Rangement", "zone 3"},
        {"Fichier1", "zone 0"},
        {"Fichier2", "zone 1"},
        {"Fichier3", "zone 2"},
        {"Pret", "Zoé"},
        {"Reserve", "Paul"},
        {"Date", "zone 6"},
        {"Support", std::string(19, 's') + "👨‍👩‍👧"},
        {"Divers", std::string(29, 'n') + "É"}};
    for (const auto& [champ, valeur] : attendus)
        EXPECT_EQ(lu(champ), dao::Valeur(valeur)) << champ;
    EXPECT_EQ(film.titre, "Alien");
    EXPECT_EQ(liste.TreeView1.Nodes.Text(liste.TreeView1.SelectedItem), "Alien");
    EXPECT_EQ(liste.Label9[1].Caption, "1 personnel");
    EXPECT_FALSE(fiche.cmdValiderInfosPossessions.Visible);
    EXPECT_TRUE(fiche.cmdFichiersFilm.Visible);
    EXPECT_THAT(fiche.Combo7[0].Items, ElementsAre("Zoé"));
    EXPECT_EQ(accompagnement.possessionsStockees, 1);

    fiche.Text10[3].Text = "Salon";
    cmdValiderInfosPossessions_Click(c);
    EXPECT_EQ(base.personnel.RecordCount(), 1);
    EXPECT_EQ(lu("Rangement"), dao::Valeur("Salon"));

    choisit1(0);
    cmdValiderInfosPossessions_Click(c);
    EXPECT_EQ(base.personnel.RecordCount(), 0);
    EXPECT_EQ(liste.Label9[1].Caption, "0 personnel");
    EXPECT_THAT(fiche.Combo7[0].Items, IsEmpty());
    cmdValiderInfosPossessions_Click(c);  // not owned already

    choisit1(1);
    fiche.Text10[3].Text = "Cave";
    cmdValiderInfosPossessions_Click(c);
    EXPECT_EQ(lu("Rangement"), dao::Valeur("Cave"));
    EXPECT_EQ(lu("Pret"), dao::Valeur(""));
}

TEST_F(Possession, isNotStoredWithoutAFilmAndTheKeysGoToTheListAllTheSame) {
    ecran::choisit(fiche.Option1, 1);
    cmdValiderInfosPossessions_Click(c);
    EXPECT_EQ(base.personnel.RecordCount(), 0);
    EXPECT_EQ(accompagnement.possessionsStockees, 0);
    EXPECT_EQ(demandes.focus, "TreeView1");
}

TEST_F(Possession, isToBeValidatedOnlyOnceTheUserChangedSomething) {
    possede("Solaris", "Tarkovski", {{"Fichier2", "/films/Solaris.avi"}});
    const auto change = [this](const auto& geste, bool attendu) {
        clique("Solaris");
        EXPECT_FALSE(fiche.cmdValiderInfosPossessions.Visible);
        geste();
        EXPECT_EQ(fiche.cmdValiderInfosPossessions.Visible, attendu);
    };
    const auto parcourt = [this](const std::string& reponse) {
        dialogues.attendFichier({"Ajouter un fichier à la fiche du film", "Tous types de fichiers|*.*", "/films/"},
                                reponse);
        Command2_Click(c, 1);
    };
    change([&] { Combo7_Change(c, 0); }, true);
    change([&] { Text10_Change(c, 3); }, true);
    change([&] { parcourt(""); }, false);
    EXPECT_EQ(fiche.Text10[1].Text, "/films/Solaris.avi");
    change([&] { parcourt("/ailleurs/absent"); }, true);
    EXPECT_EQ(fiche.Text10[1].Text, "/ailleurs/absent");
    change([&] { choisit1(0); }, true);
    EXPECT_FALSE(fiche.framePossession.Visible || fiche.cmdRaffraichirListe.Visible);
    choisit1(1);
    EXPECT_TRUE(fiche.framePossession.Visible && fiche.cmdRaffraichirListe.Visible);
    EXPECT_EQ(lu("Fichier2"), dao::Valeur("/films/Solaris.avi"));
}

}  // namespace
