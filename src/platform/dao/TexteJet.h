#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What INSTR and LIKE do with text: letter case is ignored, accents count, every other character is itself.
namespace dao::interne {

// Appends the text with letter case folded, one character to one; bytes that are no UTF-8 stay as they are.
void plie(std::string_view texte, std::string& resultat);

// Where the already folded `aiguille` first stands in `texte`, in characters from 1; 0 when it does not.
[[nodiscard]] std::size_t instr(std::string_view texte, std::string_view aiguillePliee);

// A LIKE pattern: * any characters, ? one, # a digit, [abc] [a-z] [!a-z] one of a list.
class Motif {
  public:
    explicit Motif(std::string_view motif);

    [[nodiscard]] bool convient(std::string_view texte) const;
    // For a pattern of plain characters and a final *: how many bytes at a text's start decide; 0 for any other.
    [[nodiscard]] std::size_t octetsDecisifs() const { return m_octetsDecisifs; }

  private:
    struct Element {
        enum class Genre { Caractere, Un, Suite, Chiffre, Liste } genre;
        char32_t caractere = 0;
        bool inverse = false;
        std::vector<std::pair<char32_t, char32_t>> plages{};
    };
    [[nodiscard]] static bool accepte(const Element& element, char32_t caractere);
    std::size_t ajouteListe(std::u32string_view motif, std::size_t ouverture);

    std::vector<Element> m_elements;
    std::size_t m_octetsDecisifs = 0;
};

}  // namespace dao::interne
