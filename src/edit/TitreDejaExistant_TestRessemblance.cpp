#include "edit/TitreDejaExistant_TestRessemblance.h"

#include "db/Requete.h"
#include "edit/LettresDuCatalogue.h"

#include <algorithm>
#include <cstdint>

namespace edit {
namespace {

std::string nomme(const db::CleFilm& film) {
    return film.realisateur.empty() ? film.titre : film.titre + " de " + film.realisateur;
}

}  // namespace

bool ressemble(const util::CompteLettres& gauche, const util::CompteLettres& droite) {
    // Common letters are at most those of the shorter text: lengths alone rule most pairs out.
    const std::uint64_t courte = std::min(gauche.total, droite.total), longue = std::max(gauche.total, droite.total);
    return 200 * courte > kSeuilRessemblance * (courte + longue) &&
           util::similarite(gauche, droite) > kSeuilRessemblance;
}

std::string questionRessemblance(const db::CleFilm& film, const db::CleFilm& ancien) {
    return "Le nouveau titre ajouté (" + nomme(film) + ") ressemble beaucoup \n" +
           " à un autre existant déjà dans la base (" + nomme(ancien) + ").\n\n" +
           "Souhaitez-vous malgré tout l'ajouter ?";
}

dao::Recordset ouvreFilmsParTitre(const Contexte& c) {
    return db::ouvreRequete(c, "SELECT * FROM films ORDER BY Titre ASC ;", db::NumeroErreur::TestRessemblance);
}

bool TitreDejaExistant_TestRessemblance(const Contexte& c, const db::CleFilm& film, const LettresDuCatalogue& catalogue,
                                        const std::function<void()>& avantQuestion) {
    return std::ranges::any_of(catalogue.prochesParTitre(film), [&](const db::CleFilm& ancien) {
        if (avantQuestion) avantQuestion();
        return c.dialogues.MsgBox(questionRessemblance(film, ancien), dialogues::kQuestion) != dialogues::kOui;
    });
}

}  // namespace edit
