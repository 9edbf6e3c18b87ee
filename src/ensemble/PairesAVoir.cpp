#include "ensemble/PairesAVoir.h"

#include "db/Requete.h"

#include <unordered_map>
#include <utility>

namespace ensemble {

namespace {

using Presents = std::unordered_map<std::string, int>;

std::string texteDe(const db::CleFilm& film) {
    return film.titre + '\0' + film.realisateur;
}

std::string texteDe(const Paire& paire) {
    return texteDe(paire.gauche) + '\0' + texteDe(paire.droite);
}

// Of the films of these pairs, by the very texts: what was renamed is another film for a pair.
Presents filmsPresents(const Contexte& c, const std::vector<Paire>& paires) {
    Presents presents;
    for (const Paire& paire : paires)
        for (const db::CleFilm& film : {paire.gauche, paire.droite})
            presents.try_emplace(texteDe(film));
    dao::Recordset films = db::ouvreRequete(c, "SELECT Titre, Realisateur FROM films", db::NumeroErreur::Ressemblances);
    const dao::Colonne titre = films.colonne("Titre"), realisateur = films.colonne("Realisateur");
    const dao::Souffle souffle = db::souffle(c);
    dao::Cadence cadence(souffle);
    std::string cle;
    for (; !films.Eof(); films.MoveNext()) {
        cadence();
        cle.assign(films.vue(titre)).append(1, '\0').append(films.vue(realisateur));
        if (const auto present = presents.find(cle); present != presents.end()) ++present->second;
    }
    return presents;
}

bool estEntiere(const Paire& paire, const Presents& presents) {
    const auto combien = [&](const db::CleFilm& film) {
        const auto place = presents.find(texteDe(film));
        return place == presents.end() ? 0 : place->second;
    };
    return paire.gauche == paire.droite ? combien(paire.gauche) > 1
                                        : combien(paire.gauche) > 0 && combien(paire.droite) > 0;
}

}  // namespace

void PairesAVoir::met(const Contexte& c, Ressemblances trouvees) {
    m_trouvees = std::move(trouvees);
    actualise(c);
}

void PairesAVoir::oublie() {
    *this = {};
}

bool PairesAVoir::actualise(const Contexte& c) {
    std::vector<std::size_t> rangs;
    if (!m_trouvees.paires.empty()) {
        const Presents presents = filmsPresents(c, m_trouvees.paires);
        for (std::size_t i = 0; i < m_trouvees.paires.size(); ++i)
            if (const Paire& paire = m_trouvees.paires[i];
                estEntiere(paire, presents) && !m_laissees.contains(texteDe(paire)))
                rangs.push_back(i);
    }
    return std::exchange(m_rangs, std::move(rangs)) != m_rangs;
}

void PairesAVoir::laisse(std::size_t rang) {
    m_laissees.insert(texteDe(paire(rang)));
    m_rangs.erase(m_rangs.begin() + static_cast<std::ptrdiff_t>(rang));
}

std::string PairesAVoir::texte() const {
    std::string texte = bilan(m_trouvees);
    const std::size_t toutes = m_trouvees.paires.size();
    if (toutes > 0 && m_rangs.empty()) return texte + " Toutes ont été vues.";
    if (m_rangs.size() < toutes) texte += " Il en reste " + std::to_string(m_rangs.size()) + " à voir.";
    return texte;
}

}  // namespace ensemble
