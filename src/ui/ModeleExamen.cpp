#include "ui/ModeleExamen.h"

#include "ui/DelegueLignes.h"

namespace ui {

namespace {

bool peutEtreCochee(const edit::FilmExamine& film) {
    return edit::peutEtreAjoute(film) || edit::peutEtreComplete(film);
}

}  // namespace

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
        if (peutEtreCochee(film(rang))) m_cochees[static_cast<std::size_t>(rang)] = cochee;
    if (!rangs.empty()) emit dataChanged(index(0, Film), index(nombre() - 1, Film), {Qt::CheckStateRole});
}

void ModeleExamen::completees(const std::vector<std::size_t>& rangs) {
    for (const std::size_t rang : rangs) {
        m_films[rang].aCompleter.clear();
        m_films[rang].affiche = edit::SortDeLAffiche::SansObjet;
        m_cochees[rang] = false;
    }
    if (!rangs.empty()) emit dataChanged(index(0, 0), index(nombre() - 1, columnCount() - 1));
}

Qt::ItemFlags ModeleExamen::flags(const QModelIndex& index) const {
    const Qt::ItemFlags base = ModeleDeLignes::flags(index);
    return index.isValid() && index.column() == Film && peutEtreCochee(film(index.row()))
               ? base | Qt::ItemIsUserCheckable
               : base;
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

QVariant ModeleExamen::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const edit::FilmExamine& celui = film(index.row());
    const int colonne = index.column();
    if (role == Qt::DisplayRole) return texte(celui, colonne);
    if (role == kOrdre) return ordre(celui, colonne);
    if (role == Qt::AccessibleTextRole) return colonne == Film ? ligneEntiere(celui) : texte(celui, colonne);
    if (role == Qt::CheckStateRole && colonne == Film && peutEtreCochee(celui))
        return estCochee(index.row()) ? Qt::Checked : Qt::Unchecked;
    if (role == kLigneForte) return colonne == Film && edit::peutEtreAjoute(celui);
    if (role == kLigneDiscrete) return colonne != Film && colonne != Sort;
    return {};
}

bool ModeleExamen::setData(const QModelIndex& index, const QVariant& valeur, int role) {
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable)) return false;
    coche({index.row()}, valeur.toInt() == Qt::Checked);
    return true;
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
