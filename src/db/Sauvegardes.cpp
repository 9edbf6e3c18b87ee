#include "db/Sauvegardes.h"

#include "db/CopieVisible.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Restes.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace db {

namespace {

namespace fs = std::filesystem;

constexpr const char* kDossier = "Sauvegardes/";
constexpr std::int64_t kMarge = 16 << 20;  // bytes that a copy leaves free, besides the room of another base
constexpr std::int64_t kMo = 1'000'000;

struct Impossible {
    std::string raison;
};

std::string enMo(std::int64_t octets) {
    return std::to_string((octets + kMo - 1) / kMo) + " Mo";
}

// Where a link, or a file, bears the folder's name, the user meant something by it.
void assureLeDossier(const std::string& dossier) {
    std::error_code erreur;
    const fs::path nom(dossier.substr(0, dossier.size() - 1));
    const auto type = fs::symlink_status(nom, erreur).type();
    const std::string cite = util::entreChevrons(nom.string());
    if (type == fs::file_type::symlink) throw Impossible{cite + " est un lien"};
    if (type != fs::file_type::not_found && type != fs::file_type::directory)
        throw Impossible{cite + " n'est pas un dossier"};
    if (type == fs::file_type::not_found && !fichiers::assureDossierPrive(dossier))
        throw Impossible{"le dossier " + cite + " n'a pas pu être créé (" + fichiers::raisonDeLEchec() + ")"};
    if (!fichiers::dossierModifiable(dossier))
        throw Impossible{"le dossier " + cite + " n'est pas accessible en écriture"};
}

// The command itself may need as much again, for its journal or for a copy of its own.
void exigeLaPlace(const std::string& dossier, std::int64_t octets) {
    std::error_code erreur;
    const fs::space_info place = fs::space(dossier, erreur);
    const std::int64_t requis = 2 * octets + kMarge;
    if (!erreur && place.available < static_cast<std::uintmax_t>(requis))
        throw Impossible{"il faut " + enMo(requis) + " libres sur le disque, et il n'y en a que " +
                         enMo(static_cast<std::int64_t>(place.available))};
}

// The free name that the next number gives; a name that something bears, were it a broken link, is not free.
NomSauvegarde nomLibre(const std::string& dossier, const std::string& base, NomSauvegarde nom) {
    std::error_code ignoree;
    while (fs::exists(fs::symlink_status(dossier + nomDeSauvegarde(base, nom), ignoree)))
        ++nom.numero;
    return nom;
}

bool estDeCetteHeure(const Sauvegarde& derniere, std::time_t maintenant, const ReglesDesSauvegardes& regles) {
    return derniere.nom.instant <= maintenant && maintenant - derniere.nom.instant < regles.intervalle;
}

void effaceLesAnciennes(const std::string& base, const ReglesDesSauvegardes& regles, const std::string& aGarder) {
    const std::vector<Sauvegarde> toutes = sauvegardesDe(base);
    for (std::size_t i = regles.gardees; i < toutes.size(); ++i)
        if (toutes[i].chemin != aGarder) fichiers::supprime(toutes[i].chemin);
}

IssueSauvegarde prends(const Contexte& c, Avant avant, const ReglesDesSauvegardes& regles, const std::string& aGarder) {
    if (c.base.base.emplacement() != dao::Emplacement::EnPlace) throw Impossible{"son fichier n'est plus à sa place"};
    const std::string base = fichierAJour(c);
    const std::string dossier = dossierDesSauvegardes(base);
    const std::int64_t octets = std::max<std::int64_t>(0, fichiers::longueur(base));
    const std::time_t maintenant = c.horloge.maintenant();
    const std::vector<Sauvegarde> toutes = sauvegardesDe(base);
    if (octets >= regles.grosseBase && !toutes.empty() && estDeCetteHeure(toutes.front(), maintenant, regles))
        return IssueSauvegarde::Superflue;
    assureLeDossier(dossier);
    fichiers::supprimeRestes(dossier);  // of killed runs
    exigeLaPlace(dossier, octets);
    const std::string nomDeLaBase = fichiers::nomDeFichier(base);
    const long numero = toutes.empty() ? 1 : toutes.front().nom.numero + 1;
    const std::string travail = dossier + fichiers::nomProvisoire();
    CopieVisible copie(c, "Sauvegarde de la base…");
    if (copie.copie(base, travail) == dao::DBEngine::IssueDeCopie::Arretee) return IssueSauvegarde::Arretee;
    const NomSauvegarde nom = nomLibre(dossier, nomDeLaBase, {numero, maintenant, avant});
    if (!fichiers::renomme(travail, dossier + nomDeSauvegarde(nomDeLaBase, nom))) {
        fichiers::supprime(travail);
        throw Impossible{"la copie n'a pas pu recevoir son nom"};
    }
    effaceLesAnciennes(base, regles, aGarder);
    return IssueSauvegarde::Faite;
}

}  // namespace

