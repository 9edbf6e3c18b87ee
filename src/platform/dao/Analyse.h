#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dao::interne {

// One word of a statement. A quoted text stands without its quotes, its doubled quotes made single.
struct Mot {
    enum class Genre { Nom, NomEntreCrochets, Texte, Nombre, Signe, Fin };

    Genre genre = Genre::Fin;
    std::string texte{};
    double nombre = 0;
};

// Cuts a statement into words; the last is Fin. Throws ErreurDao 3075 at what is no word.
[[nodiscard]] std::vector<Mot> coupeEnMots(std::string_view enonce);

[[nodiscard]] bool egalSansCasseAscii(std::string_view gauche, std::string_view droite);

}  // namespace dao::interne
