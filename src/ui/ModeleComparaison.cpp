#include "ui/ModeleComparaison.h"

#include "ui/DelegueLignes.h"
#include "ui/Infobulles.h"

#include <algorithm>
#include <iterator>

namespace ui {

namespace {

using ensemble::ChampCompare;

bool seChoisit(const ChampCompare& champ) {
    return champ.differe() && !champ.ailleurs && !champ.droite.empty();
}

// On one line, and no more than one could hold. Of two texts that begin alike for long, what is theirs alone must be seen.
QString enUneLigne(const ChampCompare& champ, const std::string& valeur) {
    constexpr std::size_t kDebutVu = 16;  // bytes
    const std::string& autre = &valeur == &champ.gauche ? champ.droite : champ.gauche;
    const auto commun = static_cast<std::size_t>(
        std::mismatch(valeur.begin(), valeur.end(), autre.begin(), autre.end()).first - valeur.begin());
    std::size_t debut = champ.differe() && commun > 2 * kDebutVu ? commun - kDebutVu : 0;
    while (debut > 0 && debut < valeur.size() && (static_cast<unsigned char>(valeur[debut]) & 0xc0) == 0x80)
        --debut;
    const QString texte = texteDeLigne(std::string_view(valeur).substr(debut)).simplified();
    return debut > 0 ? QStringLiteral("… ") + texte : texte;
}

}  // namespace

void ModeleComparaison::met(ensemble::PlanDeFusion plan) {
    beginResetModel();
    m_plan = std::move(plan);
    endResetModel();
}

const ChampCompare& ModeleComparaison::champ(int rang) const {
    const auto place = static_cast<std::size_t>(rang);
    return place < m_plan.film.size() ? m_plan.film[place] : m_plan.possession[place - m_plan.film.size()];
}

void ModeleComparaison::choisit(int rang, bool droite) {
    if (rang < 0 || rang >= rowCount() || !seChoisit(champ(rang))) return;
    const auto place = static_cast<std::size_t>(rang);
    ChampCompare& celui =
        place < m_plan.film.size() ? m_plan.film[place] : m_plan.possession[place - m_plan.film.size()];
    celui.prendDroite = droite;
    emit dataChanged(index(rang, 0), index(rang, kColonnes - 1));
}

void ModeleComparaison::bascule(int rang) {
    if (rang >= 0 && rang < rowCount()) choisit(rang, !champ(rang).prendDroite);
}

int ModeleComparaison::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::ssize(m_plan.film) + std::ssize(m_plan.possession));
}

Qt::ItemFlags ModeleComparaison::flags(const QModelIndex& index) const {
    return QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
}

QVariant ModeleComparaison::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ChampCompare& celui = champ(index.row());
    const bool aDroite = index.column() == Droite;
    const std::string& valeur = aDroite ? celui.droite : celui.gauche;
    if (role == kLigneForte) return celui.differe();
    if (role == kLigneDiscrete) return !celui.differe();
    if (index.column() == Champ) {
        if (role == Qt::AccessibleTextRole) return ligneLue(index);
        if (role != Qt::DisplayRole) return {};
        return (celui.differe() ? QStringLiteral("≠ ") : QString()) + QString::fromStdString(celui.legende);
    }
    if (role == Qt::DisplayRole) return enUneLigne(celui, valeur);
    if (role == Qt::ToolTipRole && !valeur.empty()) return enInfobulle(QString::fromStdString(valeur));
    if (role == Qt::CheckStateRole && seChoisit(celui))
        return celui.prendDroite == aDroite ? Qt::Checked : Qt::Unchecked;
    return {};
}

QVariant ModeleComparaison::headerData(int section, Qt::Orientation sens, int role) const {
    if (sens != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section == Champ ? QString() : section == Gauche ? tr("À gauche (reste)") : tr("À droite");
}

}  // namespace ui
