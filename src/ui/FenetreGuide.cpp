#include "ui/FenetreGuide.h"

#include "app/Aide.h"
#include "ui/Composition.h"
#include "ui/DelegueLignes.h"
#include "ui/VueGuide.h"

#include <QCloseEvent>
#include <QDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace ui {

namespace {

constexpr QSize kTaille{960, 700}, kMoindre{520, 320};
constexpr int kCoteAuPlus = 8000;
constexpr int kSommaire = 250, kFleche = 44;
constexpr int kPage = Qt::UserRole;  // of an entry of the contents: the page's position
constexpr const char* kPropriete = "pageDuGuide";

}  // namespace

void donneUnePage(QWidget* widget, const char* page) {
    widget->setProperty(kPropriete, QByteArray(page));
}

void donneUnePage(const Atelier& atelier, QDialog* fenetre, const char* page) {
    donneUnePage(static_cast<QWidget*>(fenetre), page);
    QObject::connect(new QShortcut(Qt::Key_F1, fenetre), &QShortcut::activated, fenetre,
                     [atelier, fenetre] { demandeLeGuide(atelier, fenetre); });
}

void demandeLeGuide(const Atelier& atelier, const QWidget* enUsage) {
    for (; enUsage; enUsage = enUsage->parentWidget()) {
        const QByteArray page = enUsage->property(kPropriete).toByteArray();
        if (!page.isEmpty()) {
            atelier.execute(app::montreLeGuide, page.toStdString());
            return;
        }
    }
    atelier.execute(app::AideDuPanneau);
}

FenetreGuide::FenetreGuide(const Atelier& atelier, QWidget* parent) : QWidget(parent, Qt::Window), m_atelier(atelier) {
    nomme(this, "frmGuide");
    setWindowTitle(tr("Guide d'Ambrelis"));
    m_atelier.liaison.apresEcriture([this] {
        if (m_presentation != m_atelier.etats().guide.presentations) presente();
    });
}

FenetreGuide::~FenetreGuide() {
    noteLaTaille();
}

void FenetreGuide::compose() {
    const std::string dossier = m_atelier.session.regarde([](const app::Contexte& c) { return c.chemins.dossier; });
    m_pages.emplace(dossier + app::kDossierDuGuide);
    m_interface.emplace(dossier);
    auto* partage = new QSplitter;
    partage->setChildrenCollapsible(false);
    partage->addWidget(gauche());
    partage->addWidget(droite());
    partage->setStretchFactor(1, 1);
    partage->setSizes({kSommaire, kTaille.width() - kSommaire});
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(0, 0, 0, 0);
    boite->addWidget(partage);
    connect(m_vue, &QTextBrowser::historyChanged, this, &FenetreGuide::suisLaPage);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        m_recherche->setFocus(Qt::ShortcutFocusReason);
        m_recherche->selectAll();
    });
    suisLaRecherche();
    setMinimumSize(kMoindre);
    resize(QSize(m_interface->nombre(QStringLiteral("guide/largeur"), kTaille.width(), kMoindre.width(), kCoteAuPlus),
                 m_interface->nombre(QStringLiteral("guide/hauteur"), kTaille.height(), kMoindre.height(), kCoteAuPlus))
               .boundedTo(screen()->availableSize()));
    move(parentWidget()->window()->frameGeometry().center() - rect().center());
}

QWidget* FenetreGuide::gauche() {
    m_recherche = nomme(new QLineEdit, "txtChercheGuide", tr("Chercher dans le guide"));
    m_recherche->setPlaceholderText(tr("Chercher dans le guide…"));
    m_recherche->setToolTip(tr("Chercher dans toutes les pages (Ctrl+F) ; Entrée mène au passage suivant"));
    m_recherche->setClearButtonEnabled(true);
    connect(m_recherche, &QLineEdit::textEdited, this, &FenetreGuide::suisLaRecherche);
    connect(m_recherche, &QLineEdit::textChanged, this, [this](const QString& texte) {
        if (texte.isEmpty()) suisLaRecherche();
    });
    connect(m_recherche, &QLineEdit::returnPressed, this, [this] { cherche(1); });
    m_liste = nomme(new QTreeWidget, "lstPagesGuide", tr("Sommaire du guide"));
    m_liste->setHeaderHidden(true);
    m_liste->setRootIsDecorated(false);
    m_liste->setItemsExpandable(false);
    m_liste->setIndentation(kMoyen);
    m_liste->setFrameShape(QFrame::NoFrame);
    m_liste->setItemDelegate(new DelegueLignes(m_liste));
    connect(m_liste, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* entree) {
        if (!entree || !entree->data(0, kPage).isValid()) return;
        const QString& nom = m_pages->pages()[entree->data(0, kPage).toUInt()].nom;
        if (m_vue->page() != nom) m_vue->montre(nom);
    });
    m_compte = nomme((new Etiquette)->avecTon(Ton::Discret), "lblPassages");
    m_avant = bouton("cmdPassagePrecedent", tr("Précédent"), tr("Le passage précédent (Maj+F3)"));
    m_apres = bouton("cmdPassageSuivant", tr("Suivant"), tr("Le passage suivant (F3)"));
    connect(qobject_cast<QAbstractButton*>(m_avant), &QAbstractButton::clicked, this, [this] { cherche(-1); });
    connect(qobject_cast<QAbstractButton*>(m_apres), &QAbstractButton::clicked, this, [this] { cherche(1); });
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F3, this), &QShortcut::activated, this, [this] { cherche(-1); });
    connect(new QShortcut(Qt::Key_F3, this), &QShortcut::activated, this, [this] { cherche(1); });
    auto* cote = new QWidget;
    auto* boite = new QVBoxLayout(cote);
    boite->setContentsMargins(kMoyen, kMoyen, kMoyen, kMoyen);
    boite->setSpacing(kPetit);
    boite->addWidget(m_recherche);
    boite->addWidget(m_compte);
    boite->addLayout(rangee({m_avant, m_apres}));
    boite->addWidget(m_liste, 1);
    return cote;
}

