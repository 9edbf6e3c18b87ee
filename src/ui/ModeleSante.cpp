#include "ui/ModeleSante.h"

#include <algorithm>
#include <iterator>

namespace ui {

namespace {

// What an index carries: 0 for a kind's row, else one more than the kind that the line stands under.
quintptr marque(int genre) {
    return static_cast<quintptr>(genre) + 1;
}

}  // namespace

void ModeleSante::met(ensemble::Examen examen) {
    beginResetModel();
    m_examen = std::move(examen);
    endResetModel();
}

void ModeleSante::met(ensemble::Constat constat) {
    const auto place = std::ranges::find(m_examen.constats, constat.mal, &ensemble::Constat::mal);
    if (place == m_examen.constats.end()) return;
    const QModelIndex genre = index(static_cast<int>(place - m_examen.constats.begin()), 0);
    if (const int lignes = rowCount(genre); lignes > 0) {
        beginRemoveRows(genre, 0, lignes - 1);
        place->lignes.clear();
        endRemoveRows();
    }
    const int lignes = static_cast<int>(std::ssize(constat.lignes));
    if (lignes > 0) beginInsertRows(genre, 0, lignes - 1);
    *place = std::move(constat);
    if (lignes > 0) endInsertRows();
    emit dataChanged(genre, genre.siblingAtColumn(kColonnes - 1));
}

const ensemble::Constat* ModeleSante::constat(const QModelIndex& index) const {
    if (!index.isValid()) return nullptr;
    const auto genre = index.internalId() == 0 ? static_cast<std::size_t>(index.row()) : index.internalId() - 1;
    return genre < m_examen.constats.size() ? &m_examen.constats[genre] : nullptr;
}

const ensemble::LigneDeSante* ModeleSante::ligne(const QModelIndex& index) const {
    const ensemble::Constat* sien = constat(index);
    const auto rang = static_cast<std::size_t>(index.row());
    return sien && index.internalId() != 0 && rang < sien->lignes.size() ? &sien->lignes[rang] : nullptr;
}

QModelIndex ModeleSante::index(int rang, int colonne, const QModelIndex& parent) const {
    if (!hasIndex(rang, colonne, parent)) return {};
    return createIndex(rang, colonne, parent.isValid() ? marque(parent.row()) : 0);
}

QModelIndex ModeleSante::parent(const QModelIndex& index) const {
    if (!index.isValid() || index.internalId() == 0) return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr{0});
}

int ModeleSante::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) return static_cast<int>(m_examen.constats.size());
    if (parent.internalId() != 0 || parent.column() != 0) return 0;
    return static_cast<int>(m_examen.constats[static_cast<std::size_t>(parent.row())].lignes.size());
}

Qt::ItemFlags ModeleSante::flags(const QModelIndex& index) const {
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.isValid() && index.internalId() != 0 ? base | Qt::ItemNeverHasChildren : base;
}

Cellule ModeleSante::cellule(const ensemble::Constat& constat, int colonne) {
    const bool vide = constat.lignes.empty();
    return {.texte = colonne == Titre ? QString::fromStdString(constat.texte()) : QString(),
            .forte = !vide,
            .discrete = vide};
}

Cellule ModeleSante::cellule(const ensemble::LigneDeSante& ligne, int colonne) {
    const std::string* textes[] = {&ligne.film.titre, &ligne.film.realisateur, &ligne.detail};
    const bool sansFilm = colonne == Titre && ligne.film.titre.empty() && !ligne.aUneFiche;
    return {.texte = sansFilm ? tr("(sans film)") : texteDeLigne(*textes[colonne]),
            .discrete = colonne != Titre || !ligne.aUneFiche};
}

QVariant ModeleSante::data(const QModelIndex& index, int role) const {
    const ensemble::Constat* sien = constat(index);
    if (!sien) return {};
    const ensemble::LigneDeSante* celle = ligne(index);
    return donnee(celle ? cellule(*celle, index.column()) : cellule(*sien, index.column()), index, role);
}

QVariant ModeleSante::headerData(int section, Qt::Orientation sens, int role) const {
    if (sens != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section == Titre ? tr("Film") : section == Realisateur ? tr("Réalisateur") : tr("Détail");
}

}  // namespace ui
