#include "platform/dao/TexteJet.h"

#include "platform/dao/Utf8.h"

#include <algorithm>
#include <cstdint>

#include <unicode/uchar.h>

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

// Whether the text holds nothing but ASCII and the letters of Latin-1, as nearly every French one does.
bool estLatin(const std::uint8_t* octets, std::size_t taille) {
    std::uint8_t autres = octets[0] >= 0x80 && octets[0] != kAvantLatin ? 1 : 0;
    for (std::size_t i = 1; i < taille; ++i) {
        const std::uint8_t suite = (octets[i - 1] == kAvantLatin) & (octets[i] < 0xc0);
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

}  // namespace

void plie(std::string_view texte, std::string& resultat) {
    std::size_t rang = 0;
    while (rang < texte.size()) {
        if (estAscii(texte[rang])) {
            resultat.push_back(minusculeAscii(texte[rang++]));
            continue;
        }
        const CaractereLu lu = litCaractere(texte.substr(rang));
        if (lu.valide) {
            ecritCaractere(plieCaractere(lu.point), resultat);
        } else {
            resultat.push_back(texte[rang]);
        }
        rang += lu.octets;
    }
}

std::size_t instr(std::string_view texte, std::string_view aiguillePliee) {
    thread_local std::string plis;
    const auto* octets = reinterpret_cast<const std::uint8_t*>(texte.data());
    if (!texte.empty() && estLatin(octets, texte.size())) {
        plis.resize(texte.size());
        plieLatin(octets, texte.size(), reinterpret_cast<std::uint8_t*>(plis.data()));
    } else {
        plis.clear();
        plie(texte, plis);
    }
    const auto octet = plis.find(aiguillePliee);
    if (octet == std::string::npos) return 0;
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
