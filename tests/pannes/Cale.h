#pragma once

#include <cstdint>

// Stands between the program and the system, in one process: the library `cale` comes before the C library. It counts
// what changes the files of one folder (open for writing, write, sync, cut, rename, link, remove, make a folder) and
// what asks for memory, and makes one of these calls fail. Nothing waits for the disk.
namespace pannes {

enum class Faute : std::uint8_t {
    Aucune,       // counts
    Refus,        // one call fails, with EIO
    DisquePlein,  // from there on what needs room fails, with ENOSPC, after half of the first bytes
    DisqueMort,   // from there on all fails, with EIO
    Mort,         // SIGKILL there, with half of the bytes written
    Memoire,      // one call for memory fails
};

}  // namespace pannes

extern "C" {
void cale_dossier(const char* chemin);                // whose files count
void cale_arme(pannes::Faute faute, long quantieme);  // from now on the calls are counted, from 1
long cale_desarme();                                  // and no longer; answers how many there were
void cale_recule(long secondes);                      // the system's clock
}
