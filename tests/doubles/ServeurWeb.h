#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <functional>
#include <map>
#include <vector>

namespace doubles {

// A small site on this machine's loopback: pages by their path, with every fault that a test asks for. It also answers
// as a proxy, whatever the machine asked for.
class ServeurWeb {
  public:
    struct Page {
        int code = 200;
        QByteArray corps;
        QByteArray type = "text/html";
        QByteArray entetes;        // more header lines, each ended by CR LF
        qint64 longueurDite = -1;  // -1: the true one
        qint64 coupeApres = -1;    // bytes of the body after which the connection is cut
        bool muette = false;       // takes the question and never answers
    };
    using Rend = std::function<Page(const QByteArray& demande)>;

    ServeurWeb() {
        m_serveur.listen(QHostAddress::LocalHost);
        QObject::connect(&m_serveur, &QTcpServer::newConnection, &m_serveur, [this] {
            while (QTcpSocket* liaison = m_serveur.nextPendingConnection())
                QObject::connect(liaison, &QTcpSocket::readyRead, liaison, [this, liaison] { ecoute(*liaison); });
        });
    }

    [[nodiscard]] quint16 port() const { return m_serveur.serverPort(); }
    [[nodiscard]] QByteArray adresse(const QByteArray& chemin = "") const {
        return "http://127.0.0.1:" + QByteArray::number(port()) + chemin;
    }
    void met(const QByteArray& chemin, const Page& page) {
        m_pages[chemin] = [page](const QByteArray&) { return page; };
    }
    void met(const QByteArray& chemin, Rend rend) { m_pages[chemin] = std::move(rend); }
    void metPage(const QByteArray& chemin, const QByteArray& corps) {
        Page page;
        page.corps = corps;
        met(chemin, page);
    }
    std::vector<QByteArray> demandes;  // path and query of each, in their order

  private:
    void ecoute(QTcpSocket& liaison) {
        const QByteArray demande = liaison.property("recu").toByteArray() + liaison.readAll();
        if (!demande.contains("\r\n\r\n")) {
            liaison.setProperty("recu", demande);
            return;
        }
        liaison.setProperty("recu", QByteArray());
        const QUrl cible = QUrl::fromEncoded(demande.split(' ').value(1));
        const QByteArray chemin = cible.path(QUrl::FullyEncoded).toUtf8() +
                                  (cible.hasQuery() ? "?" + cible.query(QUrl::FullyEncoded).toUtf8() : "");
        demandes.push_back(chemin);
        const auto rend = m_pages.find(chemin);
        Page absente;
        absente.code = 404;
        reponds(liaison, rend == m_pages.end() ? absente : rend->second(demande));
    }
    static void reponds(QTcpSocket& liaison, const Page& page) {
        if (page.muette) return;
        const qint64 longueur = page.longueurDite < 0 ? page.corps.size() : page.longueurDite;
        liaison.write("HTTP/1.1 " + QByteArray::number(page.code) + " X\r\nContent-Type: " + page.type +
                      "\r\nContent-Length: " + QByteArray::number(longueur) + "\r\nConnection: close\r\n" +
                      page.entetes + "\r\n" +
                      page.corps.left(page.coupeApres < 0 ? page.corps.size() : page.coupeApres));
        liaison.disconnectFromHost();
    }

    QTcpServer m_serveur;
    std::map<QByteArray, Rend> m_pages;
};

}  // namespace doubles
