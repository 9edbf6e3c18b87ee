#include "platform/systeme/LigneDeCommande.h"

#include <gio/gio.h>

namespace systeme {

std::optional<std::vector<std::string>> decoupe(const std::string& ligne) {
    if (ligne.find('\0') != std::string::npos) return std::nullopt;
    int nombre = 0;
    g_auto(GStrv) lus = nullptr;
    g_autoptr(GError) erreur = nullptr;
    if (!g_shell_parse_argv(ligne.c_str(), &nombre, &lus, &erreur)) {
        const bool vide = g_error_matches(erreur, G_SHELL_ERROR, G_SHELL_ERROR_EMPTY_STRING);
        return vide ? std::optional(std::vector<std::string>{}) : std::nullopt;
    }
    return std::vector<std::string>(lus, lus + nombre);
}

}  // namespace systeme
