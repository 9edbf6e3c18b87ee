#include "Entretien.h"
#include "db/OuvertureJet.h"
#include "doubles/CollectionJet.h"
#include "doubles/DialoguesScript.h"
#include "platform/fichiers/Verrou.h"

#include <map>
#include <random>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

constexpr int kFilms = 30;

class OuvertureJetTest : public ::testing::Test {
  protected:
    doubles::DossierTemporaire dossier;
    doubles::DialoguesScript dialogues;
    doubles::EcranMuet ecran;
    ecran::Progression progression;
    ecran::Etiquette lblTravail;
    db::OuvertureJet ouvertureJet{{progression, lblTravail, ecran, dialogues}};
    const std::string base = dossier.chemin("Films.mdb");

    void SetUp() override {
        dossier.ecrit("Films.mdb", doubles::collectionJet(kFilms).octets());
        progression.Visible = false;
    }
    std::map<std::string, std::string> contenu() const {
        std::map<std::string, std::string> fichiers;
        for (const auto& entree : fs::directory_iterator(dossier.chemin()))
            fichiers[entree.path().filename()] = dossier.lit(entree.path().filename().string());
        return fichiers;
    }
    static long films(const std::string& chemin) {
        dao::Database ouverte = dao::DBEngine::OpenDatabase(chemin);
        return ouverte.OpenRecordset("Films").RecordCount();
    }
    void demande(int reponse, const std::string& suite = "", const std::string& autreNom = "Films (Jet).mdb") {
        dialogues.attendMsgBox("Le fichier " + base +
                                   " est une base Jet (Access). Voulez-vous la convertir pour l'ouvrir ?\n"
                                   "L'original sera conservé sous le nom « " +
                                   autreNom + " »." + suite,
                               36, reponse);
    }
    // The user agrees, is told why it cannot be, and every file is as it was.
    void refuse(const std::string& raison) {
        SCOPED_TRACE(raison);
        const auto avant = contenu();
        demande(dialogues::kOui);
        dialogues.attendMsgBox(
            "La base n'a pas pu être convertie.\n" + raison + "\nLe fichier " + base + " n'a pas été modifié.", 16);
        EXPECT_EQ(ouvertureJet(base), std::nullopt);
        EXPECT_TRUE(contenu() == avant);
        EXPECT_FALSE(progression.Visible);
        dialogues.verifie();
    }
};

TEST_F(OuvertureJetTest, TheResultTakesTheNameAndTheOriginalStandsBeside) {
    const std::string octets = dossier.lit("Films.mdb");
    dossier.ecrit("Films (Jet).mdb", "une lettre");
    dossier.ecrit("films (JET 2).mdb", "une autre");
    dossier.ecrit("Films.ldb", "");
    fs::create_symlink("Films.mdb", dossier.chemin("Films (Jet 3).mdb"));
    fs::create_symlink("Films.mdb", dossier.chemin("Lien.mdb"));
    ecran.pendantSouffle = [this] {
        EXPECT_TRUE(progression.Visible);
        EXPECT_EQ(lblTravail.Caption, "Conversion de la base Films.mdb...");
    };
    demande(dialogues::kOui,
            "\nLe fichier « Films.ldb » indique qu'un autre programme l'utilise peut-être : fermez-le d'abord.",
            "Films (Jet 4).mdb");
    EXPECT_TRUE(db::OuvertureJet::estJet(dossier.chemin("LIEN.MDB")));
    EXPECT_EQ(ouvertureJet(dossier.chemin("LIEN.MDB")),
              "La base a été convertie.\n30 films, 2 possessions, 30 affiches dans la base.\n"
              "Table non reprise : Notes diverses.\nChamp non repris : Films.Format.\nL'original est conservé sous le "
              "nom « Films (Jet 4).mdb ».");
    EXPECT_EQ(dossier.lit("Films (Jet 4).mdb"), octets);
    EXPECT_EQ(dossier.lit("Films (Jet).mdb") + dossier.lit("films (JET 2).mdb"), "une lettreune autre");
    EXPECT_EQ(films(dossier.chemin("Lien.mdb")), kFilms);
    EXPECT_FALSE(db::OuvertureJet::estJet(base));
    EXPECT_FALSE(progression.Visible);
}

// Nobody may link to another's file that he cannot write: it is kept as a copy, as where the file system knows no links.
TEST_F(OuvertureJetTest, WhereNoLinkCanBeMadeACopyIsKept) {
    const std::string octets = dossier.lit("Films.mdb");
    fs::last_write_time(base, fs::file_time_type::clock::now() - std::chrono::hours(24 * 365 * 20));
    const auto date = fs::last_write_time(base);
    fs::permissions(base, fs::perms{0444});
    fs::permissions(dossier.chemin(), fs::perms{0777});
    const SansPrivileges ordinaire;
    demande(dialogues::kOui);
    EXPECT_TRUE(ouvertureJet(base));
    EXPECT_EQ(dossier.lit("Films (Jet).mdb"), octets);
    EXPECT_EQ(fs::last_write_time(dossier.chemin("Films (Jet).mdb")), date);
    EXPECT_EQ(films(base), kFilms);
    EXPECT_EQ(contenu().size(), 2u);
}

