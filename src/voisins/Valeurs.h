#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What other programs write, in the forms of this one. A text that says nothing of the kind comes out empty.
namespace voisins {

[[nodiscard]] std::string sansBlancs(std::string_view texte);  // at its ends
// Pieces without blanks at their ends, the empty ones left out.
[[nodiscard]] std::vector<std::string> morceaux(std::string_view texte, std::string_view separateurs);
[[nodiscard]] std::string assemble(const std::vector<std::string>& morceaux, std::string_view entre);

[[nodiscard]] std::string anneeDe(std::string_view texte);  // "1979-05-25" -> "1979"
// "117", "117 min", "1:57:00", "1 h 57" -> "1H57".
[[nodiscard]] std::string dureeDe(std::string_view texte);
// "8,3" of 10, "4/5", "★★★", "80 %" -> 1 to 10; 0 for none.
[[nodiscard]] int noteDe(std::string_view texte, double surCombien);
// A day in the user's short form. Figures alone are read as other programs write them: the year, or the day first.
[[nodiscard]] std::string dateDe(std::string_view texte);
[[nodiscard]] std::string dateDe(int annee, int mois, int jour);  // "" where it is none
// "oui", "yes", "true", "1", "x", "vu"…; nothing for a text that says neither yes nor no.
[[nodiscard]] std::optional<bool> ouiOuNon(std::string_view texte);

// The French word of an English one of the kind, else the text as it is. Upper and lower case are one. `Terme`: what a disc
// and its picture are said to be.
enum class Lexique { Genre, Pays, Langue, Support, Terme };
[[nodiscard]] std::string enFrancais(Lexique lexique, std::string_view texte);

}  // namespace voisins
