#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace util {

// Texts numbered as they first come. Flat, and small enough for the processor's cache: asked once for each row of a
// listing, whose directors come in no order.
class NomsDistincts {
  public:
    // The number of the text; a new one gets the next.
    [[nodiscard]] std::uint32_t rang(std::string_view nom);
    [[nodiscard]] std::string_view nom(std::uint32_t rang) const {
        return std::string_view(m_textes).substr(m_debuts[rang], m_debuts[rang + 1] - m_debuts[rang]);
    }
    [[nodiscard]] std::size_t taille() const { return m_debuts.size() - 1; }

  private:
    struct Place {
        std::uint32_t hachage = 0;
        std::uint32_t suivant = 0;  // the number of its text, and one; 0: free
    };
    [[nodiscard]] Place& place(std::string_view nom, std::uint32_t hachage);
    void agrandit();

    std::string m_textes;
    std::vector<std::size_t> m_debuts{0};
    std::vector<Place> m_places = std::vector<Place>(64);  // a power of two, at least half of them free
};

}  // namespace util
