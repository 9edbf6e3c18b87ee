#include "platform/systeme/Adresses.h"

#include <memory>
#include <string_view>

#include <gio/gio.h>

namespace systeme {

namespace {

using Texte = std::unique_ptr<char, decltype(&g_free)>;

}  // namespace

std::optional<std::string> cheminDeLAdresse(const std::string& adresse) {
    if (adresse.find('\0') != std::string::npos) return std::nullopt;
    char* nomHote = nullptr;
    const Texte chemin(g_filename_from_uri(adresse.c_str(), &nomHote, nullptr), g_free);
    const Texte hote(nomHote, g_free);
    if (!chemin) return std::nullopt;
    const std::string_view machine = hote ? hote.get() : "";
    if (!machine.empty() && machine != "localhost" && machine != g_get_host_name()) return std::nullopt;
    return chemin.get();
}

}  // namespace systeme
