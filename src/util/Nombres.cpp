#include "util/Nombres.h"

#include "util/Ascii.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace util {

namespace {

constexpr double kEntierMin = std::numeric_limits<int>::min();
constexpr double kEntierMax = std::numeric_limits<int>::max();

int enEntier(double nombre) {
    return std::isnan(nombre) ? 0 : static_cast<int>(std::clamp(nombre, kEntierMin, kEntierMax));
}

// Does a number start here: digits, or a point and digits? (Words like "inf" and "nan" are no numbers.)
bool commenceUnNombre(std::string_view texte) {
    if (texte.starts_with('.')) texte.remove_prefix(1);
    return !texte.empty() && estUnChiffre(texte.front());
}

}  // namespace

double Val(std::string_view texte) {
    texte.remove_prefix(std::min(texte.find_first_not_of(" \t\r\n"), texte.size()));
    const bool negatif = texte.starts_with('-');
    if (negatif || texte.starts_with('+')) texte.remove_prefix(1);
    if (!commenceUnNombre(texte)) return 0;

    double nombre = 0;
    const auto lu = std::from_chars(texte.data(), texte.data() + texte.size(), nombre);
    // Out of range: too large or too small to hold, which the exponent tells.
    if (lu.ec == std::errc::result_out_of_range) {
        const std::string_view prefixe(texte.data(), static_cast<std::size_t>(lu.ptr - texte.data()));
        nombre = prefixe.find("e-") == prefixe.npos && prefixe.find("E-") == prefixe.npos && !prefixe.starts_with("0.")
                     ? std::numeric_limits<double>::max()
                     : 0;
    }
    nombre = std::min(nombre, std::numeric_limits<double>::max());
    return negatif ? -nombre : nombre;
}

int valEntier(std::string_view texte) {
    return enEntier(std::trunc(Val(texte)));
}

// Relies on the default rounding mode, which nothing here changes.
int arrondiPair(double nombre) {
    return enEntier(std::nearbyint(nombre));
}

double tronque(double nombre, int decimales) {
    const double echelle = std::pow(10.0, decimales);
    return std::trunc(nombre * echelle) / echelle;
}

std::string texteDuNombre(double nombre, std::string_view separateur) {
    if (nombre == 0) return "0";     // also for a negative zero
    std::array<char, 512> tampon{};  // the longest double is 327 characters
    const auto ecrit = std::to_chars(tampon.data(), tampon.data() + tampon.size(), nombre, std::chars_format::fixed);
    return remplace({tampon.data(), static_cast<std::size_t>(ecrit.ptr - tampon.data())}, ".", separateur);
}

std::string phraseCompte(long nombre, std::string_view singulier, std::string_view pluriel) {
    return remplace(nombre == 0 || nombre == 1 ? singulier : pluriel, "#", std::to_string(nombre));
}

}  // namespace util
