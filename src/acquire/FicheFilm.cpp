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

// The line that starts at `position`, which moves on past its end.
std::string_view ligneSuivante(std::string_view texte, std::size_t& position) {
    const std::size_t debut = position, fin = std::min(texte.find_first_of("\r\n", debut), texte.size());
    position = fin + (texte.substr(fin, 2) == "\r\n" ? 2 : fin < texte.size() ? 1 : 0);
    return texte.substr(debut, fin - debut);
}

// The lines that count, decoded together: what follows them says nothing of their encoding.
std::string texteUtile(std::string_view octets) {
    std::size_t fin = 0;
    for (std::size_t i = 0; i < kNombreLignes; ++i)
        (void)ligneSuivante(octets, fin);
    std::string texte(octets.substr(0, fin));
    std::erase(texte, '\0');
    return util::decodeTexteExterne(texte);
}

std::string ouNonDefini(std::string texte) {
    return texte.empty() ? kNonDefini : texte;
}

}  // namespace

FicheFilm analyseFiche(std::string_view octets) {
    const std::string texte = texteUtile(octets);
    std::size_t position = 0;
    std::array<std::string_view, kNombreLignes> lignes;
    for (std::string_view& ligne : lignes)
        ligne = ligneSuivante(texte, position);
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
