// A program to be started by the tests. It writes what it received (its working folder, then each argument in brackets,
// one a line) into the file that the variable TEMOIN_SORTIE names, whole at once; then, as its first argument says:
// "dort" stays until it is ended, "sourd" too, but deaf to a polite demand; anything else ends.
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

int main(int nombre, char** arguments) {
    const std::string consigne = nombre > 1 ? arguments[1] : "";
    if (consigne == "sourd") std::signal(SIGTERM, SIG_IGN);
    if (const char* sortie = std::getenv("TEMOIN_SORTIE")) {
        const std::string brouillon = std::string(sortie) + ".part";
        std::ofstream fichier(brouillon, std::ios::binary);
        fichier << std::filesystem::current_path().string() << '\n';
        for (int i = 1; i < nombre; ++i)
            fichier << '[' << arguments[i] << "]\n";
        fichier.close();
        std::filesystem::rename(brouillon, sortie);
    }
    while (consigne == "dort" || consigne == "sourd")
        pause();
    return 0;
}
