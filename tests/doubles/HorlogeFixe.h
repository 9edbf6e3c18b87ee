#pragma once

#include "platform/systeme/Horloge.h"

#include <string>

namespace doubles {

// The day is the one the test says.
class HorlogeFixe final : public systeme::Horloge {
  public:
    std::string jour = "21/11/2026";

    std::string dateDuJour() const override { return jour; }
};

}  // namespace doubles
