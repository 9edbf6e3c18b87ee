#include "util/NomMontrable.h"

#include "util/Unicode.h"

namespace util {

std::string nomMontrable(std::string_view nom) {
    return transforme(nom, [](UChar32 point) -> UChar32 {
        constexpr UChar32 kLigneSuivante = 0x2028, kParagraphe = 0x2029;
        if (estUnSigneDeCommande(point) || point == kLigneSuivante || point == kParagraphe) return ' ';
        return retourneLesLettres(point) ? kRemplacement : point;
    });
}

}  // namespace util
