#include "platform/systeme/TeinteDuBureau.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include <gio/gio.h>

namespace systeme {

namespace {

constexpr const char* kPortail = "org.freedesktop.portal.Desktop";
constexpr const char* kObjet = "/org/freedesktop/portal/desktop";
constexpr const char* kReglages = "org.freedesktop.portal.Settings";
constexpr const char* kApparence = "org.freedesktop.appearance";
constexpr const char* kTeinte = "color-scheme";
constexpr const char* kInterface = "org.gnome.desktop.interface";
constexpr const char* kAnimations = "enable-animations";
constexpr int kDelaiDeReponse = 5000;  // milliseconds, while the window is already in use

// The session's bus, empty for none: GLib's own search would start one.
std::string adresseDuBus() {
    const char* adresse = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    if (adresse && *adresse) return std::string_view(adresse).starts_with("autolaunch:") ? "" : adresse;
    const char* dossier = std::getenv("XDG_RUNTIME_DIR");
    std::error_code faute;
    if (!dossier || !std::filesystem::is_socket(std::string(dossier) + "/bus", faute)) return {};
    g_autofree char* echappe = g_dbus_address_escape_value((std::string(dossier) + "/bus").c_str());
    return std::string("unix:path=") + echappe;
}

// The number in however many variants it comes.
Teinte teinteLue(GVariant* valeur) {
    if (g_variant_is_of_type(valeur, G_VARIANT_TYPE_VARIANT)) {
        g_autoptr(GVariant) dedans = g_variant_get_variant(valeur);
        return teinteLue(dedans);
    }
    const guint32 numero = g_variant_is_of_type(valeur, G_VARIANT_TYPE_UINT32) ? g_variant_get_uint32(valeur) : 0;
    return numero == 1 ? Teinte::Sombre : numero == 2 ? Teinte::Claire : Teinte::SansSouhait;
}

// Nothing where it is no yes or no.
std::optional<bool> mouvementLu(GVariant* valeur) {
    if (g_variant_is_of_type(valeur, G_VARIANT_TYPE_VARIANT)) {
        g_autoptr(GVariant) dedans = g_variant_get_variant(valeur);
        return mouvementLu(dedans);
    }
    if (!g_variant_is_of_type(valeur, G_VARIANT_TYPE_BOOLEAN)) return std::nullopt;
    return g_variant_get_boolean(valeur) != FALSE;
}

}  // namespace

struct TeinteDuBureau::Suivi {
    std::function<void(Teinte)> suite;
    std::function<void(bool)> mouvement;
    GCancellable* annulation = g_cancellable_new();
    GDBusConnection* bus = nullptr;
    std::array<guint, 2> abonnements{};
    bool repondu = false;

    Suivi() = default;
    Suivi(const Suivi&) = delete;
    Suivi& operator=(const Suivi&) = delete;
    ~Suivi() {
        if (bus) g_object_unref(bus);
        g_object_unref(annulation);
    }

