#pragma once

#include "browse/AffichageApresModification.h"
#include "browse/SelectionneTitre.h"

#include <string>

namespace browse {

// Shows the sheet of a film that another command speaks of, wherever the listing now is: in it, else among all films.
class MontreFilm {
  public:
    MontreFilm(db::Base& base, EtatListe& liste, const FilmCourant& film,
               AffichageApresModification& affichageApresModification, SelectionneTitre& selectionneTitre,
               dialogues::Dialogues& dialogues)
        : m_base(base),
          m_liste(liste),
          m_film(film),
          m_affichageApresModification(affichageApresModification),
          m_selectionneTitre(selectionneTitre),
          m_dialogues(dialogues) {}

    // False, and nothing changes, when the catalogue does not have it. Throws db::RequeteEchouee after its message.
    bool operator()(const std::string& titre, const std::string& realisateur);
    // The same without leaving the listing: false when it does not have the film.
    bool dansLaListe(const std::string& titre, const std::string& realisateur);
    [[nodiscard]] bool existe(const std::string& titre, const std::string& realisateur);
    [[nodiscard]] bool estCourant(const std::string& titre, const std::string& realisateur) const;

  private:
    void listeTousLesFilms();

    db::Base& m_base;
    EtatListe& m_liste;
    const FilmCourant& m_film;
    AffichageApresModification& m_affichageApresModification;
    SelectionneTitre& m_selectionneTitre;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace browse
