#include "platform/systeme/TableMontages.h"

#include "util/Ascii.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <sstream>

namespace systeme {

namespace {

// File systems of the kernel's and of the system's services: no one keeps a film there.
constexpr std::array<std::string_view, 29> kDuNoyau = {
    "autofs",   "binfmt_misc", "bpf",         "cgroup",        "cgroup2",        "configfs", "debugfs",  "devpts",
    "devtmpfs", "efivarfs",    "fusectl",     "hugetlbfs",     "mqueue",         "nsfs",     "proc",     "pstore",
    "ramfs",    "rootfs",      "rpc_pipefs",  "securityfs",    "selinuxfs",      "smackfs",  "squashfs", "sysfs",
    "tracefs",  "fuse.lxcfs",  "fuse.portal", "fuse.snapfuse", "fuse.squashfuse"};
constexpr std::array<std::string_view, 15> kDuReseau = {"nfs",       "nfs4",   "cifs",  "smb3",  "smbfs",
                                                        "afs",       "ceph",   "9p",    "ncpfs", "coda",
                                                        "glusterfs", "lustre", "davfs", "sshfs", "fuse"};

template <std::size_t N>
bool contient(const std::array<std::string_view, N>& noms, std::string_view nom) {
    return std::find(noms.begin(), noms.end(), nom) != noms.end();
}

bool estSous(std::string_view chemin, std::string_view dossier) {
    return chemin.starts_with(dossier) && (chemin.size() == dossier.size() || chemin[dossier.size()] == '/');
}

bool estUnOctal(std::string_view chiffres) {
    return chiffres.size() == 3 && chiffres[0] <= '3' &&
           std::all_of(chiffres.begin(), chiffres.end(), [](char c) { return c >= '0' && c <= '7'; });
}

// "\040" is a blank, and so on.
std::string decode(std::string_view champ) {
    std::string texte;
    for (std::size_t i = 0; i < champ.size(); ++i) {
        const std::string_view chiffres = champ.substr(i + 1 <= champ.size() ? i + 1 : i, 3);
        if (champ[i] == '\\' && estUnOctal(chiffres)) {
            texte += static_cast<char>((chiffres[0] - '0') * 64 + (chiffres[1] - '0') * 8 + (chiffres[2] - '0'));
            i += 3;
        } else {
            texte += champ[i];
        }
    }
    return texte;
}

struct Ligne {
    std::string racine, genre, source;
};

// "36 35 98:0 /root /mount rw,noatime master:1 - ext3 /dev/sda1 rw": optional fields stand before the hyphen.
std::optional<Ligne> litLigne(const std::string& ligne) {
    std::istringstream champs(ligne);
    std::string ignore, racine, genre, source;
    if (!(champs >> ignore >> ignore >> ignore >> ignore >> racine) || !racine.starts_with('/')) return std::nullopt;
    while (champs >> ignore && ignore != "-") {
    }
    if (!(champs >> genre)) return std::nullopt;
    champs >> source;
    return Ligne{decode(racine), genre, decode(source)};
}

bool estDuSysteme(const Ligne& ligne) {
    if (contient(kDuNoyau, ligne.genre)) return true;
    if (ligne.racine == "/") return false;
    for (const char* dossier : {"/proc", "/sys", "/dev", "/boot", "/snap"})
        if (estSous(ligne.racine, dossier)) return true;
    if (ligne.genre == "overlay") return true;  // a second look at files that lie elsewhere
    // Memory, but for what the user mounts in the places for it.
    return ligne.genre == "tmpfs" && !estSous(ligne.racine, "/mnt") && !estSous(ligne.racine, "/media");
}

bool estUneDisquette(const std::string& source) {
    return source.starts_with("/dev/fd") && source.size() > 7 && util::estUnChiffre(source[7]);
}

}  // namespace

std::vector<Montage> litMontages(std::string_view table) {
    std::map<std::string, Montage> parRacine;  // by name; what was mounted last over a place hides the others
    std::istringstream lignes{std::string(table)};
    for (std::string brute; std::getline(lignes, brute);) {
        const auto ligne = litLigne(brute);
        if (!ligne) continue;
        parRacine.erase(ligne->racine);
        if (estDuSysteme(*ligne)) continue;
        const bool reseau = contient(kDuReseau, ligne->genre) || ligne->genre.starts_with("fuse.");
        parRacine[ligne->racine] = {ligne->racine, reseau, estUneDisquette(ligne->source)};
    }
    std::vector<Montage> montages;
    for (const auto& [racine, montage] : parRacine)
        montages.push_back(montage);
    std::stable_partition(montages.begin(), montages.end(), [](const Montage& m) { return m.racine != "/"; });
    return montages;
}

}  // namespace systeme
