#include "acquire/AncienneInstallation.h"
#include "acquire/ImporterAncienneBase.h"
#include "acquire/LotImport.h"
#include "db/ConversionJet.h"
#include "db/Sauvegardes.h"
#include "doubles/CollectionJet.h"
#include "doubles/Mort.h"
#include "parcours/Photo.h"
#include "unit/acquire/FenetreAcquisition.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace {

using namespace std::string_literals;
using Lignes = std::vector<Ligne>;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kQuestion =
    "Cette fonction permet de récupérer la base de données et les images d'une précédente version.\nSouhaitez-vous "
    "continuer ?";
constexpr const char* kDossier = "Dossier de la précédente version";
constexpr const char* kImages = "Mes affiches/";

// An open base, and a previous installation with a base of ours and two pictures.
class AncienneBaseTest : public FenetreAcquisition {
  protected:
    doubles::DossierTemporaire ancienne;
    std::string initial;  // folder that the box opens in
    std::string images = ancienne.chemin(kImages);

    AncienneBaseTest() {
        ancienne.ecrit("AMBRELIS.INI",
                       "1\r\nC:\\Vid\xE9o\\Mes Affiches\\\r\n 9000\r\n 6000\r\n 2\r\nC:\\Vid\xE9o\\FILMS.MDB\r\n");
        ancienne.ecrit(kImages + std::string("Été - R.jpg"), "image d'été");
        ancienne.ecrit(kImages + std::string("grande.JPG"), std::string(230001, 'x'));
    }

    void anciens(const Lignes& films, const Lignes& possessions) {
        const std::string chemin = ancienne.chemin("Films.mdb");
        std::filesystem::remove(chemin);
        dao::DBEngine::CreateDatabase(chemin, db::schema());
        dao::Database ouverte = dao::DBEngine::OpenDatabase(chemin);
        remplit(ouverte, films, possessions);
    }
    static void remplit(dao::Database& cible, const Lignes& films, const Lignes& possessions) {
        dao::Transaction ensemble(cible);
        dao::Recordset lesFilms = cible.OpenRecordset("Films"), lesPossessions = cible.OpenRecordset("Personnel");
        for (const auto& film : films)
            ajoute(lesFilms, film);
        for (const auto& possession : possessions)
            ajoute(lesPossessions, possession);
        ensemble.confirme();
    }
    static Ligne film(const std::string& titre, const dao::Valeur& affiche = {}) {
        return {{"Titre", titre}, {"Realisateur", "R"}, {"Affiche", affiche}};
    }
    static Ligne possession(const std::string& titre, const std::string& support = "") {
        return {{"Titre2", titre}, {"Realisateur2", "R"}, {"Support", support}};
    }
    // So many films, each owned and with its own poster in the old base.
    void nombreuxFilms(int nombre) {
        Lignes films, possessions;
        for (int i = 0; i < nombre; ++i) {
            films.push_back(film("Film " + std::to_string(i), dao::Valeur::octets("STO" + std::to_string(i))));
            possessions.push_back(possession("Film " + std::to_string(i)));
        }
        anciens(films, possessions);
    }

    void attendChoix(const std::string& choisi) {
        dialogues.attendMsgBox(kQuestion, dialogues::kQuestion, dialogues::kOui);
        dialogues.attendDossier(kDossier, std::exchange(initial, choisi), choisi);
    }
    void attendAccord(int reponse = dialogues::kOui) {
        dialogues.attendMsgBox(origine() + "\n\nSouhaitez-vous importer cette base ?", dialogues::kQuestion, reponse);
    }
    [[nodiscard]] std::string origine() const {
        return "Base : " + ancienne.chemin("Films.mdb") + "\nImages : " + (images.empty() ? "aucun dossier" : images);
    }
    // Imports, and checks that the previous installation is as it was.
    void importe(const std::string& rapport) {
        const auto avant = ancienne.contenu();
        attendChoix(ancienne.chemin());
        attendAccord();
        dialogues.attendMsgBox(rapport + "\n" + origine(), dialogues::kInformation);
        proposeImportAncienneBase(c);
        dialogues.verifie();
        EXPECT_EQ(ancienne.contenu(), avant);
        EXPECT_TRUE(std::filesystem::is_empty(chemins.dossierTmp));
        EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
        EXPECT_FALSE(ajout.ProgressBar1.Visible || base.base.enTransaction());
    }
    [[nodiscard]] parcours::Photo photo() const { return parcours::Photo(chemins.base); }
    [[nodiscard]] std::string image(const std::string& nom) { return dossier.lit("Images/" + nom); }
};

