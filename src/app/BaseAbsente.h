#pragma once

#include "app/Contexte.h"

#include <string>

namespace app {

// The base that the settings name was not there at the start (its disk is unplugged, say), and another one is open in its
// place. The notice line names it, opens it once it is back, and the settings go on naming it until the user opens a base
// himself.
class BaseAbsente {
  public:
    explicit BaseAbsente(const Contexte& c) : m_c(c) {}  // which outlives it

    void annonce();
    // The user may have opened a base: a notice that is not true any more goes.
    void suisLaBase();

  private:
    void montre(const std::string& texte);
    void reessaie();
    void change(const std::string& absente);

    const Contexte& m_c;
    int m_numero = 0;  // of the last notice shown here
};

}  // namespace app
