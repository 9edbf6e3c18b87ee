#include "Entretien.h"
#include "db/cmdMajBase_Click.h"
#include "util/Texte.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

std::string image(int rang, std::size_t taille = 3000) {
    std::string octets = "\xFF\xD8";
    std::minstd_rand hasard(static_cast<unsigned>(rang) + 1);
    while (octets.size() < taille)
        octets += static_cast<char>(hasard());
    return octets;
}

class ConversionTest : public AvecEntretien {
  protected:
    void fichier(const std::string& nom, const std::string& octets) { dossier.ecrit("Images/" + nom, octets); }
    [[nodiscard]] std::string litFichier(const std::string& nom) { return dossier.lit("Images/" + nom); }
    [[nodiscard]] bool existe(const std::string& nom) { return dossier.existe("Images/" + nom); }
    void convertit(std::size_t option, const std::string& rapport, bool compacte = false) {
        ecran::choisit(stockage.Option3, option);
        if (compacte) dialogues.attendMsgBox("Compactage effectué.", dialogues::kInformation);
        if (!rapport.empty()) dialogues.attendMsgBox(rapport, dialogues::kInformation);
        db::cmdMajBase_Click(c);
        dialogues.verifie();
        EXPECT_EQ(rafraichissement.appels.back(), "AffichageApresModification");
    }
};

TEST_F(ConversionTest, FilesGoIntoTheBaseAsFarAsTheyFit) {
    const std::string laPlusGrande = image(1, 229999);
    fichier("a.jpg", laPlusGrande);
    fichier("b.jpg", image(2, 230000));
    fichier("C.JPG", image(3));
    ajoute("a", "", "JPGa.jpg");
    ajoute("b", "", "JPGb.jpg");
    ajoute("c", "", "JPGc.jpg");
    ajoute("d", "", "JPGnullepart.jpg");
    ajoute("e", "", dao::Valeur());
    convertit(0, "1 fichier exclu car trop volumineux.\r\n2 fichiers inclus.");
    EXPECT_EQ(affiches(),
              (std::vector<std::string>{"STO" + laPlusGrande, "JPGb.jpg", "STO" + image(3), "JPGnullepart.jpg", ""}));
    EXPECT_TRUE(existe("b.jpg"));
    EXPECT_FALSE(existe("a.jpg") || existe("C.JPG"));
    EXPECT_EQ(travaux.ProgressBar2.Value, 5);
    EXPECT_EQ(travaux.ProgressBar2.Max, 5);
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
}

// They came with the base: another copy of it may name them.
TEST_F(ConversionTest, FilesBesideTheBaseGoIntoItAndStay) {
    stockage.Text4.Text = chemin("Ailleurs");
    fichier("a.jpg", image(1));
    dossier.ecrit("b.jpg", image(2));
    dossier.ecrit("Ailleurs/c.jpg", image(3));
    fichier("c.jpg", image(4));
    for (const char* nom : {"a", "b", "c"})
        ajoute(nom, "", "JPG" + std::string(nom) + ".jpg");
    ajoute("d", "", "JPGb.jpg");  // named twice, it stays too
    convertit(0, "4 fichiers inclus.");
    EXPECT_EQ(affiches(),
              (std::vector<std::string>{"STO" + image(1), "STO" + image(2), "STO" + image(3), "STO" + image(2)}));
    EXPECT_TRUE(existe("a.jpg") && existe("c.jpg") && dossier.existe("b.jpg"));
    EXPECT_FALSE(dossier.existe("Ailleurs/c.jpg"));
}

TEST_F(ConversionTest, NothingToMoveShowsNothing) {
    ajoute("a", "", dao::Valeur());
    ajoute("b", "", "JPGnullepart.jpg");
    convertit(0, "");
    convertit(1, "");
    EXPECT_TRUE(dossier.existe("Images"));
}

