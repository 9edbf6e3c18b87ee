#pragma once

#include "ensemble/Contexte.h"
#include "ensemble/FiltreTitres.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

// The loan desk: who has what since when, and who waits for what. It is the holdings, as they are: `Pret` and `Reserve`
// name people, `Date` says since when, in the words of who wrote it.
namespace ensemble {

struct Pret {
    db::CleFilm film;
    std::string aQui;            // who has it; empty: reserved, and at home
    std::string pourQui;         // who waits for it; empty: nobody
    std::string date;            // as it stands in the holding
    std::optional<int> jours{};  // since that date; nothing where it says no day, or one to come
    std::string support, rangement;
};

struct BureauDesPrets {
    std::vector<Pret> prets;         // what is lent
    std::vector<Pret> reservations;  // what is waited for, lent or not
};

// Personne: who has it, else who waits for it; Attente: who waits for it. Jours: the longest first, unknown days last.
enum class TriDesPrets { Personne, Film, Jours, Attente };

// Reads them, by person. Throws db::RequeteEchouee after its message, dao::ErreurDao.
[[nodiscard]] BureauDesPrets bureauDesPrets(const Contexte& c);
// As the base orders texts.
void trie(std::vector<Pret>& prets, TriDesPrets tri);

inline constexpr int kJoursDeRetard = 30;                  // until the user chooses
[[nodiscard]] bool enRetard(const Pret& pret, int jours);  // lent for more than so many days

[[nodiscard]] std::string texteDepuis(const Pret& pret);  // "depuis 12 jours", "aujourd'hui", "depuis « Noël »", ""
// "12 films prêtés à 5 personnes, dont 3 depuis plus de 30 jours. 2 films réservés."
[[nodiscard]] std::string bilan(const BureauDesPrets& bureau, int jours);
// Who has or waits for something, each once, in the base's order.
[[nodiscard]] std::vector<std::string> personnes(const BureauDesPrets& bureau);
// A friendly reminder to one person, of these of its films; empty for none. Lines end in LF.
[[nodiscard]] std::string texteDuRappel(const std::vector<Pret>& prets, const std::string& personne);

// What came of a change to several holdings. Films that are not in the lists of what did not go are done.
struct BilanDesPrets {
    long faits = 0;
    std::vector<Pret> attendus{};            // of what came back: who waits for it now
    std::vector<db::CleFilm> nonPossedes{};  // without a holding, or without one any more
    std::vector<Pret> dejaPretes{};          // to someone who still has them
    std::vector<std::string> personnes{};    // who has them now, each once
    // "2 films prêtés à Zoé. 1 film n'est pas possédé…"; the first films of each kind are named.
    [[nodiscard]] std::string texte(const std::string& participe) const;
};

// "Rendu": nobody has these films any more. Their date stays: only lending writes one.
BilanDesPrets rendFilms(const Contexte& c, const std::vector<db::CleFilm>& films);
// Lends films from today; one that this person waited for is reserved no longer. What someone else has stays there. An
// empty name lends nothing.
BilanDesPrets preteFilms(const Contexte& c, const std::vector<db::CleFilm>& films, const std::string& aQui);
// Lends each film to who waits for it now; what nobody waits for any more stays where it is.
BilanDesPrets preteAQuiAttend(const Contexte& c, const std::vector<db::CleFilm>& films);

// Of the tree: the films that are ticked, else those under the heading that is selected, else the film that is.
[[nodiscard]] std::vector<db::CleFilm> filmsChoisis(const Contexte& c, const FiltreTitres& filtre);
// The same films in words, without a look at the base: "« Alien »", "12 films de « Drame »", "3 films cochés"; "" for none.
[[nodiscard]] std::string texteDuChoix(const browse::VueArbre& vue, const FiltreTitres& filtre);

}  // namespace ensemble
