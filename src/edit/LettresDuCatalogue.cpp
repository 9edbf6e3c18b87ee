#include "edit/LettresDuCatalogue.h"

#include "edit/TitreDejaExistant_TestRessemblance.h"

#include <algorithm>

namespace edit {

LettresDuCatalogue LettresDuCatalogue::de(db::Base& base, dialogues::Dialogues& dialogues) {
    LettresDuCatalogue lettres;
    dao::Recordset films = ouvreFilmsParTitre(base, dialogues);
    const dao::Colonne colonneTitre = films.colonne("Titre"), colonneRealisateur = films.colonne("Realisateur");
    lettres.m_films.reserve(static_cast<std::size_t>(films.RecordCount()));
    for (; !films.Eof(); films.MoveNext()) {
        const std::uint32_t rang = lettres.rangDe(films.vue(colonneRealisateur));
        lettres.m_films.push_back({rang, util::compteLettres(films.vue(colonneTitre))});
    }
    return lettres;
}

void LettresDuCatalogue::ajoute(std::string_view titre, std::string_view realisateur) {
    m_films.push_back({rangDe(realisateur), util::compteLettres(titre)});
}

bool LettresDuCatalogue::aUnProche(std::string_view titre, std::string_view realisateur) const {
    const util::CompteLettres lettresTitre = util::compteLettres(titre);
    const util::CompteLettres lettresRealisateur = util::compteLettres(realisateur);
    std::vector<bool> proches(m_realisateurs.size());
    std::transform(m_realisateurs.begin(), m_realisateurs.end(), proches.begin(),
                   [&](const util::CompteLettres& autre) {
                       return util::similarite(lettresRealisateur, autre) > kSeuilRessemblance;
                   });
    return std::any_of(m_films.begin(), m_films.end(), [&](const Film& film) {
        return proches[film.realisateur] && util::similarite(lettresTitre, film.titre) > kSeuilRessemblance;
    });
}

std::uint32_t LettresDuCatalogue::rangDe(std::string_view realisateur) {
    const auto nouveau = static_cast<std::uint32_t>(m_realisateurs.size());
    const auto [place, ajoute] = m_rangs.try_emplace(std::string(realisateur), nouveau);
    if (ajoute) m_realisateurs.push_back(util::compteLettres(realisateur));
    return place->second;
}

}  // namespace edit
