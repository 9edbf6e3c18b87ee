#include "rapatrix/ListeFiches.h"

#include "ui/Infobulles.h"
#include "util/Texte.h"

#include <algorithm>

namespace rapatrix {

namespace {

constexpr int kAdresse = Qt::UserRole + 1;

QString colonne(const Lien& lien, int numero) {
    return QString::fromStdString(numero == 1 ? lien.adresse : lien.texte);
}

QString replie(const QString& texte) {
    return QString::fromStdString(util::sansAccents(util::minuscules(texte.toStdString())));
}

}  // namespace

ListeFiches::ListeFiches(int affichee, int telechargee, QObject* parent)
    : QStandardItemModel(0, NombreDeColonnes, parent), m_affichee(affichee), m_telechargee(telechargee) {
    setHorizontalHeaderLabels({tr("Film"), tr("État")});
}

void ListeFiches::vide() {
    removeRows(0, rowCount());
}

void ListeFiches::ajoute(const std::vector<Lien>& fiches) {
    for (const Lien& lien : fiches) {
        const QString texte = colonne(lien, m_affichee);
        auto* film = new QStandardItem(texte.isEmpty() ? QString::fromStdString(lien.adresse) : texte);
        film->setData(colonne(lien, m_telechargee), kAdresse);
        film->setToolTip(ui::enInfobulle(QString::fromStdString(lien.adresse)));
        film->setCheckable(true);
        film->setEditable(false);
        auto* etat = new QStandardItem;
        etat->setEditable(false);
        appendRow({film, etat});
    }
}

QStringList ListeFiches::cochees() const {
    QStringList adresses;
    for (int rang = 0; rang < rowCount(); ++rang)
        if (item(rang)->checkState() == Qt::Checked) adresses << item(rang)->data(kAdresse).toString();
    return adresses;
}

int ListeFiches::rangDe(const QString& adresse) const {
    for (int rang = 0; rang < rowCount(); ++rang)
        if (item(rang)->data(kAdresse).toString() == adresse) return rang;
    return -1;
}

void ListeFiches::note(const QString& adresse, const QString& etat) {
    const int rang = rangDe(adresse);
    if (rang < 0) return;
    item(rang, Etat)->setText(etat);
    item(rang, Etat)->setToolTip(ui::enInfobulle(etat));
}

void ListeFiches::decoche(const QString& adresse) {
    if (const int rang = rangDe(adresse); rang >= 0) item(rang)->setCheckState(Qt::Unchecked);
}

void ListeFiches::retire(const QString& adresse) {
    if (const int rang = rangDe(adresse); rang >= 0) removeRow(rang);
}

FiltreFiches::FiltreFiches(QObject* parent) : QSortFilterProxyModel(parent) {
    setSortLocaleAware(true);
    setSortCaseSensitivity(Qt::CaseInsensitive);
}

void FiltreFiches::filtre(const QString& mots) {
    m_mots = replie(mots).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    invalidateFilter();
}

bool FiltreFiches::filterAcceptsRow(int rang, const QModelIndex& parent) const {
    const QString texte = replie(sourceModel()->index(rang, ListeFiches::Film, parent).data().toString());
    return std::all_of(m_mots.begin(), m_mots.end(), [&](const QString& mot) { return texte.contains(mot); });
}

void FiltreFiches::coche(bool coche) {
    for (int rang = 0; rang < rowCount(); ++rang)
        setData(index(rang, ListeFiches::Film), coche ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

}  // namespace rapatrix
