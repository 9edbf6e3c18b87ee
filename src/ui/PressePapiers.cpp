#include "ui/PressePapiers.h"

#include "app/Depot.h"
#include "db/Affiches.h"
#include "export/TexteFiche.h"
#include "platform/fichiers/Fichiers.h"
#include "ui/ImagesQt.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QKeyEvent>
#include <QMimeData>

namespace ui {

namespace {

constexpr int kCoteMax = 1200;  // of a poster that is pasted, in pixels

// A file as small as a base takes it, where that can be.
QByteArray enJpeg(QImage image) {
    if (std::max(image.width(), image.height()) > kCoteMax)
        image = image.scaled(kCoteMax, kCoteMax, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QByteArray octets;
    for (const int qualite : {92, 80, 65, 50}) {
        octets.clear();
        QBuffer tampon(&octets);
        image.save(&tampon, "JPG", qualite);
        if (octets.size() <= db::kTailleMaxAffiche) break;
    }
    return octets;
}

QString enHtml(const browse::EtatFiche& fiche) {
    const auto ligne = [](const std::string& texte) {
        return QString::fromStdString(texte).trimmed().toHtmlEscaped().replace(QLatin1String("\r\n"),
                                                                               QLatin1String("<br>"));
    };
    QString html =
        QStringLiteral("<h2>%1</h2><p>%2<br>%3<br>%4, %5, %6</p>")
            .arg(ligne(fiche.Label1[0].Caption), ligne(fiche.Label1[1].Caption), ligne(fiche.Label1[2].Caption),
                 ligne(fiche.Label1[4].Caption), ligne(fiche.Label1[5].Caption), ligne(fiche.Label1[6].Caption));
    html += QStringLiteral("<p>%1</p><p>%2</p>").arg(ligne(fiche.lblInfosActeurs.Caption), ligne(fiche.Text1.Text));
    return html;
}

}  // namespace

bool PressePapiers::prends(const QKeyEvent& evenement) const {
    if (!m_atelier.etats().panneaux.frameFiche.Visible || m_atelier.commande.enCours()) return false;
    if (evenement.matches(QKeySequence::Copy)) return copie();
    return evenement.matches(QKeySequence::Paste) && colle();
}

bool PressePapiers::copie() const {
    const browse::EtatFiche& fiche = m_atelier.etats().fiche;
    auto* donnees = new QMimeData;
    const QWidget* focus = m_fenetre->focusWidget();
    if (focus && focus->objectName() == QLatin1String("Image1") && !m_atelier.images.estVide()) {
        donnees->setImageData(m_atelier.images.entiere().toImage());
    } else {
        donnees->setText(QString::fromStdString(exportation::texteFiche(fiche.Label1[0].Caption, fiche)));
        donnees->setHtml(enHtml(fiche));
    }
    QApplication::clipboard()->setMimeData(donnees);
    return true;
}

bool PressePapiers::colle() const {
    const QImage image = QApplication::clipboard()->image();
    if (image.isNull()) return false;
    const QByteArray octets = enJpeg(image);
    m_atelier.execute([&octets](const app::Contexte& c) {
        const std::string fichier = c.chemins.dossierTmp + "/Affiche collée.jpg";
        if (!fichiers::ecrit(fichier, {octets.constData(), static_cast<std::size_t>(octets.size())}))
            return c.avis.montre("L'affiche n'a pas pu être collée (" + fichiers::raisonDeLEchec() + ").");
        app::deposeAffiche(c, fichier);
        fichiers::supprime(fichier);
    });
    return true;
}

}  // namespace ui
