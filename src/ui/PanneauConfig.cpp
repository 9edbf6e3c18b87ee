#include "ui/PanneauConfig.h"

#include "app/Aide.h"
#include "app/Commandes.h"
#include "app/LogicielsExternes.h"
#include "app/Sauvegardes.h"
#include "db/Option3_Click.h"
#include "db/cmdMajBase_Click.h"
#include "ui/Boutons.h"
#include "ui/Cartes.h"
#include "ui/Composition.h"
#include "ui/Infobulles.h"
#include "ui/Lecteur.h"
#include "ui/Sections.h"

#include <QProgressBar>
#include <QRadioButton>

namespace ui {

namespace {

constexpr int kLargeurExtension = 160;
constexpr int kDeuxColonnes = 920;  // what a window of 1366 leaves to the panel

}  // namespace

PanneauConfig::PanneauConfig(const Atelier& atelier, QWidget* parent) : QWidget(parent) {
    nomme(this, "frameConfig");
    seLitCommeGroupe(this, tr("Configuration"));
    const auto carte = [](QLayout* partie) { return new Carte(partie); };
    auto* gauche = pile({carte(images(atelier)), carte(sauvegardes(atelier))});
    auto* droite = pile({carte(logiciels(atelier)), carte(programme(atelier))});
    auto* boite = colonne(0);
    boite->addWidget(new CoteACote({gauche, droite}, kDeuxColonnes, kGrand));
    setLayout(boite);
    atelier.liaison.lie(atelier.etats().fonctions.frameConfig, this);
}

QLayout* PanneauConfig::images(const Atelier& atelier) {
    auto& stockage = atelier.etats().stockage;
    auto& fonctions = atelier.etats().fonctions;
    const QString textes[] = {tr("Les images sont dans la &base"), tr("Les images sont dans un répertoir&e")};
    auto* boite = section(atelier, Aide::Images);
    for (std::size_t i = 0; i < 2; ++i) {
        auto* option = nomme(new QRadioButton(textes[i]), "Option3", i);
        option->setToolTip(tr("Où vont les affiches des nouveaux films"));
        atelier.liaison.lie(stockage.Option3[i], option);
        atelier.auClic(option, db::Option3_Click);
        boite->addWidget(option, 0, Qt::AlignLeft);
    }
    auto* dossier = nomme(new QLineEdit, "Text4");
    auto* parcourir = bouton("cmdParcourir", tr("Par&courir…"), tr("Choisir le dossier des images"));
    auto* convertir =
        bouton("cmdMajBase", tr("Con&vertir les affiches"), tr("Mettre toutes les affiches à l'endroit choisi"));
    auto* progression = nomme(new QProgressBar, "ProgressBar2", tr("Avancement de la conversion"));
    progression->setTextVisible(false);
    progression->setFixedHeight(8);
    gardeSaPlace(progression);
    atelier.liaison.lie(stockage.Text4, dossier);
    atelier.liaison.lie(stockage.cmdParcourir, parcourir);
    atelier.liaison.lie(fonctions.cmdMajBase, convertir);
    atelier.liaison.lie(atelier.etats().travaux.ProgressBar2, progression);
    atelier.auClic(parcourir, app::cmdParcourir_Click);
    atelier.auClic(convertir, db::cmdMajBase_Click);
    auto* choix = colonne(kSerre);
    choix->addWidget(legende(tr("&Dossier des images"), dossier));
    choix->addLayout(rangee({dossier, parcourir}));
    boite->addLayout(choix);
    auto* conversion = rangee({convertir, progression}, kMoyen);
    conversion->setStretch(1, 1);
    boite->addLayout(conversion);
    return boite;
}

QLayout* PanneauConfig::logiciels(const Atelier& atelier) {
    auto& fonctions = atelier.etats().fonctions;
    auto* choisir =
        bouton("cmdParcourirLogiciel", tr("Choisi&r…"), tr("Choisir le programme qui ouvrira ces fichiers"));
    auto* supprimer = bouton("cmdSupprExtension", tr("Suppri&mer"), tr("Retirer l'extension de la liste"));
    atelier.liaison.lie(fonctions.cmdParcourirLogiciel, choisir);
    atelier.liaison.lie(fonctions.cmdSupprExtension, supprimer);
    atelier.auClic(choisir, app::cmdParcourirLogiciel_Click);
    atelier.auClic(supprimer, app::cmdSupprExtension_Click);
    auto* programmes = listeLogiciels(atelier, 1);
    atelier.liaison.apresEcriture([programmes] { programmes->setToolTip(enInfobulle(programmes->currentText())); });

    auto* boite = section(atelier, Aide::Logiciels);
    auto* ligne = rangee({}, kMoyen);
    ligne->addLayout(champ(tr("E&xtension"), listeLogiciels(atelier, 0)), 1);
    ligne->addLayout(champ(tr("Log&iciel"), programmes), 3);
    auto* boutons = rangee({choisir, supprimer});
    boutons->setAlignment(Qt::AlignBottom);
    ligne->addLayout(boutons);
    boite->addLayout(ligne);
    boite->addLayout(nouvelleExtension(atelier));
    return boite;
}

ListeDeroulante* PanneauConfig::listeLogiciels(const Atelier& atelier, int indice) {
    auto* liste = nomme(new ListeDeroulante, "Combo6", static_cast<std::size_t>(indice));
    liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    liste->setMinimumContentsLength(8);
    atelier.liaison.lie(atelier.etats().fonctions.Combo6[static_cast<std::size_t>(indice)], liste);
    QObject::connect(liste, &QComboBox::activated, &atelier.commande, atelier.reponse(app::Combo6_Click, indice));
    return liste;
}

QLayout* PanneauConfig::nouvelleExtension(const Atelier& atelier) {
    auto& fonctions = atelier.etats().fonctions;
    auto* texte = nomme(new QLineEdit, "txtNouvelleExtension");
    texte->setPlaceholderText(tr("par exemple avi"));
    texte->setFixedWidth(kLargeurExtension);
    auto* ajouter = bouton("cmdAjoutExtension", tr("&Ajouter"), tr("Ajouter cette extension à la liste (Entrée)"));
    atelier.liaison.lie(fonctions.txtNouvelleExtension, texte);
    atelier.liaison.lie(fonctions.cmdAjoutExtension, ajouter);
    atelier.auClic(ajouter, app::cmdAjoutExtension_Click);
    QObject::connect(texte, &QLineEdit::returnPressed, ajouter, &QAbstractButton::click);
    auto* boite = colonne(kSerre);
    boite->addWidget(legende(tr("&Nouvelle extension"), texte));
    boite->addLayout(aGauche({texte, ajouter}));
    return boite;
}

QLayout* PanneauConfig::programme(const Atelier& atelier) {
    auto& fonctions = atelier.etats().fonctions;
    auto* connexion =
        nomme(new QCheckBox(tr("&Lancer la connexion au démarrage du téléchargement")), "chkLancerConnexion");
    auto* page = nomme(new BoutonLien(tr("Le guide d'Ambrelis")), "Label4");
    page->setToolTip(tr("Lire le guide du programme (F1 : la page de ce qui est montré)"));
    atelier.liaison.lie(fonctions.chkLancerConnexion, connexion);
    atelier.liaison.lie(fonctions.Label4, page);
    atelier.auClic(page, app::Label4_Click);
    auto* boite = section(tr("Internet"), tr("Le téléchargement des fiches est confié à un programme compagnon."));
    boite->addWidget(connexion, 0, Qt::AlignLeft);
    boite->addLayout(aGauche({page}));
    return boite;
}

QLayout* PanneauConfig::sauvegardes(const Atelier& atelier) {
    auto* ouvrir = bouton("cmdSauvegardes", tr("Sauvegardes…"), tr("Voir les sauvegardes de la base, et y revenir"));
    atelier.auClic(ouvrir, app::cmdSauvegardes_Click);
    auto* boite =
        section(tr("Sauvegardes"), tr("La base est copiée avant chaque commande qui change beaucoup de films."));
    boite->addLayout(aGauche({ouvrir}));
    return boite;
}

}  // namespace ui
