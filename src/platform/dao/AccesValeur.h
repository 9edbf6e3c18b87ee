#pragma once

#include "platform/dao/Valeur.h"

#include <string_view>

struct sqlite3_stmt;

namespace dao {

// A value's way into and out of SQLite: text is TEXT, bytes are BLOB, Null is NULL; numbers keep their kind.
class AccesValeur {
  public:
    static void lie(sqlite3_stmt* requete, int rang, const Valeur& valeur);
    [[nodiscard]] static Valeur lit(sqlite3_stmt* requete, int colonne);
};

namespace interne {

// A value seen where it lies, for one passage over many rows. Bytes are seen as text.
struct ValeurVue {
    enum class Genre : unsigned char { Nul, Texte, Nombre };

    [[nodiscard]] static ValeurVue nulle() { return {}; }
    [[nodiscard]] static ValeurVue deTexte(std::string_view texte) { return {Genre::Texte, true, texte, 0}; }
    [[nodiscard]] static ValeurVue deNombre(double nombre) { return {Genre::Nombre, false, {}, nombre}; }
    [[nodiscard]] bool estNulle() const { return genre == Genre::Nul; }

    Genre genre = Genre::Nul;
    bool estTexte = false;  // a text, and not bytes or a number
    std::string_view texte{};
    double nombre = 0;
};

// Seen in the requete's current row; holds until the requete moves.
[[nodiscard]] ValeurVue vueDeColonne(sqlite3_stmt* requete, int colonne);
// The shortest plain form: "7", "7.5".
[[nodiscard]] std::string texteDeNombre(double nombre);
// The longest numeric prefix, 0 without one.
[[nodiscard]] double nombreDeTexte(std::string_view texte);

}  // namespace interne
}  // namespace dao
