#include "platform/dao/TexteJet.h"

#include "platform/dao/Erreurs.h"
#include "util/Ascii.h"
#include "util/Unicode.h"

#include <array>
#include <cstdint>
#include <cstring>

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace dao::interne {

namespace {

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

const icu::Normalizer2& forme(const icu::Normalizer2* (*instance)(UErrorCode&)) {
    UErrorCode etat = U_ZERO_ERROR;
    const icu::Normalizer2* resultat = instance(etat);
    exigeSucces(etat);
    return *resultat;
}

// Folds any characters, those that compose with their neighbours included; the ligatures to their letters.
void plieMorceau(std::string_view morceau, std::string& resultat) {
    UErrorCode etat = U_ZERO_ERROR;
    const auto decompose =
        forme(&icu::Normalizer2::getNFDInstance).normalize(icu::UnicodeString::fromUTF8(morceau), etat);
    icu::UnicodeString plis;
    for (std::int32_t i = 0; i < decompose.length(); i = decompose.moveIndex32(i, 1)) {
        switch (const UChar32 point = u_foldCase(decompose.char32At(i), U_FOLD_CASE_DEFAULT)) {
            case U'œ':
                plis.append(u"oe", 2);
                break;
            case U'æ':
                plis.append(u"ae", 2);
                break;
            case U'ß':
                plis.append(u"ss", 2);
                break;
            default:
                plis.append(point);
        }
    }
    forme(&icu::Normalizer2::getNFCInstance).normalize(plis, etat).toUTF8String(resultat);
    exigeSucces(etat);
}

void plieLentement(std::string_view texte, std::string& resultat) {
    for (std::size_t debut = 0, fin = 0; debut < texte.size(); debut = fin) {
        while (fin < texte.size() && util::litPoint(texte, fin).valeur >= 0)
            fin += util::litPoint(texte, fin).taille;
        plieMorceau(texte.substr(debut, fin - debut), resultat);
        if (fin < texte.size()) resultat += texte[fin++];
    }
}

constexpr UChar32 kFinSeuls = 0x300;           // below, no character composes with the one before it
constexpr UChar32 kDebutPonctuation = 0x2002;  // and in the usual punctuation
constexpr UChar32 kFinPonctuation = 0x2070;

// What a character below kFinSeuls folds to, worked out as it is met.
const std::string& plisDe(UChar32 caractere) {
    static std::array<std::string, kFinSeuls> connus;
    std::string& plis = connus[static_cast<std::size_t>(caractere)];
    if (plis.empty()) {
        std::string seul;
        util::ajoutePoint(seul, caractere);
        plieMorceau(seul, plis);
    }
    return plis;
}

// Answers false, the result to be thrown away, at the first character that may compose with its neighbours.
bool plieSeuls(std::string_view texte, std::string& resultat) {
    for (std::size_t rang = 0; rang < texte.size();) {
        const auto [point, taille] = util::litPoint(texte, rang);
        if (point < 0x80) {  // or no UTF-8
            resultat.push_back(util::enMinuscule<char>(texte[rang]));
        } else if (point < kFinSeuls) {
            resultat += plisDe(point);
        } else if (point >= kDebutPonctuation && point < kFinPonctuation) {
            resultat.append(texte.substr(rang, taille));
        } else {
            return false;
        }
        rang += taille;
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
    return u_getCombiningClass(util::litPoint(suite, 0).valeur) != 0;
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

bool contient(std::string_view texte, std::string_view aiguillePliee) {
    const std::string_view plis = plisDuTexte(texte);
    std::size_t octet = trouve(plis, aiguillePliee, 0);
    while (octet != std::string_view::npos && estAccent(plis.substr(octet + aiguillePliee.size())))
        octet = trouve(plis, aiguillePliee, octet + 1);
    return octet != std::string_view::npos;
}

}  // namespace dao::interne
