#include "platform/dao/PoidsJet.h"

#include <stdexcept>
#include <string>

#include <unicode/ucol.h>
#include <unicode/ucoleitr.h>
#include <unicode/unorm2.h>

namespace dao::interne {

namespace {

// ICU's root order, opened once: it lives as long as the program.
class OrdreRacine {
  public:
    static OrdreRacine& unique() {
        static OrdreRacine ordre;
        return ordre;
    }

    void charge(std::u16string_view texte) {
        m_texte = deplie(decompose(texte));
        UErrorCode etat = U_ZERO_ERROR;
        ucol_setText(m_elements, m_texte.data(), static_cast<std::int32_t>(m_texte.size()), &etat);
        verifie(etat);
    }

    std::int32_t suivant() {
        UErrorCode etat = U_ZERO_ERROR;
        const std::int32_t element = ucol_next(m_elements, &etat);
        verifie(etat);
        return element;
    }

  private:
    OrdreRacine() {
        UErrorCode etat = U_ZERO_ERROR;
        m_collateur = ucol_open("root", &etat);
        m_forme = unorm2_getNFDInstance(&etat);
        verifie(etat);
        m_elements = ucol_openElements(m_collateur, u"", 0, &etat);
        verifie(etat);
    }

    static void verifie(UErrorCode etat) {
        if (U_FAILURE(etat)) throw std::runtime_error(u_errorName(etat));
    }

    std::u16string decompose(std::u16string_view texte) const {
        UErrorCode etat = U_ZERO_ERROR;
        std::u16string forme(texte.size() * 4 + 8, u'\0');
        const auto taille = unorm2_normalize(m_forme, texte.data(), static_cast<std::int32_t>(texte.size()),
                                             forme.data(), static_cast<std::int32_t>(forme.size()), &etat);
        verifie(etat);
        forme.resize(static_cast<std::size_t>(taille));
        return forme;
    }

    // Jet reads these as their two letters; ICU sets them one accent apart.
    static std::u16string deplie(const std::u16string& texte) {
        if (texte.find_first_of(u"œŒæÆßẞ") == std::u16string::npos) return texte;
        std::u16string deplies;
        for (const char16_t c : texte) {
            switch (c) {
                case u'œ':
                case u'Œ':
                    deplies += u"oe";
                    break;
                case u'æ':
                case u'Æ':
                    deplies += u"ae";
                    break;
                case u'ß':
                case u'ẞ':
                    deplies += u"ss";
                    break;
                default:
                    deplies += c;
            }
        }
        return deplies;
    }

    UCollator* m_collateur = nullptr;
    const UNormalizer2* m_forme = nullptr;
    UCollationElements* m_elements = nullptr;
    std::u16string m_texte;
};

constinit const Poids kPoidsLent{.genre = Poids::Genre::Lent};
constexpr char32_t kPointMedian = 0xb7;  // weighs with the l before it

Poids calcule(char32_t caractere) {
    Poids poids;
    poids.signe = signeDe(caractere);
    if (poids.signe != 0) {
        poids.genre = Poids::Genre::Signe;
        return poids;
    }
    poids.genre = Poids::Genre::Lent;
    if (caractere == kPointMedian) return poids;
    const auto unite = static_cast<char16_t>(caractere);
    ElementsDeTexte elements({&unite, 1});
    for (ElementJet element; elements.suivant(element);) {
        if (poids.lettresTaille + 2U > poids.lettres.size() || poids.accentsTaille + 1U > poids.accents.size())
            return poids;
        for (std::uint8_t i = 0; i < element.lettreTaille; ++i)
            poids.lettres[poids.lettresTaille++] = element.lettre[i];
        if (element.accent != 0) poids.accents[poids.accentsTaille++] = element.accent;
        if (element.commence) ++poids.elements;
    }
    poids.genre = Poids::Genre::Pret;
    return poids;
}

}  // namespace

std::uint8_t signeDe(char32_t caractere) {
    switch (caractere) {
        case U'\'':
            return 1;
        case U'\u2019':
            return 2;
        case U'-':
            return 3;
        case U'\u2010':
            return 4;
        case U'\u2013':
            return 5;
        case U'\u2014':
            return 6;
        default:
            return 0;
    }
}

constinit std::array<Poids, kFinLatin + (kFinPonctuation - kDebutPonctuation)> g_poids{};
constinit std::array<std::uint8_t, 256> g_lettresSimples{};

const Poids& poidsNouveau(char32_t caractere) {
    char32_t rang = caractere;
    if (caractere >= kDebutPonctuation && caractere < kFinPonctuation) {
        rang = kFinLatin + (caractere - kDebutPonctuation);
    } else if (caractere >= kFinLatin) {
        return kPoidsLent;
    }
    Poids& poids = g_poids[rang];
    if (poids.genre == Poids::Genre::Inconnu) {
        poids = calcule(caractere);
        const bool simple = poids.genre == Poids::Genre::Pret && poids.elements == 1 && poids.lettresTaille == 1 &&
                            poids.accentsTaille == 1 && poids.accents[0] == kAccentCommun;
        if (caractere < 0x80 && simple) g_lettresSimples[caractere] = poids.lettres[0];
    }
    return poids;
}

ElementsDeTexte::ElementsDeTexte(std::u16string_view texte) {
    OrdreRacine::unique().charge(texte);
}

bool ElementsDeTexte::suivant(ElementJet& element) {
    constexpr std::int32_t kMarqueDeSuite = 0xc0;
    const std::int32_t ordre = OrdreRacine::unique().suivant();
    if (ordre == UCOL_NULLORDER) return false;
    const auto lettre = static_cast<std::uint16_t>(ucol_primaryOrder(ordre));
    element.lettre = {static_cast<std::uint8_t>(lettre >> 8), static_cast<std::uint8_t>(lettre & 0xff)};
    element.lettreTaille = lettre == 0 ? 0 : element.lettre[1] == 0 ? 1 : 2;
    element.accent = static_cast<std::uint8_t>(ucol_secondaryOrder(ordre));
    element.commence = lettre != 0 && (ordre & kMarqueDeSuite) != kMarqueDeSuite;
    return true;
}

}  // namespace dao::interne
