#include "platform/dao/PoidsJet.h"

#include "platform/dao/Erreurs.h"

#include <memory>

#include <unicode/normalizer2.h>
#include <unicode/ucol.h>
#include <unicode/ucoleitr.h>

namespace dao::interne {

namespace {

// Jet reads these as their two letters; ICU sets them one accent apart.
struct Ligature {
    const char16_t *signe, *lettres;
};
constexpr std::array<Ligature, 6> kLigatures{
    {{u"œ", u"oe"}, {u"Œ", u"oe"}, {u"æ", u"ae"}, {u"Æ", u"ae"}, {u"ß", u"ss"}, {u"ẞ", u"ss"}}};

template <auto kFerme>
struct Ferme {
    void operator()(auto* objet) const { kFerme(objet); }
};

// ICU's root order, opened once for each thread that compares, with an iterator of its own.
class OrdreRacine {
  public:
    static OrdreRacine& unique() {
        thread_local OrdreRacine ordre;
        return ordre;
    }

    void charge(const icu::UnicodeString& texte) {
        UErrorCode etat = U_ZERO_ERROR;
        m_texte = m_forme->normalize(texte, etat);
        for (const auto& [signe, lettres] : kLigatures)
            m_texte.findAndReplace(signe, lettres);
        ucol_setText(m_elements.get(), m_texte.getBuffer(), m_texte.length(), &etat);
        exigeSucces(etat);
    }

    std::int32_t suivant() {
        UErrorCode etat = U_ZERO_ERROR;
        const std::int32_t element = ucol_next(m_elements.get(), &etat);
        exigeSucces(etat);
        return element;
    }

  private:
    OrdreRacine() {
        UErrorCode etat = U_ZERO_ERROR;
        m_forme = icu::Normalizer2::getNFDInstance(etat);
        m_ordre.reset(ucol_open("root", &etat));
        m_elements.reset(ucol_openElements(m_ordre.get(), u"", 0, &etat));
        exigeSucces(etat);
    }

    const icu::Normalizer2* m_forme = nullptr;
    std::unique_ptr<UCollator, Ferme<ucol_close>> m_ordre;
    std::unique_ptr<UCollationElements, Ferme<ucol_closeElements>> m_elements;  // of m_ordre, which outlives it
    icu::UnicodeString m_texte;
};

constinit const Poids kPoidsLent{.maniere = Poids::Maniere::Lent};
constexpr char32_t kPointMedian = 0xb7;  // weighs with the l before it

Poids calcule(char32_t caractere) {
    Poids poids;
    poids.signe = signeDe(caractere);
    if (poids.signe != 0) {
        poids.maniere = Poids::Maniere::Signe;
        return poids;
    }
    poids.maniere = Poids::Maniere::Lent;
    if (caractere == kPointMedian) return poids;
    ElementsDeTexte elements(static_cast<UChar32>(caractere));
    for (ElementJet element; elements.suivant(element);) {
        if (poids.lettresTaille + 2U > poids.lettres.size() || poids.accentsTaille + 1U > poids.accents.size())
            return poids;
        for (std::uint8_t i = 0; i < element.lettreTaille; ++i)
            poids.lettres[poids.lettresTaille++] = element.lettre[i];
        if (element.accent != 0) poids.accents[poids.accentsTaille++] = element.accent;
        if (element.commence) ++poids.elements;
    }
    poids.maniere = Poids::Maniere::Pret;
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

constinit thread_local std::array<Poids, kFinLatin + (kFinPonctuation - kDebutPonctuation)> g_poids{};
constinit thread_local std::array<std::uint8_t, 256> g_lettresSimples{};

const Poids& poidsNouveau(char32_t caractere) {
    char32_t rang = caractere;
    if (caractere >= kDebutPonctuation && caractere < kFinPonctuation) {
        rang = kFinLatin + (caractere - kDebutPonctuation);
    } else if (caractere >= kFinLatin) {
        return kPoidsLent;
    }
    Poids& poids = g_poids[rang];
    if (poids.maniere == Poids::Maniere::Inconnu) {
        poids = calcule(caractere);
        const bool simple = poids.maniere == Poids::Maniere::Pret && poids.elements == 1 && poids.lettresTaille == 1 &&
                            poids.accentsTaille == 1 && poids.accents[0] == kAccentCommun;
        if (caractere < 0x80 && simple) g_lettresSimples[caractere] = poids.lettres[0];
    }
    return poids;
}

ElementsDeTexte::ElementsDeTexte(const icu::UnicodeString& texte) {
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
