#include "acquire/FicheFilm.h"

#include "edit/LongueursChamps.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Capitales.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace acquire {
namespace {

constexpr std::size_t kNombreLignes = 9;
constexpr std::int64_t kTailleMaxFiche = 64 << 20;  // bytes; no sheet comes near it

std::string_view lignesUtiles(std::string_view texte) {
    std::size_t fin = 0;
    for (std::size_t i = 0; i < kNombreLignes; ++i)
        (void)util::ligneSuivante(texte, fin);
    return texte.substr(0, fin);
}

// A sign of control that neither ends nor indents a line: a text holds one by accident only.
bool estDuBruit(char octet) {
    static constexpr std::string_view kAdmis("\0\t\n\r\f\v\x1A", 7);
    return static_cast<unsigned char>(octet) < 0x20 && kAdmis.find(octet) == std::string_view::npos;
}

std::size_t compte(std::string_view texte, std::string_view cherche) {
    std::size_t nombre = 0;
    for (std::size_t i = texte.find(cherche); i != std::string_view::npos; i = texte.find(cherche, i + cherche.size()))
        ++nombre;
    return nombre;
}

// A few strange signs do not make a text another thing. `octets` are UTF-8 where they come from wider characters; then
// what no character is, and the signs of private use (U+E000 to U+EFFF, that EE begins), are strange too.
bool estUnTexte(std::string_view octets, bool larges) {
    const auto nuls = static_cast<std::size_t>(std::count(octets.begin(), octets.end(), '\0'));
    auto bruits = static_cast<std::size_t>(std::count_if(octets.begin(), octets.end(), estDuBruit));
    if (larges) bruits += compte(octets, "\uFFFD") + compte(octets, "\xEE");
    return nuls * 3 <= octets.size() && (bruits <= 2 || bruits * 50 <= octets.size());
}

// The lines that count, decoded together: what follows them says nothing of their encoding.
std::optional<std::string> texteUtile(std::string_view octets) {
    const auto large = util::decodeTexteLarge(octets);
    std::string texte(lignesUtiles(large ? std::string_view(*large) : octets));
    if (!estUnTexte(texte, large.has_value())) return std::nullopt;
    std::erase(texte, '\0');
    return large ? texte : util::decodeTexteExterne(texte);
}

std::string ouNonDefini(std::string texte) {
    return texte.empty() ? kNonDefini : texte;
}

}  // namespace

std::optional<FicheFilm> analyseFiche(std::string_view octets) {
    const auto texte = texteUtile(octets);
    if (!texte) return std::nullopt;
    std::size_t position = 0;
    std::array<std::string_view, kNombreLignes> lignes;
    for (std::string_view& ligne : lignes)
        ligne = util::ligneSuivante(*texte, position);
    FicheFilm fiche;
    fiche.premiereLigne = util::coupe(lignes[0], edit::kLongueurTitre);
    fiche.titre = ouNonDefini(util::metEnCapitales(fiche.premiereLigne));
    fiche.realisateur = ouNonDefini(util::coupe(lignes[1], edit::kLongueurRealisateur));
    fiche.annee = util::coupe(lignes[2], edit::kLongueurAnnee);
    fiche.origine = util::coupe(lignes[3], edit::kLongueurOrigine);
    fiche.genre = util::coupe(lignes[4], edit::kLongueurGenre);
    fiche.duree = util::coupe(lignes[5], edit::kLongueurDuree);
    fiche.acteurs = util::coupe(lignes[6], edit::kLongueurActeurs);
    fiche.resume = lignes[7];
    fiche.production = util::coupe(lignes[8], edit::kLongueurProduction);
    return fiche;
}

std::optional<FicheFilm> litFiche(const std::string& chemin) {
    const std::optional<std::string> octets = fichiers::lit(chemin, kTailleMaxFiche);
    if (!octets) return std::nullopt;
    return analyseFiche(*octets);
}

}  // namespace acquire
