#include "db/OuvertureJet.h"

#include "db/Affiches.h"
#include "db/ConversionJet.h"
#include "db/DommagesJet.h"
#include "db/DossierImages.h"
#include "db/MotDePasseJet.h"
#include "db/TravauxInacheves.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Verrou.h"
#include "platform/jet/LecteurJet.h"
#include "util/Texte.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace db {

namespace {

namespace fs = std::filesystem;

constexpr int kNomsEssayes = 1000;

struct ConversionImpossible {
    std::string texte;
};
struct ConversionArretee {};
struct PertesRefusees {};  // by the user, who knows it

// The file itself, wherever links to it lie.
std::string fichierReel(const std::string& chemin) {
    std::error_code erreur;
    const fs::path reel = fs::canonical(fichiers::trouve(chemin).value_or(chemin), erreur);
    return erreur ? chemin : reel.string();
}

std::string nomSeul(const std::string& chemin) {
    return fs::path(chemin).filename().string();
}

// "Films (Jet).mdb", "Films (Jet 2).mdb"...
std::string nomConserve(const std::string& original, int numero) {
    const fs::path chemin(original);
    const std::string marque = numero == 1 ? " (Jet)" : " (Jet " + std::to_string(numero) + ")";
    return (chemin.parent_path() / (chemin.stem().string() + marque + chemin.extension().string())).string();
}

// A conversion that was killed may have given the original its other name already. A link to it is none: it would lead
// to the new base.
bool estSonAutreNom(const std::string& nom, const std::string& original) {
    std::error_code ignoree;
    return !fs::is_symlink(fs::symlink_status(nom, ignoree)) && fs::equivalent(nom, original, ignoree);
}

bool estLibreOuSien(const std::string& nom, const std::string& original) {
    return estSonAutreNom(nom, original) || (!fichiers::existe(nom) && !fichiers::dossierExiste(nom));
}

int premierNumero(const std::string& original, int depuis = 1) {
    int numero = depuis;
    while (numero < kNomsEssayes && !estLibreOuSien(nomConserve(original, numero), original))
        ++numero;
    return numero;
}

std::string fichierDuVerrou(const std::string& original) {
    return fs::path(original).replace_extension(".ldb").string();
}

// What a conversion that was killed has left.
void nettoieLeTravail(const std::string& travail) {
    std::error_code ignoree;
    if (!fs::exists(fs::symlink_status(travail, ignoree))) return;
    if (!estInacheve(travail) || !fichiers::supprime(travail))
        throw ConversionImpossible{"Le fichier " + util::entreChevrons(travail) +
                                   " gêne la conversion. Déplacez-le, puis recommencez."};
    fichiers::supprime(travail + "-journal");
}

// SQLite would take another base's log, left beside a file of the same name, for the new base's.
void exigeNomLibre(const std::string& original) {
    for (const char* suite : {"-journal", "-wal"})
        if (fichiers::existe(original + suite))
            throw ConversionImpossible{"Le fichier " + util::entreChevrons(original + suite) +
                                       " appartient à une autre base. Déplacez-le, puis recommencez."};
}

// Those of the original, which may be a copy of a disc that could not be written.
void donneLesDroits(const std::string& travail, const std::string& original) {
    std::error_code ignoree;
    const fs::perms droits = fs::status(original, ignoree).permissions();
    fs::permissions(travail, droits | fs::perms::owner_read | fs::perms::owner_write, ignoree);
}

std::string conserve(const std::string& original) {
    for (int numero = premierNumero(original); numero < kNomsEssayes; numero = premierNumero(original, numero + 1)) {
        const std::string nom = nomConserve(original, numero);
        if (estSonAutreNom(nom, original)) return nom;
        const fichiers::Creation issue = fichiers::donneAutreNom(original, nom);
        if (issue == fichiers::Creation::Faite) return nom;
        if (issue == fichiers::Creation::Echouee) break;
    }
    throw ConversionImpossible{"L'original n'a pas pu être conservé sous le nom " +
                               util::entreChevrons(nomSeul(nomConserve(original, 1))) +
                               " (Disque plein/Lecture seule ?)"};
}

// The text that tells the losses; none when there are none.
std::string garde(const std::string& original, const RapportJet& rapport) {
    if (rapport.dommages.empty()) return {};
    if (const auto nom = gardeLesPertes(original, original, rapport.dommages)) return *nom;
    throw ConversionImpossible{"La liste des pertes n'a pas pu être enregistrée (Disque plein/Lecture seule ?)"};
}

// Puts the new base in the original's place. Answers the original's other name.
std::string echange(const std::string& travail, const std::string& original) {
    donneLesDroits(travail, original);
    const std::string conservee = conserve(original);
    if (fichiers::renomme(travail, original)) return conservee;
    fichiers::supprime(conservee);
    throw ConversionImpossible{"Le fichier n'a pas pu être remplacé."};
}

bool accepteLaConversion(const Contexte& c, const std::string& original) {
    std::string question = "Le fichier " + original +
                           " est une base Jet (Access). Voulez-vous la convertir pour l'ouvrir ?\n" +
                           "L'original sera conservé sous le nom " +
                           util::entreChevrons(nomSeul(nomConserve(original, premierNumero(original)))) + ".";
    const std::string verrou = fichierDuVerrou(original);
    if (fichiers::existe(verrou))
        question += "\nLe fichier " + util::entreChevrons(nomSeul(verrou)) +
                    " indique qu'un autre programme l'utilise peut-être : fermez-le d'abord.";
    return c.dialogues.MsgBox(question, dialogues::kQuestion) == dialogues::kOui;
}

bool accepteLesPertes(const Contexte& c, const std::string& original, const std::string& raison,
                      const RapportJet& rapport) {
    const std::string question = "La base n'a pas pu être convertie en entier.\n" + raison + "\n\n" +
                                 rapport.texteDommages() +
                                 "\nConvertir ce qui est lisible ?\nL'original sera conservé, et la liste des pertes "
                                 "gardée dans " +
                                 util::entreChevrons(nomSeul(nomDesPertes(original))) + ".";
    return c.dialogues.MsgBox(question, dialogues::kQuestion) == dialogues::kOui;
}

IssueJet passe(const Contexte& c, const std::string& original, const std::string& travail,
               const jet::Ouverture& ouverture) {
    EtatTravaux& travaux = c.travaux;
    travaux.lblTravail.Caption = "Conversion de la base " + nomSeul(original) + "...";
    travaux.ProgressBar3.Visible = true;
    IssueJet issue = ConversionJet(travaux.ProgressBar3, c.ecran)(original, travail, ouverture);
    travaux.ProgressBar3.Visible = false;
    travaux.lblTravail.Caption.clear();
    return issue;
}

// It is converted first, so that the question tells what the answer leads to.
IssueJet litCeQuiEstLisible(const Contexte& c, const std::string& original, const std::string& travail,
                            const jet::Ouverture& ouverture, const std::string& raison) {
    IssueJet issue = passe(c, original, travail, ouverture);
    if (issue.abimee) issue.echec = raison;  // nothing is readable
    if (!issue.estFaite() || accepteLesPertes(c, original, raison, issue.rapport)) return issue;
    fichiers::supprime(travail);
    throw PertesRefusees{};
}

RapportJet litLaBaseJet(const Contexte& c, const std::string& original, const std::string& travail) {
    if (!fichiers::dossierModifiable(fs::path(original).parent_path().string()))
        throw ConversionImpossible{"Son dossier n'est pas accessible en écriture."};
    const auto motDePasse = demandeMotDePasse(original, c.dialogues);
    if (!motDePasse) throw ConversionArretee{};
    IssueJet issue = passe(c, original, travail, {.motDePasse = *motDePasse});
    if (issue.abimee) issue = litCeQuiEstLisible(c, original, travail, {*motDePasse, true}, *issue.echec);
    if (issue.interrompu) throw ConversionArretee{};
    if (issue.echec) throw ConversionImpossible{*issue.echec};
    return issue.rapport;
}

void compteAffichesNonTrouvees(const Contexte& c, const std::string& original, RapportJet& rapport) {
    const std::string dossier = dossierImages(c);
    rapport.affichesNonTrouvees = std::ranges::count_if(rapport.fichiers, [&](const std::string& nom) {
        const std::string affiche = std::string(kDansUnFichier) + nom;
        return !fichierAffiche(dossier, affiche) && !afficheVoisine(original, affiche);
    });
}

std::string convertitEtEchange(const Contexte& c, const std::string& original, const std::string& travail) {
    RapportJet rapport = litLaBaseJet(c, original, travail);
    compteAffichesNonTrouvees(c, original, rapport);
    std::string pertes;
    try {
        pertes = garde(original, rapport);
        const std::string conservee = echange(travail, original);
        std::string texte = "La base a été convertie.\n" + rapport.texte() + "\nL'original est conservé sous le nom " +
                            util::entreChevrons(nomSeul(conservee)) + ".";
        if (!pertes.empty()) texte += "\nCe qui est perdu est dit dans " + util::entreChevrons(nomSeul(pertes)) + ".";
        return texte;
    } catch (const ConversionImpossible&) {
        fichiers::supprime(travail);
        if (!pertes.empty()) fichiers::supprime(pertes);
        throw;
    }
}

}  // namespace

bool estJet(const std::string& chemin) {
    return jet::estBaseJet(fichierReel(chemin));
}

std::optional<std::string> convertitJet(const Contexte& c, const std::string& chemin) {
    const std::string original = fichierReel(chemin);
    if (!accepteLaConversion(c, original)) return std::nullopt;
    const std::string travail = original + std::string(kConversion);
    try {
        const fichiers::Verrou verrou(original);
        if (!verrou.estPris())
            throw ConversionImpossible{"Le fichier ne peut pas être lu, ou un autre programme le convertit déjà."};
        exigeNomLibre(original);
        nettoieLeTravail(travail);
        return convertitEtEchange(c, original, travail);
    } catch (const ConversionArretee&) {
        c.dialogues.MsgBox("La conversion a été arrêtée. Le fichier " + original + " n'a pas été modifié.",
                           dialogues::kInformation);
    } catch (const PertesRefusees&) {
    } catch (const ConversionImpossible& echec) {
        c.dialogues.MsgBox(
            "La base n'a pas pu être convertie.\n" + echec.texte + "\nLe fichier " + original + " n'a pas été modifié.",
            dialogues::kCritique);
    }
    return std::nullopt;
}

}  // namespace db
