#include "export/ListeDesTitres.h"
#include "export/TexteFiche.h"
#include "export/cmdCreeFichierTxt_Click.h"
#include "export/cmdCreerListe_Click.h"
#include "unit/export/FenetreExport.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using dialogues::kNon, dialogues::kOui;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFilms = R"(
INSERT INTO Films (Titre, Realisateur, Annee, Genre, Affiche) VALUES
  ('Œdipe roi', 'Pier Paolo Pasolini', '1967', 'Drame', x'53544FFFD8'), ('Été violent', 'Valerio Zurlini', '1959', 'drame', NULL),
  ('Dites "33"', 'Léonce Perret', '1933', NULL, NULL), ('Non possédé', 'Personne', '1999', 'Drame', NULL);
INSERT INTO Personnel (Titre2, Realisateur2, Rangement, Divers, Support) VALUES
  ('œdipe ROI', 'pier paolo pasolini', 'Étagère', 'prêté', 'DVD'), ('Été violent', 'Valerio Zurlini', NULL, NULL, NULL),
  ('Dites "33"', 'Léonce Perret', '', 'a', 'K7');
)";

class Commandes : public FenetreExport {
  protected:
    Commandes() {
        film.cle = "K1";
        film.titre = "Alien : \"le\" 8e/passager";
    }
    void attendQuestions(int enRTF, int parGenre) {
        dialogues.attendMsgBox(
            "Souhaitez-vous créer un fichier RTF (texte riche) ?\n\nDans le cas contraire, un simple fichier texte "
            "sera "
            "créé.",
            dialogues::kQuestion, enRTF);
        dialogues.attendMsgBox(
            "Souhaitez-vous trier les titres par genre ?\n\nDans le cas contraire, un simple tri alphanumérique sera "
            "appliqué.",
            dialogues::kQuestion, parGenre);
    }
    void attendFiche(const std::string& reponse) {
        dialogues.attendInputBox("Entrez le chemin de destination du fichier texte.", reponse, "Créer un fichier texte",
                                 "Alien : \"le\" 8e/passager.txt");
    }
};

TEST_F(Commandes, TheSheetGoesExactlyWhereTheUserSays) {
    fiche.Text1.Text = "Été";
    attendFiche(dossier.chemin("Été.fiche"));
    dialogues.attendMsgBox("Fichier créé !", dialogues::kInformation, dialogues::kOk, "Créer un fichier texte");
    cmdCreeFichierTxt_Click(c);
    EXPECT_EQ(dossier.lit("Été.fiche"), exportation::texteFiche(film.titre, fiche));
    EXPECT_EQ(etatAvis.lblAvis.Caption, "Fichier créé : " + dossier.chemin("Été.fiche"));
    avis.cmdAvis_Click(0);
    avis.cmdAvis_Click(1);
    EXPECT_THAT(documents.fichiers, ElementsAre(dossier.chemin("Été.fiche"), dossier.chemin()));
    documents.issue = systeme::Ouverture::SansAssociation;
    dialogues.attendMsgBox("Le dossier " + dossier.chemin() + " n'a pas pu être ouvert.", dialogues::kExclamation);
    avis.cmdAvis_Click(1);
    EXPECT_TRUE(etatAvis.frameAvis.Visible);
}

// A path of Windows is no name of a file here: it asks for a place, and given up it can be typed again.
TEST_F(Commandes, ANameAloneLandsInTheProgramFolderAndAPathOfWindowsAsksForAPlace) {
    const auto cree = [this](const char* fichier) {
        dialogues.attendMsgBox("Fichier créé !", dialogues::kInformation, dialogues::kOk, "Créer un fichier texte");
        cmdCreeFichierTxt_Click(c);
        EXPECT_EQ(dossier.lit(fichier), exportation::texteFiche(film.titre, fiche));
        EXPECT_EQ(etatAvis.lblAvis.Caption, "Fichier créé : " + dossier.chemin(fichier));
    };
    attendFiche("Été.txt");
    cree("Été.txt");
    dialogues::DemandeFichier place{"Créer un fichier texte", "Fichiers TXT|*.txt", "", true, "Alien.txt"};
    attendFiche("C:\\Mes films\\Alien.txt");
    dialogues.attendFichier(place, "");
    dialogues.attendInputBox("Entrez le chemin de destination du fichier texte.", "D:/Alien.txt",
                             "Créer un fichier texte", "C:\\Mes films\\Alien.txt");
    dialogues.attendFichier(place, dossier.chemin("choisi.txt"));
    cree("choisi.txt");

    base.base.Execute(kFilms);
    attendQuestions(kNon, kNon);
    attendNom("C:\\FILMS");
    place = {exportation::kTitreListe, "Fichiers TXT|*.txt", "", true, "FILMS.txt"};
    dialogues.attendFichier(place, dossier.chemin("FILMS.txt"));
    dialogues.attendMsgBox("Le fichier texte " + dossier.chemin("FILMS.txt") +
                               " a été créé.\nLes séparateurs de champs étant des tabulations, réglez-les avec votre "
                               "traitement de texte.",
                           dialogues::kInformation, dialogues::kOk, exportation::kTitreListe);
    cmdCreerListe_Click(c);
    EXPECT_THAT(documents.fichiers, ElementsAre(dossier.chemin("FILMS.txt")));
    EXPECT_FALSE(dossier.existe("C:\\FILMS.txt") || dossier.existe("FILMS.txt.txt"));
}

