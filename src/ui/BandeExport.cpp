#include "ui/BandeExport.h"

#include "ui/Boutons.h"
#include "ui/Composition.h"

namespace ui {

BandeExport::BandeExport(const Atelier& atelier, QWidget* parent) : QWidget(parent) {
    nomme(this, "frameExport");
    auto& etat = atelier.etats().dernierExport;
    auto* texte = nomme(new Etiquette, "lblExport");
    auto* ouvrir = bouton<BoutonLien>("cmdOuvrirExport", tr("Ouvrir"), tr("Ouvrir le fichier créé"));
    auto* dossier =
        bouton<BoutonLien>("cmdDossierExport", tr("Afficher le dossier"), tr("Ouvrir le dossier du fichier"));
    auto* fermer = bouton<BoutonLien>("cmdFermerExport", tr("Fermer"), tr("Retirer cette ligne"));
    atelier.liaison.lie(etat.lblExport, texte);
    atelier.liaison.lie(etat.cmdOuvrirExport, ouvrir);
    atelier.liaison.lie(etat.cmdDossierExport, dossier);
    atelier.auClic(ouvrir, &app::Session::cmdOuvrirExport_Click);
    atelier.auClic(dossier, &app::Session::cmdDossierExport_Click);
    atelier.auClic(fermer, &app::Session::cmdFermerExport_Click);

    auto* ligne = rangee({texte, ouvrir, dossier, fermer}, kGrand);
    ligne->setContentsMargins(kGrand, kPetit, kGrand, kPetit);
    ligne->setStretch(0, 1);
    auto* boite = colonne(0);
    boite->addWidget(filetHorizontal());
    boite->addLayout(ligne);
    setLayout(boite);
    atelier.liaison.lie(etat.frameExport, this);
}

}  // namespace ui
