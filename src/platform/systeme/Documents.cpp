#include "platform/systeme/Documents.h"

#include "platform/systeme/Programmes.h"

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>
#include <unistd.h>

namespace systeme {

namespace {

// In the started process, before it becomes the application.
void entreDansLeDossier(gpointer dossier) {
    if (chdir(static_cast<const char*>(dossier)) != 0) return;  // it opens the file from where we stand
}

bool manqueDeMemoire(const GError* erreur) {
    return erreur && (g_error_matches(erreur, G_SPAWN_ERROR, G_SPAWN_ERROR_NOMEM) ||
                      g_error_matches(erreur, G_SPAWN_ERROR, G_SPAWN_ERROR_FORK));
}

Ouverture demarre(GAppInfo* application, GFile* fichier, const std::string& dossier) {
    g_autofree char* adresse = g_file_get_uri(fichier);
    GList adresses{adresse, nullptr, nullptr};
    g_autoptr(GError) erreur = nullptr;
    const bool fait = g_desktop_app_info_launch_uris_as_manager(
        G_DESKTOP_APP_INFO(application), &adresses, nullptr, G_SPAWN_SEARCH_PATH,
        dossier.empty() ? nullptr : &entreDansLeDossier, const_cast<char*>(dossier.c_str()), nullptr, nullptr, &erreur);
    if (fait) return Ouverture::Faite;
    return manqueDeMemoire(erreur) ? Ouverture::SansMemoire : Ouverture::Echouee;
}

}  // namespace

bool DocumentsSysteme::ouvre(const std::string& adresse) {
    if (adresse.empty()) return false;
    // What is named like an option must not be read as one.
    const std::string argument = adresse.starts_with('-') ? "./" + adresse : adresse;
    return ProgrammesSysteme().lance({{"xdg-open", argument}, ""}) == Lancement::Fait;
}

Ouverture DocumentsSysteme::ouvreFichier(const std::string& chemin, const std::string& dossier) {
    if (chemin.empty() || (chemin + dossier).find('\0') != std::string::npos) return Ouverture::Echouee;
    g_autoptr(GFile) fichier = g_file_new_for_path(chemin.c_str());
    // What the file may be used for, its permissions, has no part in it.
    g_autoptr(GFileInfo) infos =
        g_file_query_info(fichier, G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE, G_FILE_QUERY_INFO_NONE, nullptr, nullptr);
    const char* genre = infos ? g_file_info_get_content_type(infos) : nullptr;
    if (!genre) return Ouverture::Echouee;
    g_autoptr(GAppInfo) application = g_app_info_get_default_for_type(genre, FALSE);
    return application ? demarre(application, fichier, dossier) : Ouverture::SansAssociation;
}

}  // namespace systeme
