#pragma once

#include "platform/dao/ErreurDao.h"

#include <string>

struct sqlite3;

namespace dao::interne {

[[noreturn]] void jette(int numero, std::string description);
// Throws what SQLite's result code means to the program.
[[noreturn]] void jetteSqlite(sqlite3* base, int code);
[[noreturn]] void jetteFerme();

}  // namespace dao::interne
