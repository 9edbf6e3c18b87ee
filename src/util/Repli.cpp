#include "util/Repli.h"

#include "util/Ascii.h"
#include "util/Unicode.h"

#include <array>

#include <unicode/uchar.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

namespace util {

namespace {

bool separeLesMots(UChar32 point) {
    switch (point) {
        case '\'':
        case '-':
        case '`':
        case 0xb4:
        case 0x2bc:
        case 0x2212:
        case 0xff07:
            return true;
        default:
            return (point >= 0x2010 && point <= 0x201b) || point == 0x2032 || u_isUWhiteSpace(point);
    }
}

std::u16string decompose(UChar32 point) {
    constexpr std::int32_t kAuPlus = 32;
    UErrorCode etat = U_ZERO_ERROR;
    std::u16string morceaux(kAuPlus, u'\0');
    const UNormalizer2* forme = unorm2_getNFKDInstance(&etat);
    const std::int32_t taille =
        U_FAILURE(etat) ? -1 : unorm2_getDecomposition(forme, point, morceaux.data(), kAuPlus, &etat);
    morceaux.clear();
    if (taille < 0 || U_FAILURE(etat)) {
        ajoutePoint(morceaux, point);
        return morceaux;
    }
    morceaux.resize(static_cast<std::size_t>(taille));
    unorm2_getDecomposition(forme, point, morceaux.data(), taille, &etat);
    return morceaux;
}

std::u16string sansCasse(const std::u16string& texte) {
    std::u16string plis(texte.size() * 3 + 4, u'\0');
    UErrorCode etat = U_ZERO_ERROR;
    const std::int32_t taille = u_strFoldCase(plis.data(), static_cast<std::int32_t>(plis.size()), texte.data(),
                                              static_cast<std::int32_t>(texte.size()), U_FOLD_CASE_DEFAULT, &etat);
    if (U_FAILURE(etat)) return texte;
    plis.resize(static_cast<std::size_t>(taille));
    return plis;
}

void ajouteLettre(UChar32 point, std::string& repli) {
    switch (point) {
        case 0x153:  // œ
            repli += "oe";
            return;
        case 0xe6:  // æ
            repli += "ae";
            return;
        case 0xf8:  // ø
            repli += 'o';
            return;
        case 0x111:  // đ
            repli += 'd';
            return;
        case 0x142:  // ł
            repli += 'l';
            return;
        case 0x131:  // ı
            repli += 'i';
            return;
        case 0x2044:  // of a fraction
            repli += '/';
            return;
        default:
            break;
    }
    const auto genre = u_charType(point);
    const bool sansLettre = genre == U_NON_SPACING_MARK || genre == U_ENCLOSING_MARK || genre == U_FORMAT_CHAR;
    if (separeLesMots(point))
        repli += ' ';
    else if (!sansLettre)
        ajoutePoint(repli, point);
}

std::string repliDuPoint(UChar32 point) {
    std::string repli;
    if (separeLesMots(point)) return " ";
    const std::u16string plis = sansCasse(decompose(point));
    for (std::size_t i = 0; i < plis.size();) {
        UChar32 lu = 0;
        U16_NEXT(plis.data(), i, plis.size(), lu);
        ajouteLettre(lu, repli);
    }
    return repli;
}

constexpr UChar32 kFinConnus = 0x600;  // Latin, Greek, Cyrillic

const std::array<std::string, kFinConnus>& connus() {
    static const std::array<std::string, kFinConnus> table = [] {
        std::array<std::string, kFinConnus> plis;
        for (UChar32 point = 0; point < kFinConnus; ++point)
            plis[static_cast<std::size_t>(point)] = repliDuPoint(point);
        return plis;
    }();
    return table;
}

// `ajoute` gets each piece of folded text with the bytes of the source that it comes from.
template <typename Ajoute>
void plie(std::string_view texte, Ajoute ajoute) {
    const auto& table = connus();
    for (std::size_t i = 0; i < texte.size();) {
        const PointDeCode lu = litPoint(texte, i);
        const UChar32 point = lu.valeur < 0 ? static_cast<unsigned char>(texte[i]) : lu.valeur;
        if (point < kFinConnus)
            ajoute(std::string_view(table[static_cast<std::size_t>(point)]), i, i + lu.taille);
        else
            ajoute(std::string_view(repliDuPoint(point)), i, i + lu.taille);
        i += lu.taille;
    }
}

}  // namespace

void ajouteRepli(std::string_view texte, std::string& repli) {
    plie(texte, [&repli](std::string_view morceau, std::size_t, std::size_t) { repli += morceau; });
}

// What folds to nothing, an accent of its own, belongs to the letter before it.
RepliSitue repliSitue(std::string_view texte) {
    RepliSitue repli;
    plie(texte, [&repli](std::string_view morceau, std::size_t debut, std::size_t fin) {
        for (std::size_t i = repli.fins.size(); morceau.empty() && i > 0 && repli.fins[i - 1] == debut; --i)
            repli.fins[i - 1] = static_cast<std::uint32_t>(fin);
        repli.texte += morceau;
        repli.debuts.insert(repli.debuts.end(), morceau.size(), static_cast<std::uint32_t>(debut));
        repli.fins.insert(repli.fins.end(), morceau.size(), static_cast<std::uint32_t>(fin));
    });
    return repli;
}

}  // namespace util
