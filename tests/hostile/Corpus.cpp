#include "hostile/Cibles.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace hostile {

namespace {

std::string sansEchappements(std::string_view texte) {
    std::string octets;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (texte[i] != '\\')
            octets += texte[i];
        else if (texte[++i] == '\\')
            octets += '\\';
        else
            octets += static_cast<char>(std::stoi(std::string(texte.substr(i++, 2)), nullptr, 16));
    }
    return octets;
}

}  // namespace

std::vector<Cible> cibles() {
    std::vector<Cible> toutes(ciblesDesTextes().begin(), ciblesDesTextes().end());
    toutes.insert(toutes.end(), ciblesDesBases().begin(), ciblesDesBases().end());
    return toutes;
}

std::vector<std::string> corpus(const Cible& cible) {
    std::vector<std::string> tout;
    std::ifstream graines(AMBRELIS_SOURCE_DIR "/tests/hostile/graines.txt");
    const std::string debut = std::string(cible.nom) + ' ';
    for (std::string ligne; std::getline(graines, ligne);)
        if (ligne.starts_with(debut)) tout.push_back(sansEchappements(std::string_view(ligne).substr(debut.size())));
    if (debut != "fiche ") return tout;
    for (const auto& entree : std::filesystem::directory_iterator(AMBRELIS_SOURCE_DIR "/samples")) {
        if (entree.path().extension() != ".FILM") continue;
        std::ifstream flux(entree.path(), std::ios::binary);
        tout.emplace_back(std::istreambuf_iterator<char>(flux), std::istreambuf_iterator<char>());
    }
    return tout;
}

}  // namespace hostile
