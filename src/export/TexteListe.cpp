#include "export/TexteListe.h"

#include "util/Nombres.h"
#include "util/Texte.h"

#include <string_view>

namespace exportation {

namespace {

constexpr const char* kFin = "\r\n";
constexpr char kTabulation = '\t';
// What ends a line or a column for one reader of the file or another; CR LF first, which is one end.
constexpr std::string_view kCoupures[] = {"\r\n", "\r", "\n", "\t", "\v", "\f", "\u0085", "\u2028", "\u2029"};

std::string enUneColonne(std::string texte) {
    for (const std::string_view coupure : kCoupures)
        if (texte.find(coupure) != std::string::npos) texte = util::remplace(texte, coupure, " ");
    return texte;
}

}  // namespace

void TexteListe::ajoute(const FilmDeLaListe& film) {
    if (m_parGenre && film.genre != m_genre) {
        m_genre = film.genre;
        m_numero = 0;
        m_lignes.append(kFin).append(" Genre : ").append(enUneColonne(m_genre)).append(kFin);
    }
    ++m_nombre;
    m_lignes.append(" ").append(std::to_string(++m_numero)).append(". ") += kTabulation;
    const auto colonne = [this](const std::string& texte) { m_lignes.append(enUneColonne(texte)) += kTabulation; };
    colonne(film.titre);
    colonne(film.realisateur);
    if (!m_parGenre) colonne(film.genre);
    colonne(film.annee);
    colonne(film.rangement);
    colonne(film.divers);
    m_lignes.append(enUneColonne(film.support)).append(kFin);
}

std::string TexteListe::texte() const {
    return "Il y a " + util::phraseCompte(m_nombre, "# titre personnel", "# titres personnels") + kFin + kFin +
           m_lignes;
}

}  // namespace exportation
