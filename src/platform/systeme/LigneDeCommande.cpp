#include "platform/systeme/LigneDeCommande.h"

#include <memory>

#include <gio/gio.h>

namespace systeme {

std::optional<std::vector<std::string>> decoupe(const std::string& ligne) {
    if (ligne.find('\0') != std::string::npos) return std::nullopt;
    int nombre = 0;
    char** lus = nullptr;
    GError* erreur = nullptr;
    if (!g_shell_parse_argv(ligne.c_str(), &nombre, &lus, &erreur)) {
        const bool vide = g_error_matches(erreur, G_SHELL_ERROR, G_SHELL_ERROR_EMPTY_STRING);
        g_error_free(erreur);
        return vide ? std::optional(std::vector<std::string>{}) : std::nullopt;
    }
    const std::unique_ptr<char*, void (*)(char**)> tenus(lus, &g_strfreev);
    return std::vector<std::string>(lus, lus + nombre);
}

}  // namespace systeme
