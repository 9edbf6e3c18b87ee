#pragma once

#include "platform/systeme/Horloge.h"

#include <string>

namespace doubles {

// The day and the moment are those the test says.
class HorlogeFixe final : public systeme::Horloge {
  public:
    std::string jour = "21/11/2026";
    std::time_t instant = 1795262400;  // 21/11/2026, at noon in Greenwich

    std::string dateDuJour() const override { return jour; }
    std::time_t maintenant() const override { return instant; }
};

}  // namespace doubles
