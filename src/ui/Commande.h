#pragma once

#include "platform/dialogues/Dialogues.h"
#include "ui/Liaison.h"

#include <QObject>
#include <functional>
#include <string>
#include <utility>

namespace ui {

// Runs every command of the program: the state is read from the widgets, the command runs, the state is shown. What the
// command throws ends here. A command never starts while another one runs.
class Commande : public QObject {
    Q_OBJECT
  public:
    enum class Issue { Faite, Echouee, Refusee };

    Commande(Liaison& liaison, dialogues::Dialogues& dialogues) : m_liaison(liaison), m_dialogues(dialogues) {}

    // What the session does around every command: before it, and after one whose statement failed.
    struct Suites {
        std::function<void()> vaCommencer;
        std::function<void(const std::string& raison)> expliqueEchec;
    };
    void accompagne(Suites suites) { m_suites = std::move(suites); }

    Issue execute(const std::function<void()>& corps);
    // What reads the base at length for a page: no command starts meanwhile, and the window lives on. It changes nothing
    // of the state, and throws nothing.
    void lis(const std::function<void()>& corps);
    void arrete() { m_finie = true; }  // no command runs any more
    [[nodiscard]] bool enCours() const { return m_enCours; }
    [[nodiscard]] bool finie() const { return m_finie; }  // none runs any more

  signals:
    void vaCommencer();  // before the widgets are read
    void terminee();     // after they show the state
    void finDuProgramme();
    void lectureFinie();  // of `lis`: what waited for it may go on

  private:
    Issue protege(const std::function<void()>& corps);
    void annonce(const std::string& texte);

    Liaison& m_liaison;
    dialogues::Dialogues& m_dialogues;
    Suites m_suites;
    bool m_enCours = false;
    bool m_finie = false;
};

}  // namespace ui
