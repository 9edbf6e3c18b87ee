#pragma once

namespace edit {

// What the entry and the correction of films tell and ask of the room above; the application supplies it.
class Accompagnement {
  public:
    virtual ~Accompagnement() = default;
    virtual void montreVoletAjout() = 0;   // the panel of adding films takes the place of the sheet
    virtual void filmStocke() = 0;         // the page of entry is in the base
    virtual void possessionStockee() = 0;  // the holdings of the sheet are
};

}  // namespace edit
