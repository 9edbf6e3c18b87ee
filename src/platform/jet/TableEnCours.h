#pragma once

#include "platform/jet/ArbreIndex.h"
#include "platform/jet/Definition.h"
#include "platform/jet/Rangement.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace jet::interne {

// A column of a table to be written. Those of the system have marks and an order of their own.
struct ColonneEcrite {
    std::string nom;
    Type type{};
    std::uint8_t marques = 0x02;   // it may be Null; whether it is fixed is added
    std::uint8_t compression = 0;  // 1: its texts are compressed where they can be
};
struct IndexDeTable {
    std::string nom;
    std::vector<std::size_t> colonnes;
    std::uint8_t marques = 0x80;
    bool primaire = false;
};
enum class Usage : char { Systeme = 'S', Utilisateur = 'N' };

// A table under way: its rows go to pages of its own, and what tells of them comes last.
class TableEnCours {
  public:
    // `definition`: the page that the definition will take. Columns in the order of their numbers.
    TableEnCours(FichierDePages& fichier, std::uint32_t definition, Usage usage, std::vector<ColonneEcrite> colonnes,
                 std::vector<IndexDeTable> index);

    // The values by column: their bytes in the file, those of long values whole. A boolean is true when it has a value.
    // `cles`: for each index, nothing for a row that it does not hold.
    void ligne(std::span<const std::optional<std::string>> valeurs, std::vector<std::string> cles);
    // The index is left out from now on.
    void omet(std::size_t index);
    [[nodiscard]] bool tient(std::size_t index) const { return m_index[index].tenu; }
    void acheve();  // the table is whole in the file

    [[nodiscard]] std::uint32_t page() const { return m_page; }
    [[nodiscard]] const std::vector<ColonneEcrite>& colonnes() const { return m_colonnes; }
    [[nodiscard]] const std::vector<IndexDeTable>& index() const { return m_descriptions; }

  private:
    struct Index {
        ArbreIndex arbre;
        bool tenu = true;
        std::uint32_t racine = 0, nombre = 0;
    };
    [[nodiscard]] std::string assemble(std::span<const std::optional<std::string>> valeurs);
    [[nodiscard]] std::string definition(Rangement& cartes);
    [[nodiscard]] std::string decritLesColonnes() const;
    [[nodiscard]] std::string decritLesIndex(Rangement& cartes) const;

    FichierDePages& m_fichier;
    std::uint32_t m_page;
    Usage m_usage;
    std::vector<ColonneEcrite> m_colonnes;
    std::vector<IndexDeTable> m_descriptions;
    std::vector<Index> m_index;
    Rangement m_lignes;
    std::map<std::size_t, ValeursLongues> m_longues;
};

[[nodiscard]] std::size_t tailleFixe(Type type);  // 0 of a variable field
[[nodiscard]] bool estFixe(Type type);
[[nodiscard]] bool estLong(Type type);

}  // namespace jet::interne
