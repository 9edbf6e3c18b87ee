#include "view/LanceFichier.h"

#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/LigneDeCommande.h"
#include "util/Texte.h"
#include "view/EchecLancement.h"

#include <chrono>

namespace view {

namespace {

constexpr std::chrono::milliseconds kEntreDeuxSouffles{50};

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

}  // namespace

bool LanceFichier::operator()(const std::string& fichier, bool existence, const std::string& /*verbe*/,
                              const std::string& parametres, const std::string& dossier, const std::string& /*mode*/,
                              bool attente) {
    const Designation designe = designation(fichier);
    if (existence && !fichiers::existe(designe.chemin))
        return refuse("Fichier " + fichier + " inexistant !", dialogues::kCritique);
    const std::string chemin = fichiers::trouve(designe.chemin).value_or(designe.chemin);
    const std::string lieu = dossier.empty() ? fichiers::dossierDe(chemin) : designation(dossier).chemin;
    if (!estUnProgramme(util::majuscules(fichiers::extension(chemin)))) return ouvreDocument(chemin, lieu, attente);

    const auto suite = systeme::decoupe(parametres.empty() ? designe.suite : parametres);
    if (!suite)
        return refuse("Un guillemet n'est pas fermé dans les paramètres de " + chemin + ".", dialogues::kCritique);
    systeme::Commande commande{{chemin}, lieu};
    commande.arguments.insert(commande.arguments.end(), suite->begin(), suite->end());
    return lanceProgramme(commande, attente);
}

bool LanceFichier::ouvreDocument(const std::string& chemin, const std::string& dossier, bool attente) {
    if (attente)
        return refuse("L'attente de la fin d'exécution d'un document n'est pas gérée !", dialogues::kExclamation);
    switch (m_documents.ouvreFichier(chemin, dossier)) {
        case systeme::Ouverture::Faite:
            return true;
        case systeme::Ouverture::SansMemoire:
            return refuse(kManqueDeMemoire, dialogues::kCritique);
        case systeme::Ouverture::SansAssociation:
            return refuse("Le fichier à lancer est de type " + util::majuscules(fichiers::extension(chemin)) +
                              " mais aucune application n'est associée.",
                          dialogues::kExclamation);
        case systeme::Ouverture::Echouee:
            break;
    }
    return refuse("Le fichier " + chemin + " n'a pas pu être ouvert.", dialogues::kCritique);
}

bool LanceFichier::lanceProgramme(const systeme::Commande& commande, bool attente) {
    if (!attente) {
        const systeme::Lancement issue = m_programmes.lance(commande);
        return issue == systeme::Lancement::Fait ||
               refuse(texteEchecLancement(issue, commande.arguments.front()), dialogues::kCritique);
    }
    const systeme::ProgrammeLance lance = m_programmes.lancePourAttendre(commande);
    if (!lance.enCours)
        return refuse(texteEchecLancement(lance.issue, commande.arguments.front()), dialogues::kCritique);
    return attendsFin(*lance.enCours);
}

bool LanceFichier::attendsFin(systeme::ProgrammeEnCours& programme) {
    const ecran::Travail travail(m_ecran);
    while (!programme.attendsFin(kEntreDeuxSouffles)) {
        if (m_ecran.respire()) continue;
        programme.termine();
        return false;
    }
    return true;
}

bool LanceFichier::refuse(const std::string& texte, int style) {
    m_dialogues.MsgBox(texte, style);
    return false;
}

}  // namespace view