TEST_F(AncienneBaseTest, FindsTheBaseAndThePosters) {
    const doubles::DossierTemporaire ailleurs;
    const std::string autre = ailleurs.ecrit("Séries.mdb", "x");
    ancienne.ecrit("films.MDB", "x");
    ancienne.ecrit("Bases/Séries.mdb", "x");
    std::filesystem::create_directory(ancienne.chemin("IMAGES"));
    const struct {
        std::string images, base, imagesVues, baseVue;
    } cas[] = {
        {"", "", "IMAGES/", "films.MDB"},
        {"D:\\Ambrelis\\Mes Affiches", "D:\\Ambrelis\\Bases\\s\xC9ries.mdb", kImages, "Bases/Séries.mdb"},
        {"\\\\serveur\\partage\\mes affiches\\\\", "bases/Séries.mdb", kImages, "Bases/Séries.mdb"},
        {"/nulle/part/Mes affiches/", "/ailleurs/Films.mdb", kImages, "films.MDB"},
        {ancienne.chemin("Bases"), autre, "Bases/", autre},
    };
    for (const auto& un : cas) {
        ancienne.ecrit("AMBRELIS.INI", "0\r\n" + un.images + "\r\n0\r\n0\r\n0\r\n" + un.base + "\r\n");
        std::string lieu = ancienne.chemin();
        lieu.pop_back();
        const auto trouvee = acquire::AncienneInstallation::dans(lieu);
        EXPECT_EQ(trouvee.dossierImages, ancienne.chemin(un.imagesVues)) << un.images;
        EXPECT_EQ(trouvee.base, un.baseVue.starts_with('/') ? un.baseVue : ancienne.chemin(un.baseVue)) << un.base;
    }
    EXPECT_EQ(acquire::AncienneInstallation::dans(ailleurs.chemin()).base, "");

    // What is named and is not there; a file is no folder, nor a folder or a pipe a file.
    ASSERT_EQ(mkfifo(ancienne.chemin("tube.mdb").c_str(), 0600), 0);
    for (const auto& [lesImages, ancienneBase] :
         {std::pair("C:\\", "C:\\Ambrelis\\Partie.mdb"), {"Films.mdb", "Images"}, {"/nulle/part", "tube.mdb"}}) {
        ancienne.ecrit("AMBRELIS.INI", "0\r\n"s + lesImages + "\r\n0\r\n0\r\n0\r\n" + ancienneBase + "\r\n");
        const auto trouvee = acquire::AncienneInstallation::dans(ancienne.chemin());
        EXPECT_EQ(trouvee.base + trouvee.dossierImages, "");
        EXPECT_EQ(trouvee.baseAbsente, ancienneBase);
        EXPECT_EQ(trouvee.imagesAbsentes, lesImages);
    }
}

