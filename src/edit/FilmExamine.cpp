#include "edit/FilmExamine.h"

#include "db/TitreCite.h"
#include "edit/Complement.h"
#include "util/Nombres.h"

#include <algorithm>

namespace edit {

namespace {

bool manqueSonAffiche(const FilmExamine& film) {
    return film.affiche != SortDeLAffiche::SansObjet && film.affiche != SortDeLAffiche::Prise;
}

std::string texteDeLaRessemblance(const FilmExamine& film) {
    if (!film.proche) return "Ressemble à un autre film";
    return "Ressemble à " + db::titreCite(film.proche->film.titre) + " à " + std::to_string(pourCent(*film.proche)) +
           " %" +
           (film.autresProches == 0 ? ""
                                    : util::phraseCompte(static_cast<long>(film.autresProches), " et à # autre film",
                                                         " et à # autres films"));
}

// The parts of a sentence that say how many there are of what.
class Parties {
  public:
    void compte(long nombre, std::string_view singulier, std::string_view pluriel) {
        if (nombre > 0) m_texte += (m_texte.empty() ? "" : ", ") + util::phraseCompte(nombre, singulier, pluriel);
    }
    [[nodiscard]] const std::string& texte() const { return m_texte; }

  private:
    std::string m_texte;
};

}  // namespace

bool estDuGenre(const FilmExamine& film, GenreDExamen genre) {
    switch (genre) {
        case GenreDExamen::Nouveaux:
            return film.sort == SortDuFilm::Nouveau;
        case GenreDExamen::DejaLa:
            return film.sort == SortDuFilm::DejaLa;
        case GenreDExamen::Ressemblants:
            return film.sort == SortDuFilm::Ressemblant;
        case GenreDExamen::AProbleme:
            return film.sort == SortDuFilm::Illisible || manqueSonAffiche(film) || !film.remarque.empty();
        default:
            return true;
    }
}

bool peutEtreAjoute(const FilmExamine& film) {
    return film.sort == SortDuFilm::Nouveau || film.sort == SortDuFilm::Ressemblant;
}

bool peutEtreComplete(const FilmExamine& film) {
    return film.sort == SortDuFilm::DejaLa && !film.aCompleter.empty();
}

std::string texteDuSort(const FilmExamine& film) {
    if (film.sort == SortDuFilm::Nouveau) return "Nouveau";
    if (film.sort == SortDuFilm::Illisible) return "Illisible";
    if (film.sort == SortDuFilm::Ressemblant) return texteDeLaRessemblance(film);
    if (film.duLot) return "Déjà là : lu deux fois";
    if (film.aCompleter.empty()) return "Déjà là";
    return "Déjà là, à compléter : " + legendes(film.aCompleter);
}

std::string texteDeLAffiche(SortDeLAffiche affiche) {
    switch (affiche) {
        case SortDeLAffiche::Prise:
            return "présente";
        case SortDeLAffiche::Absente:
            return "absente";
        case SortDeLAffiche::TropGrande:
            return "trop grande";
        case SortDeLAffiche::Illisible:
            return "illisible";
        default:
            return "";
    }
}

int pourCent(const FilmProche& proche) {
    return std::min(proche.titre, proche.realisateur);
}

std::string bilan(const std::vector<FilmExamine>& films) {
    const auto nombre = [&](auto convient) { return static_cast<long>(std::ranges::count_if(films, convient)); };
    const auto duGenre = [&](GenreDExamen genre) {
        return nombre([genre](const FilmExamine& film) { return estDuGenre(film, genre); });
    };
    const auto sansAffiche = [&](SortDeLAffiche affiche) {
        return nombre([affiche](const FilmExamine& film) { return film.affiche == affiche; });
    };
    if (films.empty()) return "Aucun film lu.";
    Parties parties;
    parties.compte(duGenre(GenreDExamen::Nouveaux), "# nouveau", "# nouveaux");
    parties.compte(duGenre(GenreDExamen::Ressemblants), "# qui ressemble à un autre", "# qui ressemblent à d'autres");
    parties.compte(duGenre(GenreDExamen::DejaLa), "# déjà là", "# déjà là");
    parties.compte(nombre(peutEtreComplete), "dont # à compléter", "dont # à compléter");
    parties.compte(nombre([](const FilmExamine& film) { return film.sort == SortDuFilm::Illisible; }), "# illisible",
                   "# illisibles");
    Parties affiches;
    affiches.compte(sansAffiche(SortDeLAffiche::Absente), "# absente", "# absentes");
    affiches.compte(sansAffiche(SortDeLAffiche::TropGrande), "# trop grande", "# trop grandes");
    affiches.compte(sansAffiche(SortDeLAffiche::Illisible), "# illisible", "# illisibles");
    std::string texte =
        util::phraseCompte(static_cast<long>(films.size()), "# film lu : ", "# films lus : ") + parties.texte() + ".";
    if (!affiches.texte().empty()) texte += " Affiches : " + affiches.texte() + ".";
    return texte;
}

}  // namespace edit
