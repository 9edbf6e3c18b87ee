#include "acquire/AfficheDeFiche.h"

#include "acquire/AffichesImportees.h"
#include "platform/fichiers/Fichiers.h"

#include <cstdint>

namespace acquire {

// In the base a picture of the very limit goes without a word, as one that is entered by hand does.
AfficheDeFiche afficheDeFiche(const DossierFiches& dossier, const std::string& fiche, bool dansLaBase) {
    using enum edit::SortDeLAffiche;
    const std::optional<std::string> chemin = dossier.trouveAffiche(fiche);
    if (!chemin) return {Absente, {}, dossier.cheminAffiche(fiche)};
    const std::int64_t limite = limiteDesAffiches(dansLaBase);
    if (fichiers::longueur(*chemin) > limite)
        return {TropGrande, {}, *chemin + (dansLaBase ? " (trop grande pour la base) " : " (trop grande) ")};
    auto octets = fichiers::lit(*chemin, limite);
    if (!octets) return {Illisible, {}, *chemin + " (illisible) "};
    if (dansLaBase && static_cast<std::int64_t>(octets->size()) >= db::kTailleMaxAffiche) return {TropGrande};
    return {Prise, std::move(*octets)};
}

}  // namespace acquire
