#include "platform/fichiers/CheminTape.h"

#include "util/NomsFichiers.h"

#include <array>
#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace fichiers {

namespace {

// As the shells do: what the session says, else what the system knows of the user. Empty when neither does.
std::string dossierPersonnel() {
    if (const char* dossier = std::getenv("HOME"); dossier && *dossier == '/') return dossier;
    std::array<char, 1 << 14> tampon{};
    struct passwd infos {};
    struct passwd* trouve = nullptr;
    getpwuid_r(getuid(), &infos, tampon.data(), tampon.size(), &trouve);
    return trouve && trouve->pw_dir ? trouve->pw_dir : "";
}

}  // namespace

bool estCheminWindows(std::string_view chemin) {
    const bool lecteur =
        util::aUneLettreDeLecteur(chemin) && chemin.size() > 2 && (chemin[2] == '\\' || chemin[2] == '/');
    return lecteur || chemin.starts_with("\\\\");
}

std::string cheminTape(std::string_view tape, std::string_view dossier) {
    if (tape == "~" || tape.starts_with("~/")) {
        const std::string personnel = dossierPersonnel();
        if (!personnel.empty()) return personnel + std::string(tape.substr(1));
    }
    if (tape.empty() || tape.starts_with('/') || estCheminWindows(tape)) return std::string(tape);
    return util::avecSeparateur(dossier) + std::string(tape);
}

}  // namespace fichiers
