#include "db/NomsSauvegardes.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace db {

namespace {

constexpr std::string_view kFin = ".mdb";
constexpr std::size_t kNomMax = 255;  // bytes; what file systems take
constexpr std::size_t kReserve = 80;  // for all that follows the base's own name

struct Mots {
    Avant avant;
    std::string_view fichier;  // in the name of a file, in plain letters
    std::string_view libelle;
};

constexpr std::array<Mots, 12> kMots = {{
    {Avant::ImportFiches, "import de fiches", "import de fiches"},
    {Avant::ImportAncienne, "import d'une autre version", "import d'une version précédente"},
    {Avant::ImportCollection, "import d'une collection", "import d'une autre collection"},
    {Avant::AffichesEnBase, "affiches dans la base", "conversion des affiches vers la base"},
    {Avant::AffichesEnFichiers, "affiches en fichiers", "conversion des affiches vers un dossier"},
    {Avant::Compactage, "compactage", "compactage"},
    {Avant::Possessions, "suppression des titres personnels", "suppression des titres personnels"},
    {Avant::Renommage, "renommage", "renommage d'un groupe"},
    {Avant::Titres, "correction des titres", "correction des titres"},
    {Avant::Suppression, "suppression de films", "suppression de plusieurs films"},
    {Avant::Complement, "complement de fiches", "complément de films"},
    {Avant::Retour, "retour en arriere", "retour à une sauvegarde"},
}};

const Mots& mots(Avant avant) {
    for (const Mots& ligne : kMots)
        if (ligne.avant == avant) return ligne;
    return kMots.front();
}

// FNV-1a: two long names that begin alike stay two.
std::string empreinte(std::string_view texte) {
    std::uint32_t somme = 2166136261U;
    for (const char c : texte)
        somme = (somme ^ static_cast<unsigned char>(c)) * 16777619U;
    std::array<char, 10> hexa{};
    std::snprintf(hexa.data(), hexa.size(), "~%08x", static_cast<unsigned>(somme));
    return hexa.data();
}

// A name without its ending, and short enough to be completed.
std::string radical(const std::string& base) {
    std::string nom =
        base.size() > kFin.size() && base.ends_with(kFin) ? base.substr(0, base.size() - kFin.size()) : base;
    if (nom.size() <= kNomMax - kReserve) return nom;
    std::size_t fin = kNomMax - kReserve - 10;
    while (fin > 0 && (static_cast<unsigned char>(nom[fin]) & 0xC0) == 0x80)
        --fin;  // no half character
    return nom.substr(0, fin) + empreinte(base);
}

std::string assemble(const std::string& base, long numero, const struct tm& jour, Avant avant) {
    std::array<char, 80> milieu{};
    std::snprintf(milieu.data(), milieu.size(), " (%ld) %04d-%02d-%02d %02dh%02dm%02d avant ", numero,
                  jour.tm_year + 1900, jour.tm_mon + 1, jour.tm_mday, jour.tm_hour, jour.tm_min, jour.tm_sec);
    return radical(base) + milieu.data() + std::string(mots(avant).fichier) + std::string(kFin);
}

std::optional<Avant> commande(std::string_view fichier) {
    for (const Mots& ligne : kMots)
        if (ligne.fichier == fichier) return ligne.avant;
    return std::nullopt;
}

}  // namespace

std::string nomDeSauvegarde(const std::string& base, const NomSauvegarde& nom) {
    struct tm jour {};
    localtime_r(&nom.instant, &jour);
    return assemble(base, nom.numero, jour, nom.avant);
}

std::optional<NomSauvegarde> litNomDeSauvegarde(const std::string& base, const std::string& fichier) {
    const std::string debut = radical(base) + " (";
    if (!fichier.starts_with(debut) || !fichier.ends_with(kFin)) return std::nullopt;
    const std::string reste = fichier.substr(debut.size(), fichier.size() - debut.size() - kFin.size());
    NomSauvegarde nom;
    struct tm jour {};
    int lus = 0;
    const int champs = std::sscanf(reste.c_str(), "%9ld) %4d-%2d-%2d %2dh%2dm%2d avant %n", &nom.numero, &jour.tm_year,
                                   &jour.tm_mon, &jour.tm_mday, &jour.tm_hour, &jour.tm_min, &jour.tm_sec, &lus);
    if (champs != 7 || lus == 0) return std::nullopt;
    const auto avant = commande(std::string_view(reste).substr(static_cast<std::size_t>(lus)));
    jour.tm_year -= 1900;
    --jour.tm_mon;
    jour.tm_isdst = -1;
    // The very name that it would be given, so that nothing else is ever taken for a copy.
    if (!avant || assemble(base, nom.numero, jour, *avant) != fichier) return std::nullopt;
    nom.avant = *avant;
    nom.instant = std::mktime(&jour);
    return nom;
}

std::string libelle(Avant avant) {
    return std::string(mots(avant).libelle);
}

}  // namespace db
