#include "voisins/Examen.h"

#include "edit/LettresDuCatalogue.h"
#include "edit/TitreDejaExistant.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "ensemble/Avancement.h"
#include "util/Nombres.h"
#include "util/Texte.h"
#include "voisins/Lecteurs.h"

#include <algorithm>

namespace voisins {

namespace {

struct EnAttente {
    std::size_t rang;
    util::CompteLettres titre, realisateur;
};

// One look at the base names for each of them the first film that it resembles.
void nommeLesProches(const acquire::Contexte& c, std::vector<EnAttente> enAttente, std::vector<Jugement>& jugements) {
    if (enAttente.empty()) return;
    dao::Recordset films = edit::ouvreFilmsParTitre(c);
    ensemble::Avancement avancement(c, films.RecordCount(), "Recherche des films qui se ressemblent");
    for (; !films.Eof() && !enAttente.empty(); films.MoveNext()) {
        const std::string titre = films.texte("Titre");
        const auto lettres = util::compteLettres(titre),
                   duRealisateur = util::compteLettres(films.texte("Realisateur"));
        std::erase_if(enAttente, [&](const EnAttente& celui) {
            if (!edit::ressemble(celui.realisateur, duRealisateur) || !edit::ressemble(celui.titre, lettres))
                return false;
            jugements[celui.rang].proche = titre;
            return true;
        });
        if (!avancement.avance()) throw LectureArretee{};
    }
}

}  // namespace

long Examen::nombre(Sort sort) const {
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
        util::phraseCompte(nombre(Sort::Nouveau), "# nouveau", "# nouveaux");
    if (const long n = nombre(Sort::DejaLa); n > 0) texte += util::phraseCompte(n, ", # déjà là", ", # déjà là");
    if (const long n = nombre(Sort::Ressemblant); n > 0)
        texte += util::phraseCompte(n, ", # qui ressemble à un film de la base (à cocher pour l'ajouter)",
                                    ", # qui ressemblent à un film de la base (à cocher pour les ajouter)");
    texte += affiches == 0 ? "." : util::phraseCompte(affiches, ". # affiche.", ". # affiches.");
    for (const std::string& remarque : collection.remarques)
        texte += "\n" + remarque;
    return texte;
}

std::string texteDuSort(const Jugement& jugement) {
    switch (jugement.sort) {
        case Sort::Nouveau:
            return "Nouveau";
        case Sort::DejaLa:
            return "Déjà là";
        case Sort::Ressemblant:
            break;
    }
    return "Ressemble à " + util::entreChevrons(jugement.proche);
}

Examen examine(const acquire::Contexte& c, Collection collection) {
    Examen examen{std::move(collection)};
    std::vector<EnAttente> enAttente;
    {
        ensemble::Avancement avancement(c, std::ssize(examen.collection.films), "Comparaison avec la base");
        const edit::LettresDuCatalogue lettres = edit::LettresDuCatalogue::de(c);
        for (const FilmVoisin& film : examen.collection.films) {
            Jugement jugement;
            if (edit::TitreDejaExistant(c, film))
                jugement = {Sort::DejaLa, {}, false};
            else if (lettres.aUnProche(film))
                jugement = {Sort::Ressemblant, {}, false};
            if (jugement.sort == Sort::Ressemblant)
                enAttente.push_back(
                    {examen.jugements.size(), util::compteLettres(film.titre), util::compteLettres(film.realisateur)});
            examen.jugements.push_back(std::move(jugement));
            if (!avancement.avance()) throw LectureArretee{};
        }
    }
    nommeLesProches(c, std::move(enAttente), examen.jugements);
    return examen;
}

}  // namespace voisins