TEST_F(ConversionTest, AFileThatSeveralFilmsNameGoesWithTheLast) {
    fichier("commun.jpg", image(1));
    fichier("seul.jpg", image(2));
    ajoute("a", "", "JPGcommun.jpg");
    ajoute("b", "", "JPGseul.jpg");
    ajoute("c", "", "JPGCOMMUN.jpg");
    ecranMuet.arretApres = 2;
    convertit(0,
              "2 fichiers inclus.\r\nLa conversion a été interrompue : relancez-la pour convertir l'affiche restante.");
    EXPECT_TRUE(existe("commun.jpg"));
    EXPECT_FALSE(existe("seul.jpg"));
    ecranMuet.arretApres = 0;
    convertit(0, "1 fichier inclu.");
    EXPECT_FALSE(existe("commun.jpg"));
    EXPECT_EQ(affiches().at(2), "STO" + image(1));
}

// Killed after a lot was stored, a conversion leaves files; nobody else's goes with them.
TEST_F(ConversionTest, FilesLeftByAKilledConversionGoWithTheNext) {
    for (const char* titre : {"Laissé", "Remplacé", "L'été", "Nommé", "Autre"})
        ajoute(titre, "R", db::valeurAfficheDansLaBase(image(1)));
    ajoute("Qui nomme", "R", "JPGnommé - r.JPG");
    for (const char* nom : {"Laissé - R.jpg", "R - Remplacé.jpg", "Nommé - R.jpg", "Inconnu - R.jpg"})
        fichier(nom, image(1));
    fichier("Autre - R.jpg", image(2));
    fichier("L'été - R.jpg", image(1).substr(0, 100));
    fichier("Laissé - R (2).jpg", image(1));
    ecranMuet.arretApres = 1;
    ecranMuet.pendantSouffle = [&] {
        EXPECT_FALSE(existe("Laissé - R.jpg") || existe("R - Remplacé.jpg") || existe("Laissé - R (2).jpg"));
        EXPECT_TRUE(existe("Nommé - R.jpg") && existe("Inconnu - R.jpg") && existe("Autre - R.jpg"));
        EXPECT_EQ(litFichier("L'été - R.jpg"), image(1).substr(0, 100));
    };
    convertit(0, "1 fichier inclu.");
    EXPECT_EQ(ecranMuet.souffles, 1);
    EXPECT_FALSE(existe("Nommé - R.jpg"));
    EXPECT_EQ(affiches().at(1), "STO" + image(1));
}

TEST_F(ConversionTest, PostersGoIntoFilesThatNoOtherPictureHas) {
    ajoute("Été : 1", "R", db::valeurAfficheDansLaBase(image(1)));
    ajoute("Été / 1", "R", db::valeurAfficheDansLaBase(image(1)));  // the same file, the same picture
    ajoute("Été * 1", "R", db::valeurAfficheDansLaBase(image(2)));  // the same file, another picture
    ajoute("Coupé", "R", db::valeurAfficheDansLaBase(image(3)));
    fichier("Coupé - R.jpg", image(3).substr(0, 100));  // what a killed conversion left
    ajoute("Dossier", "R", db::valeurAfficheDansLaBase(image(4)));
    std::filesystem::create_directories(chemin("Images/Dossier - R.jpg"));
    ajoute("Renommé", "R", "JPG../PRIS - r.jpg");  // its file is another's name by now
    fichier("Pris - R.jpg", image(5));
    ajoute("Pris", "R", db::valeurAfficheDansLaBase(image(6)));
    ajoute("Retiré", "R", "JPGAbsent - R.jpg");  // its disk is away
    ajoute("Absent", "R", db::valeurAfficheDansLaBase(image(7)));
    convertit(1, "7 fichiers créés.\r\n", true);
    std::vector<std::string> obtenues = affiches();
    std::ranges::sort(obtenues);
    EXPECT_EQ(obtenues, (std::vector<std::string>{"JPG../PRIS - r.jpg", "JPGAbsent - R (2).jpg", "JPGAbsent - R.jpg",
                                                  "JPGCoupé - R.jpg", "JPGDossier - R (2).jpg", "JPGPris - R (2).jpg",
                                                  "JPGÉté  1 - R (2).jpg", "JPGÉté  1 - R.jpg", "JPGÉté  1 - R.jpg"}));
    EXPECT_EQ(litFichier("Été  1 - R.jpg"), image(1));
    EXPECT_EQ(litFichier("Été  1 - R (2).jpg"), image(2));
    EXPECT_EQ(litFichier("Coupé - R.jpg"), image(3));
    EXPECT_EQ(litFichier("Pris - R.jpg"), image(5));
    EXPECT_EQ(litFichier("Pris - R (2).jpg"), image(6));
}

