#include "Entretien.h"
#include "db/LotAffiches.h"
#include "db/cmdCompacter_Click.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using Fin = db::Annulations::Fin;

constexpr const char* kChangees = "Impossible : ces films ont changé depuis.";

class Annulations : public AvecEntretien {
  protected:
    void SetUp() override {
        AvecEntretien::SetUp();
        dossier.ecrit("Images/A - X.jpg", "ancienne");
        ajoute("A", "X", db::valeurAfficheFichier("A - X.jpg"));
        annulations.commence();
        EXPECT_EQ(annulations.termine(), Fin::Rien);
    }
    // Gives the film another poster under the same name, and one to a new film.
    void changeLesAffiches() {
        annulations.commence();
        db::LotAffiches lot(c, chemin("Images/"), db::LotAffiches::Inconnus::Ecrases);
        {
            dao::Transaction ensemble(base.base);
            EXPECT_EQ(lot.pose("A - X.jpg", "nouvelle", "JPGA - X.jpg"), "A - X.jpg");
            ajoute("B", "Y", db::valeurAfficheFichier(lot.pose("B - Y.jpg", "autre")));
            lot.avantValidation();
            ensemble.confirme();
        }
        lot.apresValidation();
        EXPECT_EQ(annulations.termine(), Fin::Annulable);
    }
    [[nodiscard]] std::map<std::string, std::string> images() const {
        std::map<std::string, std::string> fichiers;
        for (const auto& entree : fs::directory_iterator(chemin("Images")))
            fichiers[entree.path().filename()] = dossier.lit("Images/" + entree.path().filename().string());
        return fichiers;
    }
    using Images = std::map<std::string, std::string>;
    const Images avant{{"A - X.jpg", "ancienne"}}, apres{{"A - X.jpg", "nouvelle"}, {"B - Y.jpg", "autre"}};
};

TEST_F(Annulations, PosterFilesGoAndComeBackWithTheirFilms) {
    changeLesAffiches();
    EXPECT_EQ(images(), apres);
    for (int etapes = 1; etapes <= 3; ++etapes) {  // two files are looked at, one is written
        int reste = etapes;
        const auto issue = annulations.annule([&reste](std::int64_t faits, std::int64_t total) {
            EXPECT_TRUE(0 < faits && faits < total);
            return --reste > 0;
        });
        ASSERT_EQ(issue.texte, "Arrêté : rien n'a changé.") << etapes;
        EXPECT_EQ(images(), apres);
        EXPECT_EQ(affiches().size(), 2U);
    }
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_EQ(images(), avant);
    EXPECT_THAT(affiches(), testing::ElementsAre("JPGA - X.jpg"));
    EXPECT_TRUE(annulations.retablit().faite);
    EXPECT_EQ(images(), apres);
    EXPECT_THAT(affiches(), testing::ElementsAre("JPGA - X.jpg", "JPGB - Y.jpg"));
    EXPECT_TRUE(!dossier.existe("Tmp") || fs::is_empty(chemin("Tmp"))) << "nothing would be left of it by a kill";
}

TEST_F(Annulations, NoFileOfAnotherIsOverwrittenOrRemoved) {
    changeLesAffiches();
    dossier.ecrit("Images/A - X.jpg", "retouchée");
    EXPECT_EQ(annulations.annule().texte, kChangees);
    EXPECT_EQ(images(), (Images{{"A - X.jpg", "retouchée"}, {"B - Y.jpg", "autre"}}));
    EXPECT_EQ(affiches().size(), 2U);
    EXPECT_EQ(annulations.aAnnuler(), nullptr);

    dossier.ecrit("Images/A - X.jpg", "ancienne");
    fs::remove(chemin("Images/B - Y.jpg"));
    base.base.Execute("DELETE FROM Films WHERE Titre='B'");
    changeLesAffiches();
    base.base.Execute("INSERT INTO Films (Titre, Affiche) VALUES ('C', 'JPGb - y.JPG')");
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_EQ(images(), (Images{{"A - X.jpg", "ancienne"}, {"B - Y.jpg", "autre"}})) << "another film names it";
}

TEST_F(Annulations, RowsThatCannotBeTakenBackLeaveTheFilesAsTheyAre) {
    changeLesAffiches();
    base.base.Execute("UPDATE Films SET Resume='lu' WHERE Titre='B'");
    EXPECT_EQ(annulations.annule().texte, kChangees);
    EXPECT_EQ(images(), apres);
}

