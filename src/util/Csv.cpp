#include "util/Csv.h"

#include <algorithm>
#include <array>

namespace util {

namespace {

constexpr char kProtection = '\'', kGuillemet = '"';
constexpr std::array<std::string_view, 4> kBlancs{" ", "\u00A0", "\u202F", "\uFEFF"};
constexpr std::array<std::string_view, 11> kDebuts{"=", "+", "-", "@", "＝", "＋", "－", "＠", "\t", "\r", "\n"};

constexpr auto commence = [](std::string_view texte) {
    return [texte](std::string_view debut) { return texte.starts_with(debut); };
};

// What protects a value does not change the answer, so that it can always be taken away again.
bool ressembleAUneFormule(std::string_view valeur) {
    valeur.remove_prefix(std::min(valeur.find_first_not_of(kProtection), valeur.size()));
    for (auto blanc = kBlancs.begin(); blanc != kBlancs.end();) {
        blanc = std::find_if(kBlancs.begin(), kBlancs.end(), commence(valeur));
        if (blanc != kBlancs.end()) valeur.remove_prefix(blanc->size());
    }
    return std::any_of(kDebuts.begin(), kDebuts.end(), commence(valeur));
}

}  // namespace

std::string protegeDesFormules(std::string_view valeur) {
    return (ressembleAUneFormule(valeur) ? std::string(1, kProtection) : std::string()).append(valeur);
}

std::string sansProtection(std::string_view cellule) {
    const bool protegee = cellule.starts_with(kProtection) && ressembleAUneFormule(cellule);
    return std::string(cellule.substr(protegee ? 1 : 0));
}

void ajouteCellule(std::string& ligne, std::string_view valeur) {
    ligne += kGuillemet;
    for (const char c : valeur) {
        if (c == kGuillemet) ligne += kGuillemet;
        ligne += c;
    }
    ligne += kGuillemet;
}

}  // namespace util
