#include "ui/DessinDiagramme.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <algorithm>

namespace ui {

namespace {

using ensemble::Barre;
using ensemble::Diagramme;

constexpr qreal kEcart = 8, kPartDuLibelle = 0.34, kMarge = 16, kTitre = 34, kLigne = 24;
constexpr std::size_t kMesurees = 200;          // labels: those that follow are cut where they are longer
constexpr std::size_t kLignesDetaillees = 100;  // of a picture twice as sharp
const EncresDeBarres kSurPapier{QColor(0x1f, 0x23, 0x28), QColor(0x59, 0x63, 0x6e), QColor(0x2f, 0x6f, 0x9f)};

QString qt(const std::string& texte) {
    return QString::fromStdString(texte);
}

QFont police(qreal pixels, bool grasse = false) {
    QFont resultat;
    resultat.setPixelSize(qRound(pixels));
    resultat.setBold(grasse);
    return resultat;
}

// The title and the bars from `premiere` on, `auPlus` of them.
void peintSurPapier(QPainter& peintre, qreal largeur, const Diagramme& diagramme, std::size_t premiere,
                    std::size_t auPlus, const QString& folio) {
    const QRectF tete(kMarge, kMarge, largeur - 2 * kMarge, kTitre - kEcart);
    peintre.setPen(kSurPapier.texte);
    peintre.setFont(police(16, true));
    peintre.drawText(tete, Qt::AlignLeft | Qt::AlignVCenter, qt(diagramme.titre));
    peintre.setFont(police(13));
    peintre.drawText(tete, Qt::AlignRight | Qt::AlignVCenter, folio);
    const MesuresDeBarres mesures = MesuresDeBarres::de(diagramme, peintre.font(), tete.width());
    qreal haut = kMarge + kTitre;
    const std::size_t fin = std::min(diagramme.barres.size(), premiere + auPlus);
    for (std::size_t i = premiere; i < fin; ++i, haut += kLigne)
        peintBarre(peintre, {kMarge, haut, tete.width(), kLigne}, diagramme, diagramme.barres[i], mesures, kSurPapier);
}

}  // namespace

MesuresDeBarres MesuresDeBarres::de(const Diagramme& diagramme, const QFont& police, qreal largeur) {
    MesuresDeBarres mesures;
    const QFontMetricsF lettres(police);
    std::size_t lues = 0;
    for (const Barre& barre : diagramme.barres) {
        mesures.laPlusLongue = std::max(mesures.laPlusLongue, barre.nombre());
        if (++lues > kMesurees && !barre.manquante) continue;
        mesures.libelle = std::max(mesures.libelle, lettres.horizontalAdvance(qt(barre.libelle)));
        mesures.nombre =
            std::max(mesures.nombre, lettres.horizontalAdvance(qt(ensemble::texteDuNombre(diagramme, barre))));
    }
    mesures.libelle = std::min(mesures.libelle + 2, kPartDuLibelle * largeur);
    return mesures;
}

QString texteDeLaBarre(const Diagramme& diagramme, const Barre& barre) {
    return qt(barre.libelle + " : " + ensemble::texteDuNombre(diagramme, barre));
}

void peintBarre(QPainter& peintre, const QRectF& ligne, const Diagramme& diagramme, const Barre& barre,
                const MesuresDeBarres& mesures, const EncresDeBarres& encres) {
    const QRectF libelle(ligne.left(), ligne.top(), mesures.libelle, ligne.height());
    peintre.setPen(encres.texte);
    peintre.drawText(libelle, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                     QFontMetricsF(peintre.font()).elidedText(qt(barre.libelle), Qt::ElideRight, libelle.width()));
    const qreal place = std::max<qreal>(20, ligne.width() - mesures.libelle - mesures.nombre - 3 * kEcart);
    const qreal longueur =
        std::max<qreal>(2, place * static_cast<qreal>(barre.nombre()) / static_cast<qreal>(mesures.laPlusLongue));
    const QRectF trace(libelle.right() + kEcart, ligne.top() + ligne.height() * 0.18, longueur, ligne.height() * 0.64);
    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(barre.manquante ? QPen(encres.discret, 1) : QPen(Qt::NoPen));
    peintre.setBrush(barre.manquante ? QBrush(encres.discret, Qt::BDiagPattern) : QBrush(encres.barre));
    peintre.drawRoundedRect(trace, 2, 2);
    peintre.restore();
    peintre.setPen(encres.discret);
    peintre.drawText(QRectF(trace.right() + kEcart, ligne.top(), mesures.nombre + kEcart, ligne.height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     qt(ensemble::texteDuNombre(diagramme, barre)));
}

QImage imageDuDiagramme(const Diagramme& diagramme, int largeur) {
    const std::size_t barres = diagramme.barres.size();
    const int echelle = barres <= kLignesDetaillees ? 2 : 1;
    const qreal hauteur = 2 * kMarge + kTitre + static_cast<qreal>(barres) * kLigne;
    QImage image(echelle * largeur, echelle * qRound(hauteur), QImage::Format_RGB32);
    if (image.isNull()) return image;
    image.setDevicePixelRatio(echelle);
    image.fill(Qt::white);
    QPainter peintre(&image);
    peintSurPapier(peintre, largeur, diagramme, 0, barres, {});
    return image;
}

bool imprimeDiagramme(QPrinter& imprimante, const Diagramme& diagramme) {
    constexpr qreal kPointsParPouce = 96;  // the units of what is drawn, as on a screen
    QPainter peintre;
    if (!peintre.begin(&imprimante)) return false;
    const qreal echelle = imprimante.resolution() / kPointsParPouce;
    const QSizeF feuille = imprimante.pageLayout().paintRectPixels(imprimante.resolution()).size() / echelle;
    const qreal place = feuille.height() - 2 * kMarge - kTitre;
    const auto parPage = static_cast<std::size_t>(std::max<qreal>(1, place / kLigne));
    const std::size_t pages = std::max<std::size_t>(1, (diagramme.barres.size() + parPage - 1) / parPage);
    for (std::size_t page = 0; page < pages; ++page) {
        if (page > 0 && !imprimante.newPage()) return false;
        peintre.save();
        peintre.scale(echelle, echelle);
        const QString folio = pages == 1 ? QString() : QStringLiteral("%1 / %2").arg(page + 1).arg(pages);
        peintSurPapier(peintre, feuille.width(), diagramme, page * parPage, parPage, folio);
        peintre.restore();
    }
    return peintre.end();
}

}  // namespace ui
