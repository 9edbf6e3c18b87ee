#include "ensemble/FicheComparee.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"

#include <array>

namespace ensemble {

namespace {

struct Champ {
    const char* nom;
    const char* legende;
    std::string edit::FilmLu::*valeur;
};
constexpr std::array<Champ, 7> kChamps{{{"Annee", "Année", &edit::FilmLu::annee},
                                        {"Origine", "Origine", &edit::FilmLu::origine},
                                        {"Genre", "Genre", &edit::FilmLu::genre},
                                        {"Duree", "Durée", &edit::FilmLu::duree},
                                        {"Acteurs", "Acteurs", &edit::FilmLu::acteurs},
                                        {"Production", "Production", &edit::FilmLu::production},
                                        {"Resume", "Résumé", &edit::FilmLu::resume}}};

}  // namespace

std::optional<edit::FilmLu> filmDeLaBase(const Contexte& c, const db::CleFilm& film) {
    const dao::Recordset ligne = db::ouvreRequete(c, db::enonceFilm(film), db::NumeroErreur::Apercus);
    if (ligne.Eof()) return std::nullopt;
    edit::FilmLu lu;
    lu.titre = ligne.texte("Titre");
    lu.realisateur = ligne.texte("Realisateur");
    for (const Champ& champ : kChamps)
        lu.*champ.valeur = ligne.texte(champ.nom);
    return lu;
}

PlanDeFusion compare(const edit::FilmLu& gauche, const edit::FilmLu& droite) {
    PlanDeFusion plan{gauche, droite};
    plan.film.push_back({"Titre", "Titre", gauche.titre, droite.titre});
    plan.film.push_back({"Realisateur", "Réalisateur", gauche.realisateur, droite.realisateur});
    for (const Champ& champ : kChamps)
        plan.film.push_back({champ.nom, champ.legende, gauche.*champ.valeur, droite.*champ.valeur});
    return plan;
}

}  // namespace ensemble
