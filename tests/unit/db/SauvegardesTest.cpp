#include "Entretien.h"
#include "db/NomsSauvegardes.h"
#include "db/RetourASauvegarde.h"
#include "db/Sauvegardes.h"
#include "db/cmdCompacter_Click.h"
#include "db/cmdMajBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"
#include "doubles/Mort.h"
#include "platform/dao/Copie.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using db::Avant;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr std::time_t kJour = 86400;
constexpr db::ReglesDesSauvegardes kGrosse{.grosseBase = 1};

TEST(NomsSauvegardes, SayTheWholeCopyAndAreReadBackForTheirBaseAlone) {
    const db::NomSauvegarde nom{12, 1795262407, Avant::Titres};
    for (const std::string& base : {std::string("Films.mdb"), std::string("été (3).mdb"), std::string("x.MDB"),
                                    std::string(200, 'e') + "é" + std::string(46, 'e') + ".mdb"}) {
        const std::string fichier = db::nomDeSauvegarde(base, nom);
        EXPECT_LE(fichier.size(), 255U);
        const auto lu = db::litNomDeSauvegarde(base, fichier);
        ASSERT_TRUE(lu) << fichier;
        EXPECT_TRUE(lu->numero == 12 && lu->instant == nom.instant && lu->avant == Avant::Titres) << fichier;
        EXPECT_FALSE(db::litNomDeSauvegarde("x" + base, fichier));
    }
    EXPECT_NE(db::nomDeSauvegarde(std::string(200, 'e') + "1.mdb", nom),
              db::nomDeSauvegarde(std::string(200, 'e') + "2.mdb", nom));
    // What the user keeps there under a name of his own is no copy of ours.
    for (const char* etranger :
         {"Films.mdb", "Films (12).mdb", "Films (012) 2026-11-21 12h00m07 avant compactage.mdb",
          "Films (12) 2026-11-21 12h00m07 avant vacances.mdb", "Films (12) 2026-11-21 12h00m07 avant .mdb",
          "Films (12) 2026-11-21 12h00m07 avant compactage (copie).mdb"})
        EXPECT_FALSE(db::litNomDeSauvegarde("Films.mdb", etranger)) << etranger;
}

