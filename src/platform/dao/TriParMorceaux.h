#pragma once

#include "platform/dao/Souffle.h"

#include <algorithm>
#include <cstddef>

namespace dao::interne {

// Puts elements in order, those that `avant` holds for equal as they come when there is no breath, with a breath between parts
// of a few milliseconds. In runs, which what comes nearly in order is made of.
template <typename Element, typename Avant>
void trieParMorceaux(Element* debut, Element* fin, const Avant& avant, const Souffle& souffle) {
    constexpr std::ptrdiff_t kMorceau = 1 << 15;
    while (souffle && fin - debut > kMorceau) {
        Element* const milieu = debut + (fin - debut) / 2;
        std::nth_element(debut, milieu, fin, avant);
        souffle();
        trieParMorceaux(debut, milieu, avant, souffle);
        debut = milieu;
    }
    std::stable_sort(debut, fin, avant);
    if (souffle) souffle();
}

}  // namespace dao::interne
