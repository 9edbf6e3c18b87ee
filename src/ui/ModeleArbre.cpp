#include "ui/ModeleArbre.h"

namespace ui {

namespace {

// No row is wide enough for more, and a text is laid out whole to be cut to its row.
QString debutDuTexte(std::string_view texte) {
    constexpr std::size_t kOctetsMontres = 2000;
    if (texte.size() <= kOctetsMontres) return QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
    std::size_t fin = kOctetsMontres;
    while (fin > 0 && (static_cast<unsigned char>(texte[fin]) & 0xc0) == 0x80)
        --fin;
    return QString::fromUtf8(texte.data(), static_cast<qsizetype>(fin)) + u'…';
}

}  // namespace

ModeleArbre::ModeleArbre(browse::VueArbre& etat, QObject* parent) : QAbstractItemModel(parent), m_etat(etat) {}

void ModeleArbre::recommence() {
    beginResetModel();
    endResetModel();
}

void ModeleArbre::coches() {
    emit layoutChanged();
}

void ModeleArbre::textes() {
    if (const int nombre = rowCount(); nombre > 0) emit dataChanged(index(0, 0), index(nombre - 1, 0));
}

QModelIndex ModeleArbre::indexDuNoeud(int indice) const {
    if (indice < 1 || indice > m_etat.Nodes.Count()) return {};
    return createIndex(m_etat.Nodes.rang(indice), 0, static_cast<quintptr>(indice));
}

QModelIndex ModeleArbre::index(int ligne, int colonne, const QModelIndex& parent) const {
    if (colonne != 0 || ligne < 0 || ligne >= rowCount(parent)) return {};
    const auto& enfants = m_etat.Nodes.enfants(parent.isValid() ? noeud(parent) : 0);
    return createIndex(ligne, 0, static_cast<quintptr>(enfants[static_cast<std::size_t>(ligne)]));
}

QModelIndex ModeleArbre::parent(const QModelIndex& enfant) const {
    return enfant.isValid() ? indexDuNoeud(m_etat.Nodes.Parent(noeud(enfant))) : QModelIndex();
}

int ModeleArbre::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) return static_cast<int>(m_etat.Nodes.enfants(0).size());
    if (!m_etat.Nodes.estGroupe(noeud(parent))) return 0;
    return static_cast<int>(m_etat.Nodes.enfants(noeud(parent)).size());
}

int ModeleArbre::columnCount(const QModelIndex&) const {
    return 1;
}

bool ModeleArbre::hasChildren(const QModelIndex& parent) const {
    return rowCount(parent) > 0;
}

QVariant ModeleArbre::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const browse::Arbre& arbre = m_etat.Nodes;
    const int indice = noeud(index);
    switch (role) {
        case Qt::DisplayRole:
            return debutDuTexte(arbre.Text(indice));
        case Qt::CheckStateRole:
            if (!m_etat.Checkboxes) return {};
            return m_etat.coches.count(indice) ? Qt::Checked : Qt::Unchecked;
        case EstGroupe:
            return arbre.estGroupe(indice);
        case NombreDEnfants:
            return rowCount(index);
        default:
            return {};
    }
}

bool ModeleArbre::setData(const QModelIndex& index, const QVariant& valeur, int role) {
    if (!index.isValid() || role != Qt::CheckStateRole) return false;
    emit coche(noeud(index), valeur.value<Qt::CheckState>() == Qt::Checked);
    return true;
}

Qt::ItemFlags ModeleArbre::flags(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    Qt::ItemFlags marques = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (m_etat.Checkboxes) marques |= Qt::ItemIsUserCheckable;
    if (!m_etat.Nodes.estGroupe(noeud(index))) marques |= Qt::ItemNeverHasChildren;
    return marques;
}

}  // namespace ui
