#include "ui/PagesDuGuide.h"

#include "platform/fichiers/Fichiers.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>
#include <utility>

namespace ui {

namespace {

constexpr std::int64_t kOctetsAuPlus = 8 * 1024 * 1024;  // of a page or a picture

QChar pliee(QChar lettre) {
    if (lettre == QChar(0x2019)) return QLatin1Char('\'');
    if (lettre.isSpace()) return QLatin1Char(' ');
    const QString parties = lettre.decomposition();
    const QChar nue = parties.isEmpty() || !parties.front().isLetter() ? lettre : parties.front();
    return nue.toLower();
}

}  // namespace

QString plieePourChercher(QString texte) {
    std::transform(texte.cbegin(), texte.cend(), texte.begin(), pliee);
    return texte;
}

std::vector<Passage> passages(const QString& texteplie, const QStringList& mots) {
    std::vector<Passage> resultat;
    for (const QString& mot : mots)
        for (qsizetype place = 0; !mot.isEmpty() && (place = texteplie.indexOf(mot, place)) >= 0; place += mot.size())
            resultat.push_back({place, mot.size()});
    std::ranges::sort(resultat, {}, [](const Passage& p) { return std::pair(p.place, -p.longueur); });
    qsizetype fin = 0;
    std::erase_if(resultat, [&](const Passage& p) {
        if (p.place < fin) return true;
        fin = p.place + p.longueur;
        return false;
    });
    return resultat;
}

PagesDuGuide::PagesDuGuide(std::string dossier) : m_dossier(std::move(dossier)) {
    static const QRegularExpression kLigne(
        QStringLiteral("<h2[^>]*>([^<]*)</h2>|<li><a href=\"([\\w-]+\\.html)\">([^<]*)</a>"));
    const QString sommaire = QString::fromUtf8(lis(QStringLiteral("index.html")));
    QString groupe;
    for (auto trouves = kLigne.globalMatch(sommaire); trouves.hasNext();) {
        const QRegularExpressionMatch ligne = trouves.next();
        if (ligne.hasCaptured(2))
            m_pages.push_back({ligne.captured(2), ligne.captured(3), groupe});
        else
            groupe = ligne.captured(1);
    }
}

QByteArray PagesDuGuide::lis(const QString& nom) const {
    const bool image = nom.startsWith(QLatin1String("images/"));
    const std::string dossier = m_dossier + (image ? "images/" : "");
    const auto place = fichiers::situeDans(dossier, nom.mid(image ? 7 : 0).toStdString());
    const auto octets = place ? fichiers::lit(place->chemin, kOctetsAuPlus) : std::nullopt;
    return octets ? QByteArray::fromStdString(*octets) : QByteArray();
}

std::vector<std::size_t> PagesDuGuide::quiContiennent(const QStringList& mots) {
    if (!std::exchange(m_lues, true))
        for (Page& page : m_pages) {
            QTextDocument document;
            document.setHtml(QString::fromUtf8(lis(page.nom)));
            page.texte = plieePourChercher(document.toPlainText());
        }
    std::vector<std::size_t> resultat;
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        if (std::ranges::all_of(mots, [&](const QString& mot) { return m_pages[i].texte.contains(mot); }))
            resultat.push_back(i);
    return resultat;
}

}  // namespace ui
