#include "ensemble/FicheComparee.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/ChampsLus.h"

#include <algorithm>

namespace ensemble {

std::optional<edit::FilmLu> filmDeLaBase(const Contexte& c, const db::CleFilm& film) {
    const dao::Recordset ligne = db::ouvreRequete(c, db::enonceFilm(film), db::NumeroErreur::Apercus);
    if (ligne.Eof()) return std::nullopt;
    edit::FilmLu lu;
    lu.titre = ligne.texte("Titre");
    lu.realisateur = ligne.texte("Realisateur");
    for (const edit::ChampLu& champ : edit::kChampsLus)
        lu.*champ.valeur = ligne.texte(champ.colonne);
    return lu;
}

PlanDeFusion compare(const edit::FilmLu& gauche, const edit::FilmLu& droite) {
    PlanDeFusion plan{gauche, droite};
    plan.film.push_back({"Titre", "Titre", gauche.titre, droite.titre});
    plan.film.push_back({"Realisateur", "Réalisateur", gauche.realisateur, droite.realisateur});
    const auto ajoute = [&](const edit::ChampLu& champ) {
        plan.film.push_back({champ.colonne, champ.legende, gauche.*champ.valeur, droite.*champ.valeur});
    };
    const auto estLeResume = [](const edit::ChampLu& champ) { return champ.valeur == &edit::FilmLu::resume; };
    for (const edit::ChampLu& champ : edit::kChampsLus)
        if (!estLeResume(champ)) ajoute(champ);
    ajoute(*std::ranges::find_if(edit::kChampsLus, estLeResume));  // the longest of them comes last
    return plan;
}

}  // namespace ensemble
