#pragma once

#include "platform/dao/Database.h"

#include <cstdint>
#include <string>
#include <string_view>

// The base engine: one SQLite file per base, spoken to in DAO's words.
namespace dao::DBEngine {

// The application id that bases of ours carry in their header ("Ambr").
inline constexpr std::uint32_t kIdentifiantApplication = 0x416d6272;

// Opens an existing base, shared, for reading and writing; never creates a file.
// Throws ErreurDao: 3024 no such file, 3343 not a base of ours or damaged, 3045 locked by another program,
// 3451 the file or its folder cannot be written. Nothing of the file is changed.
[[nodiscard]] Database OpenDatabase(const std::string& chemin, bool exclusif = false);

// Makes a new empty base from the statements of its schema. Throws ErreurDao when the file exists or cannot be made.
void CreateDatabase(const std::string& chemin, std::string_view schema);

}  // namespace dao::DBEngine
