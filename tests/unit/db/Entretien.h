#pragma once

#include "Installation.h"
#include "RafraichissementNote.h"
#include "db/Affiches.h"
#include "db/cmdMajBase_Click.h"
#include "doubles/DialoguesScript.h"
#include "doubles/DisquePlein.h"
#include "doubles/EcranMuet.h"
#include "doubles/MontreFixe.h"
#include "unit/edit/BaseDEssai.h"

#include <csignal>
#include <cstdint>
#include <functional>
#include <optional>

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

// The commands of upkeep over an installation's base.
struct Entretien {
    Entretien(Installation& lInstallation, dialogues::Dialogues& lesDialogues)
        : installation(lInstallation), dialogues(lesDialogues) {
        ouvertureBase();
        ecran::choisit(stockage.Option3, 0);
        stockage.Text4.Text = installation.dossier.chemin("Images");
    }

    Installation& installation;
    dialogues::Dialogues& dialogues;
    doubles::EcranMuet ecranMuet;
    doubles::MontreFixe montre;
    ecran::Progression progression;
    RafraichissementNote rafraichissement;
    db::EtatStockage stockage;
    db::Base base;
    db::OuvertureBase ouvertureBase{base, installation.chemins, dialogues};
    db::cmdCompacter_Click cmdCompacter{base, installation.chemins, ouvertureBase, rafraichissement, dialogues};
    db::cmdMajBase_Click cmdMajBase{
        {base, installation.chemins, stockage, progression, ecranMuet, dialogues, montre.montre()},
        cmdCompacter,
        rafraichissement};

    void ajoute(const std::string& titre, const std::string& realisateur, const dao::Valeur& affiche) {
        doubles::BaseDEssai::ajoute(base.films, {{"Titre", titre}, {"Realisateur", realisateur}, {"Affiche", affiche}});
    }
    void possede(const std::string& titre, const std::string& realisateur) {
        doubles::BaseDEssai::ajoute(base.personnel, {{"Titre2", titre}, {"Realisateur2", realisateur}});
    }
    [[nodiscard]] std::vector<std::string> valeurs(const std::string& enonce, const char* champ) {
        dao::Recordset lignes = base.base.OpenRecordset(enonce);
        std::vector<std::string> textes;
        for (; !lignes.Eof(); lignes.MoveNext())
            textes.push_back(lignes.texte(champ));
        return textes;
    }
    [[nodiscard]] bool possedeEncore() const { return base.personnel.RecordCount() > 0; }
    [[nodiscard]] std::vector<std::string> affiches() {
        return valeurs("SELECT * FROM films ORDER BY titre", "Affiche");
    }
};

// An installation with its commands open over an empty base.
class AvecEntretien : public ::testing::Test {
  protected:
    Installation installation;
    doubles::DialoguesScript dialogues;
    std::optional<Entretien> entretien;

    void SetUp() override {
        installation.creeBase("Films.mdb");
        entretien.emplace(installation, dialogues);
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
