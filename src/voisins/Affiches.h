#pragma once

#include "platform/archives/Archive.h"
#include "platform/xml/Lecture.h"
#include "voisins/FilmVoisin.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace voisins {

// The posters of a collection, one at a time. Those of an archive or of a document are quickest in the order of their
// ranks: an earlier one is looked for from the beginning again.
//
// A collection may name any file of the machine: only those that lie in its own folders are read, no link followed, and
// only what begins as a picture does is one.
class Affiches {
  public:
    Affiches() = default;
    Affiches(const Affiches&) = delete;
    Affiches& operator=(const Affiches&) = delete;

    // --- while the collection is read ---
    void ajouteDossier(const std::string& dossier);  // whose pictures are its posters; the first ones count more
    void poseArchive(std::string chemin) { m_archive = std::move(chemin); }
    void connaisEntree(const std::string& nom, long rang);
    void poseDocument(std::string chemin) { m_document = std::move(chemin); }
    void connaisImage(const std::string& nom, long rang) { m_images.emplace(nom, rang); }
    // Where the picture of that name is: in the document; in the archive or in a folder, by the longest end of its path.
    [[nodiscard]] AfficheVoisine trouve(std::string_view nom) const;

    // --- afterwards ---
    struct Lecture {
        std::optional<std::string> octets;
        bool tropGrande = false;
    };
    [[nodiscard]] Lecture lis(const AfficheVoisine& affiche, std::int64_t limite);

  private:
    [[nodiscard]] Lecture lisDansLArchive(long rang, std::int64_t limite);
    [[nodiscard]] Lecture lisDansLeDocument(long rang, std::int64_t limite);

    std::vector<std::string> m_dossiers;  // with their final separators
    std::string m_archive, m_document;
    std::unordered_map<std::string, long> m_entrees, m_images;
    std::optional<archives::Archive> m_ouverte;
    std::optional<xml::Lecture> m_lue;
    long m_rangArchive = -1, m_rangDocument = -1;
    long m_rangGarde = -1;  // several films may share one picture
    std::string m_garde;
};

[[nodiscard]] bool estUneImage(std::string_view octets);
// Without what is no sign of it; nothing for what stops in the middle of one.
[[nodiscard]] std::optional<std::string> depuisBase64(std::string_view texte);

// The bytes of a file, as a document is read.
[[nodiscard]] xml::Source sourceDuFichier(const std::string& chemin);

}  // namespace voisins
