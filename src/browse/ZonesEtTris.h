#pragma once

#include "db/Schema.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

// The zones and the sorts of the listing, in the order of ChoixZone and ChoixTri: all that tells one from the next.
namespace browse {

// A zone: whose films are listed, in the very texts of its statement.
struct Zone {
    const char* legende;
    const char* vide;  // why it lists nothing, as a sentence
    std::string_view selection, origine, condition;
    std::string_view triSupplementaire;  // after the sort's own key
    bool sansPossession = false;         // its films need not be owned
};

inline constexpr std::string_view kCleTitre2 = ", Titre2 ASC";
inline constexpr std::string_view kJointure =
    "FROM Films INNER JOIN Personnel ON (Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2)";

// The first one writes its join without parentheses. Titre2 is always null in the rows of the last one, which orders by
// it all the same.
inline constexpr std::array<Zone, 6> kZones{{
    {"Mes films", "Aucun film n'est déclaré comme étant en votre possession.", "*",
     "FROM Films INNER JOIN Personnel ON Films.Titre = Personnel.Titre2 AND Films.realisateur=Personnel.realisateur2",
     "", kCleTitre2},
    {"Tous les films", "La base ne contient aucun film.", "*", "FROM Films", "", "", /*sansPossession=*/true},
    {"Mes films non prêtés", "Aucun de vos films n'est disponible : ils sont tous prêtés.", "*", kJointure,
     R"(Pret="")", kCleTitre2},
    {"Mes films prêtés", "Aucun de vos films n'est prêté.", "*", kJointure, R"(Pret<>"")", kCleTitre2},
    {"Mes films réservés", "Aucun de vos films n'est réservé.", "*", kJointure, R"(Reserve<>"")", kCleTitre2},
    {"Films non possédés", "Vous possédez tous les films de la base.", "DISTINCTROW *",
     "FROM Films LEFT JOIN Personnel ON (Films.Realisateur = Personnel.Realisateur2) AND (Films.Titre = "
     "Personnel.Titre2)",
     "((Personnel.Titre2) Is Null)", kCleTitre2, /*sansPossession=*/true},
}};
inline constexpr int kZoneMesFilms = 0, kZoneTous = 1, kZonePretes = 3, kZoneNonPossedes = 5;
inline constexpr int kZoneRecherche = static_cast<int>(kZones.size());  // "Recherche", added after them

// What the tree's headings are made from.
enum class Groupes { Lettre, Aucun, Valeur };

// A sort: its key, whose values are also its headings where these are values.
struct Tri {
    const char* legende;
    std::string_view champ;
    Groupes groupes = Groupes::Valeur;
    bool exigePossession = false;  // the key is a column of the holdings
};

inline constexpr std::array<Tri, 9> kTris{{
    {"Tri par titre - 1", "Titre", Groupes::Lettre},
    {"Tri par titre - 2 ", "Titre", Groupes::Aucun},
    {"Tri par année", "Annee"},
    {"Tri par réalisateur", "Realisateur"},
    {"Tri par genre", "Genre"},
    {"Tri par origine", "Origine"},
    {"Tri par durée", "Duree"},
    {"Tri par notation", "Note"},
    {"Tri par support", "Support", Groupes::Valeur, /*exigePossession=*/true},
}};
inline constexpr int kTriTitre1 = 0, kTriTitre2 = 1, kTriGenre = 4, kTriNote = 7, kTriSupport = 8;
static_assert(kTris[kTriTitre1].groupes == Groupes::Lettre && kTris[kTriTitre2].groupes == Groupes::Aucun &&
              kTris[kTriGenre].champ == "Genre" && kTris[kTriNote].champ == "Note" &&
              kTris[kTriSupport].champ == "Support");
// No listing reads a row: what it goes by is a column of the plain indexes.
static_assert(std::ranges::all_of(kTris, [](const Tri& tri) {
    return db::kIndexDesListes.find(tri.champ) != std::string_view::npos;
}));

[[nodiscard]] constexpr bool estUneZone(int zone) {
    return zone >= 0 && zone < static_cast<int>(kZones.size());
}
[[nodiscard]] constexpr bool estUnTri(int tri) {
    return tri >= 0 && tri < static_cast<int>(kTris.size());
}

// A zone beyond the list has no table: its statement is one that fails.
[[nodiscard]] constexpr Zone zoneDe(int zone) {
    return estUneZone(zone) ? kZones[static_cast<std::size_t>(zone)]
                            : Zone{"", "Aucun film ne répond à cette recherche.", "*", "", "", ""};
}
[[nodiscard]] constexpr const Tri& triDe(int tri) {
    return kTris.at(static_cast<std::size_t>(tri));
}

// The zone's films have what the sort goes by.
[[nodiscard]] constexpr bool seTrie(int zone, int tri) {
    return !triDe(tri).exigePossession || !zoneDe(zone).sansPossession;
}

}  // namespace browse
