#pragma once

#include "browse/AfficheTitres.h"
#include "browse/FilmCourant.h"
#include "platform/dialogues/Dialogues.h"

#include <functional>
#include <string>

namespace browse {

// Rebuilds the listing and the tree. No film is current afterwards: who wants the same film again copies its title and
// director first and gives them to SelectionneTitre.
class CreeRequeteAffichage {
  public:
    CreeRequeteAffichage(db::Base& base, EtatListe& liste, FilmCourant& film, AfficheTitres& afficheTitres,
                         dialogues::Dialogues& dialogues)
        : m_base(base), m_liste(liste), m_film(film), m_afficheTitres(afficheTitres), m_dialogues(dialogues) {}

    // A zone of -1 or a sort outside the list does nothing; 6 is the saved search zone. After a refusal, and when the
    // listing cannot be made (db::RequeteEchouee after its message), listing and tree are as they were and the two lists
    // name them.
    void operator()(int zone, int tri, const std::string& condition = "");

    // Runs what lists the base once it was closed and opened again: whatever comes of it, no node is left that leads
    // into the listing of before.
    void apresReouverture(const std::function<void()>& relit);
    // The listing of the zone and sort shown over another base. A search ends: its zone is the one searched in.
    void apresChangementDeBase();

  private:
    [[nodiscard]] dao::Recordset ouvre(const std::string& requete);
    void oublieLeFilmCourant();

    db::Base& m_base;
    EtatListe& m_liste;
    FilmCourant& m_film;
    AfficheTitres& m_afficheTitres;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace browse
