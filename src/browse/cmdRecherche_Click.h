#pragma once

#include "browse/CreeEtAfficheRecherche.h"
#include "browse/EtatRecherche.h"

namespace browse {

// Runs the search that the panel describes; its three refusals leave the listing as it was.
class cmdRecherche_Click {
  public:
    cmdRecherche_Click(const db::Base& base, const EtatRecherche& recherche, EtatListe& liste,
                       CreeEtAfficheRecherche& creeEtAfficheRecherche, dialogues::Dialogues& dialogues)
        : m_base(base),
          m_recherche(recherche),
          m_liste(liste),
          m_creeEtAfficheRecherche(creeEtAfficheRecherche),
          m_dialogues(dialogues) {}

    void operator()();

  private:
    [[nodiscard]] const char* refus() const;  // why no search can be made, null when one can

    const db::Base& m_base;
    const EtatRecherche& m_recherche;
    EtatListe& m_liste;
    CreeEtAfficheRecherche& m_creeEtAfficheRecherche;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace browse
