#pragma once

#include <string>

namespace acquire {

// Where a previous installation keeps its base and its posters: where its settings file says, else in the usual places
// of its folder. A path of another machine counts by its end: by its longest one that leads somewhere in the folder.
struct AncienneInstallation {
    std::string base;           // an existing file; empty when there is none
    std::string dossierImages;  // an existing folder, with its final separator; empty when there is none

    [[nodiscard]] static AncienneInstallation dans(const std::string& dossier);
};

}  // namespace acquire
