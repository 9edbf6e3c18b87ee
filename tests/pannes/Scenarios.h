#pragma once

#include "pannes/Seance.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace pannes {

inline constexpr const char* kTemoin = "Témoin";       // the film that no scenario touches
inline constexpr const char* kAilleurs = "Ailleurs";   // the one that another program adds
inline constexpr const char* kSansFilm = "Sans film";  // the holding of no film

// A command, and how the user comes to it. `entiere`: it is done or not, else it is film by film.
struct Scenario {
    std::string nom;
    std::function<void(Seance&, const std::string& dossier)> prepare;
    std::function<void(Seance&)> commande;
    bool entiere = true;
    bool dansLeDossier = false;  // posters are files
    bool rejouable = true;       // told again after a fault, it ends what it had begun
    bool auDemarrage = false;    // the command is the start itself
    bool reprise = false;        // which the next start does, where it was not done
};

[[nodiscard]] const std::vector<Scenario>& scenarios();

// The lived-in program folder that every scenario begins in.
void construit(const std::filesystem::path& dossier, bool dansLeDossier);

}  // namespace pannes
