#pragma once

#include "export/FilmExporte.h"
#include "ui/LignesDeTexte.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <functional>
#include <string>
#include <vector>

class QPagedPaintDevice;

namespace ui {

// Films as a catalogue on paper: a title and the page's number on each page, headings where the list has some.
enum class MiseEnPage { Liste, Fiches };

// Draws films as they come, page after page, on a PDF or a printer. A row, and the head of a sheet, stay on one page; a
// heading never stands alone at the foot of one; a long summary goes on over the page.
class CatalogueSurPapier {
  public:
    struct Sujet {
        std::string titre, date;
        long films = 0;
        std::vector<std::string> groupes;
        exportation::Champs champs;
        MiseEnPage miseEnPage = MiseEnPage::Fiches;
    };
    // `resolution`: the device's, in dots per inch. Both outlive it.
    CatalogueSurPapier(QPagedPaintDevice& papier, int resolution, Sujet sujet);

    [[nodiscard]] bool commence();  // false: the device refused
    // `affiche` may be null. False: the device refused a page.
    [[nodiscard]] bool ajoute(const exportation::FilmExporte& film, const QImage& affiche);
    [[nodiscard]] bool termine();
    [[nodiscard]] int pages() const { return m_page; }
    // Whether it has a place for that field.
    [[nodiscard]] static bool montre(MiseEnPage miseEnPage, exportation::Champ champ);
    // As many pixels as a poster has on paper.
    [[nodiscard]] static QSize pixelsDAffiche(long films);

  private:
    struct Colonne {
        exportation::Champ champ;
        qreal gauche = 0, largeur = 0;
    };
    struct Paragraphe {
        LignesDeTexte lignes;
        QColor encre;
    };
    struct Fiche {
        std::vector<Paragraphe> textes;
        qreal gauche = 0, affiche = 0;  // where they begin, the height of the poster
        qreal place = 0;                // of the whole; of its beginning where it takes more than half a page
    };
    [[nodiscard]] qreal mm(qreal longueur) const { return longueur * m_resolution / 25.4; }
    [[nodiscard]] QFont police(qreal points, QFont::Weight graisse = QFont::Normal, bool italique = false) const;
    [[nodiscard]] qreal interligne(const QFont& police) const;
    [[nodiscard]] bool assure(qreal hauteur);  // so much room, on the next page if need be
    [[nodiscard]] bool pageSuivante();
    void peintCadre();
    void peintTitre();
    void composeLesColonnes();
    void peintEnTete();
    [[nodiscard]] bool ajouteGroupe(int groupe, qreal place);  // with so much room for its first film
    [[nodiscard]] bool ajouteRangee(const exportation::FilmExporte& film);
    [[nodiscard]] Fiche compose(const exportation::FilmExporte& film, bool affiche) const;
    [[nodiscard]] bool ajouteFiche(const Fiche& fiche, const QImage& affiche);
    [[nodiscard]] bool ecrit(const Paragraphe& texte, qreal gauche);  // from m_y on, over as many pages as it takes
    void peintLignes(const LignesDeTexte& texte, qreal gauche, int lignes);  // the first of them, m_y stays
    [[nodiscard]] QString valeur(const exportation::FilmExporte& film, exportation::Champ champ) const;

    QPagedPaintDevice& m_papier;
    const int m_resolution;
    const Sujet m_sujet;
    QPainter m_peintre;
    QRectF m_feuille;  // what films are drawn in
    std::vector<Colonne> m_colonnes;
    qreal m_y = 0;
    int m_page = 0;
    int m_groupe = -1;
    bool m_premier = true;
};

}  // namespace ui