TEST_F(Commandes, ASheetWithoutANameOrAPlaceBringsNoMoreBox) {
    attendFiche("");
    cmdCreeFichierTxt_Click(c);
    EXPECT_FALSE(etatAvis.frameAvis.Visible);
    dossier.ecrit("x/y.txt", "avant");
    attendFiche(dossier.chemin("x"));
    cmdCreeFichierTxt_Click(c);
    EXPECT_EQ(etatAvis.lblAvis.Caption, "Le fichier " + dossier.chemin("x") + " n'a pas pu être écrit.");
    EXPECT_FALSE(etatAvis.cmdAvis[0].Visible || etatAvis.cmdAvis[1].Visible);
    EXPECT_EQ(dossier.lit("x/y.txt"), "avant");
    film = {};
    cmdCreeFichierTxt_Click(c);  // no film is shown: nothing to write
}

TEST_F(Commandes, TheListHoldsTheOwnedTitlesInTheirOrder) {
    base.base.Execute(kFilms);
    const std::string perret = "\tDites \"33\"\tLéonce Perret\t", ete = "\tÉté violent\tValerio Zurlini\t",
                      oedipe = "\tŒdipe roi\tPier Paolo Pasolini\t";
    attendQuestions(kNon, kNon);
    attendNom(dossier.chemin("Films.2026"));
    dialogues.attendMsgBox("Le fichier texte " + dossier.chemin("Films.2026.txt") +
                               " a été créé.\nLes séparateurs de champs étant des tabulations, réglez-les avec votre "
                               "traitement de texte.",
                           dialogues::kInformation, dialogues::kOk, exportation::kTitreListe);
    ecranMuet.pendantSouffle = [this] { EXPECT_TRUE(travaux.ProgressBar3.Visible && travaux.ProgressBar3.Max == 3); };
    cmdCreerListe_Click(c);
    EXPECT_EQ(dossier.lit("Films.2026.txt"), "Il y a 3 titres personnels\r\n\r\n 1. " + perret +
                                                 "\t1933\t\ta\tK7\r\n 2. " + ete + "drame\t1959\t\t\t\r\n 3. " +
                                                 oedipe + "Drame\t1967\tÉtagère\tprêté\tDVD\r\n");
    EXPECT_THAT(documents.fichiers, ElementsAre(dossier.chemin("Films.2026.txt")));
    EXPECT_EQ(ecranMuet.souffles, 3);
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
    EXPECT_FALSE(travaux.ProgressBar3.Visible);
}

TEST_F(Commandes, TheListRefusesInItsOrderAndReplacesNothingByHalf) {
    attendQuestions(kNon, kNon);
    dialogues.attendMsgBox("Aucun titre personnel !", dialogues::kExclamation);
    cmdCreerListe_Click(c);  // the file is not asked for
    attendQuestions(kOui, kOui);
    attendNom(dossier.chemin("liste"));
    dialogues.attendMsgBox("Aucun titre personnel !", dialogues::kExclamation);
    cmdCreerListe_Click(c);

    base.base.Execute(kFilms);
    dossier.ecrit("liste.txt", "avant");
    attendQuestions(kNon, kNon);
    attendNom("");
    cmdCreerListe_Click(c);
    attendQuestions(kNon, kNon);
    attendNom(dossier.chemin("liste"));
    ecranMuet.arretApres = ecranMuet.souffles + 2;
    cmdCreerListe_Click(c);  // stopped
    ecranMuet.arretApres = 0;
    EXPECT_EQ(dossier.lit("liste.txt"), "avant");
    EXPECT_FALSE(etatAvis.frameAvis.Visible || travaux.ProgressBar3.Visible);
    std::filesystem::create_directory(dossier.chemin("dossier.txt"));
    attendQuestions(kNon, kNon);
    attendNom(dossier.chemin("dossier"));
    cmdCreerListe_Click(c);
    EXPECT_THAT(documents.fichiers, IsEmpty());
    EXPECT_EQ(ecranMuet.debuts, ecranMuet.fins);
}

}  // namespace
