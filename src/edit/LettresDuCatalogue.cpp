#include "edit/LettresDuCatalogue.h"

#include "edit/TitreDejaExistant_TestRessemblance.h"

#include <algorithm>
#include <utility>

namespace edit {

LettresDuCatalogue LettresDuCatalogue::de(db::Base& base, dialogues::Dialogues& dialogues) {
    LettresDuCatalogue lettres;
    dao::Recordset films = ouvreFilmsParTitre(base, dialogues);
    const dao::Colonne titre = films.colonne("Titre"), realisateur = films.colonne("Realisateur");
    for (; !films.Eof(); films.MoveNext()) {
        std::string duFilm(films.vue(realisateur));  // the view of the one goes when the other is taken
        lettres.ajoute(films.vue(titre), std::move(duFilm));
    }
    return lettres;
}

void LettresDuCatalogue::ajoute(std::string_view titre, std::string realisateur) {
    const util::CompteLettres lettres = util::compteLettres(realisateur);
    const auto [place, nouveau] = m_rangs.try_emplace(std::move(realisateur), m_realisateurs.size());
    if (nouveau) m_realisateurs.push_back({lettres, {}});
    m_realisateurs[place->second].titres.push_back(util::compteLettres(titre));
}

bool LettresDuCatalogue::aUnProche(std::string_view titre, std::string_view realisateur) const {
    const util::CompteLettres duTitre = util::compteLettres(titre), duRealisateur = util::compteLettres(realisateur);
    return std::any_of(m_realisateurs.begin(), m_realisateurs.end(), [&](const Realisateur& autre) {
        return ressemble(duRealisateur, autre.lettres) &&
               std::any_of(autre.titres.begin(), autre.titres.end(),
                           [&](const util::CompteLettres& autreTitre) { return ressemble(duTitre, autreTitre); });
    });
}

}  // namespace edit
