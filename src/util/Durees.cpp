#include "util/Durees.h"

#include "util/Ascii.h"

#include <vector>

namespace util {

namespace {

// The text's numbers, and what stands after each, without blanks and in small letters.
struct Morceau {
    int nombre = 0;
    std::string suite{};
};

std::optional<std::vector<Morceau>> morceauxDe(std::string_view texte) {
    constexpr int kTropLong = 10000;
    std::vector<Morceau> morceaux;
    bool dansUnNombre = false;
    for (const char octet : texte) {
        if (octet == ' ' || octet == '\t') {
            dansUnNombre = false;
            continue;
        }
        const bool chiffre = estUnChiffre(octet);
        if (chiffre && !dansUnNombre) morceaux.emplace_back();
        if (morceaux.empty()) return std::nullopt;
        Morceau& dernier = morceaux.back();
        if (chiffre) dernier.nombre = 10 * dernier.nombre + (octet - '0');
        if (!chiffre) dernier.suite += enMinuscule(octet);
        if (dernier.nombre > kTropLong) return std::nullopt;
        dansUnNombre = chiffre;
    }
    return morceaux;
}

bool estHeures(const std::string& unite) {
    return unite == "h" || unite == ":" || unite == "heure" || unite == "heures";
}

bool estMinutes(const std::string& unite) {
    return unite.empty() || unite == "'" || unite == "m" || unite == "mn" || unite == "min" || unite == "min." ||
           unite == "minutes";
}

}  // namespace

std::optional<int> minutesDe(std::string_view duree) {
    const auto morceaux = morceauxDe(duree);
    if (!morceaux || morceaux->empty() || morceaux->size() > 2) return std::nullopt;
    const bool enHeures = estHeures(morceaux->front().suite);
    if (!enHeures && morceaux->size() > 1) return std::nullopt;
    if ((!enHeures || morceaux->size() > 1) && !estMinutes(morceaux->back().suite)) return std::nullopt;
    int minutes = enHeures ? 60 * morceaux->front().nombre : morceaux->front().nombre;
    if (morceaux->size() > 1) minutes += morceaux->back().nombre;
    return minutes > 0 ? std::optional(minutes) : std::nullopt;
}

std::string texteDesMinutes(int minutes) {
    if (minutes < 60) return std::to_string(minutes) + " min";
    const int reste = minutes % 60;
    const std::string heures = std::to_string(minutes / 60) + " h";
    return reste == 0 ? heures : heures + (reste < 10 ? " 0" : " ") + std::to_string(reste);
}

}  // namespace util
