#include "db/OuvertureBase.h"

#include "db/BaseNeuve.h"
#include "db/OuvertureJet.h"
#include "db/Requete.h"
#include "db/Schema.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/FinDuProgramme.h"
#include "util/Texte.h"

#include <optional>
#include <utility>

namespace db {

namespace {

constexpr const char* kOuvertureEchouee = "Erreur (22) : Ouverture de la base (Lecture seule/Fichier manquant ?)";
constexpr const char* kLectureEcriture = "La base nécessite d'avoir un accès en lecture-écriture.";

std::string raisonDe(const dao::ErreurDao& erreur, const std::string& chemin) {
    if (estJet(chemin)) return "c'est une base Jet (Access) qui n'a pas été convertie";
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

struct Refus {
    std::string texte;
    int style;
    std::string raison;  // may be empty
};

// Leaves `base` closed when it fails.
std::optional<Refus> essaie(const Chemins& chemins, const std::string& chemin, Base& base) {
    base.ferme();
    if (chemins.estDansTmp(chemin)) return Refus{kBaseDansTmp, dialogues::kExclamation, "elle est dans le dossier Tmp"};
    try {
        base.base = dao::DBEngine::OpenDatabase(fichiers::trouve(chemin).value_or(chemin));
        base.base.declareCles(clesDesTables());
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
        return Refus{erreur.texte(), dialogues::kSimple, raison};
    }
}

bool ouvre(const Contexte& c, const std::string& chemin, Base& base) {
    const auto refus = essaie(c.chemins, chemin, base);
    if (!refus) return true;
    if (c.base.raison.empty()) c.base.raison = refus->raison;
    c.dialogues.MsgBox(refus->texte, refus->style);
    return false;
}

// A base made elsewhere may lack the indexes. It is as good without them, only slower: that they cannot be made now is
// no reason to refuse it.
void completeLesIndex(dao::Database& base) {
    try {
        base.Execute(kIndexDesListes);
    } catch (const dao::ErreurDao&) {
    }
}

}  // namespace

void ouvreLaBase(const Contexte& c) {
    assureLeFichier(c);
    c.annulations.oublie();
    reprendLaBase(c);
}

void reprendLaBase(const Contexte& c) {
    if (!ouvre(c, c.chemins.base, c.base)) throw systeme::FinDuProgramme{};
    c.base.base.respireAvec(souffle(c));
    completeLesIndex(c.base.base);
    c.annulations.suisLaBase();
}

bool rouvreLaBase(const Contexte& c) {
    Base nouvelle;
    if (essaie(c.chemins, c.chemins.base, nouvelle)) return false;
    c.base.ferme();
    c.base = std::move(nouvelle);
    c.annulations.oublie();
    c.base.base.respireAvec(souffle(c));
    completeLesIndex(c.base.base);
    return true;
}

// When the file cannot be made, the opening says so.
bool assureLeFichier(const Contexte& c) {
    Chemins& chemins = c.chemins;
    c.base.raison.clear();
    if (fichiers::existe(chemins.base)) return false;
    const std::string repli = chemins.dansDossier("films.mdb");
    if (!util::egalSansCasse(chemins.base, repli)) {
        chemins.baseAbsente = chemins.base;
        chemins.base = repli;
    }
    if (fichiers::existe(chemins.base)) return false;
    const BaseNeuve issue = creeDepuisLeModele(chemins, chemins.base);
    if (issue == BaseNeuve::ModeleInutilisable)
        c.base.raison = "le fichier modèle (" + chemins.modele + ") est endommagé";
    return issue == BaseNeuve::Faite;
}

bool sOuvre(const Contexte& c, const std::string& chemin) {
    c.base.raison.clear();
    Base essai;
    return ouvre(c, chemin, essai);
}

}  // namespace db
