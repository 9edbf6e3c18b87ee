#include "acquire/CompteFilmsRepertoire.h"
#include "acquire/DossierFiches.h"
#include "acquire/LotImport.h"
#include "doubles/DisquePlein.h"
#include "doubles/Mort.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "unit/acquire/FenetreAcquisition.h"

#include <cstdio>
#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace {

using namespace std::string_literals;
using dialogues::kExclamation;
using dialogues::kInformation;
using dialogues::kNon;
using dialogues::kOui;
using dialogues::kQuestion;
using testing::ElementsAre;

class ImportTest : public FenetreAcquisition {
  protected:
    doubles::DossierTemporaire fiches;

    ImportTest() { ajout.txtCheminAjoutAuto.Text = fiches.chemin(); }

    void ecritFiches(int nombre) {
        for (int i = 0; i < nombre; ++i) {
            char nom[16];
            std::snprintf(nom, sizeof nom, "f%04d", i);
            fiches.ecrit(nom + ".FILM"s, "Film "s + nom + "\r\nR\r\n");
            fiches.ecrit(nom + ".jpg"s, nom);
        }
    }
    void importe(long nombre, const std::string& rapport, bool possede = false, bool ressemblance = false) {
        attendQuestions(nombre, possede, ressemblance, "DVD");
        dialogues.attendMsgBox(rapport, kInformation);
        cmdAjoutAuto_Click(c);
        dialogues.verifie();
    }
    std::size_t nombre(const std::string& table) { return colonne(table, "id").size(); }
};

TEST_F(ImportTest, asksNothingWithoutASheet) {
    fiches.ecrit("lisezmoi.txt", "Alien");
    for (const std::string& lieu : {fiches.chemin(), std::string(), fiches.chemin("absent")}) {
        ajout.txtCheminAjoutAuto.Text = lieu;
        dialogues.attendMsgBox("Aucun fichier .film trouvé !", kExclamation);
        cmdAjoutAuto_Click(c);
    }
    ajout.txtCheminAjoutAuto.Text = "D:\\Fiches";  // leads nowhere here: another is asked for
    dialogues.attendDossier("Dossier des fiches de films", "D:\\Fiches", "");
    cmdAjoutAuto_Click(c);
}

TEST_F(ImportTest, wordsTheOwnedQuestionByTheNumberOfSheets) {
    const std::string fin =
        "\n\nDans le cas contraire, l'ajout sera fait mais il faudra indiquer \n pour chaque film qu'il "
        "se trouve bien dans votre vidéothèque.";
    EXPECT_EQ(acquire::questionPossession(1),
              "Souhaitez-vous déclarer le film comme étant en votre possession ?" + fin);
    EXPECT_EQ(acquire::questionPossession(12),
              "Souhaitez-vous déclarer les 12 films comme étant en votre possession ?" + fin);
}

