#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <functional>

class QNetworkReply;

namespace rapatrix {

// What became of one request.
struct Reponse {
    enum class Etat {
        Faite,
        Injoignable,     // no network, no such machine, no answer in time
        Refusee,         // the site answered, with `code` (404, 500...)
        TropDeDemandes,  // the site asks to wait (429, 503): `attente`
        TropGrosse,      // more than the limit
        AutreSite,       // it led to another site: a portal to log in to, perhaps
        Tronquee,        // the connection broke, again and again
    };
    Etat etat = Etat::Injoignable;
    int code = 0;
    std::chrono::seconds attente{0};  // 0: not said
    QByteArray octets;                // unpacked
    QString codage;                   // of its characters, as the server says; empty: not said
    QUrl adresse;                     // where it came from in the end
};

// Asks one thing of the web at a time, of one site only: http and https, redirections within the site, the system's
// proxy. What breaks off half-way is taken up where it broke. No cookie, no password, nothing kept.
class Reseau final : public QObject {
    Q_OBJECT
  public:
    struct Delais {
        std::chrono::milliseconds sansReponse{20'000};  // without one byte
        std::chrono::milliseconds enTout{300'000};
        int reprises = 3;  // of what breaks off
    };
    using Suite = std::function<void(const Reponse&)>;

    // `site` is an address of the only site that is asked.
    explicit Reseau(const QUrl& site) : Reseau(site, Delais{}) {}
    Reseau(const QUrl& site, Delais delais);

    // `suite` is called once, from the event loop, unless `arrete` comes first. Limit in bytes.
    void demande(const QUrl& adresse, qint64 limite, Suite suite);
    void arrete();  // at once; what was asked is forgotten
    [[nodiscard]] bool occupe() const { return m_suite != nullptr; }

  signals:
    void avance(qint64 recus, qint64 total);  // total is -1 where the server does not say

  private:
    void lance();
    void accueille();  // what has come
    void finit();
    void rends(Reponse::Etat etat);
    [[nodiscard]] bool reprend();

    QUrl m_site;
    Delais m_delais;
    QNetworkAccessManager m_acces;
    QNetworkReply* m_reponse = nullptr;
    QTimer m_butoir;  // of a request that drips
    QUrl m_adresse;
    qint64 m_limite = 0;
    int m_reprises = 0;
    QByteArray m_octets;
    QByteArray m_marque;  // of the version that is being received
    Suite m_suite;
};

}  // namespace rapatrix
