#include "export/TexteFiche.h"

#include "util/Texte.h"

#include <string_view>

namespace exportation {

namespace {

constexpr std::string_view kFin = "\r\n";
constexpr std::size_t kFiletSansActeurs = 30, kFiletDeMarge = 5;

std::string ligne(std::string_view texte) {
    return std::string(texte).append(kFin);
}

// The actors stand one a line on the sheet.
std::string acteursEnLigne(const std::string& etiquette) {
    return util::remplace(util::remplace(etiquette, kFin, ","), "  ", ",");
}

std::string filet(const std::string& acteurs) {
    return ligne(std::string(acteurs.empty() ? kFiletSansActeurs : util::longueur(acteurs) + kFiletDeMarge, '-'));
}

std::string_view sansBlancDevant(std::string_view texte) {
    return texte.starts_with(' ') ? texte.substr(1) : texte;
}

std::string avecFinsDeLigne(std::string_view texte) {
    return util::remplace(util::remplace(util::remplace(texte, kFin, "\n"), "\r", "\n"), "\n", kFin);
}

}  // namespace

std::string texteFiche(const std::string& titre, const browse::EtatFiche& fiche) {
    const auto& etiquettes = fiche.Label1;
    const std::string acteurs = acteursEnLigne(fiche.lblInfosActeurs.Caption);
    std::string texte = ligne(titre) + ligne(etiquettes[1].Caption) + ligne("Durée : " + etiquettes[5].Caption) +
                        ligne(std::string(sansBlancDevant(etiquettes[2].Caption)) + " - " + etiquettes[4].Caption) +
                        ligne(etiquettes[6].Caption) + ligne("") + ligne("") + ligne("");
    if (!acteurs.empty()) texte += ligne("Avec " + acteurs);
    texte += filet(acteurs) + ligne("Résumé :") + ligne("") + ligne(avecFinsDeLigne(fiche.Text1.Text)) + ligne("") +
             filet(acteurs) + ligne("Spécifications techniques :") + ligne("") + ligne("Format : ---x---") +
             ligne("Vidéo Codec : ") + ligne("Audio Codec : ");
    return texte;
}

}  // namespace exportation
