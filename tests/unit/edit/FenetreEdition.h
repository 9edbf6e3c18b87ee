#pragma once

#include "edit/Contexte.h"
#include "unit/browse/Fenetre.h"

#include <string>
#include <vector>

// Shows the function panel as the application does, and remembers what it is told.
struct AccompagnementNote final : edit::Accompagnement {
    explicit AccompagnementNote(browse::EtatPanneaux& lesPanneaux) : panneaux(lesPanneaux) {}

    browse::EtatPanneaux& panneaux;
    int filmsStockes = 0, possessionsStockees = 0;

    void montreVoletAjout() override { panneaux.montre(panneaux.frameListeFonctions); }
    void filmStocke() override { ++filmsStockes; }
    void possessionStockee() override { ++possessionsStockees; }
};

// The window's two sides with what the commands of this room need beside them. They take `c`.
class FenetreEdition : public Fenetre {
  protected:
    edit::EtatAjout ajout;
    edit::EtatMultiSuppression multiSuppression;
    AccompagnementNote accompagnement{panneaux};
    edit::Contexte edition{fenetre, ajout, multiSuppression, accompagnement};
    const edit::Contexte& c = edition;

    void saisis(const std::string& titre, const std::string& realisateur) {
        ajout.Text3[0].Text = titre;
        ajout.Text3[1].Text = realisateur;
    }
    std::vector<std::string> titresDesFilms() { return colonne("Films", "Titre"); }
    std::vector<std::string> titresPossedes() { return colonne("Personnel", "Titre2"); }
    static std::string repete(const std::string& texte, int fois) {
        std::string resultat;
        while (fois-- > 0)
            resultat += texte;
        return resultat;
    }
};
