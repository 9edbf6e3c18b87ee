#include "acquire/ImporterAncienneBase.h"

#include "acquire/CopieAncienneBase.h"
#include "acquire/ProgressionVisible.h"
#include "db/MotDePasseJet.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <filesystem>
#include <system_error>

namespace acquire {

namespace {

using Issue = CopieAncienneBase::Issue;

// What a passage leaves to tell, once no work is under way.
struct Bilan {
    std::optional<PassageAncienne::Echec> echec;
    std::optional<RapportAncienne> rapport;  // nothing when the base could not be read
};

PassageAncienne::Echec illisible(const AncienneInstallation& ancienne, const std::string& raison) {
    return {"La base " + ancienne.base + " n'a pas pu être lue.\n" + raison, dialogues::kCritique};
}

Issue ouvre(const OutilsAncienne& outils, CopieAncienneBase& copie, const AncienneInstallation& ancienne,
            const jet::Ouverture& ouverture) {
    const ecran::Travail travail(outils.ecran);
    const ProgressionVisible progression(outils.ajout, 1);
    outils.ajout.lblProgression.Caption = "Lecture de " + fichiers::nomDeFichier(ancienne.base);
    return copie.ouvre(ancienne.base, ouverture);
}

// Of a damaged base, what can be read of it, when the user agrees to the losses; nothing when he does not.
std::optional<Issue> ouvreCeQuiEstLisible(const OutilsAncienne& outils, CopieAncienneBase& copie,
                                          const AncienneInstallation& ancienne, const std::string& motDePasse) {
    const std::string raison = copie.echec();
    const Issue issue = ouvre(outils, copie, ancienne, {motDePasse, true});
    if (issue != Issue::Ouverte) return issue;
    const std::string question = illisible(ancienne, raison).texte + "\n\n" + copie.rapport().texteDommages() +
                                 "\nImporter ce qui est lisible ?\nLa liste des pertes sera gardée dans " +
                                 db::nomDesPertes(outils.base.base.nom()) + ".";
    if (outils.dialogues.MsgBox(question, dialogues::kQuestion) != dialogues::kOui) return std::nullopt;
    if (db::gardeLesPertes(outils.base.base.nom(), ancienne.base, copie.rapport().dommages)) return issue;
    outils.dialogues.MsgBox("La liste des pertes n'a pas pu être enregistrée (Disque plein/Lecture seule ?)",
                            dialogues::kCritique);
    return std::nullopt;
}

Bilan reprend(const OutilsAncienne& outils, CopieAncienneBase& copie, const AncienneInstallation& ancienne) {
    const ecran::Travail travail(outils.ecran);
    const ProgressionVisible progression(outils.ajout, 1);
    try {
        PassageAncienne passage(outils, copie.base(), ancienne.dossierImages);
        passage.execute();
        Bilan bilan{passage.echec(), passage.rapport()};
        bilan.rapport->pertes = copie.rapport().pertes();
        return bilan;
    } catch (const dao::ErreurDao& erreur) {  // it lacks a table
        return {illisible(ancienne, erreur.description), std::nullopt};
    }
}

// Nothing when the user does not want it.
std::optional<Bilan> litEtReprend(const OutilsAncienne& outils, const AncienneInstallation& ancienne) {
    const auto motDePasse = db::demandeMotDePasse(ancienne.base, outils.dialogues);
    if (!motDePasse) return std::nullopt;
    CopieAncienneBase copie(outils.chemins.dossierTmp + "/Ancienne.mdb", outils.ajout.ProgressBar1, outils.ecran);
    std::optional<Issue> issue = ouvre(outils, copie, ancienne, {.motDePasse = *motDePasse});
    const std::string raison = copie.echec();
    if (copie.abimee()) issue = ouvreCeQuiEstLisible(outils, copie, ancienne, *motDePasse);
    if (!issue) return std::nullopt;
    if (*issue == Issue::Ouverte) return reprend(outils, copie, ancienne);
    if (*issue == Issue::Interrompue) return Bilan{std::nullopt, RapportAncienne{.interrompu = true}};
    return Bilan{illisible(ancienne, copie.abimee() ? raison : copie.echec()), std::nullopt};
}

// The same folder, or the same file, by whatever names.
bool memes(const std::string& a, const std::string& b) {
    std::error_code ignoree;
    return std::filesystem::equivalent(a, b, ignoree);
}

// What is imported, in two lines.
std::string origine(const AncienneInstallation& ancienne) {
    const std::string images = ancienne.dossierImages.empty() ? "aucun dossier" : ancienne.dossierImages;
    return "Base : " + ancienne.base + "\nImages : " + images;
}

}  // namespace

void ImportAncienneBase::Command13_Click() {
    if (m_outils.dialogues.MsgBox(
            "Cette fonction permet de récupérer la base de données et les images d'une précédente "
            "version.\nSouhaitez-vous continuer ?",
            dialogues::kQuestion) == dialogues::kOui)
        ImporterAncienneBase();
}

void ImportAncienneBase::ImporterAncienneBase() {
    if (const auto ancienne = choisit()) importe(*ancienne);
}

std::optional<AncienneInstallation> ImportAncienneBase::choisit() {
    const std::string dossier = m_outils.dialogues.choisitDossier("Dossier de la précédente version", m_dernierDossier);
    if (dossier.empty()) return std::nullopt;
    m_dernierDossier = dossier;
    if (memes(dossier, m_outils.chemins.dossier)) {
        refuse("Le dossier " + dossier + " est celui d'Ambrelis : choisissez celui de la version précédente.");
        return std::nullopt;
    }
    AncienneInstallation ancienne = AncienneInstallation::dans(dossier);
    if (!indiqueBase(ancienne)) return std::nullopt;
    if (const std::string refusee = refus(ancienne); !refusee.empty()) {
        refuse(refusee);
        return std::nullopt;
    }
    indiqueImages(ancienne);
    return confirme(ancienne) ? std::optional(ancienne) : std::nullopt;
}

// False when the user leaves it there.
bool ImportAncienneBase::indiqueBase(AncienneInstallation& ancienne) {
    if (ancienne.baseAbsente.empty()) return true;
    if (m_outils.dialogues.MsgBox(
            "La base " + ancienne.baseAbsente +
                ", que nomment les réglages de cette version, n'a pas été trouvée.\nSouhaitez-vous "
                "indiquer où elle se trouve ?",
            dialogues::kQuestion) != dialogues::kOui)
        return false;
    ancienne.base = m_outils.dialogues.choisitFichier(
        {"Base de la précédente version", "Fichiers de base de données|*.mdb", m_dernierDossier, false});
    return !ancienne.base.empty();
}

// Without it the posters stay named as they are: a second import finds them.
void ImportAncienneBase::indiqueImages(AncienneInstallation& ancienne) {
    if (ancienne.imagesAbsentes.empty()) return;
    if (m_outils.dialogues.MsgBox(
            "Le dossier des images " + ancienne.imagesAbsentes +
                ", que nomment les réglages de cette version, n'a pas été trouvé.\nSouhaitez-vous "
                "indiquer où il se trouve ?",
            dialogues::kQuestion) == dialogues::kOui)
        ancienne.dossierImages = util::avecSeparateur(
            m_outils.dialogues.choisitDossier("Dossier des images de la précédente version", m_dernierDossier));
}

// Why it cannot be imported; empty when it can.
std::string ImportAncienneBase::refus(const AncienneInstallation& ancienne) const {
    if (ancienne.base.empty())
        return "Aucune base de données n'a été trouvée dans le dossier " + m_dernierDossier + ".";
    if (fichiers::longueur(ancienne.base) < 0) return "Le fichier indiqué est inexistant !";
    if (memes(ancienne.base, m_outils.base.base.nom()))
        return "La base " + ancienne.base + " est celle qui est ouverte : il n'y a rien à importer.";
    return "";
}

bool ImportAncienneBase::confirme(const AncienneInstallation& ancienne) {
    return m_outils.dialogues.MsgBox(origine(ancienne) + "\n\nSouhaitez-vous importer cette base ?",
                                     dialogues::kQuestion) == dialogues::kOui;
}

void ImportAncienneBase::refuse(const std::string& message) {
    m_outils.dialogues.MsgBox(message, dialogues::kExclamation);
}

void ImportAncienneBase::importe(const AncienneInstallation& ancienne) {
    const auto bilan = litEtReprend(m_outils, ancienne);
    if (!bilan) return;
    if (bilan->echec) m_outils.dialogues.MsgBox(bilan->echec->texte, bilan->echec->style);
    if (!bilan->rapport) return;
    m_outils.dialogues.MsgBox(bilan->rapport->texte() + "\n" + origine(ancienne), dialogues::kInformation);
    if (!bilan->rapport->aChangeLaBase()) return;
    m_rafraichissement.AffichageApresModification();
    m_rafraichissement.RaffraichitBoitesDeroulantes();
    m_rafraichissement.AfficheNbTitres();
}

}  // namespace acquire
