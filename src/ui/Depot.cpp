#include "ui/Depot.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "app/Depot.h"
#include "edit/SaisiePossession.h"
#include "ui/FenetreVoisins.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <algorithm>

namespace ui {

namespace {

constexpr int kFichiersAttaches = 3;
constexpr int kPendantUneCommande = 50;  // milliseconds until the next try

std::vector<std::string> cheminsDe(const QDropEvent& evenement) {
    std::vector<std::string> chemins;
    for (const QUrl& adresse : evenement.mimeData()->urls())
        if (adresse.isLocalFile()) chemins.push_back(QFile::encodeName(adresse.toLocalFile()).toStdString());
    return chemins;
}

bool estUneImage(const std::string& chemin) {
    const QString suite = QFileInfo(QString::fromStdString(chemin)).suffix().toLower();
    return suite == QLatin1String("jpg") || suite == QLatin1String("jpeg");
}

// By its name alone: what is in it is looked at once it is dropped.
bool estUneCollection(const std::string& chemin) {
    static const QStringList kSuites{QStringLiteral("tc"),  QStringLiteral("gcs"), QStringLiteral("gcz"),
                                     QStringLiteral("xml"), QStringLiteral("nfo"), QStringLiteral("csv"),
                                     QStringLiteral("tsv")};
    const QFileInfo fichier(QString::fromStdString(chemin));
    return kSuites.contains(fichier.suffix().toLower()) && !fichier.isDir();
}

bool portentDesFiches(const std::vector<std::string>& chemins) {
    return std::ranges::any_of(chemins, [](const std::string& chemin) {
        return acquire::estFiche(chemin) || QFileInfo(QString::fromStdString(chemin)).isDir();
    });
}

}  // namespace

Depot::Depot(const Atelier& atelier, QWidget* fenetre) : QObject(fenetre), m_atelier(atelier), m_fenetre(fenetre) {
    fenetre->setAcceptDrops(true);
    fenetre->installEventFilter(this);
}

void Depot::prepare(QWidget* fenetre) {
    for (QWidget* champ : fenetre->findChildren<QWidget*>())
        if (champ->acceptDrops()) champ->installEventFilter(this);
    for (int i = 0; i < kFichiersAttaches; ++i)
        if (auto* zone = fenetre->findChild<QLineEdit*>(QStringLiteral("Text10_%1").arg(i)))
            zone->setAcceptDrops(false);
}

bool Depot::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet != m_fenetre) {
        if (evenement->type() != QEvent::DragEnter || cheminsDe(*static_cast<QDropEvent*>(evenement)).empty())
            return false;
        evenement->ignore();  // the window takes it
        return true;
    }
    switch (evenement->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto& tenu = *static_cast<QDropEvent*>(evenement);
            const bool voulu =
                !m_atelier.commande.enCours() &&
                (evenement->type() == QEvent::DragEnter ? !cheminsDe(tenu).empty() : cible(tenu).sorte != Sorte::Rien);
            tenu.setDropAction(Qt::CopyAction);
            tenu.setAccepted(voulu);
            return true;
        }
        case QEvent::Drop:
            recois(*static_cast<QDropEvent*>(evenement));
            evenement->accept();
            return true;
        default:
            return false;
    }
}

// Where on the window it is: the poster, a box, or anywhere.
Depot::Cible Depot::cible(const QDropEvent& evenement) const {
    const std::vector<std::string> chemins = cheminsDe(evenement);
    if (chemins.empty()) return {};
    for (const QWidget* w = m_fenetre->childAt(evenement.position().toPoint()); w; w = w->parentWidget()) {
        const QString nom = w->objectName();
        if (nom == QLatin1String("cadreAffiche") && chemins.size() == 1 && estUneImage(chemins.front()))
            return {Sorte::Affiche};
        for (int i = 0; i < kFichiersAttaches; ++i)
            if (nom == QStringLiteral("Text10_%1").arg(i) && chemins.size() == 1) return {Sorte::Fichier, i};
    }
    if (chemins.size() == 1 && estUneCollection(chemins.front())) return {Sorte::Collection};
    return {portentDesFiches(chemins) ? Sorte::Fiches : Sorte::Rien};
}

// The other program gets its answer first: a question may keep this one for minutes.
void Depot::recois(const QDropEvent& evenement) const {
    Cible ou = cible(evenement);
    if (ou.sorte == Sorte::Rien) return;
    ou.film = filmMontre();
    QTimer::singleShot(0, this, [this, ou, chemins = cheminsDe(evenement)] { sers(ou, chemins); });
}

db::CleFilm Depot::filmMontre() const {
    return m_atelier.session.regarde([](const app::Contexte& c) -> db::CleFilm { return c.film; });
}

void Depot::sers(const Cible& ou, const std::vector<std::string>& chemins) const {
    const bool pourLeFilm = ou.sorte == Sorte::Affiche || ou.sorte == Sorte::Fichier;
    if (pourLeFilm && ou.film != filmMontre()) return;  // another one took its place meanwhile
    if (m_atelier.commande.enCours())
        QTimer::singleShot(kPendantUneCommande, this, [this, ou, chemins] { sers(ou, chemins); });
    else if (ou.sorte == Sorte::Fiches)
        m_atelier.execute(app::importeFichesDeposees, chemins);
    else if (ou.sorte == Sorte::Affiche)
        m_atelier.execute(app::deposeAffiche, chemins.front());
    else if (ou.sorte == Sorte::Fichier)
        m_atelier.execute(edit::attacheFichier, ou.indice, chemins.front());
    else
        ouvreImportDeposee(m_atelier, m_fenetre, chemins.front());
}

}  // namespace ui
