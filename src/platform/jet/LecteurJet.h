#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Genuine Jet bases (Access 97, 2000, 2002 and 2003), read exactly as they are and never written to. Whatever the file
// holds, a call ends in an answer or in an ErreurJet, in memory and time that the size of the file bounds.
namespace jet {

// What every call of this room throws when it fails. what() is a French sentence for the user: what is wrong with the
// file (it cannot be read, is no Jet base, asks for a password, is damaged and where). The file is never changed.
class ErreurJet : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The base has a password, and it is not the one given.
class MotDePasseRefuse : public ErreurJet {
  public:
    using ErreurJet::ErreurJet;
};

// The base can be opened; some place of it is not what it should be. Something of it may be readable.
class BaseEndommagee : public ErreurJet {
  public:
    using ErreurJet::ErreurJet;
};

// The file says of itself that it is a Jet base (its bytes 4 to 18 are "Standard Jet DB"). False when it cannot be read.
[[nodiscard]] bool estBaseJet(const std::string& chemin);

enum class Nature { Texte, Memo, Nombre, Booleen, Date, Octets };

struct Champ {
    std::string nom;
    Nature nature;
};

struct Table {
    std::string nom;
    std::vector<Champ> champs;          // in their order in the rows handed; empty when the definition is damaged
    std::uint32_t lignesDeclarees = 0;  // how many rows the file says the table has
    std::uint32_t page = 0;             // where its definition stands
};

// The fields of a row in the order of Table::champs: nothing for Null, "" for an empty text. Texts are UTF-8. Numbers
// are written as SQLite reads them ("7", "7.5"), True is "-1" and False "0". A date is "dd/MM/yyyy", followed by
// " HH:mm:ss" unless it is midnight. Binary fields are their bytes; a replication id is "{xxxxxxxx-xxxx-...}".
using Ligne = std::span<const std::optional<std::string>>;

// Takes a row, whose texts are good until it returns; false stops the reading.
using Recepteur = std::function<bool(Ligne)>;

// How a reading ended.
struct Bilan {
    std::uint32_t lignesLues = 0;        // rows handed
    std::uint32_t lignesRetrouvees = 0;  // those among them that the table's map does not lead to
    std::uint32_t affichesAlterees = 0;  // posters with characters outside code page 1252, each of them handed as "?"
    std::uint32_t pagesEcartees = 0;     // pages listed as the table's own that are not; they are passed over
    bool interrompu = false;             // the receiver stopped it
};

struct Avancement {
    std::uint64_t pagesLues = 0;  // never more than `pages`
    std::uint64_t pages = 0;      // of the whole file
};

// Something of a damaged table that cannot be read: a field, whose row is handed without it, a row, a page with all of
// its rows, or what cannot be told by pages.
struct Perte {
    enum class Quoi { UnChamp, UneLigne, UnePage, LaTable };
    Quoi quoi;
    std::uint32_t ligne = 0;  // of a field or a row: which of the table's, from 1
    std::size_t champ = 0;    // its index in Table::champs
    std::string raison;       // the end of a French sentence
};

// Takes a row and the fields that are lost in it, handed as Null; or an empty row, and a loss that is no field's.
using RecepteurPartiel = std::function<bool(Ligne, std::span<const Perte>)>;

// False when the base has a password, and another one. True also for a file that cannot be opened: who reads it is told.
[[nodiscard]] bool accepteMotDePasse(const std::string& chemin, std::string_view motDePasse);

struct Ouverture {
    std::string motDePasse = {};
    // Opens a base whose list of tables is damaged too: tables that it does not name are among `tables`, without a name.
    bool abimee = false;
};

// A base open for reading. An encoded base is read as any other; one with a password asks for it (MotDePasseRefuse).
class Lecteur {
  public:
    explicit Lecteur(const std::string& chemin, const Ouverture& ouverture = {});
    Lecteur(Lecteur&&) noexcept;
    Lecteur& operator=(Lecteur&&) noexcept;
    ~Lecteur();

    // The user's tables, in the file's order.
    [[nodiscard]] const std::vector<Table>& tables() const;
    // The table of that name, whatever its letters' case; nullptr when there is none.
    [[nodiscard]] const Table* table(std::string_view nom) const;

    // Hands every row of the table, in the file's order. In the field named `champAffiche` a text that begins with "STO"
    // is a poster, one character per byte: it is handed as "STO" and the bytes. Nothing is handed of a damaged row; the
    // error (BaseEndommagee) names the table, the row and the field.
    Bilan parcourt(const Table& table, const Recepteur& recepteur, std::string_view champAffiche = {});

    // The same of a damaged table, from its first damage on to its end; rows that its map has lost come last.
    Bilan parcourtCeQuiEstLisible(const Table& table, const RecepteurPartiel& recepteur,
                                  std::string_view champAffiche = {});

    // How far the readings of this base are, all taken together.
    [[nodiscard]] Avancement avancement() const;

  private:
    class Interieur;
    std::unique_ptr<Interieur> m_interieur;
};

}  // namespace jet
