#pragma once

#include "app/Contexte.h"

#include <functional>
#include <memory>
#include <string>

namespace app {

// What the program asks of its machine. Everything outlives the session.
struct Machine {
    dialogues::Dialogues& dialogues;
    ecran::Ecran& ecran;
    ecran::Images& images;
    systeme::Horloge& horloge;
    systeme::Documents& documents;
    systeme::Programmes& programmes;
    systeme::Volumes& volumes;
    std::string dossierProgramme;  // the executable's folder
    systeme::Montre montre = std::chrono::steady_clock::now;
};

// One run of the program: owns the panels' state, the open base and what the commands work with. The window runs one
// command per gesture, through its wrapper, with `etats` up to date; afterwards it shows `etats`.
//
// Any command may throw systeme::FinDuProgramme (the program ends), db::RequeteEchouee (the message was shown) or
// dao::ErreurDao (to be shown as its texte()).
class Session {
  public:
    explicit Session(const Machine& machine);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Etats etats;

    // Runs a command of any room, with what it takes after the context: session.execute(edit::Command2_Click, 1).
    template <typename Commande, typename... Arguments>
    void execute(Commande commande, Arguments... arguments) {
        accompagne([&] { commande(contexte(), arguments...); });
    }

    // What only looks at the base, and changes nothing that is shown: run outside of the wrapper, between two commands.
    template <typename Regard, typename... Arguments>
    [[nodiscard]] auto regarde(Regard regard, Arguments... arguments) const {
        return regard(contexte(), arguments...);
    }

    // Life of the window. Form_Load runs before it is shown, Form_Activate once it is painted. Form_Unload is the
    // shut-down; it runs once, later calls do nothing.
    void Form_Load();
    void Form_Activate();
    void Form_Unload();
    // Asks, where something is typed that closing the window would lose; false: the window stays.
    [[nodiscard]] bool Form_QueryUnload();
    void cmdStop_Click();  // asks as Form_QueryUnload, shuts down, then throws FinDuProgramme
    // The layout has room for both pages of the sheet, or no longer has.
    void Form_Resize(bool deuxPages);

    // Before each command, once `etats` is up to date. A base that another program put another file in the place of is
    // opened again and listed; a gesture on a node of the old tree then does nothing.
    void vaCommencer();
    // After a command that ended by db::RequeteEchouee: why, in the notice line.
    void expliqueEchec(const std::string& raison);

  private:
    [[nodiscard]] const Contexte& contexte() const;
    // What goes round every command: nothing typed is lost by it, and what followed the film or a panel follows it.
    void accompagne(const std::function<void()>& commande);
    void relis();

    struct Rouages;  // the base, the paths and what else it owns
    std::unique_ptr<Rouages> m_rouages;
};

}  // namespace app
