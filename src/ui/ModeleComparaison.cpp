#include "ui/ModeleComparaison.h"

#include "ui/DelegueLignes.h"
#include "ui/Infobulles.h"

#include <algorithm>

namespace ui {

namespace {

using ensemble::ChampCompare;

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

void ModeleComparaison::metEnLecture(const QString& gauche, const QString& droite) {
    m_enLecture = true;
    m_seule = gauche.isEmpty();
    metTitres({QString(), gauche, droite});
}

bool ModeleComparaison::seChoisit(const ChampCompare& champ) const {
    return !m_enLecture && champ.differe() && !champ.ailleurs && !champ.droite.empty();
}

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
    emit dataChanged(index(rang, 0), index(rang, Droite));
}

void ModeleComparaison::bascule(int rang) {
    if (rang >= 0 && rang < rowCount()) choisit(rang, !champ(rang).prendDroite);
}

QVariant ModeleComparaison::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ChampCompare& celui = champ(index.row());
    const bool aDroite = index.column() == Droite;
    const std::string& valeur = aDroite ? celui.droite : celui.gauche;
    const bool differe = celui.differe() && !m_seule;
    if (role == kLigneForte) return differe;
    if (role == kLigneDiscrete) return !differe && !m_seule;
    if (index.column() == Champ) {
        if (role == Qt::AccessibleTextRole) return ligneLue(index);
        if (role != Qt::DisplayRole) return {};
        return (differe ? QStringLiteral("≠ ") : QString()) + QString::fromStdString(celui.legende);
    }
    if (role == Qt::DisplayRole) return enUneLigne(celui, valeur);
    if (role == Qt::ToolTipRole && !valeur.empty()) return enInfobulle(QString::fromStdString(valeur));
    if (role == Qt::CheckStateRole && seChoisit(celui))
        return celui.prendDroite == aDroite ? Qt::Checked : Qt::Unchecked;
    return {};
}

}  // namespace ui
