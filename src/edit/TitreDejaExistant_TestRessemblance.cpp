#include "edit/TitreDejaExistant_TestRessemblance.h"

#include "db/Requete.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

namespace edit {
namespace {

// Tells whether directors resemble one; a director of many films is compared once.
class RealisateursProches {
  public:
    explicit RealisateursProches(std::string_view realisateur) : m_lettres(util::compteLettres(realisateur)) {}

    bool operator()(std::string_view autre) {
        const auto [place, nouveau] = m_connus.try_emplace(std::string(autre), false);
        if (nouveau) place->second = ressemble(m_lettres, util::compteLettres(autre));
        return place->second;
    }

  private:
    util::CompteLettres m_lettres;
    std::unordered_map<std::string, bool> m_connus;
};

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

bool TitreDejaExistant_TestRessemblance(const Contexte& c, const db::CleFilm& film,
                                        const std::function<void()>& avantQuestion) {
    dao::Recordset films = ouvreFilmsParTitre(c);
    const dao::Colonne colonneTitre = films.colonne("Titre"), colonneRealisateur = films.colonne("Realisateur");
    const util::CompteLettres lettres = util::compteLettres(film.titre);
    RealisateursProches realisateurProche(film.realisateur);
    for (; !films.Eof(); films.MoveNext()) {
        if (!realisateurProche(films.vue(colonneRealisateur))) continue;
        if (!ressemble(lettres, util::compteLettres(films.vue(colonneTitre)))) continue;
        const std::string question = questionRessemblance(film, {films.texte("Titre"), films.texte("Realisateur")});
        if (avantQuestion) avantQuestion();
        if (c.dialogues.MsgBox(question, dialogues::kQuestion) != dialogues::kOui) return true;
    }
    return false;
}

}  // namespace edit
