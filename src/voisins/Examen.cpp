#include "voisins/Examen.h"

#include "edit/JugeFilms.h"
#include "ensemble/Avancement.h"
#include "util/Nombres.h"
#include "voisins/Lecteurs.h"

#include <algorithm>

namespace voisins {

namespace {

// Of pictures only where they are is known: what cannot be taken, the import tells.
edit::SortDeLAffiche sortDeLAffiche(const AfficheVoisine& affiche) {
    return affiche.ou == AfficheVoisine::Ou::Nulle ? edit::SortDeLAffiche::Absente : edit::SortDeLAffiche::Prise;
}

}  // namespace

long Examen::nombre(edit::SortDuFilm sort) const {
    return static_cast<long>(std::ranges::count(jugements, sort, &Jugement::sort));
}

long Examen::aAjouter() const {
    return static_cast<long>(std::ranges::count_if(jugements, &Jugement::aAjouter));
}

std::string Examen::texte() const {
    const long films = std::ssize(collection.films),
               affiches = std::ranges::count_if(
                   collection.films, [](const auto&film) { return film.affiche.ou != AfficheVoisine::Ou::Nulle; });
    std::string texte =
        util::phraseCompte(films, "# film", "# films") +
        (collection.programme == Programme::Csv ? " dans ce tableau : "
                                                : " dans cette collection de " + nomDe(collection.programme) + " : ") +
        util::phraseCompte(nombre(edit::SortDuFilm::Nouveau), "# nouveau", "# nouveaux");
    if (const long n = nombre(edit::SortDuFilm::DejaLa); n > 0)
        texte += util::phraseCompte(n, ", # déjà là", ", # déjà là");
    if (const long n = nombre(edit::SortDuFilm::Ressemblant); n > 0)
        texte += util::phraseCompte(n, ", # qui ressemble à un film de la base (à cocher pour l'ajouter)",
                                    ", # qui ressemblent à un film de la base (à cocher pour les ajouter)");
    texte += affiches == 0 ? "." : util::phraseCompte(affiches, ". # affiche.", ". # affiches.");
    for (const std::string& remarque : collection.remarques)
        texte += "\n" + remarque;
    return texte;
}

Examen examine(const acquire::Contexte& c, Collection collection) {
    Examen examen{std::move(collection)};
    ensemble::Avancement avancement(c, std::ssize(examen.collection.films), "Comparaison avec la base");
    const edit::JugeFilms juge(c, true);
    for (const FilmVoisin& film : examen.collection.films) {
        Jugement jugement{juge.examine(film, [&film] { return sortDeLAffiche(film.affiche); })};
        jugement.film = {};
        jugement.aAjouter = jugement.sort == edit::SortDuFilm::Nouveau;
        examen.jugements.push_back(std::move(jugement));
        if (!avancement.avance()) throw LectureArretee{};
    }
    return examen;
}

}  // namespace voisins
