#pragma once

#include "browse/EtatFiche.h"
#include "browse/EtatListe.h"
#include "browse/EtatPanneaux.h"
#include "db/Base.h"
#include "edit/SuitesModification.h"
#include "edit/TravailParLots.h"

#include <array>
#include <string>
#include <vector>

namespace edit {

// Deletion of the films ticked in the tree.
class MultiSuppression {
  public:
    // The controls it reads and changes.
    struct Controles {
        browse::EtatListe& liste;
        const browse::EtatFiche& fiche;
        browse::EtatPanneaux& panneaux;
        std::array<ecran::BoutonOption, 2>& Option4;
        ecran::Bouton& cmdSupprTitresSelect;
        ecran::Demandes& demandes;
    };

    MultiSuppression(db::Base& base, const Controles& controles, const OutilsTravail& outils,
                     const SuitesModification& suites)
        : m_base(base), m_controles(controles), m_outils(outils), m_suites(suites) {}

    void cmdMultiSuppress_Click();  // shows the panel
    void range();                   // the panel was left: no boxes any more
    void Option4_Click();           // the check boxes come or go; ticks out of sight are kept
    // Holdings go with their films when the sheet shows its own film as owned, whatever is true of each. Stopped by the
    // user or by a failure of the base, it reports what was deleted until then.
    void cmdSupprTitresSelect_Click();

  private:
    struct Film {
        std::string titre;
        std::string realisateur;
    };
    [[nodiscard]] std::vector<int> filmsCoches() const;
    [[nodiscard]] std::vector<Film> lis(const std::vector<int>& noeuds);
    struct Supprimes {
        long films = 0;
        bool possessions = false;
    };
    [[nodiscard]] Supprimes supprime(const std::vector<Film>& films);
    void montre(const Supprimes& supprimes);

    db::Base& m_base;
    Controles m_controles;
    OutilsTravail m_outils;
    SuitesModification m_suites;
};

[[nodiscard]] std::string questionSuppression(std::size_t nombre);

}  // namespace edit
