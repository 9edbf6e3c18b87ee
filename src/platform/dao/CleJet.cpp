#include "platform/dao/CleJet.h"

#include "platform/dao/Comparaison.h"
#include "platform/dao/PoidsJet.h"
#include "util/Unicode.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

namespace dao::interne {

namespace {

constexpr char kFinDeNiveau = 0x01;  // below every weight

std::string_view sansBlancsFinaux(std::string_view texte) {
    while (texte.ends_with(' '))
        texte.remove_suffix(1);
    return texte;
}

// A key in the making, level by level, on a bench kept from one text to the next.
class CleEnCours {
  public:
    // No more than `caracteres` characters of the table, or elements of ICU, may be added before reserve is called again.
    explicit CleEnCours(std::size_t caracteres) : m_etabli(etabli()) { reserve(caracteres); }
    CleEnCours(const CleEnCours&) = delete;
    CleEnCours& operator=(const CleEnCours&) = delete;
    ~CleEnCours() {
        constexpr std::size_t kPlacesGardees = 1 << 16;  // one huge text must not hold its bench for ever
        if (m_etabli.places > kPlacesGardees) m_etabli = {};
    }

    void reserve(std::size_t caracteres) {
        if (m_etabli.places <= m_reserves + caracteres) agrandit(m_reserves + caracteres);
        m_reserves += caracteres;
    }

    // Copies whole fixed arrays and keeps their used part: quicker than counting bytes.
    void ajoute(const Poids& poids) {
        std::memcpy(m_etabli.lettres.get() + m_lettres, poids.lettres.data(), poids.lettres.size());
        m_lettres += poids.lettresTaille;
        m_elements += poids.elements;
        for (std::size_t i = 0; i < poids.accentsTaille; ++i)
            accent(poids.accents[i]);
    }

    // The plain letters at the start of a text; answers how many there were.
    std::size_t ajouteSimples(std::string_view texte) {
        char* const lettres = m_etabli.lettres.get() + m_lettres;
        std::size_t nombre = 0;
        for (; nombre < texte.size(); ++nombre) {
            const std::uint8_t lettre = g_lettresSimples[static_cast<std::uint8_t>(texte[nombre])];
            if (lettre == 0) break;
            lettres[nombre] = static_cast<char>(lettre);
        }
        m_lettres += nombre;
        m_elements += nombre;
        m_accents += nombre;
        return nombre;
    }

    void ajoute(const ElementJet& element) {
        std::memcpy(m_etabli.lettres.get() + m_lettres, element.lettre.data(), element.lettre.size());
        m_lettres += element.lettreTaille;
        m_elements += element.commence ? 1 : 0;
        if (element.accent != 0) accent(element.accent);
    }

    void signe(std::uint8_t rang) {
        constexpr std::size_t kBase = 250;
        const std::size_t haut = std::min(m_elements / kBase, kBase);
        char* signes = m_etabli.signes.get() + m_signes;
        signes[0] = static_cast<char>(2 + haut);
        signes[1] = static_cast<char>(2 + m_elements % kBase);
        signes[2] = static_cast<char>(1 + rang);
        m_signes += 3;
    }

    // Common accents at the end say nothing and are left out.
    void finit(std::string& cle) {
        m_etabli.lettres[m_lettres++] = kFinDeNiveau;
        cle.append(m_etabli.lettres.get(), m_lettres);
        cle.append(m_etabli.accents.get(), m_accentsUtiles);
        if (m_signes == 0) return;
        cle.push_back(kFinDeNiveau);
        cle.append(m_etabli.signes.get(), m_signes);
    }

  private:
    struct Etabli {
        std::size_t places = 0;
        std::unique_ptr<char[]> lettres, accents, signes;
    };

    static Etabli& etabli() {
        thread_local Etabli unique;
        return unique;
    }

    void agrandit(std::size_t caracteres) {
        const auto refait = [](std::unique_ptr<char[]>& octets, std::size_t garde, std::size_t taille) {
            auto nouveaux = std::make_unique_for_overwrite<char[]>(taille);
            if (garde != 0) std::memcpy(nouveaux.get(), octets.get(), garde);
            octets = std::move(nouveaux);
        };
        const std::size_t places = 2 * caracteres + 256;
        refait(m_etabli.lettres, m_lettres, places * sizeof(Poids::lettres) + 1);
        refait(m_etabli.accents, m_accentsUtiles, places * sizeof(Poids::accents));
        refait(m_etabli.signes, m_signes, places * 3);
        m_etabli.places = places;
    }

