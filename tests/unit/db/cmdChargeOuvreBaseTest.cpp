#include "Installation.h"
#include "db/cmdChargeOuvreBase_Click.h"
#include "doubles/CollectionJet.h"

#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class cmdChargeOuvreBaseTest : public ::testing::Test, protected Installation {
  protected:
    void SetUp() override {
        creeBase("Films.mdb");
        ajouteFilm("Films.mdb", "Le film ouvert");
        db::ouvreLaBase(c);
    }
    void choisit(const std::string& reponse) {
        dialogues.attendFichier(
            {"Ouvrir/Créer une base de données", "Fichiers de base de données|*.mdb", dossier.chemin(), true}, reponse);
    }
    void demandeCreation(const std::string& nom, int reponse) {
        dialogues.attendMsgBox("Le fichier " + nom + " n'existe pas. Voulez-vous le créer ?", 36, reponse);
    }
    void rienNAChange() {
        db::cmdChargeOuvreBase_Click(c);
        EXPECT_TRUE(rafraichissement.appels.empty());
        EXPECT_EQ(chemins.base, chemin("Films.mdb"));
        EXPECT_EQ(premierTitre(), "Le film ouvert");
        dialogues.verifie();
    }
    void aChangePour(const std::string& nom) {
        db::cmdChargeOuvreBase_Click(c);
        const std::vector<std::string> attendus{"AfficheAccueil", "reconstruitListe", "RaffraichitBoitesDeroulantes",
                                                "AfficheNbTitres"};
        EXPECT_EQ(rafraichissement.appels, attendus);
        EXPECT_EQ(chemins.base, nom);
    }
};

TEST_F(cmdChargeOuvreBaseTest, ItsFourRefusalsChangeNothing) {
    choisit("");  // cancelled
    rienNAChange();
    choisit(chemin("FILMS.MDB"));  // the open base
    rienNAChange();
    choisit(chemin("Autre.mdb"));
    demandeCreation(chemin("Autre.mdb"), dialogues::kNon);
    rienNAChange();
    std::filesystem::remove(chemin("Modele.dat"));
    choisit(chemin("Autre.mdb"));
    demandeCreation(chemin("Autre.mdb"), dialogues::kOui);
    dialogues.attendMsgBox("Le fichier modèle n'a pas été trouvé (" + chemin("Modele.dat") + ").", 48);
    rienNAChange();
    EXPECT_FALSE(dossier.existe("Autre.mdb"));
}

TEST_F(cmdChargeOuvreBaseTest, AFileThatIsNoBaseLeavesTheOpenOne) {
    dossier.ecrit("lettre.mdb", "Ce fichier est une lettre.");
    ASSERT_EQ(mkfifo(chemin("tube.mdb").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", chemin("lien.mdb"));
    for (const char* nom : {"lettre.mdb", "tube.mdb", "lien.mdb"}) {
        choisit(chemin(nom));
        dialogues.attendMsgBox("Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)", 16);
        rienNAChange();
        EXPECT_EQ(etatAvis.lblAvis.Caption.rfind("La base " + chemin(nom) + " n'a pas pu être ouverte : ", 0), 0U);
    }
    EXPECT_EQ(dossier.lit("lettre.mdb"), "Ce fichier est une lettre.");
}

TEST_F(cmdChargeOuvreBaseTest, ABaseThatCannotBeMadeLeavesTheOpenOne) {
    const std::string nom = chemin("nulle/part.mdb");
    choisit(nom);
    demandeCreation(nom, dialogues::kOui);
    dialogues.attendMsgBox("Le fichier " + nom + " n'a pas pu être créé.", 16);
    rienNAChange();

    dossier.ecrit("Modele.dat", "abîmé");
    choisit(chemin("Neuve.mdb"));
    demandeCreation(chemin("Neuve.mdb"), dialogues::kOui);
    dialogues.attendMsgBox("Le fichier modèle n'est pas une base utilisable (" + chemin("Modele.dat") + ").", 16);
    rienNAChange();
    EXPECT_FALSE(dossier.existe("Neuve.mdb"));
}

TEST_F(cmdChargeOuvreBaseTest, WhatWouldBeEmptiedOrCouldNotBeNamedIsRefused) {
    std::filesystem::create_directory(chemin("Tmp"));
    choisit(chemin("Tmp/Neuve"));
    dialogues.attendMsgBox(db::kBaseDansTmp, 48);
    rienNAChange();
    creeBase("Sur deux\nlignes.mdb");
    choisit(chemin("Sur deux\nlignes.mdb"));
    dialogues.attendMsgBox(
        "Le chemin de ce fichier contient un saut de ligne : Ambrelis ne pourrait pas le retenir. Renommez le fichier "
        "ou son dossier, puis recommencez.",
        48);
    rienNAChange();
    EXPECT_TRUE(std::filesystem::is_empty(chemin("Tmp")));
}

// The base of the settings is the user's until he opens another one, the open one included.
TEST_F(cmdChargeOuvreBaseTest, OpeningABaseForgetsTheAbsentOne) {
    for (const char* nom : {"Films.mdb", "Autre.mdb"}) {
        chemins.baseAbsente = "/disque/Collection.mdb";
        if (!dossier.existe(nom)) creeBase(nom);
        choisit(chemin(nom));
        db::cmdChargeOuvreBase_Click(c);
        EXPECT_EQ(chemins.baseARetenir(), chemin(nom));
    }
}

TEST_F(cmdChargeOuvreBaseTest, AnEndingInCapitalsIsKept) {
    creeBase("Voisin.MDB");
    ajouteFilm("Voisin.MDB", "Le film du voisin");
    choisit(chemin("Voisin.MDB"));
    aChangePour(chemin("Voisin.MDB"));
    EXPECT_EQ(premierTitre(), "Le film du voisin");
}

// It is converted while the open base still is: whatever prevents it leaves that one.
TEST_F(cmdChargeOuvreBaseTest, AJetBaseIsConvertedAndOpened) {
    const std::string nom = dossier.ecrit("Ancienne.mdb", doubles::collectionJet(2).octets());
    const std::string question = "Le fichier " + nom +
                                 " est une base Jet (Access). Voulez-vous la convertir pour l'ouvrir ?\nL'original "
                                 "sera conservé sous le nom « Ancienne (Jet).mdb ».";
    choisit(nom);
    dialogues.attendMsgBox(question, 36, dialogues::kOui);
    dialogues.attendMsgBox("La conversion a été arrêtée. Le fichier " + nom + " n'a pas été modifié.", 64);
    ecranMuet.arretApres = 1;
    rienNAChange();
    choisit(nom);
    dialogues.attendMsgBox(question, 36, dialogues::kOui);
    dialogues.attendMsgBox(
        "La base a été convertie.\n2 films, 2 possessions, 2 affiches dans la base.\nTable non reprise : Notes "
        "diverses.\nChamp non repris : Films.Format.\nL'original est conservé sous le nom « Ancienne (Jet).mdb ».",
        64);
    ecranMuet.arretApres = 0;
    aChangePour(nom);
    EXPECT_EQ(premierTitre(), "Été 0");
}

}  // namespace
