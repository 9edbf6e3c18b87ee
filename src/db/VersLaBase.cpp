#include "db/Affiches.h"
#include "db/SensConversion.h"
#include "platform/fichiers/Fichiers.h"

namespace db {

namespace {

constexpr std::string_view kFichier = "JPG";

}  // namespace

VersLaBase::VersLaBase(dao::Database& base, std::string dossier) : m_dossier(std::move(dossier)) {
    releveUsages(base);
}

std::string VersLaBase::enonce() const {
    return "SELECT * FROM films WHERE Affiche LIKE 'JPG*'";
}

void VersLaBase::releveUsages(dao::Database& base) {
    dao::Recordset films = base.OpenRecordset(enonce());
    for (; !films.Eof(); films.MoveNext()) {
        const std::string fichier = chemin(films.texte("Affiche"));
        const auto identite = fichier.empty() ? std::nullopt : fichiers::identite(fichier);
        if (!identite) continue;
        Usage& usage = m_usages[*identite];
        ++usage.films;
        usage.chemins.insert(fichier);
    }
}

// The poster's file, empty when there is none.
std::string VersLaBase::chemin(const std::string& affiche) const {
    if (!affiche.starts_with(kFichier)) return {};
    const auto trouve = fichiers::trouve(m_dossier + affiche.substr(kFichier.size()));
    return trouve && fichiers::existe(*trouve) ? *trouve : std::string();
}

RapportConversion VersLaBase::convertit(dao::Recordset& films) {
    const std::string fichier = chemin(films.texte("Affiche"));
    if (fichier.empty()) return {};
    if (fichiers::longueur(fichier) >= kTailleMaxAffiche) return {.exclus = 1};
    const auto identite = fichiers::identite(fichier);
    const auto octets = fichiers::lit(fichier, kTailleMaxAffiche - 1);
    if (!octets || !identite) return {.illisibles = 1};
    films.Edit();
    films.assigne("Affiche", valeurAfficheDansLaBase(*octets));
    films.Update();
    m_inclus.push_back(*identite);
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
