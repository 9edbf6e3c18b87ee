#pragma once

#include "db/ChampsPublies.h"
#include "edit/FilmExamine.h"

#include <array>
#include <string>

namespace edit {

// What a film that is read says beside its name, in the order of the sheet: the column, how it is called, and where it
// stands.
struct ChampLu {
    const char* colonne;
    const char* legende;
    std::string FilmLu::*valeur;
};
inline constexpr std::array<ChampLu, 7> kChampsLus{{{"Annee", "Année", &FilmLu::annee},
                                                    {"Origine", "Origine", &FilmLu::origine},
                                                    {"Genre", "Genre", &FilmLu::genre},
                                                    {"Duree", "Durée", &FilmLu::duree},
                                                    {"Acteurs", "Acteurs", &FilmLu::acteurs},
                                                    {"Resume", "Résumé", &FilmLu::resume},
                                                    {"Production", "Production", &FilmLu::production}}};
// Beside the name: the poster, the rating and the day are read in other ways.
static_assert(db::kChampsCle + kChampsLus.size() + 3 == db::kChampsFilms.size());

}  // namespace edit
