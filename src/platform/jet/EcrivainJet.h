#pragma once

#include "platform/jet/LecteurJet.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Genuine Jet 4 bases (Access 2000 to 2003), written from nothing.
namespace jet {

inline constexpr std::uint64_t kOctetsMax = std::uint64_t{1} << 31;  // of a file
inline constexpr std::size_t kCaracteresMax = 255;                   // of a text, in UTF-16 units
// Of a row, without what its long texts hold: the sum of octetsDansLaLigne, and of the row's own.
inline constexpr std::size_t kOctetsParLigneMax = 4012;

enum class TypeEcrit { Texte, Memo, Nombre };  // a number is a double

struct ChampEcrit {
    std::string nom;
    TypeEcrit type = TypeEcrit::Texte;
};
struct IndexEcrit {
    std::string nom;
    std::vector<std::size_t> champs;  // texts; equal keys may stand in several rows, and Null in any
};
struct TableEcrite {
    std::string nom;
    std::vector<ChampEcrit> champs;
    std::vector<IndexEcrit> index;
};

// An index that was left out: Jet's order of some character is not known here, or a key is too long for a page.
struct IndexOmis {
    std::string table, index;
    std::string texte;  // the first that is to blame
};

// A text as a Jet base can hold it: no more than `maximum` units, no byte that is not UTF-8 (each is read as code page
// 1252), no byte order mark at its head. Lecteur hands it back as it stands here.
struct TexteDit {
    std::string texte;
    bool fidele = true;          // false: some bytes were read, or a mark left out
    std::size_t caracteres = 0;  // UTF-16 units of the whole text
};
[[nodiscard]] TexteDit dit(std::string_view texte, std::size_t maximum = SIZE_MAX);

// How many bytes a text takes in its row, and elsewhere in the file.
[[nodiscard]] std::size_t octetsDansLaLigne(TypeEcrit type, std::string_view texte);
[[nodiscard]] std::uint64_t octetsAilleurs(TypeEcrit type, std::string_view texte);
// The same of a picture of so many bytes, each of which is a character of a memo.
[[nodiscard]] std::uint64_t octetsDUneImage(std::size_t octets);

// A base in the making. Tables first, then rows one by one, in any order of the tables; `acheve` writes what leads to
// them. Memory holds a few pages for each table, and the keys of the indexes. Every call throws ErreurJet when the file
// cannot be written or would be too large; nothing of it is of use then, as before `acheve`.
class Ecrivain {
  public:
    // The file stands there, empty. `jour`: of creation, in days since 30 December 1899. `souffle` is called now and then
    // in whatever lasts.
    Ecrivain(const std::string& chemin, double jour, std::function<void()> souffle = {});
    Ecrivain(const Ecrivain&) = delete;
    Ecrivain& operator=(const Ecrivain&) = delete;
    ~Ecrivain();

    [[nodiscard]] std::size_t table(const TableEcrite& table);
    // The fields in the table's order, as Lecteur hands them. A byte that is no UTF-8 is its character in code page 1252.
    // Throws std::length_error for what has no room in its field or row.
    void ligne(std::size_t table, Ligne champs);
    // The indexes that had to be left out.
    [[nodiscard]] std::vector<IndexOmis> acheve();

  private:
    class Interieur;
    std::unique_ptr<Interieur> m_interieur;
};

}  // namespace jet
