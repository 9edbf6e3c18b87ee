#include "ui/ModeleVoisins.h"

#include "ui/DelegueLignes.h"
#include "util/Nombres.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace ui {

namespace {

std::string exemplaireDe(const voisins::FilmVoisin& film) {
    if (!film.possession) return {};
    const voisins::PossessionVoisine& celui = *film.possession;
    std::string texte = celui.support;
    for (const std::string& suite : {celui.rangement, celui.pret.empty() ? std::string() : "prêté à " + celui.pret})
        if (!suite.empty()) texte += (texte.empty() ? "" : ", ") + suite;
    if (!film.autres.empty())
        texte += util::phraseCompte(static_cast<long>(film.autres.size()), " et # autre", " et # autres");
    return texte;
}

}  // namespace

ModeleVoisins::ModeleVoisins(voisins::Examen examen, QObject* parent)
    : QAbstractTableModel(parent), m_examen(std::move(examen)), m_ordre(m_examen.jugements.size()) {
    std::iota(m_ordre.begin(), m_ordre.end(), 0U);
    std::stable_partition(m_ordre.begin(), m_ordre.end(), [this](std::size_t r) {
        return m_examen.jugements[r].sort == edit::SortDuFilm::Ressemblant;
    });
}

void ModeleVoisins::metOptions(bool possedes, bool complete) {
    m_examen.possedes = possedes;
    m_examen.complete = complete;
    emit change();
}

void ModeleVoisins::bascule(const QModelIndex& index) {
    if (!index.isValid() || m_examen.jugements[rang(index)].sort == edit::SortDuFilm::DejaLa) return;
    bool& oui = m_examen.jugements[rang(index)].aAjouter;
    oui = !oui;
    emit dataChanged(index.siblingAtColumn(Film), index.siblingAtColumn(Film), {Qt::CheckStateRole});
    emit change();
}

void ModeleVoisins::cocheTout(bool oui) {
    for (voisins::Jugement& celui : m_examen.jugements)
        celui.aAjouter = oui && celui.sort != edit::SortDuFilm::DejaLa;
    if (!m_ordre.empty()) emit dataChanged(index(0, Film), index(rowCount() - 1, Film), {Qt::CheckStateRole});
    emit change();
}

std::size_t ModeleVoisins::rang(const QModelIndex& index) const {
    return m_ordre[static_cast<std::size_t>(index.row())];
}

int ModeleVoisins::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::ssize(m_ordre));
}

Qt::ItemFlags ModeleVoisins::flags(const QModelIndex& index) const {
    Qt::ItemFlags celles = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    const bool seCoche = index.isValid() && m_examen.jugements[rang(index)].sort != edit::SortDuFilm::DejaLa;
    return seCoche && index.column() == Film ? celles | Qt::ItemIsUserCheckable : celles;
}

QVariant ModeleVoisins::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const voisins::FilmVoisin& film = m_examen.collection.films[rang(index)];
    const voisins::Jugement& jugement = m_examen.jugements[rang(index)];
    if (role == kLigneForte) return index.column() == Sort && jugement.sort == edit::SortDuFilm::Ressemblant;
    if (role == kLigneDiscrete) return jugement.sort == edit::SortDuFilm::DejaLa || index.column() == Realisateur;
    if (role == Qt::CheckStateRole && index.column() == Film && jugement.sort != edit::SortDuFilm::DejaLa)
        return jugement.aAjouter ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole) return {};
    const std::string textes[] = {film.titre, film.realisateur, film.annee, exemplaireDe(film),
                                  edit::texteDuSort(jugement)};
    return texteDeLigne(textes[index.column()]);
}

bool ModeleVoisins::setData(const QModelIndex& index, const QVariant& valeur, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) return false;
    const bool oui = valeur.value<Qt::CheckState>() == Qt::Checked;
    if (m_examen.jugements[rang(index)].aAjouter != oui) bascule(index);
    return true;
}

QVariant ModeleVoisins::headerData(int section, Qt::Orientation sens, int role) const {
    if (sens != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const QString titres[] = {tr("Film"), tr("Réalisateur"), tr("Année"), tr("Exemplaire"), tr("Dans la base")};
    return titres[section];
}

}  // namespace ui
