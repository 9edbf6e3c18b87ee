#pragma once

#include "Installation.h"
#include "db/Affiches.h"
#include "doubles/DisquePlein.h"

#include <csignal>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

// Every box is as good as any other: for programs that are killed before they show it.
struct DialoguesMuets final : dialogues::Dialogues {
    std::vector<std::string> textes;
    int reponse = dialogues::kOk;
    int MsgBox(const std::string& texte, int, const std::string&) override {
        textes.push_back(texte);
        return reponse;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return {}; }
    std::string choisitDossier(const std::string&, const std::string&) override { return {}; }
};

// An installation with its base open, for the commands of upkeep.
class AvecEntretien : public ::testing::Test, protected Installation {
  protected:
    void SetUp() override {
        creeBase("Films.mdb");
        stockage.Text4.Text = chemin("Images");
        db::ouvreLaBase(c);
    }

    void ajoute(const std::string& titre, const std::string& realisateur, const dao::Valeur& affiche) {
        doubles::ajoute(base.films, {{"Titre", titre}, {"Realisateur", realisateur}, {"Affiche", affiche}});
    }
    void possede(const std::string& titre, const std::string& realisateur) {
        doubles::ajoute(base.personnel, {{"Titre2", titre}, {"Realisateur2", realisateur}});
    }
    [[nodiscard]] std::vector<std::string> valeurs(const std::string& enonce, const char* champ) {
        return doubles::colonne(base.base, enonce, champ);
    }
    [[nodiscard]] std::vector<std::string> affiches() {
        return valeurs("SELECT * FROM films ORDER BY titre", "Affiche");
    }
};

// Runs the work in a process of its own, killed after so many microseconds unless it ended before. True when it ended.
inline bool executeAilleurs(std::optional<unsigned> delai, const std::function<void()>& travail) {
    const pid_t enfant = fork();
    if (enfant == 0) {
        travail();
        _exit(0);
    }
    if (delai) {
        usleep(*delai);
        kill(enfant, SIGKILL);
    }
    int etat = 0;
    waitpid(enfant, &etat, 0);
    return WIFEXITED(etat) && WEXITSTATUS(etat) == 0;
}
