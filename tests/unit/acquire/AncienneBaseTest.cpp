#include "db/ConversionJet.h"
#include "db/Sauvegardes.h"
#include "doubles/CollectionJet.h"
#include "unit/acquire/AncienneBase.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(AncienneBase, CarriesEveryFieldAsItIs) {
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

TEST_F(AncienneBase, AddsOnlyWhatIsNotThere) {
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

TEST_F(AncienneBase, PutsThePostersInTheFolderOfNewOnes) {
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

// A picture that was not there at first is given to its film by a later import, which changes no other poster.
TEST_F(AncienneBase, ASecondPassFillsThePostersThatAreMissing) {
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
TEST_F(AncienneBase, ReadsNoPictureOutsideItsFolder) {
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
TEST_F(AncienneBase, OfAProtectedAndDamagedJetBaseTakesWhatIsReadable) {
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

// With the rows that a conversion of the same file gives; the posters that files hold are then here.
TEST_F(AncienneBase, TakesInRealJetInstallations) {
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
