#pragma once

#include "app/Contexte.h"

namespace app {

// Each shows one of the three function panels in the place of the film sheet.
void ChoixFonction1_Divers(const Contexte& c);  // adding films, opened on the automatic page
void ChoixFonction2_Outils(const Contexte& c);
void ChoixFonction3_Config(const Contexte& c);

// The buttons that lead there: those of the window's bar, and those of the two pages behind one of them.
void cmdAfficherFonctions_Click(const Contexte& c);
void cmdConfigurer_Click(const Contexte& c);
void cmdConfig_Click(const Contexte& c, int indice);

// The buttons at the top of the add panel: 0 automatic import and web search, 1 manual entry, 2 a previous installation,
// which it proposes at once.
void Command13_Click(const Contexte& c, int indice);

void montreVoletAjout(const Contexte& c);  // adding films, whatever its page

}  // namespace app
