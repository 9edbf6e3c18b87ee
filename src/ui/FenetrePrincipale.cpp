#include "ui/FenetrePrincipale.h"

#include "app/Collection.h"
#include "app/Commandes.h"
#include "ui/BarreFonctions.h"
#include "ui/Composition.h"
#include "ui/Depot.h"
#include "ui/EcranQt.h"
#include "ui/FenetreAffiche.h"
#include "ui/FenetreFichiers.h"
#include "ui/FenetreGuide.h"
#include "ui/FenetreSauvegardes.h"
#include "ui/Icones.h"
#include "ui/Infobulles.h"
#include "ui/Lecteur.h"
#include "ui/Ouvertures.h"
#include "ui/PageGroupe.h"
#include "ui/PageVide.h"
#include "ui/PanneauAccueil.h"
#include "ui/PanneauCollection.h"
#include "ui/PanneauFiche.h"
#include "ui/PanneauFonctions.h"
#include "ui/PanneauListe.h"
#include "ui/PanneauMultiSuppression.h"
#include "ui/PanneauRecherche.h"
#include "ui/Pied.h"
#include "ui/UneSeuleLigne.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTimer>

namespace ui {

namespace {

constexpr int kTwipsParPixel = 15;
constexpr QSize kTailleParDefaut{1180, 760};
constexpr QSize kTailleMinimale{900, 480};
constexpr int kLargeurDeuxPages = 1340;          // a screen of 1366 shows both pages of the sheet
constexpr int kListeMin = 300, kListeMax = 420;  // of the width it opens with, a quarter of the window's
constexpr int kListeAisee = 336;                 // zone and sort side by side
constexpr int kLargeurAisee = 1100;              // the window's from which the list has that much

}  // namespace

// The window's size, in twips, and its title.
class FenetrePrincipale::LienTaille final : public Lien {
  public:
    explicit LienTaille(FenetrePrincipale& fenetre)
        : m_fenetre(fenetre), m_etat(fenetre.m_atelier.etats().frmPrincipal) {}

    void lit() override {
        if (!m_fenetre.isVisible()) return;
        m_etat.Width = m_fenetre.width() * kTwipsParPixel;
        m_etat.Height = m_fenetre.height() * kTwipsParPixel;
        m_montree = {m_etat.Width, m_etat.Height};
    }
    void ecrit() override {
        const QString titre = QString::fromStdString(m_etat.Caption);
        if (m_fenetre.windowTitle() != titre) m_fenetre.setWindowTitle(titre);
        const QSize voulue(m_etat.Width, m_etat.Height);
        if (voulue == m_montree) return;
        m_montree = voulue;
        if (m_fenetre.isVisible()) m_fenetre.resize(m_fenetre.tailleVoulue());
    }

