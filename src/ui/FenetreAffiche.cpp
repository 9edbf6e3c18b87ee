#include "ui/FenetreAffiche.h"

#include "app/Commandes.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Couleurs.h"
#include "ui/Icones.h"
#include "ui/ImageAffiche.h"
#include "ui/Lecteur.h"
#include "view/TouchesAffiche.h"
#include "view/cmdRemplacerImage_Click.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace ui {

namespace {

constexpr int kHautBouton = 28, kCoteIcone = 18;
constexpr int kPasMolette = 90;       // logical pixels for one notch
constexpr qsizetype kTitreMax = 500;  // characters; the system takes no title of megabytes

constexpr int pixels(int twips) {
    return twips / view::kTwipsParPixel;
}

struct ModeleBouton {
    const char* nom;
    Pictogramme pictogramme;
    QString texte, infobulle;
    [[nodiscard]] int largeur(const QFontMetrics& mesure) const {
        return mesure.size(Qt::TextShowMnemonic, texte).width() + kCoteIcone + 3 * kPetit;
    }
};

std::array<ModeleBouton, 2> modeles() {
    return {{{"cmdSauverImage", Pictogramme::Enregistre, FenetreAffiche::tr("&Enregistrer…"),
              FenetreAffiche::tr("Enregistrer l'affiche ailleurs")},
             {"cmdRemplacerImage", Pictogramme::Remplace, FenetreAffiche::tr("&Remplacer…"),
              FenetreAffiche::tr("Remplacer l'affiche du film")}}};
}

// Ctrl with + or -, and 0 for the picture's own size.
std::optional<int> cransDeZoom(const QKeyEvent& evenement) {
    if (!(evenement.modifiers() & Qt::ControlModifier)) return std::nullopt;
    switch (evenement.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return 1;
        case Qt::Key_Minus:
            return -1;
        case Qt::Key_0:
            return 0;
        default:
            return std::nullopt;
    }
}

QWidget* bande(QWidget* parent) {
    auto* resultat = new QWidget(parent);
    resultat->setAutoFillBackground(true);
    return resultat;
}

}  // namespace

class FenetreAffiche::LienAffiche final : public Lien {
  public:
    explicit LienAffiche(FenetreAffiche& fenetre) : m_fenetre(fenetre) {}
    void lit() override { m_fenetre.lit(); }
    void ecrit() override { m_fenetre.ecrit(); }

  private:
    FenetreAffiche& m_fenetre;
};

FenetreAffiche::FenetreAffiche(const Atelier& atelier, QWidget* parent)
    : QWidget(parent, Qt::Window), m_atelier(atelier) {
    nomme(this, "frmAffiche");
    seLit(this, {.role = QAccessible::Window});
    lit();
    m_atelier.liaison.ajoute(std::make_unique<LienAffiche>(*this));
    // A step to another title hides the viewer and shows it again: what it comes to is known at the end.
    connect(&m_atelier.commande, &Commande::terminee, this, [this] {
        if (etat().Visible || !isVisible()) return;
        hide();
        parentWidget()->window()->activateWindow();
    });
}

// --- state and widgets -------------------------------------------------------------------------------------------

void FenetreAffiche::lit() {
    const QSize taille = screen()->size() * view::kTwipsParPixel;
    etat().largeurEcran = taille.width();
    etat().hauteurEcran = taille.height();
    int gauche = kPetit;
    for (const ModeleBouton& modele : modeles())
        gauche += modele.largeur(fontMetrics()) + kSerre;
    etat().HScroll1.Left = (gauche + kPetit) * view::kTwipsParPixel;
    if (m_barre && m_barre->value() != m_valeurMontree) etat().HScroll1.Value = m_valeurMontree = m_barre->value();
}

void FenetreAffiche::ecrit() {
    const std::string& titre = m_atelier.etats().fiche.captionAffiche;
    if (titre != m_titre) setWindowTitle(QString::fromStdString(m_titre = titre).left(kTitreMax));
    if (!etat().Visible) return;
    if (!m_image) compose();
    if (const QString nom = windowTitle(); m_image->accessibleName() != nom) {
        m_image->setAccessibleName(nom);
        if (isVisible()) annonce(this, nom);  // its opening is told by its title
    }
    const bool nouvelle = m_numero != etat().Picture1.numero;
    if (nouvelle) dimensionne();
    place();
    if (nouvelle) update(), m_image->update();
    if (m_presentation != etat().presentations) presente();
}