TEST_F(ImportTest, storesASheetWithItsPosterAndItsHolding) {
    fiches.ecrit("a.film",
                 "l'ÉTÉ \"10\"\r\nJean Becker\r\n19831\r\nFrance\r\nDrame\r\n2H13\r\nAdjani\r\nUn été.\r\nCapac\r\n");
    fiches.ecrit("a.JPG", "pas une image");
    ajout.txtCheminAjoutAuto.Text.pop_back();  // a folder without its final separator
    attendQuestions(1, true, false, "un support de plus de vingt");
    dialogues.attendMsgBox("1 film ajouté.", kInformation);
    cmdAjoutAuto_Click(c);

    const Ligne attendus{{"Titre", "L'Été \"10\""},
                         {"Realisateur", "Jean Becker"},
                         {"Annee", "1983"},
                         {"Origine", "France"},
                         {"Genre", "Drame"},
                         {"Duree", "2H13"},
                         {"Acteurs", "Adjani"},
                         {"Resume", "Un été."},
                         {"Production", "Capac"},
                         {"DateAjout", "21/11/2026"},
                         {"Affiche", dao::Valeur::octets("STOpas une image")}};
    for (const auto& [champ, valeur] : attendus)
        EXPECT_EQ(base.base.OpenRecordset("Films").valeur(champ), valeur) << champ;
    dao::Recordset possession = base.base.OpenRecordset("Personnel");
    EXPECT_EQ(possession.texte("Titre2"), "L'Été \"10\"");
    EXPECT_EQ(possession.texte("Realisateur2"), "Jean Becker");
    EXPECT_EQ(possession.texte("Support"), "un support de plus d");
    for (const char* vide : {"Rangement", "Fichier1", "Fichier2", "Fichier3", "Pret", "Reserve", "Date", "Divers"})
        EXPECT_EQ(possession.valeur(vide), dao::Valeur("")) << vide;

    EXPECT_FALSE(ajout.modeModifier());
    EXPECT_EQ(ajout.lblNbFilms.Caption, "Un fichier .FILM trouvé.");
    EXPECT_FALSE(ajout.lblProgression.Visible || ajout.ProgressBar1.Visible);
    EXPECT_EQ(liste.critereRecherche, "DateAjout = \"21/11/2026\"");
    EXPECT_EQ(demandes.focus, "TreeView1");
    EXPECT_EQ(liste.ChoixZone.Text, "Recherche");
    EXPECT_EQ(liste.TreeView1.Nodes.Text(liste.TreeView1.Nodes.Count()), "L'Été \"10\"");
    EXPECT_THAT(fiche.Combo7[2].Items, ElementsAre("un support de plus d"));
}

TEST_F(ImportTest, showsEveryFilmOfTheDayWhateverTheLastSearchWas) {
    fiches.ecrit("a.film", "Alien\r\nScott");
    liste.zoneRecherche = browse::kZoneMesFilms;
    importe(1, "1 film ajouté.\n- Image manquante :\n" + fiches.chemin("a.jpg"));
    EXPECT_EQ(liste.zoneRecherche, browse::kZoneTous);
    EXPECT_EQ(nombre("Personnel"), 0u);
    EXPECT_EQ(liste.TreeView1.Nodes.Text(liste.TreeView1.Nodes.Count()), "Alien");
}

TEST_F(ImportTest, reportsMissingAndTooLargePostersAndKeepsSilentAtTheLimit) {
    for (const int octets : {229999, 230000, 230001}) {
        const std::string nom = std::to_string(octets);
        fiches.ecrit(nom + ".FILM", nom + "\r\nR");
        fiches.ecrit(nom + ".jpg", std::string(static_cast<std::size_t>(octets), 'x'));
    }
    fiches.ecrit("sans.FILM", "sans\r\nR");
    importe(4, "4 films ajoutés.\n- Image manquante :\n" + fiches.chemin("230001.jpg") +
                   " (trop grande pour la base) , " + fiches.chemin("sans.jpg"));
    std::vector<std::size_t> tailles;
    for (const std::string& affiche : colonne("SELECT * FROM films ORDER BY Titre ASC ;", "Affiche"))
        tailles.push_back(affiche.size());
    EXPECT_THAT(tailles, ElementsAre(3 + 229999u, 0u, 0u, 0u));

    // As files, any size goes; what cannot be read is told.
    ecran::choisit(stockage.Option3, 1);
    fiches.ecrit("230001.FILM", "autre\r\nR");
    fiches.ecrit("sans.FILM", "encore\r\nR");
    fiches.ecrit("sans.jpg", "");
    std::filesystem::resize_file(fiches.chemin("sans.jpg"), (64 << 20) + 1);
    importe(4, "2 films ajoutés.\n2 films non ajoutés car déjà dans la base.\n- Image manquante :\n" +
                   fiches.chemin("sans.jpg") +
                   " (trop grande) \n- Déjà existant : \n229999, 230000\n1 image ajoutée à un "
                   "film déjà présent.");
    EXPECT_EQ(std::filesystem::file_size(dossier.chemin("Images/Autre - R.jpg")), 230001u);
    EXPECT_EQ(std::filesystem::file_size(dossier.chemin("Images/230000 - R.jpg")), 230000u);
    EXPECT_THAT(colonne("SELECT * FROM films WHERE titre =\"encore\"", "Affiche"), ElementsAre(""));
}

