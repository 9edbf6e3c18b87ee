#include "browse/ModifieNoteFilm.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "db/TitreCite.h"
#include "platform/systeme/Horloge.h"
#include "util/Nombres.h"

namespace browse {

void ModifieNoteFilm(const Contexte& c, int note) {
    dao::Recordset films = db::ouvreRequete(c, db::enonceFilmNote(c.film), db::NumeroErreur::ModifieNoteFilm);
    if (films.Eof()) {
        c.dialogues.MsgBox("Film non trouvé !", dialogues::kExclamation);
        return;
    }
    films.Edit();
    films.assigne("Note", note == 0 ? dao::Valeur() : dao::Valeur(note));
    films.Update();
    const std::string titre = db::titreCite(c.film.titre);
    c.annulations.nomme("notation de " + titre,
                        titre + " : " + (note == 0 ? "note effacée." : "noté " + std::to_string(note) + "/10."));
    montreNote(c.fiche, note);
}

void montreNote(EtatFiche& fiche, double note) {
    fiche.lblNote.Caption = texteDeLaNote(note);
    fiche.note = note < 1 || note > 10 ? 0 : note;
}

std::string texteDeLaNote(double note) {
    if (note < 1 || note > 10) return "Pas de notation";
    return "Note : " + util::texteDuNombre(note, systeme::separateurDecimal()) + "/10";
}

}  // namespace browse
