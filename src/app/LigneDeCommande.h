#pragma once

#include <string>
#include <vector>

namespace app {

// What the program is started for.
struct Appel {
    std::string reponse;               // to be written out, and nothing else done; empty: the window opens
    std::vector<std::string> chemins;  // whole paths of sheets and folders to import
};

// The words after the program's name. "--help" and "--version" ask when they stand alone; any other word is a file, a
// folder or its "file:" address, also one that begins with "-". A first "--" is passed over.
[[nodiscard]] Appel lisAppel(const std::vector<std::string>& mots);

}  // namespace app
