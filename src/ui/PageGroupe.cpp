#include "ui/PageGroupe.h"

#include "app/Commandes.h"
#include "browse/ListeVide.h"
#include "edit/ModifieGroupe.h"
#include "ui/Composition.h"
#include "ui/FenetreApercu.h"
#include "ui/Vignette.h"

#include <QKeyEvent>
#include <algorithm>

namespace ui {

namespace {

constexpr int kEntreVignettes = 16;
constexpr int kLargeurMax = 230, kLargeurMin = 84;  // of a poster; where fewer fit, fewer are shown
constexpr int kReposDeLaTaille = 150;               // milliseconds after which posters are decoded at a new size
constexpr int kPendantUneCommande = 50;             // milliseconds until the next try

// So many posters in a place: as large as may be.
struct Damier {
    int colonnes = 1, largeur = 0;
};

Damier damierPour(int nombre, const QSize& place, const QFontMetrics& mesure) {
    Damier meilleur;
    for (int colonnes = 1; colonnes <= nombre; ++colonnes) {
        const int rangees = (nombre + colonnes - 1) / colonnes;
        const int enLargeur = (place.width() + kEntreVignettes) / colonnes - kEntreVignettes;
        const int haute = (place.height() + kEntreVignettes) / rangees - kEntreVignettes;
        const int enHauteur = (haute - Vignette::hauteurPour(0, mesure)) * 2 / 3;
        const int largeur = std::min({enLargeur, enHauteur, kLargeurMax});
        if (largeur >= meilleur.largeur) meilleur = {colonnes, largeur};
    }
    return meilleur;
}

}  // namespace

PageGroupe::PageGroupe(const Atelier& atelier, QWidget* parent)
    : QWidget(parent),
      m_atelier(atelier),
      m_nom(nomme((new Etiquette)->avecPolice(1.6, QFont::DemiBold), "lblGroupe")),
      m_compte(nomme((new Etiquette)->avecTon(Ton::Discret), "lblNombreGroupe")),
      m_apercu(bouton("cmdApercuGroupe", tr("Aperçu…"), tr("Voir d'abord ce qu'un autre nom changera"))),
      m_renommer(bouton("cmdRenommerGroupe", tr("Renommer…"), tr("Donner un autre nom à ce groupe de films"))),
      m_mur(new QWidget) {
    nomme(this, "framePageGroupe");
    auto* textes = colonne(2);
    textes->addWidget(m_nom);
    textes->addWidget(m_compte);
    auto* entete = rangee({}, kMoyen);
    entete->addLayout(textes, 1);
    entete->addWidget(m_apercu, 0, Qt::AlignVCenter);
    entete->addWidget(m_renommer, 0, Qt::AlignVCenter);
    for (std::size_t i = 0; i < m_vignettes.size(); ++i) {
        auto* vignette = m_vignettes[i] = nomme(new Vignette(m_mur), "cmdVignette", i);
        vignette->hide();
        vignette->installEventFilter(this);
        connect(vignette, &QAbstractButton::clicked, this, [this, i] {
            if (!m_perimee) m_atelier.execute(app::TreeView1_NodeClick, m_page.noeuds[i]);
        });
    }
    entrePar(0);
    auto* boite = colonne(kGrand);
    boite->setContentsMargins(kPetit, kMoyen, kGrand, kMoyen);
    boite->addLayout(entete);
    boite->addWidget(m_mur, 1);
    setLayout(boite);
    m_mur->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);

    connect(m_apercu, &QAbstractButton::clicked, this,
            [this] { ouvreApercuDuRenommage(m_atelier, this, m_page.renommage == browse::Renommage::Support); });
    connect(m_renommer, &QAbstractButton::clicked, this, &PageGroupe::renomme);
    m_suite.setSingleShot(true);
    connect(&m_suite, &QTimer::timeout, this, &PageGroupe::avance);
    atelier.liaison.apresEcriture([this] { suis(); });
    hide();
}

void PageGroupe::suis() {
    const app::Etats& etats = m_atelier.etats();
    const browse::EtatPanneaux& panneaux = etats.panneaux;
    const bool sousUneBande =
        panneaux.frameRecherche.Visible ||
        (panneaux.frameMultiSuppression.Visible && !panneaux.frameFiche.Visible && !panneaux.frameCollection.Visible);
    const bool collection =
        panneaux.frameCollection.Visible && etats.collection.page == app::PageDeCollection::Affiches;
    const bool accueil = panneaux.framePresentation.Visible && !browse::catalogueVide(etats.liste);
    const bool voulue = sousUneBande || accueil || collection;
    const browse::VueArbre& vue = etats.liste.TreeView1;
    if (voulue && std::exchange(m_vue, {vue.Nodes.generation(), vue.SelectedItem}) != m_vue) {
        m_perimee = true;
        m_suite.stop();  // until the list and this were painted
        update();
    }
    setVisible(voulue);
}

