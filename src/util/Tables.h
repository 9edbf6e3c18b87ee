#pragma once

#include <cstddef>
#include <string_view>

namespace util {

// Whether a table has one row for each value of an enumeration, from 0 to `derniere`, in their order. `valeur` is the
// member in which a row says its own. For a static_assert beside the table: a value without a row does not compile.
template <typename Table, typename Ligne, typename Enumeration>
[[nodiscard]] constexpr bool dansLOrdre(const Table& table, Enumeration Ligne::*valeur, Enumeration derniere) {
    std::size_t rang = 0;
    for (const Ligne& ligne : table)
        if (static_cast<std::size_t>(ligne.*valeur) != rang++) return false;
    return rang == static_cast<std::size_t>(derniere) + 1;
}

// Whether the rows of a table bear the names of a list, in the list's order.
template <typename Table, typename Ligne, typename Texte, typename Noms>
[[nodiscard]] constexpr bool disentLesMemes(const Table& table, Texte Ligne::*nom, const Noms& noms) {
    std::size_t rang = 0;
    for (const Ligne& ligne : table)
        if (rang == noms.size() || std::string_view(ligne.*nom) != noms[rang++]) return false;
    return rang == noms.size();
}

}  // namespace util