TEST_F(AncienneBaseTest, CarriesEveryFieldAsItIs) {
    const std::string longTitre = "L'œuvre \"10\" " + std::string(200, 'o');
    const Ligne complet{{"Titre", longTitre},
                        {"Realisateur", "Agnès Varda"},
                        {"Annee", "vers 1983"},
                        {"Origine", dao::Valeur()},
                        {"Genre", ""},
                        {"Duree", "2H13 environ"},
                        {"Acteurs", std::string(300, 'a')},
                        {"Resume", "Un été.\r\nUn hiver."},
                        {"Note", 85},
                        {"DateAjout", "12/03/2004"},
                        {"Affiche", dao::Valeur::octets("STO" + std::string(300000, '\0'))}};
    const Ligne possede{
        {"Titre2", longTitre}, {"Realisateur2", "Agnès Varda"}, {"Fichier2", "D:\\Films\\x.avi"}, {"Pret", "Zoé"},
        {"Date", "hier"},      {"Divers", std::string(80, 'd')}};
    anciens({complet, film("Été", "JPGÉTÉ - R.jpg"), film("Grande", "JPGgrande.jpg"), film("Sans", "JPGsans.jpg"),
             film("Autre", "autre chose")},
            {possede});
    importe("5 films ajoutés, dont 1 possédé.\n1 image non trouvée.\n1 image trop grande pour la base.");
    EXPECT_EQ(db::sauvegardesDe(chemins.base).at(0).nom.avant, db::Avant::ImportAncienne);
    EXPECT_THAT(photo().depuis(parcours::Photo(ancienne.chemin("Films.mdb"))), ElementsAre("*Films : Été de R"));
    const auto affiches = colonne("Films", "Affiche");
    EXPECT_THAT(std::vector(affiches.begin() + 1, affiches.end()),
                ElementsAre("STOimage d'été", "JPGgrande.jpg", "JPGsans.jpg", "autre chose"));
    EXPECT_THAT(rafraichissement.appels,
                ElementsAre("AffichageApresModification", "RaffraichitBoitesDeroulantes", "AfficheNbTitres"));
}

TEST_F(AncienneBaseTest, AddsOnlyWhatIsNotThere) {
    remplit(base.base, {film("ALIEN "), film("Solaris"), film("Cœur")}, {possession("Solaris", "VHS")});
    anciens({film("Alien"),
             film("Solaris"),
             film("Été"),
             film("été"),
             film("Seul"),
             {{"Titre", "Seul"}, {"Realisateur", dao::Valeur()}},
             {{"Titre", "Seul"}, {"Realisateur", ""}}},
            {possession("Solaris", "DVD"), possession("alien", "DVD"), possession("été", "K7"),
             possession("Été", "DVD"), possession("Coeur", "CD"), possession("Perdu", "CD")});
    importe(
        "3 films ajoutés, dont 1 possédé.\n4 films déjà présents.\n2 films déjà présents sont maintenant "
        "possédés.\n1 possession reprise sans fiche de film.");
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("ALIEN ", "Solaris", "Cœur", "Été", "Seul", "Seul"));
    EXPECT_THAT(colonne("Personnel", "Titre2"), ElementsAre("Solaris", "alien", "été", "Coeur", "Perdu"));
    EXPECT_THAT(colonne("Personnel", "Support"), ElementsAre("VHS", "DVD", "K7", "CD", "CD"));

    const parcours::Photo avant = photo();
    importe("0 film ajouté.\n7 films déjà présents.");
    EXPECT_THAT(photo().depuis(avant), IsEmpty());
    EXPECT_EQ(rafraichissement.appels.size(), 3u);
}

TEST_F(AncienneBaseTest, PutsThePostersInTheFolderOfNewOnes) {
    ecran::choisit(stockage.Option3, 1);
    dossier.ecrit("Images/Prise - R.jpg", "une autre image");
    dossier.ecrit("Images/Entame - R.jpg", "ent");  // what an import that was killed has left
    std::filesystem::create_directories(dossier.chemin("Images/Bloquée - R.jpg"));
    anciens(
        {film("Été", "JPGété - r.JPG"), film("Grande", "JPGgrande.JPG"), film("Dedans", dao::Valeur::octets("STOd")),
         film("Ded:ans", dao::Valeur::octets("STOd")), film("Prise", dao::Valeur::octets("STOp")),
         film("Entame", dao::Valeur::octets("STOentame")), film("Bloquée", "JPGgrande.JPG"), film("Sans", "JPG")},
        {});
    importe("8 films ajoutés.\n1 image non trouvée.");
    EXPECT_THAT(colonne("Films", "Affiche"),
                ElementsAre("JPGÉté - R.jpg", "JPGGrande - R.jpg", "JPGDedans - R.jpg", "JPGDedans - R.jpg",
                            "JPGPrise - R (2).jpg", "JPGEntame - R.jpg", "JPGBloquée - R (2).jpg", "JPG"));
    EXPECT_EQ(image("Été - R.jpg") + image("Dedans - R.jpg") + image("Prise - R.jpg") + image("Entame - R.jpg"),
              "image d'étédune autre imageentame");
    EXPECT_EQ(image("Grande - R.jpg").size(), 230001u);
}

