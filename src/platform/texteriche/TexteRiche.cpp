#include "platform/texteriche/TexteRiche.h"

#include "util/Texte.h"
#include "util/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace texteriche {

namespace {

constexpr UChar32 kCaractereDeRemplacement = 0xFFFD;
constexpr UChar32 kFinDesCommandesC1 = 0xA0;

// Bytes that stand for themselves in RTF.
constexpr std::array<bool, 256> kOrdinaires = [] {
    std::array<bool, 256> ordinaires{};
    for (std::size_t octet = 0x20; octet < 0x7F; ++octet)
        ordinaires[octet] = octet != '\\' && octet != '{' && octet != '}';
    return ordinaires;
}();

// The place of a value in a table that grows as needed.
template <typename Valeur>
std::size_t rangDans(std::vector<Valeur>& table, const Valeur& valeur) {
    const auto trouvee = std::find(table.begin(), table.end(), valeur);
    if (trouvee != table.end()) return static_cast<std::size_t>(trouvee - table.begin());
    table.push_back(valeur);
    return table.size() - 1;
}

class Redacteur {
  public:
    explicit Redacteur(const TexteRiche& texte);
    [[nodiscard]] std::string redige();

  private:
    // A style by its numbers in the document's tables.
    struct Aspect {
        std::size_t police = 0, couleur = 0;
        int taille = 0;
        bool gras = false, italique = false, souligne = false;
    };

    [[nodiscard]] Aspect aspectDe(const Style& style);
    void ecritTables();
    void ecritPassage(std::size_t fin, std::size_t style);
    void ecritTexte(std::string_view texte);
    std::size_t ecritSpecial(std::string_view texte);
    void ecritCaractere(UChar32 point, std::string_view octets);
    void ecritOctet(unsigned char octet);
    void finitParagraphe();
    void prendAspect(const Aspect& aspect);
    void ecritAlignement();
    [[nodiscard]] Alignement alignementDe(std::size_t paragraphe) const {
        return paragraphe < m_texte.alignements.size() ? m_texte.alignements[paragraphe] : Alignement::Gauche;
    }

    void mot(std::string_view commande) {
        m_rtf += commande;
        m_apresMot = true;
    }
    void mot(std::string_view commande, long nombre) {
        mot(commande);
        ajouteNombre(nombre);
    }
    // Nothing is taken for the rest of a control word once this blank, which the word swallows, stands behind it.
    void separe() {
        if (m_apresMot) m_rtf += ' ';
        m_apresMot = false;
    }
    void ajouteNombre(long nombre) {
        std::array<char, 24> chiffres;
        const auto fin = std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), nombre).ptr;
        m_rtf.append(chiffres.data(), fin);
    }

    const TexteRiche& m_texte;
    std::vector<std::string> m_polices;
    std::vector<std::uint32_t> m_couleurs;
    std::vector<Aspect> m_aspects;  // of each style, then of the default one
    std::string m_rtf;
    std::size_t m_position = 0;
    std::size_t m_paragraphe = 0;
    Aspect m_aspect;
    bool m_apresMot = false;
    bool m_apresRetour = false;  // the last byte was a CR: a LF belongs to it
};

Redacteur::Redacteur(const TexteRiche& texte) : m_texte(texte) {
    for (const Style& style : texte.styles)
        m_aspects.push_back(aspectDe(style));
    m_aspects.push_back(aspectDe(Style{}));
}

// The first colour of the document's table is the reader's own.
Redacteur::Aspect Redacteur::aspectDe(const Style& style) {
    return {rangDans(m_polices, style.police),
            rangDans(m_couleurs, style.couleur) + 1,
            style.taille,
            style.gras,
            style.italique,
            style.souligne};
}

std::string Redacteur::redige() {
    m_rtf.reserve(m_texte.texte.size() + m_texte.texte.size() / 2 + 1024);
    ecritTables();
    for (const Passage& passage : m_texte.passages)
        ecritPassage(passage.fin, passage.style);
    ecritPassage(m_texte.texte.size(), m_texte.styles.size());
    m_rtf += "}\r\n";
    return std::move(m_rtf);
}

void Redacteur::ecritTables() {
    m_rtf += "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl";
    for (std::size_t i = 0; i < m_polices.size(); ++i) {
        m_rtf += '{';
        mot("\\f", static_cast<long>(i));
        mot("\\fnil");
        separe();
        std::string nom = m_polices[i];
        std::erase_if(nom, [](char c) { return c == ';' || c == '\r' || c == '\n'; });
        ecritTexte(nom);
        m_rtf += ";}";
    }
    m_rtf += "}\r\n{\\colortbl ;";
    for (const std::uint32_t couleur : m_couleurs) {
        mot("\\red", couleur & 0xFF);
        mot("\\green", couleur >> 8 & 0xFF);
        mot("\\blue", couleur >> 16 & 0xFF);
        m_rtf += ';';
    }
    m_rtf += "}\r\n";
    ecritAlignement();
}

