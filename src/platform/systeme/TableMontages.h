#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace systeme {

// A mount that holds files of the user's.
struct Montage {
    std::string racine;
    bool reseau = false;     // may not answer
    bool disquette = false;  // never touched
};

// Reads the kernel's table (/proc/self/mountinfo), octal escapes decoded, without what is the kernel's own; in the order
// of Volumes::liste. Lines it does not understand are passed over. Not g_unix_mounts_get: to GLib
// what is mounted on /home or /srv is the system's own, and no test can give it a table.
[[nodiscard]] std::vector<Montage> litMontages(std::string_view table);

}  // namespace systeme
