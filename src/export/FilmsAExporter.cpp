#include "export/FilmsAExporter.h"

#include "db/Affiches.h"
#include "db/DossierImages.h"
#include "db/EnonceFilm.h"
#include "platform/dao/LigneSupprimee.h"
#include "platform/fichiers/Fichiers.h"

#include <algorithm>
#include <utility>

namespace exportation {

namespace {

constexpr const char* kOui = "oui";

constexpr std::size_t rang(Champ champ) {
    return static_cast<std::size_t>(champ);
}

bool memeFiche(const FilmExporte& a, const FilmExporte& b) {
    return a.groupe == b.groupe && a.fiche == b.fiche;
}

}  // namespace

std::string FilmExporte::valeursDePossession(Champ champ) const {
    std::vector<std::string_view> valeurs;
    std::string texte;
    for (const PossessionExportee& possession : possessions) {
        const std::string& valeur = possession[rang(champ) - kChampsDuFilm];
        if (valeur.empty() || std::find(valeurs.begin(), valeurs.end(), valeur) != valeurs.end()) continue;
        texte += (valeurs.empty() ? "" : ", ") + valeur;
        valeurs.emplace_back(valeur);
    }
    return texte;
}

LecteurDesFilms::LecteurDesFilms(const db::Contexte& c, dao::Recordset& liste, const FilmsAExporter& films,
                                 bool avecAffiche)
    : m_c(c),
      m_liste(liste),
      m_films(films),
      m_avecAffiche(avecAffiche),
      m_jointe(liste.colonne("Titre2").rang >= 0),
      m_dossierImages(db::dossierImages(c)),
      m_avant(liste.AbsolutePosition()) {
    for (std::size_t i = 0; i < kNombreDeChamps; ++i)
        m_colonnes[i] = liste.colonne(kChamps[i].colonne);
}

LecteurDesFilms::~LecteurDesFilms() {
    try {
        if (!m_liste.estOuvert() || m_avant < 0) return;
        m_liste.MoveFirst();
        m_liste.Move(m_avant);
    } catch (const dao::ErreurDao&) {  // the next to read the listing says so
    }
}

void LecteurDesFilms::recommence() {
    m_suivante = 0;
    m_enAttente.reset();
}

PossessionExportee LecteurDesFilms::litPossession(const dao::Recordset& possession) const {
    PossessionExportee valeurs;
    valeurs[0] = kOui;
    for (std::size_t i = 1; i < kChampsDePossession; ++i)
        valeurs[i] = possession.texte(kChamps[kChampsDuFilm + i].colonne);
    return valeurs;
}

void LecteurDesFilms::ajouteLesPossessions(FilmExporte& film) const {
    dao::Recordset possessions =
        m_c.base.base.OpenRecordset(db::enoncePossession({film.valeur(Champ::Titre), film.valeur(Champ::Realisateur)}));
    for (; !possessions.Eof(); possessions.MoveNext())
        static_cast<void>(dao::siPresente([&] { film.possessions.push_back(litPossession(possessions)); }));
}

std::optional<FilmExporte> LecteurDesFilms::litLigne() {
    const FilmsAExporter::Ligne& ligne = m_films.lignes[m_suivante++];
    m_liste.MoveFirst();  // whoever else looks at the listing between two films
    m_liste.Move(static_cast<long>(ligne.position) - 1);
    FilmExporte film;
    film.groupe = ligne.groupe;
    const bool presente = dao::siPresente([&] {
        for (std::size_t i = 0; i < kChampsDuFilm; ++i)
            if (i != rang(Champ::Affiche)) film.fiche[i] = m_liste.vue(m_colonnes[i]);
        if (m_avecAffiche) film.affiche = m_liste.vue(m_colonnes[rang(Champ::Affiche)]);
        film.fiche[rang(Champ::Affiche)] = db::nomDansLeDossier(film.affiche);
        if (!m_jointe || m_liste.valeur("Titre2").estNull()) return;
        PossessionExportee& sienne = film.possessions.emplace_back();
        sienne[0] = kOui;
        for (std::size_t i = 1; i < kChampsDePossession; ++i)
            sienne[i] = m_liste.vue(m_colonnes[kChampsDuFilm + i]);
    });
    if (!presente) return std::nullopt;
    if (!m_jointe) ajouteLesPossessions(film);
    return film;
}

std::optional<FilmExporte> LecteurDesFilms::lit() {
    std::optional<FilmExporte> film = std::exchange(m_enAttente, std::nullopt);
    while (m_suivante < m_films.lignes.size()) {
        std::optional<FilmExporte> ligne = litLigne();
        if (!ligne) continue;
        if (!film) {
            film = std::move(ligne);
            if (!m_jointe) return film;
        } else if (memeFiche(*film, *ligne)) {
            std::move(ligne->possessions.begin(), ligne->possessions.end(), std::back_inserter(film->possessions));
        } else {
            m_enAttente = std::move(ligne);
            return film;
        }
    }
    return film;
}

std::optional<std::string> LecteurDesFilms::affiche(const FilmExporte& film) const {
    if (db::estDansLaBase(film.affiche)) return film.affiche.substr(db::kTaillePrefixe);
    if (db::nomDansLeDossier(film.affiche).empty()) return std::nullopt;
    if (auto octets = db::litAffiche(m_dossierImages, film.affiche)) return octets;
    const auto voisine = db::afficheVoisine(m_c.chemins.base, film.affiche);
    return voisine ? fichiers::litSansLien(voisine->chemin, db::kTailleMaxImage) : std::nullopt;
}

}  // namespace exportation
