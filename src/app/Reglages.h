#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace app {

// The settings file: eight positional lines, one value each. A value left at its default here leaves the window at its own.
struct Reglages {
    int stockage = 0;           // 1: Option3, 0 posters in the base, 1 in a folder
    std::string dossierImages;  // 2: Text4
    int largeur = 0;            // 3, 4: the window's size in twips; both 0: the designed size
    int hauteur = 0;
    int tri = 0;                   // 5: index in ChoixTri
    std::string base;              // 6: path of the base; empty: the default one
    bool lancerConnexion = false;  // 7: chkLancerConnexion
    bool statistiques = false;     // 8: AffStats

    friend bool operator==(const Reglages&, const Reglages&) = default;
};

// Reads the text of a settings file, of any length and content. Each line is read for itself: one that is missing or
// makes no sense keeps its default and costs the others nothing; what follows the eighth is no setting.
// Paths written relative come out built on `dossier`, the program folder (with its separator).
[[nodiscard]] Reglages litReglages(std::string_view texte, const std::string& dossier);

// The eight lines. What lies in the program folder is written relative to it, so that a copied folder opens its own base.
[[nodiscard]] std::string texteReglages(const Reglages& reglages, const std::string& dossier);

// From the file itself; nothing when it stands there but cannot be read.
[[nodiscard]] std::optional<Reglages> chargeReglages(const std::string& chemin, const std::string& dossier);

}  // namespace app
