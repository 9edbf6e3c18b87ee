#pragma once

#include <string>

namespace app {

[[nodiscard]] std::string texteAPropos();

// "v. 2.4.0", from the version of the build.
[[nodiscard]] std::string texteVersion();

}  // namespace app
