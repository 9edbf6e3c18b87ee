#include "util/Html.h"

#include "util/Unicode.h"

namespace util {

namespace {

// What no page may hold, and the signs that turn what follows them round.
bool seTait(UChar32 point) {
    return (estUnSigneDeCommande(point) && point != '\n' && point != '\r' && point != '\t') ||
           retourneLesLettres(point) || (point & 0xFFFE) == 0xFFFE;
}

}  // namespace

std::string enHtml(std::string_view texte) {
    std::string page;
    page.reserve(texte.size() + texte.size() / 16);
    for (std::size_t i = 0; i < texte.size();) {
        const PointDeCode point = litPoint(texte, i);
        i += point.taille;
        switch (point.valeur) {
            case '&':
                page += "&amp;";
                break;
            case '<':
                page += "&lt;";
                break;
            case '>':
                page += "&gt;";
                break;
            case '"':
                page += "&quot;";
                break;
            case '\'':
                page += "&#39;";
                break;
            default:
                if (point.valeur < 0)
                    ajoutePoint(page, kRemplacement);
                else if (!seTait(point.valeur))
                    ajoutePoint(page, point.valeur);
        }
    }
    return page;
}

std::string enBase64(std::string_view octets) {
    static constexpr std::string_view kChiffres = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string texte;
    texte.reserve((octets.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < octets.size(); i += 3) {
        unsigned bits = 0;
        for (std::size_t j = i; j < i + 3; ++j)
            bits = bits << 8 | (j < octets.size() ? static_cast<unsigned char>(octets[j]) : 0u);
        for (std::size_t chiffre = 0; chiffre < 4; ++chiffre)
            texte += i + chiffre <= octets.size() ? kChiffres[bits >> (18 - 6 * chiffre) & 63] : '=';
    }
    return texte;
}

}  // namespace util
