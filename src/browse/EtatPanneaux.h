#pragma once

#include "platform/ecran/Controles.h"

namespace browse {

// The right side of the window shows one frame at a time, or deletion by ticking with a sheet or the collection.
struct EtatPanneaux {
    ecran::Cadre framePresentation;      // nothing chosen: what the program is and what to do first
    ecran::Cadre frameFiche;             // the film sheet
    ecran::Cadre frameRecherche;         // the search panel
    ecran::Cadre frameListeFonctions;    // the function panels (app::EtatFonctions)
    ecran::Cadre frameMultiSuppression;  // deletion by ticking
    ecran::Cadre frameCollection;        // the collection as a whole (app::EtatCollection)

    EtatPanneaux() {
        montreAucun();
        framePresentation.Visible = true;
    }
    // Shows that frame and hides the others; montreAucun hides them all. Deletion by ticking stays beside the sheets
    // that are looked at meanwhile, and takes the place of the presentation. So does the collection, which another
    // listing does not close.
    void montre(ecran::Cadre& cadre) {
        if (figes || (frameCollection.Visible && &cadre == &framePresentation)) return;
        const bool coche = frameMultiSuppression.Visible &&
                           (&cadre == &frameFiche || &cadre == &framePresentation || &cadre == &frameCollection);
        montreAucun();
        cadre.Visible = !coche || &cadre != &framePresentation;
        if (coche) frameMultiSuppression.Visible = true;
    }
    void montreAucun() {
        for (ecran::Cadre* c : {&framePresentation, &frameFiche, &frameRecherche, &frameListeFonctions,
                                &frameMultiSuppression, &frameCollection})
            c->Visible = false;
    }

    bool figes = false;  // by PanneauxFiges
};

// While it lasts the right side stays what it is, whatever is prepared behind it.
class PanneauxFiges {
  public:
    explicit PanneauxFiges(EtatPanneaux& panneaux) : m_panneaux(panneaux) { m_panneaux.figes = true; }
    PanneauxFiges(const PanneauxFiges&) = delete;
    PanneauxFiges& operator=(const PanneauxFiges&) = delete;
    ~PanneauxFiges() { m_panneaux.figes = false; }

  private:
    EtatPanneaux& m_panneaux;
};

}  // namespace browse