void FenetreAffiche::compose() {
    m_image = nomme(new ImageAffiche(m_atelier.images, this), "Picture1");
    m_image->setToolTip(tr("Curseurs pour visionner l'image, Clic pour fermer, Page suiv/préc pour suivant"));
    m_bandeau = bande(this);
    m_barre = nomme(new BarreAffiche(m_bandeau), "HScroll1", tr("Défilement de l'affiche"));
    boutons();
    m_pied = bande(this);
    m_taille = nomme((new Etiquette({}, m_pied))->avecTon(Ton::Discret), "lblTaille");
    m_taille->setAlignment(Qt::AlignCenter);
    m_atelier.liaison.lie(etat().lblTaille, m_taille);
    QWidget* const ordre[] = {findChild<QWidget*>("cmdSauverImage"), findChild<QWidget*>("cmdRemplacerImage"), m_barre,
                              m_image};
    for (std::size_t i = 1; i < std::size(ordre); ++i)
        setTabOrder(ordre[i - 1], ordre[i]);
    ecoute();
}

void FenetreAffiche::boutons() {
    int gauche = kPetit;
    for (const ModeleBouton& modele : modeles()) {
        auto* un = bouton(modele.nom, modele.texte, modele.infobulle);
        un->setIcon(icone(modele.pictogramme));
        un->setIconSize({kCoteIcone, kCoteIcone});
        un->setFlat(true);
        un->setParent(m_bandeau);
        un->setGeometry(gauche, (pixels(etat().HScroll1.Height) - kHautBouton) / 2, modele.largeur(fontMetrics()),
                        kHautBouton);
        gauche += un->width() + kSerre;
    }
    m_atelier.auClic(findChild<QPushButton*>("cmdSauverImage"), app::cmdSauverImage_Click);
    m_atelier.auClic(findChild<QPushButton*>("cmdRemplacerImage"), view::cmdRemplacerImage_Click);
}

void FenetreAffiche::ecoute() {
    connect(m_image, &ImageAffiche::cliquee, this, m_atelier.reponse(view::Picture1_Click));
    connect(m_image, &ImageAffiche::glissee, this, [this](const QPoint& de) {
        const QPoint twips = de * view::kTwipsParPixel;
        m_atelier.execute(view::deplaceAffiche, twips.x(), twips.y());
    });
    connect(m_image, &ImageAffiche::touche, this,
            [this](int code) { m_atelier.execute(view::Picture1_KeyDown, code); });
    connect(m_barre, &BarreAffiche::touche, this,
            [this](int code) { m_atelier.execute(view::HScroll1_KeyDown, code); });
    connect(m_barre, &QScrollBar::valueChanged, this, m_atelier.reponse(view::HScroll1_Change));
}

// --- places ------------------------------------------------------------------------------------------------------

// The size asked for is the window's: where the screen limits it, the frame is inside that size. The window stays
// centred where it is.
void FenetreAffiche::dimensionne() {
    m_numero = etat().Picture1.numero;
    const QSize voulue(pixels(etat().Width), pixels(etat().Height));
    if (voulue.isEmpty()) return resize(sizeHint());
    const QPoint centre = frameGeometry().center();
    const QWidget* principale = parentWidget()->window();  // its frame is known before this one's
    const QSize ecran = screen()->size(), cadre = principale->frameGeometry().size() - principale->size();
    resize(voulue.width() < ecran.width() ? voulue.width() : ecran.width() - cadre.width(),
           voulue.height() < ecran.height() ? voulue.height() : ecran.height() - cadre.height());
    if (m_placee) resteALEcran(centre);
}

void FenetreAffiche::resteALEcran(const QPoint& centre) {
    const QRect ecran = screen()->geometry();
    QRect cadre = frameGeometry();
    cadre.moveCenter(centre);
    cadre.moveRight(std::min(cadre.right(), ecran.right()));
    cadre.moveBottom(std::min(cadre.bottom(), ecran.bottom()));
    cadre.moveLeft(std::max(cadre.left(), ecran.left()));
    cadre.moveTop(std::max(cadre.top(), ecran.top()));
    if (cadre.topLeft() != frameGeometry().topLeft()) move(cadre.topLeft());
}