  private:
    FenetrePrincipale& m_fenetre;
    app::EtatFenetre& m_etat;
    QSize m_montree{0, 0};
};

FenetrePrincipale::FenetrePrincipale(const Atelier& atelier) : m_atelier(atelier), m_raccourcis(atelier, this) {
    nomme(this, "frmPrincipal");
    seLit(this, {.role = QAccessible::Window});
    setWindowTitle(QStringLiteral("Ambrelis"));
    setMinimumSize(kTailleMinimale);
    compose();
    m_depot = new Depot(m_atelier, this);
    const std::pair<QKeySequence, std::function<void()>> touches[] = {
        {Qt::Key_F6, [this] { vaDansLaZone(1); }},
        {Qt::SHIFT | Qt::Key_F6, [this] { vaDansLaZone(-1); }},
        {Qt::CTRL | Qt::Key_PageDown, [this] { tourneLaPage(this, 1); }},
        {Qt::CTRL | Qt::Key_PageUp, [this] { tourneLaPage(this, -1); }}};
    for (const auto& [touche, geste] : touches)
        connect(new QShortcut(touche, this), &QShortcut::activated, this, geste);
    m_focus.emplace(*this, *m_liste->titres());
    suitLesCommandes();
    m_atelier.liaison.ajoute(std::make_unique<LienTaille>(*this));
}

void FenetrePrincipale::compose() {
    m_liste = new PanneauListe(m_atelier);
    m_liste->setMinimumWidth(260);
    auto* droite = new QWidget;
    m_droite = new QVBoxLayout(droite);
    m_droite->setContentsMargins(0, 0, 0, 0);
    m_page = new PageGroupe(m_atelier);
    m_droite->addWidget(m_page, 1);
    m_vide = new PageVide(m_atelier);
    m_droite->addWidget(m_vide, 1000);  // the page above it keeps its heading alone
    m_atelier.liaison.apresEcriture([this] { m_vide->suis(!m_page->isHidden()); });
    m_droite->addWidget(new PanneauAccueil(m_atelier));
    auto* partage = m_partage = new QSplitter;
    partage->setChildrenCollapsible(false);
    partage->addWidget(m_liste);
    partage->addWidget(droite);
    litDansLOrdre({m_liste, partage->handle(1), droite});
    seLit(partage->handle(1), {.role = QAccessible::Separator});
    partage->setStretchFactor(1, 1);
    connect(partage, &QSplitter::splitterMoved, this, [this] { m_partageChoisi = true; });

    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(0, 0, 0, 0);
    boite->setSpacing(0);
    boite->addWidget(new BarreFonctions(m_atelier));
    boite->addWidget(filetHorizontal());
    boite->addWidget(partage, 1);
    m_bas = new Pied(m_atelier, m_liste->comptes());
    boite->addWidget(m_bas);
    connect(m_liste, &PanneauListe::marquesLues, m_page, &PageGroupe::repeins);
    connect(m_liste->titres(), &VueTitres::peinte, this,
            [this] { QTimer::singleShot(0, this, [this] { completePanneaux(); }); });
}

// All that is behind the first page, in reading order after it.
void FenetrePrincipale::completePanneaux() {
    if (m_menus) return;
    m_menus.emplace(m_atelier, this);
    m_droite->insertWidget(0, new PanneauMultiSuppression(m_atelier));  // strips over what they are about
    m_droite->insertWidget(1, new PanneauRecherche(m_atelier));
    m_droite->insertWidget(2, new PanneauCollection(m_atelier));
    m_droite->addWidget(new PanneauFiche(m_atelier), 1);
    m_droite->addWidget(new PanneauFonctions(m_atelier), 1);
    for (QLineEdit* zone : m_droite->parentWidget()->findChildren<QLineEdit*>()) {
        new InfobulleEntiere(zone);
        new UneSeuleLigne(zone);
    }
    m_depot->prepare(this);
    entreParLeChoisi(m_atelier.liaison, *this);
    for (int rang = 0; rang < m_droite->count(); ++rang)
        litDansLOrdre({m_droite->itemAt(rang)->widget()});
    // Tab goes from the list to the panel beside it, and only then to what is below it, which was there first.
    for (QWidget* zone : {static_cast<QWidget*>(m_page), m_bas})
        suisAuClavier(previousInFocusChain(), *zone);
    setWindowIcon(icone(Pictogramme::Clap));
    tiensALEcran();
    // The windows of their own. Viewer, safety copies and guide are composed when they first open.
    new FenetreAffiche(m_atelier, this);
    new FenetreFichiers(m_atelier, this);
    new FenetreSauvegardes(m_atelier, this);
    new FenetreGuide(m_atelier, this);
    m_atelier.execute(&app::Session::Form_Activate);
    new Ouvertures(m_atelier, this);
}

// The titles, the page beside them, the notice, and round: what each has first for the keys, or the whole list.
void FenetrePrincipale::vaDansLaZone(int pas) {
    QWidget* const zones[] = {m_liste, m_droite->parentWidget(), m_bas};
    const auto premiers = [&](QWidget* zone) -> QWidget* {
        if (zone == m_liste) return m_liste->titres();
        for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain())
            if (zone->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() && !widget->focusProxy() &&
                (widget->focusPolicy() & Qt::TabFocus))
                return widget;
        return nullptr;
    };
    constexpr int kZones = std::size(zones);
    int ici = pas > 0 ? 0 : 1;  // from the buttons above: to the page that they open, or back to the titles
    for (int rang = 0; rang < kZones; ++rang)
        if (focusWidget() && zones[rang]->isAncestorOf(focusWidget())) ici = rang;
    for (int tour = 1; tour <= kZones; ++tour)
        if (QWidget* premier = premiers(zones[(ici + pas * tour + kZones * kZones) % kZones]))
            return premier->setFocus(Qt::TabFocusReason);
}

void FenetrePrincipale::suitLesCommandes() {
    m_atelier.liaison.apresEcriture([this] { vientDevant(); });
    connect(&m_atelier.commande, &Commande::vaCommencer, this, [this] {
        if (isVisible()) completePanneaux();
        m_focus->releve();
    });
    m_atelier.commande.accompagne({[this] { m_atelier.session.vaCommencer(); },
                                   [this](const std::string& raison) { m_atelier.session.expliqueEchec(raison); }});
    connect(&m_atelier.commande, &Commande::terminee, this, &FenetrePrincipale::executeDemandes);
    connect(&m_atelier.commande, &Commande::lectureFinie, this, [this] {
        if (std::exchange(m_fermetureDemandee, false)) QTimer::singleShot(0, this, &QWidget::close);
    });
    const auto menuDuNoeud = [this](int indice, const QPoint& endroit) {
        m_endroitMenu = endroit;
        m_atelier.execute(app::TreeView1_MouseUpDroit, indice);
    };
    connect(m_liste->titres(), &VueTitres::menuDemande, this, menuDuNoeud);
    connect(m_page, &PageGroupe::menuDemande, this, menuDuNoeud);
    connect(m_page, &PageGroupe::menuDuFilmDemande, this, [this](const db::CleFilm& film, const QPoint& endroit) {
        m_endroitMenu = endroit;
        m_atelier.execute(app::menuDuFilm, film);
    });
}

