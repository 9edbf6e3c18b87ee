#include "ui/PanneauOutils.h"

#include "app/Commandes.h"
#include "db/cmdCompacter_Click.h"
#include "db/cmdEnregistreJet_Click.h"
#include "db/cmdInfosBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"
#include "edit/cmdPonctuation_Click.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "export/cmdCreerListe_Click.h"
#include "ui/Cartes.h"
#include "ui/Composition.h"
#include "ui/FenetreApercu.h"
#include "ui/FenetreExport.h"
#include "ui/FenetreVoisins.h"
#include "ui/Lecteur.h"
#include "ui/Sections.h"

namespace ui {

namespace {

constexpr int kDeuxColonnes = 920;  // what a window of 1366 leaves to the panel

// What a tool does, and the button that does it, on one line.
QHBoxLayout* ligneDOutil(QVBoxLayout* texte, std::initializer_list<QPushButton*> boutons) {
    texte->setSpacing(2);
    auto* ligne = rangee({}, kGrand);
    ligne->addLayout(texte, 1);
    for (QPushButton* bouton : boutons)
        ligne->addWidget(bouton, 0, Qt::AlignVCenter);
    return ligne;
}

}  // namespace

template <typename Procedure>
QPushButton* PanneauOutils::outil(const char* nom, const QString& texte, const QString& infobulle, ecran::Bouton& etat,
                                  Procedure procedure) {
    auto* resultat = bouton(nom, texte, infobulle);
    m_atelier.liaison.lie(etat, resultat);
    m_atelier.auClic(resultat, procedure);
    return resultat;
}

PanneauOutils::PanneauOutils(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_atelier(atelier) {
    nomme(this, "frameOutils");
    seLitCommeGroupe(this, tr("Outils"));
    auto* gauche = pile({base(), importer()});
    auto* droite = pile({exporter(), corriger(), zoneDangereuse()});
    auto* boite = colonne(0);
    boite->addWidget(new CoteACote({gauche, droite}, kDeuxColonnes, kGrand));
    setLayout(boite);
    atelier.liaison.lie(atelier.etats().fonctions.frameOutils, this);
}

QWidget* PanneauOutils::base() {
    auto& fonctions = m_atelier.etats().fonctions;
    auto* ouvrir = outil("cmdChargeOuvreBase", tr("Ouvrir ou créer une &base…"),
                         tr("Travailler sur un autre fichier de films (Ctrl+O)"), fonctions.cmdChargeOuvreBase,
                         app::cmdChargeOuvreBase_Click);
    auto* infos = outil("cmdInfosBase", tr("Infor&mations"), tr("Où sont les images de la base"),
                        fonctions.cmdInfosBase, db::cmdInfosBase_Click);
    auto* compacter = outil("cmdCompacter", tr("&Compacter"), tr("Réduire la taille du fichier de la base"),
                            fonctions.cmdCompacter, db::cmdCompacter_Click);
    auto* versJet = outil("cmdEnregistreJet", tr("En&registrer au format Jet…"),
                          tr("Écrire une copie de la base pour Access et d'autres programmes ; rien ne change ici"),
                          fonctions.cmdEnregistreJet, db::cmdEnregistreJet_Click);
    auto* chemin = nomme(new Etiquette, "lblCheminBase");
    m_atelier.liaison.lie(fonctions.lblCheminBase, chemin);
    auto* boite = groupe(tr("Base"));
    boite->setSpacing(kPetit);
    boite->addWidget(chemin);
    boite->addWidget(filetHorizontal());
    boite->addLayout(ligneDOutil(section(tr("Base de données"), tr("Tous les films sont dans un seul fichier .mdb, que "
                                                                   "vous pouvez changer.")),
                                 {ouvrir, infos}));
    boite->addWidget(filetHorizontal());
    boite->addLayout(ligneDOutil(section(m_atelier, Aide::Compactage), {compacter}));
    boite->addWidget(filetHorizontal());
    boite->addLayout(ligneDOutil(
        section(tr("Format Jet"), tr("Une copie de la base, pour Access 2000 à 2003 et d'autres programmes.")),
        {versJet}));
    return new Carte(boite);
}

// No command of its own: what is found is shown before anything is done.
QWidget* PanneauOutils::importer() {
    auto* fichier =
        bouton("cmdCollectionFichier", tr("U&n fichier…"),
               tr("Une collection de Tellico, de GCstar, d'Ant Movie Catalog ou de Kodi, ou un tableau CSV"));
    auto* dossier = bouton("cmdCollectionDossier", tr("Un &dossier…"),
                           tr("Un dossier de films avec leurs fiches .nfo, ou celui d'une collection"));
    const std::pair<QPushButton*, bool> choix[] = {{fichier, false}, {dossier, true}};
    for (const auto& [celui, unDossier] : choix)
        connect(celui, &QAbstractButton::clicked, this, [this, unDossier = unDossier] {
            ouvreImportDeCollection(m_atelier, this, unDossier, m_dossierDesCollections);
        });
    auto* boite = groupe(tr("Importer"));
    boite->addLayout(ligneDOutil(
        section(tr("Importer une autre collection"), tr("Celles de Tellico, de GCstar, d'Ant Movie Catalog (en XML) et "
                                                        "de Kodi (fiches .nfo), et les tableaux CSV. "
                                                        "Ce qui sera ajouté est d'abord montré.")),
        {fichier, dossier}));
    return new Carte(boite);
}

QWidget* PanneauOutils::exporter() {
    auto* liste = outil("cmdCreerListe", tr("Créer un &fichier…"), tr("Écrire la liste de vos films"),
                        m_atelier.etats().fonctions.cmdCreerListe, exportation::cmdCreerListe_Click);
    auto* tout = bouton("cmdExporter", tr("E&xporter…"), tr("Tableau, page web, PDF, papier ou fiches .FILM"));
    connect(tout, &QAbstractButton::clicked, this, [this] { ouvreExport(m_atelier, this); });
    auto* boite = groupe(tr("Exporter"));
    boite->addLayout(ligneDOutil(section(m_atelier, Aide::FichierTexte), {liste}));
    boite->addWidget(filetHorizontal());
    boite->addLayout(ligneDOutil(
        section(tr("Dans un autre format"), tr("Un tableau, une page web avec les affiches, un PDF, du papier, ou des "
                                               "fiches à importer ailleurs.")),
        {tout}));
    return new Carte(boite);
}

QWidget* PanneauOutils::corriger() {
    auto* ponctuation = outil("cmdPonctuation", tr("Corr&iger les titres"), tr("Corriger les majuscules des titres"),
                              m_atelier.etats().fonctions.cmdPonctuation, edit::cmdPonctuation_Click);
    auto* apercu = bouton("cmdApercuTitres", tr("Aperçu…"), tr("Voir d'abord ce qui changera ; rien ne change"));
    connect(apercu, &QAbstractButton::clicked, this, [this] { ouvreApercuDesTitres(m_atelier, this); });
    auto* boite = groupe(tr("Corriger"));
    boite->addLayout(ligneDOutil(section(m_atelier, Aide::Ponctuation), {apercu, ponctuation}));
    return new Carte(boite);
}

QWidget* PanneauOutils::zoneDangereuse() {
    auto& fonctions = m_atelier.etats().fonctions;
    auto* effacer = outil("cmdSupprInfosPerso", tr("&Effacer…"), tr("Effacer ce qui concerne les films possédés"),
                          fonctions.cmdSupprInfosPerso, db::cmdSupprInfosPerso_Click);
    auto* plusieurs =
        outil("cmdMultiSuppress", tr("Supprimer p&lusieurs films…"), tr("Cocher dans la liste les films à supprimer"),
              fonctions.cmdMultiSuppress, edit::cmdMultiSuppress_Click);
    auto* boite = groupe(tr("Zone dangereuse"));
    boite->addLayout(ligneDOutil(section(m_atelier, Aide::TitresPersonnels), {effacer}));
    boite->addWidget(filetHorizontal());
    boite->addLayout(ligneDOutil(
        section(tr("Suppression"), tr("Plusieurs films peuvent être supprimés d'un seul coup.")), {plusieurs}));
    return new Carte(boite, Carte::Sorte::Dangereuse);
}

}  // namespace ui
