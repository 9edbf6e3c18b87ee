#pragma once

#include "edit/FilmExamine.h"
#include "edit/LettresDuCatalogue.h"

#include <functional>
#include <optional>
#include <string>
#include <unordered_set>

namespace edit {

// Judges the films of an import one after the other: each by the catalogue as it will be when its turn comes. An import
// and its preview ask the same judge. It writes nothing.
//
// Each may throw db::RequeteEchouee after its message, or dao::ErreurDao.
class JugeFilms {
  public:
    // `c` outlives it. With `ressemblances` the whole catalogue is read now.
    JugeFilms(const Contexte& c, bool ressemblances);

    [[nodiscard]] SortDuFilm juge(const db::CleFilm& film) const;
    // What a preview tells of it. `affiche` says what becomes of its poster; it is asked only where the film would get one.
    [[nodiscard]] FilmExamine examine(const FilmLu& film, const std::function<SortDeLAffiche()>& affiche) const;
    // Whether the user, who is asked of each film that one judged Ressemblant resembles, refuses it.
    [[nodiscard]] bool estRefuse(const db::CleFilm& film, const std::function<void()>& avantQuestion) const;
    // It is stored, or will be: those that come later meet it.
    void ajoute(const db::CleFilm& film);

  private:
    [[nodiscard]] bool estDuLot(const db::CleFilm& film) const;
    void examineLePresent(FilmExamine& examen, const std::function<SortDeLAffiche()>& affiche) const;

    const Contexte& m_c;
    std::optional<LettresDuCatalogue> m_lettres;  // where resemblances are tested
    std::unordered_set<std::string> m_ajoutes;
};

}  // namespace edit
