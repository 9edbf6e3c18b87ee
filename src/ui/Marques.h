#pragma once

#include "browse/MarquesFilm.h"
#include "ui/Icones.h"

#include <vector>

namespace ui {

// What a film's marks are drawn as: the one that most films have first. A lively one stands out.
struct Marque {
    Pictogramme pictogramme;
    bool vive = false;
};
[[nodiscard]] inline std::vector<Marque> marquesDessinees(const browse::MarquesFilm& marques) {
    std::vector<Marque> dessinees;
    if (marques.possession.possede) dessinees.push_back({Pictogramme::Possede});
    if (marques.possession.prete) dessinees.push_back({Pictogramme::Prete, true});
    if (marques.possession.reserve) dessinees.push_back({Pictogramme::Reserve, true});
    if (marques.note != 0) dessinees.push_back({Pictogramme::Etoile});
    return dessinees;
}

}  // namespace ui
