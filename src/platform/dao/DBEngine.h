#pragma once

#include "platform/dao/Database.h"
#include "platform/dao/Souffle.h"

#include <cstdint>
#include <functional>
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

// Writes a compacted copy of the base at `source` to a file of its own at `destination`, which must not exist. Row ids,
// `application_id` and `user_version` stay; the copy is checked, row counts included, and on the disk when this returns.
// Others may read the source meanwhile; it is locked against every other program while `ensuite` runs, last: the place to
// put the copy where the source was. What lasts goes to `attente`. Throws ErreurDao, where another program changed the
// source meanwhile too, and whatever `ensuite` throws: the source is then as it was, and there is no destination.
void CompactDatabase(const std::string& source, const std::string& destination,
                     const std::function<void()>& ensuite = {}, const Attente& attente = {});

}  // namespace dao::DBEngine
