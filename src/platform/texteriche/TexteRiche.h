#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Styled text, saved as RTF.
namespace texteriche {

enum class Alignement : std::uint8_t { Gauche = 0, Droite = 1, Centre = 2 };

// How characters look.
struct Style {
    std::string police = "Arial";
    int taille = 8;             // points
    std::uint32_t couleur = 0;  // 0x00BBGGRR: red in the low byte
    bool gras = false;
    bool italique = false;
    bool souligne = false;
    friend bool operator==(const Style&, const Style&) = default;
};

// The bytes up to `fin`, from where the passage before it ends, look as one of the text's styles.
struct Passage {
    std::size_t fin = 0;
    std::size_t style = 0;  // place in TexteRiche::styles
    friend bool operator==(const Passage&, const Passage&) = default;
};

struct TexteRiche {
    std::string texte;                    // UTF-8; LF, CR LF or CR ends a paragraph
    std::vector<Style> styles;            // each look that the passages name
    std::vector<Passage> passages;        // in the text's order; what follows the last one has the default style
    std::vector<Alignement> alignements;  // of each paragraph, in order; those left out are on the left
};

// The whole as an RTF document, in one pass. Every character of Unicode is kept; a byte that is no UTF-8 is shown as the
// replacement character, and control characters that RTF has no word for are left out.
[[nodiscard]] std::string enRtf(const TexteRiche& texte);

}  // namespace texteriche
