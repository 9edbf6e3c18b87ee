#pragma once

#include <stdexcept>

namespace jet::interne {

// For this room only: what is wrong at one place of the file, as the end of a French sentence. The reader says which
// base, table, row and field it is about, in an ErreurJet.
class Dommage : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace jet::interne
