#include "ui/PanneauFonctions.h"

#include "app/ChoixFonction.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"
#include "ui/PanneauAjout.h"
#include "ui/PanneauConfig.h"
#include "ui/PanneauOutils.h"
#include "ui/Sections.h"

#include <QScrollArea>
#include <QScrollBar>
#include <array>
#include <utility>

namespace ui {

PanneauFonctions::PanneauFonctions(const Atelier& atelier, QWidget* parent) : QWidget(parent) {
    nomme(this, "frameListeFonctions");
    auto* contenu = colonne(kGrand);
    auto* pages = onglets(atelier);
    contenu->addWidget(new PanneauAjout(atelier));
    contenu->addWidget(new PanneauOutils(atelier));
    contenu->addWidget(new PanneauConfig(atelier));
    contenu->addStretch();
    auto* boite = colonne(0);
    auto* defile = defilant(contenu);
    boite->addWidget(pages);  // it stays where the page below scrolls
    boite->addWidget(defile);
    setLayout(boite);

    // The page buttons belong to the tools and the configuration alone. Another page begins at its top.
    const auto page = [etats = &atelier.etats()] {
        const auto& fonctions = etats->fonctions;
        return std::array{fonctions.frameOutils.Visible, fonctions.frameConfig.Visible,
                          etats->ajout.frameAjoutAuto.Visible, etats->ajout.Frame13.Visible,
                          etats->ajout.frameImportBase.Visible};
    };
    auto suis = [=, montree = page()]() mutable {
        pages->setVisible(page()[0] || page()[1]);
        if (std::exchange(montree, page()) != page()) defile->verticalScrollBar()->setValue(0);
    };
    suis();
    atelier.liaison.apresEcriture(suis);
    atelier.liaison.lie(atelier.etats().panneaux.frameListeFonctions, this);
}

QWidget* PanneauFonctions::onglets(const Atelier& atelier) {
    const QString textes[] = {tr("O&utils"), tr("Confi&guration")};
    const QString infobulles[] = {tr("Entretenir la base"), tr("Régler le programme")};
    auto* boite = rangee({}, kSerre);
    for (std::size_t i = 0; i < 2; ++i) {
        auto* onglet = nomme(new BoutonOnglet(textes[i]), "cmdConfig", i);
        onglet->setToolTip(infobulles[i]);
        onglet->setAutoDefault(true);
        atelier.liaison.lie(atelier.etats().fonctions.cmdConfig[i], onglet);
        atelier.auClic(onglet, app::cmdConfig_Click, static_cast<int>(i));
        boite->addWidget(onglet);
    }
    boite->addStretch();
    boite->setContentsMargins(kPetit, kMoyen, kGrand, 0);
    return listeDOnglets(boite, tr("Pages d'outils"));
}

}  // namespace ui
