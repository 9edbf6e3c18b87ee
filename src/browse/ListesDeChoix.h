#pragma once

#include "browse/EtatListe.h"

// The lists of zones and sorts, as the program itself changes them. The pseudo-zone "Recherche" is in the list only while
// a search is shown.
namespace browse {

inline constexpr const char* kTexteZoneRecherche = "Recherche";

// While it lives, selections in ChoixZone and ChoixTri are the program's own and raise nothing.
class Occupe {
  public:
    explicit Occupe(EtatListe& liste) : m_liste(liste), m_avant(liste.occupe) { m_liste.occupe = true; }
    Occupe(const Occupe&) = delete;
    Occupe& operator=(const Occupe&) = delete;
    ~Occupe() { m_liste.occupe = m_avant; }

  private:
    EtatListe& m_liste;
    bool m_avant;
};

void choisitZoneRecherche(EtatListe& liste);  // adds it where it is missing
// Puts another zone in its place; nothing where "Recherche" is not the one selected.
void quitteZoneRecherche(EtatListe& liste, int zone);
// Lets the two lists name what the tree shows: after a choice that was refused, or not made in the end.
void nommeCeQuiEstMontre(EtatListe& liste);

}  // namespace browse
