#pragma once

#include <string>
#include <string_view>

namespace db {

// How the working files of a base are named after it, while it is made, converted, compacted or written as a Jet base.
inline constexpr std::string_view kCreation = "-creation.tmp";
inline constexpr std::string_view kConversion = "-conversion.tmp";
inline constexpr std::string_view kVersJet = "-jet.tmp";
inline constexpr std::string_view kCompactage = "-temp.tmp";
inline constexpr std::string_view kCompactageIci = "temp.tmp";  // of a base in the program folder

// What the work on such a file begins with: nothing yet, or the header of a base of ours, or of the Jet base that it is to
// be. After a power cut, zeros.
[[nodiscard]] bool estInacheve(const std::string& travail);

// Removes from a folder those that killed runs have left, with their journals. One whose base is being converted stays.
void effaceTravauxInacheves(const std::string& dossier);

}  // namespace db