QWidget* FenetreGuide::droite() {
    m_vue = nomme(new VueGuide(*m_pages), "pageDuGuide", tr("Page du guide"));
    connect(m_vue, &VueGuide::lienAuDehors, this,
            [this](const QString& adresse) { m_atelier.execute(app::LienDuGuide_Click, adresse.toStdString()); });
    auto* retour = bouton("cmdGuideRetour", QStringLiteral("←"), tr("Revenir à la page d'avant (Alt+Gauche)"));
    auto* avance = bouton("cmdGuideAvance", QStringLiteral("→"), tr("Avancer de nouveau (Alt+Droite)"));
    retour->setAccessibleName(tr("Revenir"));
    avance->setAccessibleName(tr("Avancer"));
    auto* sommaire = bouton("cmdGuideSommaire", tr("&Sommaire"), tr("La première page du guide (Alt+Origine)"));
    auto* touches = bouton("cmdGuideTouches", tr("&Touches"), tr("Les touches de la fenêtre"));
    auto* ailleurs =
        bouton("cmdGuideNavigateur", tr("Ouvrir dans le &navigateur"), tr("Lire cette page dans votre navigateur"));
    connect(retour, &QAbstractButton::clicked, m_vue, &QTextBrowser::backward);
    connect(avance, &QAbstractButton::clicked, m_vue, &QTextBrowser::forward);
    connect(m_vue, &QTextBrowser::backwardAvailable, retour, &QWidget::setEnabled);
    connect(m_vue, &QTextBrowser::forwardAvailable, avance, &QWidget::setEnabled);
    connect(sommaire, &QAbstractButton::clicked, this, [this] { m_vue->montre(QString(app::kSommaireDuGuide)); });
    connect(touches, &QAbstractButton::clicked, this, [this] { m_vue->montre(QStringLiteral("touches.html")); });
    connect(ailleurs, &QAbstractButton::clicked, this,
            [this] { m_atelier.execute(app::cmdPageAuNavigateur_Click, m_vue->page().toStdString()); });
    for (QPushButton* fleche : {retour, avance}) {
        fleche->setEnabled(false);
        fleche->setFixedWidth(kFleche);
    }
    connect(new QShortcut(Qt::ALT | Qt::Key_Left, this), &QShortcut::activated, m_vue, &QTextBrowser::backward);
    connect(new QShortcut(Qt::ALT | Qt::Key_Right, this), &QShortcut::activated, m_vue, &QTextBrowser::forward);
    connect(new QShortcut(Qt::ALT | Qt::Key_Home, this), &QShortcut::activated, sommaire, &QAbstractButton::click);
    auto* barre = rangee({retour, avance, sommaire, touches});
    barre->setContentsMargins(kMoyen, kMoyen, kMoyen, kPetit);
    barre->addStretch();
    barre->addWidget(ailleurs);
    auto* cote = new QWidget;
    auto* boite = new QVBoxLayout(cote);
    boite->setContentsMargins(0, 0, 0, 0);
    boite->setSpacing(0);
    boite->addLayout(barre);
    boite->addWidget(filetHorizontal());
    boite->addWidget(m_vue, 1);
    return cote;
}