void PageGroupe::metAJour() {
    m_perimee = false;
    const browse::EtatListe& liste = m_atelier.etats().liste;
    const browse::Arbre& arbre = liste.TreeView1.Nodes;
    browse::PageDuGroupe page = browse::pageDuGroupe(liste);
    if (std::exchange(m_generation, arbre.generation()) == arbre.generation() && page == m_page) return;
    m_page = std::move(page);
    m_nom->setText(QString::fromStdString(m_page.nom));
    m_compte->setText(QString::fromStdString(m_page.compte));
    m_apercu->setVisible(m_page.renommage != browse::Renommage::Aucun);
    m_renommer->setVisible(m_page.renommage != browse::Renommage::Aucun);
    for (std::size_t i = 0; i < m_page.noeuds.size(); ++i) {
        const std::string_view titre = arbre.Text(m_page.noeuds[i]);
        m_vignettes[i]->metTitre(QString::fromUtf8(titre.data(), static_cast<qsizetype>(titre.size())).trimmed());
    }
    entrePar(0);
    range();
    recharge(0);
}

// What does not fit is left out, the last first.
void PageGroupe::range() {
    auto nombre = static_cast<int>(m_page.noeuds.size());
    Damier damier = damierPour(nombre, m_mur->size(), m_mur->fontMetrics());
    while (nombre > 1 && damier.largeur < kLargeurMin)
        damier = damierPour(--nombre, m_mur->size(), m_mur->fontMetrics());
    const int haute = Vignette::hauteurPour(damier.largeur, m_mur->fontMetrics());
    for (int i = 0; i < static_cast<int>(m_vignettes.size()); ++i) {
        Vignette* vignette = m_vignettes[static_cast<std::size_t>(i)];
        vignette->setVisible(i < nombre && damier.largeur > 0);
        vignette->setGeometry(i % damier.colonnes * (damier.largeur + kEntreVignettes),
                              i / damier.colonnes * (haute + kEntreVignettes), damier.largeur, haute);
    }
}

void PageGroupe::recharge(int apres) {
    m_rang = 0;
    m_suite.stop();
    if (apres > 0) m_suite.start(apres);
    update();
}

// Another command may be running: the base is its own then.
void PageGroupe::avance() {
    if (!isVisible()) return;
    if (m_atelier.commande.enCours()) return m_suite.start(kPendantUneCommande);
    if (m_perimee) return metAJour();
    while (m_rang < m_page.noeuds.size() && m_vignettes[m_rang]->isHidden())
        ++m_rang;
    if (m_rang >= m_page.noeuds.size()) return;
    const auto octets = m_atelier.session.regarde(browse::afficheDuNoeud, m_page.noeuds[m_rang]);
    m_vignettes[m_rang++]->chargeAffiche(octets ? QByteArray::fromStdString(*octets) : QByteArray());
    m_suite.start(0);
}

void PageGroupe::paintEvent(QPaintEvent*) {
    if ((m_perimee || m_rang < m_page.noeuds.size()) && !m_suite.isActive()) m_suite.start(0);
}

void PageGroupe::resizeEvent(QResizeEvent* evenement) {
    QWidget::resizeEvent(evenement);
    layout()->activate();
    const int avant = m_vignettes[0]->width();
    range();
    if (m_vignettes[0]->width() != avant) recharge(kReposDeLaTaille);
}

// The posters are one stop of the focus; the arrows go from one to the next.
void PageGroupe::entrePar(std::size_t rang) {
    for (std::size_t i = 0; i < m_vignettes.size(); ++i)
        m_vignettes[i]->setFocusPolicy(i == rang ? Qt::StrongFocus : Qt::ClickFocus);
}

bool PageGroupe::eventFilter(QObject* objet, QEvent* evenement) {
    const auto ici = std::ranges::find(m_vignettes, objet);
    if (ici == m_vignettes.end()) return QWidget::eventFilter(objet, evenement);
    const auto rang = static_cast<std::size_t>(ici - m_vignettes.begin());
    if (evenement->type() == QEvent::FocusIn) entrePar(rang);
    if (evenement->type() != QEvent::KeyPress) return false;
    const int touche = static_cast<QKeyEvent*>(evenement)->key();
    const bool avance = touche == Qt::Key_Right || touche == Qt::Key_Down;
    if (!avance && touche != Qt::Key_Left && touche != Qt::Key_Up) return false;
    const std::size_t voisin = avance ? rang + 1 : rang - 1;
    if (voisin < m_vignettes.size() && !m_vignettes[voisin]->isHidden())
        m_vignettes[voisin]->setFocus(Qt::OtherFocusReason);
    return true;
}

void PageGroupe::renomme() const {
    m_atelier.execute(m_page.renommage == browse::Renommage::Genre ? edit::RenommerGenreFilms_Click
                                                                   : edit::RenommeSupportFilms_Click);
}

}  // namespace ui
