#include "platform/fichiers/Descripteur.h"
#include "platform/fichiers/Remplacement.h"
#include "platform/fichiers/Restes.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <map>
#include <memory>
#include <set>

#include <stdio.h>
#include <stdlib.h>

namespace fichiers {

namespace {

constexpr mode_t kDroitsOrdinaires = 0666;  // before the user's umask
constexpr std::size_t kPeuDeFichiers = 16;

// The file that a link leads to, so that the link itself stays.
std::string ciblePhysique(const std::string& chemin) {
    const std::unique_ptr<char, decltype(&free)> reel(realpath(chemin.c_str(), nullptr), &free);
    return reel ? reel.get() : chemin;
}

// Where a folder cannot be synced, nothing more can be done.
void synchroniseDossier(const std::string& dossier) {
    const Descripteur ouvert(dossier.empty() ? "." : dossier, O_RDONLY | O_DIRECTORY);
    if (ouvert.estOuvert()) fsync(ouvert.numero());
}

bool synchroniseFichier(const std::string& chemin) {
    const Descripteur fichier(chemin, O_RDONLY);
    return fichier.estOuvert() && fsync(fichier.numero()) == 0;
}

// The file systems of files that all stand there, each of them taken to the disk whole.
bool synchroniseEnsemble(const std::vector<std::string>& chemins, const std::set<std::string>& dossiers) {
    std::map<dev_t, Descripteur> systemes;
    const auto releve = [&](const std::string& chemin) {
        const auto infos = infosDe(chemin);
        return infos && systemes.try_emplace(infos->st_dev, chemin, O_RDONLY).first->second.estOuvert();
    };
    if (!std::all_of(chemins.begin(), chemins.end(), releve)) return false;
    for (const std::string& dossier : dossiers)  // where a link stands for the file
        static_cast<void>(releve(dossier.empty() ? "." : dossier));
    return std::all_of(systemes.begin(), systemes.end(), [](const auto& systeme) {
        return !systeme.second.estOuvert() || syncfs(systeme.second.numero()) == 0;
    });
}

// Some file systems keep no rights, and refuse to change them.
bool ignoreLesDroits(int erreur) {
    return erreur == EPERM || erreur == ENOTSUP || erreur == ENOSYS;
}

// A new file beside `cible`, gone again unless it takes the target's place. A target that is no ordinary file, or that
// the user may not write, is refused.
class FichierNeuf {
  public:
    explicit FichierNeuf(const std::string& cible)
        : m_cible(ciblePhysique(cible)),
          m_chemin(dossierDe(m_cible) + nomProvisoire()),
          m_fichier(m_chemin, O_WRONLY | O_CREAT | O_EXCL, droitsDe(m_cible)) {
        if (!m_fichier.estOuvert()) return;
        marqueEnUsage(m_fichier.numero());
        const auto ancien = infosDe(m_cible);
        m_refuse = ancien && (!S_ISREG(ancien->st_mode) || access(m_cible.c_str(), W_OK) != 0 ||
                              (fchmod(m_fichier.numero(), ancien->st_mode & 07777) != 0 && !ignoreLesDroits(errno)));
    }
    FichierNeuf(const FichierNeuf&) = delete;
    FichierNeuf& operator=(const FichierNeuf&) = delete;
    ~FichierNeuf() {
        const GardeErreur garde;
        if (m_fichier.estOuvert() || m_aEffacer) unlink(m_chemin.c_str());
    }

    [[nodiscard]] bool estPret() const { return m_fichier.estOuvert() && !m_refuse; }
    [[nodiscard]] int numero() const { return m_fichier.numero(); }
    [[nodiscard]] bool synchronise() const { return fsync(m_fichier.numero()) == 0; }

    [[nodiscard]] bool prendLaPlace() {
        m_aEffacer = true;
        if (!m_fichier.ferme() || rename(m_chemin.c_str(), m_cible.c_str()) != 0) return false;
        m_aEffacer = false;
        return true;
    }
    void synchroniseDossier() const { fichiers::synchroniseDossier(dossierDe(m_cible)); }

  private:
    // Those of the target from the start: nobody reads meanwhile what the target would not show him.
    static mode_t droitsDe(const std::string& cible) {
        const auto ancien = infosDe(cible);
        return ancien ? ancien->st_mode & kDroitsOrdinaires : kDroitsOrdinaires;
    }

    std::string m_cible;
    std::string m_chemin;
    Descripteur m_fichier;
    bool m_refuse = false;
    bool m_aEffacer = false;
};

bool verse(int source, int cible, const std::function<bool(std::int64_t)>& avance) {
    std::array<char, 1 << 16> tampon;
    for (std::int64_t verses = 0;;) {
        const ssize_t lus = litBloc(source, tampon.data(), tampon.size());
        if (lus <= 0) return lus == 0;
        if (!ecritTout(cible, {tampon.data(), static_cast<std::size_t>(lus)})) return false;
        verses += lus;
        if (avance && !avance(verses)) return false;
    }
}

bool memeFichier(const std::string& a, const std::string& b) {
    const auto infosA = infosDe(a), infosB = infosDe(b);
    return infosA && infosB && identiteDe(*infosA) == identiteDe(*infosB);
}

// A name that stands for a file which has another one too.
void retireLien(int dossier, const std::string& nom) {
    struct stat infos {};
    if (fstatat(dossier, nom.c_str(), &infos, AT_SYMLINK_NOFOLLOW) != 0) return;
    if (S_ISLNK(infos.st_mode) || (S_ISREG(infos.st_mode) && infos.st_nlink > 1)) unlinkat(dossier, nom.c_str(), 0);
}

}  // namespace

bool ecritTout(int descripteur, std::string_view octets) {
    while (!octets.empty()) {
        const ssize_t pris = write(descripteur, octets.data(), octets.size());
        if (pris >= 0)
            octets.remove_prefix(static_cast<std::size_t>(pris));
        else if (errno != EINTR)
            return false;
    }
    return true;
}

std::string raisonDeLEchec() {
    switch (errno) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return "Disque plein";
        case EROFS:
            return "Disque en lecture seule";
        case EACCES:
        case EPERM:
            return "Accès refusé";
        default:
            return "Disque plein/Lecture seule ?";
    }
}

