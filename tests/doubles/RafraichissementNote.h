#pragma once

#include "db/Rafraichissement.h"

#include <string>
#include <vector>

namespace doubles {

// Remembers what it was asked.
struct RafraichissementNote final : db::Rafraichissement {
    std::vector<std::string> appels;

    void AfficheAccueil() override { appels.push_back("AfficheAccueil"); }
    void reconstruitListe() override { appels.push_back("reconstruitListe"); }
    void RaffraichitBoitesDeroulantes() override { appels.push_back("RaffraichitBoitesDeroulantes"); }
    void AfficheNbTitres() override { appels.push_back("AfficheNbTitres"); }
    void AffichageApresModification() override { appels.push_back("AffichageApresModification"); }
};

}  // namespace doubles
