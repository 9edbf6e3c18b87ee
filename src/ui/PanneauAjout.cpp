#include "ui/PanneauAjout.h"

#include "acquire/ImporterAncienneBase.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "acquire/cmdParcourir2_Click.h"
#include "acquire/cmdTelecharge_Click.h"
#include "app/ChoixFonction.h"
#include "ui/ApercuDesFiches.h"
#include "ui/Boutons.h"
#include "ui/Cartes.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"
#include "ui/PanneauSaisie.h"
#include "ui/Sections.h"

#include <QKeyEvent>
#include <QProgressBar>
#include <QRadioButton>
#include <QTimer>

namespace ui {

namespace {

constexpr int kDeuxColonnes = 700;     // what a window of 1100 leaves to the panel
constexpr int kToucheEntree = 13;      // as in Windows
constexpr int kReposDeLaFrappe = 250;  // milliseconds

}  // namespace

PanneauAjout::PanneauAjout(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_atelier(atelier) {
    nomme(this, "frameDivers");
    auto* intitule = nomme(new TitreDeSection(1.5), "Label5");
    atelier.liaison.lie(atelier.etats().ajout.Label5, intitule);
    const auto suis = [intitule] { intitule->setVisible(!intitule->estVide()); };
    suis();
    atelier.liaison.apresEcriture(suis);
    auto* boite = colonne(kGrand);
    boite->addWidget(listeDOnglets(manieres(atelier), tr("Manières d'ajouter des films")));
    boite->addWidget(intitule);
    boite->addWidget(pageAutomatique(atelier));
    boite->addWidget(new PanneauSaisie(atelier));
    boite->addWidget(pageAncienneVersion(atelier));
    setLayout(boite);
    atelier.liaison.lie(atelier.etats().fonctions.frameDivers, this);
}

// What the text boxes leave: Enter in the search box.
void PanneauAjout::keyPressEvent(QKeyEvent* evenement) {
    const bool valide = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (!valide || !m_rechercheInternet->hasFocus()) return QWidget::keyPressEvent(evenement);
    m_atelier.execute(acquire::txtRechInternet_KeyDown, kToucheEntree, 0);
}

QLayout* PanneauAjout::manieres(const Atelier& atelier) {
    const std::pair<QString, QString> textes[] = {
        {tr("Ajout auto&matique"), tr("Ajouter des fiches toutes prêtes")},
        {tr("Saisie manue&lle"), tr("Écrire soi-même la fiche d'un film (Ctrl+N)")},
        {tr("&Importer une base"), tr("Reprendre les films d'une installation précédente")}};
    auto* boite = rangee({}, kSerre);
    for (std::size_t i = 0; i < 3; ++i) {
        auto* onglet = nomme(new BoutonOnglet(textes[i].first), "Command13", i);
        onglet->setToolTip(textes[i].second);
        onglet->setAutoDefault(true);
        atelier.liaison.lie(atelier.etats().ajout.Command13[i], onglet);
        atelier.auClic(onglet, app::Command13_Click, static_cast<int>(i));
        boite->addWidget(onglet);
    }
    boite->addStretch();
    return boite;
}

QWidget* PanneauAjout::pageAutomatique(const Atelier& atelier) {
    auto* cadre = nomme(new QWidget, "frameAjoutAuto");
    auto* boite = colonne(0);
    boite->addWidget(new CoteACote({new Carte(fiches(atelier)), new Carte(internet(atelier))}, kDeuxColonnes, kGrand));
    cadre->setLayout(boite);
    atelier.liaison.lie(atelier.etats().ajout.frameAjoutAuto, cadre);
    return cadre;
}

QLayout* PanneauAjout::fiches(const Atelier& atelier) {
    auto& ajout = atelier.etats().ajout;
    auto* nombre = nomme((new Etiquette)->avecTon(Ton::Discret), "lblNbFilms");
    auto* lancer = bouton<BoutonAccent>("cmdAjoutAuto", tr("Ajouter les &fiches"),
                                        tr("Ajouter à la base toutes les fiches du dossier"));
    auto* titre = nomme(new Etiquette, "lblProgression");
    auto* progression = nomme(new QProgressBar, "ProgressBar1", tr("Avancement de l'ajout"));
    progression->setTextVisible(false);
    progression->setFixedHeight(8);
    atelier.liaison.lie(ajout.lblNbFilms, nombre);
    atelier.liaison.lie(ajout.cmdAjoutAuto, lancer);
    atelier.liaison.lie(ajout.lblProgression, titre);
    atelier.liaison.lie(ajout.ProgressBar1, progression);
    atelier.auClic(lancer, acquire::cmdAjoutAuto_Click);
    atelier.liaison.apresEcriture([lancer, &ajout] { lancer->metPrincipal(ajout.fichesAImporter); });
    // The count's line is the progress's while it lasts, so that nothing moves.
    atelier.liaison.apresEcriture([nombre, &ajout] { nombre->setVisible(!ajout.ProgressBar1.Visible); });

    auto* boite = section(atelier, Aide::Fiches);
    boite->addSpacing(kSerre);
    boite->addLayout(dossierDesFiches(atelier));
    auto* apercu = bouton("cmdApercuFiches", tr("Aperçu…"), tr("Voir d'abord ce que l'ajout ferait ; rien ne change"));
    connect(apercu, &QAbstractButton::clicked, this, [this] { ouvreApercuDesFiches(m_atelier, this); });
    boite->addLayout(aGauche({lancer, apercu}));
    auto* etat = rangee({nombre, titre, progression}, kMoyen);
    for (int i = 0; i < etat->count(); ++i)
        etat->setStretch(i, 1);
    boite->addLayout(etat);
    boite->addStretch();
    return boite;
}

// What is typed is counted once the typing rests: a folder of many files, or of the network, takes its time.
QLayout* PanneauAjout::dossierDesFiches(const Atelier& atelier) {
    auto& ajout = atelier.etats().ajout;
    auto* chemin = nomme(new QLineEdit, "txtCheminAjoutAuto");
    auto* parcourir = bouton("cmdParcourir2", tr("&Parcourir…"), tr("Choisir le dossier des fiches"));
    atelier.liaison.lie(ajout.txtCheminAjoutAuto, chemin);
    atelier.liaison.lie(ajout.cmdParcourir2, parcourir);
    atelier.auClic(parcourir, acquire::cmdParcourir2_Click);
    auto* repos = new QTimer(this);
    repos->setSingleShot(true);
    repos->setInterval(kReposDeLaFrappe);
    connect(chemin, &QLineEdit::textEdited, repos, qOverload<>(&QTimer::start));
    connect(repos, &QTimer::timeout, &atelier.commande, atelier.reponse(acquire::txtCheminAjoutAuto_Change));
    auto* ligne = rangee({chemin});
    ligne->addWidget(parcourir);
    auto* boite = colonne(kSerre);
    boite->addWidget(legende(tr("&Dossier des fiches"), chemin));
    boite->addLayout(ligne);
    return boite;
}

QLayout* PanneauAjout::internet(const Atelier& atelier) {
    auto& ajout = atelier.etats().ajout;
    const QString textes[] = {tr("Titr&e"), tr("&Réalisateur"), tr("&Acteur"), tr("A&nnée")};
    auto* texte = m_rechercheInternet = nomme(new QLineEdit, "txtRechInternet");
    auto* telecharger =
        bouton("cmdTelecharge", tr("Télé&charger…"), tr("Chercher ces films sur le site de MovieCovers (Entrée)"));
    atelier.liaison.lie(ajout.txtRechInternet, texte);
    atelier.liaison.lie(ajout.cmdTelecharge, telecharger);
    atelier.auClic(telecharger, acquire::cmdTelecharge_Click);
    auto* groupe = new QWidget;
    auto* options = rangee({}, kMoyen);
    for (std::size_t i = 0; i < 4; ++i) {
        auto* option = nomme(new QRadioButton(textes[i]), "OptionTelecharge", i);
        option->setToolTip(tr("Ce que le texte désigne"));
        atelier.liaison.lie(ajout.OptionTelecharge[i], option);
        options->addWidget(option);
    }
    options->addStretch();
    groupe->setLayout(options);

    auto* boite = section(atelier, Aide::Internet);
    boite->addSpacing(kSerre);
    boite->addLayout(champ(tr("Te&xte à chercher sur MovieCovers"), texte));
    boite->addWidget(groupe);
    boite->addLayout(aGauche({telecharger}));
    auto* absent = nomme((new Etiquette)->avecLignes(4), "lblRapatrix");
    atelier.liaison.lie(ajout.lblRapatrix, absent);
    boite->addWidget(absent);
    boite->addStretch();
    return boite;
}

QWidget* PanneauAjout::pageAncienneVersion(const Atelier& atelier) {
    auto& ajout = atelier.etats().ajout;
    auto* importer = bouton<BoutonAccent>("cmdImporterBase", tr("Choisir le dossier de cette &version…"),
                                          tr("Le dossier où se trouvent sa base et ses images"));
    atelier.liaison.lie(ajout.cmdImporterBase, importer);
    atelier.auClic(importer, acquire::ImporterAncienneBase);
    auto* boite = section(
        tr("Reprendre les films d'une installation précédente"),
        tr("Ses films, ce que vous en possédez et leurs images sont ajoutés à la base ouverte. L'installation "
           "précédente n'est que lue. Les films déjà présents gardent leur fiche ; l'import peut être refait."));
    boite->addSpacing(kSerre);
    boite->addWidget(legende(tr("Ce qui va se passer")));
    auto* base = nomme(new Etiquette, "lblBaseOuImporter");
    atelier.liaison.lie(ajout.lblBaseOuImporter, base);
    const QString etapes[] = {
        tr("1.  Vous indiquez le dossier de cette version : sa base et le dossier de ses images sont cherchés."),
        tr("2.  Le programme vous dit ce qu'il a trouvé, et demande s'il faut continuer."),
        tr("3.  Les films qui manquent sont ajoutés, avec ce que vous en possédez et leurs affiches."),
        tr("4.  Un rapport dit combien de films ont été ajoutés, et lesquels étaient déjà là.")};
    for (const QString& etape : etapes)
        boite->addWidget((new Etiquette(etape))->avecLignes(3));
    boite->addSpacing(kSerre);
    boite->addWidget(base);
    boite->addLayout(aGauche({importer}));
    auto* cadre = nomme(new QWidget, "frameImportBase");
    auto* dehors = rangee({pile({new Carte(boite)})}, 0);
    dehors->setStretch(0, 1);
    dehors->addStretch(0);
    cadre->setLayout(dehors);
    atelier.liaison.lie(ajout.frameImportBase, cadre);
    return cadre;
}

}  // namespace ui
