#include "Motifs.h"

#include <QHash>
#include <QLinearGradient>
#include <QList>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace affiches {
namespace {

constexpr double kTour = 2 * std::numbers::pi;

QColor melange(const QColor& de, const QColor& a, double part) {
    const auto voie = [part](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * part)); };
    return QColor(voie(de.red(), a.red()), voie(de.green(), a.green()), voie(de.blue(), a.blue()));
}

void ciel(QPainter& p, const QRectF& r, const QColor& haut, const QColor& bas) {
    QLinearGradient fondu(r.topLeft(), r.bottomLeft());
    fondu.setColorAt(0, haut);
    fondu.setColorAt(1, bas);
    p.fillRect(r, fondu);
}

// A sun over hills, each range darker than the one behind.
void collines(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    ciel(p, r, c.fond, melange(c.fond, c.clair, 0.75));
    const double rayon = r.width() * t.entre(0.2, 0.28);
    p.setBrush(c.vif);
    p.drawEllipse(QPointF(r.left() + r.width() * t.entre(0.3, 0.7), r.top() + r.height() * t.entre(0.34, 0.46)), rayon,
                  rayon);
    for (int rang = 0; rang < 4; ++rang) {
        const double base = r.top() + r.height() * (0.52 + 0.13 * rang), ampleur = r.height() * 0.05;
        const double phase = t.entre(0, kTour), ondes = t.entre(0.6, 1.3);
        QPainterPath crete(QPointF(r.left(), r.bottom()));
        for (double x = 0; x <= 1.001; x += 0.02) {
            const double onde = std::sin(phase + kTour * ondes * x) + 0.35 * std::sin(2.3 * phase + kTour * 2.6 * x);
            crete.lineTo(r.left() + x * r.width(), base + ampleur * onde);
        }
        crete.lineTo(r.bottomRight());
        p.setBrush(melange(melange(c.doux, c.fond, 0.25), c.sombre, 0.3 * rang));
        p.drawPath(crete);
    }
}

// Rings around a point that is not the middle.
void anneaux(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    p.fillRect(r, c.fond);
    const QPointF centre(r.left() + r.width() * t.entre(0.25, 0.75), r.top() + r.height() * t.entre(0.3, 0.7));
    const std::array<QColor, 4> teintes = {c.sombre, c.doux, c.clair, c.vif};
    const int debut = t.parmi(4);
    const double pas = r.width() * t.entre(0.075, 0.1);
    for (int i = 9; i >= 0; --i) {
        p.setBrush(i % 2 ? c.fond : teintes[static_cast<std::size_t>((debut + i / 2) % 4)]);
        p.drawEllipse(centre, pas * (i + 0.7), pas * (i + 0.7));
    }
}

// Parallel bars across the field, as on concert posters.
void diagonales(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    p.fillRect(r, c.fond);
    p.translate(r.center());
    p.rotate(t.pileOuFace() ? -34 : 34);
    const double longueur = r.height() * 1.4;
    const std::array<QColor, 4> teintes = {c.vif, c.clair, c.sombre, c.doux};
    int rang = t.parmi(4);
    for (double y = -r.height() * 0.62; y < r.height() * 0.62;) {
        const double epaisseur = r.height() * t.entre(0.03, 0.1);
        p.setBrush(teintes[static_cast<std::size_t>(rang++ % 4)]);
        const double debut = t.entre(-0.75, -0.1) * longueur;
        p.drawRoundedRect(QRectF(debut, y, t.entre(0.35, 0.9) * longueur, epaisseur), epaisseur / 2, epaisseur / 2);
        y += epaisseur * 1.42;
    }
}

