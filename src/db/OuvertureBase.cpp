#include "db/OuvertureBase.h"

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
    Base essai;
    return ouvre(chemin, essai);
}

void OuvertureBase::assureLeFichier() {
    if (fichiers::existe(m_chemins.base)) return;
    const std::string repli = m_chemins.dansDossier("films.mdb");
    if (!util::egalSansCasse(m_chemins.base, repli)) m_chemins.base = repli;
    if (fichiers::existe(m_chemins.base)) return;
    fichiers::copie(m_chemins.modele, m_chemins.base);  // when it fails, the opening says so
}

bool OuvertureBase::ouvre(const std::string& chemin, Base& base) {
    const auto refus = essaie(chemin, base);
    if (refus) m_dialogues.MsgBox(refus->texte, refus->style);
    return !refus;
}

// Leaves `base` closed when it fails.
std::optional<OuvertureBase::Refus> OuvertureBase::essaie(const std::string& chemin, Base& base) {
    base.ferme();
    try {
        base.base = dao::DBEngine::OpenDatabase(fichiers::trouve(chemin).value_or(chemin));
    } catch (const dao::ErreurDao&) {
        return Refus{kOuvertureEchouee, dialogues::kCritique};
    }
    try {
        base.films = base.base.OpenRecordset("Films");
        base.personnel = base.base.OpenRecordset("Personnel");
        base.liste = base.base.OpenRecordset("Films");
        return std::nullopt;
    } catch (const dao::ErreurDao& erreur) {
        base.ferme();
        if (erreur.numero == dao::kErreurLectureSeule) return Refus{kLectureEcriture, dialogues::kCritique};
        return Refus{"Erreur " + std::to_string(erreur.numero) + " : " + erreur.description, dialogues::kSimple};
    }
}

}  // namespace db
