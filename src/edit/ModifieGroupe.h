#pragma once

#include "browse/EtatListe.h"
#include "browse/FilmCourant.h"
#include "db/Base.h"
#include "edit/SuitesModification.h"
#include "edit/TravailParLots.h"

#include <optional>
#include <string>
#include <vector>

namespace edit {

// Renames the selected heading: every film under it gets a new genre, or a new support.
class RenommageGroupe {
  public:
    RenommageGroupe(db::Base& base, const browse::EtatListe& liste, const browse::FilmCourant& film,
                    const OutilsTravail& outils, const SuitesModification& suites)
        : m_base(base), m_liste(liste), m_film(film), m_outils(outils), m_suites(suites) {}

    // The tree's menus. Nothing happens unless a heading is selected.
    void RenommerGenreFilms_Click();
    void RenommeSupportFilms_Click();

    // The values of the first film under the heading; "" for both when it has none, and for one that the listing lacks.
    void RecupereInfosGroupeSelectionne(std::string& genre, std::string& support);
    // `champ` of the holdings, or of the films; an empty value does nothing. Stops, with a message, at the first film
    // without a row; stopped so, by the user or by a failure of the base, films already changed stay changed.
    void ModifieGroupe(const std::string& champ, const std::string& valeur, bool personnel);

  private:
    struct Film {
        std::string titre;
        std::string realisateur;
    };
    [[nodiscard]] bool groupeChoisi() const;
    [[nodiscard]] const std::vector<std::int32_t>& enfants() const;
    void vaSur(std::int32_t noeud);
    [[nodiscard]] Film lis(std::int32_t noeud);
    [[nodiscard]] std::optional<Film> renomme(const std::string& champ, const std::string& valeur, bool personnel);

    db::Base& m_base;
    const browse::EtatListe& m_liste;
    const browse::FilmCourant& m_film;
    OutilsTravail m_outils;
    SuitesModification m_suites;
};

}  // namespace edit
