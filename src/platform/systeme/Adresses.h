#pragma once

#include <optional>
#include <string>

namespace systeme {

// The path that an address of the desktop ("file:///home/L%C3%A9a/x.FILM") stands for, with the bytes of its name. Empty
// for any other text, and for a file of another machine.
[[nodiscard]] std::optional<std::string> cheminDeLAdresse(const std::string& adresse);

}  // namespace systeme
