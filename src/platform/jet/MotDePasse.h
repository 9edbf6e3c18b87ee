#pragma once

#include "platform/jet/Octets.h"

#include <string>

namespace jet::interne {

// The password that a file's decoded head holds, as UTF-8; empty when it holds none.
[[nodiscard]] std::string motDePasse(Octets entete, bool jet4);

}  // namespace jet::interne
