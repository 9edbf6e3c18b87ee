#include "acquire/AdresseRecherche.h"
#include "acquire/ConfigurationRapatrix.h"
#include "acquire/FichesRecues.h"
#include "acquire/cmdTelecharge_Click.h"
#include "doubles/Rapatrix.h"
#include "platform/fichiers/Fichiers.h"
#include "unit/acquire/FenetreAcquisition.h"
#include "util/Texte.h"
#include "view/LanceFichier.h"

#include <gmock/gmock.h>

namespace {

using acquire::Critere;
using dialogues::kExclamation;
using dialogues::kInformation;
using dialogues::kNon;
using dialogues::kOui;
using dialogues::kQuestion;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kArrete = "Le téléchargement a été arrêté.\n1 fiche a déjà été reçue. Souhaitez-vous l'ajouter ?";

TEST(AdresseRecherche, NamesTheCriterionAndFoldsTheText) {
    const std::string page = "http://www.moviecovers.com/multicrit.html?";
    EXPECT_EQ(adresseRecherche(Critere::Titre, "Le Cercle Rouge"), page + "titre=le+cercle+rouge");
    EXPECT_EQ(adresseRecherche(Critere::Realisateur, "ÉLÈVE d'Août "), page + "real=eleve+d'aout+");
    EXPECT_EQ(adresseRecherche(Critere::Acteur, "Françoise & Cie"), page + "acteur=francoise+&+cie");
    EXPECT_EQ(adresseRecherche(Critere::Annee, "1999"), page + "anneemin=1999&anneemax=1999");
}

std::string configuration(const std::string& adresse, const std::string& tmp, const std::string& lancer) {
    return "FICHIER_CONFIG_SUPPR=O\r\nFICHIER_LISTE_NOM=" + adresse +
           "\r\nFICHIER_LISTE_LOCAL_SUPPR=O\r\nRECUPERE_PARAMETRES_LISTE=N\r\nCHEMIN_DESTINATION_FICHIER_SOURCE=" +
           tmp + "\r\nREP_TMP=" + tmp + "\r\nLANCER_TELECHARGEMENT_DEMARRAGE=" + lancer +
           "\r\nCOMPARER_CONSERVER_LIENS_HTTP=O\r\nADRESSE_BASE_LIENS_INTERNET=http://www.moviecovers.com\r\n"
           "SUPPR_LIENS_DIFF_TXT=/film/\r\nCONSERVER_LIEN_TELECHARGE=N\r\nSUPPR_LIENS_DIFF_TXT2=/getzip.html/\r\n"
           "CONSERVER_UNE_SEULE_EXTENSION=zip\r\nDECOMPRESSER_LIEN_ZIP=O\r\nPAUSE_ENTRE_CHAQUE_TELECHARGEMENT=O\r\n"
           "NB_FICHIERS_TELECHARGES_AVANT_PAUSE=1\r\nDUREE_PAUSE_ENTRE_TELECHARGEMENT=5\r\nAFFICHE_RESULTAT=O\r\n"
           "NUM_COLONNE_AFFICHEE=2\r\nNUM_COLONNE_TELECHARGEE=1\r\nCALCULER_TAILLE_SELECTION=N\r\n"
           "LANCER_APRES_TELECHARGEMENT=N\r\nPAUSE_SELON_TAILLE=N\r\nTITRE_TELECHARGEMENT=Cliquez sur \"Rechercher\" "
           "pour rechercher les informations depuis MovieCovers.#Les t\xE9l\xE9"
           "chargements depuis MovieCovers sont r\xE9guli\xE8rement mis en pause car leur serveur rejette les "
           "requ\xEAtes trop rapides ou trop fr\xE9quentes.\r\n";
}

TEST(ConfigurationRapatrix, IsWrittenByteForByte) {
    EXPECT_EQ(acquire::configurationRapatrix({"http://a?titre=œuvre", "/home/été/Tmp", false}),
              configuration("http://a?titre=\x9Cuvre", "/home/\xE9t\xE9/Tmp", "N"));
    for (const char* dicible : {"/home/été/L'œuvre?", "e\u0301te\u0301", ""})
        EXPECT_TRUE(acquire::seDitEn1252(dicible)) << dicible;
    for (const char* indicible : {"東京", "a\nb", "a\rb", "?ł?"})
        EXPECT_FALSE(acquire::seDitEn1252(indicible)) << indicible;
}

// A search handed to the stand-in of the downloader, a real program.
class TelechargementTest : public FenetreAcquisition {
  protected:
    systeme::ProgrammesSysteme vrais;

    TelechargementTest() { programmes.vrais = &vrais; }

