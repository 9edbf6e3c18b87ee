#pragma once

#include <optional>
#include <string>

namespace ecran {

// The screen as long work sees it.
class Ecran {
  public:
    virtual ~Ecran() = default;
    // Between two items of a long loop, with rows and files whole: shows the state, lets events through (no second
    // command starts meanwhile). False when the user asked to stop, by "Annuler" or by closing the window.
    [[nodiscard]] virtual bool respire() = 0;
    // Shows the state now; takes no input.
    virtual void rafraichit() = 0;
    // Amid something that cannot be stopped: what rafraichit does, where a command runs, and nothing else.
    virtual void patiente() {}
    // The long work that respire belongs to begins or ends: while it lasts the window offers "Annuler".
    virtual void debutTravail() = 0;
    virtual void finTravail() = 0;
};

// Holds debutTravail and finTravail together, however the loop is left.
class Travail {
  public:
    explicit Travail(Ecran& ecran) : m_ecran(ecran) { m_ecran.debutTravail(); }
    Travail(const Travail&) = delete;
    Travail& operator=(const Travail&) = delete;
    ~Travail() { m_ecran.finTravail(); }

  private:
    Ecran& m_ecran;
};

struct TailleImage {
    int largeur = 0;  // pixels
    int hauteur = 0;
};

// The one picture the sheet and the poster viewer share. Decoding is the window's work.
class Images {
  public:
    virtual ~Images() = default;
    // Takes a picture file's bytes as the current picture; its size, or nothing when there are none, or when they are
    // broken, too large to decode or of no kind that photographs have (the current picture is then empty).
    [[nodiscard]] virtual std::optional<TailleImage> charge(const std::string& octets) = 0;
    virtual void vide() = 0;
};

// Asked for once by a command; the window carries it out after the command and clears it. It comes to the front already
// before the command's next box.
struct Demandes {
    std::string focus;            // name of the control to give the focus to
    std::string boutonParDefaut;  // name of the button that Enter presses while it is visible and enabled
    bool premierPlan = false;     // the window comes before those of other programs
};

}  // namespace ecran
