#include "acquire/cmdAjoutAuto_Click.h"

#include "acquire/PassageImport.h"
#include "acquire/cmdParcourir2_Click.h"
#include "browse/AfficheNbTitres.h"
#include "browse/CreeEtAfficheRecherche.h"
#include "browse/CreeRequeteAffichage.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "db/Sauvegardes.h"
#include "util/Nombres.h"

namespace acquire {

namespace {

ChoixImport demandeChoix(const Contexte& c, long nombre) {
    ChoixImport choix;
    choix.possedes = c.dialogues.MsgBox(questionPossession(nombre), dialogues::kQuestion) == dialogues::kOui;
    if (choix.possedes)
        choix.support = c.dialogues.InputBox(
            "Vous pouvez indiquer le nom du support qui sera attribué à tous les films ajoutés (DVD, K7...)",
            "Nom du support");
    choix.testeRessemblance =
        c.dialogues.MsgBox(
            "Souhaitez-vous que le logiciel vérifie si les nouveaux titres ajoutés ressemblent à d'autres "
            "titres déjà présents en base ?",
            dialogues::kQuestion) == dialogues::kOui;
    choix.date = c.horloge.dateDuJour();
    return choix;
}

}  // namespace

void cmdAjoutAuto_Click(const Contexte& c) {
    if (!remplaceCheminWindows(c)) return;
    browse::puisVersLaListe(c, [&c] { importeFiches(c, {dossierDesFiches(c)}, [](RapportImport&) {}); });
}

void importeFiches(const Contexte& c, const FichesChoisies& fiches, const std::function<void(RapportImport&)>& range) {
    const long nombre = fiches.nombre();
    montreNombreDeFiches(c);
    if (nombre == 0) {
        c.dialogues.MsgBox("Aucun fichier .film trouvé !", dialogues::kExclamation);
        return;
    }
    const ChoixImport choix = demandeChoix(c, nombre);
    if (!db::sauvegardeAvant(c, db::Avant::ImportFiches, fiches.octets(c.stockage.dansLaBase()))) return;
    RapportImport rapport = PassageImport(c, choix, fiches).execute();
    c.annulations.nomme("import de " + util::phraseCompte(nombre, "# fiche", "# fiches"),
                        "Import : " + util::phraseCompte(rapport.ajoutes, "# film ajouté.", "# films ajoutés."));
    range(rapport);
    montreNombreDeFiches(c);
    c.dialogues.montre(rapport.texte());
    browse::montreAjoutsDuJour(c, choix.date);
    browse::AfficheNbTitres(c);
    browse::RaffraichitBoitesDeroulantes(c);  // the batch may have brought a new support
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
