#include "rapatrix/Reseau.h"

#include "rapatrix/PageWeb.h"

#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <utility>

namespace rapatrix {

namespace {

constexpr int kRedirectionsMax = 8;
constexpr qint64 kTampon = 256 << 10;
constexpr int kPartiel = 206, kTropDeDemandes = 429, kIndisponible = 503, kEtendueImpossible = 416;

int codeHttp(const QNetworkReply& reponse) {
    return reponse.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QString codageDit(const QNetworkReply& reponse) {
    const QString type = reponse.header(QNetworkRequest::ContentTypeHeader).toString();
    const qsizetype debut = type.indexOf(QLatin1String("charset="), 0, Qt::CaseInsensitive);
    return debut < 0 ? QString()
                     : type.mid(debut + 8).section(QLatin1Char(';'), 0, 0).remove(QLatin1Char('"')).trimmed();
}

}  // namespace

Reseau::Reseau(const QUrl& site, Delais delais) : m_site(site), m_delais(delais) {
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    m_acces.setRedirectPolicy(QNetworkRequest::UserVerifiedRedirectPolicy);
    m_butoir.setSingleShot(true);
    m_butoir.setInterval(static_cast<int>(delais.enTout.count()));
    connect(&m_butoir, &QTimer::timeout, this, [this] { rends(Reponse::Etat::Injoignable); });
}

void Reseau::demande(const QUrl& adresse, qint64 limite, Suite suite) {
    arrete();
    m_adresse = adresse;
    m_limite = limite;
    m_reprises = m_delais.reprises;
    m_octets.clear();
    m_marque.clear();
    m_suite = std::move(suite);
    m_butoir.start();
    lance();
}

void Reseau::lance() {
    QNetworkRequest demande(m_adresse);
    demande.setTransferTimeout(static_cast<int>(m_delais.sansReponse.count()));
    demande.setMaximumRedirectsAllowed(kRedirectionsMax);
    demande.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    demande.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    demande.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    demande.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Ambrelis/1.0"));
    if (!m_octets.isEmpty()) {
        demande.setRawHeader("Range", "bytes=" + QByteArray::number(m_octets.size()) + "-");
        if (!m_marque.isEmpty()) demande.setRawHeader("If-Range", m_marque);
    }
    if (!memeSite(m_adresse.toEncoded().toStdString(), m_site.toEncoded().toStdString())) {
        QMetaObject::invokeMethod(
            this, [this] { rends(Reponse::Etat::AutreSite); }, Qt::QueuedConnection);
        return;
    }
    m_reponse = m_acces.get(demande);
    m_reponse->setReadBufferSize(kTampon);
    connect(m_reponse, &QNetworkReply::redirected, this, [this](const QUrl& vers) {
        if (memeSite(vers.toEncoded().toStdString(), m_site.toEncoded().toStdString()))
            emit m_reponse->redirectAllowed();
        else
            rends(Reponse::Etat::AutreSite);
    });
    connect(m_reponse, &QNetworkReply::readyRead, this, &Reseau::accueille);
    connect(m_reponse, &QNetworkReply::finished, this, &Reseau::finit);
}

void Reseau::accueille() {
    const int code = codeHttp(*m_reponse);
    if (code >= 400) {  // the page of an error is not read
        finit();
        return;
    }
    if (code != kPartiel && m_octets.size() > 0 && !m_reponse->property("commencee").toBool()) m_octets.clear();
    m_reponse->setProperty("commencee", true);
    if (!m_reponse->isOpen()) return;  // broken off before its first byte
    m_octets += m_reponse->read(m_limite + 1 - m_octets.size());
    if (m_octets.size() > m_limite) {
        rends(Reponse::Etat::TropGrosse);
        return;
    }
    bool dit = false;
    const qint64 longueur = m_reponse->header(QNetworkRequest::ContentLengthHeader).toLongLong(&dit);
    emit avance(m_octets.size(), dit && code != kPartiel ? longueur : -1);
}

void Reseau::finit() {
    const int code = codeHttp(*m_reponse);
    if (code < 400) accueille();
    if (!m_reponse) return;  // that was too much
    if (code == kTropDeDemandes || code == kIndisponible)
        rends(Reponse::Etat::TropDeDemandes);
    else if (code >= 400 && code != kEtendueImpossible)
        rends(Reponse::Etat::Refusee);
    else if (m_reponse->error() == QNetworkReply::NoError)
        rends(Reponse::Etat::Faite);
    else if (!reprend())
        rends(m_octets.isEmpty() ? Reponse::Etat::Injoignable : Reponse::Etat::Tronquee);
}

// Takes up what broke off; true when it goes on.
bool Reseau::reprend() {
    const bool commencee = m_reponse->property("commencee").toBool() && !m_octets.isEmpty();
    if (!commencee || m_reprises-- <= 0) return false;
    m_marque = m_reponse->rawHeader("ETag");
    if (m_reponse->rawHeader("Content-Encoding") != QByteArray()) m_octets.clear();  // places in the packed bytes
    m_reponse->disconnect(this);
    std::exchange(m_reponse, nullptr)->deleteLater();
    lance();
    return true;
}

void Reseau::rends(Reponse::Etat etat) {
    Reponse reponse;
    reponse.etat = etat;
    reponse.octets = std::exchange(m_octets, {});
    if (m_reponse) {
        reponse.code = codeHttp(*m_reponse);
        reponse.codage = codageDit(*m_reponse);
        reponse.adresse = m_reponse->url();
        reponse.attente = std::chrono::seconds(m_reponse->rawHeader("Retry-After").toInt());
    }
    const Suite suite = std::exchange(m_suite, nullptr);
    arrete();
    if (suite) suite(reponse);
}

void Reseau::arrete() {
    m_suite = nullptr;
    m_butoir.stop();
    if (!m_reponse) return;
    m_reponse->disconnect(this);
    m_reponse->abort();
    std::exchange(m_reponse, nullptr)->deleteLater();
}

}  // namespace rapatrix
