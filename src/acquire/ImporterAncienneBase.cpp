#include "acquire/ImporterAncienneBase.h"

#include "acquire/AncienneInstallation.h"
#include "acquire/CompteFilmsRepertoire.h"
#include "acquire/CopieAncienneBase.h"
#include "acquire/PassageAncienne.h"
#include "acquire/ProgressionVisible.h"
#include "browse/CreeRequeteAffichage.h"
#include "db/MotDePasseJet.h"
#include "db/Sauvegardes.h"
#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace acquire {

namespace {

using Issue = CopieAncienneBase::Issue;

// What a passage leaves to tell, once no work is under way.
struct Bilan {
    std::optional<EchecDePassage> echec;
    std::optional<RapportAncienne> rapport;  // nothing when the base could not be read
};

EchecDePassage illisible(const AncienneInstallation& ancienne, const std::string& raison) {
    return {"La base " + ancienne.base + " n'a pas pu être lue.\n" + raison, dialogues::kCritique};
}

Issue ouvre(const Contexte& c, CopieAncienneBase& copie, const AncienneInstallation& ancienne,
            const jet::Ouverture& ouverture) {
    const ecran::Travail travail(c.ecran);
    const ProgressionVisible progression(c.ajout, 1);
    c.ajout.lblProgression.Caption = "Lecture de " + fichiers::nomDeFichier(ancienne.base);
    return copie.ouvre(ancienne.base, ouverture);
}

// Of a damaged base, what can be read of it, when the user agrees to the losses; nothing when he does not.
std::optional<Issue> ouvreCeQuiEstLisible(const Contexte& c, CopieAncienneBase& copie,
                                          const AncienneInstallation& ancienne, const std::string& motDePasse) {
    const std::string raison = copie.echec();
    const Issue issue = ouvre(c, copie, ancienne, {motDePasse, true});
    if (issue != Issue::Ouverte) return issue;
    const std::string question = illisible(ancienne, raison).texte + "\n\n" + copie.rapport().texteDommages() +
                                 "\nImporter ce qui est lisible ?\nLa liste des pertes sera gardée dans " +
                                 db::nomDesPertes(c.base.base.nom()) + ".";
    if (c.dialogues.MsgBox(question, dialogues::kQuestion) != dialogues::kOui) return std::nullopt;
    if (db::gardeLesPertes(c.base.base.nom(), ancienne.base, copie.rapport().dommages)) return issue;
    c.dialogues.MsgBox("La liste des pertes n'a pas pu être enregistrée (Disque plein/Lecture seule ?)",
                       dialogues::kCritique);
    return std::nullopt;
}

Bilan reprend(const Contexte& c, CopieAncienneBase& copie, const AncienneInstallation& ancienne) {
    const ecran::Travail travail(c.ecran);
    const ProgressionVisible progression(c.ajout, 1);
    try {
        PassageAncienne passage(c, copie.base(), ancienne.dossierImages);
        passage.execute();
        Bilan bilan{passage.echec(), passage.rapport()};
        bilan.rapport->pertes = copie.rapport().pertes();
        return bilan;
    } catch (const dao::ErreurDao& erreur) {  // it lacks a table
        return {illisible(ancienne, erreur.description), std::nullopt};
    }
}

// Nothing when the user does not want it.
std::optional<Bilan> litEtReprend(const Contexte& c, const AncienneInstallation& ancienne) {
    const auto motDePasse = db::demandeMotDePasse(ancienne.base, c.dialogues);
    if (!motDePasse) return std::nullopt;
    CopieAncienneBase copie(c);
    std::optional<Issue> issue = ouvre(c, copie, ancienne, {.motDePasse = *motDePasse});
    const std::string raison = copie.echec();
    if (copie.abimee()) issue = ouvreCeQuiEstLisible(c, copie, ancienne, *motDePasse);
    if (!issue) return std::nullopt;
    if (*issue == Issue::Ouverte) {
        const std::int64_t octets =
            fichiers::longueur(copie.base().nom()) + octetsAAjouter(ancienne.dossierImages, c.stockage.dansLaBase());
        if (!db::sauvegardeAvant(c, db::Avant::ImportAncienne, octets)) return std::nullopt;
        return reprend(c, copie, ancienne);
    }
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

void refuse(const Contexte& c, const std::string& message) {
    c.dialogues.MsgBox(message, dialogues::kExclamation);
}

// False when the user leaves it there.
bool indiqueBase(const Contexte& c, AncienneInstallation& ancienne) {
    if (ancienne.baseAbsente.empty()) return true;
    if (c.dialogues.MsgBox("La base " + ancienne.baseAbsente +
                               ", que nomment les réglages de cette version, n'a pas été trouvée.\nSouhaitez-vous "
                               "indiquer où elle se trouve ?",
                           dialogues::kQuestion) != dialogues::kOui)
        return false;
    ancienne.base = c.dialogues.choisitFichier(
        {"Base de la précédente version", "Fichiers de base de données|*.mdb", c.ajout.dossierAncienneVersion, false});
    return !ancienne.base.empty();
}

// Without it the posters stay named as they are: a second import finds them.
void indiqueImages(const Contexte& c, AncienneInstallation& ancienne) {
    if (ancienne.imagesAbsentes.empty()) return;
    if (c.dialogues.MsgBox("Le dossier des images " + ancienne.imagesAbsentes +
                               ", que nomment les réglages de cette version, n'a pas été trouvé.\nSouhaitez-vous "
                               "indiquer où il se trouve ?",
                           dialogues::kQuestion) == dialogues::kOui)
        ancienne.dossierImages = util::avecSeparateur(
            c.dialogues.choisitDossier("Dossier des images de la précédente version", c.ajout.dossierAncienneVersion));
}

// Why it cannot be imported; empty when it can.
std::string refus(const Contexte& c, const AncienneInstallation& ancienne) {
    if (ancienne.base.empty())
        return "Aucune base de données n'a été trouvée dans le dossier " + c.ajout.dossierAncienneVersion + ".";
    if (fichiers::longueur(ancienne.base) < 0) return "Le fichier indiqué est inexistant !";
    if (memes(ancienne.base, c.base.base.nom()))
        return "La base " + ancienne.base + " est celle qui est ouverte : il n'y a rien à importer.";
    return "";
}

bool confirme(const Contexte& c, const AncienneInstallation& ancienne) {
    return c.dialogues.MsgBox(origine(ancienne) + "\n\nSouhaitez-vous importer cette base ?", dialogues::kQuestion) ==
           dialogues::kOui;
}

// What is to be imported; nothing when the choice was cancelled, or cannot be and was told.
std::optional<AncienneInstallation> choisit(const Contexte& c) {
    const std::string dossier =
        c.dialogues.choisitDossier("Dossier de la précédente version", c.ajout.dossierAncienneVersion);
    if (dossier.empty()) return std::nullopt;
    c.ajout.dossierAncienneVersion = dossier;
    if (memes(dossier, c.chemins.dossier)) {
        refuse(c, "Le dossier " + dossier + " est celui d'Ambrelis : choisissez celui de la version précédente.");
        return std::nullopt;
    }
    AncienneInstallation ancienne = AncienneInstallation::dans(dossier);
    if (!indiqueBase(c, ancienne)) return std::nullopt;
    if (const std::string refusee = refus(c, ancienne); !refusee.empty()) {
        refuse(c, refusee);
        return std::nullopt;
    }
    indiqueImages(c, ancienne);
    return confirme(c, ancienne) ? std::optional(ancienne) : std::nullopt;
}

void importe(const Contexte& c, const AncienneInstallation& ancienne) {
    c.annulations.nomme("import de l'installation précédente", "Installation précédente importée.");
    const auto bilan = litEtReprend(c, ancienne);
    if (!bilan) return;
    if (bilan->echec) c.dialogues.MsgBox(bilan->echec->texte, bilan->echec->style);
    if (!bilan->rapport) return;
    c.dialogues.MsgBox(bilan->rapport->texte() + "\n" + origine(ancienne), dialogues::kInformation);
    if (!bilan->rapport->aChangeLaBase()) return;
    c.rafraichissement.AffichageApresModification();
    c.rafraichissement.RaffraichitBoitesDeroulantes();
    c.rafraichissement.AfficheNbTitres();
}

}  // namespace

void proposeImportAncienneBase(const Contexte& c) {
    if (c.dialogues.MsgBox("Cette fonction permet de récupérer la base de données et les images d'une précédente "
                           "version.\nSouhaitez-vous continuer ?",
                           dialogues::kQuestion) == dialogues::kOui)
        ImporterAncienneBase(c);
}

void ImporterAncienneBase(const Contexte& c) {
    browse::puisVersLaListe(c, [&c] {
        if (const auto ancienne = choisit(c)) importe(c, *ancienne);
    });
}

}  // namespace acquire
