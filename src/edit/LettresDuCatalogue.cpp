#include "edit/LettresDuCatalogue.h"

#include "edit/TitreDejaExistant_TestRessemblance.h"

#include <algorithm>

namespace edit {

LettresDuCatalogue LettresDuCatalogue::de(const Contexte& c) {
    LettresDuCatalogue lettres;
    dao::Recordset films = ouvreFilmsParTitre(c);
    const dao::Colonne titre = films.colonne("Titre"), realisateur = films.colonne("Realisateur");
    for (; !films.Eof(); films.MoveNext())  // the view of the one goes when the other is taken
        lettres.ajoute({std::string(films.vue(titre)), std::string(films.vue(realisateur))});
    return lettres;
}

void LettresDuCatalogue::ajoute(const db::CleFilm& film) {
    const auto [place, nouveau] = m_rangs.try_emplace(film.realisateur, m_realisateurs.size());
    if (nouveau) m_realisateurs.push_back({util::compteLettres(film.realisateur), {}});
    m_realisateurs[place->second].titres.push_back(util::compteLettres(film.titre));
}

bool LettresDuCatalogue::aUnProche(const db::CleFilm& film) const {
    const util::CompteLettres duTitre = util::compteLettres(film.titre),
                              duRealisateur = util::compteLettres(film.realisateur);
    return std::any_of(m_realisateurs.begin(), m_realisateurs.end(), [&](const Realisateur& autre) {
        return ressemble(duRealisateur, autre.lettres) &&
               std::any_of(autre.titres.begin(), autre.titres.end(),
                           [&](const util::CompteLettres& autreTitre) { return ressemble(duTitre, autreTitre); });
    });
}

}  // namespace edit
