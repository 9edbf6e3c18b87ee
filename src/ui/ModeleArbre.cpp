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

void ModeleArbre::recommence(Noeuds noeuds) {
    beginResetModel();
    m_vus = std::move(noeuds);
    numerote();
    endResetModel();
}

void ModeleArbre::numerote() {
    m_racines.clear();
    m_debuts.clear();
    if (!m_vus) return;
    const browse::Arbre& arbre = m_etat.Nodes;
    m_rangs.assign(static_cast<std::size_t>(arbre.Count()) + 1, -1);
    std::int32_t rangDuFilm = 0;
    for (std::size_t i = 0; i < m_vus->size(); ++i) {
        const std::int32_t indice = (*m_vus)[i];
        const bool sousUnGroupe = arbre.Parent(indice) != 0;
        m_rangs[static_cast<std::size_t>(indice)] =
            sousUnGroupe ? rangDuFilm++ : static_cast<std::int32_t>(m_racines.size());
        if (sousUnGroupe) continue;
        rangDuFilm = 0;
        m_racines.push_back(indice);
        m_debuts.push_back(i + 1);
    }
    m_debuts.push_back(m_vus->size() + 1);
}

std::span<const std::int32_t> ModeleArbre::enfantsVus(int indice) const {
    if (indice == 0) return m_racines;
    const int racine = rang(indice);
    if (racine < 0) return {};
    const std::size_t debut = m_debuts[static_cast<std::size_t>(racine)];
    const std::size_t fin = m_debuts[static_cast<std::size_t>(racine) + 1] - 1;  // where the next heading stands
    return std::span(*m_vus).subspan(debut, fin - debut);
}

std::size_t ModeleArbre::nombre(int indice) const {
    return m_vus ? enfantsVus(indice).size() : m_etat.Nodes.enfants(indice).size();
}

int ModeleArbre::enfant(int indice, std::size_t ligne) const {
    return m_vus ? enfantsVus(indice)[ligne] : m_etat.Nodes.enfants(indice)[ligne];
}

int ModeleArbre::rang(int indice) const {
    if (!m_vus) return m_etat.Nodes.rang(indice);
    return static_cast<std::size_t>(indice) < m_rangs.size() ? m_rangs[static_cast<std::size_t>(indice)] : -1;
}

bool ModeleArbre::estVu(int indice) const {
    return indice >= 1 && indice <= m_etat.Nodes.Count() && rang(indice) >= 0;
}

int ModeleArbre::premierFilm() const {
    for (std::size_t ligne = 0; ligne < nombre(0); ++ligne) {
        const int racine = enfant(0, ligne);
        if (!m_etat.Nodes.estGroupe(racine)) return racine;
        if (nombre(racine) > 0) return enfant(racine, 0);
    }
    return 0;
}

void ModeleArbre::coches() {
    emit layoutChanged();
}

void ModeleArbre::textes() {
    if (const int nombre = rowCount(); nombre > 0) emit dataChanged(index(0, 0), index(nombre - 1, 0));
}

QModelIndex ModeleArbre::indexDuNoeud(int indice) const {
    if (!estVu(indice)) return {};
    return createIndex(rang(indice), 0, static_cast<quintptr>(indice));
}

QModelIndex ModeleArbre::index(int ligne, int colonne, const QModelIndex& parent) const {
    if (colonne != 0 || ligne < 0 || ligne >= rowCount(parent)) return {};
    const int indice = enfant(parent.isValid() ? noeud(parent) : 0, static_cast<std::size_t>(ligne));
    return createIndex(ligne, 0, static_cast<quintptr>(indice));
}

QModelIndex ModeleArbre::parent(const QModelIndex& enfant) const {
    return enfant.isValid() ? indexDuNoeud(m_etat.Nodes.Parent(noeud(enfant))) : QModelIndex();
}

int ModeleArbre::rowCount(const QModelIndex& parent) const {
    if (parent.isValid() && !m_etat.Nodes.estGroupe(noeud(parent))) return 0;
    return static_cast<int>(nombre(parent.isValid() ? noeud(parent) : 0));
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
            return arbre.estGroupe(indice) ? QVariant() : duFilm(indice, role);
    }
}

QVariant ModeleArbre::duFilm(int indice, int role) const {
    const auto titre = [&] { return debutDuTexte(m_etat.Nodes.Text(indice)).trimmed(); };
    switch (role) {
        case Lettres:
            return m_vus && m_lettres ? QVariant::fromValue(m_lettres(titre())) : QVariant();
        case Marques:
            return m_marques ? QVariant::fromValue(m_marques(indice)) : QVariant();
        case Qt::ToolTipRole:
            return m_infobulle ? m_infobulle(indice) : QVariant();
        case Qt::AccessibleTextRole: {
            const std::string marques = m_marques ? browse::texteDesMarques(m_marques(indice)) : "";
            return marques.empty() ? titre() : titre() + QStringLiteral(", ") + QString::fromStdString(marques);
        }
        default:
            return {};
    }
}

QVariant ModeleArbre::headerData(int, Qt::Orientation sens, int role) const {
    return sens == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(tr("Titres")) : QVariant();
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
