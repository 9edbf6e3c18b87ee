#pragma once

#include "browse/AfficheFiche.h"
#include "db/Base.h"
#include "db/Chemins.h"
#include "db/EtatStockage.h"
#include "db/LotAffiches.h"
#include "platform/dialogues/Dialogues.h"

#include <optional>
#include <string>

namespace browse {

// Gives the film of the sheet the poster that the user chooses, where new posters go, and shows the sheet again. Does
// nothing when the film has one, and replaces none that it has got since. A poster that cannot be stored is told to the user, and leaves base and files as they
// were.
class Label12_Click {
  public:
    Label12_Click(db::Base& base, const FilmCourant& film, const EtatFiche& fiche, db::EtatStockage& stockage,
                  const db::Chemins& chemins, AfficheFiche& afficheFiche, dialogues::Dialogues& dialogues)
        : m_base(base),
          m_film(film),
          m_fiche(fiche),
          m_stockage(stockage),
          m_chemins(chemins),
          m_afficheFiche(afficheFiche),
          m_dialogues(dialogues) {}

    // Throws what AfficheFiche throws.
    void operator()();

  private:
    using Echec = std::optional<std::string>;  // what to tell the user

    [[nodiscard]] std::string choisit();  // the file, empty when there is none to take
    [[nodiscard]] Echec attache(const std::string& image);
    [[nodiscard]] Echec enregistre(db::LotAffiches& lot, const std::string& octets);
    [[nodiscard]] std::string pose(db::LotAffiches& lot, const std::string& octets, const std::string& actuelle) const;

    db::Base& m_base;
    const FilmCourant& m_film;
    const EtatFiche& m_fiche;
    db::EtatStockage& m_stockage;
    const db::Chemins& m_chemins;
    AfficheFiche& m_afficheFiche;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace browse