// Whatever the films' values say, only ordinary files of the images folder itself are taken in, and removed.
TEST_F(ConversionTest, NothingOutsideTheFolderIsReadNorRemoved) {
    const std::string victime = dossier.ecrit("coffre/victime.jpg", image(1));
    std::filesystem::create_directories(chemin("Images/sous"));
    std::filesystem::create_symlink(victime, chemin("Images/lien.jpg"));
    fichier("sous/dedans.jpg", image(2));
    fichier("vraie.jpg", image(3));
    for (const std::string& nom : {"../coffre/victime.jpg"s, "..\\coffre\\victime.jpg"s, victime, "lien.jpg"s, "sous"s,
                                   "../Images/sous/dedans.jpg"s, ".."s, "../.."s})
        ajoute(nom, "", "JPG" + nom);
    ajoute("vraie", "", "JPG..\\Ailleurs\\vraie.jpg");
    convertit(0, "1 fichier inclu.");
    EXPECT_EQ(dossier.lit("coffre/victime.jpg"), image(1));
    EXPECT_EQ(litFichier("sous/dedans.jpg"), image(2));
    EXPECT_TRUE(existe("lien.jpg"));
    EXPECT_FALSE(existe("vraie.jpg"));
    EXPECT_EQ(valeurs("SELECT * FROM films WHERE Affiche LIKE 'STO*'", "Titre"), std::vector<std::string>{"vraie"});
}

// Each step over a field is done with it in the time it takes to read it.
TEST_F(ConversionTest, FieldsOfMegabytesAreConvertedLikeOthers) {
    const std::string long5Mo(5'000'000, 'x'), accents = util::remplace(long5Mo.substr(0, 2'500'000), "x", "é");
    ajoute(long5Mo, accents, db::valeurAfficheDansLaBase(image(1)));
    ajoute(accents, long5Mo, db::valeurAfficheDansLaBase(image(2)));
    ajoute("a", util::remplace(long5Mo, "x", ".\\"), db::valeurAfficheDansLaBase(image(3)));
    ajoute("b", "", "JPG" + util::remplace(long5Mo, "x", "../"));
    ajoute("c", "", "JPG" + util::remplace(long5Mo, "x", ".\\"));
    ajoute("d", "", "JPG" + long5Mo);
    convertit(1, "3 fichiers créés.\r\n", true);
    convertit(0, "3 fichiers inclus.");
    EXPECT_EQ(valeurs("SELECT * FROM films WHERE Affiche LIKE 'STO*'", "Titre").size(), 3U);
    EXPECT_TRUE(std::filesystem::is_empty(chemin("Images")));
}

TEST_F(ConversionTest, AFolderThatIsNoneOrCannotBeWrittenLeavesAllAsItWas) {
    ajoute("a", "", db::valeurAfficheDansLaBase(image(1)));
    const std::string barre = dossier.ecrit("barrage", "") + "/Images";
    const std::string dAilleurs = "C:\\Films\\Affiches";
    const std::string absent =
        "Le dossier des images " + dAilleurs + " n'existe pas sur cet ordinateur : choisissez-en un autre !";
    for (const auto& [option, texte, refus] :
         {std::tuple(0, dAilleurs, absent),
          {1, dAilleurs, absent},
          {1, barre, "Le dossier des images " + barre + "/ n'est pas accessible en écriture !"}}) {
        stockage.Text4.Text = texte;
        dialogues.attendMsgBox(refus, dialogues::kCritique);
        convertit(static_cast<std::size_t>(option), "");
        EXPECT_EQ(affiches().at(0), "STO" + image(1));
    }
}

