#pragma once

#include "platform/dao/Valeur.h"

#include <string>
#include <string_view>

struct sqlite3_stmt;
struct sqlite3_value;

namespace dao {

// A value's way into SQLite: text is TEXT, bytes are BLOB, Null is NULL; numbers keep their kind.
class AccesValeur {
  public:
    static void lie(sqlite3_stmt* requete, int rang, const Valeur& valeur);
};

namespace interne {

// A value seen where it lies, for one passage over many rows.
struct ValeurVue {
    enum class Type : unsigned char { Nul, Texte, Octets, Nombre };

    [[nodiscard]] static ValeurVue deTexte(std::string_view texte) { return {Type::Texte, texte, 0}; }
    [[nodiscard]] bool estNulle() const { return type == Type::Nul; }
    [[nodiscard]] double enNombre() const;  // a text's longest numeric prefix

    Type type = Type::Nul;
    std::string_view texte{};  // empty for Null and for a number
    double nombre = 0;
};

// Holds until the value's statement moves.
[[nodiscard]] ValeurVue vueDe(sqlite3_value* valeur);
// The value's text; a number's is made in `tampon`.
[[nodiscard]] std::string_view texteDe(const ValeurVue& valeur, std::string& tampon);
// The shortest plain form: "7", "7.5".
[[nodiscard]] std::string texteDeNombre(double nombre);
// The longest numeric prefix, 0 without one.
[[nodiscard]] double nombreDeTexte(std::string_view texte);

}  // namespace interne
}  // namespace dao