// What the command asked for once.
void FenetrePrincipale::executeDemandes() {
    const ecran::Demandes demandes = std::exchange(m_atelier.etats().demandes, {});
    const app::MenuContextuel menu = std::exchange(m_atelier.etats().menu, app::MenuContextuel::Aucun);
    if (!demandes.boutonParDefaut.empty()) choisitParDefaut(demandes.boutonParDefaut);
    m_focus->donne(demandes.focus);
    if (m_menus) m_menus->montre(menu, m_endroitMenu);
    if (std::exchange(m_fermetureDemandee, false)) QTimer::singleShot(0, this, &QWidget::close);
    if (m_deuxPages != (width() >= kLargeurDeuxPages)) QTimer::singleShot(0, this, [this] { suisLargeur(); });
}

// Before a box that the command shows, or after it.
void FenetrePrincipale::vientDevant() {
    if (!isVisible() || !std::exchange(m_atelier.etats().demandes.premierPlan, false)) return;
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void FenetrePrincipale::choisitParDefaut(const std::string& nom) {
    if (m_parDefaut) m_parDefaut->setDefault(false);
    m_parDefaut = findChild<QPushButton*>(QString::fromStdString(nom));
    if (m_parDefaut) m_parDefaut->setDefault(true);
}

void FenetrePrincipale::ouvre() {
    setMinimumSize(kTailleMinimale.boundedTo(place()));
    resize(tailleVoulue());
    suisLargeur();
    m_liste->titres()->setFocus(Qt::OtherFocusReason);
    show();
}

QSize FenetrePrincipale::tailleVoulue() const {
    const app::EtatFenetre& etat = m_atelier.etats().frmPrincipal;
    const bool notee = etat.Width > 0 && etat.Height > 0;
    const QSize voulue = notee ? QSize(etat.Width / kTwipsParPixel, etat.Height / kTwipsParPixel) : kTailleParDefaut;
    return voulue.boundedTo(place()).expandedTo(minimumSize());
}

// What the screen leaves for the inside of the window: its frame is known once it is shown.
QSize FenetrePrincipale::place() const {
    return screen()->availableSize() - (frameGeometry().size() - size());
}

// The frame that the desktop gave the window may reach beyond the screen.
void FenetrePrincipale::tiensALEcran() {
    if (isMaximized() || isFullScreen()) return;
    setMinimumSize(kTailleMinimale.boundedTo(place()));
    const QSize tenue = size().boundedTo(place());
    if (tenue == size()) return;
    const QRect libre = screen()->availableGeometry();
    const QSize cadre = tenue + (frameGeometry().size() - size());
    move(std::clamp(frameGeometry().x(), libre.left(), libre.right() + 1 - cadre.width()),
         std::clamp(frameGeometry().y(), libre.top(), libre.bottom() + 1 - cadre.height()));
    resize(tenue);
}

void FenetrePrincipale::suisLargeur() {
    const bool deuxPages = width() >= kLargeurDeuxPages;
    if (deuxPages == m_deuxPages) return;
    const auto issue = m_atelier.execute(&app::Session::Form_Resize, deuxPages);
    if (issue != Commande::Issue::Refusee) m_deuxPages = deuxPages;
}

// Until the user moves what parts them.
void FenetrePrincipale::repartis() {
    if (m_partageChoisi) return;
    const int liste = std::clamp(width() / 4, width() < kLargeurAisee ? kListeMin : kListeAisee, kListeMax);
    m_partage->setSizes({liste, width() - liste});
}

void FenetrePrincipale::resizeEvent(QResizeEvent*) {
    repartis();
    if (isVisible()) suisLargeur();
}

void FenetrePrincipale::keyPressEvent(QKeyEvent* evenement) {
    const bool valide = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (valide && m_parDefaut && m_parDefaut->isVisible() && m_parDefaut->isEnabled())
        m_parDefaut->click();
    else if (!m_raccourcis.prends(*evenement))
        QWidget::keyPressEvent(evenement);
}

// During a command the window first lets it stop, and closes after it.
void FenetrePrincipale::closeEvent(QCloseEvent* evenement) {
    if (m_atelier.commande.enCours()) {
        m_fermetureDemandee = true;
        m_atelier.ecran.demandeArret();
        evenement->ignore();
        return;
    }
    bool ferme = m_atelier.commande.finie();  // what fails before the shut-down leaves the window
    m_atelier.commande.execute([&] {
        ferme = m_atelier.session.Form_QueryUnload();
        if (ferme) m_atelier.session.Form_Unload();
    });
    if (!ferme) return evenement->ignore();
    m_atelier.commande.arrete();
    evenement->accept();
}

}  // namespace ui
