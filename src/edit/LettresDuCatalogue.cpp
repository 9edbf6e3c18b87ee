#include "edit/LettresDuCatalogue.h"

#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "platform/dao/Comparaison.h"

#include <algorithm>
#include <tuple>

namespace edit {

LettresDuCatalogue LettresDuCatalogue::de(const Contexte& c) {
    LettresDuCatalogue lettres;
    dao::Recordset films = ouvreFilmsParTitre(c);
    const dao::Colonne titre = films.colonne("Titre"), realisateur = films.colonne("Realisateur");
    for (; !films.Eof(); films.MoveNext()) {  // the view of the one goes when the other is taken
        std::string leTitre(films.vue(titre));
        lettres.ajoute({std::move(leTitre), std::string(films.vue(realisateur))});
    }
    return lettres;
}

void LettresDuCatalogue::ajoute(const db::CleFilm& film) {
    const auto [place, nouveau] = m_rangs.try_emplace(film.realisateur, m_realisateurs.size());
    if (nouveau) {
        const LettresAbregees lettres = abrege(util::compteLettres(film.realisateur));
        m_parLettres[lettres.total].push_back(m_realisateurs.size());
        m_realisateurs.push_back({film.realisateur, lettres, {}});
    }
    m_realisateurs[place->second].titres.push_back({film.titre, abrege(util::compteLettres(film.titre)), m_titres++});
}

template <typename Recoit>
void LettresDuCatalogue::chercheProches(const db::CleFilm& film, Recoit recoit) const {
    const LettresAbregees duTitre = abrege(util::compteLettres(film.titre)),
                          duRealisateur = abrege(util::compteLettres(film.realisateur));
    const auto fin = m_parLettres.upper_bound(totalAuPlus(duRealisateur.total));
    for (auto autres = m_parLettres.begin(); autres != fin; ++autres) {
        if (totalAuPlus(autres->first) < duRealisateur.total) continue;
        for (const std::size_t rang : autres->second) {
            const Realisateur& autre = m_realisateurs[rang];
            if (!peutRessembler(duRealisateur, autre.lettres)) continue;
            const int score = util::similarite(film.realisateur, autre.nom);
            if (score <= kSeuilRessemblance) continue;
            for (const Titre& titre : autre.titres) {
                if (!peutRessembler(duTitre, titre.lettres)) continue;
                const int duLeur = util::similarite(film.titre, titre.texte);
                if (duLeur > kSeuilRessemblance && !recoit(autre, titre, duLeur, score)) return;
            }
        }
    }
}

bool LettresDuCatalogue::aUnProche(const db::CleFilm& film) const {
    bool trouve = false;
    chercheProches(film, [&trouve](const Realisateur&, const Titre&, int, int) {
        trouve = true;
        return false;
    });
    return trouve;
}

std::vector<FilmProche> LettresDuCatalogue::proches(const db::CleFilm& film) const {
    std::vector<FilmProche> trouves;
    chercheProches(film, [&trouves](const Realisateur& realisateur, const Titre& titre, int duTitre, int duNom) {
        trouves.push_back({{titre.texte, realisateur.nom}, duTitre, duNom});
        return true;
    });
    std::ranges::stable_sort(trouves, std::greater<>{}, [](const FilmProche& proche) {
        return std::tuple(proche.titre + proche.realisateur, proche.titre);
    });
    return trouves;
}

std::vector<db::CleFilm> LettresDuCatalogue::prochesParTitre(const db::CleFilm& film) const {
    struct Trouve {
        std::string cle;  // as the base orders it
        std::uint32_t rang;
        db::CleFilm film;
    };
    std::vector<Trouve> trouves;
    chercheProches(film, [&trouves](const Realisateur& realisateur, const Titre& titre, int, int) {
        std::string cle = dao::cleDeComparaison(titre.texte) + '\0' + dao::cleDeComparaison(realisateur.nom);
        trouves.push_back({std::move(cle), titre.rang, {titre.texte, realisateur.nom}});
        return true;
    });
    std::ranges::sort(trouves, {}, &Trouve::rang);
    std::ranges::stable_sort(trouves, {}, &Trouve::cle);
    std::vector<db::CleFilm> films;
    for (Trouve& trouve : trouves)
        films.push_back(std::move(trouve.film));
    return films;
}

}  // namespace edit