TEST_F(AncienneBaseTest, RefusesWhatCannotBeImported) {
    const std::string ancienneBase = ancienne.chemin("Films.mdb"), ici = dossier.chemin("Tmp/..");
    const auto refuse = [&](const std::string& lieu, const std::string& message) {
        attendChoix(lieu);
        dialogues.attendMsgBox(message, dialogues::kExclamation);
        proposeImportAncienneBase(c);
    };
    const auto illisible = [&](const std::string& raison) {
        attendChoix(ancienne.chemin());
        attendAccord();
        dialogues.attendMsgBox("La base " + ancienneBase + " n'a pas pu être lue.\n" + raison, dialogues::kCritique);
        proposeImportAncienneBase(c);
    };
    dialogues.attendMsgBox(kQuestion, dialogues::kQuestion, dialogues::kNon);
    proposeImportAncienneBase(c);
    attendChoix("");
    proposeImportAncienneBase(c);
    ancienne.ecrit("AMBRELIS.INI", "");
    refuse(ancienne.chemin(), "Aucune base de données n'a été trouvée dans le dossier " + ancienne.chemin() + ".");
    refuse(ici, "Le dossier " + ici + " est celui d'Ambrelis : choisissez celui de la version précédente.");
    std::filesystem::create_symlink(chemins.base, ancienneBase);
    refuse(ancienne.chemin(), "La base " + ancienneBase + " est celle qui est ouverte : il n'y a rien à importer.");
    std::filesystem::remove(ancienneBase);
    images = "";
    ancienne.ecrit("Films.mdb", "ni l'une ni l'autre");
    illisible("Ce fichier n'est pas une base, ou il est endommagé.");
    std::filesystem::remove(ancienneBase);
    dao::DBEngine::CreateDatabase(ancienneBase, "CREATE TABLE Films (Titre TEXT)");
    illisible("La table « Personnel » n'existe pas dans la base.");
    doubles::BaseJet jet;
    jet.table("Films", {{"Titre"}});
    ancienne.ecrit("Films.mdb", jet.octets());
    illisible("Le champ « Realisateur » manque dans la table « Films ».");
    EXPECT_THAT(colonne("Films", "Titre"), IsEmpty());
    EXPECT_THAT(rafraichissement.appels, IsEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(chemins.dossierTmp));
}

// What the settings name and is not there is asked for; nothing else is taken for it.
TEST_F(AncienneBaseTest, AsksForWhatIsNotWhereTheSettingsSay) {
    anciens({film("Été", "JPGÉté - R.jpg")}, {});
    const auto reglages = [&](const std::string& lesImages, const std::string& ancienneBase) {
        ancienne.ecrit("AMBRELIS.INI", "1\n" + lesImages + "\n\n\n\n" + ancienneBase + "\n");
    };
    const auto demandeBase = [&](int reponse) {
        attendChoix(ancienne.chemin());
        dialogues.attendMsgBox(
            "La base D:\\Séries.mdb, que nomment les réglages de cette version, n'a pas été trouvée."
            "\nSouhaitez-vous indiquer où elle se trouve ?",
            dialogues::kQuestion, reponse);
    };
    const auto choisitBase = [&](const std::string& ancienneBase) {
        demandeBase(dialogues::kOui);
        dialogues.attendFichier(
            {"Base de la précédente version", "Fichiers de base de données|*.mdb", ancienne.chemin(), false},
            ancienneBase);
    };
    const auto demandeImages = [&](int reponse) {
        dialogues.attendMsgBox(
            "Le dossier des images E:\\Affiches, que nomment les réglages de cette version, n'a pas été "
            "trouvé.\nSouhaitez-vous indiquer où il se trouve ?",
            dialogues::kQuestion, reponse);
    };
    reglages("E:\\Affiches", "D:\\Séries.mdb");
    demandeBase(dialogues::kNon);
    proposeImportAncienneBase(c);
    choisitBase("");
    proposeImportAncienneBase(c);
    choisitBase(ancienne.chemin("absente.mdb"));
    dialogues.attendMsgBox("Le fichier indiqué est inexistant !", dialogues::kExclamation);
    proposeImportAncienneBase(c);
    choisitBase(ancienne.chemin("Films.mdb"));
    demandeImages(dialogues::kNon);
    images = "";
    attendAccord(dialogues::kNon);
    proposeImportAncienneBase(c);
    EXPECT_EQ(base.films.RecordCount(), 0);

    reglages("E:\\Affiches", "");
    attendChoix(ancienne.chemin());
    demandeImages(dialogues::kOui);
    images = ancienne.chemin(kImages);
    dialogues.attendDossier("Dossier des images de la précédente version", ancienne.chemin(), images);
    attendAccord();
    dialogues.attendMsgBox("1 film ajouté.\n" + origine(), dialogues::kInformation);
    proposeImportAncienneBase(c);
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("STOimage d'été"));
}

