#include "ui/ExportPapier.h"

#include "ui/Typographie.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <QLocale>
#include <QPagedPaintDevice>
#include <algorithm>
#include <array>

namespace ui {

namespace {

using exportation::Champ;
using exportation::FilmExporte;

const QColor kEncre(0x22, 0x26, 0x2b), kDiscret(0x55, 0x59, 0x60), kTrait(0xc8, 0xc4, 0xbc), kAccent(0x9a, 0x4b, 0x12);
constexpr qreal kLargeurAffiche = 26, kHauteurAffiche = 38, kEcart = 4;  // millimetres
constexpr qreal kTitre = 11.5, kTexte = 9, kPetit = 8;                   // points
constexpr int kLignesDeRangee = 6;                                       // the longest title of the base
constexpr long kGrandCatalogue = 2000;                                   // films

// What a list has a column for, and how wide it is beside the others.
struct Part {
    Champ champ;
    qreal part;
};
constexpr std::array kParts{Part{Champ::Titre, 30}, Part{Champ::Realisateur, 21}, Part{Champ::Annee, 9},
                            Part{Champ::Genre, 15}, Part{Champ::Duree, 9},        Part{Champ::Origine, 15},
                            Part{Champ::Note, 8},   Part{Champ::Support, 12},     Part{Champ::Rangement, 14},
                            Part{Champ::Pret, 13}};

// What makes a line of its own out of a value, and what no font shows.
QString propre(const std::string& texte) {
    QString propre = QString::fromStdString(texte);
    propre.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    propre.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    std::replace_if(
        propre.begin(), propre.end(),
        [](QChar c) { return c != QLatin1Char('\n') && (c.category() == QChar::Other_Control); }, QLatin1Char(' '));
    return sansSigneIsole(propre);
}

QString enTete(Champ champ) {
    return QString::fromUtf8(exportation::intitule(champ));
}

}  // namespace

CatalogueSurPapier::CatalogueSurPapier(QPagedPaintDevice& papier, int resolution, Sujet sujet)
    : m_papier(papier), m_resolution(resolution), m_sujet(std::move(sujet)) {}

bool CatalogueSurPapier::montre(MiseEnPage miseEnPage, Champ champ) {
    if (miseEnPage == MiseEnPage::Fiches) return champ != Champ::Possede;
    return std::any_of(kParts.begin(), kParts.end(), [champ](const Part& part) { return part.champ == champ; });
}

QSize CatalogueSurPapier::pixelsDAffiche(long films) {
    const qreal parPouce = films > kGrandCatalogue ? 110 : 190;
    return {qRound(kLargeurAffiche / 25.4 * parPouce), qRound(kHauteurAffiche / 25.4 * parPouce)};
}

// Sized in the device's own pixels, so that every device breaks the lines at the same words.
QFont CatalogueSurPapier::police(qreal points, QFont::Weight graisse, bool italique) const {
    QFont resultat;
    resultat.setPixelSize(std::max(1, qRound(points * m_resolution / 72)));
    resultat.setWeight(graisse);
    resultat.setItalic(italique);
    resultat.setHintingPreference(QFont::PreferNoHinting);
    return resultat;
}

qreal CatalogueSurPapier::interligne(const QFont& police) const {
    return 1.22 * police.pixelSize();
}

bool CatalogueSurPapier::commence() {
    if (!m_peintre.begin(&m_papier)) return false;
    const QSizeF feuille = m_papier.pageLayout().paintRectPixels(m_resolution).size();
    const qreal haut = mm(9), bas = mm(8);
    m_feuille = QRectF(0, haut, feuille.width(), std::max(mm(40), feuille.height() - haut - bas));
    m_page = 1;
    m_y = m_feuille.top();
    composeLesColonnes();
    peintCadre();
    peintTitre();
    if (m_sujet.miseEnPage == MiseEnPage::Liste && m_sujet.groupes.empty()) peintEnTete();
    return true;
}

void CatalogueSurPapier::peintTitre() {
    LignesDeTexte titre(QString::fromStdString(m_sujet.titre), police(20, QFont::DemiBold), m_feuille.width());
    const int lignes = std::min(titre.nombre(2), 2);
    peintLignes(titre, 0, lignes);
    m_y += lignes * interligne(titre.police()) + mm(1);
    const QString sous =
        QString::fromStdString(util::phraseCompte(m_sujet.films, "# film", "# films")) +
        (m_sujet.date.empty() ? QString() : QStringLiteral(", le ") + QString::fromStdString(m_sujet.date));
    m_peintre.setPen(kDiscret);
    peintLignes({sous, police(kTexte), m_feuille.width()}, 0, 1);
    m_y += mm(8);
}

// The title of the catalogue from the second page on, and the page's number.
void CatalogueSurPapier::peintCadre() {
    const QFont petite = police(kPetit);
    m_peintre.setFont(petite);
    m_peintre.setPen(kDiscret);
    const QString titre = QFontMetricsF(petite).elidedText(QString::fromStdString(m_sujet.titre), Qt::ElideRight,
                                                           m_feuille.width() * 0.7);
    if (m_page > 1) {
        m_peintre.drawText(QRectF(0, 0, m_feuille.width(), mm(5)), Qt::AlignLeft | Qt::AlignVCenter, titre);
        m_peintre.setPen(QPen(kTrait, mm(0.2)));
        m_peintre.drawLine(QPointF(0, mm(6)), QPointF(m_feuille.width(), mm(6)));
        m_peintre.setPen(kDiscret);
    }
    m_peintre.drawText(QRectF(0, m_feuille.bottom() + mm(2), m_feuille.width(), mm(5)),
                       Qt::AlignHCenter | Qt::AlignVCenter, QString::number(m_page));
    m_peintre.setPen(kEncre);
}

bool CatalogueSurPapier::pageSuivante() {
    if (!m_papier.newPage()) return false;
    ++m_page;
    m_y = m_feuille.top();
    peintCadre();
    return true;
}

bool CatalogueSurPapier::assure(qreal hauteur) {
    if (m_y + hauteur <= m_feuille.bottom() || m_y <= m_feuille.top()) return true;
    if (!pageSuivante()) return false;
    if (m_sujet.miseEnPage == MiseEnPage::Liste) peintEnTete();
    return true;
}

void CatalogueSurPapier::composeLesColonnes() {
    qreal toutes = 0;
    for (const Part& part : kParts)
        if (m_sujet.champs.contient(part.champ)) toutes += part.part;
    qreal gauche = 0;
    for (const Part& part : kParts) {
        if (!m_sujet.champs.contient(part.champ)) continue;
        const qreal largeur = m_feuille.width() * part.part / toutes;
        m_colonnes.push_back({part.champ, gauche, largeur - mm(2)});
        gauche += largeur;
    }
}

void CatalogueSurPapier::peintEnTete() {
    const QFont petite = police(kPetit, QFont::DemiBold);
    m_peintre.setPen(kDiscret);
    m_peintre.setFont(petite);
    for (const Colonne& colonne : m_colonnes)
        m_peintre.drawText(QRectF(colonne.gauche, m_y, colonne.largeur, interligne(petite)),
                           Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                           QFontMetricsF(petite).elidedText(enTete(colonne.champ), Qt::ElideRight, colonne.largeur));
    m_y += interligne(petite) + mm(0.8);
    m_peintre.setPen(QPen(kDiscret, mm(0.25)));
    m_peintre.drawLine(QPointF(0, m_y), QPointF(m_feuille.width(), m_y));
    m_peintre.setPen(kEncre);
    m_y += mm(1.2);
}

void CatalogueSurPapier::peintLignes(const LignesDeTexte& texte, qreal gauche, int lignes) {
    int nombre = 0;
    static_cast<void>(texte.parcourt([&](const QTextLine& ligne) {
        ligne.draw(&m_peintre, {gauche, m_y + nombre * interligne(texte.police())});
        return ++nombre < lignes;
    }));
}

bool CatalogueSurPapier::ecrit(const Paragraphe& texte, qreal gauche) {
    const qreal hauteur = interligne(texte.lignes.police());
    return texte.lignes.parcourt([&](const QTextLine& ligne) {
        if (m_y + hauteur > m_feuille.bottom() && !pageSuivante()) return false;
        m_peintre.setPen(texte.encre);
        ligne.draw(&m_peintre, {gauche, m_y});
        m_y += hauteur;
        return true;
    });
}

QString CatalogueSurPapier::valeur(const FilmExporte& film, Champ champ) const {
    if (!m_sujet.champs.contient(champ)) return {};
    QString texte = propre(exportation::estDePossession(champ) ? film.valeursDePossession(champ) : film.valeur(champ));
    if (champ == Champ::Note && texte == QLatin1String("0")) texte.clear();
    if (champ == Champ::Acteurs) texte.replace(QLatin1Char(';'), QLatin1String(", "));
    return texte;
}

bool CatalogueSurPapier::ajouteGroupe(int groupe, qreal place) {
    if (!m_premier && groupe == m_groupe) return true;
    m_premier = false;
    m_groupe = groupe;
    if (groupe < 0) return true;
    const QFont titre = police(13, QFont::DemiBold);
    const bool liste = m_sujet.miseEnPage == MiseEnPage::Liste;
    if (m_y > m_feuille.top() && m_y + place > m_feuille.bottom() && !pageSuivante()) return false;
    if (m_y > m_feuille.top() + mm(1)) m_y += mm(3);
    m_peintre.setPen(kAccent);
    peintLignes({propre(m_sujet.groupes.at(static_cast<std::size_t>(groupe))), titre, m_feuille.width()}, 0, 1);
    m_y += interligne(titre) + mm(1.5);
    m_peintre.setPen(kEncre);
    if (liste) peintEnTete();
    return true;
}

bool CatalogueSurPapier::ajouteRangee(const FilmExporte& film) {
    const QFont texte = police(kTexte), titre = police(kTexte, QFont::DemiBold);
    int lignes = 1;
    std::vector<LignesDeTexte> cases;
    for (const Colonne& colonne : m_colonnes) {
        cases.emplace_back(valeur(film, colonne.champ), colonne.champ == Champ::Titre ? titre : texte, colonne.largeur);
        lignes = std::max(lignes, std::min(cases.back().nombre(kLignesDeRangee), kLignesDeRangee));
    }
    const qreal hauteur = lignes * interligne(texte);
    if (!assure(hauteur)) return false;
    m_peintre.setPen(kEncre);
    for (std::size_t i = 0; i < cases.size(); ++i)
        peintLignes(cases[i], m_colonnes[i].gauche, kLignesDeRangee);
    m_y += hauteur + mm(0.7);
    m_peintre.setPen(QPen(kTrait, mm(0.1)));
    m_peintre.drawLine(QPointF(0, m_y), QPointF(m_feuille.width(), m_y));
    m_y += mm(0.7);
    return true;
}

CatalogueSurPapier::Fiche CatalogueSurPapier::compose(const FilmExporte& film, bool affiche) const {
    const auto joints = [&](std::initializer_list<Champ> champs, bool nommes) {
        QStringList textes;
        for (const Champ champ : champs) {
            const QString texte = valeur(film, champ);
            if (!texte.isEmpty()) textes << (nommes ? enTete(champ) + QStringLiteral("\u00A0: ") + texte : texte);
        }
        return textes.join(QStringLiteral(" · "));
    };
    const auto apres = [](const QString& mot, const QString& texte) { return texte.isEmpty() ? texte : mot + texte; };
    QString faits = joints({Champ::Annee, Champ::Origine, Champ::Genre, Champ::Duree, Champ::Production}, false);
    if (const QString note = valeur(film, Champ::Note); !note.isEmpty())
        faits += (faits.isEmpty() ? QString() : QStringLiteral(" · ")) + QStringLiteral("note\u00A0%1/10").arg(note);
    Fiche fiche;
    fiche.gauche = affiche ? mm(kLargeurAffiche + kEcart) : 0;
    fiche.affiche = affiche ? mm(kHauteurAffiche) : 0;
    const auto ajoute = [&](const QString& texte, const QFont& police, const QColor& encre, bool justifie = false) {
        if (texte.isEmpty()) return;
        fiche.textes.push_back({{texte, police, m_feuille.width() - fiche.gauche, justifie}, encre});
    };
    ajoute(valeur(film, Champ::Titre), police(kTitre, QFont::DemiBold), kEncre);
    ajoute(apres(QStringLiteral("de "), valeur(film, Champ::Realisateur)), police(kTexte), kEncre);
    ajoute(faits, police(kTexte), kDiscret);
    ajoute(apres(QStringLiteral("Avec "), valeur(film, Champ::Acteurs)), police(kPetit, QFont::Normal, true), kEncre);
    ajoute(valeur(film, Champ::Resume), police(kTexte), kEncre, true);
    ajoute(joints({Champ::Support, Champ::Rangement, Champ::Pret, Champ::Reserve, Champ::Date, Champ::Divers,
                   Champ::Fichier1, Champ::Fichier2, Champ::Fichier3, Champ::DateAjout},
                  true),
           police(kPetit), kDiscret);
    const qreal moitie = m_feuille.height() / 2;
    qreal hauteur = 0;
    for (Paragraphe& celui : fiche.textes) {
        const qreal ligne = interligne(celui.lignes.police());
        hauteur += celui.lignes.nombre(static_cast<int>(moitie / ligne)) * ligne;
    }
    fiche.place = std::max(hauteur < moitie ? hauteur : mm(22), fiche.affiche);
    return fiche;
}

bool CatalogueSurPapier::ajouteFiche(const Fiche& fiche, const QImage& affiche) {
    if (!assure(fiche.place)) return false;
    const int page = m_page;
    const qreal haut = m_y;
    if (!affiche.isNull()) {
        const QSizeF taille =
            QSizeF(affiche.size()).scaled(mm(kLargeurAffiche), mm(kHauteurAffiche), Qt::KeepAspectRatio);
        m_peintre.drawImage(QRectF({0, m_y}, taille), affiche);
    }
    for (const Paragraphe& celui : fiche.textes)
        if (!ecrit(celui, fiche.gauche)) return false;
    if (m_page == page) m_y = std::max(m_y, haut + fiche.affiche);
    m_y += mm(5);
    return true;
}

bool CatalogueSurPapier::ajoute(const FilmExporte& film, const QImage& affiche) {
    if (m_sujet.miseEnPage == MiseEnPage::Liste) return ajouteGroupe(film.groupe, mm(26)) && ajouteRangee(film);
    const Fiche fiche = compose(film, !affiche.isNull());
    return ajouteGroupe(film.groupe, fiche.place + mm(14)) && ajouteFiche(fiche, affiche);
}

bool CatalogueSurPapier::termine() {
    return m_peintre.end();
}

}  // namespace ui
