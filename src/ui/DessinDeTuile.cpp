#include "ui/DessinDeTuile.h"

#include "ui/Couleurs.h"
#include "ui/Icones.h"
#include "ui/Marques.h"
#include "ui/Traits.h"

#include <QPainter>
#include <QTextLayout>
#include <QWidget>
#include <algorithm>

namespace ui {

namespace {

constexpr int kEntreMarques = 4;
constexpr int kLargeurDesGrandsTitres = 190;

// So many lines at most, in the middle; the height that they take.
int dessineLignes(QPainter& peintre, const QRect& place, const QString& texte, int lignesAuPlus) {
    const QFontMetrics mesure = peintre.fontMetrics();
    QTextLayout mise(texte, peintre.font());
    QTextOption option(Qt::AlignHCenter);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    mise.setTextOption(option);
    mise.beginLayout();
    int y = place.y();
    for (int i = 0; i < lignesAuPlus; ++i) {
        QTextLine ligne = mise.createLine();
        if (!ligne.isValid()) break;
        ligne.setLineWidth(place.width());
        const bool derniere = i + 1 == lignesAuPlus;
        const QString reste = texte.mid(ligne.textStart(), derniere ? -1 : ligne.textLength()).trimmed();
        peintre.drawText(QRect(place.x(), y, place.width(), mesure.height()), Qt::AlignHCenter | Qt::AlignTop,
                         derniere ? mesure.elidedText(reste, Qt::ElideRight, place.width()) : reste);
        y += mesure.height();
    }
    mise.endLayout();
    return y - place.y();
}

void dessineAffiche(QPainter& peintre, const QRect& place, const TuileDessinee& film, const QWidget& mur) {
    const QPalette palette = mur.palette();
    peintAfficheVierge(peintre, place, palette);
    const QColor fond = palette.color(QPalette::Window), teinte = accent(palette);
    const int marge = std::max(6, place.width() / 12), ligne = mur.fontMetrics().height();
    QRect dedans = place.adjusted(marge, marge + place.height() / 14, -marge, -marge);
    QFont police = mur.font();
    police.setWeight(QFont::DemiBold);
    if (place.width() >= kLargeurDesGrandsTitres) police.setPointSizeF(police.pointSizeF() * 1.2);
    peintre.setFont(police);
    peintre.setPen(palette.color(QPalette::WindowText));
    dedans.setTop(dedans.top() + dessineLignes(peintre, dedans, film.titre, 4) + marge / 2);
    peintre.setFont(mur.font());
    peintre.setPen(lisible(texteDiscret(palette), {melange(teinte, fond, 0.26), melange(teinte, fond, 0.10)}));
    dedans.setTop(dedans.top() + dessineLignes(peintre, dedans, film.realisateur, 2));
    peintre.drawText(QRect(dedans.x(), dedans.bottom() + 1 - ligne, dedans.width(), ligne), Qt::AlignCenter,
                     mur.fontMetrics().elidedText(film.annee, Qt::ElideRight, dedans.width()));
    const qreal cote = std::min(place.width() * 0.3, dedans.height() - ligne - marge - 0.0);
    if (cote < 20) return;
    const QPointF milieu(dedans.center().x(), dedans.top() + (dedans.height() - ligne) / 2.0);
    peintPictogramme(peintre, QRectF(milieu.x() - cote / 2, milieu.y() - cote / 2, cote, cote), Pictogramme::Clap,
                     melange(teinte, fond, 0.55));
}

// In the poster's lower corner, on a ground of their own.
void dessineMarques(QPainter& peintre, const QRect& affiche, const browse::MarquesFilm& marques, const QWidget& mur) {
    const std::vector<Marque> dessinees = marquesDessinees(marques);
    if (dessinees.empty()) return;
    const int cote = mur.fontMetrics().ascent(), large = cote + kEntreMarques;
    const QSize taille(static_cast<int>(dessinees.size()) * large + kEntreMarques, cote + 2 * kEntreMarques);
    const QRect fond(affiche.bottomRight() - QPoint(taille.width() + 3, taille.height() + 3), taille);
    const QPalette palette = mur.palette();
    const QColor surface = palette.color(QPalette::Base);
    peintSurface(peintre, QRectF(fond), surface, filet(palette));
    int droite = fond.right() + 1 - kEntreMarques;
    for (const Marque& marque : dessinees) {
        peintPictogramme(peintre, QRect(droite - cote, fond.y() + kEntreMarques, cote, cote), marque.pictogramme,
                         marque.vive ? accentLisible(palette) : lisible(texteDiscret(palette), {surface}));
        droite -= large;
    }
}

}  // namespace

QRect cadreDeLaTuile(const QRect& tuile) {
    return {tuile.x(), tuile.y(), tuile.width(), tuile.width() * 3 / 2};
}

void dessineTuile(QPainter& peintre, const QRect& tuile, const TuileDessinee& film, const QWidget& mur) {
    const QPalette palette = mur.palette();
    QRect place = cadreDeLaTuile(tuile);
    if (film.image && !film.image->isNull()) {
        const QSize taille = film.image->size().scaled(place.size(), Qt::KeepAspectRatio);
        place = QRect(QPoint(place.x() + (place.width() - taille.width()) / 2, place.bottom() + 1 - taille.height()),
                      taille);
        peintre.drawPixmap(place, *film.image);
    } else if (film.image) {
        dessineAffiche(peintre, place, film, mur);
    } else {
        peintSurface(peintre, QRectF(place), voile(palette), {});
    }
    dessineMarques(peintre, place, film.marques, mur);
    if (film.courante || film.survolee)
        peintContourDeFocus(peintre, place, film.courante ? accentLisible(palette) : filet(palette), 3);
    const int haute = mur.fontMetrics().height();
    const QRect ligne(tuile.x(), tuile.bottom() + 1 - haute, tuile.width(), haute);
    peintre.setFont(mur.font());
    peintre.setPen(film.courante ? palette.color(QPalette::WindowText) : texteDiscret(palette));
    peintre.drawText(ligne, Qt::AlignHCenter | Qt::AlignVCenter,
                     mur.fontMetrics().elidedText(film.titre, Qt::ElideRight, ligne.width()));
}

}  // namespace ui
