#include "ui/Etiquettes.h"

#include "ui/Couleurs.h"
#include "ui/Infobulles.h"
#include "ui/Typographie.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>
#include <utility>

namespace ui {

QFont policeRelative(double facteur, QFont::Weight graisse) {
    QFont police = QApplication::font();
    if (police.pointSizeF() > 0)
        police.setPointSizeF(police.pointSizeF() * facteur);
    else
        police.setPixelSize(static_cast<int>(police.pixelSize() * facteur));
    police.setWeight(graisse);
    return police;
}

Etiquette::Etiquette(const QString& texte, QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setText(texte);
    setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

Etiquette* Etiquette::avecTon(Ton ton) {
    m_ton = ton;
    return this;
}

Etiquette* Etiquette::avecLignes(int maximum) {
    m_lignesMax = maximum;
    QSizePolicy politique(QSizePolicy::Preferred, QSizePolicy::Preferred);
    politique.setHeightForWidth(maximum > 1);
    setSizePolicy(politique);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return this;
}

Etiquette* Etiquette::avecPolice(double facteur, QFont::Weight graisse) {
    setFont(policeRelative(facteur, graisse));
    return this;
}

// Of a text of megabytes, no more is measured than so many lines could ever show.
QString Etiquette::debut(const QString& texte) const {
    constexpr qsizetype kParLigne = 2000;  // characters
    return sansSigneIsole(texte.left(kParLigne * (m_lignesMax + 1)));
}

Etiquette::Lignes Etiquette::lignes(int largeur) const {
    Lignes resultat;
    const QFontMetricsF mesure(font());
    for (const QString& paragraphe : debut(text()).split(QLatin1Char('\n'))) {
        QTextLayout mise(paragraphe, font());
        mise.beginLayout();
        for (QTextLine ligne = mise.createLine(); ligne.isValid(); ligne = mise.createLine()) {
            if (resultat.textes.size() == m_lignesMax) {
                if (!std::exchange(resultat.coupees, true))  // the last line alone was whole
                    resultat.textes.last() =
                        mesure.elidedText(resultat.textes.last() + QStringLiteral(" …"), Qt::ElideRight, largeur + 1);
                break;
            }
            ligne.setLineWidth(m_lignesMax > 1 ? largeur : 1e6);
            resultat.textes << paragraphe.mid(ligne.textStart(), ligne.textLength()).trimmed();
            const bool derniere = resultat.textes.size() == m_lignesMax;
            if (!derniere && mesure.horizontalAdvance(resultat.textes.last()) <= largeur) continue;
            const QString reste = derniere ? paragraphe.mid(ligne.textStart()).trimmed() : resultat.textes.last();
            const QString coupe = mesure.elidedText(reste, Qt::ElideRight, largeur + 1);
            resultat.coupees |= coupe != reste;
            resultat.textes.last() = coupe;
            if (derniere) break;
        }
        mise.endLayout();
    }
    return resultat;
}

int Etiquette::interligne() const {
    return m_lignesMax > 1 ? fontMetrics().lineSpacing() * 6 / 5 : fontMetrics().lineSpacing();
}

int Etiquette::hauteur(qsizetype nombre) const {
    const QMargins marges = contentsMargins();
    return static_cast<int>(std::max<qsizetype>(nombre, 1)) * interligne() + marges.top() + marges.bottom();
}

QSize Etiquette::sizeHint() const {
    int largeur = 0;
    const QStringList paragraphes = debut(text()).split(QLatin1Char('\n'));
    for (const QString& paragraphe : paragraphes)
        largeur = std::max(largeur, fontMetrics().horizontalAdvance(paragraphe) + 1);
    if (m_lignesMax > 1) largeur = std::min(largeur, fontMetrics().averageCharWidth() * 60);
    return {largeur, hauteur(m_lignesMax > 1 ? lignes(std::max(largeur, 1)).textes.size() : 1)};
}

QSize Etiquette::minimumSizeHint() const {
    return {std::min(sizeHint().width(), fontMetrics().averageCharWidth() * 8), hauteur(1)};
}

int Etiquette::heightForWidth(int largeur) const {
    return hauteur(lignes(largeur).textes.size());
}

void Etiquette::peintLegende(QPainter& peintre) const {
    peintre.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextShowMnemonic, text());
}

void Etiquette::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.setFont(font());
    QColor couleur = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    if (isEnabled() && m_ton == Ton::Discret) couleur = texteDiscret(palette());
    if (isEnabled() && m_ton == Ton::Accent) couleur = accentLisible(palette());
    peintre.setPen(couleur);
    if (buddy()) return peintLegende(peintre);
    const QRect zone = contentsRect();
    const Lignes textes = lignes(zone.width());
    const int haut = static_cast<int>(textes.textes.size()) * interligne();
    const bool centre = alignment() & Qt::AlignVCenter;
    QRect ligne(zone.left(), centre ? zone.center().y() - haut / 2 : zone.top(), zone.width(), interligne());
    for (const QString& texte : textes.textes) {
        peintre.drawText(ligne, static_cast<int>(alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter, texte);
        ligne.translate(0, interligne());
    }
}

bool Etiquette::event(QEvent* evenement) {
    if (evenement->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QLabel::event(evenement);
    const bool coupe = !buddy() && (lignes(contentsRect().width()).coupees ||
                                    hauteur(lignes(contentsRect().width()).textes.size()) > height());
    QToolTip::showText(static_cast<QHelpEvent*>(evenement)->globalPos(), coupe ? enInfobulle(text()) : QString(), this);
    return true;
}

TitreDeSection::TitreDeSection(double facteur, QWidget* parent) : Etiquette({}, parent) {
    avecPolice(facteur, QFont::DemiBold);
}

void TitreDeSection::paintEvent(QPaintEvent*) {
    const QString entier = text();
    const qsizetype debut = entier.startsWith(QLatin1String(" - ")) ? 3 : 0;
    const qsizetype fin =
        debut > 0 && entier.contains(QLatin1Char(':')) ? entier.lastIndexOf(QLatin1Char(':')) : entier.size();
    const QFontMetricsF mesure(font());
    const QColor encre = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    const QColor cadre = isEnabled() ? accentLisible(palette()) : encre;
    QPainter peintre(this);
    peintre.setFont(font());
    QRectF zone = contentsRect();
    if (debut > 0) zone.setLeft(zone.left() - mesure.horizontalAdvance(QLatin1Char(' ')));
    const std::pair<QString, QColor> morceaux[] = {
        {entier.left(debut), cadre}, {entier.mid(debut, fin - debut), encre}, {entier.mid(fin), cadre}};
    for (const auto& [texte, couleur] : morceaux) {
        peintre.setPen(couleur);
        peintre.drawText(zone, Qt::AlignLeft | Qt::AlignVCenter,
                         mesure.elidedText(texte, Qt::ElideRight, zone.width() + 1));
        zone.setLeft(zone.left() + mesure.horizontalAdvance(texte));
    }
}

}  // namespace ui
