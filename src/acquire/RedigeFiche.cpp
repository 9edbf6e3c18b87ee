#include "acquire/RedigeFiche.h"

#include "util/Texte.h"

#include <array>
#include <utility>

namespace acquire {

namespace {

constexpr std::string_view kMarque = "\uFEFF", kFin = "\r\n";

struct Ligne {
    const char* nom;
    std::string FicheFilm::*texte;
};
constexpr std::array<Ligne, 9> kLignes{{{"titre", &FicheFilm::titre},
                                        {"réalisateur", &FicheFilm::realisateur},
                                        {"année", &FicheFilm::annee},
                                        {"origine", &FicheFilm::origine},
                                        {"genre", &FicheFilm::genre},
                                        {"durée", &FicheFilm::duree},
                                        {"acteurs", &FicheFilm::acteurs},
                                        {"résumé", &FicheFilm::resume},
                                        {"production", &FicheFilm::production}}};

std::string enUneLigne(const std::string& texte) {
    if (texte.find_first_of("\r\n") == std::string::npos) return texte;
    return util::remplace(util::remplace(util::remplace(texte, kFin, " "), "\r", " "), "\n", " ");
}

std::string pourquoi(const Ligne& ligne, const std::string& voulu, const std::string& lu) {
    if (lu == enUneLigne(voulu)) return std::string(ligne.nom) + " (sans ses fins de ligne)";
    if (voulu.empty()) return std::string(ligne.nom) + " (" + lu + ")";
    if (util::egalSansCasse(lu, voulu)) return std::string(ligne.nom) + " (majuscules)";
    if (voulu.starts_with(lu)) return std::string(ligne.nom) + " (coupé)";
    return ligne.nom;
}

std::vector<std::string> ecarts(const FicheFilm& film, const std::string& octets) {
    const auto lue = analyseFiche(octets);
    if (!lue) return {"fiche qu'un import ne lira pas comme un texte"};
    std::vector<std::string> trouves;
    for (const Ligne& ligne : kLignes)
        if ((*lue).*ligne.texte != film.*ligne.texte)
            trouves.push_back(pourquoi(ligne, film.*ligne.texte, (*lue).*ligne.texte));
    return trouves;
}

}  // namespace

FicheRedigee redigeFiche(const FicheFilm& film) {
    std::string texte;
    for (const Ligne& ligne : kLignes)
        texte.append(enUneLigne(film.*ligne.texte)).append(kFin);
    std::string court = util::vers1252(texte);
    if (util::depuis1252(court) == texte) {
        FicheRedigee fiche{std::move(court), {}};
        fiche.ecarts = ecarts(film, fiche.octets);
        if (fiche.ecarts.empty()) return fiche;
    }
    FicheRedigee fiche{std::string(kMarque) + texte, {}};
    fiche.ecarts = ecarts(film, fiche.octets);
    return fiche;
}

}  // namespace acquire