// A picture that was not there at first is given to its film by a later import, which changes no other poster.
TEST_F(AncienneBaseTest, ASecondPassFillsThePostersThatAreMissing) {
    for (const std::size_t option : {0, 1}) {
        ecran::choisit(stockage.Option3, option);
        const std::string p = std::to_string(option);
        remplit(base.base, {film("Nu" + p), film("Autre" + p, "JPGà moi.jpg"), film("Vu" + p, "JPGvu.jpg")}, {});
        dossier.ecrit("Images/vu.jpg", "la mienne");
        anciens({film("Nu" + p, "JPGété - r.jpg"), film("Autre" + p, "JPGété - r.jpg"), film("Vu" + p, "JPGvu.jpg"),
                 film("Absent" + p, "JPGabsent" + p + ".jpg")},
                {});
        importe(
            "1 film ajouté.\n3 films déjà présents.\n1 image ajoutée à un film déjà présent.\n1 image non trouvée.");
        ancienne.ecrit(kImages + "ABSENT"s + p + ".jpg", "retrouvée");
        importe("0 film ajouté.\n4 films déjà présents.\n1 image ajoutée à un film déjà présent.");
        importe("0 film ajouté.\n4 films déjà présents.");
    }
    EXPECT_THAT(colonne("Films", "Affiche"),
                ElementsAre("STOimage d'été", "JPGà moi.jpg", "JPGvu.jpg", "STOretrouvée", "JPGNu1 - R.jpg",
                            "JPGà moi.jpg", "JPGvu.jpg", "JPGAbsent1 - R.jpg"));
    EXPECT_EQ(image("Nu1 - R.jpg") + image("Absent1 - R.jpg") + image("vu.jpg"), "image d'étéretrouvéela mienne");
}

// The names of its posters may say anything: nothing outside its images folder is read.
TEST_F(AncienneBaseTest, ReadsNoPictureOutsideItsFolder) {
    ancienne.ecrit("secret.jpg", "secret");
    std::filesystem::create_symlink(ancienne.chemin("secret.jpg"), ancienne.chemin(kImages + "lien.jpg"s));
    ASSERT_EQ(mkfifo(ancienne.chemin(kImages + "tube.jpg"s).c_str(), 0600), 0);
    Lignes films;
    std::vector<std::string> attendues;
    for (const std::string& nom :
         {"../secret.jpg"s, "..\\secret.jpg"s, ancienne.chemin("secret.jpg"), ".."s, "."s, "lien.jpg"s, "tube.jpg"s,
          "../"s + kImages, "été - r.jpg/"s, std::string(5 << 20, 'a') + "/../secret.jpg"}) {
        films.push_back(film("Film " + std::to_string(films.size()), "JPG" + nom));
        attendues.push_back("JPG" + nom);
    }
    films.push_back(film("Bon", "JPG..\\ailleurs\\été - r.jpg"));
    attendues.push_back("STOimage d'été");
    anciens(films, {});
    importe("11 films ajoutés.\n10 images non trouvées.");
    EXPECT_EQ(colonne("Films", "Affiche"), attendues);
}