// A passage that names no style of the text has the default one.
void Redacteur::ecritPassage(std::size_t fin, std::size_t style) {
    fin = std::min(fin, m_texte.texte.size());
    if (fin <= m_position) return;
    prendAspect(m_aspects[std::min(style, m_aspects.size() - 1)]);
    ecritTexte(std::string_view(m_texte.texte).substr(m_position, fin - m_position));
    m_position = fin;
}

void Redacteur::ecritTexte(std::string_view texte) {
    for (std::size_t i = 0; i < texte.size();) {
        std::size_t fin = i;
        while (fin < texte.size() && kOrdinaires[static_cast<unsigned char>(texte[fin])])
            ++fin;
        if (fin > i) {
            separe();
            m_rtf.append(texte, i, fin - i);
            m_apresRetour = false;
        }
        if (fin < texte.size()) fin += ecritSpecial(texte.substr(fin));
        i = fin;
    }
}

// The first character of the text; answers how many bytes it takes.
std::size_t Redacteur::ecritSpecial(std::string_view texte) {
    const bool finDeRetour = m_apresRetour && texte[0] == '\n';
    m_apresRetour = texte[0] == '\r';
    if (texte[0] == '\r' || texte[0] == '\n') {
        if (!finDeRetour) finitParagraphe();
        return 1;
    }
    const util::PointDeCode point = util::litPoint(texte, 0);
    if (point.valeur < 0)
        ecritCaractere(kCaractereDeRemplacement, "?");
    else
        ecritCaractere(point.valeur, texte.substr(0, point.taille));
    return point.taille;
}

void Redacteur::ecritCaractere(UChar32 point, std::string_view octets) {
    if (point == '\t') {
        mot("\\tab");
    } else if (point == '\\' || point == '{' || point == '}') {
        m_rtf += {'\\', static_cast<char>(point)};
        m_apresMot = false;
    } else if (point >= kFinDesCommandesC1) {
        std::u16string unites;
        util::ajoutePoint(unites, point);
        const auto repli = static_cast<unsigned char>(point <= 0xFF ? point : util::vers1252(octets).front());
        for (const char16_t unite : unites) {
            mot("\\u", static_cast<std::int16_t>(unite));
            ecritOctet(repli);
        }
        m_apresMot = false;
    }
}

// What readers that know no Unicode show, as code page 1252 has it. Some take what follows a bare "?" for a part of it.
void Redacteur::ecritOctet(unsigned char octet) {
    constexpr std::string_view kChiffres = "0123456789abcdef";
    m_rtf += {'\\', '\'', kChiffres[octet >> 4], kChiffres[octet & 0xF]};
}

// The paragraph that begins has the last one's alignment unless told otherwise.
void Redacteur::finitParagraphe() {
    mot("\\par");
    m_rtf += "\r\n";
    m_apresMot = false;
    ++m_paragraphe;
    if (alignementDe(m_paragraphe) != alignementDe(m_paragraphe - 1)) ecritAlignement();
}

void Redacteur::ecritAlignement() {
    constexpr std::array<const char*, 3> kMots{"\\pard\\ql", "\\pard\\qr", "\\pard\\qc"};
    mot(kMots.at(static_cast<std::size_t>(alignementDe(m_paragraphe))));
}

void Redacteur::prendAspect(const Aspect& aspect) {
    const bool premier = m_position == 0;
    if (premier || aspect.police != m_aspect.police) mot("\\f", static_cast<long>(aspect.police));
    if (aspect.gras != m_aspect.gras) mot(aspect.gras ? "\\b" : "\\b0");
    if (aspect.italique != m_aspect.italique) mot(aspect.italique ? "\\i" : "\\i0");
    if (aspect.souligne != m_aspect.souligne) mot(aspect.souligne ? "\\ul" : "\\ulnone");
    if (premier || aspect.couleur != m_aspect.couleur) mot("\\cf", static_cast<long>(aspect.couleur));
    if (premier || aspect.taille != m_aspect.taille) mot("\\fs", aspect.taille * 2L);
    m_aspect = aspect;
}

}  // namespace

std::string enRtf(const TexteRiche& texte) {
    return Redacteur(texte).redige();
}

}  // namespace texteriche
