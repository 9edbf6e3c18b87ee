#pragma once

#include "platform/dao/AccesValeur.h"
#include "platform/dao/Rangs.h"
#include "platform/dao/Tampon.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace dao::interne {

// The values of one column of so many rows, packed: one buffer of characters, four bytes a value.
class ColonneGardee {
  public:
    void ajoute(const ValeurVue& valeur);
    void serre();  // no value follows

    [[nodiscard]] std::size_t taille() const { return m_fins.size(); }
    // A number comes back as the bytes of its text. None: it was too long to be kept. Holds until a value is added.
    [[nodiscard]] std::optional<ValeurVue> valeur(std::size_t rang) const;

  private:
    Tampon<std::uint32_t> m_fins;  // where each value ends in the buffer, its type in the two high bits
    Tampon<char> m_caracteres;
};

// Rows with a few of their values, eight bytes a row id. Two stores may share the ids and columns that they have in common:
// nothing that was added ever changes, but for the id of a row that is still being read.
class Magasin {
  public:
    explicit Magasin(std::size_t colonnes);
    // The same rows with other columns, each as long as the rows that were read.
    Magasin(const Magasin& lignes, Par<RangLu, std::shared_ptr<const ColonneGardee>> colonnes);

    RangLigne ajoute(long long id, const Par<RangLu, ValeurVue>& valeurs);
    RangLigne ajoute(long long id);  // without values, after the others
    void change(RangLigne ligne, long long id) { (*m_ids)[static_cast<std::size_t>(ligne)] = id; }
    void serre();                                                   // no row follows
    void oublieLesValeurs();                                        // all are answered as too long to be kept
    void oublie(RangLu colonne) { m_colonnes[colonne] = nullptr; }  // its values are

    [[nodiscard]] std::size_t taille() const { return m_ids->size(); }
    [[nodiscard]] const long long& id(RangLigne ligne) const { return (*m_ids)[static_cast<std::size_t>(ligne)]; }
    [[nodiscard]] std::optional<ValeurVue> valeur(RangLigne ligne, RangLu colonne) const {
        const auto& gardee = m_colonnes[colonne];
        return gardee == nullptr ? std::nullopt : gardee->valeur(static_cast<std::size_t>(ligne));
    }
    // Null once it was forgotten.
    [[nodiscard]] const std::shared_ptr<const ColonneGardee>& colonne(RangLu rang) const { return m_colonnes[rang]; }

  private:
    std::shared_ptr<Tampon<long long>> m_ids;
    Par<RangLu, std::shared_ptr<ColonneGardee>> m_lues;  // while rows are read
    Par<RangLu, std::shared_ptr<const ColonneGardee>> m_colonnes;
};

}  // namespace dao::interne