// The moment between the original's other name and the exchange.
TEST_F(OuvertureJetTest, WhatAKilledConversionLeftServesOrGoes) {
    const std::string octets = dossier.lit("Films.mdb");
    fs::create_hard_link(base, dossier.chemin("Films (Jet).mdb"));
    for (const std::string& reste : {std::string(), std::string(8192, '\0')}) {
        dossier.ecrit("Films.mdb-conversion.tmp", reste);
        demande(dialogues::kOui);
        EXPECT_TRUE(ouvertureJet(base));
        EXPECT_EQ(dossier.lit("Films (Jet).mdb"), octets);
        EXPECT_EQ(films(base), kFilms);
        EXPECT_EQ(contenu().size(), 2u);
        fs::rename(dossier.chemin("Films (Jet).mdb"), base);
    }
}

TEST_F(OuvertureJetTest, WhatStandsInTheWayIsNamed) {
    dossier.ecrit("Films.mdb-journal", "");
    refuse("Le fichier « " + base + "-journal » appartient à une autre base. Déplacez-le, puis recommencez.");
    fs::remove(base + "-journal");
    dossier.ecrit("Films.mdb-conversion.tmp", "une lettre");
    refuse("Le fichier « " + base + "-conversion.tmp » gêne la conversion. Déplacez-le, puis recommencez.");
    fs::remove(base + "-conversion.tmp");
    {
        const fichiers::Verrou autre(base);
        refuse("Le fichier ne peut pas être lu, ou un autre programme le convertit déjà.");
    }
    fs::permissions(dossier.chemin(), fs::perms{0555});
    const SansPrivileges ordinaire;
    refuse("Son dossier n'est pas accessible en écriture.");
}

TEST_F(OuvertureJetTest, ADamagedBaseIsRefusedWhole) {
    const std::string entiere = dossier.lit("Films.mdb");
    DialoguesMuets consentants;
    consentants.reponse = dialogues::kOui;
    db::OuvertureJet ouverture({progression, lblTravail, ecran, consentants});
    std::minstd_rand hasard(20);
    long refusees = 0;
    for (int essai = 0; essai < 60; ++essai) {
        std::string abimee = essai % 4 == 0 ? entiere.substr(0, hasard() % entiere.size()) : entiere;
        for (int i = 0; i < 200 && essai % 4 != 0; ++i)
            abimee[20 + hasard() % (abimee.size() - 20)] = static_cast<char>(hasard());
        dossier.ecrit("Films.mdb", abimee);
        if (!db::OuvertureJet::estJet(base)) continue;
        if (ouverture(base)) {  // the damage lay where nothing is read
            EXPECT_EQ(dossier.lit("Films (Jet).mdb"), abimee);
            EXPECT_EQ(films(base), kFilms);
            fs::remove(dossier.chemin("Films (Jet).mdb"));
        } else {
            ++refusees;
            EXPECT_TRUE(contenu() == (std::map<std::string, std::string>{{"Films.mdb", abimee}}));
            EXPECT_TRUE(consentants.textes.back().starts_with("La base n'a pas pu être convertie.\n"));
        }
    }
    EXPECT_GT(refusees, 20);
}

TEST_F(OuvertureJetTest, AFullDiskLeavesAllAsItWas) {
    const auto avant = contenu();
    for (const rlim_t place : {0, 4096, 60000, 250000}) {
        EXPECT_TRUE(executeAilleurs(std::nullopt, [&] {
            limiteLesFichiers(place);
            DialoguesMuets consentants;
            consentants.reponse = dialogues::kOui;
            db::OuvertureJet ouverture({progression, lblTravail, ecran, consentants});
            if (ouverture(base) || !consentants.textes.back().ends_with(" n'a pas été modifié.")) _exit(1);
        })) << place;
        EXPECT_TRUE(contenu() == avant) << place;
    }
}

// Killed wherever it may be, the file's name leads to the original, or to the whole base with the original beside it;
// and the next attempt finds its way.
TEST_F(OuvertureJetTest, KilledAnywhereNothingIsLost) {
    const std::string octets = dossier.lit("Films.mdb");
    DialoguesMuets consentants;
    consentants.reponse = dialogues::kOui;
    db::OuvertureJet ouverture({progression, lblTravail, ecran, consentants});
    std::minstd_rand hasard(3);
    for (int essai = 0; essai < 12; ++essai) {
        executeAilleurs(hasard() % 250000, [&] { (void)ouverture(base); });
        if (db::OuvertureJet::estJet(base)) {
            EXPECT_EQ(dossier.lit("Films.mdb"), octets);
            ASSERT_TRUE(ouverture(base)) << consentants.textes.back();
        }
        EXPECT_EQ(films(base), kFilms);
        EXPECT_EQ(dossier.lit("Films (Jet).mdb"), octets);
        EXPECT_EQ(contenu().size(), 2u);
        fs::rename(dossier.chemin("Films (Jet).mdb"), base);
    }
}

}  // namespace
