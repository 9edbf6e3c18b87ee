// Stands in for the downloader, which reads its configuration as Windows-1252. It keeps what it was given in the file
// "recu" of its folder (its arguments in brackets, then its configuration), leaves two sheets, one with its poster, and
// ends; or as the search's last word says: "rien" leaves nothing, "echec" fails after them, "attente" leaves one of them
// and stays until it is ended.
#include "util/Texte.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

namespace {

void ecrit(const std::filesystem::path& chemin, const std::string& octets) {
    std::ofstream(chemin, std::ios::binary) << octets;
}

std::string valeur(const std::string& configuration, const std::string& cle) {
    const std::size_t debut = configuration.find("\r\n" + cle + "=") + cle.size() + 3;
    return configuration.substr(debut, configuration.find("\r\n", debut) - debut);
}

}  // namespace

int main(int nombre, char** arguments) {
    if (nombre < 2) return 2;
    std::ifstream fichier(arguments[1], std::ios::binary);
    if (!fichier) return 2;
    const std::string configuration{std::istreambuf_iterator<char>(fichier), {}};
    const std::string recherche = valeur(configuration, "FICHIER_LISTE_NOM");
    const std::filesystem::path tmp = util::depuis1252(valeur(configuration, "CHEMIN_DESTINATION_FICHIER_SOURCE"));
    if (!recherche.ends_with("rien")) {
        ecrit(tmp / "1.FILM", "LE CERCLE ROUGE\r\nJean-Pierre Melville\r\n1970\r\nFrance\r\nPolicier\r\n");
        ecrit(tmp / "1.JPG", "\xFF\xD8 une affiche");
        if (!recherche.ends_with("attente")) ecrit(tmp / "2.film", "L'\xE9t\xE9\r\nJean Becker\r\n1983\r\n");
    }
    std::string recu;
    for (int i = 1; i < nombre; ++i)
        recu += "[" + std::string(arguments[i]) + "]\n";
    ecrit("recu.part", recu + configuration);
    std::filesystem::rename("recu.part", "recu");
    while (recherche.ends_with("attente"))
        pause();
    return recherche.ends_with("echec") ? 3 : 0;
}
