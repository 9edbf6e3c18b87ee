#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

// What a statement counts, each kind a type of its own, so that no rank is taken for one of another kind.
namespace dao::interne {

enum class RangTable : std::size_t {};    // of a table in a statement
enum class RangColonne : std::size_t {};  // of a column in its table
enum class RangLu : std::size_t {};       // of a column among those that a statement reads from one of its tables
enum class RangChamp : std::size_t {};    // of a field in a recordset
enum class RangLigne : std::uint32_t {};  // of a row among those that a statement keeps of one of its tables

inline constexpr RangTable kPremiere{0}, kSeconde{1};  // the second one is joined to the first
inline constexpr RangLigne kSansLigne{UINT32_MAX};     // a join's row without a partner

template <typename Rang>
struct Rangs {
    struct Position {
        std::size_t n;
        Rang operator*() const { return static_cast<Rang>(n); }
        Position& operator++() { return ++n, *this; }
        friend bool operator==(const Position&, const Position&) = default;
    };
    [[nodiscard]] Position begin() const { return {0}; }
    [[nodiscard]] Position end() const { return {nombre}; }
    std::size_t nombre;
};

// Elements that are found by ranks of one kind.
template <typename Rang, typename Element>
class Par : public std::vector<Element> {
  public:
    using std::vector<Element>::vector;
    [[nodiscard]] decltype(auto) operator[](Rang rang) {
        return std::vector<Element>::operator[](static_cast<std::size_t>(rang));
    }
    [[nodiscard]] decltype(auto) operator[](Rang rang) const {
        return std::vector<Element>::operator[](static_cast<std::size_t>(rang));
    }
    [[nodiscard]] Rangs<Rang> rangs() const { return {this->size()}; }
    Rang ajoute(Element element) {
        this->push_back(std::move(element));
        return static_cast<Rang>(this->size() - 1);
    }
};

}  // namespace dao::interne
