#pragma once

#include "platform/dao/ErreurDao.h"

#include <string>

#include <unicode/utypes.h>

struct sqlite3;

namespace dao::interne {

[[noreturn]] void jette(int numero, std::string description);
// Throws what SQLite's result code means to the program, which wanted to read or to write.
enum class Acces { Lecture, Ecriture };
[[noreturn]] void jetteSqlite(sqlite3* base, int code, Acces acces);
// The file that a base was opened from is no longer the one its path names: 3024.
[[noreturn]] void jetteDeplacee(const std::string& chemin);
[[noreturn]] void jetteFerme();
// What ICU could not do: std::bad_alloc, or the name of its error.
void exigeSucces(UErrorCode etat);

}  // namespace dao::interne
