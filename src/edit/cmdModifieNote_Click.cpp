#include "edit/cmdModifieNote_Click.h"

#include "browse/ModifieNoteFilm.h"
#include "edit/RemontreFilm.h"
#include "util/Nombres.h"
#include "util/Texte.h"

namespace edit {

namespace {

constexpr int kNoteMax = 10;

void retient(const Contexte& c, int note) {
    browse::ModifieNoteFilm(c, note);
    if (c.liste.ChoixTri.ListIndex == browse::kTriNote) remontreFilm(c);
}

}  // namespace

void cmdModifieNote_Click(const Contexte& c) {
    if (!c.film.estUnFilm()) return;
    const std::optional<int> note =
        noteDemandee(c.dialogues.InputBox("Quelle note (entre 1 et 10) voulez vous attribuer au film \"" +
                                          c.film.titre + "\" de " + c.film.realisateur + " ?"));
    if (note) retient(c, *note);
}

void etoilesNote_Click(const Contexte& c, int etoile) {
    etoilesNote_Change(c, etoile == c.fiche.note ? 0 : etoile);
}

void etoilesNote_Change(const Contexte& c, int note) {
    if (c.film.estUnFilm() && note >= 0 && note <= kNoteMax) retient(c, note);
}

std::optional<int> noteDemandee(std::string_view reponse) {
    if (reponse.empty()) return 0;
    const double note = util::Val(util::remplace(reponse, ",", "."));
    if (note < 1 || note > 10) return std::nullopt;
    return util::arrondiPair(note);
}

}  // namespace edit
