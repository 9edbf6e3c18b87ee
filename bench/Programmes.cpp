#include "Programmes.h"

#include "Mesure.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <stdexcept>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

namespace {

std::string ceDossier() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path().string() + "/";
}

// Starts the program with its standard output in the pipe, the moment of the start in its environment.
pid_t demarre(const std::string& chemin, const std::vector<std::string>& arguments, const int (&tuyau)[2]) {
    std::vector<char*> mots{const_cast<char*>(chemin.c_str())};
    for (const std::string& a : arguments)
        mots.push_back(const_cast<char*>(a.c_str()));
    mots.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, tuyau[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, tuyau[0]);
    posix_spawn_file_actions_addclose(&actions, tuyau[1]);
    setenv(kVariableDepart, std::to_string(maintenant()).c_str(), 1);
    pid_t processus = 0;
    const int code = posix_spawn(&processus, chemin.c_str(), &actions, nullptr, mots.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (code != 0) throw std::runtime_error("cannot start " + chemin + ": " + std::strerror(code));
    return processus;
}

Figures litFigures(FILE* flux) {
    Figures figures;
    char nom[64];
    for (double valeur = 0; std::fscanf(flux, "%63s %lf", nom, &valeur) == 2;)
        figures[nom] = valeur;
    return figures;
}

}  // namespace

Figures lance(const std::string& programme, const std::vector<std::string>& arguments) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_LOGGING_RULES", "default.warning=false", 1);  // what the offscreen platform says it cannot do
    setenv("LC_ALL", "C.UTF-8", 1);
    int tuyau[2];
    if (pipe(tuyau) != 0) throw std::runtime_error("no pipe");
    const pid_t processus = demarre(ceDossier() + programme, arguments, tuyau);
    close(tuyau[1]);
    FILE* flux = fdopen(tuyau[0], "r");
    Figures figures = litFigures(flux);
    std::fclose(flux);
    int etat = 0;
    waitpid(processus, &etat, 0);
    if (etat != 0) {
        std::string commande = programme;
        for (const std::string& a : arguments)
            commande += " " + a;
        throw std::runtime_error(commande + " failed");
    }
    return figures;
}

Figures retenues(const std::vector<Figures>& passages) {
    Figures resultat = passages.front();
    for (const Figures& passage : passages)
        for (auto& [nom, retenue] : resultat) {
            const double valeur = passage.at(nom);
            retenue = nom == "memoire" ? std::max(retenue, valeur) : std::min(retenue, valeur);
        }
    return resultat;
}

}  // namespace bench