    void accent(std::uint8_t octet) {
        if (octet != kAccentCommun) {
            char* const accents = m_etabli.accents.get();
            std::memset(accents + m_accentsUtiles, kAccentCommun, m_accents - m_accentsUtiles);
            accents[m_accents] = static_cast<char>(octet);
            m_accentsUtiles = m_accents + 1;
        }
        ++m_accents;
    }

    Etabli& m_etabli;
    std::size_t m_reserves = 0;
    std::size_t m_lettres = 0;
    std::size_t m_accents = 0;
    std::size_t m_accentsUtiles = 0;
    std::size_t m_signes = 0;
    std::size_t m_elements = 0;
};

// The character at a place, a byte that is no UTF-8 as the Latin-1 character of its value; and its bytes.
std::pair<char32_t, std::size_t> litCaractere(std::string_view texte, std::size_t rang) {
    const util::PointDeCode lu = util::litPoint(texte, rang);
    return {lu.valeur < 0 ? static_cast<std::uint8_t>(texte[rang]) : static_cast<char32_t>(lu.valeur), lu.taille};
}

void ajouteMorceau(const icu::UnicodeString& morceau, CleEnCours& cle) {
    if (morceau.isEmpty()) return;
    ElementsDeTexte elements(morceau);
    for (ElementJet element; elements.suivant(element);) {
        cle.reserve(1);
        cle.ajoute(element);
    }
}

void ajouteCleLente(std::string_view texte, std::string& cle) {
    CleEnCours enCours(texte.size());
    icu::UnicodeString morceau;
    for (std::size_t rang = 0; rang < texte.size();) {
        const auto [caractere, octets] = litCaractere(texte, rang);
        rang += octets;
        const std::uint8_t signe = signeDe(caractere);
        if (signe == 0) {
            morceau.append(static_cast<UChar32>(caractere));
            continue;
        }
        ajouteMorceau(morceau, enCours);
        morceau.remove();
        enCours.signe(signe);
    }
    ajouteMorceau(morceau, enCours);
    enCours.finit(cle);
}

// Answers false, the key untouched, at the first character that is not in the table.
bool ajouteCleRapide(std::string_view texte, std::string& cle) {
    CleEnCours enCours(texte.size());
    std::size_t rang = 0;
    while (true) {
        rang += enCours.ajouteSimples(texte.substr(rang));
        if (rang == texte.size()) break;
        const auto [caractere, octets] = litCaractere(texte, rang);
        rang += octets;
        const Poids& poids = poidsDe(caractere);
        if (poids.maniere == Poids::Maniere::Lent) return false;
        if (poids.maniere == Poids::Maniere::Signe) {
            enCours.signe(poids.signe);
            continue;
        }
        enCours.ajoute(poids);
    }
    enCours.finit(cle);
    return true;
}

// The key of a text of plain letters alone, which most are: their weights. Else false, the key untouched.
bool ajouteCleSimple(std::string_view texte, std::string& cle) {
    constexpr std::size_t kAuPlus = 128;
    if (texte.size() > kAuPlus) return false;
    std::array<char, kAuPlus + 1> poids;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled as far as it is read
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const std::uint8_t lettre = g_lettresSimples[static_cast<std::uint8_t>(texte[i])];
        if (lettre == 0) return false;
        poids[i] = static_cast<char>(lettre);
    }
    poids[texte.size()] = kFinDeNiveau;
    cle.append(poids.data(), texte.size() + 1);
    return true;
}

}  // namespace

void ajouteCleJet(std::string_view texte, std::string& cle) {
    texte = sansBlancsFinaux(texte);
    if (!ajouteCleSimple(texte, cle) && !ajouteCleRapide(texte, cle)) ajouteCleLente(texte, cle);
}

std::string cleJet(std::string_view texte) {
    std::string cle;
    ajouteCleJet(texte, cle);
    return cle;
}

std::string cleJetLente(std::string_view texte) {
    std::string cle;
    ajouteCleLente(sansBlancsFinaux(texte), cle);
    return cle;
}

}  // namespace dao::interne

namespace dao {

bool egalJet(std::string_view gauche, std::string_view droite) {
    return gauche == droite || interne::cleJet(gauche) == interne::cleJet(droite);
}

std::string cleDeComparaison(std::string_view texte) {
    return interne::cleJet(texte);
}

}  // namespace dao