    using Tenu = std::shared_ptr<Suivi>;
    static Tenu reprend(gpointer donnees) {
        const std::unique_ptr<Tenu> tenu(static_cast<Tenu*>(donnees));
        return *tenu;
    }
    void repond(Teinte teinte) {
        repondu = true;
        if (suite) suite(teinte);
    }
    void ditMouvement(GVariant* valeur) const {
        const auto voulu = mouvementLu(valeur);
        if (voulu && mouvement) mouvement(*voulu);
    }
    // Tells what one setting is, and is told of changes in its group.
    [[nodiscard]] guint abonne(const Tenu& moi, const char* groupe) const {
        return g_dbus_connection_signal_subscribe(
            bus, kPortail, kReglages, "SettingChanged", kObjet, groupe, G_DBUS_SIGNAL_FLAGS_NONE, &change,
            new std::weak_ptr<Suivi>(moi), [](gpointer tenu) { delete static_cast<std::weak_ptr<Suivi>*>(tenu); });
    }
    void demande(const Tenu& moi, const char* groupe, const char* nom, GAsyncReadyCallback reponse) const {
        g_dbus_connection_call(bus, kPortail, kObjet, kReglages, "Read", g_variant_new("(ss)", groupe, nom),
                               G_VARIANT_TYPE("(v)"), G_DBUS_CALL_FLAGS_NONE, kDelaiDeReponse, annulation, reponse,
                               new Tenu(moi));
    }
    static void connecte(GObject*, GAsyncResult* resultat, gpointer donnees);
    static void lue(GObject* bus, GAsyncResult* resultat, gpointer donnees);
    static void mouvementDit(GObject* bus, GAsyncResult* resultat, gpointer donnees);
    static void change(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*, GVariant* valeurs,
                       gpointer donnees);
};

void TeinteDuBureau::Suivi::connecte(GObject*, GAsyncResult* resultat, gpointer donnees) {
    const Tenu suivi = reprend(donnees);
    suivi->bus = g_dbus_connection_new_for_address_finish(resultat, nullptr);
    if (!suivi->bus) return suivi->repond(Teinte::SansSouhait);
    g_dbus_connection_set_exit_on_close(suivi->bus, FALSE);
    suivi->abonnements = {suivi->abonne(suivi, kApparence), suivi->abonne(suivi, kInterface)};
    suivi->demande(suivi, kApparence, kTeinte, &lue);
    suivi->demande(suivi, kInterface, kAnimations, &mouvementDit);
}

void TeinteDuBureau::Suivi::mouvementDit(GObject* bus, GAsyncResult* resultat, gpointer donnees) {
    const Tenu suivi = reprend(donnees);
    g_autoptr(GVariant) reponse = g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), resultat, nullptr);
    if (!reponse) return;
    g_autoptr(GVariant) valeur = g_variant_get_child_value(reponse, 0);
    suivi->ditMouvement(valeur);
}

void TeinteDuBureau::Suivi::lue(GObject* bus, GAsyncResult* resultat, gpointer donnees) {
    const Tenu suivi = reprend(donnees);
    g_autoptr(GVariant) reponse = g_dbus_connection_call_finish(G_DBUS_CONNECTION(bus), resultat, nullptr);
    if (!reponse) return suivi->repond(Teinte::SansSouhait);
    g_autoptr(GVariant) valeur = g_variant_get_child_value(reponse, 0);
    suivi->repond(teinteLue(valeur));
}

void TeinteDuBureau::Suivi::change(GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
                                   GVariant* valeurs, gpointer donnees) {
    const Tenu suivi = static_cast<std::weak_ptr<Suivi>*>(donnees)->lock();
    if (!suivi || !g_variant_is_of_type(valeurs, G_VARIANT_TYPE("(ssv)"))) return;
    const gchar* nom = nullptr;
    g_autoptr(GVariant) valeur = nullptr;
    g_variant_get(valeurs, "(&s&sv)", nullptr, &nom, &valeur);
    if (std::string_view(nom) == kTeinte) suivi->repond(teinteLue(valeur));
    if (std::string_view(nom) == kAnimations) suivi->ditMouvement(valeur);
}

TeinteDuBureau::TeinteDuBureau(std::function<void(Teinte)> suite, std::function<void(bool)> mouvement)
    : m_suivi(std::make_shared<Suivi>()) {
    m_suivi->suite = std::move(suite);
    m_suivi->mouvement = std::move(mouvement);
    const std::string adresse = adresseDuBus();
    if (adresse.empty()) {
        m_suivi->repondu = true;
        return;
    }
    const auto sorte = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                         G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    g_dbus_connection_new_for_address(adresse.c_str(), sorte, nullptr, m_suivi->annulation, &Suivi::connecte,
                                      new Suivi::Tenu(m_suivi));
}

TeinteDuBureau::~TeinteDuBureau() {
    m_suivi->suite = nullptr;
    m_suivi->mouvement = nullptr;
    g_cancellable_cancel(m_suivi->annulation);
    for (const guint abonnement : m_suivi->abonnements)
        if (abonnement) g_dbus_connection_signal_unsubscribe(m_suivi->bus, abonnement);
}

bool TeinteDuBureau::attends(std::chrono::milliseconds auPlus) {
    const auto fin = std::chrono::steady_clock::now() + auPlus;
    while (!m_suivi->repondu && std::chrono::steady_clock::now() < fin)
        if (!g_main_context_iteration(nullptr, FALSE)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return m_suivi->repondu;
}

}  // namespace systeme
