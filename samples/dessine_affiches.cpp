#include "Motifs.h"
#include "util/Texte.h"

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>
#include <algorithm>
#include <array>

// Draws a poster beside each sheet of a folder: a composition, and the title and director under or over it. What a
// poster looks like depends on the sheet alone, so that drawing again changes nothing.
namespace {

using affiches::Palette;
using affiches::Tirage;

constexpr int kQualiteJpeg = 85;

struct Fiche {
    QString titre, realisateur, annee, genre;
};

struct Caractere {
    const char* famille;
    QFont::Weight graisse;
    bool capitales;
};
// Where a family is missing Qt takes its nearest; the posters that come with the sheets were drawn with all of them.
constexpr std::array<Caractere, 4> kCaracteres = {{
    {"League Spartan", QFont::Bold, true},
    {"C059", QFont::Bold, false},
    {"Nimbus Sans Narrow", QFont::Bold, true},
    {"URW Gothic", QFont::DemiBold, false},
}};

std::uint64_t empreinte(const QString& texte) {
    std::uint64_t somme = 0xcbf29ce484222325;
    for (const char octet : texte.toUtf8())
        somme = (somme ^ static_cast<unsigned char>(octet)) * 0x100000001b3;
    return somme;
}

Fiche litFiche(const QString& chemin) {
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) qFatal("%s : illisible", qPrintable(chemin));
    const QString texte = QString::fromStdString(util::decodeTexteExterne(fichier.readAll().toStdString()));
    QStringList lignes = texte.split(QStringLiteral("\r\n"));
    lignes.resize(9);
    return {lignes[0], lignes[1], lignes[2], lignes[4]};
}

// The title cut into the given number of lines, as even as the words allow; fewer when there are fewer words.
QStringList coupe(const QString& titre, int nombre, const QFontMetricsF& mesure) {
    const QStringList mots = titre.split(QLatin1Char(' '));
    const double visee = mesure.horizontalAdvance(titre) / nombre;
    QStringList lignes{mots.first()};
    for (int i = 1; i < mots.size(); ++i) {
        const QString allongee = lignes.last() + QLatin1Char(' ') + mots[i];
        const double depassement = mesure.horizontalAdvance(allongee) - visee;
        const bool tient = depassement <= visee - mesure.horizontalAdvance(lignes.last());
        if (lignes.size() == nombre || tient) {
            lignes.last() = allongee;
        } else {
            lignes.append(mots[i]);
        }
    }
    return lignes;
}

struct Composition {
    QStringList lignes;
    QFont police;
};

// The largest setting of the title that fits the box, in one to four lines.
Composition compose(const QString& titre, QFont police, const QSizeF& boite, double interligne) {
    Composition meilleure;
    double plusGrande = 0;
    for (int nombre = 1; nombre <= 4; ++nombre) {
        police.setPixelSize(100);
        const QFontMetricsF mesure(police);
        const QStringList lignes = coupe(titre, nombre, mesure);
        double large = 1;
        for (const QString& ligne : lignes)
            large = std::max(large, mesure.horizontalAdvance(ligne));
        const double taille =
            std::min({100 * boite.width() / large, boite.height() / (interligne * static_cast<double>(lignes.size())),
                      boite.height() * 0.5});
        if (taille > plusGrande * 1.02) {
            plusGrande = taille;
            police.setPixelSize(static_cast<int>(taille));
            meilleure = {lignes, police};
        }
    }
    return meilleure;
}

