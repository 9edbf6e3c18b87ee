#include "ui/PanneauMultiSuppression.h"

#include "edit/cmdSupprTitresSelect_Click.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Sections.h"

#include <QRadioButton>

namespace ui {

PanneauMultiSuppression::PanneauMultiSuppression(const Atelier& atelier, QWidget* parent) : QWidget(parent) {
    nomme(this, "frameMultiSuppression");
    auto& etat = atelier.etats().multiSuppression;
    const QString textes[] = {tr("Fonction &désactivée"), tr("Fonction acti&vée")};
    auto* boite = section(atelier, Aide::MultiSuppression, 1.5);
    boite->setContentsMargins(kPetit, kMoyen, kGrand, 0);
    boite->setSpacing(kMoyen);
    auto* ligne = rangee({}, kLarge);  // low, since the sheets looked at stand below it
    for (std::size_t i = 0; i < 2; ++i) {
        auto* option = nomme(new QRadioButton(textes[i]), "Option4", i);
        option->setToolTip(tr("Montre ou cache les cases à cocher de la liste"));
        atelier.liaison.lie(etat.Option4[i], option);
        atelier.auClic(option, edit::Option4_Click);
        ligne->addWidget(option);
    }
    auto* supprimer =
        bouton<BoutonAccent>("cmdSupprTitresSelect", tr("S&uppression…"), tr("Supprimer les films cochés"));
    atelier.liaison.lie(etat.cmdSupprTitresSelect, supprimer);
    atelier.auClic(supprimer, edit::cmdSupprTitresSelect_Click);
    QSizePolicy politique = supprimer->sizePolicy();
    politique.setRetainSizeWhenHidden(true);  // the row keeps its height
    supprimer->setSizePolicy(politique);
    ligne->addWidget(supprimer);
    ligne->addStretch();
    boite->addLayout(ligne);
    boite->addStretch();
    setLayout(boite);
    atelier.liaison.lie(atelier.etats().panneaux.frameMultiSuppression, this);
}

}  // namespace ui
