#include "ui/ModelePaires.h"

namespace ui {

namespace {

QString nomComplet(const db::CleFilm& film) {
    const QString titre = texteDeLigne(film.titre);
    return film.realisateur.empty() ? titre : titre + QStringLiteral(" - ") + texteDeLigne(film.realisateur);
}

}  // namespace

Cellule ModelePaires::cellule(int rang, int colonne) const {
    const ensemble::Paire& paire = m_paires.paire(static_cast<std::size_t>(rang));
    if (colonne < Titre) return {.texte = nomComplet(colonne == Gauche ? paire.gauche : paire.droite)};
    const QString enClair = QString::fromStdString(colonne == Titre ? ensemble::texteRessemblanceTitre(paire)
                                                                    : ensemble::texteRessemblanceReali(paire));
    return {.texte = tr("%1 %").arg(colonne == Titre ? paire.titre : paire.realisateur),
            .infobulle = enClair,
            .entendue = enClair,
            .aDroite = true};
}

}  // namespace ui
