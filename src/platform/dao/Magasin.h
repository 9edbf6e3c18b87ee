#pragma once

#include "platform/dao/AccesValeur.h"
#include "platform/dao/Rangs.h"
#include "platform/dao/Tampon.h"

#include <cstdint>
#include <optional>
#include <span>

namespace dao::interne {

// Rows with a few of their values, packed: one buffer of characters, four bytes a value, eight a row id.
class Magasin {
  public:
    explicit Magasin(std::size_t colonnes) : m_colonnes(colonnes) {}

    RangLigne ajoute(long long id);
    void ajouteValeur(const ValeurVue& valeur);  // of the last row, column after column
    void change(RangLigne ligne, long long id) { m_ids[static_cast<std::size_t>(ligne)] = id; }
    void serre();                                   // no row follows
    void oublieLesValeurs();                        // all are answered as too long to be kept
    void oublie(std::span<const RangLu> colonnes);  // their texts are

    [[nodiscard]] std::size_t taille() const { return m_ids.size(); }
    [[nodiscard]] const long long& id(RangLigne ligne) const { return m_ids[static_cast<std::size_t>(ligne)]; }
    // A number comes back as the bytes of its text. None: it was too long to be kept. Holds until a row is added.
    [[nodiscard]] std::optional<ValeurVue> valeur(RangLigne ligne, RangLu colonne) const;

  private:
    std::size_t m_colonnes;
    Tampon<long long> m_ids;
    Tampon<std::uint32_t> m_fins;  // where each value ends in the buffer, its type in the two high bits
    Tampon<char> m_caracteres;
};

}  // namespace dao::interne
