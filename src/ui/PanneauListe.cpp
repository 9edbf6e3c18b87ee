#include "ui/PanneauListe.h"

#include "app/Commandes.h"
#include "app/Filtre.h"
#include "browse/AfficheTitres.h"
#include "browse/ChoixTri.h"
#include "browse/ChoixZone.h"
#include "browse/ListeVide.h"
#include "browse/MarquesFilm.h"
#include "ui/Boutons.h"
#include "ui/Cartes.h"
#include "ui/ChampFiltre.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"

#include <QVBoxLayout>

namespace ui {

namespace {

constexpr std::chrono::milliseconds kTranche{4};  // of idle time
constexpr int kApresLaPeinture = 100;             // milliseconds: what is behind the first page comes first
constexpr int kPendantUneCommande = 50;           // until the next try
constexpr int kDeuxListes = 280;                  // the width from which zone and sort stand side by side

}  // namespace

PanneauListe::PanneauListe(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_atelier(atelier) {
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kMoyen, 0, kSerre);
    boite->setSpacing(kPetit);
    boite->addWidget(choix());
    boite->addWidget(cadreTitres(), 1);
    suisLesGestes();
    suisLesMarques();
}

QWidget* PanneauListe::choix() {
    auto& liste = m_atelier.etats().liste;
    auto* zone = nomme(new ListeDeroulante, "ChoixZone");
    auto* tri = nomme(new ListeDeroulante, "ChoixTri");
    zone->setToolTip(tr("Les films à montrer"));
    tri->setToolTip(tr("L'ordre des films et leur classement dans la liste"));
    for (QComboBox* choix : {zone, tri})  // no zone, no sort is cut
        choix->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_atelier.liaison.lie(liste.ChoixZone, zone);
    m_atelier.liaison.lie(liste.ChoixTri, tri);

    connect(zone, &ListeDeroulante::vaSOuvrir, this, m_atelier.reponse(browse::ChoixZone_DropDown));
    connect(zone, &ListeDeroulante::sEstFermee, this, [this] {
        const auto& etat = m_atelier.etats().liste;
        if (etat.ChoixZone.ListIndex != etat.zoneDeLArbre) m_atelier.execute(browse::ChoixZone_CloseUp);
    });
    connect(zone, &QComboBox::activated, this, m_atelier.reponse(browse::ChoixZone_Click));
    connect(tri, &QComboBox::activated, this, m_atelier.reponse(browse::ChoixTri_Click));
    const auto avecLegende = [](const QString& texte, QWidget* controle) {
        auto* cadre = new QWidget;
        cadre->setLayout(champ(texte, controle));
        return cadre;
    };
    return new CoteACote({avecLegende(tr("&Zone"), zone), avecLegende(tr("&Tri"), tri)}, kDeuxListes, kPetit);
}

QWidget* PanneauListe::cadreTitres() {
    auto& liste = m_atelier.etats().liste;
    auto* cadre = nomme(new QWidget, "Frame1");
    auto* titre = (new Etiquette)->avecPolice(1.08, QFont::DemiBold);
    connect(cadre, &QWidget::windowTitleChanged, titre, &QLabel::setText);
    m_titres = nomme(new VueTitres(liste.TreeView1), "TreeView1", tr("Liste des titres"));
    m_filtre = new ChampFiltre(m_atelier, *m_titres);
    auto* statistiques =
        nomme(new Bascule(tr("Afficher des &statistiques lors du tri par catégorie"), QStringLiteral("%")), "AffStats");
    statistiques->setToolTip(
        tr("Afficher des statistiques lors du tri par catégorie :\n"
           "la part des films que contient chaque catégorie (Alt+S)"));
    m_atelier.liaison.lie(liste.AffStats, statistiques);
    m_atelier.auClic(statistiques, browse::AffStats_Click);
    // How many titles the filter leaves stands where all of them are told.
    auto* entete = rangee({titre, m_filtre->compte()}, 0);
    entete->setStretch(0, 1);
    entete->setStretch(1, 1);
    entete->addWidget(statistiques);
    auto* titres = new QGridLayout;
    titres->setContentsMargins(0, 0, 0, 0);
    titres->addWidget(m_titres, 0, 0);
    titres->addWidget(raisonDuVide(), 0, 0);
    titres->addWidget(filtreVide(), 0, 0);
    auto* boite = colonne(kSerre);
    boite->addLayout(entete);
    boite->addWidget(m_filtre);
    boite->addLayout(titres, 1);
    cadre->setLayout(boite);
    m_atelier.liaison.lie(liste.Frame1, cadre);
    m_atelier.liaison.ajoute(m_titres->lien(liste));
    m_atelier.liaison.apresEcriture([=, this] { titre->setVisible(m_filtre->compte()->isHidden()); });
    QWidget::setTabOrder(m_filtre, m_titres);
    return cadre;
}

QWidget* PanneauListe::comptes() {
    auto& liste = m_atelier.etats().liste;
    auto* titres = nomme((new Etiquette)->avecTon(Ton::Discret), "Label9", 0);
    auto* personnels = nomme((new Etiquette)->avecTon(Ton::Discret), "Label9", 1);
    titres->setToolTip(tr("Nombre de films du catalogue"));
    personnels->setToolTip(tr("Nombre de films que vous possédez"));
    m_atelier.liaison.lie(liste.Label9[0], titres);
    m_atelier.liaison.lie(liste.Label9[1], personnels);
    auto* cadre = new QWidget;
    cadre->setLayout(rangee({titres, personnels}, kGrand));
    cadre->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    return cadre;
}

QWidget* PanneauListe::filtreVide() {
    auto* texte = nomme((new Etiquette)->avecTon(Ton::Discret)->avecLignes(4), "lblFiltreVide");
    auto* aide = (new Etiquette(tr("Chaque mot est cherché dans le titre, le réalisateur, l’année, le genre et les "
                                   "acteurs.")))
                     ->avecTon(Ton::Discret)
                     ->avecLignes(5);
    for (Etiquette* etiquette : {texte, aide})
        etiquette->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* tout = bouton<BoutonLien>("cmdToutAfficher", tr("Tout afficher"), tr("Vider le filtre (Échap)"));
    connect(tout, &QAbstractButton::clicked, m_filtre, &ChampFiltre::montreTout);
    auto* boite = colonne(kMoyen);
    boite->setContentsMargins(kLarge, kLarge, kLarge, kLarge);
    boite->addWidget(texte);
    boite->addWidget(tout, 0, Qt::AlignHCenter);
    boite->addWidget(aide);
    boite->addStretch();
    auto* cadre = new QWidget;
    cadre->setLayout(boite);
    cadre->hide();
    m_atelier.liaison.apresEcriture([=, this] {
        const app::Etats& etats = m_atelier.etats();
        const ModeleArbre& modele = m_titres->modele();
        cadre->setVisible(modele.estFiltre() && modele.rowCount() == 0 && etats.liste.TreeView1.Nodes.Count() > 0 &&
                          !etats.filtre.titres.estPerime());
        if (cadre->isVisibleTo(this)) texte->setText(QString::fromStdString(app::raisonDuFiltreVide(etats.filtre)));
    });
    return cadre;
}

// Over the list, which keeps the keys.
QWidget* PanneauListe::raisonDuVide() {
    auto* texte = nomme((new Etiquette)->avecTon(Ton::Discret)->avecLignes(4), "lblListeVide");
    texte->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* tous = bouton<BoutonLien>("cmdTousLesFilms", tr("Tous les films"), tr("Montrer tous les films de la base"));
    m_atelier.auClic(tous, browse::cmdTousLesFilms_Click);
    auto* cadre = new QWidget;
    auto* boite = colonne(kMoyen);
    boite->setContentsMargins(kLarge, kLarge, kLarge, kLarge);
    boite->addWidget(texte);
    boite->addWidget(tous, 0, Qt::AlignHCenter);
    boite->addStretch();
    cadre->setLayout(boite);
    cadre->hide();
    m_atelier.liaison.apresEcriture([=, this] {
        const auto vide = browse::listeVide(m_atelier.etats().liste);
        const bool dejaDit = !cadre->isHidden() && vide && texte->text().toStdString() == vide->raison;
        cadre->setVisible(vide.has_value());
        if (!vide) return;
        texte->setText(QString::fromStdString(vide->raison));
        if (!dejaDit) annonce(texte);
        tous->setVisible(vide->autresFilms);
    });
    return cadre;
}

void PanneauListe::suisLesGestes() {
    connect(m_titres, &VueTitres::noeudChoisi, this,
            [this](int indice) { m_atelier.execute(app::TreeView1_NodeClick, indice); });
    connect(&m_titres->modele(), &ModeleArbre::coche, this, [this](int indice, bool cochee) {
        m_atelier.commande.execute([=, this] {
            auto& coches = m_atelier.etats().liste.TreeView1.coches;
            cochee ? static_cast<void>(coches.insert(indice)) : static_cast<void>(coches.erase(indice));
            m_atelier.session.execute(app::TreeView1_NodeCheck, indice, cochee);
        });
    });
}

// What the films' rows show is read once the list was painted, and again after a command that changed it.
void PanneauListe::suisLesMarques() {
    const app::Session& session = m_atelier.session;
    m_titres->modele().regardePar(
        [&session](int noeud) { return session.regarde(browse::marquesDuNoeud, noeud); },
        [&session](int noeud) { return QString::fromStdString(session.regarde(browse::infobulleDuNoeud, noeud)); });
    connect(this, &PanneauListe::marquesLues, m_titres->viewport(), qOverload<>(&QWidget::update));
    m_marques.setSingleShot(true);
    connect(&m_marques, &QTimer::timeout, this, &PanneauListe::prepareLesMarques);
    connect(m_titres, &VueTitres::peinte, this, [this] {
        m_marques.start(kApresLaPeinture);
        connect(&m_atelier.commande, &Commande::terminee, &m_marques, [this] { m_marques.start(0); });
    });
}

void PanneauListe::prepareLesMarques() {
    if (m_atelier.commande.finie()) return;
    if (m_atelier.commande.enCours()) return m_marques.start(kPendantUneCommande);
    bool lues = false;
    m_atelier.commande.lis([&] { lues = m_atelier.session.regarde(browse::suisLesMarques, kTranche); });
    if (lues)
        emit marquesLues();
    else
        m_marques.start(0);
}

}  // namespace ui
