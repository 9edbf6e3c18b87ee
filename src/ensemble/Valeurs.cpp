#include "ensemble/Valeurs.h"

#include <algorithm>
#include <array>

namespace ensemble {

namespace {

void ajoute(std::vector<std::string_view>& valeurs, std::string_view valeur) {
    while (valeur.starts_with(' '))
        valeur.remove_prefix(1);
    while (valeur.ends_with(' '))
        valeur.remove_suffix(1);
    if (!valeur.empty()) valeurs.push_back(valeur);
}

template <std::size_t N>
std::vector<std::string_view> coupe(std::string_view champ, const std::array<std::string_view, N>& separateurs) {
    std::vector<std::string_view> valeurs;
    while (!champ.empty()) {
        std::size_t fin = champ.size(), suite = champ.size();
        for (const std::string_view separateur : separateurs)
            if (const std::size_t ou = champ.find(separateur); ou < fin) fin = ou, suite = ou + separateur.size();
        ajoute(valeurs, champ.substr(0, fin));
        champ.remove_prefix(suite);
    }
    return valeurs;
}

}  // namespace

std::vector<std::string_view> valeursDe(std::string_view champ) {
    return coupe<3>(champ, {";", "/", ","});
}

std::vector<std::string_view> personnesDe(std::string_view champ) {
    return coupe<4>(champ, {";", "/", " et ", " & "});
}

}  // namespace ensemble
