#pragma once

#include "platform/dao/Valeur.h"

#include <memory>
#include <string>
#include <string_view>

namespace dao {

namespace interne {
class Jeu;  // what a recordset is underneath: a keyset or a live table
}

class Recordset;

// One field of a recordset's current record, for reading and, after AddNew or Edit, for writing.
// It is a passing thing: keep the value, not the field.
class Champ {
  public:
    Champ(Recordset& jeu, std::string_view nom) : m_jeu(jeu), m_nom(nom) {}

    // The value in the current record; "" for a field that the recordset does not have.
    // Throws ErreurDao 3021 without a current record, 3167 when its row was deleted.
    [[nodiscard]] Valeur Value() const;
    [[nodiscard]] std::string texte() const { return Value().texte(); }
    [[nodiscard]] bool estNull() const { return Value().estNull(); }
    // Sets the value that Update will write. Throws 3020 outside AddNew and Edit, 3265 for an unknown field.
    Champ& operator=(const Valeur& valeur);

  private:
    Recordset& m_jeu;
    std::string m_nom;
};

// A column found once by name, to read it quickly over many records.
struct Colonne {
    int rang = -1;  // -1: the recordset has no such column, reading it gives ""
};

// Records in the order of a statement, or the live records of a table.
//
// On a statement it is a keyset, as a DAO dynaset is: the row ids are fixed when it is opened, with the columns that
// order and key it; other fields are read when asked for, and read again after anyone's Update. A long value is read
// only when its own field is asked for. Positions never shift: the slot of a deleted row stays, Move counts it,
// reading it throws 3167. RecordCount is the number of slots from the start.
//
// On a table name it is live: RecordCount follows everyone's additions and deletions.
//
// Every call throws ErreurDao on failure, 3420 once closed. The Database must outlive its recordsets.
class Recordset {
  public:
    Recordset();  // closed
    explicit Recordset(std::unique_ptr<interne::Jeu> jeu);
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    void MoveFirst();  // 3021 when there is no record
    void MoveNext();
    void Move(long pas);  // steps from the current record, either way; past either end there is no current record
    [[nodiscard]] bool Eof() const;
    // Of a statement's current record, from 0: what Move goes to from the first one. -1 without one, and on a table.
    [[nodiscard]] long AbsolutePosition() const;
    [[nodiscard]] long RecordCount() const;

    [[nodiscard]] Champ Fields(std::string_view nom) { return Champ(*this, nom); }
    [[nodiscard]] Valeur valeur(std::string_view nom) const;
    [[nodiscard]] std::string texte(std::string_view nom) const { return valeur(nom).texte(); }

    // For one pass over many records: the column once, then its text ("" for Null) at each record.
    // The view holds until the next call on this recordset. Of a statement's records, fields that it does not carry along
    // are read for several records at once.
    [[nodiscard]] Colonne colonne(std::string_view nom) const;
    [[nodiscard]] std::string_view vue(Colonne colonne) const;

    void AddNew();
    void Edit();
    void assigne(std::string_view nom, const Valeur& valeur);  // what Fields(nom) = valeur does
    // Writes only the assigned fields, whole or not at all. A row of a join is edited through the table each field
    // came from. The current record stays the one it was.
    void Update();
    void Delete();  // the row of the current record; its slot stays

    // Gives back the memory of what a statement's records keep beside their row ids; their fields are read from the base
    // from now on. Nothing on a closed one.
    void allege();
    void Close();  // closing twice is harmless
    [[nodiscard]] bool estOuvert() const { return m_jeu != nullptr; }

  private:
    friend class Database;
    std::unique_ptr<interne::Jeu> m_jeu;
};

}  // namespace dao
