#include "acquire/cmdAjoutAuto_Click.h"

#include "acquire/CompteFilmsRepertoire.h"
#include "acquire/cmdParcourir2_Click.h"

namespace acquire {

void ImportFiches::cmdAjoutAuto_Click() {
    importe([](RapportImport&) {});
}

void ImportFiches::importe(const Rangement& range) {
    const std::string dossier = dossierDesFiches(m_outils.ajout, m_outils.chemins);
    const long nombre = CompteFilmsRepertoire(dossier);
    montreNombreDeFiches(m_outils.ajout, m_outils.chemins);
    if (nombre == 0) {
        m_outils.dialogues.MsgBox("Aucun fichier .film trouvé !", dialogues::kExclamation);
        return;
    }
    const ChoixImport choix = demandeChoix(nombre);
    RapportImport rapport = PassageImport(m_outils, choix, dossier).execute();
    range(rapport);
    montreNombreDeFiches(m_outils.ajout, m_outils.chemins);
    m_outils.dialogues.montre(rapport.texte());
    montreAjoutsDuJour(choix.date);
}

ChoixImport ImportFiches::demandeChoix(long nombre) {
    dialogues::Dialogues& boites = m_outils.dialogues;
    ChoixImport choix;
    choix.possedes = boites.MsgBox(questionPossession(nombre), dialogues::kQuestion) == dialogues::kOui;
    if (choix.possedes)
        choix.support = boites.InputBox(
            "Vous pouvez indiquer le nom du support qui sera attribué à tous les films ajoutés (DVD, K7...)",
            "Nom du support");
    choix.testeRessemblance =
        boites.MsgBox(
            "Souhaitez-vous que le logiciel vérifie si les nouveaux titres ajoutés ressemblent à d'autres "
            "titres déjà présents en base ?",
            dialogues::kQuestion) == dialogues::kOui;
    choix.date = m_horloge.dateDuJour();
    return choix;
}

void ImportFiches::montreAjoutsDuJour(const std::string& date) {
    m_suites.liste.critereRecherche = "DateAjout = \"" + date + "\"";
    m_suites.liste.zoneRecherche = browse::kZoneTous;
    m_suites.creeEtAfficheRecherche();
    m_suites.afficheNbTitres();
    m_suites.boites.RaffraichitBoitesDeroulantes();  // the batch may have brought a new support
}

std::string questionPossession(long nombre) {
    const std::string debut = nombre == 1 ? "Souhaitez-vous déclarer le film comme étant en votre possession ?"
                                          : "Souhaitez-vous déclarer les " + std::to_string(nombre) +
                                                " films comme étant en votre possession ?";
    return debut +
           "\n\nDans le cas contraire, l'ajout sera fait mais il faudra indiquer \n"
           " pour chaque film qu'il se trouve bien dans votre vidéothèque.";
}

}  // namespace acquire
