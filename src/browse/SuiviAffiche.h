#pragma once

#include "platform/ecran/Ecran.h"

#include <optional>

namespace browse {

// Who shows the current poster besides the sheet.
class SuiviAffiche {
  public:
    virtual ~SuiviAffiche() = default;
    // A load just ended: the size of the current picture, or nothing when there is none.
    virtual void afficheChargee(const std::optional<ecran::TailleImage>& taille) = 0;
};

}  // namespace browse
