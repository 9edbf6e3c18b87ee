#include "platform/jet/CleIndex.h"

#include "platform/jet/OctetsEcrits.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

namespace jet::interne {

namespace {

constexpr char kNul = 0x00, kValeur = 0x7f;
constexpr char kFinDeNiveau = 0x01, kFin = 0x00;
constexpr std::uint8_t kSansAccent = 0x02;

// How a character counts: by one or two bytes among the letters and one among the accents; by an accent that goes to the
// letter before it; by its place alone; or not at all.
struct Compte {
    enum class Genre { Inconnu, Rien, Lettre, Accent, Signe };
    Genre genre = Genre::Inconnu;
    std::uint16_t lettre = 0;  // one byte below 256
    std::uint8_t accent = kSansAccent;
    std::uint8_t signe = 0;
};

constexpr Compte lettre(unsigned code, unsigned accent = kSansAccent) {
    return {Compte::Genre::Lettre, static_cast<std::uint16_t>(code), static_cast<std::uint8_t>(accent), 0};
}
constexpr Compte signe(unsigned code) {
    return {Compte::Genre::Signe, 0, kSansAccent, static_cast<std::uint8_t>(code)};
}
constexpr Compte kRien{Compte::Genre::Rien, 0, kSansAccent, 0};

// Blank to @; 0 for the apostrophe and the hyphen.
constexpr std::array<std::uint8_t, 33> kPonctuation{0x07, 0x09, 0x0a, 0x0c, 0x0e, 0x10, 0x12, 0,    0x14, 0x16, 0x18,
                                                    0x2c, 0x1a, 0,    0x1c, 0x1e, 0x36, 0x38, 0x3a, 0x3c, 0x3e, 0x40,
                                                    0x42, 0x44, 0x46, 0x48, 0x20, 0x22, 0x2e, 0x30, 0x32, 0x24, 0x26};
constexpr std::array<std::uint8_t, 26> kLettres{0x4a, 0x4c, 0x4d, 0x4f, 0x51, 0x53, 0x55, 0x57, 0x59,
                                                0x5b, 0x5c, 0x5e, 0x60, 0x62, 0x64, 0x66, 0x68, 0x69,
                                                0x6b, 0x6d, 0x6f, 0x71, 0x73, 0x75, 0x76, 0x78};

Compte ascii(char16_t c) {
    if (c == 0) return kRien;
    if (c <= 0x08) return signe(c + 0x02u);
    if (c <= 0x0d) return lettre(0x0803u + (c - 0x09u));
    if (c < 0x20) return signe(0x0bu + (c - 0x0eu));
    if (c == u'\'') return signe(0x80);
    if (c == u'-') return signe(0x82);
    if (c <= u'@') return lettre(kPonctuation[c - 0x20u]);
    const unsigned minuscule = c | 0x20u;
    if (minuscule >= 'a' && minuscule <= 'z') return lettre(kLettres[minuscule - 'a']);
    switch (c) {
        case u'[':
            return lettre(0x27);
        case u'\\':
            return lettre(0x29);
        case u']':
            return lettre(0x2a);
        case u'^':
            return lettre(0x2b02);
        case u'_':
            return lettre(0x2b03);
        case u'`':
            return lettre(0x2b07);
        default:  // { | } ~ and delete
            return c == 0x7f ? signe(0x1d) : lettre(0x2b09u + 2 * (c - u'{'));
    }
}

// A0 to BF.
constexpr std::array<Compte, 32> kSignesLatins{
    lettre(0x0802), lettre(0x2b10), lettre(0x34a6), lettre(0x34a7),  lettre(0x34a8), lettre(0x34a9),  lettre(0x2b11),
    lettre(0x34aa), lettre(0x2b12), lettre(0x34ab), lettre(0x4a, 3), lettre(0x3305), lettre(0x34ac),  signe(0x83),
    lettre(0x34ad), lettre(0x2b13), lettre(0x34ae), lettre(0x3304),  lettre(0x3a),   lettre(0x3c),    lettre(0x2b14),
    lettre(0x34af), lettre(0x34b0), lettre(0x34b1), lettre(0x2b15),  lettre(0x38),   lettre(0x64, 3), lettre(0x3307),
    lettre(0x3712), lettre(0x3716), lettre(0x371a), lettre(0x2b16)};

struct Place {
    std::u16string_view caracteres;  // which count alike
    Compte compte;
};
// Letters that are no letter with an accent, and signs that stand alone.
constexpr std::array kAPart{Place{u"Ææ", lettre(0x4a51)},
                            Place{u"Ðð", lettre(0x4f, 0x68)},
                            Place{u"×", lettre(0x3309)},
                            Place{u"Øø", lettre(0x64, 0x21)},
                            Place{u"Þþ", lettre(0x6d57)},
                            Place{u"ß", lettre(0x6b6b)},
                            Place{u"÷", lettre(0x330a)},
                            Place{u"Đđ", lettre(0x4f, 0x1e)},
                            Place{u"Ħħ", lettre(0x57, 0x1e)},
                            Place{u"ı", lettre(0x59, 3)},
                            Place{u"Ĳĳ", lettre(0x595b)},
                            Place{u"ĸ", lettre(0x5c, 3)},
                            Place{u"Ŀŀ", lettre(0x5e, 0x11)},
                            Place{u"Łł", lettre(0x5e, 0x1f)},
                            Place{u"ŉ", lettre(0x62, 0x48)},
                            Place{u"Ŋŋ", lettre(0x6305)},
                            Place{u"Œœ", lettre(0x6451)},
                            Place{u"Ŧŧ", lettre(0x6e06, 0x1e)},
                            Place{u"ſ", lettre(0x6c06)},
                            Place{u"ƒ", lettre(0x53, 0x7b)},
                            Place{u"\u0218\u0219\u021a\u021b", kRien},
                            Place{u"\u0390", lettre(0x7914, 0x16)},
                            Place{u"\u03b0", lettre(0x791f, 0x16)},
                            Place{u"№", lettre(0x6302)},
                            Place{u"™", lettre(0x6e04)},
                            Place{u"€", lettre(0x35a1)}};

struct Accent {
    char16_t caractere;
    std::uint8_t poids;
};
constexpr std::array<Accent, 13> kAccents{{{0x300, 0x0f},
                                           {0x301, 0x0e},
                                           {0x302, 0x12},
                                           {0x303, 0x19},
                                           {0x304, 0x17},
                                           {0x306, 0x15},
                                           {0x307, 0x10},
                                           {0x308, 0x13},
                                           {0x30a, 0x1a},
                                           {0x30b, 0x1d},
                                           {0x30c, 0x14},
                                           {0x327, 0x1c},
                                           {0x328, 0x1b}}};

Compte accentSeul(char16_t c) {
    const auto* trouve = std::ranges::find(kAccents, c, &Accent::caractere);
    if (trouve == kAccents.end()) return {};
    return {Compte::Genre::Accent, 0, trouve->poids, 0};
}

// À to ž: a letter of ASCII and its accent.
Compte latine(char16_t c) {
    UErrorCode etat = U_ZERO_ERROR;
    const icu::Normalizer2* forme = icu::Normalizer2::getNFDInstance(etat);
    icu::UnicodeString deux;
    if (U_FAILURE(etat) || !forme->getRawDecomposition(c, deux) || deux.length() != 2 || deux.charAt(0) >= 0x80)
        return {};
    const Compte accent = accentSeul(deux.charAt(1));
    return accent.genre == Compte::Genre::Accent ? lettre(ascii(deux.charAt(0)).lettre, accent.accent) : Compte{};
}

// Alpha is the first letter, and omega the last; both sigmas are one.
Compte grecque(char16_t c) {
    constexpr unsigned kAlpha = 0x790c, kTonos = 0x05, kTrema = 0x13;
    const auto rang = [](unsigned apresAlpha) { return kAlpha + apresAlpha - (apresAlpha > 17 ? 1 : 0); };
    if (c >= 0x391 && c <= 0x3a9 && c != 0x3a2) return lettre(rang(c - 0x391u));
    if (c >= 0x3b1 && c <= 0x3c9) return lettre(c == 0x3c2 ? rang(18) : rang(c - 0x3b1u));
    constexpr std::u16string_view kAccentuees = u"ΆΈΉΊΌΎΏάέήίόύώ", kNues = u"ΑΕΗΙΟΥΩαεηιουω";
    if (const auto place = kAccentuees.find(c); place != std::u16string_view::npos)
        return lettre(grecque(kNues[place]).lettre, kTonos);
    if (c == u'Ϊ' || c == u'ϊ') return lettre(grecque(u'Ι').lettre, kTrema);
    if (c == u'Ϋ' || c == u'ϋ') return lettre(grecque(u'Υ').lettre, kTrema);
    return {};
}

// Ё to Џ, then А to Я.
constexpr std::array<std::uint8_t, 15> kCyrilliquesAutres{0x36, 0x35, 0x32, 0x37, 0x3a, 0x3c, 0x3d, 0x3f,
                                                          0x42, 0x45, 0x4b, 0x40, 0,    0x4e, 0x54};
constexpr std::array<std::uint8_t, 32> kCyrilliques{0x2f, 0x30, 0x31, 0x32, 0x33, 0x36, 0x38, 0x39, 0x3b, 0x3e, 0x40,
                                                    0x41, 0x43, 0x44, 0x46, 0x47, 0x48, 0x49, 0x4a, 0x4d, 0x50, 0x51,
                                                    0x52, 0x53, 0x55, 0x56, 0x57, 0x58, 0x59, 0x5a, 0x5b, 0x5c};

Compte cyrillique(char16_t c) {
    constexpr unsigned kPage = 0x7900;
    if (c >= 0x410 && c <= 0x44f) return lettre(kPage + kCyrilliques[(c - 0x410u) % 32]);
    const unsigned rang = (c >= 0x451 ? c - 0x451u : c - 0x401u);
    if (c < 0x401 || rang >= kCyrilliquesAutres.size()) return {};
    if (kCyrilliquesAutres[rang] == 0) return kRien;
    constexpr unsigned kTrema = 0x13, kAigu = 0x0e;  // of Ё; of Ѓ and Ќ
    const unsigned accent = rang == 0 ? kTrema : rang == 2 || rang == 11 ? kAigu : kSansAccent;
    return lettre(kPage + kCyrilliquesAutres[rang], accent);
}

Compte typographique(char16_t c) {
    if (c <= 0x200c) return lettre(0x0808u + (c - 0x2000u));
    if (c <= 0x200f) return kRien;
    constexpr std::array<std::uint8_t, 6> kTirets{0x84, 0x85, 0x88, 0x89, 0x8b, 0x8c};
    if (c <= 0x2015) return signe(kTirets[c - 0x2010u]);
    if (c <= 0x201f) return lettre(0x2b35u + (c - 0x2016u));
    if (c <= 0x2026) return lettre(0x34b3u + (c - 0x2020u));
    if (c == 0x2027) return signe(0x86);
    if (c <= 0x2029) return lettre(0x0815u + (c - 0x2028u));
    if (c <= 0x202f) return kRien;
    if (c <= 0x2031) return lettre(0x34bau + (c - 0x2030u));
    if (c <= 0x203a) return lettre(0x2b3fu + (c - 0x2032u));
    return {};
}

Compte compteDe(char16_t c) {
    if (c < 0x80) return ascii(c);
    if (c < 0xa0) return signe(0x1eu + (c - 0x80u));
    if (c < 0xc0) return kSignesLatins[c - 0xa0u];
    for (const Place& place : kAPart)
        if (place.caracteres.find(c) != std::u16string_view::npos) return place.compte;
    if (c < 0x180) return latine(c);
    if (c >= 0x300 && c < 0x370) return accentSeul(c);
    if (c >= 0x370 && c < 0x400) return grecque(c);
    if (c >= 0x400 && c < 0x460) return cyrillique(c);
    if (c >= 0x2000 && c < 0x2040) return typographique(c);
    return {};
}

// The three levels of a text.
class Niveaux {
  public:
    bool ajoute(char16_t c) {
        const Compte compte = compteDe(c);
        switch (compte.genre) {
            case Compte::Genre::Inconnu:
                return false;
            case Compte::Genre::Rien:
                return true;
            case Compte::Genre::Lettre:
                m_lettres += compte.lettre < 0x100 ? grand(compte.lettre, 1) : grand(compte.lettre, 2);
                m_accents += static_cast<char>(compte.accent);
                return true;
            case Compte::Genre::Accent:
                ajouteAccent(compte.accent);
                return true;
            case Compte::Genre::Signe:
                ajouteSigne(compte.signe);
                return true;
        }
        return false;
    }