// The losses are told first, and kept beside the open base: nothing is written to the previous installation.
TEST_F(AncienneBaseTest, OfAProtectedAndDamagedJetBaseTakesWhatIsReadable) {
    doubles::BaseJet jet = doubles::collectionJet(3);
    jet.motDePasse = "secret";
    std::string abimee = jet.octets();
    const std::size_t longue = abimee.find(std::string("\x01\x01\0\0LVAL", 8));
    ancienne.ecrit("Films.mdb", abimee.replace(longue, 1, 1, '\0'));
    const std::string ancienneBase = ancienne.chemin("Films.mdb"), pertes = dossier.chemin("Films (pertes).txt");
    const std::string detail =
        "- Ligne 1 (« Été 0 », Agnès Varda), champ « Resume » : un renvoi mène à une page "
        "étrangère.\n";
    const auto jusquALaQuestion = [&](int reponse) {
        attendChoix(ancienne.chemin());
        attendAccord();
        dialogues.attendInputBox("La base " + ancienneBase + " est protégée par un mot de passe. Quel est-il ?",
                                 "secret");
        dialogues.attendMsgBox(
            "La base " + ancienneBase +
                " n'a pas pu être lue.\nLa base est endommagée : table \"films\", ligne 1, champ \"Resume\" : un "
                "renvoi "
                "mène à une page étrangère.\n\nCe qui est lisible : 3 films, 2 possessions, 3 affiches dans la "
                "base.\nTable non reprise : Notes diverses.\nChamp non repris : Films.Format.\n\nCe qui est perdu :\n"
                "Table « Films » : 3 lignes reprises sur 3, 1 autre champ illisible.\n" +
                detail + "\nImporter ce qui est lisible ?\nLa liste des pertes sera gardée dans " + pertes + ".",
            dialogues::kQuestion, reponse);
    };
    jusquALaQuestion(dialogues::kNon);
    proposeImportAncienneBase(c);
    EXPECT_THAT(colonne("Films", "Titre"), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(pertes));
    jusquALaQuestion(dialogues::kOui);
    dialogues.attendMsgBox(
        "3 films ajoutés, dont 2 possédés.\nTable non reprise : Notes diverses.\nChamp non repris : "
        "Films.Format.\n" +
            origine(),
        dialogues::kInformation);
    proposeImportAncienneBase(c);
    EXPECT_THAT(colonne("Films", "Titre"), ElementsAre("Été 0", "Été 1", "Été 2"));
    EXPECT_THAT(dossier.lit("Films (pertes).txt"), testing::HasSubstr(detail));
    EXPECT_EQ(ancienne.lit("Films.mdb"), abimee);
    EXPECT_TRUE(std::filesystem::is_empty(chemins.dossierTmp));
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
    dialogues.verifie();
    attendChoix(ancienne.chemin());
    attendAccord();
    dialogues.attendInputBox("La base " + ancienneBase + " est protégée par un mot de passe. Quel est-il ?", "");
    proposeImportAncienneBase(c);
}

TEST_F(AncienneBaseTest, StoppedKeepsWhatWasAddedAndGoesOnNextTime) {
    nombreuxFilms(40);
    const std::string suite = "\nL'import a été interrompu : relancez-le pour ajouter le reste.";
    ecranMuet.arretApres = 1;
    importe("0 film ajouté." + suite);  // while the base is being read
    EXPECT_THAT(rafraichissement.appels, IsEmpty());
    ecranMuet.souffles = 0;
    ecranMuet.arretApres = 1000;
    ecranMuet.pendantSouffle = [&] {
        EXPECT_TRUE(ajout.ProgressBar1.Visible);
        if (ajout.lblProgression.Caption == "Film 9") ecranMuet.arretApres = ecranMuet.souffles;
    };
    importe("10 films ajoutés, dont 10 possédés." + suite);
    ecranMuet.arretApres = 0;
    ecranMuet.pendantSouffle = nullptr;
    importe("30 films ajoutés, dont 30 possédés.\n10 films déjà présents.");
    EXPECT_THAT(photo().depuis(parcours::Photo(ancienne.chemin("Films.mdb"))), IsEmpty());
}

