#include "pannes/Cale.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <iterator>

#include <dlfcn.h>
#include <fcntl.h>
#include <limits.h>
#include <link.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/uio.h>
#include <time.h>
#include <unistd.h>

using pannes::Faute;

namespace {

char dossier[PATH_MAX] = "";
Faute faute = Faute::Aucune;
long quantieme = 0;
std::atomic<long> compte = 0;
bool armee = false;
long recul = 0;

template <typename Fonction>
Fonction* vraie(const char* nom) {
    return reinterpret_cast<Fonction*>(dlsym(RTLD_NEXT, nom));
}
#define VRAIE(nom) static const auto reel = vraie<decltype(nom)>(#nom)

bool estDedans(const char* chemin) {
    const std::size_t longueur = std::strlen(dossier);
    return longueur > 0 && std::strncmp(chemin, dossier, longueur) == 0;
}
bool estDedans(int descripteur) {
    char lien[64], chemin[PATH_MAX];
    std::snprintf(lien, sizeof lien, "/proc/self/fd/%d", descripteur);
    const ssize_t taille = readlink(lien, chemin, sizeof chemin - 1);
    chemin[std::max<ssize_t>(taille, 0)] = '\0';
    return estDedans(chemin);
}
bool estDedans(int parent, const char* chemin) {
    return chemin[0] == '/' || parent == AT_FDCWD ? estDedans(chemin) : estDedans(parent);
}

[[noreturn]] void meurs() {
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
}

// Whether a call that changes a file fails: errno is set then. `ecrire` is asked to write half of the bytes.
template <typename Ecrire>
bool tombe(bool demandeDeLaPlace, Ecrire ecrire) {
    if (faute == Faute::Memoire) return false;
    const long rang = ++compte;
    if (faute == Faute::Aucune || rang < quantieme) return false;
    if (rang == quantieme && (faute == Faute::Mort || faute == Faute::DisquePlein)) ecrire();
    if (faute == Faute::Mort) meurs();
    if (faute == Faute::Refus && rang > quantieme) return false;
    if (faute == Faute::DisquePlein && !demandeDeLaPlace) return false;
    errno = faute == Faute::DisquePlein ? ENOSPC : EIO;
    return true;
}
bool tombe(bool demandeDeLaPlace) {
    return tombe(demandeDeLaPlace, [] {});
}

bool ecrit(int options) {
    return (options & O_ACCMODE) != O_RDONLY || (options & O_CREAT) != 0;
}
bool cree(int options) {
    return (options & O_CREAT) != 0;
}

// GLib ends the program when memory lacks, and ICU 72 falls over its own missing objects: what they ask for is granted.
struct Bornes {
    ElfW(Addr) debut = 0, fin = 0;
};
constexpr const char* kExemptes[] = {"/libglib-", "/libicuuc.", "/libicui18n."};
Bornes exemptes[std::size(kExemptes)];

int noteBibliotheque(dl_phdr_info* objet, std::size_t, void*) {
    for (std::size_t i = 0; i < std::size(kExemptes); ++i)
        if (std::strstr(objet->dlpi_name, kExemptes[i]) != nullptr)
            for (int j = 0; j < objet->dlpi_phnum; ++j)
                if (const auto& partie = objet->dlpi_phdr[j]; partie.p_type == PT_LOAD && (partie.p_flags & PF_X) != 0)
                    exemptes[i] = {objet->dlpi_addr + partie.p_vaddr,
                                   objet->dlpi_addr + partie.p_vaddr + partie.p_memsz};
    return 0;
}

bool memoireManque(const void* appelant) {
    if (!armee || faute != Faute::Memoire) return false;
    const auto place = reinterpret_cast<ElfW(Addr)>(appelant);
    for (const Bornes& bornes : exemptes)
        if (place >= bornes.debut && place < bornes.fin) return false;
    if (++compte != quantieme) return false;
    errno = ENOMEM;
    return true;
}

}  // namespace

extern "C" {

void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);

void cale_dossier(const char* chemin) {
    std::snprintf(dossier, sizeof dossier, "%s", chemin);
    dl_iterate_phdr(noteBibliotheque, nullptr);
}
void cale_arme(Faute voulue, long rang) {
    faute = voulue, quantieme = rang, compte = 0, armee = true;
}
long cale_desarme() {
    armee = false;
    return compte;
}
void cale_recule(long secondes) {
    recul = secondes;
}

