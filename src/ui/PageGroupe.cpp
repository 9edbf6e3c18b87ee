#include "ui/PageGroupe.h"

#include "app/Collection.h"
#include "app/Commandes.h"
#include "browse/ListeVide.h"
#include "edit/ModifieGroupe.h"
#include "ui/Composition.h"
#include "ui/FenetreApercu.h"
#include "ui/Lecteur.h"
#include "ui/MurDAffiches.h"

#include <utility>

namespace ui {

namespace {

constexpr int kPendantUneCommande = 50;  // milliseconds until the next try

}  // namespace

PageGroupe::PageGroupe(const Atelier& atelier, QWidget* parent)
    : QWidget(parent),
      m_atelier(atelier),
      m_nom(nomme((new Etiquette)->avecPolice(1.6, QFont::DemiBold), "lblGroupe")),
      m_compte(nomme((new Etiquette)->avecTon(Ton::Discret), "lblNombreGroupe")),
      m_apercu(bouton("cmdApercuGroupe", tr("Aperçu…"), tr("Voir d'abord ce qu'un autre nom changera"))),
      m_renommer(bouton("cmdRenommerGroupe", tr("Renommer…"), tr("Donner un autre nom à ce groupe de films"))),
      m_mur(nomme(new MurDAffiches(atelier), "MurDAffiches", tr("Affiches"))) {
    nomme(this, "framePageGroupe");
    seLitCommeGroupe(this, tr("Affiches des films de la liste"));
    auto* textes = colonne(2);
    textes->addWidget(m_nom);
    textes->addWidget(m_compte);
    auto* entete = rangee({}, kMoyen);
    entete->addLayout(textes, 1);
    entete->addWidget(m_apercu, 0, Qt::AlignVCenter);
    entete->addWidget(m_renommer, 0, Qt::AlignVCenter);
    auto* boite = colonne(kMoyen);
    entete->setContentsMargins(MurDAffiches::kAuBord, 0, 0, 0);
    boite->setContentsMargins(kPetit - MurDAffiches::kAuBord, kMoyen, kSerre, 0);
    boite->addLayout(entete);
    boite->addWidget(m_mur, 1);
    setLayout(boite);
    m_mur->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);

    connect(m_apercu, &QAbstractButton::clicked, this,
            [this] { ouvreApercuDuRenommage(m_atelier, this, m_page.renommage == browse::Renommage::Support); });
    connect(m_renommer, &QAbstractButton::clicked, this, &PageGroupe::renomme);
    connect(m_mur, &MurDAffiches::choisie, this, &PageGroupe::choisit);
    connect(m_mur, &MurDAffiches::menuDemande, this, &PageGroupe::demandeMenu);
    m_suite.setSingleShot(true);
    connect(&m_suite, &QTimer::timeout, this, &PageGroupe::metAJour);
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
    m_rangeesVoulues = !sousUneBande;
    suisLeFiltre();
    if (voulue && origine() != m_origine) perime();
    setVisible(voulue);
}

PageGroupe::Origine PageGroupe::origine() const {
    const browse::VueArbre& vue = m_atelier.etats().liste.TreeView1;
    const int choisi = vue.SelectedItem;
    const bool groupe = choisi >= 1 && choisi <= vue.Nodes.Count() && vue.Nodes.estGroupe(choisi);
    return m_atelier.session.regarde([&](const app::Contexte& c) {
        return Origine{vue.Nodes.generation(), groupe ? choisi : 0,   m_rangeesVoulues,
                       c.chemins.base,         c.stockage.Text4.Text, c.base.base.changements()};
    });
}

void PageGroupe::perime() {
    m_perimee = true;
    m_suite.stop();  // until the list and this were painted
    update();
}

// Between a new listing and the filter's next answer all of it is shown.
void PageGroupe::suisLeFiltre() {
    const ensemble::FiltreTitres& filtre = m_atelier.etats().filtre.titres;
    std::optional<ensemble::LignesVues> vues;
    if (filtre.actif() && !filtre.estPerime()) vues = filtre.vues();
    if (vues == m_vues) return;
    m_vues = std::move(vues);
    m_origine.generation = -1;
    perime();
}

// Another command may be running: the base is its own then.
void PageGroupe::metAJour() {
    if (!isVisible() || !m_perimee) return;
    if (m_atelier.commande.enCours() || m_atelier.commande.finie()) return m_suite.start(kPendantUneCommande);
    m_perimee = false;
    const browse::EtatListe& liste = m_atelier.etats().liste;
    const Origine avant = std::exchange(m_origine, origine());
    m_page = browse::pageDuGroupe(liste);
    if (m_rangeesVoulues && (!m_rangeesDe || !m_rangeesDe->memesFilms(m_origine))) {
        m_atelier.commande.lis([this] { m_rangees = m_atelier.session.regarde(ensemble::rangeesDuMur); });
        m_rangeesDe = m_origine;
    }
    const bool rangees = m_rangeesVoulues && !m_vues && ensemble::peutAvoirDesRangees(liste, m_page);
    ensemble::Mur mur = ensemble::murDAffiches(liste, m_page, m_vues ? &*m_vues : nullptr,
                                               rangees ? m_rangees : std::vector<ensemble::RangeeDuMur>());
    m_nom->setText(QString::fromStdString(m_page.nom));
    m_compte->setText(QString::fromStdString(m_vues ? ensemble::compteDuMur(mur, m_page) : m_page.compte));
    m_apercu->setVisible(m_page.renommage != browse::Renommage::Aucun);
    m_renommer->setVisible(m_page.renommage != browse::Renommage::Aucun);
    Contenu contenu{liste.triDeLArbre, liste.zoneDeLArbre, liste.critereRecherche,
                    m_page.groupe == 0 ? "" : m_page.nom};
    const bool memeContenu = std::exchange(m_contenu, contenu) == contenu;
    if (!avant.memesFilms(m_origine)) m_mur->perime();
    if (avant.generation != m_origine.generation || mur != m_mur->mur())
        m_mur->montre(std::move(mur), memeContenu && !m_vues);
}

void PageGroupe::repeins() {
    m_mur->viewport()->update();
}

void PageGroupe::paintEvent(QPaintEvent*) {
    if (m_perimee && !m_suite.isActive()) m_suite.start(0);
}

void PageGroupe::choisit(int tuile) {
    if (m_perimee) return;  // the tiles are of before
    if (const ensemble::FilmDuMur* film = m_mur->mur().film(tuile)) {
        const db::CleFilm cle = film->film;  // the command may replace the wall
        m_atelier.execute(app::montreLeFilm, cle);
        return;
    }
    m_atelier.execute(app::TreeView1_NodeClick, m_mur->mur().noeud(m_atelier.etats().liste.TreeView1.Nodes, tuile));
}

void PageGroupe::demandeMenu(int tuile, const QPoint& endroit) {
    if (m_perimee) return;
    const ensemble::FilmDuMur* film = m_mur->mur().film(tuile);
    if (!film) return emit menuDemande(m_mur->mur().noeud(m_atelier.etats().liste.TreeView1.Nodes, tuile), endroit);
    const db::CleFilm cle = film->film;
    emit menuDuFilmDemande(cle, endroit);
}

void PageGroupe::renomme() const {
    m_atelier.execute(m_page.renommage == browse::Renommage::Genre ? edit::RenommerGenreFilms_Click
                                                                   : edit::RenommeSupportFilms_Click);
}

}  // namespace ui
