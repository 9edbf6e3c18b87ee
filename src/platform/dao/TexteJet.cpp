#include "platform/dao/TexteJet.h"

#include "platform/dao/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <stdexcept>

#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/utf16.h>

namespace dao::interne {

namespace {

constexpr char minusculeAscii(char octet) {
    return octet >= 'A' && octet <= 'Z' ? static_cast<char>(octet + 32) : octet;
}
bool estAscii(char octet) {
    return static_cast<unsigned char>(octet) < 0x80;
}
char32_t plieCaractere(char32_t caractere) {
    return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(caractere), U_FOLD_CASE_DEFAULT));
}

constexpr std::uint8_t kAvantLatin = 0xc3;  // the lead byte of À to ÿ

// Whether the text holds nothing but ASCII and the letters of Latin-1 that fold to one letter, as most French ones do.
bool estLatin(const std::uint8_t* octets, std::size_t taille) {
    std::uint8_t autres = octets[0] >= 0x80 && octets[0] != kAvantLatin ? 1 : 0;
    for (std::size_t i = 1; i < taille; ++i) {
        const std::uint8_t enDeux = (octets[i] == 0x86) | (octets[i] == 0xa6) | (octets[i] == 0x9f);  // Æ, æ, ß
        const std::uint8_t suite = (octets[i - 1] == kAvantLatin) & (octets[i] < 0xc0) & (enDeux ^ 1);
        autres |= static_cast<std::uint8_t>((octets[i] >= 0x80) & (octets[i] != kAvantLatin) & (suite ^ 1));
    }
    return autres == 0;
}

// Such a text keeps its length: plain loops over bytes, which the compiler widens.
void plieLatin(const std::uint8_t* octets, std::size_t taille, std::uint8_t* __restrict plis) {
    const auto ajout = [](std::uint8_t avant, std::uint8_t octet) {
        const std::uint8_t ascii = static_cast<std::uint8_t>(octet - 'A') < 26;
        const std::uint8_t latine = static_cast<std::uint8_t>(octet - 0x80) < 0x1f;
        const std::uint8_t croix = octet == 0x97;  // the sign ×, between the letters
        const std::uint8_t suite = avant == kAvantLatin;
        return static_cast<std::uint8_t>((ascii | (latine & suite & (croix ^ 1))) << 5);
    };
    plis[0] = static_cast<std::uint8_t>(octets[0] + ajout(0, octets[0]));
    for (std::size_t i = 1; i < taille; ++i)
        plis[i] = static_cast<std::uint8_t>(octets[i] + ajout(octets[i - 1], octets[i]));
}

std::u32string caracteresPlies(std::string_view texte) {
    std::u32string resultat;
    while (!texte.empty()) {
        const CaractereLu lu = litCaractere(texte);
        resultat.push_back(plieCaractere(lu.point));
        texte.remove_prefix(lu.octets);
    }
    return resultat;
}

// Folds decomposed characters, the ligatures to their letters.
std::u16string pliesDecomposes(const std::u16string& decompose) {
    std::u16string resultat;
    resultat.reserve(decompose.size());
    for (std::size_t i = 0; i < decompose.size();) {
        UChar32 point = 0;
        U16_NEXT(decompose.data(), i, decompose.size(), point);
        const char32_t plis = plieCaractere(static_cast<char32_t>(point));
        switch (plis) {
            case U'œ':
                resultat += u"oe";
                break;
            case U'æ':
                resultat += u"ae";
                break;
            case U'ß':
                resultat += u"ss";
                break;
            default:
                ecritCaractere(plis, resultat);
        }
    }
    return resultat;
}

std::u16string normalise(const UNormalizer2* forme, const std::u16string& texte) {
    UErrorCode etat = U_ZERO_ERROR;
    std::u16string resultat(texte.size() * 4 + 8, u'\0');
    const auto taille = unorm2_normalize(forme, texte.data(), static_cast<std::int32_t>(texte.size()), resultat.data(),
                                         static_cast<std::int32_t>(resultat.size()), &etat);
    if (U_FAILURE(etat)) throw std::runtime_error(u_errorName(etat));
    resultat.resize(static_cast<std::size_t>(taille));
    return resultat;
}

