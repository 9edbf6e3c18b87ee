#include "Installation.h"
#include "platform/systeme/FinDuProgramme.h"

#include <filesystem>
#include <map>

#include <gtest/gtest.h>

namespace {

constexpr const char* kErreur22 = "Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)";

class OuvertureBaseTest : public ::testing::Test, protected Installation {
  protected:
    // The opening fails with that message, ends the program and leaves the file's bytes as they are.
    void refuse(std::string_view nom, const std::string& message, int style) {
        const std::string avant = dossier.lit(nom);
        chemins.base = chemin(nom);
        dialogues.attendMsgBox(message, style);
        EXPECT_THROW(db::ouvreLaBase(c), systeme::FinDuProgramme) << nom;
        EXPECT_FALSE(base.base.estOuverte());
        EXPECT_EQ(dossier.lit(nom), avant) << nom;
    }
};

TEST_F(OuvertureBaseTest, ABaseThatIsGoneFallsBackToTheProgramFolder) {
    creeBase("Films.mdb");  // as an earlier start, or another system, has named it
    ajouteFilm("Films.mdb", "Été");
    chemins.base = "/nulle/part/Collection.mdb";
    db::ouvreLaBase(c);
    EXPECT_EQ(chemins.base, chemin("films.mdb"));
    EXPECT_EQ(chemins.baseARetenir(), "/nulle/part/Collection.mdb");
    EXPECT_EQ(premierTitre(), "Été");
    EXPECT_FALSE(dossier.existe("films.mdb"));
}

TEST_F(OuvertureBaseTest, WhatIsNoBaseIsRefusedAndUnharmed) {
    const std::map<std::string, std::string> fichiers{
        {"texte.mdb", "Ce fichier est une lettre.\r\n"},
        {"tronquee.mdb", dossier.lit("Modele.dat").substr(0, 5000)},
        {"jet.mdb", std::string("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) + std::string(4072, '\xb5')}};
    for (const auto& [nom, octets] : fichiers) {
        dossier.ecrit(nom, octets);
        refuse(nom, kErreur22, 16);
    }
}

TEST_F(OuvertureBaseTest, ATemplateThatIsNoBaseIsGivenNoName) {
    const std::string modele = dossier.lit("Modele.dat");
    for (const std::string& octets : {std::string(), modele.substr(0, modele.size() / 2), std::string("abîmé")}) {
        dossier.ecrit("Modele.dat", octets);
        dialogues.attendMsgBox(kErreur22, 16);
        EXPECT_THROW(db::ouvreLaBase(c), systeme::FinDuProgramme);
        EXPECT_EQ(base.raison, "le fichier modèle (" + chemin("Modele.dat") + ") est endommagé");
        EXPECT_EQ(dossier.noms().size(), 1U) << "nothing but the template";
    }
}

// Whatever leads there: the shut-down would take the base away, or the link to it.
TEST_F(OuvertureBaseTest, ABaseInTmpIsRefused) {
    namespace fs = std::filesystem;
    fs::create_directory(chemin("Tmp"));
    creeBase("Tmp/Films.mdb");
    creeBase("Ailleurs.mdb");
    fs::create_symlink(chemin("Tmp"), chemin("lien"));
    fs::create_symlink(chemin("Tmp/Films.mdb"), chemin("dehors.mdb"));
    fs::create_symlink(chemin("Ailleurs.mdb"), chemin("Tmp/dedans.mdb"));
    for (const char* nom : {"Tmp/Films.mdb", "lien/Films.mdb", "dehors.mdb", "Tmp/dedans.mdb"})
        refuse(nom, db::kBaseDansTmp, 48);
    chemins.base = chemin("Tmp/../Ailleurs.mdb");
    db::ouvreLaBase(c);
}

TEST_F(OuvertureBaseTest, ABaseWithoutOneOfItsTablesTellsTheNumberAndTheReason) {
    {
        dao::Database incomplete = dao::DBEngine::OpenDatabase(creeBase("Films.mdb"));
        incomplete.Execute("DROP TABLE Personnel;");
    }
    refuse("Films.mdb", "Erreur 3078 : La table « Personnel » n'existe pas dans la base.", dialogues::kSimple);
}

TEST_F(OuvertureBaseTest, OnlyABaseIsOpenedAgainInPlaceOfTheOpenOne) {
    creeBase("Films.mdb");
    ajouteFilm("Films.mdb", "Été");
    db::ouvreLaBase(c);
    chemins.base = dossier.ecrit("autre.mdb", "no base");
    EXPECT_FALSE(db::rouvreLaBase(c));
    EXPECT_EQ(premierTitre(), "Été");
    creeBase("vide.mdb");
    chemins.base = chemin("vide.mdb");
    EXPECT_TRUE(db::rouvreLaBase(c));
    EXPECT_EQ(base.films.RecordCount(), 0);
    std::filesystem::remove(chemin("vide.mdb"));
    dialogues.attendMsgBox(kErreur22, 16);
    EXPECT_THROW(db::reprendLaBase(c), systeme::FinDuProgramme);  // and no other base takes its place
    EXPECT_EQ(chemins.base, chemin("vide.mdb"));
}

TEST_F(OuvertureBaseTest, ABaseWithoutItsIndexesIsGivenThem) {
    creeBase("Films.mdb");
    const auto taille = [&] { return std::filesystem::file_size(chemin("Films.mdb")); };
    {
        dao::Database sansIndex = dao::DBEngine::OpenDatabase(chemin("Films.mdb"));
        sansIndex.Execute("DROP INDEX FilmsListe; DROP INDEX PersonnelListe; VACUUM;");
    }
    const auto avant = taille();
    db::ouvreLaBase(c);
    base.ferme();
    EXPECT_GT(taille(), avant);
}

}  // namespace
