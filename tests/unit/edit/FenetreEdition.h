#pragma once

#include "edit/Contexte.h"
#include "unit/browse/Fenetre.h"

#include <string>
#include <vector>

// Remembers what the commands tell the room above.
struct AccompagnementNote final : edit::Accompagnement {
    int voletMontre = 0, filmsStockes = 0, possessionsStockees = 0;

    void montreVoletAjout() override { ++voletMontre; }
    void filmStocke() override { ++filmsStockes; }
    void possessionStockee() override { ++possessionsStockees; }
};

// The window's two sides with what the commands of this room need beside them. They take `c`.
class FenetreEdition : public Fenetre {
  protected:
    edit::EtatAjout ajout;
    edit::EtatMultiSuppression multiSuppression;
    AccompagnementNote accompagnement;
    edit::Contexte edition{fenetre, ajout, multiSuppression, accompagnement};
    const edit::Contexte& c = edition;

    std::vector<std::string> titresDesFilms() { return colonne("Films", "Titre"); }
    std::vector<std::string> titresPossedes() { return colonne("Personnel", "Titre2"); }
};
