#pragma once

#include "edit/EtatAjout.h"
#include "platform/ecran/Ecran.h"

namespace edit {

// The buttons at the top of the add panel, each of which opens one way of adding films.
class ModesAjout {
  public:
    ModesAjout(EtatAjout& ajout, ecran::Demandes& demandes) : m_ajout(ajout), m_demandes(demandes) {}

    // 0: automatic import and web search. Back to add mode whatever was being modified.
    void Command13_Click(int indice);

  private:
    void ouvreAjoutAutomatique();

    EtatAjout& m_ajout;
    ecran::Demandes& m_demandes;
};

}  // namespace edit
