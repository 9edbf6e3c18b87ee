#include "platform/systeme/Documents.h"

#include "platform/systeme/Programmes.h"

#include <memory>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>
#include <unistd.h>

namespace systeme {

namespace {

struct Libere {
    void operator()(gpointer objet) const { g_object_unref(objet); }
    void operator()(GError* erreur) const { g_error_free(erreur); }
    void operator()(char* texte) const { g_free(texte); }
};
template <typename Type>
using Tenu = std::unique_ptr<Type, Libere>;

// The application for a file's kind; empty when the desktop has none for it. What the file may be used for (its
// permissions) has no part in it.
struct Association {
    bool fichierLu = false;
    Tenu<GAppInfo> application;
};

Association cherche(GFile* fichier) {
    const Tenu<GFileInfo> infos(
        g_file_query_info(fichier, G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE, G_FILE_QUERY_INFO_NONE, nullptr, nullptr));
    const char* genre = infos ? g_file_info_get_content_type(infos.get()) : nullptr;
    if (!genre) return {};
    return {true, Tenu<GAppInfo>(g_app_info_get_default_for_type(genre, FALSE))};
}

// In the started process, before it becomes the application.
void entreDansLeDossier(gpointer dossier) {
    if (chdir(static_cast<const char*>(dossier)) != 0) return;  // it opens the file from where we stand
}

bool manqueDeMemoire(const GError* erreur) {
    return erreur && (g_error_matches(erreur, G_SPAWN_ERROR, G_SPAWN_ERROR_NOMEM) ||
                      g_error_matches(erreur, G_SPAWN_ERROR, G_SPAWN_ERROR_FORK));
}

Ouverture demarre(GAppInfo* application, GFile* fichier, const std::string& dossier) {
    const Tenu<char> adresse(g_file_get_uri(fichier));
    GList adresses{adresse.get(), nullptr, nullptr};
    GError* erreur = nullptr;
    const bool fait = g_desktop_app_info_launch_uris_as_manager(
        G_DESKTOP_APP_INFO(application), &adresses, nullptr, G_SPAWN_SEARCH_PATH,
        dossier.empty() ? nullptr : &entreDansLeDossier, const_cast<char*>(dossier.c_str()), nullptr, nullptr, &erreur);
    const Tenu<GError> tenue(erreur);
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
    const Tenu<GFile> fichier(g_file_new_for_path(chemin.c_str()));
    const Association association = cherche(fichier.get());
    if (!association.fichierLu) return Ouverture::Echouee;
    if (!association.application) return Ouverture::SansAssociation;
    return demarre(association.application.get(), fichier.get(), dossier);
}

}  // namespace systeme