TEST_F(ImportTest, refusesWhatIsAlreadyThereAndWhatTheUserFindsTooClose) {
    ajouteFilm("Solaris", {{"Realisateur", "Andreï Tarkovski"}});
    int rang = 0;  // the fifth is close to one of the same batch
    for (const char* texte : {"SOLARIS\nandreï tarkovski", "Solarise\nAndreï Tarkovski", "Solari\nAndreï Tarkovski",
                              "Alien\nRidley Scott", "Aliens\nRidley Scott", "", "\n\n1999"})
        fiches.ecrit(std::to_string(++rang) + ".film", texte);
    attendQuestions(7, true, true, "DVD");
    for (const auto& [nouveau, ancien, reponse, par] : {std::tuple("Solarise", "Solaris", kNon, "Andreï Tarkovski"),
                                                        {"Solari", "Solaris", kOui, "Andreï Tarkovski"},
                                                        {"Aliens", "Alien", kNon, "Ridley Scott"}})
        dialogues.attendMsgBox(edit::questionRessemblance({nouveau, par}, {ancien, par}), kQuestion, reponse);
    dialogues.attendMsgBox("3 films ajoutés.\n4 films non ajoutés car déjà dans la base.\n- Image manquante :\n" +
                               fiches.chemin("3.jpg") + ", " + fiches.chemin("4.jpg") + ", " + fiches.chemin("6.jpg") +
                               "\n- Déjà existant : \nSolaris, Solarise, Aliens, Non défini",
                           kInformation);
    cmdAjoutAuto_Click(c);
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("Solaris", "Solari", "Alien", "Non défini"));
    EXPECT_EQ(nombre("Personnel"), 3u);
}

TEST_F(ImportTest, passesOverWhatIsNoSheet) {
    fiches.ecrit("b.film", "Alien\r\nScott");
    fiches.ecrit("b.jpg", "x");
    fiches.ecrit("a.film", "");
    std::filesystem::resize_file(fiches.chemin("a.film"), 600 << 20);  // no sheet is that large
    fiches.ecrit("bruit.film",
                 "\x7F"
                 "ELF\2\1\1\0\0\0\0\0\0\0\0\0"s);
    std::filesystem::create_directory(fiches.chemin("c.film"));
    std::filesystem::create_symlink("d.film", fiches.chemin("d.film"));  // a link to itself
    std::filesystem::create_symlink("/dev/zero", fiches.chemin("e.film"));
    ASSERT_EQ(mkfifo(fiches.chemin("f.film").c_str(), 0600), 0);
    ASSERT_EQ(mkfifo(fiches.chemin("g.jpg").c_str(), 0600), 0);
    fiches.ecrit("g.film", "Solaris\r\nT");
    importe(4, "2 films ajoutés.\n- Image manquante :\n" + fiches.chemin("g.jpg") + "\n- Fiche illisible :\n" +
                   fiches.chemin("a.film") + ", " + fiches.chemin("bruit.film"));
}

// The user is told what could not be written, not that his pictures are missing; the films before it are stored.
TEST_F(ImportTest, aPosterThatCannotBeWrittenEndsIt) {
    ecritFiches(20);
    fiches.ecrit("f0010.jpg", std::string(2 << 20, 'x'));
    ecran::choisit(stockage.Option3, 1);
    const std::string lesImages = dossier.ecrit("Images", "");  // a file stands where the folder should be
    const auto importeEtEchoue = [&](const std::string& echec, const std::string& rapport) {
        attendQuestions(20, true, false, "DVD");
        dialogues.attendMsgBox(echec, dialogues::kCritique);
        dialogues.attendMsgBox(rapport, kInformation);
        cmdAjoutAuto_Click(c);
        dialogues.verifie();
    };
    importeEtEchoue("Le dossier des images " + lesImages + "/ n'est pas accessible en écriture !",
                    "0 film ajouté.\nL'import a été interrompu : relancez-le pour ajouter les 20 fiches qui restent.");
    std::filesystem::remove(lesImages);
    {
        const doubles::DisquePlein disque(1 << 20);
        importeEtEchoue(
            "Le fichier image " + lesImages + "/Film F0010 - R.jpg n'a pas pu être écrit (Disque plein)",
            "10 films ajoutés.\nL'import a été interrompu : relancez-le pour ajouter les 10 fiches qui restent.");
    }
    EXPECT_FALSE(std::filesystem::exists(lesImages + "/Film F0010 - R.jpg"));
    EXPECT_EQ(nombre("Personnel"), 10u);
    std::string deja = "Film F0000";
    for (int i = 1; i < 10; ++i)
        deja += ", Film F000" + std::to_string(i);
    importe(20, "10 films ajoutés.\n10 films non ajoutés car déjà dans la base.\n- Déjà existant : \n" + deja);
    for (const std::string& affiche : colonne("Films", "Affiche"))
        EXPECT_TRUE(std::filesystem::exists(lesImages + "/" + affiche.substr(3))) << affiche;
}

