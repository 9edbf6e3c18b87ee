#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace acquire {

// What an import is to read: a folder's sheets, or those of them that were chosen by their names.
struct FichesChoisies {
    std::string dossier;
    std::vector<std::string> noms{};  // none: all

    [[nodiscard]] long nombre() const;
    // About how much of rows and posters they add to the base.
    [[nodiscard]] std::int64_t octets(bool affichesEnBase) const;
};

// A folder of sheets with their posters, listed once: an import looks for no name on the disk.
class DossierFiches {
  public:
    explicit DossierFiches(const FichesChoisies& choisies);
    explicit DossierFiches(const std::string& dossier) : DossierFiches(FichesChoisies{dossier}) {}

    [[nodiscard]] const std::vector<std::string>& fiches() const {
        return m_fiches;
    }  // file names, in name order or as chosen
    [[nodiscard]] std::string chemin(const std::string& nom) const { return m_dossier + nom; }

    // Where the poster of a sheet should be: its path with ".jpg" instead of its extension.
    [[nodiscard]] std::string cheminAffiche(const std::string& fiche) const;
    // Where it is: there, or under a name that differs by letter case only.
    [[nodiscard]] std::optional<std::string> trouveAffiche(const std::string& fiche) const;

  private:
    [[nodiscard]] static std::string nomAffiche(const std::string& fiche);

    std::string m_dossier;  // with its final separator
    std::vector<std::string> m_fiches;
    std::unordered_set<std::string> m_images;                        // names of the folder's .jpg files
    std::unordered_map<std::string, std::string> m_imagesSansCasse;  // the same by their name without its letter case
};

}  // namespace acquire