// Quarter circles on a grid, turned at random.
void mosaique(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    p.fillRect(r, c.fond);
    const std::array<QColor, 5> teintes = {c.vif, c.clair, c.doux, c.sombre, c.fond};
    const int colonnes = 4, rangees = static_cast<int>(std::ceil(r.height() / (r.width() / colonnes)));
    const double cote = r.width() / colonnes;
    for (int i = 0; i < colonnes * rangees; ++i) {
        const QRectF carreau(r.left() + cote * (i % colonnes), r.top() + cote * (i / colonnes), cote, cote);
        const int fond = t.parmi(5), devant = (fond + 1 + t.parmi(4)) % 5;
        p.fillRect(carreau.adjusted(0, 0, 0.6, 0.6), teintes[static_cast<std::size_t>(fond)]);
        const std::array<QPointF, 4> coins = {carreau.topLeft(), carreau.topRight(), carreau.bottomRight(),
                                              carreau.bottomLeft()};
        const QPointF coin = coins[static_cast<std::size_t>(t.parmi(4))];
        p.save();
        p.setClipRect(carreau, Qt::IntersectClip);
        p.setBrush(teintes[static_cast<std::size_t>(devant)]);
        p.drawEllipse(t.parmi(5) == 0 ? carreau.center() : coin, cote * (t.parmi(4) ? 1 : 0.5),
                      cote * (t.parmi(4) ? 1 : 0.5));
        p.restore();
    }
}

// A town at night, a few windows lit.
void ville(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    ciel(p, r, melange(c.fond, c.sombre, 0.35), melange(c.fond, c.clair, 0.35));
    const double lune = r.width() * t.entre(0.1, 0.16);
    p.setBrush(c.clair);
    p.drawEllipse(QPointF(r.left() + r.width() * t.entre(0.2, 0.8), r.top() + r.height() * 0.2), lune, lune);
    for (int plan = 0; plan < 3; ++plan) {
        const QColor mur = melange(melange(c.fond, c.doux, 0.3), c.sombre, 0.35 + 0.32 * plan);
        const double cran = r.width() * 0.022;
        for (double x = r.left() - cran * t.parmi(4); x < r.right();) {
            const int baies = 2 + t.parmi(3);
            const double largeur = cran * (2 * baies + 1),
                         haut = r.bottom() - r.height() * t.entre(0.2, 0.62 - 0.13 * plan);
            p.fillRect(QRectF(x, haut, largeur, r.bottom() - haut), mur);
            for (double y = haut + cran * 1.5; plan > 0 && y < r.bottom(); y += cran * 2.4) {
                for (int baie = 0; baie < baies; ++baie) {
                    if (t.parmi(100) < 16)
                        p.fillRect(QRectF(x + cran * (2 * baie + 1), y, cran, cran * 1.4),
                                   t.parmi(5) ? c.vif : c.clair);
                }
            }
            x += largeur + cran * t.parmi(2);
        }
    }
}

// Large discs laid over one another like inks.
void disques(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    p.fillRect(r, melange(c.clair, c.fond, 0.08));
    p.setCompositionMode(QPainter::CompositionMode_Multiply);
    const double tour = t.entre(0, kTour), rayon = r.width() * t.entre(0.3, 0.36);
    const std::array<QColor, 3> teintes = {melange(c.vif, c.clair, 0.1), melange(c.doux, c.clair, 0.15),
                                           melange(c.fond, c.clair, 0.15)};
    for (int i = 0; i < 3; ++i) {
        const double angle = tour + kTour * i / 3;
        p.setBrush(teintes[static_cast<std::size_t>(i)]);
        p.drawEllipse(r.center() + QPointF(std::cos(angle), std::sin(angle)) * rayon * 0.62, rayon, rayon);
    }
}

// Dots on a growing spiral.
void spirale(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    p.fillRect(r, c.fond);
    const QPointF centre = r.center() + QPointF(r.width() * t.entre(-0.1, 0.1), r.height() * t.entre(-0.08, 0.08));
    const double depart = t.entre(0, kTour), serrage = r.width() * 0.036;
    for (int i = 1; i < 340; ++i) {
        const double distance = serrage * std::sqrt(i) * 1.15, angle = depart + i * 2.39996323;
        p.setBrush(i % 21 == 0 ? c.vif : melange(c.clair, c.doux, std::min(1.0, i / 240.0)));
        const double taille = serrage * (0.2 + 0.52 * std::min(1.0, i / 210.0));
        p.drawEllipse(centre + QPointF(std::cos(angle), std::sin(angle)) * distance, taille, taille);
    }
}

