#include "ui/ModelePrets.h"

#include "ui/Icones.h"
#include "ui/Infobulles.h"

#include <QFont>
#include <algorithm>

namespace ui {

namespace {

using ensemble::Pret;
using ensemble::TriDesPrets;

QString qt(const std::string& texte) {
    return QString::fromStdString(texte);
}

QString film(const Pret& pret) {
    return pret.film.realisateur.empty() ? qt(pret.film.titre)
                                         : qt(pret.film.titre) + QStringLiteral(" – ") + qt(pret.film.realisateur);
}

QString ou(const Pret& pret) {
    return pret.aQui.empty() ? QObject::tr("à sa place") : QObject::tr("chez %1").arg(qt(pret.aQui));
}

}  // namespace

struct ModelePrets::Colonne {
    QString titre;
    std::optional<TriDesPrets> tri;
    QString (*texte)(const Pret&);
};

const std::vector<ModelePrets::Colonne>& ModelePrets::colonnes() const {
    const auto depuis = [](const Pret& pret) {  // the heading says the first word
        const QString texte = qt(texteDepuis(pret)), mot = QStringLiteral("depuis ");
        return texte.startsWith(mot) ? texte.mid(mot.size()) : texte;
    };
    const auto support = [](const Pret& pret) { return qt(pret.support); };
    const auto rangement = [](const Pret& pret) { return qt(pret.rangement); };
    const auto aQui = [](const Pret& pret) { return qt(pret.aQui); };
    const auto pourQui = [](const Pret& pret) { return qt(pret.pourQui); };
    static const std::vector<Colonne> prets{{tr("Film"), TriDesPrets::Film, film},
                                            {tr("Prêté à"), TriDesPrets::Personne, aQui},
                                            {tr("Depuis"), TriDesPrets::Jours, depuis},
                                            {tr("Attendu par"), {}, pourQui},
                                            {tr("Support"), {}, support},
                                            {tr("Rangement"), {}, rangement}};
    static const std::vector<Colonne> reservations{{tr("Film"), TriDesPrets::Film, film},
                                                   {tr("Attendu par"), TriDesPrets::Attente, pourQui},
                                                   {tr("Où il est"), TriDesPrets::Personne, ou},
                                                   {tr("Support"), {}, support},
                                                   {tr("Rangement"), {}, rangement}};
    return m_sorte == Sorte::Prets ? prets : reservations;
}

ModelePrets::ModelePrets(Sorte sorte, QObject* parent) : QAbstractTableModel(parent), m_sorte(sorte) {}

void ModelePrets::remplit(std::vector<Pret> prets, int joursDeRetard) {
    beginResetModel();
    m_prets = std::move(prets);
    m_joursDeRetard = joursDeRetard;
    trie();
    endResetModel();
}

void ModelePrets::metRetard(int jours) {
    m_joursDeRetard = jours;
    if (!m_prets.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

bool ModelePrets::colonneVide(int colonne) const {
    const auto texte = colonnes()[static_cast<std::size_t>(colonne)].texte;
    return std::ranges::all_of(m_prets, [&](const Pret& pret) { return texte(pret).isEmpty(); });
}

bool ModelePrets::triable(int colonne) const {
    return colonne >= 0 && colonne < columnCount() && colonnes()[static_cast<std::size_t>(colonne)].tri;
}

int ModelePrets::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_prets.size());
}

int ModelePrets::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(colonnes().size());
}

// For who hears the table: the row is told as one sentence.
QString ModelePrets::ligneEntiere(const Pret& pret) const {
    QStringList parties{film(pret)};
    if (!pret.aQui.empty()) parties << tr("prêté à %1").arg(qt(pret.aQui));
    if (!pret.aQui.empty() && !texteDepuis(pret).empty()) parties << qt(texteDepuis(pret));
    if (enRetard(pret, m_joursDeRetard)) parties << tr("en retard");
    if (!pret.pourQui.empty()) parties << tr("attendu par %1").arg(qt(pret.pourQui));
    return parties.join(QStringLiteral(", "));
}

QVariant ModelePrets::data(const QModelIndex& index, int role) const {
    const Pret& ligne = pret(index.row());
    const Colonne& colonne = colonnes()[static_cast<std::size_t>(index.column())];
    const bool retard = m_sorte == Sorte::Prets && enRetard(ligne, m_joursDeRetard);
    const bool jours = retard && colonne.tri == TriDesPrets::Jours;
    switch (role) {
        case Qt::DisplayRole:
            return colonne.texte(ligne);
        case Qt::AccessibleTextRole:
            if (index.column() == 0) return ligneEntiere(ligne);
            return jours ? tr("%1, en retard").arg(colonne.texte(ligne)) : colonne.texte(ligne);
        case Qt::ToolTipRole:
            return enInfobulle(jours ? tr("%1 : en retard").arg(colonne.texte(ligne)) : colonne.texte(ligne));
        case Qt::DecorationRole:
            return jours ? QVariant(icone(Pictogramme::Attention)) : QVariant();
        case Qt::FontRole: {
            QFont police;
            police.setBold(jours);
            return jours ? QVariant(police) : QVariant();
        }
        case EnRetard:
            return retard;
        default:
            return {};
    }
}

QVariant ModelePrets::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const Colonne& colonne = colonnes()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return colonne.titre;
    if (role == Qt::ToolTipRole && colonne.tri) return tr("Un clic range les films dans cet ordre");
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

// The other way round, days that nobody knows stay last.
void ModelePrets::trie() {
    ensemble::trie(m_prets, *colonnes()[static_cast<std::size_t>(m_colonne)].tri);
    if (m_ordre == Qt::AscendingOrder) return;
    std::reverse(m_prets.begin(), m_prets.end());
    if (colonnes()[static_cast<std::size_t>(m_colonne)].tri == TriDesPrets::Jours)
        std::stable_partition(m_prets.begin(), m_prets.end(), [](const Pret& pret) { return pret.jours.has_value(); });
}

void ModelePrets::sort(int colonne, Qt::SortOrder ordre) {
    if (!triable(colonne)) return;
    m_colonne = colonne;
    m_ordre = ordre;
    beginResetModel();
    trie();
    endResetModel();
}

}  // namespace ui