TEST_F(AncienneBaseTest, AFailureLeavesWholeLotsAndNoFileOfTheLotThatFailed) {
    const int lot = acquire::LotImport::kFiches;
    nombreuxFilms(lot + 20);
    ecran::choisit(stockage.Option3, 1);
    ecranMuet.pendantSouffle = [&] {  // the second lot meets a folder that is gone
        if (ajout.ProgressBar1.Value == lot + 10) std::filesystem::remove_all(dossier.chemin("Images"));
    };
    attendChoix(ancienne.chemin());
    attendAccord();
    const std::string chemin = dossier.chemin("Images/Film " + std::to_string(lot + 10) + " - R.jpg");
    dialogues.attendMsgBox("Le fichier image " + chemin + " n'a pas pu être écrit (Disque plein/Lecture seule ?)",
                           dialogues::kCritique);
    dialogues.attendMsgBox(std::to_string(lot) + " films ajoutés, dont " + std::to_string(lot) +
                               " possédés.\nL'import a été interrompu : relancez-le pour ajouter le reste.\n" +
                               origine(),
                           dialogues::kInformation);
    proposeImportAncienneBase(c);
    EXPECT_EQ(base.films.RecordCount(), lot);
    EXPECT_EQ(base.personnel.RecordCount(), lot);
    EXPECT_FALSE(dossier.existe("Images"));
}

// Each film that was stored has its holding and its poster; the next import adds the others.
TEST_F(AncienneBaseTest, KilledAnywhereItLosesNothing) {
    const int lot = acquire::LotImport::kFiches;
    nombreuxFilms(lot + 30);
    ecran::choisit(stockage.Option3, 1);
    for (const int mort : {20, lot + 10}) {
        base.ferme();
        EXPECT_TRUE(doubles::meurtEnRoute([&] {
            ouvre();
            ecranMuet.pendantSouffle = [&] {
                if (ajout.ProgressBar1.Value == mort) doubles::meurs();
            };
            attendChoix(ancienne.chemin());
            attendAccord();
            proposeImportAncienneBase(c);
        }));
        ouvre();
        EXPECT_EQ(base.films.RecordCount(), mort > lot ? lot : 0);
        EXPECT_EQ(base.personnel.RecordCount(), base.films.RecordCount());
    }
    importe("30 films ajoutés, dont 30 possédés.\n" + std::to_string(lot) + " films déjà présents.");
    for (const std::string& affiche : colonne("Films", "Affiche")) {
        const std::string nom = affiche.substr(3);
        EXPECT_EQ("Film " + image(nom) + " - R.jpg", nom);
    }
}

// With the rows that a conversion of the same file gives; the posters that files hold are then here.
TEST_F(AncienneBaseTest, TakesInRealJetInstallations) {
    const std::filesystem::path donnees = doubles::donneesReelles("bases-jet");
    if (!std::filesystem::is_directory(donnees)) GTEST_SKIP() << "no real bases at " << donnees;
    std::filesystem::copy(donnees / "Images", ancienne.chemin(kImages), std::filesystem::copy_options::recursive);
    for (const char* nom : {"Films-97", "Films-2000", "Films-2003-index", "Films-2003-remaniee"}) {
        std::filesystem::copy_file(donnees / (nom + std::string(".mdb")), ancienne.chemin("Films.mdb"),
                                   std::filesystem::copy_options::overwrite_existing);
        const std::string temoin = dossier.chemin("temoin.mdb");
        ecran::Progression progression;
        const db::IssueJet issue = db::ConversionJet(progression, ecranMuet)(ancienne.chemin("Films.mdb"), temoin);
        ASSERT_TRUE(issue.estFaite()) << nom;
        const parcours::Photo attendue(temoin);
        std::filesystem::remove(temoin);
        for (const std::size_t option : {0, 1}) {
            base.ferme();
            std::filesystem::remove(chemins.base);
            std::filesystem::remove_all(dossier.chemin("Images"));
            dao::DBEngine::CreateDatabase(chemins.base, db::schema());
            ouvre();
            ecran::choisit(stockage.Option3, option);
            importe(
                "42 films ajoutés, dont 20 possédés.\n1 possession reprise sans fiche de film.\n1 image non trouvée." +
                std::string(option == 0 ? "\n1 image trop grande pour la base." : "") + issue.rapport.pertes());
            for (const std::string& changement : photo().depuis(attendue))
                EXPECT_TRUE(changement.starts_with("*Films")) << changement;
        }
    }
    EXPECT_EQ(image("Le Pianiste - Roman Polanski.jpg").size(), 230001u);
}

}  // namespace