class SauvegardesTest : public AvecEntretien {
  protected:
    [[nodiscard]] db::IssueSauvegarde prends(const db::ReglesDesSauvegardes& regles = {}) {
        return db::sauvegarde(c, Avant::Compactage, regles).issue;
    }
    [[nodiscard]] std::vector<db::Sauvegarde> copies() const { return db::sauvegardesDe(chemins.base); }
    [[nodiscard]] std::vector<long> numeros() const {
        std::vector<long> tous;
        for (const db::Sauvegarde& copie : copies())
            tous.push_back(copie.nom.numero);
        return tous;
    }
    // Everything in the folder, whatever it is.
    [[nodiscard]] std::size_t fichiersDuDossier() const { return dossier.noms("Sauvegardes").size(); }
    void attendRefus(const std::string& raison) {
        const db::ResultatSauvegarde resultat = db::sauvegarde(c, Avant::Compactage);
        EXPECT_EQ(resultat.issue, db::IssueSauvegarde::Impossible);
        EXPECT_THAT(resultat.raison, HasSubstr(raison));
        avis.nouvelleCommande();
        EXPECT_TRUE(db::sauvegardeAvant(c, Avant::Compactage)) << "the command goes on";
        EXPECT_EQ(etatAvis.lblAvis.Caption,
                  "La base n'a pas été sauvegardée avant cette commande : " + resultat.raison + ".");
    }
    void remplit(int films) {
        dao::Transaction ensemble(base.base);
        for (int rang = 0; rang < films; ++rang)
            ajoute("Film " + std::to_string(rang), "R", db::valeurAfficheDansLaBase(std::string(200'000, 'x')));
        ensemble.confirme();
    }
    [[nodiscard]] std::vector<std::string> titres() { return valeurs("SELECT * FROM films ORDER BY titre", "Titre"); }
};

TEST_F(SauvegardesTest, ACopyIsAWholePrivateBaseOfItsOwn) {
    remplit(3);
    possede("Film 1", "R");
    fs::permissions(chemins.base, fs::perms::owner_read | fs::perms::owner_write);
    base.base.Execute("PRAGMA journal_mode=WAL");  // another tool left it so
    ajoute("Dans le journal", "R", dao::Valeur());
    ASSERT_EQ(prends(), db::IssueSauvegarde::Faite);
    const db::Sauvegarde copie = copies().at(0);
    EXPECT_EQ(copie.contenu(), (dao::DBEngine::Contenu{4, 1}));
    EXPECT_THAT(copie.chemin, EndsWith(" avant compactage.mdb"));
    EXPECT_EQ(fichiersDuDossier(), 1U);
    EXPECT_EQ(fs::status(copie.chemin).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(chemin("Sauvegardes")).permissions(), fs::perms::owner_all);
    fs::permissions(chemin("Sauvegardes"), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_TRUE(copie.contenu()) << "read from a medium that cannot be written";
    EXPECT_EQ(dao::DBEngine::textesDe(copie.chemin, "SELECT Affiche FROM Films WHERE Titre='Film 2'"),
              std::vector{"STO" + std::string(200'000, 'x')});
    EXPECT_EQ(ecranMuet.debuts, 0) << "a small base takes no time";
}

TEST_F(SauvegardesTest, TheLastTenOfThisBaseAreKeptWhateverTheClockSays) {
    dossier.ecrit("Sauvegardes/Autre (1) 2026-11-21 12h00m07 avant compactage.mdb", "another base's");
    dossier.ecrit("Sauvegardes/Films.mdb", "the user's");
    fs::create_symlink("/etc/passwd", chemin("Sauvegardes/Films (500) 2026-11-21 12h00m07 avant compactage.mdb"));
    for (int fois = 0; fois < 12; ++fois) {
        horloge.instant -= 40 * kJour;
        ASSERT_EQ(prends(), db::IssueSauvegarde::Faite);
    }
    EXPECT_THAT(numeros(), ElementsAre(12, 11, 10, 9, 8, 7, 6, 5, 4, 3));
    EXPECT_EQ(fichiersDuDossier(), 13U);
}

TEST_F(SauvegardesTest, WhatIsTooLargeToBeTakenBackSaysSoBeforeItBegins) {
    annulations.commence();
    EXPECT_TRUE(db::sauvegardeAvant(c, Avant::Suppression, 2LL << 30));
    EXPECT_EQ(
        etatAvis.lblAvis.Caption,
        "Ctrl+Z n'annulera ni cette commande ni les précédentes (elle change environ 2147 Mo) : voir Configuration, "
        "« Sauvegardes… ».");
    EXPECT_EQ(copies().size(), 1U);
}

TEST_F(SauvegardesTest, WhatAnotherProgramLeftHalfDoneIsInNoCopy) {
    remplit(1);
    ASSERT_TRUE(doubles::meurtEnRoute([&] {
        dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
        autre.Execute("PRAGMA cache_size=5; BEGIN; UPDATE Films SET Titre='à demi', Affiche=zeroblob(300000)");
        doubles::meurs();
    }));
    ASSERT_TRUE(dossier.existe("Films.mdb-journal"));
    const std::string octets = dossier.lit("Films.mdb");
    try {
        (void)dao::DBEngine::contenuDe(chemins.base);
        ADD_FAILURE() << "read as it is";
    } catch (const dao::ErreurDao& erreur) {
        EXPECT_THAT(erreur.description,
                    EndsWith("au milieu d'une modification, et ne peut pas être lue telle quelle."));
    }
    EXPECT_TRUE(dossier.lit("Films.mdb") == octets && dossier.existe("Films.mdb-journal")) << "only read";
    ASSERT_EQ(prends(), db::IssueSauvegarde::Faite);
    EXPECT_EQ(dao::DBEngine::textesDe(copies()[0].chemin, "SELECT Titre FROM Films"),
              std::vector<std::string>{"Film 0"});
    EXPECT_FALSE(dossier.existe("Films.mdb-journal"));
}

TEST_F(SauvegardesTest, OfALargeBaseOneForEachHour) {
    EXPECT_EQ(prends(kGrosse), db::IssueSauvegarde::Faite);
    horloge.instant += 3599;
    EXPECT_EQ(prends(kGrosse), db::IssueSauvegarde::Superflue);
    horloge.instant += 1;
    EXPECT_EQ(prends(kGrosse), db::IssueSauvegarde::Faite);
    horloge.instant -= 365 * kJour;
    EXPECT_EQ(prends(kGrosse), db::IssueSauvegarde::Faite) << "the clock went back: that hour may never come";
    EXPECT_EQ(copies().size(), 3U);
}

TEST_F(SauvegardesTest, AFullDiskLeavesNothingHalfAndALineThatStays) {
    remplit(20);
    ASSERT_EQ(prends(), db::IssueSauvegarde::Faite);
    {
        const doubles::DisquePlein plein(1'000'000);
        attendRefus("");
    }
    EXPECT_EQ(fichiersDuDossier(), 1U);
    EXPECT_EQ(copies().at(0).contenu(), (dao::DBEngine::Contenu{20, 0}));
    avis.montre("20 films supprimés");
    EXPECT_THAT(etatAvis.lblAvis.Caption, StartsWith("20 films supprimés La base n'a pas été sauvegardée"));
    avis.remarque("Une autre.");
    EXPECT_THAT(etatAvis.lblAvis.Caption, EndsWith(". Une autre.")) << "nor does the notice hide a later one";
    avis.nouvelleCommande();
    avis.montre("20 films supprimés");
    EXPECT_EQ(etatAvis.lblAvis.Caption, "20 films supprimés");
}

TEST_F(SauvegardesTest, WhatStandsInTheFoldersPlaceIsLeftAloneAndTold) {
    dossier.ecrit("Sauvegardes", "a file");
    attendRefus("n'est pas un dossier");
    fs::remove(chemin("Sauvegardes"));
    fs::create_directory(chemin("ailleurs"));
    fs::create_directory_symlink("ailleurs", chemin("Sauvegardes"));
    attendRefus("est un lien");
    EXPECT_TRUE(fs::is_symlink(chemin("Sauvegardes")) && fs::is_empty(chemin("ailleurs")));
    fs::remove(chemin("Sauvegardes"));
    const SansPrivileges ordinaire;
    fs::permissions(dossier.chemin(), fs::perms::owner_read | fs::perms::owner_exec);
    attendRefus("n'a pas pu être créé (Accès refusé)");
    fs::permissions(dossier.chemin(), fs::perms::owner_all);
    fs::create_directory(chemin("Sauvegardes"));
    fs::permissions(chemin("Sauvegardes"), fs::perms::owner_read | fs::perms::owner_exec);
    attendRefus("n'est pas accessible en écriture");
    fs::permissions(chemin("Sauvegardes"), fs::perms::owner_all);
}

// 200 films of 200 kB: more than a moment.
TEST_F(SauvegardesTest, AStopEndsTheCommandBeforeItBegins) {
    remplit(200);
    possede("Film 1", "R");
    ecranMuet.arretApres = 2;
    ecranMuet.pendantSouffle = [&] {
        EXPECT_TRUE(travaux.ProgressBar3.Visible);
        EXPECT_EQ(travaux.lblTravail.Caption, "Sauvegarde de la base…");
    };
    dialogues.attendMsgBox(
        "Vous allez supprimer tout ce qui concerne les titres personnels (réservations, prêts, nom "
        "de fichiers, rangement...)\nVoulez-vous continuer ?",
        dialogues::kQuestion, dialogues::kOui, "Suppression des titres personnels");
    db::cmdSupprInfosPerso_Click(c);
    EXPECT_EQ(base.personnel.RecordCount(), 1);
    EXPECT_EQ(fichiersDuDossier(), 0U);
    EXPECT_EQ(etatAvis.lblAvis.Caption, "La sauvegarde de la base a été arrêtée : la commande n'a rien fait.");
    EXPECT_TRUE(ecranMuet.debuts == 1 && ecranMuet.fins == 1 && ecranMuet.soufflesHorsTravail == 0);
    EXPECT_FALSE(travaux.ProgressBar3.Visible);
}

TEST_F(SauvegardesTest, EachCommandOfUpkeepHasOneFromBeforeIt) {
    ajoute("Alien", "R", db::valeurAfficheDansLaBase("une image"));
    possede("Alien", "R");
    possede("Orpheline", "R");
    stockage.Option3[0].Value = false;
    stockage.Option3[1].Value = true;
    dialogues.attendMsgBox("Compactage effectué.", dialogues::kInformation);
    dialogues.attendMsgBox("1 fichier créé.\r\n", dialogues::kInformation);
    db::cmdMajBase_Click(c);
    ASSERT_EQ(copies().size(), 1U) << "the compaction within has none of its own";
    EXPECT_EQ(copies()[0].contenu()->possessions, 2);
    EXPECT_EQ(copies()[0].nom.avant, Avant::AffichesEnFichiers);
    ecran::choisit(stockage.Option3, 0);
    dialogues.attendMsgBox("1 fichier inclu.", dialogues::kInformation);
    db::cmdMajBase_Click(c);
    EXPECT_EQ(copies()[0].nom.avant, Avant::AffichesEnBase);
    EXPECT_THAT(etatAvis.lblAvis.Caption, HasSubstr("ne sont plus que dans la base"));
    EXPECT_EQ(db::affichesSansFichier(c, copies()[0]), 1);
    EXPECT_EQ(db::affichesSansFichier(c, copies()[1]), 0);
    dialogues.attendMsgBox("Compactage effectué.", dialogues::kInformation);
    db::cmdCompacter_Click(c);
    EXPECT_EQ(copies()[0].nom.avant, Avant::Compactage);
}

TEST_F(SauvegardesTest, AComparisonTellsWhatIsThereHereAndChanged) {
    for (const char* titre : {"Alien", "Brazil", "Casino"})
        ajoute(titre, "R", db::valeurAfficheDansLaBase(std::string(5000, 'x')));
    possede("Alien", "R");
    ASSERT_EQ(prends(), db::IssueSauvegarde::Faite);
    base.base.Execute(
        "DELETE FROM Films WHERE Titre='Alien'; UPDATE Films SET Titre='BRAZIL' WHERE Titre='Brazil';"
        "UPDATE Personnel SET Pret='Paul'");
    ajoute("Dune", "", dao::Valeur());
    const std::string octets = dossier.lit(fs::path(copies()[0].chemin).lexically_relative(dossier.chemin()).string());
    const std::string texte = db::comparaison(c, copies()[0]);
    EXPECT_THAT(texte, HasSubstr("    3 films, 1 exemplaire\nAujourd'hui\n    3 films, 1 exemplaire\n"));
    EXPECT_THAT(texte, EndsWith("\n1 film n'est que dans la sauvegarde :\n    Alien - R\n"
                                "\n1 film n'est que dans la base d'aujourd'hui :\n    Dune\n"
                                "\n1 film a changé depuis :\n    Brazil - R\n"
                                "\n1 exemplaire a changé depuis :\n    Alien - R\n"));
    EXPECT_EQ(fichiersDuDossier(), 1U);
    EXPECT_EQ(dossier.lit(fs::path(copies()[0].chemin).lexically_relative(dossier.chemin()).string()), octets);
}

TEST_F(SauvegardesTest, TheWayBackSavesTodayAndHasAWayBackItself) {
    ajoute("Avant", "R", dao::Valeur());
    for (int fois = 0; fois < 10; ++fois)
        ASSERT_EQ(prends(), db::IssueSauvegarde::Faite);
    ajoute("Après", "R", dao::Valeur());
    const db::Sauvegarde plusAncienne = copies().back();
    ASSERT_TRUE(db::revientA(c, plusAncienne));
    EXPECT_THAT(titres(), ElementsAre("Avant"));
    EXPECT_TRUE(fs::exists(plusAncienne.chemin)) << "not given up for today's";
    EXPECT_EQ(rafraichissement.appels, (std::vector<std::string>{"AfficheAccueil", "reconstruitListe",
                                                                 "RaffraichitBoitesDeroulantes", "AfficheNbTitres"}));
    ASSERT_EQ(copies()[0].nom.avant, Avant::Retour);
    ASSERT_TRUE(db::revientA(c, copies()[0]));
    EXPECT_THAT(titres(), ElementsAre("Après", "Avant"));
    ajoute("Encore", "R", dao::Valeur());
    EXPECT_EQ(base.films.RecordCount(), 3) << "and it is a base like any other";
}

TEST_F(SauvegardesTest, TheWayBackIsRefusedBeforeAnythingChanges) {
    remplit(5);
    ASSERT_EQ(prends(), db::IssueSauvegarde::Faite);
    ajoute("Après", "R", dao::Valeur());
    const db::Sauvegarde copie = copies()[0];
    const std::string debut = "La base n'a pas pu revenir à la sauvegarde du " + db::dateDe(copie) + ".\n";
    const auto refuse = [&](const std::string& raison) {
        const std::string octets = dossier.lit("Films.mdb");
        dialogues.attendMsgBox(debut + raison + "\nRien n'a changé.", dialogues::kCritique);
        EXPECT_FALSE(db::revientA(c, copie));
        dialogues.verifie();
        EXPECT_EQ(base.films.RecordCount(), 6);
        EXPECT_EQ(dossier.lit("Films.mdb"), octets);
        EXPECT_EQ(dossier.noms().size(), 3U) << "base, template, copies";
    };
    {
        dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
        autre.BeginTrans();
        refuse("Impossible d'utiliser « " + chemins.base + " » : le fichier est déjà utilisé.");
    }
    fs::rename(chemin("Sauvegardes"), chemin("Autrefois"));
    fs::create_directory(chemin("Autrefois/vide"));
    db::Sauvegarde ailleurs = copie;
    ailleurs.chemin = chemin("Autrefois/") + fs::path(copie.chemin).filename().string();
    dossier.ecrit("Sauvegardes", "a file");
    dialogues.attendMsgBox(debut + "L'état actuel de la base n'a pas pu être sauvegardé : « " + chemin("Sauvegardes") +
                               " » n'est pas un dossier.\nRien n'a changé.",
                           dialogues::kCritique);
    EXPECT_FALSE(db::revientA(c, ailleurs));
    dialogues.verifie();
    fs::remove(chemin("Sauvegardes"));
    fs::rename(chemin("Autrefois"), chemin("Sauvegardes"));

    // A page in the middle overwritten: it opens, and would lose films.
    std::fstream abimee(copie.chemin, std::ios::in | std::ios::out | std::ios::binary);
    abimee.seekp(4096);
    abimee << std::string(4096, '\xAA');
    abimee.close();
    DialoguesMuets boites;
    const db::Contexte muet = avec(boites);
    EXPECT_FALSE(db::revientA(muet, copie));
    EXPECT_THAT(boites.textes.at(0), StartsWith(debut));
    EXPECT_EQ(base.films.RecordCount(), 6);
    EXPECT_EQ(dossier.noms().size(), 3U);
}

TEST_F(SauvegardesTest, ADamagedBaseGivesWayAndIsKeptWithItsJournal) {
    ajoute("Avant", "R", dao::Valeur());
    ASSERT_EQ(prends(), db::IssueSauvegarde::Faite);
    base.ferme();
    EXPECT_FALSE(db::estEndommagee(chemins.base));
    EXPECT_FALSE(db::estEndommagee(chemin("absente.mdb")));
    dossier.ecrit("Films.mdb", "rien de lisible");
    dossier.ecrit("Films.mdb-journal", "son journal");
    dossier.ecrit("Films (endommagée).mdb", "une autre fois");
    EXPECT_TRUE(db::estEndommagee(chemins.base));
    const auto copie = db::derniereSauvegarde(chemins.base);
    ASSERT_TRUE(copie);
    EXPECT_EQ(db::remetEnPlace(c, *copie), chemin("Films (endommagée 2).mdb"));
    EXPECT_EQ(dossier.lit("Films (endommagée 2).mdb"), "rien de lisible");
    EXPECT_EQ(dossier.lit("Films (endommagée 2).mdb-journal"), "son journal");
    EXPECT_EQ(dossier.lit("Films (endommagée).mdb"), "une autre fois");
    EXPECT_FALSE(dossier.existe("Films.mdb-journal"));
    db::ouvreLaBase(c);
    EXPECT_EQ(premierTitre(), "Avant");
}

}  // namespace
