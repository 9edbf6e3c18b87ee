#include "ui/PanneauOutils.h"

#include "app/Commandes.h"
#include "db/cmdCompacter_Click.h"
#include "db/cmdInfosBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"
#include "edit/cmdPonctuation_Click.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "export/cmdCreerListe_Click.h"
#include "ui/Composition.h"
#include "ui/Sections.h"

namespace ui {

PanneauOutils::PanneauOutils(const Atelier& atelier, QWidget* parent) : QWidget(parent) {
    nomme(this, "frameOutils");
    auto& fonctions = atelier.etats().fonctions;
    auto* ouvrir = bouton("cmdChargeOuvreBase", tr("Ouvrir ou créer une &base…"),
                          tr("Travailler sur un autre fichier de films (Ctrl+O)"));
    auto* infos = bouton("cmdInfosBase", tr("Infor&mations"), tr("Où sont les images de la base"));
    auto* compacter = bouton("cmdCompacter", tr("&Compacter"), tr("Réduire la taille du fichier de la base"));
    auto* ponctuation = bouton("cmdPonctuation", tr("Corr&iger les titres"), tr("Corriger les majuscules des titres"));
    auto* liste = bouton("cmdCreerListe", tr("Créer un &fichier…"), tr("Écrire la liste de vos films"));
    auto* effacer = bouton("cmdSupprInfosPerso", tr("&Effacer…"), tr("Effacer ce qui concerne les films possédés"));
    auto* plusieurs =
        bouton("cmdMultiSuppress", tr("Supprimer p&lusieurs films…"), tr("Cocher dans la liste les films à supprimer"));
    atelier.liaison.lie(fonctions.cmdChargeOuvreBase, ouvrir);
    atelier.liaison.lie(fonctions.cmdInfosBase, infos);
    atelier.liaison.lie(fonctions.cmdCompacter, compacter);
    atelier.liaison.lie(fonctions.cmdPonctuation, ponctuation);
    atelier.liaison.lie(fonctions.cmdCreerListe, liste);
    atelier.liaison.lie(fonctions.cmdSupprInfosPerso, effacer);
    atelier.liaison.lie(fonctions.cmdMultiSuppress, plusieurs);
    atelier.auClic(ouvrir, app::cmdChargeOuvreBase_Click);
    atelier.auClic(infos, db::cmdInfosBase_Click);
    atelier.auClic(compacter, db::cmdCompacter_Click);
    atelier.auClic(effacer, db::cmdSupprInfosPerso_Click);
    atelier.auClic(ponctuation, edit::cmdPonctuation_Click);
    atelier.auClic(liste, exportation::cmdCreerListe_Click);
    atelier.auClic(plusieurs, edit::cmdMultiSuppress_Click);

    auto* base =
        section(tr("Base de données"), tr("Tous les films sont dans un seul fichier .mdb, que vous pouvez changer."));
    base->addLayout(aGauche({ouvrir, infos}));
    auto* multiple = section(tr("Suppression"), tr("Plusieurs films peuvent être supprimés d'un seul coup."));
    multiple->addLayout(aGauche({plusieurs}));
    auto* boite = colonne(kLarge);
    boite->addLayout(base);
    const std::pair<Aide, QPushButton*> outils[] = {{Aide::Compactage, compacter},
                                                    {Aide::Ponctuation, ponctuation},
                                                    {Aide::FichierTexte, liste},
                                                    {Aide::TitresPersonnels, effacer}};
    for (const auto& [aide, outil] : outils) {
        auto* partie = section(atelier, aide);
        partie->addLayout(aGauche({outil}));
        boite->addLayout(partie);
    }
    boite->addLayout(multiple);
    setLayout(boite);
    atelier.liaison.lie(fonctions.frameOutils, this);
}

}  // namespace ui
