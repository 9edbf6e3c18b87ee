#include "Entretien.h"
#include "db/cmdInfosBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"

#include <chrono>
#include <optional>
#include <random>

#include <gtest/gtest.h>

namespace {

class EntretienTest : public AvecEntretien {
  protected:
    [[nodiscard]] std::string chemin() const { return installation.chemins.base; }
    // A base that compaction makes smaller, with one holding of each kind.
    void remplit() {
        dao::Transaction ensemble(entretien->base.base);
        for (int rang = 0; rang < 200; ++rang)
            entretien->ajoute("Film " + std::to_string(rang), "R",
                              db::valeurAfficheDansLaBase(std::string(20000, 'x')));
        entretien->ajoute("L'\"été\"", "D\"R", dao::Valeur());
        entretien->possede("L'\"été\"", "D\"R");
        entretien->possede("Film 3", "R");
        entretien->possede("Film 3", "Un autre");
        entretien->possede("Renommé", "R");
        ensemble.confirme();
        entretien->base.base.Execute("DELETE FROM Films WHERE id BETWEEN 10 AND 150");
    }
    void compacte(const std::string& texte, int style = dialogues::kInformation) {
        dialogues.attendMsgBox(texte, style);
        entretien->cmdCompacter();
        dialogues.verifie();
    }
    [[nodiscard]] std::vector<std::string> possedes() {
        return entretien->valeurs("SELECT * FROM Personnel ORDER BY Titre2", "Titre2");
    }
};

TEST_F(EntretienTest, CompactionShrinksTheFileAndKeepsEveryRow) {
    remplit();
    const auto avant = std::filesystem::file_size(chemin());
    const auto lignes = entretien->valeurs("SELECT * FROM films ORDER BY titre", "id");
    installation.dossier.ecrit("temp.tmp", "a rest of before");
    compacte("Compactage effectué.");
    EXPECT_LT(std::filesystem::file_size(chemin()), avant / 2);
    EXPECT_EQ(entretien->valeurs("SELECT * FROM films ORDER BY titre", "id"), lignes);
    EXPECT_EQ(entretien->affiches().at(1), "STO" + std::string(20000, 'x'));
    EXPECT_EQ(possedes(), (std::vector<std::string>{"Film 3", "L'\"été\""}));
    EXPECT_FALSE(installation.dossier.existe("temp.tmp"));
    EXPECT_EQ(entretien->rafraichissement.appels,
              (std::vector<std::string>{"AfficheNbTitres", "AffichageApresModification"}));
}

TEST_F(EntretienTest, AHoldingIsNoOrphanWhereNullStandsForTheEmptyText) {
    const std::string longue(5'000'000, 'x');
    entretien->base.base.Execute(
        "INSERT INTO Films (Titre, Realisateur) VALUES ('a', NULL), ('b', ''), (NULL, 'c'), (NULL, NULL), ('d', 'D');"
        "INSERT INTO Personnel (Titre2, Realisateur2) VALUES ('A', ''), ('B', NULL), ('', 'C'), (NULL, NULL), "
        "('d', NULL), ('e', NULL)");
    entretien->ajoute(longue, longue, dao::Valeur());
    entretien->possede(longue + " ", longue);
    entretien->possede(longue, longue + "x");
    compacte("Compactage effectué.");
    EXPECT_EQ(possedes(), (std::vector<std::string>{"", "", "A", "B", longue + " "}));
    EXPECT_EQ(entretien->base.films.RecordCount(), 6);
}

TEST_F(EntretienTest, ABaseElsewhereIsCompactedWhereItLies) {
    entretien.reset();
    installation.dossier.ecrit("ailleurs/mes films.mdb", installation.dossier.lit("Films.mdb"));
    std::filesystem::remove(chemin());
    std::filesystem::create_symlink("ailleurs/mes films.mdb", chemin());
    installation.dossier.ecrit("temp.tmp", "of no concern");
    entretien.emplace(installation, dialogues);
    remplit();
    compacte("Compactage effectué.");
    EXPECT_TRUE(std::filesystem::is_symlink(chemin()));
    EXPECT_EQ(entretien->base.films.RecordCount(), 60);
    EXPECT_EQ(installation.dossier.lit("temp.tmp"), "of no concern");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(installation.dossier.chemin("ailleurs")), {}), 1);
}

