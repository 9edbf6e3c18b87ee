#pragma once

#include "browse/Contexte.h"
#include "browse/FilmsPossedes.h"

#include <array>
#include <chrono>
#include <string>
#include <string_view>

// What a row of the list, or a tile, shows of its film beside the title: from memory alone, no row is read for it.
namespace browse {

// What the listing keeps with its rows for it; the indexes hold these columns.
inline constexpr std::array<std::string_view, 2> kPorteesParLaListe{"Note", "Annee"};

struct MarquesFilm {
    Possession possession;
    int note = 0;  // 1 to 10, 0 for none

    [[nodiscard]] bool estVide() const { return possession == Possession{} && note == 0; }
    friend bool operator==(const MarquesFilm&, const MarquesFilm&) = default;
};

// Of a film's node; none for a film that is gone, and while the holdings are not known yet.
[[nodiscard]] MarquesFilm marquesDuNoeud(const Contexte& c, int noeud);
[[nodiscard]] std::string texteDesMarques(const MarquesFilm& marques);  // "possédé, prêté, noté 8/10"; empty for none

// "Cléo de 5 à 7", under it "Agnès Varda, 1962", then the marks. Empty for a film that is gone.
[[nodiscard]] std::string infobulleDuNoeud(const Contexte& c, int noeud);

// Follows the holdings, between two commands, for about so long. True when the marks are those of now.
[[nodiscard]] bool suisLesMarques(const Contexte& c, std::chrono::milliseconds duree);

}  // namespace browse
