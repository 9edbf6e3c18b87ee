#include "ui/PanneauMultiSuppression.h"

#include "edit/cmdSupprTitresSelect_Click.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Couleurs.h"
#include "ui/FenetreExport.h"
#include "ui/Lecteur.h"
#include "ui/Sections.h"

#include <QPainter>
#include <QRadioButton>

namespace ui {

namespace {

// What stands over the sheet: a band of its own shade, as long as the deletion is on.
class Bande final : public QWidget {
  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter peintre(this);
        peintre.fillRect(rect(), voile(palette()));
        peintre.fillRect(QRect(0, height() - 1, width(), 1), filet(palette()));
    }
};

}  // namespace

PanneauMultiSuppression::PanneauMultiSuppression(const Atelier& atelier, QWidget* parent) : QWidget(parent) {
    nomme(this, "frameMultiSuppression");
    seLitCommeGroupe(this, tr("Supprimer plusieurs films"));
    auto* boite = colonne(0);
    boite->addWidget(bande(atelier));
    setLayout(boite);
    atelier.liaison.lie(atelier.etats().panneaux.frameMultiSuppression, this);
    // Over a sheet the band is low; what is done with ticks is there while there are some.
    const auto suis = [explication = findChild<QLabel*>("Label7_9"),
                       exporter = findChild<QPushButton*>("cmdExporterCoches"), etats = &atelier.etats()] {
        explication->setVisible(!etats->panneaux.frameFiche.Visible);
        exporter->setVisible(etats->liste.TreeView1.Checkboxes && !etats->liste.TreeView1.coches.empty());
    };
    suis();
    atelier.liaison.apresEcriture(suis);
}

QWidget* PanneauMultiSuppression::bande(const Atelier& atelier) {
    auto& etat = atelier.etats().multiSuppression;
    const QString textes[] = {tr("Fonction &désactivée"), tr("Fonction acti&vée")};
    auto* ligne = rangee({}, kMoyen);
    for (std::size_t i = 0; i < 2; ++i) {
        auto* option = nomme(new QRadioButton(textes[i]), "Option4", i);
        option->setToolTip(tr("Montre ou cache les cases à cocher de la liste"));
        atelier.liaison.lie(etat.Option4[i], option);
        atelier.auClic(option, edit::Option4_Click);
        ligne->addWidget(option);
    }
    ligne->addStretch();
    auto* coches = nomme((new Etiquette)->avecPolice(1.0, QFont::DemiBold), "lblCoches");
    auto* supprimer =
        bouton<BoutonAccent>("cmdSupprTitresSelect", tr("S&uppression…"), tr("Supprimer les films cochés"));
    atelier.liaison.lie(etat.lblCoches, coches);
    atelier.liaison.lie(etat.cmdSupprTitresSelect, supprimer);
    atelier.auClic(supprimer, edit::cmdSupprTitresSelect_Click);
    QSizePolicy politique = supprimer->sizePolicy();
    politique.setRetainSizeWhenHidden(true);  // the row keeps its height
    supprimer->setSizePolicy(politique);
    auto* exporter = bouton("cmdExporterCoches", tr("Exporter…"), tr("Écrire les films cochés dans un autre format"));
    QObject::connect(exporter, &QAbstractButton::clicked, this, [this, atelier] { ouvreExport(atelier, this); });
    ligne->addWidget(exporter);
    ligne->addWidget(supprimer);

    auto* boite = section(atelier, Aide::MultiSuppression);
    boite->setContentsMargins(kPetit, kPetit, kGrand, kPetit);
    boite->setSpacing(kSerre);
    auto* tete = rangee({boite->takeAt(0)->widget()}, kMoyen);
    tete->addStretch();
    tete->addWidget(coches);
    boite->insertLayout(0, tete);
    boite->addLayout(ligne);
    auto* resultat = new Bande;
    resultat->setLayout(boite);
    resultat->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return resultat;
}

}  // namespace ui
