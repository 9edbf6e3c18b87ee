#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace db {

// The published fields of both tables, title and director first.
inline constexpr std::array<std::string_view, 12> kChampsFilms{"Titre",      "Realisateur", "Annee",   "Origine",
                                                               "Genre",      "Duree",       "Acteurs", "Resume",
                                                               "Production", "Affiche",     "Note",    "DateAjout"};
inline constexpr std::array<std::string_view, 11> kChampsPersonnel{"Titre2",   "Realisateur2", "Rangement", "Fichier1",
                                                                   "Fichier2", "Fichier3",     "Pret",      "Reserve",
                                                                   "Date",     "Divers",       "Support"};
inline constexpr std::string_view kAffiche = "Affiche";
inline constexpr std::string_view kNote = "Note";
inline constexpr std::size_t kChampsCle = 2;
// What a holding says, apart from whose it is.
inline constexpr auto kChampsDePossession = std::span(kChampsPersonnel).subspan<kChampsCle>();

}  // namespace db
