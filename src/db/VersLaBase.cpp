#include "db/AfficheVoisine.h"
#include "db/Affiches.h"
#include "db/SensConversion.h"
#include "platform/fichiers/Fichiers.h"

namespace db {

namespace {

constexpr std::string_view kFichier = "JPG";
const std::string kBase = "STO";

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

// The transaction changes nothing: the base is locked once, not for each film.
void VersLaBase::releveUsages() {
    const dao::Transaction lecture(m_base);
    dao::Recordset films = m_base.OpenRecordset(enonce());
    for (; !films.Eof(); films.MoveNext())
        releve(films.texte("Affiche"));
}

void VersLaBase::releve(const std::string& affiche) {
    auto connu = m_fichiers.find(affiche);
    if (connu == m_fichiers.end()) {
        const auto fichier = cherche(affiche);
        if (!fichier) return releveVoisine(affiche);
        connu = m_fichiers.emplace(affiche, *fichier).first;
    }
    Usage& usage = m_usages[connu->second.identite];
    ++usage.films;
    usage.chemins.insert(connu->second.chemin);
}

// A file that came with the base is taken in, and stays.
void VersLaBase::releveVoisine(const std::string& affiche) {
    if (!affiche.starts_with(kFichier)) return;
    const auto chemin = afficheVoisine(m_base.nom(), affiche.substr(kFichier.size()));
    const auto place = chemin ? fichiers::situe(*chemin) : std::nullopt;
    if (place) m_fichiers.emplace(affiche, *place);
}

// The poster's file, if it stands there.
std::optional<fichiers::Place> VersLaBase::cherche(const std::string& affiche) const {
    if (!affiche.starts_with(kFichier) || affiche.size() == kFichier.size()) return std::nullopt;
    return fichiers::situe(m_dossier + affiche.substr(kFichier.size()));
}

bool VersLaBase::estNomme(const std::string& nom) const {
    if (m_fichiers.contains(std::string(kFichier) + nom)) return true;
    const auto place = fichiers::situe(m_dossier + nom);  // under a name in other letters, or by a link
    return place && m_usages.contains(place->identite);
}

// What the films do not name, and is in the base.
void VersLaBase::reprend() {
    std::set<std::string> restes;
    for (std::string& nom : fichiers::listeFichiers(m_dossier))
        if (!estNomme(nom)) restes.insert(std::move(nom));
    if (restes.empty()) return;
    const dao::Transaction lecture(m_base);
    dao::Recordset films = m_base.OpenRecordset("SELECT * FROM films WHERE Affiche LIKE 'STO*'");
    for (; !films.Eof() && !restes.empty(); films.MoveNext()) {
        const std::string titre = films.texte("Titre"), realisateur = films.texte("Realisateur");
        for (const std::string& nom : {nomFichierAffiche(titre, realisateur), nomFichierAffiche(realisateur, titre)})
            if (restes.contains(nom) && films.texte("Affiche") == kBase + fichiers::lit(m_dossier + nom).value_or(""))
                fichiers::supprime(m_dossier + nom), restes.erase(nom);
    }
}

RapportConversion VersLaBase::convertit(dao::Recordset& films) {
    const auto fichier = m_fichiers.find(films.texte("Affiche"));
    if (fichier == m_fichiers.end()) return {};
    const auto& [chemin, identite] = fichier->second;
    const auto octets = fichiers::lit(chemin, kTailleMaxAffiche - 1);
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
