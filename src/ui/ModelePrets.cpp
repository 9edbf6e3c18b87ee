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

const std::vector<ModelePrets::Colonne>& ModelePrets::colonnesDe(Sorte sorte) {
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
    return sorte == Sorte::Prets ? prets : reservations;
}

QStringList ModelePrets::titres(Sorte sorte) {
    QStringList titres;
    for (const Colonne& colonne : colonnesDe(sorte))
        titres << colonne.titre;
    return titres;
}

const ModelePrets::Colonne& ModelePrets::colonne(int rang) const {
    return colonnesDe(m_sorte)[static_cast<std::size_t>(rang)];
}

ModelePrets::ModelePrets(Sorte sorte, QObject* parent) : ModeleDeLignes(titres(sorte), parent), m_sorte(sorte) {}

void ModelePrets::remplit(std::vector<Pret> prets, int joursDeRetard) {
    recommence([&] {
        m_prets = std::move(prets);
        m_joursDeRetard = joursDeRetard;
        trie();
    });
}

void ModelePrets::metRetard(int jours) {
    m_joursDeRetard = jours;
    toutChange();
}

bool ModelePrets::colonneVide(int rang) const {
    const auto texte = colonne(rang).texte;
    return std::ranges::all_of(m_prets, [&](const Pret& pret) { return texte(pret).isEmpty(); });
}

bool ModelePrets::triable(int rang) const {
    return rang >= 0 && rang < columnCount() && colonne(rang).tri;
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

bool ModelePrets::estEnRetard(int rang) const {
    return m_sorte == Sorte::Prets && enRetard(pret(rang), m_joursDeRetard);
}

Cellule ModelePrets::cellule(int rang, int place) const {
    const QString texte = colonne(place).texte(pret(rang));
    const bool jours = place == colonneDesJours() && estEnRetard(rang);
    const QString entendue = jours ? tr("%1, en retard").arg(texte) : texte;
    return {.texte = texte,
            .infobulle = enInfobulle(jours ? tr("%1 : en retard").arg(texte) : texte),
            .entendue = place == 0 ? ligneEntiere(pret(rang)) : entendue};
}

QVariant ModelePrets::autreDonnee(const QModelIndex& index, int role) const {
    const bool retard = estEnRetard(index.row());
    if (role == EnRetard) return retard;
    if (!retard || index.column() != colonneDesJours()) return {};
    if (role == Qt::DecorationRole) return icone(Pictogramme::Attention);
    if (role != Qt::FontRole) return {};
    QFont police;
    police.setBold(true);
    return police;
}

QVariant ModelePrets::headerData(int section, Qt::Orientation sens, int role) const {
    if (sens != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    if (role == Qt::ToolTipRole && triable(section)) return tr("Un clic range les films dans cet ordre");
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return ModeleDeLignes::headerData(section, sens, role);
}

// The other way round, days that nobody knows stay last.
void ModelePrets::trie() {
    ensemble::trie(m_prets, *colonne(m_colonne).tri);
    if (m_ordre == Qt::AscendingOrder) return;
    std::reverse(m_prets.begin(), m_prets.end());
    if (colonne(m_colonne).tri == TriDesPrets::Jours)
        std::stable_partition(m_prets.begin(), m_prets.end(), [](const Pret& pret) { return pret.jours.has_value(); });
}

void ModelePrets::sort(int rang, Qt::SortOrder ordre) {
    if (!triable(rang)) return;
    m_colonne = rang;
    m_ordre = ordre;
    recommence([this] { trie(); });
}

}  // namespace ui
