#include "util/Texte.h"
#include "util/Unicode.h"

#include <cstdint>
#include <memory>

#include <unicode/brkiter.h>
#include <unicode/locid.h>
#include <unicode/utext.h>

// Between two plain letters there is always a boundary: only the stretches that hold anything else (combining marks,
// emoji, joiners, other scripts) go through ICU, which is a hundred times slower.
namespace util {

namespace {

bool estSimple(UChar32 point) {
    return point < 0x300 || (point >= 0x370 && point < 0x483) || (point >= 0x2010 && point < 0x2028) || point == 0x20AC;
}

// Where the stretch that starts at `debut` ends: before an invalid byte, or between two simple points.
std::size_t finDeZone(std::string_view texte, std::size_t debut) {
    PointDeCode point = litPoint(texte, debut);
    std::size_t fin = debut + point.taille;
    while (fin < texte.size()) {
        const PointDeCode suivant = litPoint(texte, fin);
        if (suivant.valeur < 0 || (estSimple(point.valeur) && estSimple(suivant.valeur))) break;
        point = suivant;
        fin += suivant.taille;
    }
    return fin;
}

// Boundaries inside one such stretch. Opening ICU's iterator is slow: each thread keeps one.
class Zone {
  public:
    explicit Zone(std::string_view zone) : m_zone(zone) {
        thread_local const std::unique_ptr<icu::BreakIterator> iterateur = cree();
        m_iterateur = iterateur.get();
        if (!m_iterateur) return;
        UErrorCode etat = U_ZERO_ERROR;
        utext_openUTF8(&m_texteIcu, zone.data(), static_cast<std::int64_t>(zone.size()), &etat);
        m_iterateur->setText(&m_texteIcu, etat);
        if (U_FAILURE(etat)) m_iterateur = nullptr;
    }
    Zone(const Zone&) = delete;
    Zone& operator=(const Zone&) = delete;
    ~Zone() { utext_close(&m_texteIcu); }

    // The next character; without ICU's data each code point is one.
    std::string_view suivant() {
        std::size_t fin = m_position + litPoint(m_zone, m_position).taille;
        if (m_iterateur)
            if (const int borne = m_iterateur->next(); borne > 0) fin = static_cast<std::size_t>(borne);
        const std::string_view caractere = m_zone.substr(m_position, fin - m_position);
        m_position = fin;
        return caractere;
    }
    bool finie() const { return m_position >= m_zone.size(); }

  private:
    static std::unique_ptr<icu::BreakIterator> cree() {
        UErrorCode etat = U_ZERO_ERROR;
        std::unique_ptr<icu::BreakIterator> iterateur(
            icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), etat));
        return U_SUCCESS(etat) ? std::move(iterateur) : nullptr;
    }

    std::string_view m_zone;
    std::size_t m_position = 0;
    icu::BreakIterator* m_iterateur = nullptr;
    UText m_texteIcu = UTEXT_INITIALIZER;
};

bool seTientSeul(std::string_view texte, std::size_t debut, const PointDeCode& point) {
    if (point.valeur < 0) return true;
    if (!estSimple(point.valeur)) return false;
    const std::size_t suite = debut + point.taille;
    if (suite == texte.size()) return true;
    const UChar32 suivant = litPoint(texte, suite).valeur;
    return suivant < 0 || estSimple(suivant);
}

// `recoit` gets each character as a view, and answers whether to go on.
template <typename Recoit>
void parcourt(std::string_view texte, Recoit recoit) {
    for (std::size_t i = 0; i < texte.size();) {
        const PointDeCode point = litPoint(texte, i);
        if (seTientSeul(texte, i, point)) {
            if (!recoit(texte.substr(i, point.taille))) return;
            i += point.taille;
            continue;
        }
        const std::size_t fin = finDeZone(texte, i);
        for (Zone zone(texte.substr(i, fin - i)); !zone.finie();)
            if (!recoit(zone.suivant())) return;
        i = fin;
    }
}

}  // namespace

std::size_t longueur(std::string_view texte) {
    std::size_t nombre = 0;
    parcourt(texte, [&](std::string_view) {
        ++nombre;
        return true;
    });
    return nombre;
}

std::string coupe(std::string_view texte, std::size_t nombre) {
    if (texte.size() <= nombre) return std::string(texte);
    std::size_t reste = nombre, fin = 0;
    parcourt(texte, [&](std::string_view caractere) {
        if (reste-- == 0) return false;
        fin += caractere.size();
        return true;
    });
    return std::string(texte.substr(0, fin));
}

std::vector<std::string_view> caracteres(std::string_view texte) {
    std::vector<std::string_view> resultat;
    parcourt(texte, [&](std::string_view caractere) {
        resultat.push_back(caractere);
        return true;
    });
    return resultat;
}

}  // namespace util
