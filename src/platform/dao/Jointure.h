#pragma once

#include "platform/dao/AccesValeur.h"
#include "platform/dao/Rangs.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dao::interne {

// Rows of a store by the hash of the columns that join; any number of rows under one hash. Eight bytes a place, so that
// the whole stays near the processor while every film asks it: rows whose hashes are alike by half are answered too, and
// are compared by value.
class Partenaires {
  public:
    explicit Partenaires(const Par<RangLigne, std::uint64_t>& hachages);

    // No other row has its hash.
    [[nodiscard]] bool estSeule(RangLigne ligne) const { return !m_accompagnees[static_cast<std::size_t>(ligne)]; }

    template <typename Visite>
    void chaque(std::uint64_t hachage, Visite visite) const {
        const auto marque = static_cast<std::uint32_t>(hachage >> 32);
        for (std::size_t rang = hachage & masque(); m_places[rang].ligne != kSansLigne; rang = (rang + 1) & masque()) {
            if (m_places[rang].marque == marque) visite(m_places[rang].ligne);
        }
    }

  private:
    struct Place {
        std::uint32_t marque = 0;
        RangLigne ligne = kSansLigne;  // free
    };
    [[nodiscard]] std::size_t masque() const { return m_places.size() - 1; }

    std::vector<Place> m_places;
    std::vector<bool> m_accompagnees;  // by row
};

// The Jet keys of the row being read, each worked out once at most.
class ClesDeLigne {
  public:
    explicit ClesDeLigne(std::size_t colonnes) : m_cles(colonnes), m_faites(colonnes, false) {}

    void change(const Par<RangLu, ValeurVue>& valeurs);
    [[nodiscard]] const std::string& cle(RangLu rang);
    [[nodiscard]] const ValeurVue& valeur(RangLu rang) const { return (*m_valeurs)[rang]; }

  private:
    const Par<RangLu, ValeurVue>* m_valeurs = nullptr;
    Par<RangLu, std::string> m_cles;
    Par<RangLu, char> m_faites;
    std::string m_tampon;
};

}  // namespace dao::interne