std::optional<dao::DBEngine::Contenu> Sauvegarde::contenu() const {
    try {
        return dao::DBEngine::contenuDe(chemin);
    } catch (const dao::ErreurDao&) {
        return std::nullopt;
    }
}

std::string fichierDeLaBase(const std::string& base) {
    std::error_code erreur;
    const fs::path reel = fs::canonical(fichiers::trouve(base).value_or(base), erreur);
    return erreur ? base : reel.string();
}

std::string dossierDesSauvegardes(const std::string& base) {
    return fichiers::dossierDe(fichierDeLaBase(base)) + kDossier;
}

std::vector<Sauvegarde> sauvegardesDe(const std::string& base) {
    const std::string reelle = fichierDeLaBase(base), dossier = dossierDesSauvegardes(base);
    std::error_code erreur;
    std::vector<Sauvegarde> toutes;
    if (!fs::is_directory(fs::symlink_status(dossier.substr(0, dossier.size() - 1), erreur))) return toutes;
    for (const std::string& fichier : fichiers::listeFichiers(dossier)) {
        const auto nom = litNomDeSauvegarde(fichiers::nomDeFichier(reelle), fichier);
        const std::string chemin = dossier + fichier;
        if (nom && fs::is_regular_file(fs::symlink_status(chemin, erreur)))
            toutes.push_back({chemin, reelle, *nom, fichiers::longueur(chemin)});
    }
    std::ranges::sort(toutes, std::ranges::greater{}, [](const Sauvegarde& s) { return s.nom.numero; });
    return toutes;
}

std::optional<Sauvegarde> derniereSauvegarde(const std::string& base) {
    const std::vector<Sauvegarde> toutes = sauvegardesDe(base);
    const auto lisible = std::ranges::find_if(toutes, [](const Sauvegarde& s) { return s.contenu().has_value(); });
    return lisible == toutes.end() ? std::nullopt : std::optional(*lisible);
}

ResultatSauvegarde sauvegarde(const Contexte& c, Avant avant, const ReglesDesSauvegardes& regles,
                              const std::string& aGarder) {
    try {
        return {prends(c, avant, regles, aGarder)};
    } catch (const Impossible& echec) {
        return {IssueSauvegarde::Impossible, echec.raison};
    } catch (const dao::ErreurDao& erreur) {
        return {IssueSauvegarde::Impossible, erreur.description};
    }
}

std::string fichierAJour(const Contexte& c) {
    (void)c.base.base.OpenRecordset("Films");
    return fichierDeLaBase(c.base.base.nom());
}

bool sauvegardeAvant(const Contexte& c, Avant avant, std::int64_t octets) {
    const ResultatSauvegarde resultat = sauvegarde(c, avant);
    if (resultat.issue == IssueSauvegarde::Impossible)
        c.avis.remarque("La base n'a pas été sauvegardée avant cette commande : " + resultat.raison + ".");
    if (resultat.issue == IssueSauvegarde::Arretee)
        c.avis.montre("La sauvegarde de la base a été arrêtée : la commande n'a rien fait.");
    if (resultat.issue == IssueSauvegarde::Arretee) return false;
    if (const std::string raison = c.annulations.renonceSiTropGrande(octets); !raison.empty())
        c.avis.remarque(
            "Ctrl+Z n'annulera ni cette commande ni les précédentes (" + raison + ")" +
            (resultat.issue == IssueSauvegarde::Impossible ? "." : " : voir Configuration, « Sauvegardes… »."));
    return true;
}

std::string dateDe(const Sauvegarde& sauvegarde) {
    struct tm jour {};
    std::array<char, 16> heure{};
    if (localtime_r(&sauvegarde.nom.instant, &jour)) std::strftime(heure.data(), heure.size(), "%H:%M", &jour);
    return systeme::dateCourte(sauvegarde.nom.instant) + " à " + heure.data();
}

}  // namespace db
