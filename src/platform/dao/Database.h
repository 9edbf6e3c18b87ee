#pragma once

#include "platform/dao/Enregistrement.h"
#include "platform/dao/ErreurDao.h"
#include "platform/dao/Recordset.h"
#include "platform/dao/Souffle.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dao {

namespace interne {
class Connexion;
}

// What a base's path leads to: the file that was opened, nothing, or another file.
enum class Emplacement { EnPlace, Absente, Remplacee };

// Two columns that name a row together. A row is looked up by their two texts in no time; Null is "" in them, unless it
// stands in both; and rows that a statement leaves equal follow one another by the first table's key.
struct Cle {
    std::string premiere, seconde;
};

// One open base. It must outlive the recordsets opened on it; Close closes them first.
class Database {
  public:
    Database();  // closed
    explicit Database(std::unique_ptr<interne::Connexion> connexion);
    Database(Database&&) noexcept;
    Database& operator=(Database&&) noexcept;
    ~Database();

    // A table name gives a live recordset, a SELECT a keyset. The statement is taken as the program writes it, with
    // Jet's text comparison. Throws ErreurDao 3075 (syntax), 3061 (unknown column), 3078 (unknown table), or a disk error.
    // `portees` are columns that a keyset keeps with its records, as it keeps those that order them: `vue` of one then asks
    // nothing of the file as long as nobody changes the row. A table without one of them does without.
    [[nodiscard]] Recordset OpenRecordset(std::string_view source, std::span<const std::string_view> portees = {});
    // The same, in place of `precedent`, which still stands when this throws: its rows are taken over where the statement
    // only orders them otherwise and nobody changed any since, else what it keeps beside their ids is given back first.
    [[nodiscard]] Recordset OpenRecordset(std::string_view source, std::span<const std::string_view> portees,
                                          Recordset& precedent);

    // What every reading of this base calls from now on, every few rows and never amid a change of a row.
    void respireAvec(Souffle souffle);
    void respire();  // the same, for what is done beside the base

    // Hands every row of a table to `recoit`, in no order: its id and the texts of these columns, "" for Null, which stand
    // until it returns. Nothing is kept, which a recordset does. Throws ErreurDao 3078, 3061, or a disk error.
    using Recoit = std::function<void(long long id, std::span<const std::string_view> textes)>;
    void parcourt(std::string_view table, std::span<const std::string_view> colonnes, const Recoit& recoit);

    // One pass over a table in slices, which keeps nothing between them: the columns' texts of rows by the first column, in
    // the order of the file's index that begins with it. At least so many rows and all that have the last one's value;
    // false once none is left. Rows that are changed between two slices may be met twice or not at all: see `version`.
    struct Parcours {
        std::optional<Valeur> derniere;  // none: at the beginning
    };
    using Visite = std::function<void(std::span<const std::string>)>;
    bool litTranche(std::string_view table, std::span<const std::string_view> colonnes, Parcours& parcours,
                    std::size_t lignes, const Visite& visite);

    // Differs from what it was once a row of the table was changed, or may have been. Throws ErreurDao 3078.
    struct Version {
        std::uint64_t epoque = 0, ecriture = 0;
        friend bool operator==(const Version&, const Version&) = default;
    };
    [[nodiscard]] Version version(std::string_view table) const;

    // What rows are found by, in whichever table has both columns of a pair. Without it, rows are looked up by reading
    // all of them, and what Cle says does not hold. To be called before anything is opened on the base.
    void declareCles(std::vector<Cle> cles);

    // Reads now what finding a row of this table by its key takes, which the first look-up would otherwise do. Throws
    // ErreurDao 3078, or a disk error.
    void prepareLesRecherches(std::string_view table);

    // Runs a statement of SQLite's own as it is: for the schema and for tools, not for the program's statements.
    void Execute(std::string_view sql);

    // Groups updates: all of them are in the file after CommitTrans, none after Rollback. One level, no nesting.
    void BeginTrans();
    void CommitTrans();
    void Rollback();
    [[nodiscard]] bool enTransaction() const;

    // From now on what is changed through recordsets goes to `suite` too, which outlives the base or the next call;
    // nullptr ends it. Only between transactions. False at the first call since the base was opened.
    bool enregistre(Enregistrement* suite);
    // Takes the recorded changes back or makes them again, all or nothing, in one transaction; it is not recorded.
    // Throws ErreurDao, nothing done.
    [[nodiscard]] Application applique(Enregistrement& changements, Sens sens, const Avance& avance = {});

    // Others after each change that is known: of a row by this program, of the file by another one.
    struct Changements {
        std::uint64_t lignes = 0, fichier = 0;
        friend bool operator==(const Changements&, const Changements&) = default;
    };
    [[nodiscard]] Changements changements() const;

    void Close();  // closing twice is harmless
    [[nodiscard]] bool estOuverte() const { return m_connexion != nullptr; }
    [[nodiscard]] const std::string& nom() const;  // the path it was opened with
    // Where it is not in place any more, every other call throws ErreurDao 3024.
    [[nodiscard]] Emplacement emplacement() const;

  private:
    friend class Transaction;
    std::unique_ptr<interne::Connexion> m_connexion;
};

// Opens a transaction, and rolls it back unless confirme was called: what a batch holds between two breaths.
class Transaction {
  public:
    explicit Transaction(Database& base) : m_base(base) { m_base.BeginTrans(); }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();
    void confirme();  // CommitTrans

  private:
    Database& m_base;
    bool m_ouverte = true;
};

}  // namespace dao
