#include "Installation.h"
#include "db/OuvertureBase.h"
#include "doubles/DialoguesScript.h"
#include "platform/systeme/FinDuProgramme.h"

#include <filesystem>
#include <map>

#include <gtest/gtest.h>

namespace {

constexpr const char* kErreur22 = "Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)";

class OuvertureBaseTest : public ::testing::Test {
  protected:
    Installation installation;
    db::Base base;
    doubles::DialoguesScript dialogues;
    db::OuvertureBase ouvertureBase{base, installation.chemins, dialogues};

    std::string chemin(std::string_view nom) const { return installation.dossier.chemin(nom); }

    // The opening fails with that message, ends the program and leaves the file's bytes as they are.
    void refuse(std::string_view nom, const std::string& message, int style) {
        const std::string avant = installation.dossier.lit(nom);
        installation.chemins.base = chemin(nom);
        dialogues.attendMsgBox(message, style);
        EXPECT_THROW(ouvertureBase(), systeme::FinDuProgramme) << nom;
        EXPECT_FALSE(base.base.estOuverte());
        EXPECT_EQ(installation.dossier.lit(nom), avant) << nom;
    }
};

TEST_F(OuvertureBaseTest, AFirstStartMakesTheBaseFromTheTemplate) {
    ouvertureBase();
    EXPECT_EQ(installation.chemins.base, chemin("Films.mdb"));
    EXPECT_TRUE(installation.dossier.existe("Films.mdb"));
    EXPECT_EQ(base.films.RecordCount() + base.personnel.RecordCount() + base.liste.RecordCount(), 0);
}

TEST_F(OuvertureBaseTest, ABaseThatIsGoneFallsBackToTheProgramFolder) {
    installation.creeBase("Films.mdb");  // as an earlier start, or another system, has named it
    installation.ajouteFilm("Films.mdb", "Été");
    installation.chemins.base = "/nulle/part/Collection.mdb";
    ouvertureBase();
    EXPECT_EQ(installation.chemins.base, chemin("films.mdb"));
    EXPECT_EQ(installation.chemins.baseARetenir(), "/nulle/part/Collection.mdb");
    EXPECT_EQ(Installation::premierTitre(base), "Été");
    EXPECT_FALSE(installation.dossier.existe("films.mdb"));
}

TEST_F(OuvertureBaseTest, TheFallbackIsMadeWhenItIsMissingToo) {
    installation.chemins.base = "/nulle/part/Collection.mdb";
    ouvertureBase();
    EXPECT_EQ(installation.chemins.base, chemin("films.mdb"));
    EXPECT_TRUE(installation.dossier.existe("films.mdb"));
}

TEST_F(OuvertureBaseTest, WhatIsNoBaseIsRefusedAndUnharmed) {
    const std::string entiere = installation.dossier.lit("Modele.dat");
    const std::map<std::string, std::string> fichiers{
        {"texte.mdb", "Ce fichier est une lettre.\r\n"},
        {"vide.mdb", ""},
        {"tronquee.mdb", entiere.substr(0, entiere.size() / 2)},
        {"entete.mdb", entiere.substr(0, 50)},
        {"jet.mdb", std::string("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24) + std::string(4072, '\xb5')}};
    for (const auto& [nom, octets] : fichiers) {
        installation.dossier.ecrit(nom, octets);
        refuse(nom, kErreur22, 16);
    }
}

TEST_F(OuvertureBaseTest, NeitherBaseNorTemplate) {
    std::filesystem::remove(chemin("Modele.dat"));
    dialogues.attendMsgBox(kErreur22, 16);
    EXPECT_THROW(ouvertureBase(), systeme::FinDuProgramme);
    EXPECT_FALSE(installation.dossier.existe("Films.mdb"));
}

TEST_F(OuvertureBaseTest, ATemplateThatIsNoBaseIsGivenNoName) {
    const std::string modele = installation.dossier.lit("Modele.dat");
    for (const std::string& octets : {std::string(), modele.substr(0, modele.size() / 2), std::string("abîmé")}) {
        installation.dossier.ecrit("Modele.dat", octets);
        dialogues.attendMsgBox(kErreur22, 16);
        EXPECT_THROW(ouvertureBase(), systeme::FinDuProgramme);
        EXPECT_EQ(ouvertureBase.raison(), "le fichier modèle (" + chemin("Modele.dat") + ") est endommagé");
        const std::filesystem::directory_iterator contenu(installation.dossier.chemin());
        EXPECT_EQ(std::distance(begin(contenu), end(contenu)), 1) << "nothing but the template";
    }
}

TEST_F(OuvertureBaseTest, ABaseHeldByAnotherProgram) {
    const dao::Database autre = dao::DBEngine::OpenDatabase(installation.creeBase("Films.mdb"), true);
    refuse("Films.mdb", kErreur22, 16);
    EXPECT_EQ(ouvertureBase.raison(), "elle est utilisée par un autre programme");
}

// Whatever leads there: the shut-down would take the base away, or the link to it.
TEST_F(OuvertureBaseTest, ABaseInTmpIsRefused) {
    namespace fs = std::filesystem;
    fs::create_directory(chemin("Tmp"));
    installation.creeBase("Tmp/Films.mdb");
    installation.creeBase("Ailleurs.mdb");
    fs::create_symlink(chemin("Tmp"), chemin("lien"));
    fs::create_symlink(chemin("Tmp/Films.mdb"), chemin("dehors.mdb"));
    fs::create_symlink(chemin("Ailleurs.mdb"), chemin("Tmp/dedans.mdb"));
    for (const char* nom : {"Tmp/Films.mdb", "lien/Films.mdb", "dehors.mdb", "Tmp/dedans.mdb"})
        refuse(nom, db::kBaseDansTmp, 48);
    installation.chemins.base = chemin("Tmp/../Ailleurs.mdb");
    ouvertureBase();
}

TEST_F(OuvertureBaseTest, ABaseThatCannotBeWritten) {
    namespace fs = std::filesystem;
    const auto lecture = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    const auto traverse = lecture | fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    installation.creeBase("Films.mdb");
    installation.creeBase("Ouverte.mdb");
    fs::permissions(chemin("Films.mdb"), lecture);
    fs::permissions(chemin("Ouverte.mdb"), fs::perms::all);
    fs::permissions(installation.dossier.chemin(), traverse);  // no journal can stand beside it
    const SansPrivileges ordinaire;
    refuse("Films.mdb", kErreur22, 16);
    refuse("Ouverte.mdb", kErreur22, 16);
}

TEST_F(OuvertureBaseTest, ABaseWithoutOneOfItsTablesTellsTheNumberAndTheReason) {
    {
        dao::Database incomplete = dao::DBEngine::OpenDatabase(installation.creeBase("Films.mdb"));
        incomplete.Execute("DROP TABLE Personnel;");
    }
    std::string message;
    try {
        dao::Database incomplete = dao::DBEngine::OpenDatabase(chemin("Films.mdb"));
        (void)incomplete.OpenRecordset("Personnel");
    } catch (const dao::ErreurDao& erreur) {
        message = "Erreur 3078 : " + erreur.description;
    }
    refuse("Films.mdb", message, 0);
}

TEST_F(OuvertureBaseTest, ABaseWhoseRowsCannotBeToldApartIsRefused) {
    dao::DBEngine::CreateDatabase(chemin("autre.mdb"),
                                  "CREATE TABLE Films (rowid, _rowid_, oid, Titre, Realisateur);"
                                  "CREATE TABLE Personnel (id INTEGER PRIMARY KEY, Titre2, Realisateur2)");
    refuse("autre.mdb",
           "Erreur 3343 : Les lignes de la table « Films » ne peuvent pas être distinguées : ses colonnes « rowid », "
           "« _rowid_ » et « oid » cachent leur numéro, et elle n'a pas de clé primaire entière.",
           dialogues::kSimple);
}

TEST_F(OuvertureBaseTest, OnlyABaseIsOpenedAgainInPlaceOfTheOpenOne) {
    installation.creeBase("Films.mdb");
    installation.ajouteFilm("Films.mdb", "Été");
    ouvertureBase();
    installation.chemins.base = installation.dossier.ecrit("autre.mdb", "no base");
    EXPECT_FALSE(ouvertureBase.rouvre());
    EXPECT_EQ(Installation::premierTitre(base), "Été");
    installation.creeBase("vide.mdb");
    installation.chemins.base = chemin("vide.mdb");
    EXPECT_TRUE(ouvertureBase.rouvre());
    EXPECT_EQ(base.films.RecordCount(), 0);
    std::filesystem::remove(chemin("vide.mdb"));
    dialogues.attendMsgBox(kErreur22, 16);
    EXPECT_THROW(ouvertureBase.reprend(), systeme::FinDuProgramme);  // and no other base takes its place
    EXPECT_EQ(installation.chemins.base, chemin("vide.mdb"));
}

TEST_F(OuvertureBaseTest, ABaseWithoutItsIndexesIsGivenThem) {
    installation.creeBase("Films.mdb");
    const auto taille = [&] { return std::filesystem::file_size(chemin("Films.mdb")); };
    {
        dao::Database sansIndex = dao::DBEngine::OpenDatabase(chemin("Films.mdb"));
        sansIndex.Execute("DROP INDEX FilmsListe; DROP INDEX PersonnelListe; VACUUM;");
    }
    const auto avant = taille();
    ouvertureBase();
    base.ferme();
    EXPECT_GT(taille(), avant);
}

}  // namespace
