#pragma once

#include <array>
#include <chrono>
#include <functional>

#include <sys/types.h>

// For this room only: processes of ours, and what they are waited for with.
namespace systeme {

// A pipe that no started program inherits, closed with its owner.
class Tube {
  public:
    Tube();
    Tube(const Tube&) = delete;
    Tube& operator=(const Tube&) = delete;
    ~Tube();

    [[nodiscard]] int erreur() const { return m_erreur; }  // why there is none; 0 when it stands
    [[nodiscard]] int lecture() const { return m_bouts[0]; }
    [[nodiscard]] int ecriture() const { return m_bouts[1]; }
    // The other end then learns that nothing more comes, once each process that may write has closed its own.
    void fermeEcriture();

  private:
    std::array<int, 2> m_bouts{-1, -1};
    int m_erreur;
};

// Sleeps until there is something to read, or nothing can come any more; false when the time is over.
[[nodiscard]] bool devientLisible(int descripteur, std::chrono::steady_clock::time_point limite);

// Takes leave of a child that ends; its status, as waitpid gives it.
int recueille(pid_t processus);

// Calls `suite`, which does not return, in a process of a session of its own that is nobody's child: nobody has to wait
// for it, and none stays behind as a zombie. What errno says when there can be none; 0 when there is one.
[[nodiscard]] int detache(const std::function<void()>& suite);

}  // namespace systeme
