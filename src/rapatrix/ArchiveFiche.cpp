#include "rapatrix/ArchiveFiche.h"

#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#include <archive.h>
#include <archive_entry.h>

namespace rapatrix {

namespace {

constexpr std::size_t kLongueurMaxNom = 120;  // bytes; with " (2)" and an extension it still fits everywhere
constexpr int kEntreesMax = 200;
constexpr int kHomonymesMax = 1000;

using Lecture = std::unique_ptr<archive, decltype(&archive_read_free)>;

// The last part of a name from an archive, as one visible name.
std::string nomSur(archive_entry* entree) {
    const char* utf8 = archive_entry_pathname_utf8(entree);
    const char* brut = utf8 ? utf8 : archive_entry_pathname(entree);
    std::string nom = util::decodeTexteExterne(brut ? brut : "");
    nom.erase(0, nom.find_last_of("/\\") + 1);
    nom = util::nettoieNomFichier(nom);
    std::erase_if(nom, [](unsigned char c) { return c < 0x20 || c == 0x7F; });
    return nom;
}

// Without leading dots or blanks at its ends, at a length that fits; "Fiche" when nothing is left.
std::string racineSure(std::string nom) {
    nom.erase(0, std::min(nom.find_first_not_of(". "), nom.size()));
    while (!nom.empty() && (nom.size() > kLongueurMaxNom || nom.ends_with(' ') || nom.ends_with('.')))
        nom = util::coupe(nom, util::longueur(nom) - 1);
    return nom.empty() ? "Fiche" : nom;
}

// The whole content of the entry; nothing when it is longer than that, or broken.
std::optional<std::string> contenu(archive* lecture, std::size_t limite) {
    std::string octets;
    std::string tampon(64 << 10, '\0');
    while (true) {
        const la_ssize_t lus = archive_read_data(lecture, tampon.data(), tampon.size());
        if (lus == 0) return octets;
        if (lus < 0 || octets.size() + static_cast<std::size_t>(lus) > limite) return std::nullopt;
        octets.append(tampon, 0, static_cast<std::size_t>(lus));
    }
}

struct Contenu {
    std::map<std::string, FicheRecue> parRacine;  // by the name in lower case
    std::size_t taille = 0;
    std::size_t fiches = 0, affiches = 0;
};

// False ends the reading: the entry breaks a bound.
bool prends(archive* lecture, archive_entry* entree, Contenu& contenuLu) {
    const std::string nom = nomSur(entree);
    const std::string extension = util::minuscules(fichiers::extension(nom));
    const bool fiche = extension == "film";
    if ((!fiche && extension != "jpg") || archive_entry_filetype(entree) != AE_IFREG) return true;
    auto octets = contenu(lecture, fiche ? kTailleMaxFiche : kTailleMaxAffiche);
    if (!octets || (contenuLu.taille += octets->size()) > kTailleMaxArchive) return false;
    const std::string racine = racineSure(fichiers::sansExtension(nom));
    FicheRecue& recue = contenuLu.parRacine[util::minuscules(racine)];
    std::string& place = fiche ? recue.fiche : recue.affiche;
    if (!place.empty() || octets->empty()) return true;
    if (fiche || recue.nom.empty()) recue.nom = racine;
    place = std::move(*octets);
    ++(fiche ? contenuLu.fiches : contenuLu.affiches);
    return true;
}

std::vector<FicheRecue> assemble(Contenu& contenuLu) {
    std::string affiche;
    std::vector<FicheRecue> fiches;
    for (auto& [racine, recue] : contenuLu.parRacine) {
        if (contenuLu.fiches == 1 && contenuLu.affiches == 1 && !recue.affiche.empty()) affiche = recue.affiche;
        if (!recue.fiche.empty()) fiches.push_back(std::move(recue));
    }
    if (!affiche.empty()) fiches.front().affiche = std::move(affiche);
    return fiches;
}

std::string nomLibre(const std::string& dossier, const std::string& nom) {
    const auto pris = [&](const std::string& essai) {
        return fichiers::existe(dossier + essai + ".film") || fichiers::existe(dossier + essai + ".jpg");
    };
    std::string essai = nom;
    for (int i = 2; pris(essai) && i <= kHomonymesMax; ++i)
        essai = nom + " (" + std::to_string(i) + ")";
    return essai;
}

bool deposeUne(const FicheRecue& recue, const std::string& dossier) {
    const std::string chemin = dossier + nomLibre(dossier, recue.nom);
    const bool affiche = recue.affiche.empty() || fichiers::remplace(chemin + ".jpg", recue.affiche);
    if (affiche && fichiers::remplace(chemin + ".film", recue.fiche)) return true;
    if (affiche && !recue.affiche.empty()) fichiers::supprime(chemin + ".jpg");
    return false;
}

}  // namespace

std::optional<std::vector<FicheRecue>> ouvreArchive(std::string_view octets) {
    const Lecture lecture(archive_read_new(), &archive_read_free);
    archive_read_support_format_zip(lecture.get());
    if (octets.size() > kTailleMaxArchive ||
        archive_read_open_memory(lecture.get(), octets.data(), octets.size()) != ARCHIVE_OK)
        return std::nullopt;
    Contenu contenuLu;
    archive_entry* entree = nullptr;
    int reste = kEntreesMax;
    int etat = archive_read_next_header(lecture.get(), &entree);
    for (; etat == ARCHIVE_OK || etat == ARCHIVE_WARN; etat = archive_read_next_header(lecture.get(), &entree))
        if (--reste < 0 || !prends(lecture.get(), entree, contenuLu)) return std::nullopt;
    if (etat != ARCHIVE_EOF || contenuLu.fiches == 0) return std::nullopt;
    return assemble(contenuLu);
}

std::size_t depose(const std::vector<FicheRecue>& fiches, const std::string& dossier) {
    const std::string lieu = util::avecSeparateur(dossier);
    return static_cast<std::size_t>(
        std::count_if(fiches.begin(), fiches.end(), [&](const FicheRecue& recue) { return deposeUne(recue, lieu); }));
}

}  // namespace rapatrix
