#pragma once

#include "platform/ecran/Controles.h"

#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace ecran {

// The line at the bottom of the window: what was just done or set aside, and what can be done about it.
struct EtatAvis {
    Cadre frameAvis;
    Etiquette lblAvis;
    std::array<Bouton, 2> cmdAvis;  // one for each action of the notice
    int numero = 0;                 // rises at each notice, so that the same words are announced again

    EtatAvis() { retire(); }
    void retire() {
        frameAvis.Visible = false;
        for (Bouton& bouton : cmdAvis)
            bouton.Visible = false;
    }
};

// Shows one notice at a time: it interrupts nobody, asks nothing, and is replaced by the next. It lives as long as the
// window; what its actions use outlives it, and they check for themselves that what they speak of is still there.
class Avis {
  public:
    struct Action {
        std::string legende;  // "Annuler", "Reprendre", "Afficher", "Ouvrir"
        std::function<void()> geste;
        bool reste = false;  // the line stays after it
    };

    explicit Avis(EtatAvis& etat) : m_etat(etat) {}

    // Shows the text in place of the last notice. One action as a rule, two at most.
    void montre(std::string texte, std::vector<Action> actions = {}) {
        m_texte = std::move(texte);
        m_actions = std::move(actions);
        m_parLaCommande = true;
        affiche();
    }
    // What the running command has to say beside its notice: it stands behind the one that it showed or will show.
    void remarque(const std::string& texte) {
        if (!m_parLaCommande) montre("");
        m_remarque += (m_remarque.empty() ? "" : " ") + texte;
        affiche();
    }
    void nouvelleCommande() {
        m_remarque.clear();
        m_parLaCommande = false;
    }
    // One more action of the notice that stands, where it has room for one.
    void ajoute(Action action) {
        if (!m_etat.frameAvis.Visible || m_actions.size() == m_etat.cmdAvis.size()) return;
        ecran::Bouton& bouton = m_etat.cmdAvis[m_actions.size()];
        bouton.Visible = true;
        bouton.Caption = action.legende;
        m_actions.push_back(std::move(action));
    }
    // Takes the notice away, and its actions with it.
    void retire() {
        m_texte.clear();
        m_actions.clear();
        m_etat.retire();
    }
    void cmdAvis_Click(std::size_t indice) {
        if (indice >= m_actions.size()) return;
        const Action action = m_actions[indice];  // a copy: what it does may show the next notice
        if (!action.reste) retire();
        action.geste();
    }

  private:
    void affiche() {
        m_etat.lblAvis.Caption = m_texte + (m_texte.empty() || m_remarque.empty() ? "" : " ") + m_remarque;
        m_etat.frameAvis.Visible = true;
        for (std::size_t i = 0; i < m_etat.cmdAvis.size(); ++i) {
            m_etat.cmdAvis[i].Visible = i < m_actions.size();
            if (i < m_actions.size()) m_etat.cmdAvis[i].Caption = m_actions[i].legende;
        }
        ++m_etat.numero;
    }

    EtatAvis& m_etat;
    std::string m_texte;
    std::vector<Action> m_actions;
    std::string m_remarque;        // of the command that runs
    bool m_parLaCommande = false;  // the notice is
};

}  // namespace ecran
