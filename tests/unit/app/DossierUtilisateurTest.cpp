#include "app/DossierUtilisateur.h"
#include "doubles/DossierTemporaire.h"
#include "platform/fichiers/Fichiers.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

TEST(DossierUtilisateur, AnInstalledProgramGivesEachUserAFolderThatUpgradesRenew) {
    const doubles::DossierTemporaire lieu;
    const std::string installe = lieu.chemin("lib/"), donnees = lieu.chemin("L'utilisateur été");
    for (const auto& [nom, octets] :
         std::initializer_list<std::pair<const char*, const char*>>{{"lib/Ambrelis", "programme"},
                                                                    {"lib/Modele.dat", "modèle"},
                                                                    {"lib/Extensions.txt", "avi"},
                                                                    {"lib/Le Rapatrix/Rapatrix.exe", "rapatrix"}})
        lieu.ecrit(nom, octets);
    fs::permissions(installe + "Ambrelis", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(app::dossierDeTravail(installe, donnees).dossier, installe) << "a portable folder is its own";

    lieu.ecrit("lib/installation", "1.0.0");
    const app::DossierDeTravail premier = app::dossierDeTravail(installe, donnees);
    ASSERT_EQ(premier.echec, "");
    EXPECT_EQ(fichiers::lit(premier.dossier + "Le Rapatrix/Rapatrix.exe"), "rapatrix");
    EXPECT_TRUE(fichiers::executable(premier.dossier + "Ambrelis"));

    fichiers::ecrit(premier.dossier + "Films.mdb", "années de frappe");
    fichiers::ecrit(premier.dossier + "Extensions.txt", "mkv");
    fichiers::ecrit(premier.dossier + "Modele.dat", "ancien");
    EXPECT_EQ(app::dossierDeTravail(installe, donnees).dossier, premier.dossier);
    EXPECT_EQ(fichiers::lit(premier.dossier + "Modele.dat"), "ancien") << "the same installation copies nothing";

    lieu.ecrit("lib/installation", "1.1.0");
    EXPECT_EQ(app::dossierDeTravail(installe, donnees).echec, "");
    EXPECT_EQ(fichiers::lit(premier.dossier + "Modele.dat"), "modèle");
    EXPECT_EQ(fichiers::lit(premier.dossier + "Films.mdb"), "années de frappe");
    EXPECT_EQ(fichiers::lit(premier.dossier + "Extensions.txt"), "mkv");
    EXPECT_EQ(app::dossierDeTravail(premier.dossier, donnees).dossier, premier.dossier) << "started from the copy";
}

TEST(DossierUtilisateur, AFolderThatCannotBeMadeIsTold) {
    const doubles::DossierTemporaire lieu;
    lieu.ecrit("lib/installation", "1.0.0");
    lieu.ecrit("lib/Modele.dat", "modèle");
    lieu.ecrit("donnees", "a file where a folder should be");
    const app::DossierDeTravail travail = app::dossierDeTravail(lieu.chemin("lib/"), lieu.chemin("donnees"));
    EXPECT_NE(travail.echec.find("n'a pas pu être préparé"), std::string::npos) << travail.echec;
}

}  // namespace
