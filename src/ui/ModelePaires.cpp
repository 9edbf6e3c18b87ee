#include "ui/ModelePaires.h"

#include "ui/DelegueLignes.h"

namespace ui {

namespace {

QString nomComplet(const db::CleFilm& film) {
    const QString titre = texteDeLigne(film.titre);
    return film.realisateur.empty() ? titre : titre + QStringLiteral(" - ") + texteDeLigne(film.realisateur);
}

}  // namespace

QVariant ModelePaires::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ensemble::Paire& paire = m_paires.paire(static_cast<std::size_t>(index.row()));
    const bool score = index.column() >= Titre;
    if (role == Qt::TextAlignmentRole && score) return int{Qt::AlignRight | Qt::AlignVCenter};
    if (score && (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole))
        return QString::fromStdString(index.column() == Titre ? ensemble::texteRessemblanceTitre(paire)
                                                              : ensemble::texteRessemblanceReali(paire));
    if (role == Qt::AccessibleTextRole && index.column() == Gauche) return ligneLue(index);
    if (role != Qt::DisplayRole) return {};
    if (score) return tr("%1 %").arg(index.column() == Titre ? paire.titre : paire.realisateur);
    return nomComplet(index.column() == Gauche ? paire.gauche : paire.droite);
}

}  // namespace ui
