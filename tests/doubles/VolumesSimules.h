#pragma once

#include "platform/systeme/Volumes.h"

#include <vector>

namespace doubles {

// The volumes are those the test says: folders of its own stand for them.
class VolumesSimules final : public systeme::Volumes {
  public:
    std::vector<systeme::Volume> volumes;

    std::vector<systeme::Volume> liste() override { return volumes; }
};

}  // namespace doubles
