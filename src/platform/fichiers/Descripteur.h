#pragma once

#include "platform/fichiers/Fichiers.h"

#include <cerrno>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

// For this room only.
namespace fichiers {

// What is tidied up after a failure leaves the failure's reason in errno.
class GardeErreur {
  public:
    GardeErreur() = default;
    GardeErreur(const GardeErreur&) = delete;
    GardeErreur& operator=(const GardeErreur&) = delete;
    ~GardeErreur() { errno = m_erreur; }

  private:
    int m_erreur = errno;
};

// What the system says of what a path leads to; nothing where it leads nowhere.
[[nodiscard]] inline std::optional<struct stat> infosDe(const std::string& chemin) {
    struct stat infos {};
    return stat(chemin.c_str(), &infos) == 0 ? std::optional(infos) : std::nullopt;
}
[[nodiscard]] inline Identite identiteDe(const struct stat& infos) {
    return {infos.st_dev, infos.st_ino};
}

// An open file, closed with its owner.
class Descripteur {
  public:
    // Never waits: a pipe without its other end gives an error or an empty answer.
    Descripteur(const std::string& chemin, int mode, mode_t droits = 0) : Descripteur(AT_FDCWD, chemin, mode, droits) {}
    // A file of an open folder.
    Descripteur(int dossier, const std::string& nom, int mode, mode_t droits = 0)
        : m_numero(openat(dossier, nom.c_str(), mode | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, droits)) {}
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;
    ~Descripteur() {
        const GardeErreur garde;
        ferme();
    }

    [[nodiscard]] int numero() const { return m_numero; }
    [[nodiscard]] bool estOuvert() const { return m_numero >= 0; }
    // What the system says of an ordinary file; nothing for any other.
    [[nodiscard]] std::optional<struct stat> infos() const {
        struct stat infos {};
        if (!estOuvert() || fstat(m_numero, &infos) != 0 || !S_ISREG(infos.st_mode)) return std::nullopt;
        return infos;
    }
    // False when the system could not take the last bytes.
    bool ferme() {
        const int numero = std::exchange(m_numero, -1);
        return numero < 0 || close(numero) == 0;
    }

  private:
    int m_numero;
};

// A folder that is one itself: a link to one does not open.
[[nodiscard]] Descripteur ouvreDossierReel(const std::string& dossier);
// All the bytes or false.
[[nodiscard]] bool ecritTout(int descripteur, std::string_view octets);
// Up to `taille` bytes, fewer only at the end of the file; -1 on error.
[[nodiscard]] ssize_t litBloc(int descripteur, char* tampon, std::size_t taille);

}  // namespace fichiers
