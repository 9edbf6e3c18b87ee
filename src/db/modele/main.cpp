#include "db/Schema.h"
#include "platform/dao/DBEngine.h"

#include <cstdio>
#include <exception>
#include <filesystem>

// Makes the empty base that new collections are copied from. The base is made beside its place and renamed, so that an
// interrupted build leaves the template of before or none.
int main(int nombre, char** arguments) {
    if (nombre != 2) {
        std::fputs("usage: fabrique_modele FICHIER\n", stderr);
        return 2;
    }
    const std::filesystem::path modele = arguments[1];
    std::filesystem::path brouillon = modele;
    brouillon += ".tmp";
    try {
        std::filesystem::remove(brouillon);
        dao::DBEngine::CreateDatabase(brouillon.string(), db::schema());
        std::filesystem::rename(brouillon, modele);
    } catch (const std::exception& erreur) {
        std::fprintf(stderr, "%s : %s\n", modele.c_str(), erreur.what());
        return 1;
    }
    return 0;
}
