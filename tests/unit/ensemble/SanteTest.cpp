#include "db/Sauvegardes.h"
#include "ensemble/Sante.h"
#include "unit/edit/FenetreEdition.h"

#include <fstream>

#include <gmock/gmock.h>

namespace {

using namespace ensemble;
using testing::ElementsAre;
using testing::IsEmpty;

class SanteTest : public FenetreEdition {
  protected:
    std::string images;

    void SetUp() override {
        Fenetre::SetUp();
        images = dossier.chemin() + "/Affiches/";
        std::filesystem::create_directory(images);
        stockage.Text4.Text = images;
    }
    void fichier(const std::string& chemin) { std::ofstream(chemin) << "x"; }
    void sain(const char* titre, Ligne autres = {}) {
        autres.insert(autres.end(), {{"Realisateur", "R"}, {"Annee", "1979"}, {"Resume", "r"}});
        ajouteFilm(titre, autres);
    }
    std::vector<std::string> lignes(Mal mal) {
        std::vector<std::string> textes;
        for (const LigneDeSante& ligne : examine(c, mal).lignes)
            textes.push_back(ligne.film.titre + (ligne.detail.empty() ? "" : "=" + ligne.detail) +
                             (ligne.aUneFiche ? "" : " (sans fiche)") + (ligne.reparable ? " *" : ""));
        return textes;
    }
    std::string contenu() {
        std::ifstream flux(chemins.base, std::ios::binary);
        return {std::istreambuf_iterator<char>(flux), {}};
    }
};

TEST_F(SanteTest, EachLackNamesItsFilmsAndLookingChangesNothing) {
    sain("Alien", {{"Affiche", "JPGici.jpg"}});
    sain("Brazil", {{"Affiche", dao::Valeur::octets("STOxyz")}});
    ajouteFilm("Cube", {{"Realisateur", "R"}, {"Annee", "  "}, {"Affiche", ""}});
    ajouteFilm("Cube", {{"Realisateur", "R"}, {"Annee", "1997"}, {"Resume", "r"}, {"Affiche", "JPGici.jpg"}});
    ajouteFilm("Dune", {{"Realisateur", ""}, {"Annee", "1984"}, {"Resume", "r"}, {"Affiche", "JPGILà.jpg"}});
    fichier(images + "ici.jpg");
    fichier(images + "ilà.JPG");
    const std::string avant = contenu();
    EXPECT_THAT(lignes(Mal::SansAffiche), ElementsAre("Cube"));
    EXPECT_THAT(lignes(Mal::SansAnnee), ElementsAre("Cube"));
    EXPECT_THAT(lignes(Mal::SansRealisateur), ElementsAre("Dune"));
    EXPECT_THAT(lignes(Mal::SansResume), ElementsAre("Cube"));
    EXPECT_THAT(lignes(Mal::AfficheAbsente), IsEmpty());
    const Examen examen = examine(c);
    EXPECT_EQ(examen.constats.size(), 10U);
    EXPECT_EQ(examen.bilan(), "4 points à revoir.");
    EXPECT_EQ(examen.constats[0].texte(), "Fiches sans affiche : 1");
    EXPECT_EQ(repare(c, Mal::SansAnnee), 0) << "nothing can be done at once";
    EXPECT_EQ(contenu(), avant);
}

TEST_F(SanteTest, PostersAndFilesThatLeadNowhere) {
    sain("Alien", {{"Affiche", "JPGperdue.jpg"}});
    sain("Brazil");
    sain("Cube", {{"Affiche", "JPGvoisine.jpg"}});
    fichier(images + "brazil - r.JPG");
    fichier(images + "Vacances.jpg");
    fichier(images + "notes.txt");
    fichier(dossier.chemin() + "/voisine.jpg");
    volumes.volumes = {{"/", true}};
    possede("Alien", "R", {{"Fichier1", (images + "notes.txt").c_str()}, {"Fichier3", "/nulle/part.mkv"}});
    EXPECT_THAT(lignes(Mal::AfficheAbsente), ElementsAre("Alien=perdue.jpg *"));
    EXPECT_THAT(lignes(Mal::AfficheSansFilm), ElementsAre("Brazil=brazil - r.JPG *", "=Vacances.jpg (sans fiche)"));
    EXPECT_EQ(examine(c, Mal::AfficheSansFilm).texte(), "Fichiers d'affiche sans film : 2, dont 1 réparable");
    EXPECT_THAT(lignes(Mal::FichierAbsent), ElementsAre("Alien=/nulle/part.mkv"));

    EXPECT_EQ(repare(c, Mal::AfficheAbsente), 1);
    EXPECT_EQ(repare(c, Mal::AfficheSansFilm), 1);
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("", "JPGbrazil - r.JPG", "JPGvoisine.jpg"));
    EXPECT_TRUE(std::filesystem::exists(images + "Vacances.jpg")) << "no file goes";