TEST_F(ImportTest, aFilmThatIsThereWithoutAPosterIsGivenIt) {
    for (const std::size_t option : {0, 1}) {
        ecran::choisit(stockage.Option3, option);
        const std::string sans = "Sans " + std::to_string(option), avec = "Avec " + std::to_string(option);
        ajoute(base.films, {{"Titre", sans}, {"Realisateur", "R"}, {"Resume", "Ancien"}});
        ajoute(base.films, {{"Titre", avec}, {"Realisateur", "R"}, {"Affiche", "JPGautre.jpg"}});
        fiches.ecrit("1.film", sans + "\nR");
        fiches.ecrit("1.jpg", "image");
        fiches.ecrit("2.film", avec + "\nR");
        fiches.ecrit("2.jpg", "image");
        importe(2, "0 film ajouté.\n2 films non ajoutés car déjà dans la base.\n- Déjà existant : \n" + sans + ", " +
                       avec + "\n1 image ajoutée à un film déjà présent.");
    }
    EXPECT_THAT(colonne("Films", "Affiche"),
                ElementsAre("STOimage", "JPGautre.jpg", "JPGSans 1 - R.jpg", "JPGautre.jpg"));
    EXPECT_EQ(dossier.lit("Images/Sans 1 - R.jpg"), "image");
    EXPECT_EQ(colonne("Films", "Resume")[0], "Ancien");
}

TEST_F(ImportTest, showsItsProgressAndLeavesWhatWasAddedWhenStopped) {
    ecritFiches(300);
    std::vector<std::string> legendes;
    ecranMuet.pendantSouffle = [&] {
        legendes.push_back(ajout.lblProgression.Caption + " " + std::to_string(ajout.ProgressBar1.Value) + "/" +
                           std::to_string(ajout.ProgressBar1.Max));
        EXPECT_TRUE(ajout.lblProgression.Visible && ajout.ProgressBar1.Visible);
    };
    ecranMuet.arretApres = 1;
    importe(300, "1 film ajouté.\nL'import a été interrompu : relancez-le pour ajouter les 299 fiches qui restent.",
            true);
    EXPECT_THAT(legendes, ElementsAre("Film f0000 1/300"));
    EXPECT_THAT(colonne("Personnel", "Titre2"), ElementsAre("Film F0000"));
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
    EXPECT_EQ(ecranMuet.debuts, ecranMuet.fins);

    ecranMuet.arretApres = 0;
    importe(300, "299 films ajoutés.\n1 film non ajouté car déjà dans la base.\n- Déjà existant : \nFilm F0000", true);
    EXPECT_EQ(nombre("Films"), 300u);
    EXPECT_EQ(nombre("Personnel"), 300u);
}

TEST_F(ImportTest, storesWhatTookALotsTimeHoweverFewTheSheets) {
    ecritFiches(4);
    dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
    std::vector<long> lus;  // by another program
    ecranMuet.pendantSouffle = [&] {
        lus.push_back(autre.OpenRecordset("Films").RecordCount());
        MachineDEssai::montre.avance(acquire::LotImport::kDuree);
    };
    importe(4, "4 films ajoutés.");
    EXPECT_THAT(lus, ElementsAre(0, 2));
}

