#pragma once

#include "export/Balises.h"
#include "platform/texteriche/TexteRiche.h"

#include <cstdint>
#include <string>
#include <vector>

namespace exportation {

// Turns a marked-up text into a styled one, a pair of tags after the other.
//
// A pair does what repeating this does, whatever the text holds: find the first opening tag and the first closing tag of
// the whole text; stop for good when there is no opening tag or no closing tag after it; give all from the one to the other
// the pair's style; put in its place, as plain text, what stood between them. So a value that holds a closing tag ends its
// style there, one left over stops its pair, and the ends of a removed tag may meet and make another one.
//
// Plain text put in the place of a selection looks as the selection's first character did: of the looks that overlapped
// there, only that one is left. An alignment is the paragraph's: it goes to each one that the selection touches, and stays.
class MiseEnForme {
  public:
    // The text as it is loaded: the default style on the left, each line end made a LF.
    explicit MiseEnForme(std::string texteBalise);

    void applique(const Balise& balise);  // in a time that grows as the text does
    [[nodiscard]] texteriche::TexteRiche resultat() &&;

  private:
    class Passe;
    using Style = std::uint8_t;  // place in m_styles: pairs applied once each make two to their number, at most
    static_assert(kBalises.size() < 8);

    [[nodiscard]] Style styleAvec(const Balise& balise, Style style);

    std::string m_texte;
    std::vector<texteriche::Style> m_styles{texteriche::Style{}};
    std::vector<Style> m_stylesDesOctets;
    std::vector<texteriche::Alignement> m_alignements;
};

}  // namespace exportation