    void cherche(const std::string& texte) {
        ajout.txtRechInternet.Text = texte;
        cmdTelecharge_Click(c);
        dialogues.verifie();
    }
    // The same, the program standing in another folder.
    void chercheDepuis(const std::string& autreDossier, const std::string& texte) {
        chemins = db::Chemins::depuis(autreDossier);
        cherche(texte);
    }
    std::vector<std::string> restes() { return fichiers::listeFichiers(chemins.dossierTmp); }
};

TEST_F(TelechargementTest, ImportsWhatTheDownloaderLeftEvenIfItFailsAndCleansBehindIt) {
    const doubles::Rapatrix rapatrix(dossier, "le rapatrix/RAPATRIX.EXE");
    dossier.ecrit("Tmp/ancienne.film", "Ancienne");
    dossier.ecrit("Tmp/ImageTMP.jpg", "");
    dossier.ecrit("Tmp/RechFilms.tmp", "une ancienne configuration, bien plus longue " + std::string(4000, 'x'));
    dossier.ecrit("Tmp/autre.txt", "");
    ecran::choisit(ajout.OptionTelecharge, 1);
    chkLancerConnexion.Value = 1;
    attendQuestions(2, true, false, "DVD");
    dialogues.attendMsgBox("2 films ajoutés.\n- Image manquante :\n" + chemins.dossierTmp + "/2.jpg", kInformation);
    cherche("Un Échec");

    const std::string configurationAttendue = configuration("http://www.moviecovers.com/multicrit.html?real=un+echec",
                                                            util::vers1252(chemins.dossierTmp), "O");
    EXPECT_EQ(rapatrix.recu(), "[" + chemins.dossierTmp + "/RechFilms.tmp]\n" + configurationAttendue);
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("Le Cercle Rouge", "L'Été"));
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("STO\xFF\xD8 une affiche", ""));
    EXPECT_THAT(colonne("Personnel", "Support"), ElementsAre("DVD", "DVD"));
    EXPECT_THAT(restes(), ElementsAre("autre.txt", "ImageTMP.jpg"));  // the film on the sheet keeps its poster
    EXPECT_FALSE(dossier.existe(acquire::kDossierAImporter));
    EXPECT_EQ(ajout.txtCheminAjoutAuto.Text, chemins.dossierTmp);
    EXPECT_FALSE(ajout.fichesAImporter) << "what was there is gone";
    EXPECT_TRUE(demandes.premierPlan);
    EXPECT_EQ(demandes.focus, "TreeView1") << "where the films added are to be seen";
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
}

TEST_F(TelechargementTest, TheFolderMayBearAnySign) {
    const std::string etrange = dossier.chemin("L'\"ami\" $(touch recu) \\n; #1/");
    const doubles::Rapatrix rapatrix(dossier, "L'\"ami\" $(touch recu) \\n; #1/Le Rapatrix/Rapatrix.exe");
    chercheDepuis(etrange, "rien");
    EXPECT_TRUE(rapatrix.recu().starts_with("[" + etrange + "Tmp/RechFilms.tmp]\n"));
}

TEST_F(TelechargementTest, OneThatIsNotThereOrCannotBeRunIsToldAndLeavesNothing) {
    dossier.ecrit("Tmp/ancienne.film", "Ancienne");
    cherche("  ");
    ouvrePageTelechargement(c);
    EXPECT_TRUE(ajout.lblRapatrix.Visible);
    EXPECT_THAT(ajout.lblRapatrix.Caption, testing::HasSubstr(dossier.chemin("Le Rapatrix/")));
    dialogues.attendMsgBox("Le logiciel 'Le Rapatrix' n'a pas été trouvé !", kExclamation);
    cherche("Alien");
    EXPECT_THAT(restes(), ElementsAre("ancienne.film"));
    EXPECT_FALSE(demandes.premierPlan);

    const std::string programme = dossier.ecrit("Le Rapatrix/Rapatrix.exe", "MZ");
    dialogues.attendMsgBox(view::texteEchecLancement(systeme::Lancement::Interdit, programme), dialogues::kCritique);
    cherche("Alien");
    EXPECT_THAT(restes(), IsEmpty());
    EXPECT_FALSE(ajout.lblRapatrix.Visible);
}