// Mountains of two faces under a moon.
void montagnes(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    ciel(p, r, c.fond, melange(c.fond, c.clair, 0.6));
    const double lune = r.width() * t.entre(0.1, 0.17);
    p.setBrush(c.vif);
    p.drawEllipse(QPointF(r.left() + r.width() * t.entre(0.2, 0.8), r.top() + r.height() * t.entre(0.18, 0.28)), lune,
                  lune);
    for (int plan = 0; plan < 3; ++plan) {
        const QColor clair = melange(melange(c.doux, c.clair, 0.3), c.sombre, 0.26 * plan);
        for (int i = 0; i < 4 - plan; ++i) {
            const double x = r.left() + r.width() * (i + t.entre(0.1, 0.9)) / (4 - plan);
            const double y = r.bottom() - r.height() * (t.entre(0.34, 0.6) - 0.13 * plan),
                         demi = r.width() * t.entre(0.34, 0.46);
            const QPointF cime(x, y), pied(x + demi * t.entre(-0.25, 0.05), r.bottom());
            p.setBrush(clair);
            p.drawPolygon(QPolygonF({cime, pied, QPointF(x - demi, r.bottom())}));
            p.setBrush(melange(clair, c.sombre, 0.45));
            p.drawPolygon(QPolygonF({cime, pied, QPointF(x + demi, r.bottom())}));
        }
    }
}

// Rays from a half sun on the lower edge.
void rayons(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    p.fillRect(r, c.fond);
    const QPointF foyer(r.left() + r.width() * t.entre(0.3, 0.7), r.bottom() - r.height() * t.entre(0, 0.18));
    const int nombre = 22 + 2 * t.parmi(5);
    const double loin = r.height() * 1.6, tour = t.entre(0, kTour);
    for (int i = 0; i < nombre; i += 2) {
        const double un = tour + kTour * i / nombre, deux = tour + kTour * (i + 1) / nombre;
        p.setBrush(melange(c.fond, i % 4 ? c.doux : c.clair, 0.8));
        p.drawPolygon(QPolygonF({foyer, foyer + QPointF(std::cos(un), std::sin(un)) * loin,
                                 foyer + QPointF(std::cos(deux), std::sin(deux)) * loin}));
    }
    const std::array<QColor, 3> teintes = {c.sombre, c.clair, c.vif};
    for (int i = 0; i < 3; ++i) {
        p.setBrush(teintes[static_cast<std::size_t>(i)]);
        p.drawEllipse(foyer, r.width() * (0.36 - 0.045 * i), r.width() * (0.36 - 0.045 * i));
    }
}

