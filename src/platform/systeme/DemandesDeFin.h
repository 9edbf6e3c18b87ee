#pragma once

namespace systeme {

// The signals by which the system asks the program to end: SIGTERM (a shut-down, the end of a session), SIGINT (Ctrl+C)
// and SIGHUP (the terminal is gone). As long as this lives they end nothing any more: they wait to be taken here. One that
// was ignored at our start (nohup) stays so. One at a time.
class DemandesDeFin {
  public:
    DemandesDeFin();
    DemandesDeFin(const DemandesDeFin&) = delete;
    DemandesDeFin& operator=(const DemandesDeFin&) = delete;
    ~DemandesDeFin();  // each signal does again what it did before

    // Becomes readable when one arrives, for those who wait on several things; -1 when the system has no more of them
    // (the signals then end the program as ever). Closed with its owner.
    [[nodiscard]] int descripteur() const;
    // Whether one has arrived since the last call.
    [[nodiscard]] bool recue();
};

}  // namespace systeme
