#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace systeme {

// A program to start, without a shell: each argument reaches it with the bytes it has here.
struct Commande {
    // The program first. A name without "/" is looked up in PATH, any other as a path from our own working folder.
    std::vector<std::string> arguments;
    std::string dossier;  // the program's working folder; empty: ours
};

enum class Lancement {
    Fait,
    Introuvable,     // no such program, or no such working folder
    Interdit,        // there, and not to be executed
    PasUnProgramme,  // to be executed, and nothing this machine knows how to run
    SansMemoire,
    Echoue,
};

// A started program that can be waited for. Its destruction ends it.
class ProgrammeEnCours {
  public:
    virtual ~ProgrammeEnCours() = default;
    // Sleeps until it ends, `auPlus` at most; true when it has ended.
    [[nodiscard]] virtual bool attendsFin(std::chrono::milliseconds auPlus) = 0;
    // Asks it to end, with what it started, and ends it by force when it has not within a second. Returns once it has.
    virtual void termine() = 0;
};

struct ProgrammeLance {
    Lancement issue = Lancement::Echoue;
    std::unique_ptr<ProgrammeEnCours> enCours;  // when issue is Fait
};

// Starts programs. A service, so that tests record what was started. Not GLib's GSubprocess: it hands a file that is no
// program to a shell, ends the child without what that started, and waits in the main loop, which runs the window's events.
class Programmes {
  public:
    virtual ~Programmes() = default;
    // Starts it and forgets it: it outlives this program.
    [[nodiscard]] virtual Lancement lance(const Commande& commande) = 0;
    [[nodiscard]] virtual ProgrammeLance lancePourAttendre(const Commande& commande) = 0;
};

class ProgrammesSysteme final : public Programmes {
  public:
    [[nodiscard]] Lancement lance(const Commande& commande) override;
    [[nodiscard]] ProgrammeLance lancePourAttendre(const Commande& commande) override;
};

}  // namespace systeme
