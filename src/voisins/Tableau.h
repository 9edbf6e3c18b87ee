#pragma once

#include "voisins/FilmVoisin.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Tables in text files (CSV): their separator and encoding are found, their columns are matched with ours by their names,
// French or English, and then by the user.
namespace voisins {

enum class Colonne {
    Ignoree,
    Ligne,  // a line of the summary, under its own name
    Titre,
    TitreOriginal,
    Realisateur,
    Annee,
    Pays,
    Genre,
    Duree,
    Acteurs,
    Resume,
    Production,
    Note,
    DateAjout,
    Affiche,
    Possede,
    Support,
    Rangement,
    Fichier,
    Pret,
    DatePret,
    Reserve,
    Divers
};
inline constexpr std::size_t kColonnes = static_cast<std::size_t>(Colonne::Divers) + 1;
[[nodiscard]] std::string nomDe(Colonne colonne);

struct Tableau {
    std::string chemin;
    std::vector<std::string> entetes{};              // as many as the widest line has cells
    std::vector<std::vector<std::string>> lignes{};  // without that of the headings
    std::vector<Colonne> colonnes{};                 // as matched, then as the user wants them
    char separateur = ';';
    std::string codage{};  // "UTF-8", "Windows-1252"…, for the user
    // This program wrote it: as long as no column is matched otherwise, each cell is the field to the letter.
    bool duProgramme = false;

    [[nodiscard]] bool aUnTitre() const;
};

// The cells of a text, line by line: quotes hold separators, line ends and doubled quotes.
[[nodiscard]] std::vector<std::vector<std::string>> cellules(std::string_view texte, char separateur);
[[nodiscard]] Colonne colonneNommee(std::string_view entete);

[[nodiscard]] Tableau analyseTableau(std::string_view octets);
[[nodiscard]] Tableau litTableau(const std::string& chemin);  // throws Refus

// The films of its lines, by its columns. Throws Refus, LectureArretee.
[[nodiscard]] Collection collectionDe(const Tableau& tableau, const std::function<bool(long)>& suivi = {});

}  // namespace voisins