void* malloc(std::size_t taille) noexcept {
    return memoireManque(__builtin_return_address(0)) ? nullptr : __libc_malloc(taille);
}
void* calloc(std::size_t nombre, std::size_t taille) noexcept {
    return memoireManque(__builtin_return_address(0)) ? nullptr : __libc_calloc(nombre, taille);
}
void* realloc(void* avant, std::size_t taille) noexcept {
    return memoireManque(__builtin_return_address(0)) ? nullptr : __libc_realloc(avant, taille);
}

int openat(int parent, const char* chemin, int options, ...) {
    VRAIE(openat);
    va_list suite;
    va_start(suite, options);
    const mode_t droits = (options & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(suite, mode_t) : 0;
    va_end(suite);
    if (armee && ecrit(options) && estDedans(parent, chemin) && tombe(cree(options))) return -1;
    return reel(parent, chemin, options, droits);
}
int open(const char* chemin, int options, ...) {
    va_list suite;
    va_start(suite, options);
    const mode_t droits = (options & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(suite, mode_t) : 0;
    va_end(suite);
    return openat(AT_FDCWD, chemin, options, droits);
}
int open64(const char*, int, ...) __attribute__((alias("open")));
int openat64(int, const char*, int, ...) __attribute__((alias("openat")));

ssize_t write(int fichier, const void* octets, std::size_t taille) {
    VRAIE(write);
    if (armee && estDedans(fichier) && tombe(true, [&] { reel(fichier, octets, taille / 2); })) return -1;
    return reel(fichier, octets, taille);
}
ssize_t pwrite(int fichier, const void* octets, std::size_t taille, off_t place) {
    VRAIE(pwrite);
    if (armee && estDedans(fichier) && tombe(true, [&] { reel(fichier, octets, taille / 2, place); })) return -1;
    return reel(fichier, octets, taille, place);
}
ssize_t pwrite64(int, const void*, std::size_t, off_t) __attribute__((alias("pwrite")));
ssize_t writev(int fichier, const iovec* morceaux, int nombre) {
    VRAIE(writev);
    if (armee && estDedans(fichier) && tombe(true, [&] { reel(fichier, morceaux, nombre / 2); })) return -1;
    return reel(fichier, morceaux, nombre);
}
int ftruncate(int fichier, off_t taille) noexcept {
    VRAIE(ftruncate);
    return armee && estDedans(fichier) && tombe(false) ? -1 : reel(fichier, taille);
}
int ftruncate64(int, off_t) noexcept __attribute__((alias("ftruncate")));

int fsync(int fichier) {
    VRAIE(fsync);
    if (!estDedans(fichier)) return reel(fichier);
    return armee && tombe(false) ? -1 : 0;
}
int fdatasync(int) __attribute__((alias("fsync")));
int syncfs(int) noexcept __attribute__((alias("fsync")));

int rename(const char* de, const char* vers) noexcept {
    VRAIE(rename);
    return armee && estDedans(vers) && tombe(true) ? -1 : reel(de, vers);
}
int renameat2(int deParent, const char* de, int versParent, const char* vers, unsigned options) noexcept {
    VRAIE(renameat2);
    return armee && estDedans(versParent, vers) && tombe(true) ? -1 : reel(deParent, de, versParent, vers, options);
}
int link(const char* de, const char* vers) noexcept {
    VRAIE(link);
    return armee && estDedans(vers) && tombe(true) ? -1 : reel(de, vers);
}
int mkdir(const char* chemin, mode_t droits) noexcept {
    VRAIE(mkdir);
    return armee && estDedans(chemin) && tombe(true) ? -1 : reel(chemin, droits);
}
int unlink(const char* chemin) noexcept {
    VRAIE(unlink);
    return armee && estDedans(chemin) && tombe(false) ? -1 : reel(chemin);
}
int unlinkat(int parent, const char* chemin, int options) noexcept {
    VRAIE(unlinkat);
    return armee && estDedans(parent, chemin) && tombe(false) ? -1 : reel(parent, chemin, options);
}
int remove(const char* chemin) noexcept {
    VRAIE(remove);
    return armee && estDedans(chemin) && tombe(false) ? -1 : reel(chemin);
}

time_t time(time_t* instant) noexcept {
    VRAIE(time);
    const time_t maintenant = reel(nullptr) - recul;
    if (instant) *instant = maintenant;
    return maintenant;
}
int clock_gettime(clockid_t horloge, timespec* instant) noexcept {
    VRAIE(clock_gettime);
    const int issue = reel(horloge, instant);
    if (issue == 0 && horloge == CLOCK_REALTIME) instant->tv_sec -= recul;
    return issue;
}

}  // extern "C"