// Folds any characters, those that compose with their neighbours included.
void plieMorceau(std::u16string& morceau, std::string& resultat) {
    if (morceau.empty()) return;
    UErrorCode etat = U_ZERO_ERROR;
    const UNormalizer2* decomposee = unorm2_getNFDInstance(&etat);
    const UNormalizer2* composee = unorm2_getNFCInstance(&etat);
    if (U_FAILURE(etat)) throw std::runtime_error(u_errorName(etat));
    const std::u16string plis = normalise(composee, pliesDecomposes(normalise(decomposee, morceau)));
    for (std::size_t i = 0; i < plis.size();) {
        UChar32 point = 0;
        U16_NEXT(plis.data(), i, plis.size(), point);
        ecritCaractere(static_cast<char32_t>(point), resultat);
    }
    morceau.clear();
}

void plieLentement(std::string_view texte, std::string& resultat) {
    std::u16string morceau;
    while (!texte.empty()) {
        const CaractereLu lu = litCaractere(texte);
        if (lu.valide) {
            ecritCaractere(lu.point, morceau);
        } else {
            plieMorceau(morceau, resultat);
            resultat.push_back(texte.front());
        }
        texte.remove_prefix(lu.octets);
    }
    plieMorceau(morceau, resultat);
}

constexpr char32_t kFinSeuls = 0x300;           // below, no character composes with the one before it
constexpr char32_t kDebutPonctuation = 0x2002;  // and in the usual punctuation
constexpr char32_t kFinPonctuation = 0x2070;

// What a character below kFinSeuls folds to, worked out as it is met.
const std::string& plisDe(char32_t caractere) {
    static std::array<std::string, kFinSeuls> connus;
    std::string& plis = connus[caractere];
    if (plis.empty()) {
        std::u16string seul(1, static_cast<char16_t>(caractere));
        plieMorceau(seul, plis);
    }
    return plis;
}

// Answers false, the result to be thrown away, at the first character that may compose with its neighbours.
bool plieSeuls(std::string_view texte, std::string& resultat) {
    std::size_t rang = 0;
    while (rang < texte.size()) {
        if (estAscii(texte[rang])) {
            resultat.push_back(minusculeAscii(texte[rang++]));
            continue;
        }
        const CaractereLu lu = litCaractere(texte.substr(rang));
        if (!lu.valide) {
            resultat.push_back(texte[rang]);
        } else if (lu.point < kFinSeuls) {
            resultat += plisDe(lu.point);
        } else if (lu.point >= kDebutPonctuation && lu.point < kFinPonctuation) {
            resultat.append(texte.substr(rang, lu.octets));
        } else {
            return false;
        }
        rang += lu.octets;
    }
    return true;
}

// The text folded on a bench kept from one text to the next.
const std::string& plisDuTexte(std::string_view texte) {
    thread_local std::string plis;
    const auto* octets = reinterpret_cast<const std::uint8_t*>(texte.data());
    if (!texte.empty() && estLatin(octets, texte.size())) {
        plis.resize(texte.size());
        plieLatin(octets, texte.size(), reinterpret_cast<std::uint8_t*>(plis.data()));
    } else {
        plis.clear();
        plie(texte, plis);
    }
    return plis;
}

bool estAccent(std::string_view suite) {
    constexpr unsigned char kPremierAccent = 0xcc;  // the lead byte of U+0300
    if (suite.empty() || static_cast<unsigned char>(suite.front()) < kPremierAccent) return false;
    const CaractereLu lu = litCaractere(suite);
    return lu.valide && u_getCombiningClass(static_cast<UChar32>(lu.point)) != 0;
}

// Of a long needle in time that grows with the two lengths and not with their product.
std::size_t trouve(std::string_view texte, std::string_view aiguille, std::size_t depuis) {
    constexpr std::size_t kAiguilleCourte = 64;  // for these the plain way is the quicker one
    if (aiguille.size() <= kAiguilleCourte) return texte.find(aiguille, depuis);
    const void* ou = memmem(texte.data() + depuis, texte.size() - depuis, aiguille.data(), aiguille.size());
    if (ou == nullptr) return std::string_view::npos;
    return static_cast<std::size_t>(static_cast<const char*>(ou) - texte.data());
}

}  // namespace

