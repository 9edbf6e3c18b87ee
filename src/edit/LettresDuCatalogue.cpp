#include "edit/LettresDuCatalogue.h"

#include "db/Requete.h"
#include "edit/LettresAbregees.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "platform/dao/Comparaison.h"

#include <algorithm>
#include <limits>
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
    return lettres;
}

void LettresDuCatalogue::ajoute(const db::CleFilm& film) {
    ajoute(kDuLot, film.titre, film.realisateur);
}

void LettresDuCatalogue::ajoute(long long ligne, std::string_view titre, std::string_view realisateur) {
    const auto rang = static_cast<std::uint32_t>(m_titres.size());
    const std::uint32_t sien = rangDu(realisateur);
    m_titres.push_back({ligne, m_textes.size(), static_cast<std::uint32_t>(titre.size()), sien});
    m_textes += titre;
    ajoute(sien, rang, util::empreinteLettres(titre));
}

std::uint32_t LettresDuCatalogue::rangDu(std::string_view realisateur) {
    const std::uint32_t rang = m_realisateurs.rang(realisateur);
    if (rang < m_derniers.size()) return rang;
    m_derniers.push_back(kAucun);
    const util::EmpreinteLettres lettres = util::empreinteLettres(realisateur);
    DeMemeTotal& pareils = m_parLettres[lettres.total];
    pareils.genres.push_back(lettres.genres);
    pareils.rangs.push_back(rang);
    return rang;
}

void LettresDuCatalogue::ajoute(std::uint32_t realisateur, std::uint32_t titre, const util::EmpreinteLettres& lettres) {
    std::uint32_t& dernier = m_derniers[realisateur];
    if (dernier == kAucun || m_parRealisateur[dernier].nombre == Titres::kAuPlus) {
        const auto nouveau = static_cast<std::uint32_t>(m_parRealisateur.size());
        m_parRealisateur.emplace_back().precedents = std::exchange(dernier, nouveau);
    }
    Titres& titres = m_parRealisateur[dernier];
    titres.empreintes[titres.nombre] = lettres;
    titres.rangs[titres.nombre++] = titre;
}

// The titles of the directors that may resemble lie anywhere in the memory: it is asked for all of them before the first
// is looked at.
std::vector<std::uint32_t> LettresDuCatalogue::titresPossibles(const util::EmpreinteLettres& titre,
                                                               const util::EmpreinteLettres& realisateur) const {
    std::vector<std::uint32_t> places, blocs, rangs;
    for (const auto& [total, pareils] : m_parLettres) {
        if (totalAuPlus(total) < realisateur.total) continue;
        if (totalAuPlus(realisateur.total) < total) break;
        places.clear();
        retientPossibles(pareils.genres, total, realisateur, places);
        for (const std::uint32_t place : places) {
            blocs.push_back(m_derniers[pareils.rangs[place]]);
            __builtin_prefetch(&m_parRealisateur[blocs.back()]);
        }
    }
    for (std::uint32_t bloc : blocs) {
        for (; bloc != kAucun; bloc = m_parRealisateur[bloc].precedents) {
            const Titres& titres = m_parRealisateur[bloc];
            for (std::uint32_t i = 0; i < titres.nombre; ++i)
                if (peutRessembler(titre, titres.empreintes[i])) rangs.push_back(titres.rangs[i]);
        }
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
        const int leNom = util::similarite(duRealisateur, util::compteLettres(m_realisateurs.nom(titre.realisateur)));
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
        FilmProche proche{
            {std::string(texte(titre)), std::string(m_realisateurs.nom(titre.realisateur))}, duTitre, duNom};
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
