#include "ui/ModeleExamen.h"

namespace ui {

ModeleExamen::ModeleExamen(std::vector<edit::FilmExamine> films, const QString& provenance)
    : ModeleDeLignes({tr("Film"), tr("Réalisateur"), tr("Année"), tr("À l'import"), tr("Affiche"), provenance}),
      m_films(std::move(films)) {
    for (const edit::FilmExamine& film : m_films)
        m_cochees.push_back(film.sort == edit::SortDuFilm::Nouveau || edit::peutEtreComplete(film));
}

std::vector<std::size_t> ModeleExamen::cochees(bool (*convient)(const edit::FilmExamine&)) const {
    std::vector<std::size_t> rangs;
    for (std::size_t i = 0; i < m_films.size(); ++i)
        if (m_cochees[i] && convient(m_films[i])) rangs.push_back(i);
    return rangs;
}

void ModeleExamen::coche(const std::vector<int>& rangs, bool cochee) {
    for (const int rang : rangs)
        if (peutEtreCochee(rang)) m_cochees[static_cast<std::size_t>(rang)] = cochee;
    if (!rangs.empty()) cochesChangent();
}

void ModeleExamen::completees(const std::vector<std::size_t>& rangs) {
    for (const std::size_t rang : rangs) {
        m_films[rang].aCompleter.clear();
        m_films[rang].affiche = edit::SortDeLAffiche::SansObjet;
        m_cochees[rang] = false;
    }
    if (!rangs.empty()) toutChange();
}

bool ModeleExamen::peutEtreCochee(int rang) const {
    return edit::peutEtreAjoute(film(rang)) || edit::peutEtreComplete(film(rang));
}

QString ModeleExamen::texte(const edit::FilmExamine& film, int colonne) const {
    switch (colonne) {
        case Film:
            return texteDeLigne(film.sort == edit::SortDuFilm::Illisible ? film.provenance : film.film.titre);
        case Realisateur:
            return texteDeLigne(film.film.realisateur);
        case Annee:
            return texteDeLigne(film.film.annee);
        case Sort:
            return texteDeLigne(edit::texteDuSort(film) + (film.remarque.empty() ? "" : " ; " + film.remarque));
        case Affiche:
            return texteDeLigne(edit::texteDeLAffiche(film.affiche));
        default:
            return texteDeLigne(film.provenance);
    }
}

// What is new comes first, then what resembles, the closest before.
QVariant ModeleExamen::ordre(const edit::FilmExamine& film, int colonne) const {
    if (colonne != Sort) return texte(film, colonne);
    switch (film.sort) {
        case edit::SortDuFilm::Nouveau:
            return 0;
        case edit::SortDuFilm::Ressemblant:
            return 200 - (film.proche ? edit::pourCent(*film.proche) : 0);
        case edit::SortDuFilm::DejaLa:
            return film.aCompleter.empty() ? 400 : 300;
        default:
            return 500;
    }
}

// For who hears the list: the row is told as one sentence.
QString ModeleExamen::ligneEntiere(const edit::FilmExamine& film) const {
    QStringList parties;
    for (const int colonne : {Film, Realisateur, Annee, Sort})
        if (const QString partie = texte(film, colonne); !partie.isEmpty()) parties << partie;
    if (const QString affiche = texte(film, Affiche); !affiche.isEmpty()) parties << tr("affiche %1").arg(affiche);
    return parties.join(QStringLiteral(", "));
}

Cellule ModeleExamen::cellule(int rang, int colonne) const {
    const edit::FilmExamine& celui = film(rang);
    Cellule resultat{.texte = texte(celui, colonne),
                     .forte = colonne == Film && edit::peutEtreAjoute(celui),
                     .discrete = colonne != Film && colonne != Sort};
    if (colonne != Film) return resultat;
    resultat.entendue = ligneEntiere(celui);
    if (peutEtreCochee(rang)) resultat.cochee = estCochee(rang);
    return resultat;
}

QVariant ModeleExamen::autreDonnee(const QModelIndex& index, int role) const {
    return role == kOrdre ? ordre(film(index.row()), index.column()) : QVariant();
}

ExamenTrie::ExamenTrie(ModeleExamen* modele, QObject* parent) : QSortFilterProxyModel(parent), m_modele(*modele) {
    modele->setParent(this);
    setSourceModel(modele);
    setSortRole(ModeleExamen::kOrdre);
    setSortLocaleAware(true);
}

void ExamenTrie::montreLeGenre(edit::GenreDExamen genre) {
    m_genre = genre;
    invalidateFilter();
}

bool ExamenTrie::filterAcceptsRow(int rang, const QModelIndex&) const {
    return edit::estDuGenre(m_modele.film(rang), m_genre);
}

}  // namespace ui
