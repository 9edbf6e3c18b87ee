#pragma once

namespace edit {

// What the correction of a film asks of the room above; the application supplies it.
class VoletAjout {
  public:
    virtual ~VoletAjout() = default;
    virtual void montreVoletAjout() = 0;  // the panel of adding films takes the place of the sheet
};

}  // namespace edit