TEST_F(ImportTest, toldOfTheBasesFailureReportsWhatIsStored) {
    ecritFiches(acquire::LotImport::kFiches + 20);
    // After the first lot, another program holds the base.
    dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
    dao::Recordset films = autre.OpenRecordset("Films");
    ecranMuet.pendantSouffle = [&] {
        if (ajout.ProgressBar1.Value != acquire::LotImport::kFiches) return;
        autre.BeginTrans();
        ajoute(films, {{"Titre", "Autre"}});
    };
    attendQuestions(acquire::LotImport::kFiches + 20, true, false, "DVD");
    dialogues.attendMsgBox("Erreur 3260 : Mise à jour impossible : la base est verrouillée par un autre programme.");
    dialogues.attendMsgBox(
        std::to_string(acquire::LotImport::kFiches) +
            " films ajoutés.\nL'import a été interrompu : relancez-le pour ajouter les 20 fiches qui restent.",
        kInformation);
    cmdAjoutAuto_Click(c);
    autre.Rollback();
    EXPECT_EQ(nombre("Films"), std::size_t{acquire::LotImport::kFiches});
    EXPECT_EQ(nombre("Personnel"), std::size_t{acquire::LotImport::kFiches});
    EXPECT_FALSE(base.base.enTransaction());
    films.Close();
}

// What a kill leaves: whole lots, each film with its holding.
TEST_F(ImportTest, killedMidwayKeepsWholeFilmsWithTheirHoldings) {
    ecritFiches(600);
    struct Cas {
        long fiche;
        std::size_t restent;
    };
    for (const Cas& cas : {Cas{1, 0}, Cas{acquire::LotImport::kFiches, acquire::LotImport::kFiches}}) {
        base.ferme();
        EXPECT_TRUE(doubles::meurtEnRoute([&] {
            ouvre();
            ecranMuet.pendantSouffle = [&] {
                if (ajout.ProgressBar1.Value >= cas.fiche) doubles::meurs();
            };
            attendQuestions(600, true, false, "DVD");
            cmdAjoutAuto_Click(c);
        }));
        ouvre();
        EXPECT_EQ(nombre("Films"), cas.restent);
        EXPECT_EQ(nombre("Personnel"), cas.restent);
    }
}

TEST_F(ImportTest, takesInARealFolder) {
    const std::filesystem::path donnees = doubles::donneesReelles("fiches");
    if (!std::filesystem::is_directory(donnees)) GTEST_SKIP() << "no real sheets at " << donnees;
    std::filesystem::copy(donnees, fiches.chemin());
    // 43 sheets; 9 without a poster, 3 posters too large by one byte, 3 of exactly the limit.
    std::string attendu;
    const acquire::DossierFiches reelles(fiches.chemin());
    for (const std::string& nom : reelles.fiches()) {
        const std::string affiche = reelles.cheminAffiche(nom);
        const bool existe = std::filesystem::exists(affiche);
        if (existe && std::filesystem::file_size(affiche) <= 230000) continue;
        attendu += (attendu.empty() ? "" : ", ") + affiche + (existe ? " (trop grande pour la base) " : "");
    }
    importe(43, "43 films ajoutés.\n- Image manquante :\n" + attendu, true, true);
    EXPECT_EQ(nombre("Personnel"), 43u);
    std::size_t affiches = 0;
    for (const std::string& affiche : colonne("Films", "Affiche"))
        affiches += affiche.empty() ? 0 : 1;
    EXPECT_EQ(affiches, 28u);
    EXPECT_THAT(colonne("SELECT * FROM films WHERE titre =\"le parrain II\"", "Realisateur"),
                ElementsAre("Non défini"));
    EXPECT_THAT(colonne("SELECT * FROM films WHERE Realisateur =\"Joseph \"\"McG\"\" McGinty Nichol\"", "Titre"),
                ElementsAre("Charlie Et Ses Drôles De Dames"));
}

}  // namespace
