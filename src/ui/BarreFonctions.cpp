#include "ui/BarreFonctions.h"

#include "app/Aide.h"
#include "app/Annulation.h"
#include "app/ChoixFonction.h"
#include "app/Collection.h"
#include "browse/cmdFonctionRecherche_Click.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Icones.h"
#include "ui/Lecteur.h"

#include <array>

namespace ui {

namespace {

template <typename Bouton = QPushButton>
Bouton* fonction(const char* nom, const QString& texte, Pictogramme pictogramme, const QString& infobulle) {
    auto* resultat = bouton<Bouton>(nom, texte, infobulle);
    resultat->setFlat(true);
    resultat->setIcon(icone(pictogramme));
    resultat->setIconSize({18, 18});
    return resultat;
}

// A drawing alone, whose tip says what it would do.
QPushButton* fleche(const char* nom, const QString& texte, Pictogramme pictogramme) {
    auto* resultat = fonction(nom, {}, pictogramme, {});
    resultat->setAccessibleName(texte);
    return resultat;
}

// "Annuler : suppression de 12 films (Ctrl+Z)"; of a button with nothing to do, the word and the keys alone.
void nommeLaSuite(QPushButton& bouton, const std::string& suite, const QString& touche) {
    const QString quoi = suite.empty() ? QString() : QStringLiteral(" : ") + QString::fromStdString(suite);
    bouton.setToolTip((bouton.accessibleName() + quoi).toHtmlEscaped() + QStringLiteral(" (%1)").arg(touche));
    bouton.setAccessibleDescription(QString::fromStdString(suite));
}

// Progress shown in its place is two words, and short ones do not move what follows.
QWidget* nomDuProgramme(const Atelier& atelier) {
    auto* nom1 = nomme((new Etiquette)->avecPolice(1.7, QFont::DemiBold), "lblNom1");
    auto* nom2 = nomme((new Etiquette)->avecPolice(1.7, QFont::DemiBold)->avecTon(Ton::Accent), "lblNom2");
    atelier.liaison.lie(atelier.etats().nom.lblNom1, nom1);
    atelier.liaison.lie(atelier.etats().nom.lblNom2, nom2);
    auto* nom = new QWidget;
    auto* moities = rangee({nom1, nom2}, 0);
    moities->setContentsMargins(0, 0, 0, 0);
    moities->addStretch();
    nom->setLayout(moities);
    nom->setMinimumWidth(nom->sizeHint().width());
    nom->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    atelier.liaison.apresEcriture(
        [moities, etat = &atelier.etats().nom] { moities->setSpacing(etat->estLeNom() ? 0 : kSerre); });
    return nom;
}

QWidget* version(const Atelier& atelier) {
    auto* texte = nomme((new Etiquette)->avecPolice(0.85)->avecTon(Ton::Discret), "Label13");
    texte->setContentsMargins(0, 0, 0, kSerre);
    atelier.liaison.lie(atelier.etats().fonctions.Label13, texte);
    return texte;
}

// The ways to the panels; the one that is shown is pressed.
std::array<BoutonDePanneau*, 4> panneaux(const Atelier& atelier) {
    auto* recherche =
        fonction<BoutonDePanneau>("cmdFonctionRecherche", BarreFonctions::tr("Rec&hercher"), Pictogramme::Loupe,
                                  BarreFonctions::tr("Chercher des films dans la base (Ctrl+F ; Échap pour revenir)"));
    auto* ajout = fonction<BoutonDePanneau>(
        "cmdAfficherFonctions", BarreFonctions::tr("A&jouter"), Pictogramme::Plus,
        BarreFonctions::tr("Ajouter des films à la base (Ctrl+N pour une saisie ; Échap pour revenir)"));
    auto* outils =
        fonction<BoutonDePanneau>("cmdConfigurer", BarreFonctions::tr("&Outils"), Pictogramme::Reglages,
                                  BarreFonctions::tr("Entretenir la base et régler le programme (Échap pour revenir)"));
    auto* collection = fonction<BoutonDePanneau>(
        "cmdCollection", BarreFonctions::tr("Collection"), Pictogramme::Collection,
        BarreFonctions::tr("La collection d'un coup d'œil : affiches, prêts, statistiques… (Ctrl+L)"));
    atelier.liaison.apresEcriture([=, etats = &atelier.etats()] {
        const bool fonctions = etats->panneaux.frameListeFonctions.Visible;
        const bool ajoute = fonctions && etats->fonctions.frameDivers.Visible;
        collection->setChecked(etats->panneaux.frameCollection.Visible);
        recherche->setChecked(etats->panneaux.frameRecherche.Visible);
        ajout->setChecked(ajoute);
        outils->setChecked((fonctions && !ajoute) || etats->panneaux.frameMultiSuppression.Visible);
    });
    atelier.auClic(recherche, browse::cmdFonctionRecherche_Click);
    atelier.auClic(ajout, app::cmdAfficherFonctions_Click);
    atelier.auClic(outils, app::cmdConfigurer_Click);
    atelier.auClic(collection, app::cmdCollection_Click);
    for (BoutonDePanneau* panneau : {recherche, ajout, outils, collection})
        seLit(panneau, {.role = QAccessible::Button,
                        .presse = [panneau] { panneau->click(); },
                        .enfoncee = [panneau] { return panneau->isChecked(); }});
    return {recherche, ajout, outils, collection};
}

std::array<QPushButton*, 2> fleches(const Atelier& atelier) {
    auto* annuler = fleche("cmdDefaire", BarreFonctions::tr("Annuler"), Pictogramme::Annule);
    auto* retablir = fleche("cmdRetablir", BarreFonctions::tr("Rétablir"), Pictogramme::Retablit);
    auto& annulation = atelier.etats().annulation;
    atelier.liaison.lie(annulation.cmdAnnuler, annuler);
    atelier.liaison.lie(annulation.cmdRetablir, retablir);
    atelier.auClic(annuler, app::cmdAnnuler_Click);
    atelier.auClic(retablir, app::cmdRetablir_Click);
    atelier.liaison.apresEcriture([annuler, retablir, &annulation] {
        nommeLaSuite(*annuler, annulation.aAnnuler, BarreFonctions::tr("Ctrl+Z"));
        nommeLaSuite(*retablir, annulation.aRetablir, BarreFonctions::tr("Ctrl+Maj+Z"));
    });
    return {annuler, retablir};
}

std::array<QPushButton*, 3> duProgramme(const Atelier& atelier) {
    auto* site = fonction("Image3", BarreFonctions::tr("MovieCovers"), Pictogramme::MovieCovers,
                          BarreFonctions::tr("Le logo de MovieCovers : un clic ouvre le site"));
    site->setIconSize({20, 20});
    auto* aide = fonction("cmdAide", BarreFonctions::tr("À propos"), Pictogramme::Aide,
                          BarreFonctions::tr("À propos d'Ambrelis (F1 : le guide)"));
    auto* sortie = fonction("cmdStop", BarreFonctions::tr("&Quitter"), Pictogramme::Sortie,
                            BarreFonctions::tr("Enregistrer les réglages et quitter (Ctrl+Q)"));
    atelier.auClic(site, app::Image3_Click);
    atelier.auClic(aide, app::cmdAide_Click);
    atelier.auClic(sortie, &app::Session::cmdStop_Click);
    return {site, aide, sortie};
}

}  // namespace

BarreFonctions::BarreFonctions(const Atelier& atelier, QWidget* parent) : QWidget(parent) {
    seLit(this, {.role = QAccessible::ToolBar});
    setAccessibleName(tr("Fonctions"));
    auto* boite = rangee({nomDuProgramme(atelier)}, 0);
    boite->setContentsMargins(kGrand, kPetit, kPetit, kPetit);
    boite->addSpacing(kPetit);
    boite->addWidget(version(atelier), 0, Qt::AlignBottom);
    boite->addSpacing(kLarge);
    for (QPushButton* gauche : panneaux(atelier))
        boite->addWidget(gauche);
    boite->addSpacing(kMoyen);
    for (QPushButton* gauche : fleches(atelier))
        boite->addWidget(gauche);
    boite->addStretch();
    const auto [site, aide, sortie] = duProgramme(atelier);
    for (QPushButton* droite : {site, aide, sortie})
        boite->addWidget(droite);
    setLayout(boite);
    for (QPushButton* cede : {site, aide}) {
        cede->setAccessibleName(cede->text());
        m_cedent.push_back({cede, cede->text()});
    }
}

void BarreFonctions::resizeEvent(QResizeEvent* evenement) {
    QWidget::resizeEvent(evenement);
    for (const Nommee& cede : m_cedent)
        cede.bouton->setText(cede.texte);
    for (const Nommee& cede : m_cedent) {
        if (layout()->minimumSize().width() <= width()) return;
        cede.bouton->setText({});
    }
}

}  // namespace ui
