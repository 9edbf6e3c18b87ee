#include "export/TexteListe.h"

#include "util/Nombres.h"

namespace exportation {

namespace {

constexpr const char* kFin = "\r\n";
constexpr char kTabulation = '\t';

}  // namespace

void TexteListe::ajoute(const TitrePossede& titre) {
    if (m_parGenre && titre.Genre != m_genre) {
        m_genre = titre.Genre;
        m_numero = 0;
        m_lignes.append(kFin).append(" Genre : ").append(m_genre).append(kFin);
    }
    ++m_nombre;
    m_lignes.append(" ").append(std::to_string(++m_numero)).append(". ") += kTabulation;
    const auto colonne = [this](const std::string& texte) { m_lignes.append(texte) += kTabulation; };
    colonne(titre.Titre);
    colonne(titre.Realisateur);
    if (!m_parGenre) colonne(titre.Genre);
    colonne(titre.Annee);
    colonne(titre.Rangement);
    colonne(titre.Divers);
    m_lignes.append(titre.Support).append(kFin);
}

std::string TexteListe::texte() const {
    return "Il y a " + util::phraseCompte(m_nombre, "# titre personnel", "# titres personnels") + kFin + kFin +
           m_lignes;
}

}  // namespace exportation
