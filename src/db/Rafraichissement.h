#pragma once

namespace db {

// What the database room asks of the rooms above it after a change of base; the application supplies it.
class Rafraichissement {
  public:
    virtual ~Rafraichissement() = default;
    virtual void AfficheAccueil() = 0;                // resets the film-sheet area
    virtual void reconstruitListe() = 0;              // listing of the current zone and sort, without a search
    virtual void RaffraichitBoitesDeroulantes() = 0;  // the personal drop-down lists
    virtual void AfficheNbTitres() = 0;               // the two counts
    // Listing and tree of the current zone and sort, with the current search; no node of before is left, the panel
    // that is open stays.
    virtual void AffichageApresModification() = 0;
};

}  // namespace db
