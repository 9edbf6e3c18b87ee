#include "acquire/Passage.h"

#include "db/Requete.h"
#include "platform/dao/ErreurDao.h"
#include "platform/dialogues/Dialogues.h"

namespace acquire {

namespace {

void essaie(const std::function<void()>& garde) {
    try {
        garde();
    } catch (const db::EchecConversion&) {
    } catch (const dao::ErreurDao&) {
    }
}

}  // namespace

std::optional<EchecDePassage> conduitPassage(LotImport& lot, AffichesImportees& affiches,
                                             const std::function<void()>& parcourt,
                                             const std::function<void()>& garde) {
    std::optional<EchecDePassage> echec;
    try {
        parcourt();
    } catch (const db::EchecConversion& affiche) {
        echec = {affiche.texte, dialogues::kCritique};
        essaie(garde);
    } catch (const dao::ErreurDao& erreur) {
        echec = {erreur.texte(), dialogues::kSimple};
    } catch (const db::RequeteEchouee&) {  // already shown
    }
    lot.abandonne();
    affiches.apresAnnulation();
    return echec;
}

void confirme(LotImport& lot, AffichesImportees& affiches) {
    affiches.avantValidation();
    lot.confirme();
    affiches.apresValidation();
}

}  // namespace acquire