void FenetreGuide::presente() {
    m_presentation = m_atelier.etats().guide.presentations;
    if (!m_pages) compose();
    m_recherche->clear();
    m_vue->montre(QString::fromStdString(m_atelier.etats().guide.page));
    winId();
    windowHandle()->setTransientParent(nullptr);  // one that waits for an answer over the main window leaves it free
    show();
    raise();
    activateWindow();
    m_vue->setFocus(Qt::OtherFocusReason);
}

// Under their headings; a heading without a page is not listed.
void FenetreGuide::listeLesPages() {
    const QSignalBlocker sansSignal(m_liste);
    m_liste->clear();
    QTreeWidgetItem* groupe = nullptr;
    for (const std::size_t i : m_trouvees) {
        const PagesDuGuide::Page& page = m_pages->pages()[i];
        if (!groupe || groupe->text(0) != page.groupe) {
            groupe = new QTreeWidgetItem(m_liste, {page.groupe});
            groupe->setFlags(Qt::ItemIsEnabled);
            groupe->setData(0, kLigneForte, true);
        }
        auto* entree = new QTreeWidgetItem(groupe, {page.titre});
        entree->setData(0, kPage, static_cast<uint>(i));
    }
    m_liste->expandAll();
    suisLaPage();
}

std::size_t FenetreGuide::pageMontree() const {
    const auto montree =
        std::ranges::find_if(m_trouvees, [&](std::size_t i) { return m_pages->pages()[i].nom == m_vue->page(); });
    return static_cast<std::size_t>(montree - m_trouvees.begin());
}

void FenetreGuide::suisLaPage() {
    const QSignalBlocker sansSignal(m_liste);
    const std::size_t montree = pageMontree();
    m_liste->setCurrentItem(nullptr);
    for (QTreeWidgetItemIterator entree(m_liste); montree < m_trouvees.size() && *entree; ++entree)
        if ((*entree)->data(0, kPage).isValid() && (*entree)->data(0, kPage).toUInt() == m_trouvees[montree])
            m_liste->setCurrentItem(*entree);
    const QString titre = m_vue->documentTitle();
    setWindowTitle(titre.isEmpty() ? tr("Guide d'Ambrelis") : titre);
    ditOuOnEnEst();
}

void FenetreGuide::suisLaRecherche() {
    const QStringList mots = plieePourChercher(m_recherche->text()).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    m_trouvees = m_pages->quiContiennent(mots);
    m_vue->cherche(mots);
    listeLesPages();
}

// From a passage to the next one of the page, then to the page after it, and from the last one to the first.
void FenetreGuide::cherche(int sens) {
    if (m_recherche->text().trimmed().isEmpty() || m_trouvees.empty()) return;
    const std::size_t nombre = m_trouvees.size(), ici = pageMontree();
    if (ici < nombre && m_vue->passe(sens)) return ditOuOnEnEst();
    std::size_t voulue = sens > 0 ? 0 : nombre - 1;
    if (ici < nombre) voulue = (ici + (sens > 0 ? 1 : nombre - 1)) % nombre;
    m_vue->montre(m_pages->pages()[m_trouvees[voulue]].nom);
    m_vue->avantLePremier(sens);
    m_vue->passe(sens);
    ditOuOnEnEst();
}

void FenetreGuide::ditOuOnEnEst() {
    const bool cherchee = !m_recherche->text().trimmed().isEmpty();
    for (QWidget* widget : {static_cast<QWidget*>(m_compte), m_avant, m_apres})
        widget->setVisible(cherchee);
    for (QWidget* widget : {m_avant, m_apres})
        widget->setEnabled(!m_trouvees.empty());
    if (m_trouvees.empty()) return m_compte->setText(tr("Aucune page ne contient ces mots."));
    const QString pages = m_trouvees.size() == 1 ? tr("1 page") : tr("%1 pages").arg(m_trouvees.size());
    const qsizetype ici = m_vue->passages();
    if (pageMontree() == m_trouvees.size()) return m_compte->setText(pages);
    m_compte->setText(m_vue->passage() > 0 ? tr("%1 ; ici, passage %2 sur %3").arg(pages).arg(m_vue->passage()).arg(ici)
                                           : tr("%1 ; ici, %2").arg(pages).arg(ici));
}

void FenetreGuide::noteLaTaille() {
    if (!m_interface || isMaximized() || isFullScreen()) return;
    m_interface->note(QStringLiteral("guide/largeur"), width());
    m_interface->note(QStringLiteral("guide/hauteur"), height());
}

// Closed, it is only hidden; the program ends with its main window.
void FenetreGuide::closeEvent(QCloseEvent* evenement) {
    noteLaTaille();
    evenement->accept();
}

void FenetreGuide::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Escape)
        close();
    else if (evenement->key() == Qt::Key_F1)
        m_vue->montre(QString(app::kSommaireDuGuide));
    else
        QWidget::keyPressEvent(evenement);
}

}  // namespace ui
