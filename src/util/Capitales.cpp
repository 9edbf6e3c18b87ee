#include "util/Capitales.h"

#include "util/Texte.h"
#include "util/Unicode.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_set>

namespace util {

namespace {

constexpr std::string_view kOuvrentUnMot = "\"-/(. ";
constexpr std::string_view kBornent = " ,.";
constexpr int kRomainMax = 100;

// "Don't " and "aujourd'hui" keep a small letter after the apostrophe, "l'été" does not.
bool apostropheOuvreUnMot(std::string_view texte, std::size_t apres) {
    const auto suit = [&](std::string_view mot) { return finSansCasse(texte, apres, mot) != std::string_view::npos; };
    return apres < texte.size() && !suit("t ") && !suit("s ") && !suit("hui");
}

std::string capitalesDesMots(std::string_view texte) {
    std::string resultat;
    resultat.reserve(texte.size());
    bool capitale = true;
    for (std::size_t i = 0; i < texte.size();) {
        const PointDeCode point = litPoint(texte, i);
        i += point.taille;
        if (point.valeur < 0) {
            resultat += texte[i - 1];
            capitale = false;
            continue;
        }
        ajoutePoint(resultat, capitale ? majusculeDe(point.valeur) : minusculeDe(point.valeur));
        capitale = point.valeur == '\'' ? apostropheOuvreUnMot(texte, i)
                                        : point.valeur < 0x80 && kOuvrentUnMot.find(static_cast<char>(point.valeur)) !=
                                                                     std::string_view::npos;
    }
    return resultat;
}

const std::unordered_set<std::string>& romains() {
    static const std::unordered_set<std::string> ensemble = [] {
        std::unordered_set<std::string> tous;
        for (int i = 1; i <= kRomainMax; ++i)
            tous.insert(chiffresRomains(i));
        return tous;
    }();
    return ensemble;
}

// The numeral in capitals when the word is one.
std::optional<std::string> enRomain(std::string_view mot) {
    constexpr std::size_t kPlusLong = 8;  // LXXXVIII
    if (mot.empty() || mot.size() > kPlusLong || mot.find_first_not_of("IVXLCivxlc") != mot.npos) return std::nullopt;
    std::string capitales = majuscules(mot);
    if (!romains().contains(capitales)) return std::nullopt;
    return capitales;
}

}  // namespace

// Every occurrence of a numeral is put in capitals: the words are looked at one by one.
std::string metEnCapitales(std::string_view titre) {
    std::string resultat = capitalesDesMots(titre);
    for (std::size_t debut = 0; debut < resultat.size();) {
        const std::size_t fin = std::min(resultat.find_first_of(kBornent, debut), resultat.size());
        if (const auto romain = enRomain(std::string_view(resultat).substr(debut, fin - debut)))
            resultat.replace(debut, fin - debut, *romain);
        debut = fin + 1;
    }
    return resultat;
}

std::string chiffresRomains(int nombre) {
    struct Signe {
        int valeur;
        const char* texte;
    };
    static constexpr std::array<Signe, 13> kSignes{{{1000, "M"},
                                                    {900, "CM"},
                                                    {500, "D"},
                                                    {400, "CD"},
                                                    {100, "C"},
                                                    {90, "XC"},
                                                    {50, "L"},
                                                    {40, "XL"},
                                                    {10, "X"},
                                                    {9, "IX"},
                                                    {5, "V"},
                                                    {4, "IV"},
                                                    {1, "I"}}};
    if (nombre < 1 || nombre > 3999) return "";
    std::string texte;
    for (const Signe& signe : kSignes)
        for (; nombre >= signe.valeur; nombre -= signe.valeur)
            texte += signe.texte;
    return texte;
}

std::size_t chercheMotEntier(std::string_view texte, std::string_view mot) {
    const auto borne = [&](std::size_t i) { return i >= texte.size() || kBornent.find(texte[i]) != kBornent.npos; };
    if (mot.empty()) return 0;
    for (std::size_t debut = 0; debut < texte.size(); ++debut) {
        if (debut > 0 && !borne(debut - 1)) continue;
        const std::size_t fin = finSansCasse(texte, debut, mot);
        if (fin != std::string_view::npos && borne(fin)) return longueur(texte.substr(0, debut)) + 1;
    }
    return 0;
}

}  // namespace util
