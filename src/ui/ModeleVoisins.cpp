#include "ui/ModeleVoisins.h"

#include "util/Nombres.h"

#include <algorithm>
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
    : ModeleDeLignes({tr("Film"), tr("Réalisateur"), tr("Année"), tr("Exemplaire"), tr("Dans la base")}, parent),
      m_examen(std::move(examen)),
      m_ordre(m_examen.jugements.size()) {
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

bool ModeleVoisins::peutEtreCochee(int ligne) const {
    return m_examen.jugements[rang(ligne)].sort != edit::SortDuFilm::DejaLa;
}

void ModeleVoisins::coche(int ligne, bool oui) {
    m_examen.jugements[rang(ligne)].aAjouter = oui;
    emit dataChanged(index(ligne, Film), index(ligne, Film), {Qt::CheckStateRole});
    emit change();
}

void ModeleVoisins::bascule(const QModelIndex& index) {
    if (!index.isValid() || !peutEtreCochee(index.row())) return;
    coche(index.row(), !m_examen.jugements[rang(index.row())].aAjouter);
}

void ModeleVoisins::cocheTout(bool oui) {
    for (voisins::Jugement& celui : m_examen.jugements)
        celui.aAjouter = oui && celui.sort != edit::SortDuFilm::DejaLa;
    cochesChangent();
    emit change();
}

Cellule ModeleVoisins::cellule(int ligne, int colonne) const {
    const voisins::FilmVoisin& film = m_examen.collection.films[rang(ligne)];
    const voisins::Jugement& jugement = m_examen.jugements[rang(ligne)];
    const std::string textes[] = {film.titre, film.realisateur, film.annee, exemplaireDe(film),
                                  edit::texteDuSort(jugement)};
    Cellule resultat{.texte = texteDeLigne(textes[colonne]),
                     .forte = colonne == Sort && jugement.sort == edit::SortDuFilm::Ressemblant,
                     .discrete = jugement.sort == edit::SortDuFilm::DejaLa || colonne == Realisateur};
    if (colonne == Film && peutEtreCochee(ligne)) resultat.cochee = jugement.aAjouter;
    return resultat;
}

}  // namespace ui
