#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>

#include <gio/gio.h>

namespace doubles {

// A session bus with the settings portal on it, in the test's own main loop. It knows what a client of ours asks.
class PortailSimule {
  public:
    // `teinte` is what the portal answers for "color-scheme"; below zero it refuses.
    PortailSimule(const std::string& chemin, int teinte) : m_adresse("unix:path=" + chemin), m_teinte(teinte) {
        char* guid = g_dbus_generate_guid();
        m_serveur =
            g_dbus_server_new_sync(m_adresse.c_str(), G_DBUS_SERVER_FLAGS_NONE, guid, nullptr, nullptr, nullptr);
        g_free(guid);
        if (!m_serveur) throw std::runtime_error("no bus at " + chemin);
        g_signal_connect(m_serveur, "new-connection", G_CALLBACK(&PortailSimule::accueille), this);
        g_dbus_server_start(m_serveur);
    }
    ~PortailSimule() {
        if (m_client) g_object_unref(m_client);
        g_dbus_server_stop(m_serveur);
        g_object_unref(m_serveur);
    }
    PortailSimule(const PortailSimule&) = delete;
    PortailSimule& operator=(const PortailSimule&) = delete;

    [[nodiscard]] const std::string& adresse() const { return m_adresse; }

    void change(const char* nom, guint32 teinte) {
        change("org.freedesktop.appearance", nom, g_variant_new_uint32(teinte));
    }
    void metAnimations(bool souhaitees) {
        change("org.gnome.desktop.interface", "enable-animations", g_variant_new_boolean(souhaitees));
    }
    void change(const char* groupe, const char* nom, GVariant* valeur) {
        GDBusMessage* signal = g_dbus_message_new_signal("/org/freedesktop/portal/desktop",
                                                         "org.freedesktop.portal.Settings", "SettingChanged");
        g_dbus_message_set_sender(signal, kProprietaire);
        g_dbus_message_set_body(signal, g_variant_new("(ssv)", groupe, nom, valeur));
        g_dbus_connection_send_message(m_client, signal, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
        g_object_unref(signal);
    }

    // Runs the main loop until then; false when that takes too long.
    static bool jusquA(const std::function<bool()>& vrai) {
        const auto fin = std::chrono::steady_clock::now() + std::chrono::seconds(120);
        while (!vrai() && std::chrono::steady_clock::now() < fin)
            g_main_context_iteration(nullptr, FALSE);
        return vrai();
    }

  private:
    static constexpr const char* kProprietaire = ":1.7";
    static gboolean accueille(GDBusServer*, GDBusConnection* client, gpointer moi) {
        auto* portail = static_cast<PortailSimule*>(moi);
        portail->m_client = G_DBUS_CONNECTION(g_object_ref(client));
        g_dbus_connection_add_filter(client, &PortailSimule::repond, moi, nullptr);
        return TRUE;
    }
    // In the thread of the connection; every call that a client of ours makes has its answer here.
    static GDBusMessage* repond(GDBusConnection* client, GDBusMessage* message, gboolean recu, gpointer moi) {
        if (!recu || g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL) return message;
        const std::string nom(g_dbus_message_get_member(message));
        const int teinte = static_cast<PortailSimule*>(moi)->m_teinte;
        GDBusMessage* reponse =
            nom == "Read" && teinte < 0
                ? g_dbus_message_new_method_error_literal(message, "org.freedesktop.portal.Error.NotFound", "none")
                : g_dbus_message_new_method_reply(message);
        if (nom == "Hello") g_dbus_message_set_body(reponse, g_variant_new("(s)", ":1.1"));
        if (nom == "GetNameOwner") g_dbus_message_set_body(reponse, g_variant_new("(s)", kProprietaire));
        if (nom == "Read" && teinte >= 0) {
            GVariant* dedans = g_variant_new_variant(g_variant_new_uint32(static_cast<guint32>(teinte)));
            g_dbus_message_set_body(reponse, g_variant_new("(v)", dedans));
        }
        g_dbus_connection_send_message(client, reponse, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
        g_object_unref(reponse);
        g_object_unref(message);
        return nullptr;
    }

    std::string m_adresse;
    int m_teinte;
    GDBusServer* m_serveur = nullptr;
    GDBusConnection* m_client = nullptr;
};

}  // namespace doubles
