#include "ui/PanneauAccueil.h"

#include "app/ChoixFonction.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Couleurs.h"
#include "ui/Icones.h"

#include <QPainter>

namespace ui {

namespace {

// The count phrase that the logic shows for a catalogue without any film.
constexpr const char* kCatalogueVide = "0 titre";

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
    auto* invite = phrase(tr("Choisissez un titre dans la liste pour voir sa fiche."));
    auto* pas = premiersPas(atelier);

    auto* boite = colonne(kGrand);
    boite->setContentsMargins(kLarge, kLarge, kLarge, kLarge);
    boite->addStretch(2);
    boite->addWidget(m_signe, 0, Qt::AlignHCenter);
    boite->addWidget(titre, 0, Qt::AlignHCenter);
    boite->addLayout(auMilieu(presentation));
    boite->addSpacing(kPetit);
    boite->addLayout(auMilieu(invite));
    boite->addLayout(auMilieu(pas));
    boite->addStretch(3);
    setLayout(boite);

    atelier.liaison.lie(atelier.etats().panneaux.framePresentation, this);
    const auto suisLeCatalogue = [invite, pas, etats = &atelier.etats()] {
        const bool vide = etats->liste.Label9[0].Caption == kCatalogueVide;
        invite->setVisible(!vide);
        pas->setVisible(vide);
    };
    pas->hide();
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
    QPainter peintre(this);
    const QRectF rond = m_signe->geometry();
    QColor fond = accent(palette());
    fond.setAlphaF(0.14f);
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.setPen(Qt::NoPen);
    peintre.setBrush(fond);
    peintre.drawEllipse(rond);
    peintPictogramme(peintre, rond.adjusted(24, 24, -24, -24), Pictogramme::Clap, accentLisible(palette()));
}

}  // namespace ui
