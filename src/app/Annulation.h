#pragma once

#include "app/Contexte.h"

#include <functional>

namespace app {

// Goes round every command: what it changes of the base is recorded, told in the notice line, and can be taken back with
// what the window showed.
class Annulation {
  public:
    explicit Annulation(const Contexte& c) : m_c(c) {}  // which outlives it

    // Whether something was told before the next command, in answer to the same gesture: it stays in the line.
    void parleAvant(bool parle) { m_parleAvant = parle; }
    void surveille(const std::function<void()>& commande);

  private:
    struct Avis {
        int avant = 0;
        int commande = 0;  // the notice that stood when the command itself ended
    };
    void annonce(const db::Annulations::Commande& faite, const Avis& avis);
    void montreLesBoutons();

    const Contexte& m_c;
    bool m_parleAvant = false;
};

// Take back the last command, make again the last one that was taken back. They answer in the notice line.
void cmdAnnuler_Click(const Contexte& c);
void cmdRetablir_Click(const Contexte& c);

}  // namespace app
