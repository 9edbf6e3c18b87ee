#pragma once

#include "edit/FilmExamine.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// The collections that other programs keep, as values that this one can store.
namespace voisins {

class Affiches;

// Where a film's poster is to be found by its collection's Affiches.
struct AfficheVoisine {
    enum class Ou { Nulle, Dossier, Archive, Document };
    Ou ou = Ou::Nulle;
    std::string nom{};    // as the collection names it, or the file's path
    long rang = -1;       // in the archive or document
    bool nommee = false;  // the collection names one, whether it is there or not
};

struct PossessionVoisine {
    std::string support, rangement, divers;
    std::array<std::string, 3> fichiers;
    std::string pret, reserve, date;  // the date is the loan's
    friend bool operator==(const PossessionVoisine&, const PossessionVoisine&) = default;
};

// The title and the director are never empty. Each field fits its column, but what this program wrote itself, which comes
// back as it left.
struct FilmVoisin : edit::FilmLu {
    int note = 0;            // 1 to 10; 0 for none
    std::string dateAjout;   // in the user's short form; "" where it is not said
    bool sansAjout = false;  // it is said that there is none
    std::optional<PossessionVoisine> possession;
    std::vector<PossessionVoisine> autres;  // more copies of it, where there is one
    AfficheVoisine affiche;
};

enum class Programme { Tellico, GCstar, AntMovieCatalog, Kodi, Csv };
[[nodiscard]] std::string nomDe(Programme programme);
[[nodiscard]] std::string ceQuiSeLit();  // the collections of them all, for the user

struct Collection {
    Programme programme = Programme::Csv;
    std::string chemin;  // of the file or folder
    std::vector<FilmVoisin> films{};
    std::vector<std::string> remarques{};  // what was left out, in sentences
    std::shared_ptr<Affiches> affiches{};
};

// Why a collection cannot be read, for the user.
struct Refus {
    std::string texte;
};

// What a collection may hold.
inline constexpr std::size_t kFilmsAuPlus = 200'000;
inline constexpr std::size_t kTexteAuPlus = 512 << 20;  // bytes, of all films together

}  // namespace voisins