TEST_F(Annulations, AFolderThatIsAwayLeavesEverythingForLater) {
    changeLesAffiches();
    fs::rename(chemin("Images"), chemin("Ailleurs"));
    EXPECT_EQ(annulations.annule().texte, "Impossible : le dossier des images " + chemin("Images/") + " n'est pas là.");
    EXPECT_EQ(affiches().size(), 2U);
    fs::rename(chemin("Ailleurs"), chemin("Images"));
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_EQ(images(), avant);
}

TEST_F(Annulations, TheyOutliveACompactionAndNoOtherBase) {
    changeLesAffiches();
    annulations.commence();
    dialogues.attendMsgBox("Compactage effectué.", dialogues::kInformation);
    possede("Perdu", "Z");
    db::cmdCompacter_Click(c);
    EXPECT_EQ(annulations.termine(), Fin::Annulable);
    EXPECT_TRUE(valeurs("Personnel", "Titre2").empty());
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_EQ(images(), avant);

    changeLesAffiches();
    creeBase("Autre.mdb");
    base.ferme();
    chemins.base = chemin("Autre.mdb");
    base.base = dao::DBEngine::OpenDatabase(chemins.base);  // by whoever: it need not say so
    annulations.commence();
    EXPECT_EQ(annulations.aAnnuler(), nullptr);
    EXPECT_EQ(annulations.termine(), Fin::Rien);
}

TEST_F(Annulations, WhatIsTooLargeSaysSoBeforeAndAStopLeavesAllAsItWas) {
    for (int i = 0; i < 4; ++i)
        ajoute("Film " + std::to_string(i), "Z", dao::Valeur::octets(std::string(1 << 20, 'a')));
    annulations.commence();
    EXPECT_EQ(annulations.renonceSiTropGrande(1 << 20), "");
    {
        dao::Transaction ensemble(base.base);
        for (dao::Recordset films = base.base.OpenRecordset("SELECT * FROM films"); !films.Eof(); films.MoveNext())
            films.Delete();
        ensemble.confirme();
    }
    ASSERT_EQ(annulations.termine(), Fin::Annulable);
    EXPECT_TRUE(affiches().empty());
    std::int64_t etapes = 0;
    const auto arrete = annulations.annule([&](std::int64_t faits, std::int64_t total) {
        EXPECT_TRUE(0 < faits && faits < total);
        return ++etapes < 2;
    });
    EXPECT_EQ(arrete.texte, "Arrêté : rien n'a changé.");
    EXPECT_EQ(etapes, 2);
    EXPECT_TRUE(affiches().empty());
    EXPECT_TRUE(annulations.annule().faite);
    EXPECT_EQ(affiches().size(), 5U);

    annulations.commence();
    EXPECT_EQ(annulations.renonceSiTropGrande(3LL << 30), "elle change environ 3221 Mo");
    ajoute("C", "Z", dao::Valeur());
    EXPECT_EQ(annulations.termine(), Fin::Perdue);
    EXPECT_EQ(annulations.manque(), "") << "it was told before";
    EXPECT_EQ(annulations.aAnnuler(), nullptr);
    EXPECT_EQ(annulations.aRetablir(), nullptr);
}

TEST_F(Annulations, MuchIsKeptOnTheDiskAndTheOldestGoesFirst) {
    const std::string affiche(1 << 20, 'a');
    base.base.Execute("PRAGMA synchronous=OFF");  // hundreds of commands
    std::size_t memoire = 0;
    for (std::size_t i = 0; i < db::Annulations::kCommandesAuPlus + 10; ++i) {
        annulations.commence();
        ajoute("Film " + std::to_string(i), "Z", i < 20 ? dao::Valeur::octets(affiche) : dao::Valeur());
        ASSERT_EQ(annulations.termine(), Fin::Annulable);
        memoire += annulations.aAnnuler()->depot.enMemoire();
    }
    EXPECT_LT(memoire, 64U << 20);
    std::size_t prises = 0;
    while (annulations.annule().faite)
        ++prises;
    EXPECT_EQ(prises, db::Annulations::kCommandesAuPlus);
    EXPECT_EQ(affiches().size(), 11U);
}

}  // namespace