    stockage.Text4.Text = "/nulle/part";
    const Constat constat = examine(c, Mal::AfficheAbsente);
    EXPECT_EQ(constat.lignes.size(), 1U);
    EXPECT_EQ(constat.reparables(), 0) << "the disk of the posters may be away";
    EXPECT_EQ(constat.reserve, "Le dossier des images n'est pas là.");
}

TEST_F(SanteTest, HoldingsWithoutASheetGetOneAndDoubleOnesAreJoined) {
    sain("Alien");
    sain("Brazil");
    possede("ALIEN", "r", {{"Support", "DVD"}, {"Fichier1", "a.mkv"}});
    possede("Alien", "R", {{"Pret", "Zoé"}, {"Support", "dvd"}, {"Fichier1", "b.mkv"}});
    possede("Brazil", "R", {{"Support", "DVD"}});
    possede("Brazil", "R", {{"Support", "K7"}});
    possede("Perdu", "Q", {{"Support", "K7"}});
    possede("perdu", "Q");
    possede("", "Q");
    EXPECT_THAT(lignes(Mal::PossessionSansFilm),
                ElementsAre(" (sans fiche)", "Perdu=K7 (sans fiche) *", "perdu (sans fiche)"));
    EXPECT_THAT(lignes(Mal::PossessionDouble),
                ElementsAre("ALIEN=2 possessions *", "Brazil=2 possessions qui se contredisent",
                            "Perdu=2 possessions (sans fiche) *"));
    EXPECT_EQ(repare(c, Mal::PossessionDouble), 2);
    EXPECT_THAT(colonne("SELECT * FROM personnel WHERE Titre2=\"Alien\"", "Pret"), ElementsAre("Zoé"));
    EXPECT_THAT(colonne("SELECT * FROM personnel WHERE Titre2=\"Alien\"", "Fichier2"), ElementsAre("b.mkv"));
    EXPECT_EQ(colonne("SELECT * FROM personnel WHERE Titre2=\"Brazil\"", "Support").size(), 2U);
    EXPECT_EQ(repare(c, Mal::PossessionSansFilm), 1);
    EXPECT_THAT(colonne("SELECT * FROM films WHERE Titre=\"Perdu\"", "DateAjout"), ElementsAre("21/11/2026"));
    EXPECT_THAT(lignes(Mal::PossessionSansFilm), ElementsAre(" (sans fiche)"));
}

TEST_F(SanteTest, TitlesAreCorrectedAndAnExaminationCanBeStopped) {
    sain("le parrain ii");
    sain("Le Parrain");
    montre(browse::kZoneTous, browse::kTriTitre2);
    EXPECT_THAT(lignes(Mal::TitreACorriger), ElementsAre("le parrain ii=Le Parrain II *"));
    EXPECT_EQ(repare(c, Mal::TitreACorriger), 1);
    EXPECT_EQ(db::derniereSauvegarde(base.base.nom())->nom.avant, db::Avant::Titres);
    EXPECT_THAT(titres(), ElementsAre("Le Parrain", "Le Parrain II")) << "the listing shows it";
    ecranMuet.souffles = 0;
    ecranMuet.arretApres = 1;
    EXPECT_EQ(examine(c).bilan(), "L'examen a été arrêté avant la fin.");
    ecranMuet.souffles = 0;
    EXPECT_THAT(lignes(Mal::SansAffiche), IsEmpty()) << "a part of the kind is not the kind";
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
}

}  // namespace
