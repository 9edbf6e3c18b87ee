#pragma once

#include "doubles/DossierTemporaire.h"
#include "pannes/Cale.h"
#include "pannes/Enfant.h"
#include "pannes/Etat.h"
#include "pannes/Scenarios.h"

#include <filesystem>
#include <string>
#include <vector>

namespace pannes {

// What befalls a session from outside while it does a command. `sansEffet`: the command does its work all the same.
struct Circonstance {
    std::string nom;
    bool sansEffet;
};
inline const std::vector<Circonstance> kCirconstances{{"verrou d'une seconde", true},
                                                      {"verrou", false},
                                                      {"base changée", true},
                                                      {"dossier parti", false},
                                                      {"horloge", true}};

void copie(const std::filesystem::path& de, const std::filesystem::path& vers);

// What a next start finds, after its own cleaning, that is neither of the two states; "" when all holds.
std::string demarreEnsuite(const std::string& dossier, const Etat& avant, const Etat& apres, bool entiere,
                           bool reprend = false);

// A scenario, done once without a fault for what it does then; each of its passes is a session of its own. Throws
// std::runtime_error when it does nothing.
class Epreuve {
  public:
    explicit Epreuve(const Scenario& scenario);
    [[nodiscard]] long points(Faute faute) const { return faute == Faute::Memoire ? m_allocations : m_points; }
    // What did not hold; "" when all did.
    std::string passe(Faute faute, long point, const Circonstance& circonstance = {});

  private:
    struct Fait {
        long points;
        std::string dits;  // from the command on
    };
    Fait execute(Seance& s, Faute faute, long point, const std::string& circonstance = "");
    // In a process of its own: the command with its fault, what it leaves, and the same session afterwards.
    std::string vis(Faute faute, long point, const Circonstance& circonstance);
    [[nodiscard]] bool estQuelquePart(const char* titre) const;  // in the base, or in a safety copy of it
    [[nodiscard]] bool estComplet(const Etat& fait) const;
    std::string rejoue(Seance& s);

    const Scenario& m_scenario;
    doubles::DossierTemporaire m_lieu;
    const std::string m_dossier = m_lieu.chemin("Ambrelis/");
    Etat m_avant, m_apres;
    std::string m_dits;
    long m_points = 0, m_allocations = 0;
};

}  // namespace pannes