void FenetreAffiche::place() {
    const ecran::Image& image = etat().Picture1;
    const view::BarreDefilement& barre = etat().HScroll1;
    const int bande = pixels(barre.Height);
    m_bandeau->setGeometry(0, 0, width(), bande);
    m_pied->setGeometry(0, height() - bande, width(), bande);
    m_taille->setGeometry(m_pied->rect().adjusted(kPetit, 0, -kPetit, 0));
    const int epaisseur = std::min(bande, m_barre->sizeHint().height());
    m_barre->setGeometry(pixels(barre.Left), (bande - epaisseur) / 2, std::max(1, pixels(barre.Width)), epaisseur);
    m_image->setGeometry(pixels(image.Left), pixels(image.Top), pixels(image.Width), pixels(image.Height));
    montreImage(image.Visible && !image.vide);
    m_image->lower();

    const QSignalBlocker silence(m_barre);
    m_barre->setSingleStep(barre.SmallChange);
    m_barre->setPageStep(barre.LargeChange);
    m_barre->setValue(m_valeurMontree = barre.Value);
    m_barre->metUtile(!etat().imageEntiere() && !image.vide);
}

// Without a picture the keys are the window's, until there is one again.
void FenetreAffiche::montreImage(bool visible) {
    const bool auClavier = m_image->hasFocus() || hasFocus();
    m_image->setVisible(visible);
    if (auClavier) (visible ? static_cast<QWidget*>(m_image) : this)->setFocus(Qt::OtherFocusReason);
}

void FenetreAffiche::presente() {
    m_presentation = etat().presentations;
    const bool dejaVisible = isVisible();
    resteALEcran(std::exchange(m_placee, true) ? frameGeometry().center()
                                               : parentWidget()->window()->frameGeometry().center());
    show();
    raise();
    activateWindow();
    if (dejaVisible) return;
    const bool aDefiler = !etat().imageEntiere() || etat().Picture1.vide;
    (aDefiler ? static_cast<QWidget*>(m_barre) : m_image)->setFocus(Qt::OtherFocusReason);
}

// The desktop may give another size than the one asked for, also while a command runs.
void FenetreAffiche::suisTaille() {
    const int largeur = width() * view::kTwipsParPixel, hauteur = height() * view::kTwipsParPixel;
    if (!m_image || (etat().ScaleWidth == largeur && etat().ScaleHeight == hauteur)) return;
    if (m_atelier.commande.enCours()) {
        QTimer::singleShot(0, this, [this] { suisTaille(); });
        return;
    }
    m_atelier.execute(view::frmAffiche_Resize, largeur, hauteur);
}

// --- events ------------------------------------------------------------------------------------------------------

void FenetreAffiche::resizeEvent(QResizeEvent*) {
    if (m_image) place();
    suisTaille();
}

// Without a picture the window says why, in its middle.
void FenetreAffiche::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.fillRect(rect(), voile(palette()));
    if (!etat().Picture1.vide) return;
    const QColor couleur = melange(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.30);
    const QRectF signe(width() / 2.0 - 24, height() / 2.0 - 24, 48, 48);
    peintPictogramme(peintre, signe, Pictogramme::Clap, couleur);
}

void FenetreAffiche::keyPressEvent(QKeyEvent* evenement) {
    if (const auto crans = cransDeZoom(*evenement)) return zoome(*crans, rect().center());
    const int code = codeWindows(*evenement);
    if (code == 0) return QWidget::keyPressEvent(evenement);
    m_atelier.execute(view::frmAffiche_KeyDown, code);
}

void FenetreAffiche::zoome(int crans, const QPoint& endroit) {
    const QPoint twips = endroit * view::kTwipsParPixel;
    m_atelier.execute(view::zoomeAffiche, crans, twips.x(), twips.y());
}

// A fine wheel comes to a notch by several of its events.
void FenetreAffiche::wheelEvent(QWheelEvent* evenement) {
    if (evenement->modifiers() & Qt::ControlModifier) {
        m_roule += evenement->angleDelta().y();
        const int crans =
            std::exchange(m_roule, m_roule % QWheelEvent::DefaultDeltasPerStep) / QWheelEvent::DefaultDeltasPerStep;
        if (crans != 0) zoome(crans, evenement->position().toPoint());
        return;
    }
    QPointF pas = evenement->pixelDelta();
    if (pas.isNull()) pas = QPointF(evenement->angleDelta()) / QWheelEvent::DefaultDeltasPerStep * kPasMolette;
    const QPoint twips = (pas * view::kTwipsParPixel).toPoint();
    m_atelier.execute(view::deplaceAffiche, twips.x(), twips.y());
}

// Closed, it is only hidden; the program ends with its main window.
void FenetreAffiche::closeEvent(QCloseEvent* evenement) {
    if (m_atelier.commande.enCours()) return evenement->ignore();
    m_atelier.execute(view::Picture1_Click);
    evenement->accept();
}

}  // namespace ui
