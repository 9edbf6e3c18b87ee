#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What INSTR and LIKE do with text. Letter case is ignored and accents count. INSTR agrees with "=" on letters: œ is oe,
// æ ae, ß ss, and an accent may stand in its letter or after it. Every other character is itself, the blanks,
// apostrophes and hyphens that "=" passes over included.
namespace dao::interne {

// Appends the text as INSTR compares it, in its composed form; bytes that are no UTF-8 stay as they are.
void plie(std::string_view texte, std::string& resultat);

// Where the already folded `aiguille` first stands in `texte`, in characters of the folded text from 1; 0 when it does
// not. A letter is not found where an accent follows it.
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
