#include "Entretien.h"
#include "db/OuvertureJet.h"
#include "doubles/CollectionJet.h"
#include "platform/fichiers/Verrou.h"
#include "util/Texte.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <random>
#include <set>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr int kFilms = 30;

class OuvertureJetTest : public ::testing::Test, protected doubles::MachineDEssai {
  protected:
    DialoguesMuets consentants;  // and their machine, for what is killed or repeated
    const db::Contexte sansQuestion = avec(consentants);
    const std::string fichier = dossier.chemin("Films.mdb");

    void SetUp() override {
        dossier.ecrit("Films.mdb", doubles::collectionJet(kFilms).octets());
        consentants.reponse = dialogues::kOui;
    }
    static long films(const std::string& chemin) {
        dao::Database ouverte = dao::DBEngine::OpenDatabase(chemin);
        return ouverte.OpenRecordset("Films").RecordCount();
    }
    static std::multiset<std::string> contenuDesFilms(const std::string& chemin) {
        std::multiset<std::string> films;
        dao::Database lue = dao::DBEngine::OpenDatabase(chemin);
        for (dao::Recordset lus = lue.OpenRecordset("Films"); !lus.Eof(); lus.MoveNext()) {
            std::string film;
            for (const char* champ : {"Titre", "Realisateur", "Genre", "Acteurs", "Resume", "Note", "Affiche"})
                film += lus.texte(champ) + '\0';
            films.insert(film);
        }
        return films;
    }
    // How many films of the base are, in every field, among those.
    [[nodiscard]] long filmsIntacts(const std::multiset<std::string>& attendus) const {
        std::vector<std::string> communs;
        std::ranges::set_intersection(attendus, contenuDesFilms(fichier), std::back_inserter(communs));
        return static_cast<long>(communs.size());
    }
    void demande(int reponse, const std::string& suite = "", const std::string& autreNom = "Films (Jet).mdb") {
        dialogues.attendMsgBox("Le fichier " + fichier +
                                   " est une base Jet (Access). Voulez-vous la convertir pour l'ouvrir ?\n"
                                   "L'original sera conservé sous le nom « " +
                                   autreNom + " »." + suite,
                               36, reponse);
    }
    // The user agrees, is told why it cannot be, and every file is as it was.
    void refuse(const std::string& raison) {
        SCOPED_TRACE(raison);
        const auto avant = dossier.contenu();
        demande(dialogues::kOui);
        dialogues.attendMsgBox(
            "La base n'a pas pu être convertie.\n" + raison + "\nLe fichier " + fichier + " n'a pas été modifié.", 16);
        EXPECT_EQ(db::convertitJet(machine, fichier), std::nullopt);
        EXPECT_TRUE(dossier.contenu() == avant);
        EXPECT_FALSE(travaux.ProgressBar3.Visible);
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
    ecranMuet.pendantSouffle = [this] {
        EXPECT_TRUE(travaux.ProgressBar3.Visible);
        EXPECT_EQ(travaux.lblTravail.Caption, "Conversion de la base Films.mdb...");
    };
    demande(dialogues::kOui,
            "\nLe fichier « Films.ldb » indique qu'un autre programme l'utilise peut-être : fermez-le d'abord.",
            "Films (Jet 4).mdb");
    EXPECT_TRUE(db::estJet(dossier.chemin("LIEN.MDB")));
    EXPECT_EQ(db::convertitJet(machine, dossier.chemin("LIEN.MDB")),
              "La base a été convertie.\n30 films, 2 possessions, 30 affiches dans la base.\n"
              "Table non reprise : Notes diverses.\nChamp non repris : Films.Format.\nL'original est conservé sous le "
              "nom « Films (Jet 4).mdb ».");
    EXPECT_EQ(dossier.lit("Films (Jet 4).mdb"), octets);
    EXPECT_EQ(dossier.lit("Films (Jet).mdb") + dossier.lit("films (JET 2).mdb"), "une lettreune autre");
    EXPECT_EQ(films(dossier.chemin("Lien.mdb")), kFilms);
    EXPECT_FALSE(db::estJet(fichier));
    EXPECT_FALSE(travaux.ProgressBar3.Visible);
}

// Nobody may link to another's file that he cannot write: it is kept as a copy, as where the file system knows no links.
TEST_F(OuvertureJetTest, WhereNoLinkCanBeMadeACopyIsKept) {
    const std::string octets = dossier.lit("Films.mdb");
    fs::last_write_time(fichier, fs::file_time_type::clock::now() - std::chrono::hours(24 * 365 * 20));
    const auto date = fs::last_write_time(fichier);
    fs::permissions(fichier, fs::perms{0444});
    ASSERT_EQ(chown(fichier.c_str(), geteuid() == 0 ? 65534 : geteuid(), getegid()), 0);
    const SansPrivileges ordinaire;
    demande(dialogues::kOui);
    EXPECT_TRUE(db::convertitJet(machine, fichier));
    EXPECT_EQ(dossier.lit("Films (Jet).mdb"), octets);
    EXPECT_EQ(fs::last_write_time(dossier.chemin("Films (Jet).mdb")), date);
    EXPECT_EQ(films(fichier), kFilms);
    EXPECT_EQ(dossier.contenu().size(), 2u);
}

// The moment between the original's other name and the exchange.
TEST_F(OuvertureJetTest, WhatAKilledConversionLeftServesOrGoes) {
    const std::string octets = dossier.lit("Films.mdb");
    fs::create_hard_link(fichier, dossier.chemin("Films (Jet).mdb"));
    for (const std::string& reste : {std::string(), std::string(8192, '\0')}) {
        dossier.ecrit("Films.mdb-conversion.tmp", reste);
        demande(dialogues::kOui);
        EXPECT_TRUE(db::convertitJet(machine, fichier));
        EXPECT_EQ(dossier.lit("Films (Jet).mdb"), octets);
        EXPECT_EQ(films(fichier), kFilms);
        EXPECT_EQ(dossier.contenu().size(), 2u);
        fs::rename(dossier.chemin("Films (Jet).mdb"), fichier);
    }
}

TEST_F(OuvertureJetTest, WhatStandsInTheWayIsNamed) {
    dossier.ecrit("Films.mdb-journal", "");
    refuse("Le fichier « " + fichier + "-journal » appartient à une autre base. Déplacez-le, puis recommencez.");
    fs::remove(fichier + "-journal");
    dossier.ecrit("Films.mdb-conversion.tmp", "une lettre");
    refuse("Le fichier « " + fichier + "-conversion.tmp » gêne la conversion. Déplacez-le, puis recommencez.");
    fs::remove(fichier + "-conversion.tmp");
    {
        const fichiers::Verrou autre(fichier);
        refuse("Le fichier ne peut pas être lu, ou un autre programme le convertit déjà.");
    }
    fs::permissions(dossier.chemin(), fs::perms{0555});
    const SansPrivileges ordinaire;
    refuse("Son dossier n'est pas accessible en écriture.");
}

// Overwrites the head of the given pages of long values with zeros.
std::string sansPagesLongues(std::string octets, const std::set<int>& perdues) {
    int rang = 0;
    for (std::size_t page = 0; page < octets.size(); page += 4096)
        if (octets.compare(page + 4, 4, "LVAL") == 0 && perdues.contains(rang++)) octets.replace(page, 14, 14, '\0');
    return octets;
}

// A summary, a poster, and the second holding's row.
TEST_F(OuvertureJetTest, OfADamagedBaseWhatIsReadableIsConvertedAndTheRestTold) {
    std::string abimee = sansPagesLongues(doubles::collectionJet(3).octets(), {8, 18});
    const std::size_t possession = abimee.rfind("\xFF\xFE\xC9t\xE9 1") - 2;
    abimee.replace(possession, 2, "\xFF\xFF");
    dossier.ecrit("Films.mdb", abimee);
    const std::string raison =
        "La base est endommagée : table \"films\", ligne 2, champ \"Resume\" : un renvoi mène à une page étrangère.";
    const std::string pertes =
        "Table « Films » : 3 lignes reprises sur 3, 1 affiche illisible, 1 autre champ illisible.\n"
        "- Ligne 2 (« Été 1 », Agnès Varda), champ « Resume » : un renvoi mène à une page étrangère.\n"
        "- Ligne 3 (« Été 2 », Agnès Varda), champ « Affiche » : un renvoi mène à une page étrangère.\n"
        "Table « Personnel » : 1 ligne reprise sur 2, 1 ligne illisible.\n"
        "- Ligne 2 (après « Été 0 ») : la ligne annonce 65535 champs.\n";
    const auto interroge = [&](int reponse) {
        demande(dialogues::kOui);
        dialogues.attendMsgBox("La base n'a pas pu être convertie en entier.\n" + raison +
                                   "\n\nCe qui est lisible : 3 films, 1 possession, 2 affiches dans la base.\n"
                                   "Table non reprise : Notes diverses.\nChamp non repris : Films.Format."
                                   "\n\nCe qui est perdu :\n" +
                                   pertes +
                                   "\nConvertir ce qui est lisible ?\nL'original sera conservé, et la liste des pertes "
                                   "gardée dans « Films (pertes).txt ».",
                               36, reponse);
        return db::convertitJet(machine, fichier);
    };
    EXPECT_EQ(interroge(dialogues::kNon), std::nullopt);
    EXPECT_TRUE(dossier.contenu() == (std::map<std::string, std::string>{{"Films.mdb", abimee}}));
    dialogues.verifie();

    const auto rapport = interroge(dialogues::kOui);
    ASSERT_TRUE(rapport);
    EXPECT_TRUE(rapport->ends_with("\nCe qui est perdu est dit dans « Films (pertes).txt »."));
    EXPECT_EQ(dossier.lit("Films (Jet).mdb"), abimee);
    EXPECT_EQ(util::remplace(dossier.lit("Films (pertes).txt"), "\n\n", "\n"),
              "Ce qui n'a pas pu être lu de la base " + fichier + " :\n" + pertes);
    dao::Database ouverte = dao::DBEngine::OpenDatabase(fichier);
    dao::Recordset lus = ouverte.OpenRecordset("Films");
    EXPECT_EQ(lus.valeur("Affiche"), dao::Valeur::octets("STO" + doubles::imageJet(0)));
    lus.MoveNext();
    EXPECT_EQ(lus.texte("Titre"), "Été 1");
    EXPECT_TRUE(lus.valeur("Resume").estNull());
    EXPECT_EQ(lus.valeur("Affiche"), dao::Valeur::octets("STO" + doubles::imageJet(1)));
    lus.MoveNext();
    EXPECT_TRUE(lus.texte("Resume").ends_with("fin"));
    EXPECT_TRUE(lus.valeur("Affiche").estNull());
    EXPECT_EQ(ouverte.OpenRecordset("Personnel").RecordCount(), 1);
}

// Whatever is damaged: what is said to be readable is in the new base, as it was in the undamaged one unless the damage
// lies in its own bytes; and what is not there is said.
TEST_F(OuvertureJetTest, WhateverIsDamagedIsRefusedOrTold) {
    const std::string entiere = dossier.lit("Films.mdb");
    std::minstd_rand hasard(20);
    std::vector<std::size_t> longues;
    for (std::size_t page = 0; page < entiere.size(); page += 4096)
        if (entiere.compare(page + 4, 4, "LVAL") == 0) longues.push_back(page);
    ASSERT_TRUE(db::convertitJet(sansQuestion, fichier));
    const auto attendus = contenuDesFilms(fichier);
    fs::remove(dossier.chemin("Films (Jet).mdb"));
    int refusees = 0, entieres = 0, partielles = 0;
    for (int essai = 0; essai < 40; ++essai) {
        SCOPED_TRACE(essai);
        std::string abimee = essai % 4 == 0 ? entiere.substr(0, hasard() % entiere.size()) : entiere;
        for (int i = 0; i < 200 && essai % 4 == 1; ++i)
            abimee[20 + hasard() % (abimee.size() - 20)] = static_cast<char>(hasard());
        for (int i = 0; i < 8 && essai % 4 > 1; ++i)  // heads of pages decide more than what lies between
            abimee[longues[hasard() % longues.size()] + hasard() % (essai % 4 == 2 ? 40 : 4096)] =
                static_cast<char>(hasard());
        dossier.ecrit("Films.mdb", abimee);
        if (!db::estJet(fichier)) continue;
        consentants.textes.clear();
        if (!db::convertitJet(sansQuestion, fichier)) {
            ++refusees;
            EXPECT_TRUE(dossier.contenu() == (std::map<std::string, std::string>{{"Films.mdb", abimee}}));
            EXPECT_TRUE(consentants.textes.back().starts_with("La base n'a pas pu être convertie.\n"));
            continue;
        }
        EXPECT_EQ(dossier.lit("Films (Jet).mdb"), abimee);
        const std::string pertes = dossier.existe("Films (pertes).txt") ? dossier.lit("Films (pertes).txt") : "";
        ++(pertes.empty() ? entieres : partielles);
        EXPECT_EQ(dossier.contenu().size(), pertes.empty() ? 2u : 3u);
        EXPECT_EQ(pertes.empty(), consentants.textes.size() == 1);
        // Eight bytes of long values damage eight films at most.
        if (essai % 4 > 1) {
            EXPECT_GE(filmsIntacts(attendus), kFilms - 8);
        }
        EXPECT_TRUE(films(fichier) == kFilms || pertes.find("Films") != std::string::npos) << pertes;
        fs::remove(dossier.chemin("Films (Jet).mdb"));
        fs::remove(dossier.chemin("Films (pertes).txt"));
    }
    EXPECT_GT(refusees, 0);
    EXPECT_GT(entieres, 0);
    EXPECT_GT(partielles, 10);
}

TEST_F(OuvertureJetTest, APasswordIsAskedForUntilItIsTheRightOne) {
    doubles::BaseJet protegee = doubles::collectionJet(kFilms);
    protegee.motDePasse = "Été";
    protegee.jourDeCreation = 37987.5;
    dossier.ecrit("Films.mdb", protegee.octets());
    const std::string invite = "La base " + fichier + " est protégée par un mot de passe. Quel est-il ?";
    demande(dialogues::kOui);
    dialogues.attendInputBox(invite, "été");
    dialogues.attendMsgBox("Ce mot de passe n'est pas celui de la base.", 48);
    dialogues.attendInputBox(invite, "");  // cancelled
    dialogues.attendMsgBox("La conversion a été arrêtée. Le fichier " + fichier + " n'a pas été modifié.", 64);
    EXPECT_EQ(db::convertitJet(machine, fichier), std::nullopt);
    EXPECT_EQ(dossier.lit("Films.mdb"), protegee.octets());
    demande(dialogues::kOui);
    dialogues.attendInputBox(invite, "Été");
    EXPECT_TRUE(db::convertitJet(machine, fichier));
    EXPECT_EQ(films(fichier), kFilms);
}

// The images folder comes first, then "Images" beside the base, then the base's own folder.
TEST_F(OuvertureJetTest, PostersInFilesThatStandNowhereAreCounted) {
    doubles::BaseJet jet = doubles::collectionJet(0);
    for (const char* nom : {"a.jpg", "B.JPG", "c.jpg", "..\\secret.jpg", "perdue.jpg", "", "d"})
        doubles::filmJet(jet, nom, "JPG" + std::string(nom));
    dossier.ecrit("Films.mdb", jet.octets());
    dossier.ecrit("Choisi/a.jpg", "x");
    dossier.ecrit("Images/b.jpg", "x");
    dossier.ecrit("c.jpg", "x");
    fs::create_directory(dossier.chemin("Images/d"));
    fs::create_symlink(fichier, dossier.chemin("Images/perdue.jpg"));
    stockage.Text4.Text = dossier.chemin("Choisi");
    demande(dialogues::kOui);
    EXPECT_TRUE(db::convertitJet(machine, fichier)
                    .value_or("")
                    .starts_with("La base a été convertie.\n7 films, 0 possession, 0 affiche dans la base.\n3 affiches "
                                 "n'ont pas été trouvées : "
                                 "leurs fichiers ne sont ni dans le dossier des images, ni à côté de la base.\n"));
}

TEST_F(OuvertureJetTest, AFullDiskLeavesAllAsItWas) {
    const auto avant = dossier.contenu();
    for (const rlim_t place : {0, 4096, 60000, 250000}) {
        EXPECT_TRUE(executeAilleurs(std::nullopt, [&] {
            const doubles::DisquePlein disque(place);
            if (db::convertitJet(sansQuestion, fichier) ||
                !consentants.textes.back().ends_with(" n'a pas été modifié."))
                _exit(1);
        })) << place;
        EXPECT_TRUE(dossier.contenu() == avant) << place;
    }
}

// Killed wherever it may be, the file's name leads to the original, or to the whole base with the original beside it;
// and the next attempt finds its way.
TEST_F(OuvertureJetTest, KilledAnywhereNothingIsLost) {
    const std::string octets = dossier.lit("Films.mdb");
    std::minstd_rand hasard(3);
    for (int essai = 0; essai < 12; ++essai) {
        executeAilleurs(hasard() % 250000, [&] { (void)db::convertitJet(sansQuestion, fichier); });
        if (db::estJet(fichier)) {
            EXPECT_EQ(dossier.lit("Films.mdb"), octets);
            ASSERT_TRUE(db::convertitJet(sansQuestion, fichier)) << consentants.textes.back();
        }
        EXPECT_EQ(films(fichier), kFilms);
        EXPECT_EQ(dossier.lit("Films (Jet).mdb"), octets);
        EXPECT_EQ(dossier.contenu().size(), 2u);
        fs::rename(dossier.chemin("Films (Jet).mdb"), fichier);
    }
}

}  // namespace
