#include "view/LanceFichier.h"

#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/LigneDeCommande.h"
#include "util/Texte.h"

#include <chrono>

namespace view {

namespace {

constexpr std::chrono::milliseconds kEntreDeuxSouffles{50};
constexpr const char* kManqueDeMemoire = "Le système manque de mémoire pour exécuter le fichier.";

// A path and what follows it: `"/films/L'été.avi" -x` or the path alone, without quotes.
struct Designation {
    std::string chemin, suite;
};

Designation designation(const std::string& fichier) {
    if (!fichier.starts_with('"')) return {fichier, ""};
    // A double quote is a character like any other in a name: the closing one is the last.
    const std::size_t fin = fichier.rfind('"');
    if (fin == 0) return {fichier.substr(1), ""};
    return {fichier.substr(1, fin - 1), fichier.substr(fin + 1)};
}

bool estUnProgramme(const std::string& extension) {
    return extension == "EXE" || extension == "COM" || extension == "PIF";
}

const char* raison(systeme::Lancement issue) {
    switch (issue) {
        case systeme::Lancement::Introuvable:
            return " : il est introuvable.";
        case systeme::Lancement::Interdit:
            return " : son exécution n'est pas permise.";
        case systeme::Lancement::PasUnProgramme:
            return " : ce n'est pas un programme que cette machine sait exécuter.";
        default:
            return ".";
    }
}

bool refuse(const db::Contexte& c, const std::string& texte, int style) {
    c.dialogues.MsgBox(texte, style);
    return false;
}

bool ouvreDocument(const db::Contexte& c, const std::string& chemin, const std::string& dossier, bool attente) {
    if (attente)
        return refuse(c, "L'attente de la fin d'exécution d'un document n'est pas gérée !", dialogues::kExclamation);
    switch (c.documents.ouvreFichier(chemin, dossier)) {
        case systeme::Ouverture::Faite:
            return true;
        case systeme::Ouverture::SansMemoire:
            return refuse(c, kManqueDeMemoire, dialogues::kCritique);
        case systeme::Ouverture::SansAssociation:
            return refuse(c,
                          "Le fichier à lancer est de type " + util::majuscules(fichiers::extension(chemin)) +
                              " mais aucune application n'est associée.",
                          dialogues::kExclamation);
        case systeme::Ouverture::Echouee:
            break;
    }
    return refuse(c, "Le fichier " + chemin + " n'a pas pu être ouvert.", dialogues::kCritique);
}

bool attendsFin(const db::Contexte& c, systeme::ProgrammeEnCours& programme) {
    const ecran::Travail travail(c.ecran);
    while (!programme.attendsFin(kEntreDeuxSouffles)) {
        if (c.ecran.respire()) continue;
        programme.termine();
        return false;
    }
    return true;
}

bool lanceProgramme(const db::Contexte& c, const systeme::Commande& commande, bool attente) {
    const auto echec = [&](systeme::Lancement issue) {
        return refuse(c, texteEchecLancement(issue, commande.arguments.front()), dialogues::kCritique);
    };
    if (!attente) {
        const systeme::Lancement issue = c.programmes.lance(commande);
        return issue == systeme::Lancement::Fait || echec(issue);
    }
    const systeme::ProgrammeLance lance = c.programmes.lancePourAttendre(commande);
    return lance.enCours ? attendsFin(c, *lance.enCours) : echec(lance.issue);
}

}  // namespace

bool LanceFichier(const db::Contexte& c, const std::string& fichier, bool existence, const std::string& /*verbe*/,
                  const std::string& parametres, const std::string& dossier, const std::string& /*mode*/,
                  bool attente) {
    const Designation designe = designation(fichier);
    if (existence && !fichiers::existe(designe.chemin))
        return refuse(c, "Fichier " + fichier + " inexistant !", dialogues::kCritique);
    const std::string chemin = fichiers::trouve(designe.chemin).value_or(designe.chemin);
    const std::string lieu = dossier.empty() ? fichiers::dossierDe(chemin) : designation(dossier).chemin;
    if (!estUnProgramme(util::majuscules(fichiers::extension(chemin)))) return ouvreDocument(c, chemin, lieu, attente);

    const auto suite = systeme::decoupe(parametres.empty() ? designe.suite : parametres);
    if (!suite)
        return refuse(c, "Un guillemet n'est pas fermé dans les paramètres de " + chemin + ".", dialogues::kCritique);
    systeme::Commande commande{{chemin}, lieu};
    commande.arguments.insert(commande.arguments.end(), suite->begin(), suite->end());
    return lanceProgramme(c, commande, attente);
}

std::string texteEchecLancement(systeme::Lancement issue, const std::string& programme) {
    if (issue == systeme::Lancement::SansMemoire) return kManqueDeMemoire;
    return "Le programme " + programme + " n'a pas pu être lancé" + raison(issue);
}

}  // namespace view
