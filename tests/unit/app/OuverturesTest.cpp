#include "app/LigneDeCommande.h"
#include "app/Ouvertures.h"
#include "doubles/SansPrivileges.h"
#include "parcours/Gestes.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using namespace parcours;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(LigneDeCommande, EveryWordIsAFileButALoneQuestion) {
    const std::string ici = std::filesystem::current_path().string() + "/";
    EXPECT_THAT(app::lisAppel({"--version"}).reponse, testing::MatchesRegex("Ambrelis v\\. [0-9.]+\n"));
    EXPECT_THAT(app::lisAppel({"--help"}).reponse, HasSubstr("Utilisation : ambrelis"));
    const app::Appel appel = app::lisAppel({"--", "--help", "-x.FILM", "", "file:///tmp/L%27%C3%89t%E9.FILM",
                                            "FILE://localhost/a b.FILM", "file://ailleurs/c.FILM", "http://d/e.FILM"});
    EXPECT_EQ(appel.reponse, "");
    EXPECT_THAT(appel.chemins, ElementsAre(ici + "--help", ici + "-x.FILM", "/tmp/L'\xC3\x89t\xE9.FILM", "/a b.FILM",
                                           ici + "file://ailleurs/c.FILM", ici + "http://d/e.FILM"));
    EXPECT_THAT(app::lisAppel({"--help", "--version"}).chemins, ElementsAre(ici + "--help", ici + "--version"));
}

struct Ouvertures : testing::Test {
    Installation installation;
    Execution execution{installation.chemin()};

    void SetUp() override { ASSERT_TRUE(execution.demarre()); }
    void ouvre(const std::vector<std::string>& chemins) const {
        EXPECT_TRUE(app::demandeOuverture(installation.chemin(), chemins));
    }
    void sers() { execution.session.execute(app::ouvreCeQuiEstDemande); }
    [[nodiscard]] std::string avis() const { return execution.etats.avis.lblAvis.Caption; }
    [[nodiscard]] std::string comptes() const { return execution.etats.liste.Label9[0].Caption; }
    [[nodiscard]] bool demandee() const { return execution.session.regarde(app::ouvertureDemandee); }
    void attendImport(const std::string& combien, const std::string& rapport) {
        execution.boites.attendMsgBox(
            "Souhaitez-vous déclarer " + combien +
                " comme étant en votre possession ?\n\nDans le cas contraire, l'ajout sera fait mais il faudra "
                "indiquer \n pour chaque film qu'il se trouve bien dans votre vidéothèque.",
            dialogues::kQuestion, dialogues::kNon);
        execution.boites.attendMsgBox(kQuestionRessemblance, dialogues::kQuestion, dialogues::kNon);
        execution.boites.attendMsgBox(rapport, dialogues::kInformation);
    }
    // With a poster, so that the report is short.
    std::string film(const std::string& nom, const std::string& titre) const {
        installation.ecrit(nom + ".jpg", "\xFF\xD8 une image");
        return installation.ecrit(nom + ".FILM", fiche(titre.c_str(), "Jean Renoir", "1937", "France", "Drame"));
    }
};

TEST_F(Ouvertures, SeveralStartsBecomeOneImportOfFilesAndFoldersWithTheDropsQuestions) {
    const std::string nom = "a/-\"L'\n\xC9t\xE9\" $(x)%41";
    const std::string hostile = film(nom, "Toni");
    film("b/1", "Le Fleuve");
    film("c/1", "La Marseillaise");
    ouvre({hostile, installation.chemin("parti\t.FILM"), installation.ecrit("notes.txt", "rien")});
    ouvre({installation.chemin("b"), installation.chemin("c/"), installation.chemin("absent1"),
           installation.chemin("absent2")});
    // A second start changes nothing else, and what it asks for outlives this one.
    EXPECT_FALSE(Execution(installation.chemin()).demarre());
    ASSERT_TRUE(demandee());
    attendImport("les 3 films", "3 films ajoutés.");
    sers();
    EXPECT_THAT(avis(), HasSubstr("3 fichiers sont introuvables, dont « parti .FILM ». « notes.txt » n'est pas une "
                                  "fiche .FILM."));
    EXPECT_TRUE(installation.existe(nom + ".FILM") && !demandee());
    sers();
    EXPECT_EQ(comptes(), "3 titres") << "each is served once";
}

TEST_F(Ouvertures, WhatCannotBeOpenedIsToldWithoutABox) {
    ouvre({});
    sers();
    EXPECT_FALSE(demandee());
    ouvre({installation.chemin("absent.FILM")});
    sers();
    EXPECT_EQ(avis(), "Aucune fiche .FILM à importer. « absent.FILM » est introuvable.");
    film("fermé/1", "Nana");
    std::filesystem::permissions(installation.chemin("fermé"), std::filesystem::perms::none);
    {
        const doubles::SansPrivileges sans;
        ouvre({installation.chemin("fermé")});
        sers();
    }
    std::filesystem::permissions(installation.chemin("fermé"), std::filesystem::perms::owner_all);
    EXPECT_EQ(avis(), "Aucune fiche .FILM à importer. « fermé » ne peut pas être ouvert (Accès refusé).");
    // What another program laid there is no request; one of a file system without links is.
    std::filesystem::create_symlink(installation.ecrit("leurre", film("d/1", "Nana") + '\0'),
                                    app::dossierDesDemandes(installation.chemin()) + "1.demande");
    sers();
    EXPECT_EQ(comptes(), "0 titre");
}

TEST_F(Ouvertures, ThousandsAreOneRequest) {
    std::vector<std::string> chemins(5000, installation.chemin(std::string(200, 'x') + ".FILM"));
    chemins.push_back(film("m/1", "Boudu"));
    ouvre(chemins);
    attendImport("le film", "1 film ajouté.");
    sers();
    EXPECT_THAT(avis(), HasSubstr("5000 fichiers sont introuvables"));
}

}  // namespace
