#pragma once

#include "platform/ecran/Ecran.h"

#include <functional>

namespace doubles {

// A screen that shows nothing and counts what it was asked. Set `arretApres` to n and the user "asks to stop" at the
// n-th breath and ever after; `pendantSouffle` runs at each breath, to look at the state as the user would.
class EcranMuet final : public ecran::Ecran {
  public:
    int arretApres = 0;  // 0: never
    std::function<void()> pendantSouffle;
    std::function<void()> pendantPatience;  // amid what cannot be stopped

    int souffles = 0;
    int debuts = 0;
    int fins = 0;
    int soufflesHorsTravail = 0;  // breaths with no work begun: the window would offer no way to stop

    bool respire() override {
        ++souffles;
        if (debuts == fins) ++soufflesHorsTravail;
        if (pendantSouffle) pendantSouffle();
        return arretApres == 0 || souffles < arretApres;
    }
    void rafraichit() override {}
    void patiente() override {
        if (pendantPatience) pendantPatience();
    }
    void debutTravail() override { ++debuts; }
    void finTravail() override { ++fins; }
};

}  // namespace doubles
