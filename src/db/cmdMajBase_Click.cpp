#include "db/cmdMajBase_Click.h"

#include "db/Affiches.h"
#include "platform/fichiers/Fichiers.h"

#include <algorithm>

namespace db {

namespace {

// Of one transaction: a few dozen megabytes of pictures.
constexpr long kFilmsParLot = 1000;
constexpr std::chrono::milliseconds kDureeDUnLot{1000};

}  // namespace

void cmdMajBase_Click::operator()() {
    RapportConversion rapport;
    const Echec echec = convertit(rapport);
    if (echec) m_outils.dialogues.MsgBox(*echec, dialogues::kCritique);
    if (rapport.crees > 0 && !echec) m_cmdCompacter();
    if (const std::string texte = rapport.texte(); !texte.empty())
        m_outils.dialogues.MsgBox(texte, dialogues::kInformation);
    m_rafraichissement.AffichageApresModification();
}

std::unique_ptr<SensConversion> cmdMajBase_Click::sens(const std::string& dossier) const {
    if (m_outils.stockage.dansLaBase()) return std::make_unique<VersLaBase>(m_outils.base.base, dossier);
    return std::make_unique<VersLeDossier>(m_outils.base.base, dossier);
}

// The films that need nothing are done from the start.
cmdMajBase_Click::Echec cmdMajBase_Click::convertit(RapportConversion& rapport) {
    if (auto refus = refusDossierImages(m_outils.stockage, m_outils.chemins)) return refus;
    const std::string dossier = dossierImages(m_outils.stockage, m_outils.chemins);
    fichiers::creeDossier(dossier);
    const auto sensVoulu = sens(dossier);
    sensVoulu->reprend();
    dao::Recordset films = m_outils.base.base.OpenRecordset(sensVoulu->enonce());
    m_outils.progression.Max = std::max(1L, m_outils.base.films.RecordCount());  // of 0 the bar would never end
    m_outils.progression.Value = m_outils.progression.Max - films.RecordCount();
    if (films.Eof()) return std::nullopt;
    if (!fichiers::dossierModifiable(dossier))
        return "Le dossier des images " + dossier + " n'est pas accessible en écriture !";
    return convertitTout(*sensVoulu, films, rapport);
}

cmdMajBase_Click::Echec cmdMajBase_Click::convertitTout(SensConversion& sens, dao::Recordset& films,
                                                        RapportConversion& rapport) {
    const ecran::Travail travail(m_outils.ecran);
    const long aConvertir = sens.aConvertir(films);
    Echec echec;
    try {
        while (!films.Eof() && convertitLot(sens, films, rapport)) {
        }
    } catch (const EchecConversion& raison) {
        echec = raison.texte;
    } catch (const dao::ErreurDao& erreur) {
        echec = "Erreur " + std::to_string(erreur.numero) + " : " + erreur.description;
    }
    if (echec || !films.Eof()) rapport.restants = std::max(0L, aConvertir - rapport.rencontres());
    return echec;
}

// False when the user asked to stop. A lot that fails leaves nothing, in the base, in the folder nor in the report.
bool cmdMajBase_Click::convertitLot(SensConversion& sens, dao::Recordset& films, RapportConversion& rapport) {
    RapportConversion fait;
    bool continuer = false;
    try {
        dao::Transaction lot(m_outils.base.base);
        continuer = convertitFilms(sens, films, fait);
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

// A film that someone else deleted meanwhile is passed over.
bool cmdMajBase_Click::convertitFilms(SensConversion& sens, dao::Recordset& films, RapportConversion& lot) {
    const auto fin = m_outils.montre() + kDureeDUnLot;
    bool continuer = true;
    for (long rang = 0; continuer && !films.Eof() && rang < kFilmsParLot && m_outils.montre() < fin; ++rang) {
        try {
            lot += sens.convertit(films);
        } catch (const dao::ErreurDao& erreur) {
            if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
        }
        films.MoveNext();
        ++m_outils.progression.Value;
        continuer = m_outils.ecran.respire();
    }
    return continuer;
}

}  // namespace db
