#pragma once

#include <exception>
#include <string>
#include <utility>

namespace dao {

// What every call of this room throws when it fails: a DAO error number and a French description.
// It is caught where the user is told.
class ErreurDao : public std::exception {
  public:
    ErreurDao(int numeroDao, std::string texte) : numero(numeroDao), description(std::move(texte)) {}

    // What the user is told where nothing else is said of it.
    [[nodiscard]] std::string texte() const { return "Erreur " + std::to_string(numero) + " : " + description; }
    [[nodiscard]] const char* what() const noexcept override { return description.c_str(); }

    int numero;
    std::string description;
};

// The numbers the program tells apart or shows. They are the published DAO numbers.
inline constexpr int kErreurAucunEnregistrement = 3021;  // no current record
inline constexpr int kErreurFichierIntrouvable = 3024;   // the file does not exist, or is no longer the one opened
inline constexpr int kErreurEditSansEdition = 3020;      // Update without AddNew or Edit
inline constexpr int kErreurDoublon = 3022;              // a rule of the table (unique, not null) forbids the change
inline constexpr int kErreurNonModifiable = 3027;        // the recordset's rows cannot be changed (DISTINCT)
inline constexpr int kErreurTransaction = 3034;         // CommitTrans or Rollback without BeginTrans, or two BeginTrans
inline constexpr int kErreurFichierExiste = 3204;       // the base to create is already there
inline constexpr int kErreurDisque = 3043;              // disk or network error, disk full
inline constexpr int kErreurFichierDejaUtilise = 3045;  // locked by another program
inline constexpr int kErreurTableIntrouvable = 3078;    // no such table
inline constexpr int kErreurSyntaxe = 3075;             // the statement cannot be understood
inline constexpr int kErreurParametre = 3061;           // a name in the statement is no column
inline constexpr int kErreurEnregistrementSupprime = 3167;  // the slot's row was deleted
inline constexpr int kErreurLectureVerrouillee = 3187;      // the rows cannot be read: locked by another program
inline constexpr int kErreurVerrouille = 3260;              // the row cannot be written: locked by another program
inline constexpr int kErreurChampIntrouvable = 3265;        // writing a field that the recordset does not have
inline constexpr int kErreurFormat = 3343;                  // not a base of ours
inline constexpr int kErreurObjetFerme = 3420;              // the object was closed
inline constexpr int kErreurLectureSeule = 3451;            // the base cannot be written

}  // namespace dao