    void finit(std::string& cle) {
        while (!m_accents.empty() && static_cast<std::uint8_t>(m_accents.back()) <= kSansAccent)
            m_accents.pop_back();
        cle += m_lettres;
        cle += kFinDeNiveau;
        cle += m_accents;
        if (!m_signes.empty()) cle += std::string(3, kFinDeNiveau) + m_signes;
        cle += kFin;
    }

  private:
    // It adds to the letter's own; before the first letter it stands alone, and shifts no place.
    void ajouteAccent(std::uint8_t poids) {
        const auto ajout = static_cast<std::uint8_t>(poids - kSansAccent);
        if (m_accents.empty()) {
            m_accents += static_cast<char>(ajout);
            m_seul = 1;
        } else {
            m_accents.back() = static_cast<char>(static_cast<std::uint8_t>(m_accents.back()) + ajout);
        }
    }
    void ajouteSigne(std::uint8_t code) {
        constexpr std::size_t kDebut = 7, kPas = 4, kDrapeau = 0x8000;
        m_signes += grand((kDebut + kPas * (m_accents.size() - m_seul)) | kDrapeau, 2);
        m_signes += '\x06';
        m_signes += static_cast<char>(code);
    }

    std::string m_lettres, m_accents, m_signes;
    std::size_t m_seul = 0;
};

}  // namespace

void ajouteCleNulle(std::string& cle) {
    cle += kNul;
}

void ajouteCleEntiere(std::int32_t valeur, std::string& cle) {
    cle += kValeur + grand(static_cast<std::uint32_t>(valeur) ^ 0x80000000U, 4);
}

bool ajouteCleTexte(std::u16string_view texte, std::string& cle) {
    while (texte.ends_with(u' '))
        texte.remove_suffix(1);
    Niveaux niveaux;
    if (!std::ranges::all_of(texte, [&niveaux](char16_t c) { return niveaux.ajoute(c); })) return false;
    cle += kValeur;
    niveaux.finit(cle);
    return true;
}

}  // namespace jet::interne
