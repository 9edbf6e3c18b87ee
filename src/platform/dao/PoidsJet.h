#pragma once

#include <array>
#include <cstdint>

#include <unicode/unistr.h>

// The weights that Jet's comparison gives to characters: ICU's root collation elements at its first two levels.
namespace dao::interne {

// The secondary weight of a letter without accent.
inline constexpr std::uint8_t kAccentCommun = 0x05;

// The weights of a short text.
struct Poids {
    enum class Maniere : std::uint8_t { Inconnu, Pret, Signe, Lent };

    Maniere maniere = Maniere::Inconnu;
    std::uint8_t signe = 0;     // for Signe: which apostrophe or hyphen
    std::uint8_t elements = 0;  // how many letters, for the positions of signs
    std::uint8_t lettresTaille = 0;
    std::uint8_t accentsTaille = 0;
    std::array<std::uint8_t, 10> lettres{};
    std::array<std::uint8_t, 6> accents{};
};

inline constexpr char32_t kFinLatin = 0x250;
inline constexpr char32_t kDebutPonctuation = 0x2000;
inline constexpr char32_t kFinPonctuation = 0x2070;

// Filled as characters are met, by each thread for itself: nothing is paid for those that no text holds.
extern constinit thread_local std::array<Poids, kFinLatin + (kFinPonctuation - kDebutPonctuation)> g_poids;
[[nodiscard]] const Poids& poidsNouveau(char32_t caractere);
// The one byte that an ASCII character weighs when it is a plain letter, digit or blank; 0 for any other, and for those
// that g_poids does not hold yet.
extern constinit thread_local std::array<std::uint8_t, 256> g_lettresSimples;

// The weights of one character, ready for ordinary Latin letters and punctuation. Lent: the character weighs with its
// neighbours or is out of the ordinary, and the whole text must go through ElementsDeTexte.
[[nodiscard]] inline const Poids& poidsDe(char32_t caractere) {
    if (caractere < kFinLatin && g_poids[caractere].maniere != Poids::Maniere::Inconnu) return g_poids[caractere];
    return poidsNouveau(caractere);
}

// Which apostrophe or hyphen a character is, from 1 in the order of their ties; 0 for any other.
[[nodiscard]] std::uint8_t signeDe(char32_t caractere);

// The elements of a text in order. Bytes of the primary weight without trailing zero, of the secondary weight likewise.
struct ElementJet {
    std::array<std::uint8_t, 2> lettre{};
    std::uint8_t lettreTaille = 0;
    std::uint8_t accent = 0;  // 0: none
    bool commence = false;    // a letter starts here (false for its continuation and for accents alone)
};

// One walk over the elements of a text, of which it takes a copy; false at the end. The iterator behind it is one: a new
// walk ends the one before.
class ElementsDeTexte {
  public:
    explicit ElementsDeTexte(const icu::UnicodeString& texte);
    bool suivant(ElementJet& element);
};

}  // namespace dao::interne
