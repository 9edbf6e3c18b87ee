#include "export/TexteListe.h"

#include "util/Nombres.h"

namespace exportation {

namespace {

constexpr const char* kFin = "\r\n";
constexpr char kTabulation = '\t';

}  // namespace

void TexteListe::ajoute(const FilmDeLaListe& film) {
    if (m_parGenre && film.genre != m_genre) {
        m_genre = film.genre;
        m_numero = 0;
        m_lignes.append(kFin).append(" Genre : ").append(m_genre).append(kFin);
    }
    ++m_nombre;
    m_lignes.append(" ").append(std::to_string(++m_numero)).append(". ") += kTabulation;
    const auto colonne = [this](const std::string& texte) { m_lignes.append(texte) += kTabulation; };
    colonne(film.titre);
    colonne(film.realisateur);
    if (!m_parGenre) colonne(film.genre);
    colonne(film.annee);
    colonne(film.rangement);
    colonne(film.divers);
    m_lignes.append(film.support).append(kFin);
}

std::string TexteListe::texte() const {
    return "Il y a " + util::phraseCompte(m_nombre, "# titre personnel", "# titres personnels") + kFin + kFin +
           m_lignes;
}

}  // namespace exportation