// A sheet that was neither added nor refused waits outside "Tmp" with its poster, and the next click goes on with it.
TEST_F(TelechargementTest, WhatWasNeitherAddedNorRefusedIsKept) {
    const doubles::Rapatrix rapatrix(dossier);
    const std::string attente = dossier.chemin(acquire::kDossierAImporter);
    const auto rapport = [&](const std::string& debut, int fiches) {
        const std::string nombre = std::to_string(fiches);
        return debut +
               (fiches == 1
                    ? "\nL'import a été interrompu : relancez-le pour ajouter la fiche qui reste.\n1 fiche est gardée"
                    : "\nL'import a été interrompu : relancez-le pour ajouter les " + nombre +
                          " fiches qui restent.\n" + nombre + " fiches sont gardées") +
               " dans " + attente + ".";
    };
    {  // another program holds the base
        dao::Database autre = dao::DBEngine::OpenDatabase(dossier.chemin("Films.mdb"));
        const dao::Transaction verrou(autre);
        dao::Recordset films = autre.OpenRecordset("Films");
        ajoute(films, {{"Titre", "Autre"}});
        attendQuestions(2, false, false);
        dialogues.attendMsgBox(
            "Erreur 3260 : Mise à jour impossible : la base est verrouillée par un autre programme.");
        dialogues.attendMsgBox(rapport("0 film ajouté.", 2), kInformation);
        cherche("deux");
    }
    EXPECT_THAT(restes(), IsEmpty());
    EXPECT_EQ(ajout.txtCheminAjoutAuto.Text, attente);
    EXPECT_EQ(ajout.lblNbFilms.Caption, "2 fichiers .FILM trouvés.");

    ecranMuet.pendantSouffle = [&] {
        if (ajout.ProgressBar1.Visible) ecranMuet.arretApres = 1;
    };
    attendQuestions(2, false, false);
    dialogues.attendMsgBox(rapport("1 film ajouté.", 1), kInformation);
    cherche("deux");
    EXPECT_THAT(fichiers::listeFichiers(attente), ElementsAre("1.FILM", "1.JPG", "2 (2).film", "2.film"));
    EXPECT_EQ(dossier.lit("À importer/1.JPG"), "\xFF\xD8 une affiche");
    EXPECT_THAT(restes(), IsEmpty());

    ecranMuet.pendantSouffle = nullptr;
    ecranMuet.arretApres = 0;
    attendQuestions(3, false, false);
    dialogues.attendMsgBox("1 film ajouté.\n2 films non ajoutés car déjà dans la base.\n- Image manquante :\n" +
                               attente + "/2 (2).jpg\n- Déjà existant : \nLe Cercle Rouge, L'Été",
                           kInformation);
    cmdAjoutAuto_Click(c);
}

TEST_F(TelechargementTest, WhatTheUserStopsIsImportedOnlyIfHeWants) {
    const doubles::Rapatrix rapatrix(dossier);
    std::string pendant;
    ecranMuet.pendantSouffle = [&] {
        if (ecranMuet.souffles == 1)
            pendant = travaux.lblTravail.Caption +
                      std::to_string(travaux.ProgressBar3.Visible && travaux.ProgressBar3.Max == 0);
        ecranMuet.arretApres = rapatrix.aRecu() ? 1 : 0;
    };
    dialogues.attendMsgBox(kArrete, kQuestion, kNon);
    cherche("attente");
    EXPECT_EQ(pendant + std::to_string(travaux.ProgressBar3.Visible) + travaux.lblTravail.Caption,
              "'Le Rapatrix' recherche les fiches…10");
    EXPECT_TRUE(colonne("Films", "Titre").empty());
    EXPECT_THAT(restes(), IsEmpty());
    EXPECT_EQ(demandes.focus, "txtRechInternet") << "for the next search";

    std::filesystem::remove(dossier.chemin("Le Rapatrix/recu"));
    dialogues.attendMsgBox(kArrete, kQuestion, kOui);
    attendQuestions(1, false, false);
    dialogues.attendMsgBox("1 film ajouté.", kInformation);
    cherche("attente");
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("Le Cercle Rouge"));
    EXPECT_THAT(restes(), IsEmpty());
}

TEST_F(TelechargementTest, WhatTheDownloaderCannotReadIsRefused) {
    const doubles::Rapatrix rapatrix(dossier);
    dialogues.attendMsgBox("Le site de MovieCovers ne connaît pas tous les caractères de cette recherche.",
                           kExclamation);
    cherche("東京物語");
    dialogues.attendMsgBox(
        "'Le Rapatrix' ne sait pas écrire dans le répertoire d'Ambrelis, dont le nom contient des caractères qu'il ne "
        "connaît pas :\n" +
            dossier.chemin("Łódź/"),
        kExclamation);
    chercheDepuis(dossier.chemin("Łódź"), "Alien");
    EXPECT_FALSE(rapatrix.aRecu());
    EXPECT_THAT(restes(), IsEmpty());
}

}  // namespace
