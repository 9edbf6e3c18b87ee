#include "db/OuvertureBase.h"

#include "db/BaseNeuve.h"
#include "db/OuvertureJet.h"
#include "db/Schema.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/FinDuProgramme.h"
#include "util/Texte.h"

#include <utility>

namespace db {

namespace {

constexpr const char* kOuvertureEchouee = "Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)";
constexpr const char* kLectureEcriture = "La base nécessite d'avoir un accès en lecture-écriture.";

std::string raisonDe(const dao::ErreurDao& erreur, const std::string& chemin) {
    if (OuvertureJet::estJet(chemin)) return "c'est une base Jet (Access) qui n'a pas été convertie";
    switch (erreur.numero) {
        case dao::kErreurFichierIntrouvable:
            return "le fichier n'existe pas";
        case dao::kErreurFichierDejaUtilise:
        case dao::kErreurVerrouille:
            return "elle est utilisée par un autre programme";
        case dao::kErreurLectureSeule:
            return "le fichier ou son dossier est en lecture seule";
        case dao::kErreurFormat:
            return "le fichier est endommagé ou n'est pas une base d'Ambrelis";
        default:
            return "";
    }
}

// A base made elsewhere may lack the indexes. It is as good without them, only slower: that they cannot be made now is
// no reason to refuse it.
void completeLesIndex(dao::Database& base) {
    try {
        base.Execute(indexDesListes());
    } catch (const dao::ErreurDao&) {
    }
}

}  // namespace

void OuvertureBase::operator()() {
    assureLeFichier();
    reprend();
}

void OuvertureBase::reprend() {
    if (!ouvre(m_chemins.base, m_base)) throw systeme::FinDuProgramme{};
    completeLesIndex(m_base.base);
}

bool OuvertureBase::rouvre() {
    Base nouvelle;
    if (essaie(m_chemins.base, nouvelle)) return false;
    m_base.ferme();
    m_base = std::move(nouvelle);
    completeLesIndex(m_base.base);
    return true;
}

bool OuvertureBase::sOuvre(const std::string& chemin) {
    m_raison.clear();
    Base essai;
    return ouvre(chemin, essai);
}

// When the file cannot be made, the opening says so.
bool OuvertureBase::assureLeFichier() {
    m_raison.clear();
    if (fichiers::existe(m_chemins.base)) return false;
    const std::string repli = m_chemins.dansDossier("films.mdb");
    if (!util::egalSansCasse(m_chemins.base, repli)) {
        m_chemins.baseAbsente = m_chemins.base;
        m_chemins.base = repli;
    }
    if (fichiers::existe(m_chemins.base)) return false;
    const BaseNeuve issue = creeDepuisLeModele(m_chemins, m_chemins.base);
    if (issue == BaseNeuve::ModeleInutilisable) m_raison = "le fichier modèle (" + m_chemins.modele + ") est endommagé";
    return issue == BaseNeuve::Faite;
}

bool OuvertureBase::ouvre(const std::string& chemin, Base& base) {
    const auto refus = essaie(chemin, base);
    if (!refus) return true;
    if (m_raison.empty()) m_raison = refus->raison;
    m_dialogues.MsgBox(refus->texte, refus->style);
    return false;
}

// Leaves `base` closed when it fails.
std::optional<OuvertureBase::Refus> OuvertureBase::essaie(const std::string& chemin, Base& base) const {
    base.ferme();
    if (m_chemins.estDansTmp(chemin))
        return Refus{kBaseDansTmp, dialogues::kExclamation, "elle est dans le dossier Tmp"};
    try {
        base.base = dao::DBEngine::OpenDatabase(fichiers::trouve(chemin).value_or(chemin));
    } catch (const dao::ErreurDao& erreur) {
        return Refus{kOuvertureEchouee, dialogues::kCritique, raisonDe(erreur, chemin)};
    }
    try {
        base.films = base.base.OpenRecordset("Films");
        base.personnel = base.base.OpenRecordset("Personnel");
        base.liste = base.base.OpenRecordset("Films");
        return std::nullopt;
    } catch (const dao::ErreurDao& erreur) {
        base.ferme();
        const std::string raison = raisonDe(erreur, chemin);
        if (erreur.numero == dao::kErreurLectureSeule) return Refus{kLectureEcriture, dialogues::kCritique, raison};
        return Refus{"Erreur " + std::to_string(erreur.numero) + " : " + erreur.description, dialogues::kSimple,
                     raison};
    }
}

}  // namespace db
