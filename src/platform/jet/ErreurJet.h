#pragma once

#include <stdexcept>

namespace jet {

// What every call of this room throws when it fails. what() is a French sentence for the user: what is wrong with the
// file (it cannot be read, is no Jet base, asks for a password, is damaged and where). The file is never changed.
class ErreurJet : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The base has a password, and it is not the one given.
class MotDePasseRefuse : public ErreurJet {
  public:
    using ErreurJet::ErreurJet;
};

// The base can be opened; some place of it is not what it should be. Something of it may be readable.
class BaseEndommagee : public ErreurJet {
  public:
    using ErreurJet::ErreurJet;
};

}  // namespace jet
