#include "db/cmdSupprInfosPerso_Click.h"

#include "db/Sauvegardes.h"
#include "platform/dao/LigneSupprimee.h"
#include "util/Nombres.h"

namespace db {

namespace {

bool confirmeLaSuppression(const Contexte& c) {
    return c.dialogues.MsgBox(
               "Vous allez supprimer tout ce qui concerne les titres personnels (réservations, prêts, nom de fichiers, "
               "rangement...)\nVoulez-vous continuer ?",
               dialogues::kQuestion, "Suppression des titres personnels") == dialogues::kOui;
}

// Answers how many; a holding that someone else deleted meanwhile is not counted.
long supprimeTout(const Contexte& c, dao::Recordset& possedes) {
    dao::Transaction ensemble(c.base.base);
    const long nombre = possedes.RecordCount();
    long supprimes = 0;
    possedes.MoveFirst();
    for (long rang = 0; rang < nombre; ++rang, possedes.MoveNext())
        if (dao::siPresente([&] { possedes.Delete(); })) ++supprimes;
    ensemble.confirme();
    return supprimes;
}

}  // namespace

void cmdSupprInfosPerso_Click(const Contexte& c) {
    dao::Recordset possedes = c.base.base.OpenRecordset("SELECT * FROM Personnel order by titre2;");
    if (possedes.RecordCount() == 0) {
        c.dialogues.MsgBox("Aucun titre personnel !", dialogues::kExclamation);
        return;
    }
    if (!confirmeLaSuppression(c)) return;
    if (!sauvegardeAvant(c, Avant::Possessions, possedes.RecordCount() * kOctetsParLigne)) return;
    const long supprimes = supprimeTout(c, possedes);
    const std::string combien = util::phraseCompte(supprimes, "# titre personnel", "# titres personnels");
    c.annulations.nomme("suppression de " + combien, "Appartenance supprimée : " + combien + ".");
    c.rafraichissement.AfficheNbTitres();
    c.rafraichissement.AffichageApresModification();
    c.rafraichissement.RaffraichitBoitesDeroulantes();
    c.dialogues.MsgBox("Appartenance de " + util::phraseCompte(supprimes, "# titre", "# titres") + " supprimée.",
                       dialogues::kInformation);
}

}  // namespace db
