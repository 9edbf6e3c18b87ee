#pragma once

#include "edit/EtatAjout.h"
#include "edit/ListesDeSaisie.h"
#include "edit/TitreDejaExistant.h"
#include "platform/ecran/Ecran.h"

#include <string>

namespace edit {

// The buttons at the top of the add panel, each of which opens one way of adding films.
class ModesAjout {
  public:
    ModesAjout(EtatAjout& ajout, ecran::Demandes& demandes, ListesDeSaisie& listes, const Doublons& doublons)
        : m_ajout(ajout), m_demandes(demandes), m_listes(listes), m_doublons(doublons) {}

    // 0: automatic import and web search; 1: manual entry, of an empty sheet. Back to add mode whatever was being
    // modified. Throws db::RequeteEchouee after its message.
    void Command13_Click(int indice);
    // The page of manual entry corrects that film from now on, and names it.
    void passeEnCorrection(const std::string& titre);

  private:
    void ouvreAjoutAutomatique();
    void ouvreSaisie();

    EtatAjout& m_ajout;
    ecran::Demandes& m_demandes;
    ListesDeSaisie& m_listes;
    const Doublons& m_doublons;
};

}  // namespace edit
