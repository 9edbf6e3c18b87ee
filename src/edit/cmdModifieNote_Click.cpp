#include "edit/cmdModifieNote_Click.h"

#include "util/Nombres.h"
#include "util/Texte.h"

namespace edit {

void Notation::cmdModifieNote_Click() {
    if (!m_film.estUnFilm()) return;
    const std::optional<int> note =
        noteDemandee(m_dialogues.InputBox("Quelle note (entre 1 et 10) voulez vous attribuer au film \"" +
                                          m_film.titre + "\" de " + m_film.realisateur + " ?"));
    if (!note) return;
    m_modifieNoteFilm(*note);
    if (m_liste.ChoixTri.ListIndex != browse::kTriNote) return;
    const std::string titre = m_film.titre, realisateur = m_film.realisateur;  // the refresh forgets them
    m_suites.affichageApresModification();
    m_suites.selectionneTitre(titre, realisateur);
}

std::optional<int> noteDemandee(std::string_view reponse) {
    if (reponse.empty()) return 0;
    const double note = util::Val(util::remplace(reponse, ",", "."));
    if (note < 1 || note > 10) return std::nullopt;
    return util::arrondiPair(note);
}

}  // namespace edit
