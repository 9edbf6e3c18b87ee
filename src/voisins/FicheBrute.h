#pragma once

#include "voisins/FilmVoisin.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace voisins {

// A film as another program tells it: texts as they came. What has no field of its own is a line, which ends up below the
// summary: nothing that was known of a film is lost.
struct FicheBrute {
    struct Acteur {
        std::string nom, role;
    };
    std::string titre, titreOriginal, annee, duree, resume, dateAjout;
    int note = 0;
    std::vector<std::string> realisateurs, genres, pays, productions;
    std::vector<Acteur> acteurs;
    PossessionVoisine possession;
    std::vector<std::string> fichiers;
    std::vector<std::string> commentaires;                    // paragraphs
    std::vector<std::pair<std::string, std::string>> lignes;  // "Scénario", "Dan O'Bannon"
    AfficheVoisine affiche;

    // A line; nothing for an empty value.
    void ligne(std::string nom, std::string_view valeur);
    [[nodiscard]] bool estSansTitre() const;
};

inline constexpr const char* kVu = "Vu";  // the name of the line that says it

// The film in this program's forms and words, each field cut to its column between two of its pieces; what a column has no
// room for is a line as well. `possede`: it has a holding, were nothing known of it.
[[nodiscard]] FilmVoisin redige(FicheBrute fiche, bool possede);

// What another copy of a film becomes: a remark in its summary; a holding of its own where it differs from the first; or
// one in any case, as a table has it that tells each copy on a line.
enum class Exemplaires { AuResume, SiAutres, Tous };

// The films of a collection: what has no title is left out and told. One that bears the name of an earlier one (as the
// base compares them) is another copy of it, unless their years differ: then the year goes into its title.
class Films {
  public:
    explicit Films(Exemplaires exemplaires = Exemplaires::AuResume) : m_exemplairesEn(exemplaires) {}
    // Throw Refus for more than a collection may hold.
    void ajoute(FicheBrute fiche, bool possede);
    void ajoute(FilmVoisin film);
    [[nodiscard]] std::size_t nombre() const { return m_films.size(); }
    // Hands them and what is to be told.
    void verse(Collection& collection);

  private:
    void ajouteExemplaire(FilmVoisin& premier, const FilmVoisin& autre);

    Exemplaires m_exemplairesEn;
    std::vector<FilmVoisin> m_films;
    std::unordered_map<std::string, std::size_t> m_rangs;  // by what the base compares
    std::size_t m_texte = 0, m_lues = 0;
    long m_sansTitre = 0, m_exemplaires = 0, m_possessions = 0, m_annees = 0;
};

}  // namespace voisins
