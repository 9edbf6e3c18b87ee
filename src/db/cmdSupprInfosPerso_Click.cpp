#include "db/cmdSupprInfosPerso_Click.h"

#include "util/Nombres.h"

namespace db {

void cmdSupprInfosPerso_Click::operator()() {
    dao::Recordset possedes = m_base.base.OpenRecordset("SELECT * FROM Personnel order by titre2;");
    if (possedes.RecordCount() == 0) {
        m_dialogues.MsgBox("Aucun titre personnel !", dialogues::kExclamation);
        return;
    }
    if (!confirme()) return;
    const long supprimes = supprime(possedes);
    m_rafraichissement.AfficheNbTitres();
    m_rafraichissement.AffichageApresModification();
    m_rafraichissement.RaffraichitBoitesDeroulantes();
    m_dialogues.MsgBox("Appartenance de " + util::phraseCompte(supprimes, "# titre", "# titres") + " supprimée.",
                       dialogues::kInformation);
}

bool cmdSupprInfosPerso_Click::confirme() {
    return m_dialogues.MsgBox(
               "Vous allez supprimer tout ce qui concerne les titres personnels (réservations, prêts, nom de fichiers, "
               "rangement...)\nVoulez-vous continuer ?",
               dialogues::kQuestion, "Suppression des titres personnels") == dialogues::kOui;
}

// A holding that someone else deleted meanwhile is not counted.
long cmdSupprInfosPerso_Click::supprime(dao::Recordset& possedes) {
    dao::Transaction ensemble(m_base.base);
    const long nombre = possedes.RecordCount();
    long supprimes = 0;
    possedes.MoveFirst();
    for (long rang = 0; rang < nombre; ++rang, possedes.MoveNext()) {
        try {
            possedes.Delete();
            ++supprimes;
        } catch (const dao::ErreurDao& erreur) {
            if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
        }
    }
    ensemble.confirme();
    return supprimes;
}

}  // namespace db