// Rain on umbrellas seen from a window.
void pluie(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    ciel(p, r, melange(c.fond, c.sombre, 0.25), melange(c.fond, c.clair, 0.4));
    p.setPen(QPen(melange(c.fond, c.clair, 0.65), r.width() * 0.006, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 170; ++i) {
        const QPointF goutte(r.left() + r.width() * t.entre(-0.05, 1.05), r.top() + r.height() * t.entre(-0.05, 1));
        p.drawLine(goutte, goutte + QPointF(-0.016, 0.055) * r.width());
    }
    const std::array<QColor, 4> teintes = {c.vif, c.clair, c.doux, c.sombre};
    const int debut = t.parmi(4);
    for (int i = 0; i < 5; ++i) {
        const double rayon = r.width() * (0.17 + 0.035 * i);
        const QPointF haut(r.left() + r.width() * ((i * 2 % 5) + t.entre(0.2, 0.8)) / 5,
                           r.top() + r.height() * (0.5 + 0.12 * i));
        const QColor toile = teintes[static_cast<std::size_t>((debut + i) % 4)];
        p.setPen(QPen(c.sombre, r.width() * 0.009, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(haut + QPointF(0, -rayon * 1.1), haut + QPointF(0, rayon));
        p.setPen(Qt::NoPen);
        for (int pan = 0; pan < 3; ++pan) {
            const double part = 1.0 - 0.36 * pan;
            p.setBrush(melange(toile, c.sombre, 0.16 * pan));
            p.drawPie(QRectF(haut.x() - rayon * part, haut.y() - rayon, 2 * rayon * part, 2 * rayon), 0, 180 * 16);
        }
    }
}

// Bands of water.
void vagues(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    p.fillRect(r, melange(c.clair, c.fond, 0.12));
    const double rayon = r.width() * t.entre(0.14, 0.2);
    p.setBrush(c.vif);
    p.drawEllipse(QPointF(r.left() + r.width() * t.entre(0.25, 0.75), r.top() + r.height() * 0.24), rayon, rayon);
    const double sens = t.pileOuFace() ? 1 : -1;
    for (int rang = 0; rang < 8; ++rang) {
        const double base = r.top() + r.height() * (0.36 + 0.085 * rang), ondes = 1.1 + 0.16 * rang,
                     phase = sens * rang * 1.1 + t.entre(0, 0.6);
        QPainterPath flot(QPointF(r.left(), r.bottom()));
        for (double x = 0; x <= 1.001; x += 0.02) {
            flot.lineTo(r.left() + x * r.width(), base + r.height() * 0.026 * std::sin(phase + kTour * ondes * x));
        }
        flot.lineTo(r.bottomRight());
        p.setBrush(rang % 2 ? melange(c.doux, c.fond, rang / 8.0) : melange(c.fond, c.sombre, rang / 9.0));
        p.drawPath(flot);
    }
}

// A curtain lit by a spotlight.
void rideau(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    const int plis = 9 + t.parmi(4);
    const double largeur = r.width() / plis;
    for (int i = 0; i < plis; ++i) {
        QLinearGradient pli(r.left() + largeur * i, 0, r.left() + largeur * (i + 1), 0);
        pli.setColorAt(0, melange(c.fond, c.sombre, 0.55));
        pli.setColorAt(0.45, melange(c.fond, c.vif, 0.18));
        pli.setColorAt(1, melange(c.fond, c.sombre, 0.4));
        p.fillRect(QRectF(r.left() + largeur * i, r.top(), largeur + 1, r.height()), pli);
    }
    const QPointF halo(r.left() + r.width() * t.entre(0.35, 0.65), r.top() + r.height() * 0.5);
    const double rayon = r.width() * 0.33;
    QColor faisceau = c.clair;
    faisceau.setAlpha(46);
    p.setBrush(faisceau);
    p.drawPolygon(QPolygonF(
        {QPointF(r.center().x(), r.top() - r.height() * 0.2), halo + QPointF(-rayon, 0), halo + QPointF(rayon, 0)}));
    p.setBrush(c.sombre);
    p.drawEllipse(halo, rayon, rayon);
    p.setBrush(c.clair);
    p.drawChord(QRectF(halo.x() - rayon, halo.y() - rayon, 2 * rayon, 2 * rayon), 45 * 16, 180 * 16);
    p.setBrush(c.vif);
    p.drawEllipse(halo, rayon * 0.34, rayon * 0.34);
}

// A chequered floor that runs to the horizon.
void damier(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    ciel(p, r, c.fond, melange(c.fond, c.clair, 0.7));
    const double horizon = r.top() + r.height() * t.entre(0.42, 0.5), fuite = r.left() + r.width() * t.entre(0.3, 0.7);
    const double rayon = r.width() * t.entre(0.15, 0.22);
    p.setBrush(c.vif);
    p.drawEllipse(QPointF(fuite, horizon - rayon * t.entre(0.5, 1.3)), rayon, rayon);
    p.fillRect(QRectF(r.left(), horizon, r.width(), r.bottom() - horizon), c.clair);
    const auto pied = [&](int colonne, double part) {
        return QPointF(fuite + (colonne - 12) * r.width() * 0.24 * part, horizon + (r.bottom() - horizon) * part);
    };
    p.setBrush(c.sombre);
    for (int rang = 0; rang < 14; ++rang) {
        const double loin = 1 / (1 + 0.34 * (rang + 1)), pres = 1 / (1 + 0.34 * rang);
        for (int colonne = rang % 2; colonne < 24; colonne += 2) {
            p.drawPolygon(QPolygonF(
                {pied(colonne, loin), pied(colonne + 1, loin), pied(colonne + 1, pres), pied(colonne, pres)}));
        }
    }
}

// Arches within arches, a light at the end.
void arches(QPainter& p, const QRectF& r, const Palette& c, Tirage& t) {
    p.fillRect(r, c.fond);
    const int nombre = 6;
    const double axe = r.left() + r.width() * t.entre(0.42, 0.58);
    for (int i = 0; i < nombre; ++i) {
        const double part = 1 - i / static_cast<double>(nombre), demi = r.width() * 0.56 * part;
        const double haut = r.bottom() - r.height() * (0.24 + 0.66 * part);
        QPainterPath arche(QPointF(axe - demi, r.bottom()));
        arche.lineTo(axe - demi, haut + demi);
        arche.arcTo(QRectF(axe - demi, haut, 2 * demi, 2 * demi), 180, -180);
        arche.lineTo(axe + demi, r.bottom());
        p.setBrush(i == nombre - 1 ? c.clair : i == nombre - 2 ? c.vif : melange(c.doux, c.sombre, i / 3.6));
        p.drawPath(arche);
    }
}

const std::array<Palette, 12> kPalettes = {{
    {"#1d3461", "#0b1326", "#f4ede0", "#fca311", "#4f7cac"},  // night
    {"#e0c9a0", "#2b2d42", "#fff8ec", "#d1495b", "#edae49"},  // sand
    {"#0f4c5c", "#082b35", "#f3efe6", "#e36414", "#5fa8a3"},  // sea
    {"#8fbfa9", "#22333b", "#f7f3ea", "#ea6a47", "#2f6f73"},  // mint
    {"#b3202a", "#1c1b1e", "#f5ebdd", "#f2b134", "#6d1019"},  // velvet
    {"#5a2d54", "#22111f", "#f6e8e3", "#e4738c", "#8d5a97"},  // plum
    {"#d9902f", "#3a1f14", "#fbf0dc", "#a4341f", "#f3c969"},  // ochre
    {"#b9c0c6", "#1f2428", "#fafafa", "#d7263d", "#7d8a94"},  // stone
    {"#2d4a36", "#14241a", "#f2ecd8", "#d8a03d", "#7fa06b"},  // forest
    {"#eab2a6", "#3b2a4a", "#fff5ee", "#d6456b", "#6b7fb3"},  // rose
    {"#7fb2cf", "#1d3557", "#f8f4e9", "#e63946", "#f4c95d"},  // sky
    {"#2a2a2e", "#0d0d0f", "#ece7dc", "#cfae5b", "#6a6e75"},  // ink
}};

struct Choix {
    QList<int> palettes;
    QList<Motif> motifs;
};

const Choix& choixPour(const QString& genre) {
    static const Choix ordinaire = {
        {0, 2, 4, 5, 7, 1, 8},
        {arches, disques, vagues, diagonales, anneaux, collines, spirale, ville, damier, montagnes, rideau}};
    static const QHash<QString, Choix> parGenre = {
        {QStringLiteral("Comédie"), {{1, 10, 9, 3}, {mosaique, disques, diagonales, rideau, damier, rayons}}},
        {QStringLiteral("Comédie dramatique"),
         {{3, 9, 1, 5, 10}, {vagues, disques, anneaux, mosaique, rideau, arches, montagnes}}},
        {QStringLiteral("Comédie musicale"), {{9, 10}, {pluie}}},
        {QStringLiteral("Guerre"), {{8, 7}, {collines, montagnes}}},
        {QStringLiteral("Fantastique"), {{5, 8}, {spirale, montagnes, arches, anneaux}}},
        {QStringLiteral("Aventures"), {{6, 8}, {montagnes, vagues, collines}}},
        {QStringLiteral("Policier"), {{11, 0, 4}, {ville, spirale, anneaux, damier}}},
        {QStringLiteral("Documentaire"), {{2}, {vagues}}},
        {QStringLiteral("Drame historique"), {{6, 4, 11}, {rayons, montagnes, rideau, arches}}},
        {QStringLiteral("Western"), {{6}, {collines}}},
        {QStringLiteral("Animation"), {{10, 3, 9, 11}, {montagnes, mosaique, collines, vagues, anneaux}}},
        {QStringLiteral("Science-fiction"), {{0, 11, 2}, {ville, anneaux}}},
    };
    const auto trouve = parGenre.constFind(genre);
    return trouve == parGenre.constEnd() ? ordinaire : *trouve;
}

}  // namespace

Palette palettePour(const QString& genre, Tirage& tirage) {
    const auto& indices = choixPour(genre).palettes;
    return kPalettes[static_cast<std::size_t>(indices[tirage.parmi(static_cast<int>(indices.size()))])];
}

Motif motifPour(const QString& genre, Tirage& tirage) {
    const auto& motifs = choixPour(genre).motifs;
    return motifs[tirage.parmi(static_cast<int>(motifs.size()))];
}

}  // namespace affiches