void ecrit(QPainter& p, const QRectF& zone, const Fiche& fiche, const Palette& c, bool surSombre, Tirage& tirage) {
    const Caractere& caractere = kCaracteres[static_cast<std::size_t>(tirage.parmi(4))];
    const bool centre = caractere.capitales ? false : tirage.pileOuFace();
    const double interligne = caractere.capitales ? 0.98 : 1.04;
    QFont police(QString::fromLatin1(caractere.famille), -1, caractere.graisse);

    QFont petite(QStringLiteral("League Spartan"), -1, QFont::DemiBold);
    petite.setPixelSize(static_cast<int>(zone.width() * (fiche.realisateur.size() > 28 ? 0.042 : 0.054)));
    petite.setLetterSpacing(QFont::PercentageSpacing, 104);
    const double hautPetite = QFontMetricsF(petite).height();

    const QSizeF boite(zone.width(), zone.height() - hautPetite * 1.9);
    const auto [lignes, grande] =
        compose(caractere.capitales ? fiche.titre.toUpper() : fiche.titre, police, boite, interligne);
    const QFontMetricsF mesure(grande);
    const double pas = grande.pixelSize() * interligne;
    const double hauteur = pas * static_cast<double>(lignes.size() - 1) + mesure.capHeight();
    double y = zone.top() + (boite.height() - hauteur) / 2 + mesure.capHeight();
    p.setPen(surSombre ? c.clair : c.sombre);
    p.setFont(grande);
    for (const QString& ligne : lignes) {
        const double x = centre ? zone.center().x() - mesure.horizontalAdvance(ligne) / 2 : zone.left();
        p.drawText(QPointF(x, y), ligne);
        y += pas;
    }

    const QRectF pied(zone.left(), zone.bottom() - hautPetite, zone.width(), hautPetite);
    p.fillRect(QRectF(zone.left(), pied.top() - hautPetite * 0.45, zone.width(), std::max(1.5, zone.width() * 0.005)),
               c.vif);
    p.setFont(petite);
    p.drawText(pied, Qt::AlignLeft | Qt::AlignVCenter, fiche.realisateur);
    p.drawText(pied, Qt::AlignRight | Qt::AlignVCenter, fiche.annee);
}

// The grain of paper: flat colours look printed.
void graine(QImage& image, Tirage& tirage) {
    for (int y = 0; y < image.height(); ++y) {
        auto* ligne = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int ecart = static_cast<int>(tirage.entre(-2.2, 2.2) + tirage.entre(-2.2, 2.2));
            const auto voie = [ecart](int valeur) { return std::clamp(valeur + ecart, 0, 255); };
            ligne[x] = qRgb(voie(qRed(ligne[x])), voie(qGreen(ligne[x])), voie(qBlue(ligne[x])));
        }
    }
}

QImage dessine(const Fiche& fiche) {
    Tirage tirage(empreinte(fiche.titre));
    const int largeur = 400 + 20 * tirage.parmi(6);
    QImage image(largeur, largeur * 3 / 2, QImage::Format_RGB32);
    const Palette palette = affiches::palettePour(fiche.genre, tirage);
    const auto motif = affiches::motifPour(fiche.genre, tirage);
    const bool surSombre = tirage.pileOuFace(), titreEnHaut = tirage.parmi(3) == 0, cadre = tirage.pileOuFace();
    const double marge = largeur * 0.07;

    image.fill(surSombre ? palette.sombre : palette.clair);
    const QRectF page(image.rect());
    const double partTexte = page.height() * 0.3;
    QRectF tableau = titreEnHaut ? page.adjusted(0, partTexte, 0, 0) : page.adjusted(0, 0, 0, -partTexte);
    if (cadre) tableau.adjust(marge, titreEnHaut ? 0 : marge, -marge, titreEnHaut ? -marge : 0);
    const QRectF texte = titreEnHaut ? QRectF(marge, marge, page.width() - 2 * marge, partTexte - marge * 1.7)
                                     : QRectF(marge, page.height() - partTexte + marge * 0.7, page.width() - 2 * marge,
                                              partTexte - marge * 1.6);

    QPainter peintre(&image);
    peintre.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    peintre.save();
    peintre.setClipRect(tableau);
    peintre.setPen(Qt::NoPen);
    motif(peintre, tableau, palette, tirage);
    peintre.restore();
    ecrit(peintre, texte, fiche, palette, surSombre, tirage);
    peintre.end();
    graine(image, tirage);
    return image;
}

}  // namespace

int main(int nombre, char** arguments) {
    const QGuiApplication application(nombre, arguments);
    if (nombre != 2) qFatal("usage: dessine_affiches DOSSIER");
    QTextStream sortie(stdout);
    const QDir dossier(QString::fromLocal8Bit(arguments[1]));
    for (const QFileInfo& fiche : dossier.entryInfoList({QStringLiteral("*.FILM")}, QDir::Files, QDir::Name)) {
        const QString affiche = dossier.filePath(fiche.completeBaseName() + QStringLiteral(".jpg"));
        if (!dessine(litFiche(fiche.filePath())).save(affiche, "JPG", kQualiteJpeg)) qFatal("%s", qPrintable(affiche));
        sortie << affiche << ' ' << QFileInfo(affiche).size() << '\n';
    }
    return 0;
}
