#pragma once

#include <string>

namespace acquire {

// Where a previous installation keeps its base and its posters: where its settings file says, or, where that says nothing,
// in the usual places of its folder. A path of another machine counts by its end: by its longest one that leads somewhere
// in the folder.
struct AncienneInstallation {
    std::string base;           // an existing file; empty when there is none
    std::string dossierImages;  // an existing folder, with its final separator; empty when there is none

    // What the settings name, as they do, and is not there; the place is empty then, another is not taken for it.
    std::string baseAbsente{};
    std::string imagesAbsentes{};

    [[nodiscard]] static AncienneInstallation dans(const std::string& dossier);
};

}  // namespace acquire
