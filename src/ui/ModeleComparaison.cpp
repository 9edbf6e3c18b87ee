#include "ui/ModeleComparaison.h"

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
    recommence([&] { m_plan = std::move(plan); });
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

Cellule ModeleComparaison::cellule(int rang, int colonne) const {
    const ChampCompare& celui = champ(rang);
    const bool differe = celui.differe() && !m_seule, aDroite = colonne == Droite;
    Cellule resultat{.texte = {}, .forte = differe, .discrete = !differe && !m_seule};
    if (colonne == Champ) {
        resultat.texte = (differe ? QStringLiteral("≠ ") : QString()) + QString::fromStdString(celui.legende);
        return resultat;
    }
    const std::string& valeur = aDroite ? celui.droite : celui.gauche;
    resultat.texte = enUneLigne(celui, valeur);
    if (!valeur.empty()) resultat.infobulle = enInfobulle(QString::fromStdString(valeur));
    if (seChoisit(celui)) resultat.cochee = celui.prendDroite == aDroite;
    return resultat;
}

}  // namespace ui