TEST_F(ConversionTest, AFullDiskIsToldAndLeavesBaseAndFolderAsTheyWere) {
    ajoute("a", "", db::valeurAfficheDansLaBase(image(1)));
    ajoute("b", "", db::valeurAfficheDansLaBase(image(2, 200000)));
    base.ferme();
    DialoguesMuets muets;
    const bool tenu = executeAilleurs(std::nullopt, [&] {
        const db::Contexte ailleurs = avec(muets);
        db::ouvreLaBase(ailleurs);
        ecran::choisit(stockage.Option3, 1);
        const doubles::DisquePlein disque(100000);
        db::cmdMajBase_Click(ailleurs);
        const std::vector<std::string> attendus{
            "Le fichier image " + chemin("Images/b - .jpg") + " n'a pas pu être écrit (Disque plein)",
            "La conversion a été interrompue : relancez-la pour convertir les 2 affiches restantes."};
        _exit(muets.textes == attendus ? 0 : 1);
    });
    EXPECT_TRUE(tenu);
    EXPECT_TRUE(std::filesystem::is_empty(chemin("Images")));
    db::ouvreLaBase(c);
    EXPECT_EQ(affiches(), (std::vector<std::string>{"STO" + image(1), "STO" + image(2, 200000)}));
}

// Killed at any moment, each film has its poster where its row says; started again, the conversion ends.
class ConversionTueeTest : public ConversionTest, public ::testing::WithParamInterface<std::size_t> {
  protected:
    static constexpr int kFilms = 1300;  // more than a lot
    static constexpr int kMorts = 25;

    static std::string titre(int rang) { return "Film " + std::to_string(rang); }
    void remplit(bool dansLaBase) {
        dao::Transaction ensemble(base.base);
        for (int rang = 0; rang < kFilms; ++rang) {
            const std::string nom = db::nomFichierAffiche(titre(rang), "R");
            if (!dansLaBase) fichier(nom, image(rang));
            ajoute(titre(rang), "R",
                   dansLaBase ? db::valeurAfficheDansLaBase(image(rang)) : db::valeurAfficheFichier(nom));
        }
        ensemble.confirme();
    }
    // How many films are stored the way that was asked for.
    int verifieAffiches(bool dansLaBase) {
        db::ouvreLaBase(c);
        dao::Recordset films = base.base.OpenRecordset("SELECT * FROM films");
        int convertis = 0, perdus = 0;
        for (; !films.Eof(); films.MoveNext()) {
            const std::string affiche = films.texte("Affiche");
            const bool enBase = db::estDansLaBase(affiche);
            const std::string octets = enBase                      ? affiche.substr(3)
                                       : existe(affiche.substr(3)) ? litFichier(affiche.substr(3))
                                                                   : "";
            perdus += octets != image(std::stoi(films.texte("Titre").substr(5)));
            convertis += enBase == dansLaBase;
        }
        EXPECT_EQ(films.RecordCount(), kFilms);
        EXPECT_EQ(perdus, 0);
        films.Close();
        base.ferme();
        return convertis;
    }
    bool convertitAilleurs(std::optional<unsigned> delai) {
        return executeAilleurs(delai, [&] {
            DialoguesMuets muets;
            const db::Contexte ailleurs = avec(muets);
            db::ouvreLaBase(ailleurs);
            ecran::choisit(stockage.Option3, GetParam());
            db::cmdMajBase_Click(ailleurs);
        });
    }
};

TEST_P(ConversionTueeTest, NoPosterIsEverLost) {
    const bool versLaBase = GetParam() == 0;
    remplit(!versLaBase);
    base.ferme();
    std::mt19937 hasard(20);
    int interrompues = 0;
    for (int mort = 0; mort < kMorts && !HasFailure(); ++mort) {
        const unsigned delai =
            std::uniform_int_distribution<unsigned>(0, 6000 * (1 + static_cast<unsigned>(mort)))(hasard);
        if (!convertitAilleurs(delai)) ++interrompues;
        if (verifieAffiches(versLaBase) == kFilms) break;
    }
    EXPECT_GT(interrompues, 3);
    EXPECT_TRUE(convertitAilleurs(std::nullopt));
    EXPECT_EQ(verifieAffiches(versLaBase), kFilms);
    EXPECT_EQ(std::ssize(dossier.noms("Images")), versLaBase ? 0 : kFilms);
}

INSTANTIATE_TEST_SUITE_P(BothWays, ConversionTueeTest, ::testing::Values(0, 1));

}  // namespace
