#include "Entretien.h"
#include "db/cmdCompacter_Click.h"
#include "db/cmdInfosBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"

#include <chrono>
#include <optional>
#include <random>

#include <gtest/gtest.h>

namespace {

class EntretienTest : public AvecEntretien {
  protected:
    // A base that compaction makes smaller, with one holding of each kind.
    void remplit() {
        dao::Transaction ensemble(base.base);
        for (int rang = 0; rang < 200; ++rang)
            ajoute("Film " + std::to_string(rang), "R", db::valeurAfficheDansLaBase(std::string(20000, 'x')));
        ajoute("L'\"été\"", "D\"R", dao::Valeur());
        possede("L'\"été\"", "D\"R");
        possede("Film 3", "R");
        possede("Film 3", "Un autre");
        possede("Renommé", "R");
        ensemble.confirme();
        base.base.Execute("DELETE FROM Films WHERE id BETWEEN 10 AND 150");
    }
    void compacte(const std::string& texte, int style = dialogues::kInformation) {
        dialogues.attendMsgBox(texte, style);
        db::cmdCompacter_Click(c);
        dialogues.verifie();
    }
    [[nodiscard]] std::vector<std::string> possedes() {
        return valeurs("SELECT * FROM Personnel ORDER BY Titre2", "Titre2");
    }
};

TEST_F(EntretienTest, CompactionShrinksTheFileAndKeepsEveryRow) {
    remplit();
    const auto avant = std::filesystem::file_size(chemins.base);
    const auto lignes = valeurs("SELECT * FROM films ORDER BY titre", "id");
    dossier.ecrit("temp.tmp", "a rest of before");
    compacte("Compactage effectué.");
    EXPECT_LT(std::filesystem::file_size(chemins.base), avant / 2);
    EXPECT_EQ(valeurs("SELECT * FROM films ORDER BY titre", "id"), lignes);
    EXPECT_EQ(affiches().at(1), "STO" + std::string(20000, 'x'));
    EXPECT_EQ(possedes(), (std::vector<std::string>{"Film 3", "L'\"été\""}));
    EXPECT_FALSE(dossier.existe("temp.tmp"));
    EXPECT_EQ(rafraichissement.appels, (std::vector<std::string>{"AfficheNbTitres", "AffichageApresModification",
                                                                 "RaffraichitBoitesDeroulantes"}));
}

TEST_F(EntretienTest, AHoldingIsNoOrphanWhereNullStandsForTheEmptyText) {
    const std::string longue(5'000'000, 'x');
    base.base.Execute(
        "INSERT INTO Films (Titre, Realisateur) VALUES ('a', NULL), ('b', ''), (NULL, 'c'), (NULL, NULL), ('d', 'D');"
        "INSERT INTO Personnel (Titre2, Realisateur2) VALUES ('A', ''), ('B', NULL), ('', 'C'), (NULL, NULL), "
        "('d', NULL), ('e', NULL)");
    ajoute(longue, longue, dao::Valeur());
    possede(longue + " ", longue);
    possede(longue, longue + "x");
    compacte("Compactage effectué.");
    EXPECT_EQ(possedes(), (std::vector<std::string>{"", "", "A", "B", longue + " "}));
    EXPECT_EQ(base.films.RecordCount(), 6);
}

TEST_F(EntretienTest, ABaseElsewhereIsCompactedWhereItLies) {
    base.ferme();
    dossier.ecrit("ailleurs/mes films.mdb", dossier.lit("Films.mdb"));
    std::filesystem::remove(chemins.base);
    std::filesystem::create_symlink("ailleurs/mes films.mdb", chemins.base);
    dossier.ecrit("temp.tmp", "of no concern");
    db::ouvreLaBase(c);
    remplit();
    compacte("Compactage effectué.");
    EXPECT_TRUE(std::filesystem::is_symlink(chemins.base));
    EXPECT_EQ(base.films.RecordCount(), 60);
    EXPECT_EQ(dossier.lit("temp.tmp"), "of no concern");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(chemin("ailleurs")), {}), 2) << "it and its copies";
}

