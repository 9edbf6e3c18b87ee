#include "edit/cmdModifieNote_Click.h"

#include "browse/ModifieNoteFilm.h"
#include "edit/RemontreFilm.h"
#include "util/Nombres.h"
#include "util/Texte.h"

namespace edit {

void cmdModifieNote_Click(const Contexte& c) {
    if (!c.film.estUnFilm()) return;
    const std::optional<int> note =
        noteDemandee(c.dialogues.InputBox("Quelle note (entre 1 et 10) voulez vous attribuer au film \"" +
                                          c.film.titre + "\" de " + c.film.realisateur + " ?"));
    if (!note) return;
    browse::ModifieNoteFilm(c, *note);
    if (c.liste.ChoixTri.ListIndex == browse::kTriNote) remontreFilm(c);
}

std::optional<int> noteDemandee(std::string_view reponse) {
    if (reponse.empty()) return 0;
    const double note = util::Val(util::remplace(reponse, ",", "."));
    if (note < 1 || note > 10) return std::nullopt;
    return util::arrondiPair(note);
}

}  // namespace edit