bool ecrit(const std::string& chemin, std::string_view octets) {
    const std::size_t debut = chemin.rfind('/') + 1;  // 0 without a folder
    const Descripteur dossier = ouvreDossierReel(chemin.substr(0, debut));
    const std::string nom = chemin.substr(debut);
    if (!dossier.estOuvert()) return false;
    retireLien(dossier.numero(), nom);
    Descripteur fichier(dossier.numero(), nom, O_WRONLY | O_CREAT | O_NOFOLLOW, kDroitsOrdinaires);
    const auto infos = fichier.infos();
    if (!infos) return false;
    // A new file is not cut: some file systems take a cut one to the disk as soon as it is closed, and its deletion,
    // which every change of poster begins with, would wait for that.
    if (infos->st_size != 0 && ftruncate(fichier.numero(), 0) != 0) return false;
    return ecritTout(fichier.numero(), octets) && fichier.ferme();
}

bool remplace(const std::string& chemin, std::string_view octets) {
    FichierNeuf neuf(chemin);
    if (!neuf.estPret() || !ecritTout(neuf.numero(), octets) || !neuf.synchronise() || !neuf.prendLaPlace())
        return false;
    neuf.synchroniseDossier();
    return true;
}

struct Remplacement::Fichier {
    static constexpr std::size_t kTampon = 1 << 18;

    explicit Fichier(const std::string& chemin) : neuf(chemin) { note(neuf.estPret()); }
    bool note(bool reussi) {
        if (!reussi && raison.empty()) raison = raisonDeLEchec();
        return raison.empty();
    }
    bool vide() {
        const bool reussi = note(ecritTout(neuf.numero(), tampon));
        tampon.clear();
        return reussi;
    }

    FichierNeuf neuf;
    std::string tampon, raison;
};

Remplacement::Remplacement(const std::string& chemin) : m_fichier(std::make_unique<Fichier>(chemin)) {}
Remplacement::~Remplacement() = default;

const std::string& Remplacement::raison() const {
    return m_fichier->raison;
}

bool Remplacement::ecrit(std::string_view octets) {
    Fichier& f = *m_fichier;
    if (!f.raison.empty()) return false;
    f.tampon += octets;
    return f.tampon.size() < Fichier::kTampon || f.vide();
}

bool Remplacement::termine() {
    Fichier& f = *m_fichier;
    if (!f.raison.empty() || !f.vide() || !f.note(f.neuf.synchronise()) || !f.note(f.neuf.prendLaPlace())) return false;
    f.neuf.synchroniseDossier();
    return true;
}

Creation cree(const std::string& chemin, std::string_view octets) {
    Descripteur fichier(chemin, O_WRONLY | O_CREAT | O_EXCL, kDroitsOrdinaires);
    if (!fichier.estOuvert()) return errno == EEXIST ? Creation::ExisteDeja : Creation::Echouee;
    if (ecritTout(fichier.numero(), octets) && fichier.ferme()) return Creation::Faite;
    const GardeErreur garde;
    unlink(chemin.c_str());
    return Creation::Echouee;
}

// Waited for one by one, many files would have the disk empty its cache as many times.
bool synchronise(const std::vector<std::string>& chemins) {
    std::set<std::string> dossiers;
    for (const std::string& chemin : chemins)
        dossiers.insert(dossierDe(chemin));
    if (chemins.size() > kPeuDeFichiers) return synchroniseEnsemble(chemins, dossiers);
    const bool tous = std::all_of(chemins.begin(), chemins.end(), synchroniseFichier);
    for (const std::string& dossier : dossiers)
        synchroniseDossier(dossier);
    return tous;
}

bool renomme(const std::string& de, const std::string& vers) {
    const std::string cible = ciblePhysique(vers);
    if (rename(de.c_str(), cible.c_str()) != 0) return false;
    synchroniseDossier(dossierDe(cible));
    return true;
}

bool copie(const std::string& de, const std::string& vers, const std::function<bool(std::int64_t)>& avance) {
    const auto source = trouve(de);
    if (!source) return false;
    const Descripteur lue(*source, O_RDONLY);
    if (!lue.infos()) return false;
    if (memeFichier(*source, vers)) return true;
    FichierNeuf neuf(vers);
    return neuf.estPret() && verse(lue.numero(), neuf.numero(), avance) && neuf.prendLaPlace();
}

}  // namespace fichiers
