#pragma once

#include "browse/AfficheFiche.h"

namespace browse {

// The menu that a right click on the tree asks for.
enum class MenuArbre { Aucun, Film, Support, Genre };

// The events of the title tree. Indexes are those of the nodes, from 1; others are ignored.
class TreeView1 {
  public:
    TreeView1(EtatListe& liste, AfficheFiche& afficheFiche, dialogues::Dialogues& dialogues)
        : m_liste(liste), m_afficheFiche(afficheFiche), m_dialogues(dialogues) {}

    void NodeClick(int indice);
    // A heading that gets ticked is unticked again, with a message.
    void NodeCheck(int indice, bool coche);
    // The right button over a node does first what a click on it does; over none (0) it is for the node chosen before.
    // Over the node that is chosen already nothing is shown anew: what the user is typing beside it stays.
    [[nodiscard]] MenuArbre MouseUp(int indice);

  private:
    EtatListe& m_liste;
    AfficheFiche& m_afficheFiche;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace browse