TEST_F(EntretienTest, ABaseInUseElsewhereStaysOpen) {
    remplit();
    const std::string octets = installation.dossier.lit("Films.mdb");
    dao::Database autre = dao::DBEngine::OpenDatabase(chemin());
    autre.BeginTrans();
    compacte("Le compactage n'a pas pu être effectué.\nImpossible d'utiliser « " + chemin() +
                 " » : le fichier est déjà utilisé.",
             dialogues::kCritique);
    EXPECT_EQ(installation.dossier.lit("Films.mdb"), octets);
    EXPECT_EQ(possedes().size(), 4U);
    EXPECT_TRUE(entretien->base.liste.estOuvert());
    autre.Rollback();
    compacte("Compactage effectué.");
}

TEST_F(EntretienTest, AFullDiskLeavesTheBase) {
    remplit();
    entretien.reset();
    const std::string octets = installation.dossier.lit("Films.mdb");
    DialoguesMuets muets;
    EXPECT_TRUE(executeAilleurs(std::nullopt, [&] {
        Entretien ailleurs(installation, muets);
        const doubles::DisquePlein disque(500000);
        ailleurs.cmdCompacter();
        const bool dit = muets.textes.size() == 1 &&
                         muets.textes[0].starts_with("Le compactage n'a pas pu être effectué.\nErreur de disque");
        _exit(dit && ailleurs.possedeEncore() ? 0 : 1);
    }));
    EXPECT_EQ(installation.dossier.lit("Films.mdb"), octets);
    EXPECT_FALSE(installation.dossier.existe("temp.tmp"));
}

TEST_F(EntretienTest, KilledAtAnyMomentTheOldOrTheNewBaseOpens) {
    remplit();
    const auto attendus = entretien->affiches();
    const std::string fragmentee = installation.dossier.lit("Films.mdb");
    const auto compacteAilleurs = [&](std::optional<unsigned> delai) {
        entretien.reset();
        installation.dossier.ecrit("Films.mdb", fragmentee);
        const auto debut = std::chrono::steady_clock::now();
        executeAilleurs(delai, [&] {
            DialoguesMuets muets;
            Entretien ailleurs(installation, muets);
            ailleurs.cmdCompacter();
        });
        return std::chrono::steady_clock::now() - debut;
    };
    const auto duree = std::chrono::duration_cast<std::chrono::microseconds>(compacteAilleurs(std::nullopt)).count();
    EXPECT_LT(std::filesystem::file_size(chemin()), fragmentee.size());
    std::mt19937 hasard(7);
    for (int mort = 0; mort < 30 && !HasFailure(); ++mort) {
        compacteAilleurs(std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(duree))(hasard));
        entretien.emplace(installation, dialogues);
        EXPECT_EQ(entretien->affiches(), attendus);
        EXPECT_GE(possedes().size(), 2U);
    }
}

TEST_F(EntretienTest, ThePostersAreCountedByTheirPlace) {
    entretien->ajoute("a", "", "JPGa.jpg");
    entretien->ajoute("b", "", "JPGb.jpg");
    entretien->ajoute("c", "", db::valeurAfficheDansLaBase(std::string("\xFF\0", 2)));
    entretien->ajoute("d", "", dao::Valeur());
    dialogues.attendMsgBox(
        "Il y a 2 titres ayant un lien sur un fichier externe\nIl y a 1 titre ayant un lien sur un fichier interne",
        dialogues::kInformation);
    db::cmdInfosBase_Click(entretien->base, dialogues);
}

TEST_F(EntretienTest, TheHoldingsGoWhenTheUserAgrees) {
    db::cmdSupprInfosPerso_Click commande{entretien->base, entretien->rafraichissement, dialogues};
    const auto demande = [&](int reponse) {
        dialogues.attendMsgBox(
            "Vous allez supprimer tout ce qui concerne les titres personnels (réservations, prêts, nom de fichiers, "
            "rangement...)\nVoulez-vous continuer ?",
            dialogues::kQuestion, reponse, "Suppression des titres personnels");
    };
    dialogues.attendMsgBox("Aucun titre personnel !", dialogues::kExclamation);
    commande();
    entretien->possede("a", "");
    demande(dialogues::kNon);
    commande();
    EXPECT_EQ(possedes().size(), 1U);
    EXPECT_TRUE(entretien->rafraichissement.appels.empty());
    demande(dialogues::kOui);
    dialogues.attendMsgBox("Appartenance de 1 titre supprimée.", dialogues::kInformation);
    commande();
    EXPECT_TRUE(possedes().empty());
}

}  // namespace
