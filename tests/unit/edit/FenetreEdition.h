#pragma once

#include "doubles/MontreFixe.h"
#include "edit/SuitesModification.h"
#include "edit/TravailParLots.h"
#include "unit/browse/Fenetre.h"

#include <string>
#include <vector>

// The window's two sides with what the commands of this room need beside them.
class FenetreEdition : public Fenetre {
  protected:
    ecran::Progression progression;
    doubles::MontreFixe horloge;
    edit::BoitesDeroulantes boites{base, fiche, dialogues};
    edit::SuitesModification suites{affichageApresModification, selectionneTitre, afficheNbTitres, boites};

    [[nodiscard]] edit::OutilsTravail outils() {
        return {base.base, ecranMuet, progression, dialogues, horloge.montre()};
    }
    std::vector<std::string> titresDesFilms() { return colonne("Films", "Titre"); }
    std::vector<std::string> titresPossedes() { return colonne("Personnel", "Titre2"); }
};
