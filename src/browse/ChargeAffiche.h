#pragma once

#include "browse/EtatFiche.h"
#include "browse/SuiviAffiche.h"
#include "db/Chemins.h"
#include "platform/ecran/Ecran.h"

namespace browse {

// The box that a poster fills as far as its shape allows, in twips.
inline constexpr int kLargeurAffiche = 2895;
inline constexpr int kHauteurAffiche = 4455;

// Loads the temporary poster file as the sheet's and the viewer's picture, fitted and centred in its box; without a file
// or with a broken one, the caption that offers to add a poster. `suivi`, when there is one, is told of each load.
class ChargeAffiche {
  public:
    ChargeAffiche(EtatFiche& fiche, const db::Chemins& chemins, ecran::Images& images, ecran::Ecran& ecran,
                  SuiviAffiche* suivi = nullptr)
        : m_fiche(fiche), m_chemins(chemins), m_images(images), m_ecran(ecran), m_suivi(suivi) {}

    void operator()();

  private:
    void place(const ecran::TailleImage& taille);

    EtatFiche& m_fiche;
    const db::Chemins& m_chemins;
    ecran::Images& m_images;
    ecran::Ecran& m_ecran;
    SuiviAffiche* m_suivi;
};

}  // namespace browse
