#pragma once

#include "db/Contexte.h"

namespace db {

// Compacts the open base, once a safety copy is taken, and removes the holdings of films that are no longer in the catalogue.
//
// The base's file is replaced by a complete copy, checked and on the disk, or not at all: what prevents it is told to the
// user and the base stays open as it was. The copy is "temp.tmp" in the program folder; for a base elsewhere, which may
// be on another file system, it lies beside the base. Throws systeme::FinDuProgramme when the compacted base cannot be
// opened again.
void cmdCompacter_Click(const Contexte& c);
// The same within a command that has its safety copy already.
void compacteEtRapporte(const Contexte& c);

}  // namespace db