TEST_F(EntretienTest, ABaseInUseElsewhereStaysOpen) {
    remplit();
    const std::string octets = dossier.lit("Films.mdb");
    dao::Database autre = dao::DBEngine::OpenDatabase(chemins.base);
    autre.BeginTrans();
    compacte("Le compactage n'a pas pu être effectué.\nImpossible d'utiliser « " + chemins.base +
                 " » : le fichier est déjà utilisé.",
             dialogues::kCritique);
    EXPECT_EQ(dossier.lit("Films.mdb"), octets);
    EXPECT_EQ(possedes().size(), 4U);
    EXPECT_TRUE(base.liste.estOuvert());
    autre.Rollback();
    compacte("Compactage effectué.");
}

TEST_F(EntretienTest, AFullDiskLeavesTheBase) {
    remplit();
    base.ferme();
    const std::string octets = dossier.lit("Films.mdb");
    DialoguesMuets muets;
    EXPECT_TRUE(executeAilleurs(std::nullopt, [&] {
        const db::Contexte ailleurs = avec(muets);
        db::ouvreLaBase(ailleurs);
        const doubles::DisquePlein disque(500000);
        db::cmdCompacter_Click(ailleurs);
        const bool dit = muets.textes.size() == 1 &&
                         muets.textes[0].starts_with("Le compactage n'a pas pu être effectué.\nErreur de disque");
        _exit(dit && base.personnel.RecordCount() > 0 ? 0 : 1);
    }));
    EXPECT_EQ(dossier.lit("Films.mdb"), octets);
    EXPECT_FALSE(dossier.existe("temp.tmp"));
}

TEST_F(EntretienTest, KilledAtAnyMomentTheOldOrTheNewBaseOpens) {
    remplit();
    const auto attendus = affiches();
    const std::string fragmentee = dossier.lit("Films.mdb");
    const auto compacteAilleurs = [&](std::optional<unsigned> delai) {
        base.ferme();
        dossier.ecrit("Films.mdb", fragmentee);
        const auto debut = std::chrono::steady_clock::now();
        executeAilleurs(delai, [&] {
            DialoguesMuets muets;
            const db::Contexte ailleurs = avec(muets);
            db::ouvreLaBase(ailleurs);
            db::cmdCompacter_Click(ailleurs);
        });
        return std::chrono::steady_clock::now() - debut;
    };
    const auto duree = std::chrono::duration_cast<std::chrono::microseconds>(compacteAilleurs(std::nullopt)).count();
    EXPECT_LT(std::filesystem::file_size(chemins.base), fragmentee.size());
    std::mt19937 hasard(7);
    for (int mort = 0; mort < 30 && !HasFailure(); ++mort) {
        compacteAilleurs(std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(duree))(hasard));
        db::ouvreLaBase(c);
        EXPECT_EQ(affiches(), attendus);
        EXPECT_GE(possedes().size(), 2U);
    }
}

TEST_F(EntretienTest, ThePostersAreCountedByTheirPlace) {
    ajoute("a", "", "JPGa.jpg");
    ajoute("b", "", "JPGb.jpg");
    ajoute("c", "", db::valeurAfficheDansLaBase(std::string("\xFF\0", 2)));
    ajoute("d", "", dao::Valeur());
    dialogues.attendMsgBox(
        "Il y a 2 titres ayant un lien sur un fichier externe\nIl y a 1 titre ayant un lien sur un fichier interne",
        dialogues::kInformation);
    db::cmdInfosBase_Click(c);
}

TEST_F(EntretienTest, TheHoldingsGoWhenTheUserAgrees) {
    const auto demande = [&](int reponse) {
        dialogues.attendMsgBox(
            "Vous allez supprimer tout ce qui concerne les titres personnels (réservations, prêts, nom de fichiers, "
            "rangement...)\nVoulez-vous continuer ?",
            dialogues::kQuestion, reponse, "Suppression des titres personnels");
    };
    dialogues.attendMsgBox("Aucun titre personnel !", dialogues::kExclamation);
    db::cmdSupprInfosPerso_Click(c);
    possede("a", "");
    demande(dialogues::kNon);
    db::cmdSupprInfosPerso_Click(c);
    EXPECT_EQ(possedes().size(), 1U);
    EXPECT_TRUE(rafraichissement.appels.empty());
    demande(dialogues::kOui);
    dialogues.attendMsgBox("Appartenance de 1 titre supprimée.", dialogues::kInformation);
    db::cmdSupprInfosPerso_Click(c);
    EXPECT_TRUE(possedes().empty());
}

}  // namespace
