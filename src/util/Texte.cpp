#include "util/Texte.h"

#include "util/Ascii.h"
#include "util/Unicode.h"

#include <algorithm>

#include <unicode/uchar.h>

namespace util {

namespace {

constexpr UChar32 kIotaSouscrit = 0x345;  // a combining mark whose capital would be a letter of its own

bool estMarqueRetiree(UChar32 base, UChar32 marque) {
    constexpr UChar32 kGrave = 0x300, kAigu = 0x301, kCirconflexe = 0x302, kTrema = 0x308, kCedille = 0x327;
    switch (base) {
        case 'e':
            return marque == kAigu || marque == kTrema || marque == kGrave || marque == kCirconflexe;
        case 'a':
        case 'u':
            return marque == kTrema || marque == kGrave || marque == kCirconflexe;
        case 'i':
        case 'o':
            return marque == kTrema || marque == kCirconflexe;
        case 'c':
            return marque == kCedille;
        default:
            return false;
    }
}

}  // namespace

UChar32 minusculeDe(UChar32 point) {
    return point < 0x80 ? enMinuscule(point) : u_tolower(point);
}

UChar32 majusculeDe(UChar32 point) {
    if (point < 0x80) return enMajuscule(point);
    return point == kIotaSouscrit ? point : u_toupper(point);
}

UChar32 casseRepliee(UChar32 point) {
    return point < 0x80 ? enMinuscule(point) : u_foldCase(point, U_FOLD_CASE_DEFAULT);
}

UChar32 sansAccent(UChar32 point) {
    switch (point) {
        case U'é':
        case U'ë':
        case U'è':
        case U'ê':
            return 'e';
        case U'â':
        case U'à':
        case U'ä':
            return 'a';
        case U'ï':
        case U'î':
            return 'i';
        case U'ô':
        case U'ö':
            return 'o';
        case U'ù':
        case U'ü':
        case U'û':
            return 'u';
        case U'ç':
            return 'c';
        default:
            return point;
    }
}

std::string minuscules(std::string_view texte) {
    return transforme(texte, minusculeDe);
}

std::string majuscules(std::string_view texte) {
    return transforme(texte, majusculeDe);
}

std::size_t finSansCasse(std::string_view texte, std::size_t position, std::string_view attendu) {
    for (std::size_t i = 0; i < attendu.size();) {
        if (position >= texte.size()) return std::string_view::npos;
        const PointDeCode lu = litPoint(texte, position), voulu = litPoint(attendu, i);
        const bool octets = lu.valeur < 0 && voulu.valeur < 0;
        if (octets ? texte[position] != attendu[i] : casseRepliee(lu.valeur) != casseRepliee(voulu.valeur))
            return std::string_view::npos;
        position += lu.taille;
        i += voulu.taille;
    }
    return position;
}

bool egalSansCasse(std::string_view gauche, std::string_view droite) {
    return finSansCasse(gauche, 0, droite) == gauche.size();
}

std::string cleSansCasse(std::string_view texte) {
    return transforme(texte, casseRepliee);
}

std::string sansAccents(std::string_view texte) {
    std::string resultat;
    resultat.reserve(texte.size());
    UChar32 precedent = -1;
    for (std::size_t i = 0; i < texte.size();) {
        const PointDeCode point = litPoint(texte, i);
        if (point.valeur < 0)
            resultat += texte[i];
        else if (!estMarqueRetiree(precedent, point.valeur))  // also an accent written apart from its letter
            ajoutePoint(resultat, sansAccent(point.valeur));
        precedent = point.valeur;
        i += point.taille;
    }
    return resultat;
}

std::string remplace(std::string_view texte, std::string_view cherche, std::string_view par) {
    if (cherche.empty()) return std::string(texte);
    std::string resultat;
    std::size_t debut = 0;
    for (std::size_t trouve; (trouve = texte.find(cherche, debut)) != std::string_view::npos;) {
        resultat.append(texte.substr(debut, trouve - debut)).append(par);
        debut = trouve + cherche.size();
    }
    return resultat.append(texte.substr(debut));
}

std::string_view ligneSuivante(std::string_view texte, std::size_t& place) {
    const std::size_t debut = place, fin = std::min(texte.find_first_of("\r\n", debut), texte.size());
    place = fin + (texte.substr(fin).starts_with("\r\n") ? 2 : fin < texte.size() ? 1 : 0);
    return texte.substr(debut, fin - debut);
}

bool commencePar(std::string_view texte, std::string_view debut) {
    return texte.starts_with(debut);
}

bool finitPar(std::string_view texte, std::string_view fin) {
    return texte.ends_with(fin);
}

}  // namespace util
