#include "edit/LettresDuCatalogue.h"

#include "db/Requete.h"
#include "edit/LettresAbregees.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "platform/dao/Comparaison.h"

#include <algorithm>
#include <limits>
#include <span>
#include <tuple>
#include <utility>

namespace edit {

namespace {

constexpr std::uint32_t kAucun = std::numeric_limits<std::uint32_t>::max();
constexpr long long kDuLot = std::numeric_limits<long long>::max();

}  // namespace

// No listing: what resembles is put in its order once it is found.
LettresDuCatalogue LettresDuCatalogue::de(const Contexte& c) {
    static constexpr std::array<std::string_view, 2> kColonnes{"Titre", "Realisateur"};
    LettresDuCatalogue lettres;
    db::parcourtTable(c, "Films", kColonnes, db::NumeroErreur::TestRessemblance,
                      [&lettres](long long ligne, std::span<const std::string_view> textes) {
                          lettres.ajoute(ligne, textes[0], textes[1]);
                      });
    lettres.range();
    return lettres;
}

void LettresDuCatalogue::ajoute(const db::CleFilm& film) {
    const std::uint32_t sien = ajoute(kDuLot, film.titre, film.realisateur);
    m_titres.back().precedent = m_realisateurs[sien].dernier;
    m_realisateurs[sien].dernier = static_cast<std::uint32_t>(m_titres.size()) - 1;
}

std::uint32_t LettresDuCatalogue::ajoute(long long ligne, std::string_view titre, std::string_view realisateur) {
    const std::uint32_t sien = rangDu(realisateur);
    m_titres.push_back({ligne, m_textes.size(), static_cast<std::uint32_t>(titre.size()), sien, kAucun});
    m_textes += titre;
    return sien;
}

std::uint32_t LettresDuCatalogue::rangDu(std::string_view realisateur) {
    const std::uint32_t rang = m_noms.rang(realisateur);
    if (rang < m_realisateurs.size()) return rang;
    m_realisateurs.push_back({0, 0, kAucun});
    const util::EmpreinteLettres lettres = util::empreinteLettres(realisateur);
    DeMemeTotal& pareils = m_parLettres[lettres.total];
    pareils.genres.push_back(lettres.genres);
    pareils.rangs.push_back(rang);
    return rang;
}

void LettresDuCatalogue::range() {
    for (const Titre& titre : m_titres)
        ++m_realisateurs[titre.realisateur].nombre;
    std::uint32_t fin = 0;
    for (Realisateur& sien : m_realisateurs) {
        sien.debut = fin;
        fin += std::exchange(sien.nombre, 0);
    }
    m_ranges.resize(fin);
    for (std::uint32_t i = 0; i < fin; ++i) {
        Realisateur& sien = m_realisateurs[m_titres[i].realisateur];
        const util::EmpreinteLettres lettres = util::empreinteLettres(texte(m_titres[i]));
        m_ranges[sien.debut + sien.nombre++] = {lettres.genres, lettres.total, i};
    }
}

std::vector<std::uint32_t> LettresDuCatalogue::realisateursPossibles(const util::EmpreinteLettres& realisateur) const {
    std::vector<std::uint32_t> places, rangs;
    for (const auto& [total, pareils] : m_parLettres) {
        if (totalAuPlus(total) < realisateur.total) continue;
        if (totalAuPlus(realisateur.total) < total) break;
        places.clear();
        retientPossibles(pareils.genres, total, realisateur, places);
        for (const std::uint32_t place : places)
            rangs.push_back(pareils.rangs[place]);
    }
    return rangs;
}

// The titles of those directors lie anywhere in the memory: it is asked for all of them before the first is looked at.
std::vector<std::uint32_t> LettresDuCatalogue::titresPossibles(const util::EmpreinteLettres& titre,
                                                               const util::EmpreinteLettres& realisateur) const {
    const std::vector<std::uint32_t> realisateurs = realisateursPossibles(realisateur);
    for (const std::uint32_t rang : realisateurs)
        __builtin_prefetch(m_ranges.data() + m_realisateurs[rang].debut);
    std::vector<std::uint32_t> rangs;
    for (const std::uint32_t rang : realisateurs) {
        const Realisateur& sien = m_realisateurs[rang];
        for (const Range& range : std::span(m_ranges).subspan(sien.debut, sien.nombre))
            if (peutRessembler(titre, {range.genres, range.total})) rangs.push_back(range.titre);
        for (std::uint32_t autre = sien.dernier; autre != kAucun; autre = m_titres[autre].precedent)
            if (peutRessembler(titre, util::empreinteLettres(texte(m_titres[autre])))) rangs.push_back(autre);
    }
    return rangs;
}

template <typename Recoit>
void LettresDuCatalogue::chercheProches(const db::CleFilm& film, Recoit recoit) const {
    const util::CompteLettres duTitre = util::compteLettres(film.titre),
                              duRealisateur = util::compteLettres(film.realisateur);
    for (const std::uint32_t possible :
         titresPossibles(util::empreinteLettres(film.titre), util::empreinteLettres(film.realisateur))) {
        const Titre& titre = m_titres[possible];
        const int leTitre = util::similarite(duTitre, util::compteLettres(texte(titre)));
        if (leTitre <= kSeuilRessemblance) continue;
        const int leNom = util::similarite(duRealisateur, util::compteLettres(m_noms.nom(titre.realisateur)));
        if (leNom > kSeuilRessemblance && !recoit(titre, leTitre, leNom)) return;
    }
}

bool LettresDuCatalogue::aUnProche(const db::CleFilm& film) const {
    bool trouve = false;
    chercheProches(film, [&trouve](const Titre&, int, int) {
        trouve = true;
        return false;
    });
    return trouve;
}

// By title, then by director, then as the rows stand in the base; those of the batch as they came.
std::vector<LettresDuCatalogue::Trouve> LettresDuCatalogue::trouves(const db::CleFilm& film) const {
    std::vector<Trouve> trouves;
    chercheProches(film, [&](const Titre& titre, int duTitre, int duNom) {
        FilmProche proche{{std::string(texte(titre)), std::string(m_noms.nom(titre.realisateur))}, duTitre, duNom};
        std::string cle =
            dao::cleDeComparaison(proche.film.titre) + '\0' + dao::cleDeComparaison(proche.film.realisateur);
        trouves.push_back({std::move(cle), &titre, std::move(proche)});
        return true;
    });
    std::ranges::sort(trouves, {}, [](const Trouve& trouve) {
        return std::tuple(std::string_view(trouve.cle), trouve.titre->ligne, trouve.titre);
    });
    return trouves;
}

std::vector<FilmProche> LettresDuCatalogue::proches(const db::CleFilm& film) const {
    std::vector<FilmProche> proches;
    for (Trouve& trouve : trouves(film))
        proches.push_back(std::move(trouve.film));
    std::ranges::stable_sort(proches, std::greater<>{}, [](const FilmProche& proche) {
        return std::tuple(proche.titre + proche.realisateur, proche.titre);
    });
    return proches;
}

std::vector<db::CleFilm> LettresDuCatalogue::prochesParTitre(const db::CleFilm& film) const {
    std::vector<db::CleFilm> films;
    for (Trouve& trouve : trouves(film))
        films.push_back(std::move(trouve.film.film));
    return films;
}

}  // namespace edit
