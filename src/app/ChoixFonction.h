#pragma once

#include "app/EtatFonctions.h"
#include "app/LogicielsExternes.h"
#include "browse/AfficheAccueil.h"
#include "browse/EtatPanneaux.h"
#include "edit/Command13_Click.h"
#include "edit/VoletAjout.h"

namespace app {

// Shows one of the three function panels in the place of the film sheet.
class ChoixFonction final : public edit::VoletAjout {
  public:
    ChoixFonction(EtatFonctions& fonctions, browse::EtatPanneaux& panneaux, browse::AfficheAccueil& afficheAccueil,
                  edit::ModesAjout& modesAjout, LogicielsExternes& logiciels)
        : m_fonctions(fonctions),
          m_panneaux(panneaux),
          m_afficheAccueil(afficheAccueil),
          m_modesAjout(modesAjout),
          m_logiciels(logiciels) {}

    void ChoixFonction1_Divers();  // adding films, opened on the automatic page
    void ChoixFonction2_Outils();
    void ChoixFonction3_Config();
    void cmdConfig_Click(int indice);
    void montreVoletAjout() override { montre(m_fonctions.frameDivers); }  // whatever its page

  private:
    void montre(const ecran::Cadre& panneau);
    void metEnGras(std::size_t bouton);

    EtatFonctions& m_fonctions;
    browse::EtatPanneaux& m_panneaux;
    browse::AfficheAccueil& m_afficheAccueil;
    edit::ModesAjout& m_modesAjout;
    LogicielsExternes& m_logiciels;
};

}  // namespace app