void plie(std::string_view texte, std::string& resultat) {
    const std::size_t debut = resultat.size();
    if (plieSeuls(texte, resultat)) return;
    resultat.resize(debut);
    plieLentement(texte, resultat);
}

std::size_t instr(std::string_view texte, std::string_view aiguillePliee) {
    const std::string_view plis = plisDuTexte(texte);
    std::size_t octet = trouve(plis, aiguillePliee, 0);
    while (octet != std::string_view::npos && estAccent(plis.substr(octet + aiguillePliee.size())))
        octet = trouve(plis, aiguillePliee, octet + 1);
    if (octet == std::string_view::npos) return 0;
    const auto debutDeCaractere = [](char c) { return (static_cast<unsigned char>(c) & 0xc0) != 0x80; };
    return 1 + static_cast<std::size_t>(
                   std::count_if(plis.begin(), plis.begin() + static_cast<std::ptrdiff_t>(octet), debutDeCaractere));
}

Motif::Motif(std::string_view motif) {
    const std::u32string caracteres = caracteresPlies(motif);
    using enum Element::Genre;
    for (std::size_t i = 0; i < caracteres.size(); ++i) {
        switch (caracteres[i]) {
            case U'*':
                m_elements.push_back({Suite});
                break;
            case U'?':
                m_elements.push_back({Un});
                break;
            case U'#':
                m_elements.push_back({Chiffre});
                break;
            case U'[':
                i = ajouteListe(caracteres, i);
                break;
            default:
                m_elements.push_back({Caractere, caracteres[i]});
        }
    }
    const auto simple = [](const Element& element) { return element.genre == Caractere; };
    const bool debutPuisTout = m_elements.size() > 1 && m_elements.back().genre == Suite &&
                               std::all_of(m_elements.begin(), m_elements.end() - 1, simple);
    if (debutPuisTout) m_octetsDecisifs = 4 * (m_elements.size() - 1);
}

// Answers where the list ends; a bracket never closed is a plain character.
std::size_t Motif::ajouteListe(std::u32string_view motif, std::size_t ouverture) {
    const auto fin = motif.find(U']', ouverture + 1);
    if (fin == std::u32string_view::npos) {
        m_elements.push_back({Element::Genre::Caractere, U'['});
        return ouverture;
    }
    Element liste{Element::Genre::Liste};
    std::size_t i = ouverture + 1;
    if (i < fin && motif[i] == U'!') {
        liste.inverse = true;
        ++i;
    }
    while (i < fin) {
        const bool plage = i + 2 < fin && motif[i + 1] == U'-';
        liste.plages.emplace_back(motif[i], plage ? motif[i + 2] : motif[i]);
        i += plage ? 3 : 1;
    }
    if (!liste.plages.empty()) m_elements.push_back(std::move(liste));
    return fin;
}

bool Motif::accepte(const Element& element, char32_t caractere) {
    switch (element.genre) {
        case Element::Genre::Caractere:
            return caractere == element.caractere;
        case Element::Genre::Chiffre:
            return caractere >= U'0' && caractere <= U'9';
        case Element::Genre::Liste:
            return element.inverse !=
                   std::any_of(element.plages.begin(), element.plages.end(), [caractere](const auto& plage) {
                       return plage.first <= caractere && caractere <= plage.second;
                   });
        default:
            return true;
    }
}

bool Motif::convient(std::string_view texte) const {
    const std::u32string caracteres = caracteresPlies(texte);
    constexpr auto kAucune = static_cast<std::size_t>(-1);
    std::size_t e = 0;
    std::size_t c = 0;
    std::size_t suite = kAucune;  // the last * met, and where its run was tried up to
    std::size_t reprise = 0;
    while (c < caracteres.size()) {
        if (e < m_elements.size() && m_elements[e].genre == Element::Genre::Suite) {
            suite = e++;
            reprise = c;
        } else if (e < m_elements.size() && accepte(m_elements[e], caracteres[c])) {
            ++e;
            ++c;
        } else if (suite != kAucune) {
            e = suite + 1;
            c = ++reprise;
        } else {
            return false;
        }
    }
    while (e < m_elements.size() && m_elements[e].genre == Element::Genre::Suite)
        ++e;
    return e == m_elements.size();
}

}  // namespace dao::interne
