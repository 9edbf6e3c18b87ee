#include "ui/PanneauAccueil.h"

#include "app/ChoixFonction.h"
#include "browse/ListeVide.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Icones.h"

#include <QPainter>

namespace ui {

namespace {

Etiquette* phrase(const QString& texte) {
    auto* etiquette = (new Etiquette(texte))->avecLignes(4);
    etiquette->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return etiquette;
}

// Centred, no wider than lines read well.
QHBoxLayout* auMilieu(QWidget* widget) {
    widget->setMaximumWidth(460);
    auto* boite = new QHBoxLayout;
    boite->addStretch(1);
    boite->addWidget(widget, 1000);
    boite->addStretch(1);
    return boite;
}

}  // namespace

PanneauAccueil::PanneauAccueil(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_signe(new QWidget) {
    nomme(this, "framePresentation");
    m_signe->setFixedSize(96, 96);
    auto* titre = (new Etiquette(tr("Votre vidéothèque")))->avecPolice(2.0, QFont::DemiBold);
    auto* presentation =
        phrase(tr("Ambrelis tient le catalogue de vos films : leurs fiches et leurs affiches, "
                  "ce que vous possédez, où c'est rangé et à qui c'est prêté."));
    presentation->avecTon(Ton::Discret);
    auto* invite = (new Etiquette(tr("Choisissez un titre dans la liste pour voir sa fiche.")))->avecTon(Ton::Discret);

    auto* bienvenue = new QWidget;
    auto* contenu = colonne(kGrand);
    contenu->setContentsMargins(kLarge, kLarge, kLarge, kLarge);
    contenu->addStretch(2);
    contenu->addWidget(m_signe, 0, Qt::AlignHCenter);
    contenu->addWidget(titre, 0, Qt::AlignHCenter);
    contenu->addLayout(auMilieu(presentation));
    contenu->addSpacing(kPetit);
    contenu->addLayout(auMilieu(premiersPas(atelier)));
    contenu->addStretch(3);
    bienvenue->setLayout(contenu);
    invite->setContentsMargins(kPetit, 0, kGrand, kGrand);
    auto* boite = colonne(0);
    boite->addWidget(bienvenue, 1);
    boite->addWidget(invite);
    setLayout(boite);

    atelier.liaison.lie(atelier.etats().panneaux.framePresentation, this);
    const auto suisLeCatalogue = [invite, bienvenue, etats = &atelier.etats()] {
        const bool vide = browse::catalogueVide(etats->liste);
        invite->setVisible(etats->liste.TreeView1.Nodes.Count() > 0);
        bienvenue->setVisible(vide);
    };
    bienvenue->hide();
    atelier.liaison.apresEcriture(suisLeCatalogue);
}

QWidget* PanneauAccueil::premiersPas(const Atelier& atelier) {
    auto* cadre = new QWidget;
    auto* boite = colonne(kMoyen);
    auto* titre = (new Etiquette(tr("Pour commencer")))->avecPolice(1.15, QFont::DemiBold);
    boite->addWidget(titre, 0, Qt::AlignHCenter);
    boite->addWidget(
        phrase(tr("Ouvrez « Ajouter », cliquez sur « Parcourir… » et indiquez un dossier de fiches .FILM : "
                  "le dossier « samples », livré avec le programme, en contient de toutes prêtes.")));
    auto* commencer =
        bouton<BoutonAccent>("cmdCommencer", tr("Ajouter des &films"), tr("Ouvrir la page d'ajout de films"));
    atelier.auClic(commencer, app::cmdAfficherFonctions_Click);
    boite->addSpacing(kSerre);
    boite->addWidget(commencer, 0, Qt::AlignHCenter);
    cadre->setLayout(boite);
    return cadre;
}

void PanneauAccueil::paintEvent(QPaintEvent*) {
    if (!m_signe->isVisible()) return;
    QPainter peintre(this);
    peintSigne(peintre, QRectF(m_signe->mapTo(this, QPoint()), m_signe->size()), palette());
}

}  // namespace ui
