#include "db/cmdMajBase_Click.h"

#include "db/DossierImages.h"
#include "db/Sauvegardes.h"
#include "db/SensConversion.h"
#include "db/cmdCompacter_Click.h"
#include "platform/dao/LigneSupprimee.h"
#include "platform/fichiers/Fichiers.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

namespace db {

namespace {

// Of one transaction: a few dozen megabytes of pictures.
constexpr long kFilmsParLot = 1000;
constexpr std::chrono::milliseconds kDureeDUnLot{1000};

using Empechement = std::optional<std::string>;  // what to tell the user

std::unique_ptr<SensConversion> sensVoulu(const Contexte& c, const std::string& dossier) {
    if (c.stockage.dansLaBase()) return std::make_unique<VersLaBase>(c.base.base, dossier);
    return std::make_unique<VersLeDossier>(c, dossier);
}

// False when the user asked to stop. A film that someone else deleted meanwhile is passed over.
bool convertitFilms(const Contexte& c, SensConversion& sens, dao::Recordset& films, RapportConversion& lot) {
    const auto fin = c.montre() + kDureeDUnLot;
    bool continuer = true;
    for (long rang = 0; continuer && !films.Eof() && rang < kFilmsParLot && c.montre() < fin; ++rang) {
        (void)dao::siPresente([&] { lot += sens.convertit(films); });
        films.MoveNext();
        ++c.travaux.ProgressBar2.Value;
        continuer = c.ecran.respire();
    }
    return continuer;
}

// A lot that fails leaves nothing, in the base, in the folder nor in the report.
bool convertitLot(const Contexte& c, SensConversion& sens, dao::Recordset& films, RapportConversion& rapport) {
    RapportConversion fait;
    bool continuer = false;
    try {
        dao::Transaction lot(c.base.base);
        continuer = convertitFilms(c, sens, films, fait);
        sens.avantValidation();
        lot.confirme();
    } catch (...) {
        sens.apresAnnulation();
        throw;
    }
    sens.apresValidation();
    rapport += fait;
    return continuer;
}

Empechement convertitTout(const Contexte& c, SensConversion& sens, dao::Recordset& films, RapportConversion& rapport) {
    const ecran::Travail travail(c.ecran);
    const long aConvertir = sens.aConvertir(films);
    Empechement echec;
    try {
        while (!films.Eof() && convertitLot(c, sens, films, rapport)) {
        }
    } catch (const EchecConversion& raison) {
        echec = raison.texte;
    } catch (const dao::ErreurDao& erreur) {
        echec = erreur.texte();
    }
    if (echec || !films.Eof()) rapport.restants = std::max(0L, aConvertir - rapport.rencontres());
    return echec;
}

// Every poster would be kept twice, and the other conversion takes it back.
void renonceALAnnulation(const Contexte& c) {
    c.annulations.renonce();
    c.avis.montre(
        "La conversion des affiches ne s'annule pas avec Ctrl+Z, ni ce qui la précède : c'est la conversion inverse "
        "qui "
        "la défait.");
}

// A copy of the base names those files, and has not their bytes: what it was taken before put them in the base.
void ditCeQueLaCopieNAPas(const Contexte& c) {
    if (!derniereSauvegarde(c.base.base.nom())) return;
    c.avis.remarque(
        "Les fichiers des affiches ont été retirés : la sauvegarde prise avant la conversion nomme des affiches "
        "qui ne sont plus que dans la base.");
}

// The films that need nothing are done from the start.
Empechement convertitLesAffiches(const Contexte& c, RapportConversion& rapport) {
    if (auto refus = refusDossierImages(c)) return refus;
    const std::string dossier = dossierImages(c);
    fichiers::creeDossier(dossier);
    const auto sens = sensVoulu(c, dossier);
    sens->reprend();
    dao::Recordset films = c.base.base.OpenRecordset(sens->enonce());
    ecran::Progression& progression = c.travaux.ProgressBar2;
    progression.Max = std::max(1L, c.base.films.RecordCount());  // of 0 the bar would never end
    progression.Value = progression.Max - films.RecordCount();
    if (films.Eof()) return std::nullopt;
    if (!fichiers::dossierModifiable(dossier))
        return "Le dossier des images " + dossier + " n'est pas accessible en écriture !";
    const bool enBase = c.stockage.dansLaBase();
    if (!sauvegardeAvant(c, enBase ? Avant::AffichesEnBase : Avant::AffichesEnFichiers)) return std::nullopt;
    renonceALAnnulation(c);
    const Empechement echec = convertitTout(c, *sens, films, rapport);
    if (enBase && rapport.inclus > 0) ditCeQueLaCopieNAPas(c);
    return echec;
}

}  // namespace

void cmdMajBase_Click(const Contexte& c) {
    RapportConversion rapport;
    const Empechement echec = convertitLesAffiches(c, rapport);
    if (echec) c.dialogues.MsgBox(*echec, dialogues::kCritique);
    if (rapport.crees > 0 && !echec) compacteEtRapporte(c);
    if (const std::string texte = rapport.texte(); !texte.empty()) c.dialogues.MsgBox(texte, dialogues::kInformation);
    c.rafraichissement.AffichageApresModification();
}

}  // namespace db
