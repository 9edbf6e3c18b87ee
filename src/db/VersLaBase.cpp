#include "db/Affiches.h"
#include "db/SensConversion.h"
#include "platform/fichiers/Fichiers.h"

namespace db {

namespace {

constexpr std::string_view kFichier = "JPG";

// A file that went meanwhile is passed over as those that were not there.
RapportConversion echecDeLecture(const std::string& chemin) {
    if (fichiers::longueur(chemin) >= kTailleMaxAffiche) return {.exclus = 1};
    return fichiers::existe(chemin) ? RapportConversion{.illisibles = 1} : RapportConversion{};
}

}  // namespace

VersLaBase::VersLaBase(dao::Database& base, std::string dossier) : m_dossier(std::move(dossier)) {
    releveUsages(base);
}

std::string VersLaBase::enonce() const {
    return "SELECT * FROM films WHERE Affiche LIKE 'JPG*'";
}

// The transaction changes nothing: the base is locked once, not for each film.
void VersLaBase::releveUsages(dao::Database& base) {
    const dao::Transaction lecture(base);
    dao::Recordset films = base.OpenRecordset(enonce());
    for (; !films.Eof(); films.MoveNext())
        releve(films.texte("Affiche"));
}

void VersLaBase::releve(const std::string& affiche) {
    auto connu = m_fichiers.find(affiche);
    if (connu == m_fichiers.end()) {
        const auto fichier = cherche(affiche);
        if (!fichier) return;
        connu = m_fichiers.emplace(affiche, *fichier).first;
    }
    Usage& usage = m_usages[connu->second.identite];
    ++usage.films;
    usage.chemins.insert(connu->second.chemin);
}

// The poster's file, if it stands there.
std::optional<VersLaBase::Fichier> VersLaBase::cherche(const std::string& affiche) const {
    if (!affiche.starts_with(kFichier) || affiche.size() == kFichier.size()) return std::nullopt;
    const auto trouve = fichiers::trouve(m_dossier + affiche.substr(kFichier.size()));
    if (!trouve || fichiers::dossierExiste(*trouve)) return std::nullopt;
    const auto identite = fichiers::identite(*trouve);
    return identite ? std::optional(Fichier{*trouve, *identite}) : std::nullopt;
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
