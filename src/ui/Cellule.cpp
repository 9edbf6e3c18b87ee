#include "ui/Cellule.h"

namespace ui {

namespace {

QVariant siDite(const QString& texte) {
    return texte.isEmpty() ? QVariant() : QVariant(texte);
}

}  // namespace

QVariant donnee(const Cellule& cellule, const QModelIndex& index, int role) {
    switch (role) {
        case Qt::DisplayRole:
            return cellule.texte;
        case Qt::AccessibleTextRole:
            return cellule.entendue.isEmpty() && index.column() == 0 ? ligneLue(index) : siDite(cellule.entendue);
        case Qt::ToolTipRole:
            return siDite(cellule.infobulle);
        case Qt::TextAlignmentRole:
            return cellule.aDroite ? QVariant(int{Qt::AlignRight | Qt::AlignVCenter}) : QVariant();
        case Qt::CheckStateRole:
            if (!cellule.cochee) return {};
            return *cellule.cochee ? Qt::Checked : Qt::Unchecked;
        case kLigneForte:
            return cellule.forte;
        case kLigneDiscrete:
            return cellule.discrete;
        default:
            return {};
    }
}

}  // namespace ui
