#include "db/Affiches.h"
#include "db/SensConversion.h"
#include "platform/fichiers/Fichiers.h"

namespace db {

namespace {

// The file's name in a value that names one.
std::string nomDans(std::string_view affiche) {
    return affiche.starts_with(kDansUnFichier) ? nomDansLeDossier(affiche) : std::string();
}

// A file that went meanwhile is passed over as those that were not there.
RapportConversion echecDeLecture(const std::string& chemin) {
    if (fichiers::longueur(chemin) >= kTailleMaxAffiche) return {.exclus = 1};
    return fichiers::existe(chemin) ? RapportConversion{.illisibles = 1} : RapportConversion{};
}

}  // namespace

VersLaBase::VersLaBase(dao::Database& base, std::string dossier) : m_base(base), m_dossier(std::move(dossier)) {
    releveUsages();
}

std::string VersLaBase::enonce() const {
    return "SELECT * FROM films WHERE Affiche LIKE 'JPG*'";
}

long VersLaBase::aConvertir(const dao::Recordset&) const {
    return m_aConvertir;
}

// The transaction changes nothing: the base is locked once, not for each film.
void VersLaBase::releveUsages() {
    const dao::Transaction lecture(m_base);
    dao::Recordset films = m_base.OpenRecordset(enonce());
    for (; !films.Eof(); films.MoveNext())
        releve(nomDans(films.texte("Affiche")));
}

void VersLaBase::releve(const std::string& nom) {
    auto connu = m_fichiers.find(nom);
    if (connu == m_fichiers.end()) {
        const auto fichier = cherche(nom);
        if (!fichier) return;
        connu = m_fichiers.emplace(nom, *fichier).first;
    }
    ++m_aConvertir;
    const auto& [place, reste] = connu->second;
    if (reste) return;
    Usage& usage = m_usages[place.identite];
    ++usage.films;
    usage.chemins.insert(place.chemin);
}

// In the images folder, else where it came with the base.
std::optional<VersLaBase::Source> VersLaBase::cherche(const std::string& nom) const {
    if (const auto place = fichiers::situeDans(m_dossier, nom)) return Source{*place, false};
    const auto voisine = afficheVoisine(m_base.nom(), std::string(kDansUnFichier) + nom);
    return voisine ? std::optional(Source{*voisine, true}) : std::nullopt;
}

bool VersLaBase::estNomme(const std::string& nom) const {
    if (m_fichiers.contains(nom)) return true;
    const auto place = fichiers::situeDans(m_dossier, nom);  // under a name in other letters, or by a second name
    return !place || m_usages.contains(place->identite);
}

// What the films do not name, and is in the base.
void VersLaBase::reprend() {
    std::map<std::string, std::vector<std::string>> restes;  // by their names without a number
    for (std::string& nom : fichiers::listeFichiers(m_dossier)) {
        if (estNomme(nom)) continue;
        restes[nom].push_back(nom);
        if (std::string nu = sansNumero(nom); nu != nom) restes[nu].push_back(std::move(nom));
    }
    if (restes.empty()) return;
    const dao::Transaction lecture(m_base);
    dao::Recordset films = m_base.OpenRecordset("SELECT * FROM films WHERE Affiche LIKE 'STO*'");
    for (; !films.Eof() && !restes.empty(); films.MoveNext()) {
        const std::string titre = films.texte("Titre"), realisateur = films.texte("Realisateur");
        for (const std::string& nom : {nomFichierAffiche(titre, realisateur), nomFichierAffiche(realisateur, titre)})
            if (const auto siens = restes.find(nom); siens != restes.end()) supprimeSiStocke(films, siens->second);
    }
}

// Those of the files that are the current film's poster.
void VersLaBase::supprimeSiStocke(const dao::Recordset& films, std::vector<std::string>& noms) const {
    const std::string affiche = films.texte("Affiche");
    std::erase_if(noms, [&](const std::string& nom) {
        const auto octets = fichiers::litSansLien(m_dossier + nom, static_cast<std::int64_t>(affiche.size()));
        return octets && std::string_view(affiche).substr(kTaillePrefixe) == *octets &&
               fichiers::supprime(m_dossier + nom);
    });
}

RapportConversion VersLaBase::convertit(dao::Recordset& films) {
    const auto fichier = m_fichiers.find(nomDans(films.texte("Affiche")));
    if (fichier == m_fichiers.end()) return {};
    const auto& [chemin, identite] = fichier->second.place;
    const auto octets = fichiers::litSansLien(chemin, kTailleMaxAffiche - 1);
    if (!octets) return echecDeLecture(chemin);
    films.Edit();
    films.assigne("Affiche", valeurAfficheDansLaBase(*octets));
    films.Update();
    m_inclus.push_back(identite);
    return {.inclus = 1};
}

void VersLaBase::apresValidation() {
    for (const Identite& identite : std::exchange(m_inclus, {})) {
        const auto usage = m_usages.find(identite);
        if (usage == m_usages.end() || --usage->second.films > 0) continue;
        for (const std::string& fichier : usage->second.chemins)
            fichiers::supprime(fichier);
        m_usages.erase(usage);
    }
}

}  // namespace db
