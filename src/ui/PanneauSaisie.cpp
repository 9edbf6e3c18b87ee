#include "ui/PanneauSaisie.h"

#include "edit/cmdAjoutFilm_Click.h"
#include "ui/Boutons.h"
#include "ui/Cartes.h"
#include "ui/Composition.h"
#include "ui/ImagesQt.h"
#include "ui/Lecteur.h"
#include "ui/ListeDeSaisie.h"
#include "ui/Sections.h"
#include "ui/TexteLong.h"

#include <QKeyEvent>
#include <QPainter>

namespace ui {

namespace {

constexpr int kResumeACote = 1000;  // the width from which it stands beside the other fields
constexpr QSize kAffichette{112, 168}, kAffichetteBasse{80, 120};  // in a narrow page the fields have the room
constexpr int kPlaceDeLAffichette = 640;

// The poster of the film that is corrected.
class Affichette final : public QWidget {
  public:
    explicit Affichette(ImagesQt& images) : m_images(images) {}

  protected:
    void paintEvent(QPaintEvent*) override {
        const QPixmap& affiche = m_images.affiche(size() * devicePixelRatio());
        if (affiche.isNull()) return;
        QPainter peintre(this);
        peintre.setRenderHint(QPainter::SmoothPixmapTransform);
        peintre.drawPixmap(QRect(QPoint(), affiche.size().scaled(size(), Qt::KeepAspectRatio)), affiche);
    }

  private:
    ImagesQt& m_images;
};

QWidget* cadre(QLayout* contenu) {
    auto* resultat = new QWidget;
    contenu->setContentsMargins(0, 0, 0, 0);
    resultat->setLayout(contenu);
    return resultat;
}

}  // namespace

PanneauSaisie::PanneauSaisie(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_atelier(atelier) {
    nomme(this, "Frame13");
    seLitCommeGroupe(this, tr("Fiche à remplir"));
    auto* champs = colonne(kMoyen);
    champs->addWidget(new CoteACote({cadre(grille()), cadre(resume())}, kResumeACote, kMoyen));
    champs->addLayout(bas());
    auto* contenu = rangee({}, kGrand);
    contenu->addWidget(affichette(), 0, Qt::AlignTop);
    contenu->addLayout(champs, 1);
    auto* boite = colonne(0);
    boite->addWidget(new Carte(contenu));
    setLayout(boite);
    m_atelier.liaison.lie(m_atelier.etats().ajout.Frame13, this);
}

QLayout* PanneauSaisie::grille() {
    auto& ajout = m_atelier.etats().ajout;
    auto* grille = new QGridLayout;
    grille->setHorizontalSpacing(kMoyen);
    grille->setVerticalSpacing(kMoyen);
    grille->addLayout(champ(tr("Titr&e"), texte(0)), 0, 0, 1, 3);
    grille->addLayout(champ(tr("Réalisate&ur"), texte(1)), 0, 3, 1, 3);
    grille->addLayout(champ(tr("&Année"), texte(2)), 1, 0, 1, 2);
    grille->addLayout(champ(tr("&Durée"), texte(3)), 1, 2, 1, 2);
    grille->addLayout(champ(tr("&Genre"), liste("Combo2", ajout.Combo2)), 1, 4, 1, 2);
    grille->addLayout(champ(tr("Origi&ne"), liste("Combo3", ajout.Combo3)), 2, 0, 1, 3);
    grille->addLayout(champ(tr("&Production"), liste("Combo4", ajout.Combo4)), 2, 3, 1, 3);
    grille->addLayout(champ(tr("A&cteurs, séparés par des points-virgules"), texte(4)), 3, 0, 1, 6);
    for (int c = 0; c < 6; ++c)
        grille->setColumnStretch(c, 1);
    grille->setRowStretch(4, 1);
    return grille;
}

QLayout* PanneauSaisie::resume() {
    auto* texte = nomme(new TexteLong, "txtResume");
    texte->setTabChangesFocus(true);
    texte->setMinimumHeight(84);
    m_atelier.liaison.lie(m_atelier.etats().ajout.txtResume, texte);
    auto* boite = colonne(kSerre);
    boite->addWidget(legende(tr("&Résumé"), texte));
    boite->addWidget(texte, 1);
    return boite;
}

QLayout* PanneauSaisie::bas() {
    auto& ajout = m_atelier.etats().ajout;
    m_ajouter =
        bouton<BoutonAccent>("cmdAjoutFilm", tr("Ajouter"),
                             tr("Enregistrer la fiche (Entrée, ou Ctrl+Entrée dans le résumé ; Échap pour revenir)"));
    auto* image = nomme((new Etiquette)->avecTon(Ton::Discret), "lblImage");
    m_atelier.liaison.lie(ajout.cmdAjoutFilm, m_ajouter);
    m_atelier.liaison.lie(ajout.lblImage, image);
    m_atelier.auClic(m_ajouter, edit::cmdAjoutFilm_Click);
    auto* boite = aGauche({m_ajouter});
    boite->insertWidget(1, image);
    return boite;
}

QWidget* PanneauSaisie::affichette() {
    m_affichette = nomme(new Affichette(m_atelier.images), "imgCorrection");
    m_affichette->setFixedSize(kAffichette);
    seLit(m_affichette, {.role = QAccessible::Graphic});
    m_affichette->setAccessibleName(tr("Affiche du film"));
    m_atelier.liaison.apresEcriture([affiche = m_affichette, etats = &m_atelier.etats()] {
        // The poster that is loaded is the one of the film on the sheet.
        affiche->setVisible(etats->ajout.modeModifier() && etats->liste.noeudChoisi > 0 && !etats->fiche.Image1.vide);
        affiche->update();
    });
    return m_affichette;
}

void PanneauSaisie::resizeEvent(QResizeEvent*) {
    m_affichette->setFixedSize(width() < kPlaceDeLAffichette ? kAffichetteBasse : kAffichette);
}

// Enter in a one-line field stores the sheet, as it starts the search in the search panel.
void PanneauSaisie::keyPressEvent(QKeyEvent* evenement) {
    const bool valide = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (!valide) return QWidget::keyPressEvent(evenement);
    m_ajouter->click();
}

QWidget* PanneauSaisie::texte(std::size_t indice) {
    auto* zone = nomme(new QLineEdit, "Text3", indice);
    m_atelier.liaison.lie(m_atelier.etats().ajout.Text3[indice], zone);
    return zone;
}

QWidget* PanneauSaisie::liste(const char* nom, ecran::Liste& etat) {
    auto* choix = nomme(listeDeSaisie(), nom);
    m_atelier.liaison.lie(etat, choix);
    return choix;
}

}  // namespace ui
