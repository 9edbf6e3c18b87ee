#pragma once

#include <optional>
#include <string>

namespace app {

// The program works in the folder of its executable. Where it was installed for everybody, that folder holds a file
// "installation" and is only read: each user has a program folder of his own, made from it at his first start. Another
// installation brings his up to date at the next start: program, template, guide and samples are renewed; base, settings
// and extensions are his.
struct DossierDeTravail {
    std::string dossier;     // ends with a separator
    std::string echec = {};  // why the user's folder could not be made; empty: it stands there, whole
};

// `installe`: the executable's folder. `donnees`: the user's data folder by the desktop's rules, used only where the
// program was installed.
[[nodiscard]] DossierDeTravail dossierDeTravail(const std::string& installe, const std::string& donnees);

}  // namespace app
