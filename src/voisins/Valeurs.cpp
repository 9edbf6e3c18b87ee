#include "voisins/Valeurs.h"

#include "platform/systeme/Horloge.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <ctime>

namespace voisins {

namespace {

constexpr std::string_view kBlancs = " \t\r\n\f\v";
constexpr int kAnneeMin = 1870, kAnneeMax = 2100;

bool estChiffre(char c) {
    return c >= '0' && c <= '9';
}

// The numbers that stand in a text, in their order; each of at most nine figures.
std::vector<int> nombres(std::string_view texte) {
    std::vector<int> resultat;
    for (std::size_t i = 0; i < texte.size();) {
        if (!estChiffre(texte[i])) {
            ++i;
            continue;
        }
        std::size_t fin = i;
        while (fin < texte.size() && estChiffre(texte[fin]))
            ++fin;
        int nombre = 0;
        if (fin - i <= 9) std::from_chars(texte.data() + i, texte.data() + fin, nombre);
        resultat.push_back(nombre);
        i = fin;
    }
    return resultat;
}

std::string enHeures(long minutes) {
    if (minutes <= 0 || minutes >= 100 * 60) return "";
    const std::string reste = std::to_string(minutes % 60);
    return std::to_string(minutes / 60) + "H" + (reste.size() < 2 ? "0" : "") + reste;
}

long compte(std::string_view texte, std::string_view signe) {
    long nombre = 0;
    for (std::size_t i = texte.find(signe); i != std::string_view::npos; i = texte.find(signe, i + signe.size()))
        ++nombre;
    return nombre;
}

}  // namespace

std::string sansBlancs(std::string_view texte) {
    const std::size_t debut = texte.find_first_not_of(kBlancs);
    if (debut == std::string_view::npos) return "";
    return std::string(texte.substr(debut, texte.find_last_not_of(kBlancs) - debut + 1));
}

std::vector<std::string> morceaux(std::string_view texte, std::string_view separateurs) {
    std::vector<std::string> resultat;
    for (std::size_t debut = 0; debut <= texte.size();) {
        const std::size_t fin = std::min(texte.find_first_of(separateurs, debut), texte.size());
        if (std::string morceau = sansBlancs(texte.substr(debut, fin - debut)); !morceau.empty())
            resultat.push_back(std::move(morceau));
        debut = fin + 1;
    }
    return resultat;
}

std::string assemble(const std::vector<std::string>& morceaux, std::string_view entre) {
    std::string texte;
    for (const std::string& morceau : morceaux)
        texte += (texte.empty() ? "" : std::string(entre)) + morceau;
    return texte;
}

std::string anneeDe(std::string_view texte) {
    const std::vector<int> lus = nombres(texte);
    const auto annee = std::ranges::find_if(lus, [](int n) { return n >= kAnneeMin && n <= kAnneeMax; });
    return annee == lus.end() ? "" : std::to_string(*annee);
}

std::string dureeDe(std::string_view texte) {
    const std::vector<int> lus = nombres(texte);
    const std::string minuscules = util::minuscules(texte);
    if (lus.empty()) return "";
    const bool heures = minuscules.find('h') != std::string::npos || minuscules.find(':') != std::string::npos;
    if (!heures) return enHeures(lus.front());
    // "1:57:00" has seconds; "117:00" has no hours.
    const bool minutesSecondes = lus.size() == 2 && lus[0] >= 10 && minuscules.find(':') != std::string::npos;
    if (minutesSecondes) return enHeures(lus.front());
    return enHeures(lus[0] * 60L + (lus.size() > 1 ? lus[1] : 0));
}

int noteDe(std::string_view texte, double surCombien) {
    const long etoiles = compte(texte, "★");
    std::string chiffres = util::remplace(sansBlancs(texte), ",", ".");
    double note = etoiles > 0 ? static_cast<double>(etoiles) : util::Val(chiffres);
    if (etoiles > 0) surCombien = 5;
    if (const std::size_t barre = chiffres.find('/'); barre != std::string::npos)
        if (const double sur = util::Val(std::string_view(chiffres).substr(barre + 1)); sur > 0) surCombien = sur;
    if (chiffres.ends_with('%')) surCombien = 100;
    if (!(note > 0) || !(surCombien > 0)) return 0;
    return std::clamp(static_cast<int>(std::lround(std::min(note / surCombien, 1.0) * 10)), 1, 10);
}

std::string dateDe(int annee, int mois, int jour) {
    using namespace std::chrono;
    const year_month_day lue{year(annee), month(static_cast<unsigned>(std::max(mois, 0))),
                             day(static_cast<unsigned>(std::max(jour, 0)))};
    if (!lue.ok() || annee < kAnneeMin || annee > kAnneeMax) return "";
    std::tm instant{};
    instant.tm_year = annee - 1900;
    instant.tm_mon = mois - 1;
    instant.tm_mday = jour;
    instant.tm_hour = 12;
    instant.tm_isdst = -1;
    const std::time_t moment = std::mktime(&instant);
    return moment == -1 ? "" : systeme::dateCourte(moment);
}

std::string dateDe(std::string_view texte) {
    // The hour that follows a day is none of it.
    const std::string jour = sansBlancs(texte).substr(0, sansBlancs(texte).find_first_of(" T"));
    const auto lue = systeme::dateLue(jour, systeme::OrdreDate::JourMois);
    if (!lue) return "";
    return dateDe(static_cast<int>(lue->year()), static_cast<int>(static_cast<unsigned>(lue->month())),
                  static_cast<int>(static_cast<unsigned>(lue->day())));
}

std::optional<bool> ouiOuNon(std::string_view texte) {
    static constexpr std::string_view kOui[] = {"oui", "o", "yes", "y",    "true", "vrai",
                                                "1",   "x", "vu",  "seen", "✓",    "✔"};
    static constexpr std::string_view kNon[] = {"non", "n", "no", "false", "faux", "0", "-"};
    const std::string mot = util::minuscules(sansBlancs(texte));
    if (std::ranges::find(kOui, mot) != std::end(kOui)) return true;
    if (std::ranges::find(kNon, mot) != std::end(kNon)) return false;
    return std::nullopt;
}

}  // namespace voisins
