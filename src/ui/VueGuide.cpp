#include "ui/VueGuide.h"

#include "ui/Composition.h"
#include "ui/Couleurs.h"
#include "ui/Typographie.h"

#include <QBuffer>
#include <QEvent>
#include <QImageReader>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextFrame>
#include <algorithm>
#include <cmath>

namespace ui {

namespace {

constexpr int kColonne = 700;  // a line no longer than it reads well
constexpr int kReposDesBords = 120;

QUrl adresse(const QString& page) {
    return QUrl(QStringLiteral("guide:/") + page);
}

// What the view does not take from a style sheet, in the page itself.
QString preparee(QString page) {
    static const QRegularExpression kTete(QStringLiteral("<header>\\s*<p>.*?</p>"));
    page.replace(kTete, QStringLiteral("<header>"));  // back to the contents, which stand beside it
    page.replace(QStringLiteral("rel=\"stylesheet\""), QStringLiteral("rel=\"stylesheet\" type=\"text/css\""));
    page.replace(QStringLiteral("<kbd>"), QStringLiteral("<kbd>&nbsp;"));
    page.replace(QStringLiteral("</kbd>"), QStringLiteral("&nbsp;</kbd>"));
    page.replace(QStringLiteral("<table>"), QStringLiteral("<table width=\"100%\" cellspacing=\"0\">"));
    page.replace(QStringLiteral("<footer>"), QStringLiteral("<hr>"));
    page.replace(QStringLiteral("<a rel=\"prev\""), QStringLiteral("←&nbsp;<a"));
    page.replace(QStringLiteral("<a rel=\"next\""), QStringLiteral("→&nbsp;<a"));
    return sansSigneIsole(page);
}

QString feuilleDeStyle(const QPalette& palette) {
    const QString fond = palette.color(QPalette::Base).name(), texte = palette.color(QPalette::Text).name();
    const QColor carte = melange(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.08);
    const QColor discret = lisible(melange(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.66),
                                   {palette.color(QPalette::Base)});
    const QColor lien = lisible(accent(palette), {palette.color(QPalette::Base), carte});
    const QColor trait = melange(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.20);
    return QStringLiteral(
               "body { color: %1; background-color: %2; }"
               "p, li, td, th { line-height: 135%; }"
               "p { margin-top: 8px; margin-bottom: 8px; }"
               "li { margin-top: 3px; margin-bottom: 3px; }"
               "ul, ol { margin-top: 4px; margin-bottom: 8px; }"
               "h1 { font-size: xx-large; font-weight: 600; margin-top: 20px; margin-bottom: 14px; }"
               "h2 { font-size: large; font-weight: 600; margin-top: 24px; margin-bottom: 4px; }"
               "a { color: %3; }"
               "kbd { background-color: %4; font-size: small; }"
               "pre { background-color: %4; }"
               ".note { background-color: %4; }"
               ".chapeau { color: %5; }"
               "th, td { padding: 4px 12px 4px 0px; text-align: left; border-bottom: 1px solid %6; }")
        .arg(texte, fond, lien.name(), carte.name(), discret.name(), trait.name());
}

}  // namespace

VueGuide::VueGuide(const PagesDuGuide& pages, QWidget* parent) : QTextBrowser(parent), m_pages(pages) {
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // pictures are made as wide as it leaves room for
    QFont lettres = font();
    lettres.setPointSizeF(lettres.pointSizeF() * 1.1);
    document()->setDefaultFont(lettres);
    m_repos.setSingleShot(true);
    m_repos.setInterval(kReposDesBords);
    connect(&m_repos, &QTimer::timeout, this, [this] {
        if (m_largeurDesImages != largeurDeTexte()) relis();
    });
    connect(this, &QTextBrowser::anchorClicked, this, &VueGuide::suisLeLien);
    connect(this, &QTextBrowser::sourceChanged, this, [this] {
        metEnPage();
        marque();
    });
}

void VueGuide::montre(const QString& page) {
    setSource(adresse(page));
}

QString VueGuide::page() const {
    return source().path().mid(1);
}

void VueGuide::suisLeLien(const QUrl& lien) {
    const QUrl cible = source().resolved(lien);
    if (cible.scheme() == adresse({}).scheme())
        setSource(cible);
    else
        emit lienAuDehors(cible.toString());
}

QVariant VueGuide::loadResource(int genre, const QUrl& nom) {
    const QUrl cible = adresse({}).resolved(nom);  // the source is not yet the page that is read
    if (cible.scheme() != adresse({}).scheme()) return {};
    if (genre == QTextDocument::StyleSheetResource) return feuilleDeStyle(palette());
    const QByteArray octets = m_pages.lis(cible.path().mid(1));
    if (genre == QTextDocument::ImageResource) return image(octets);
    m_largeurDesImages = largeurDeTexte();
    if (octets.isEmpty()) return tr("<p>Cette page du guide n'est pas dans le dossier du programme.</p>");
    return preparee(QString::fromUtf8(octets));
}

// No wider than the text; drawn in the screen's own points.
QVariant VueGuide::image(const QByteArray& octets) const {
    QBuffer tampon;
    tampon.setData(octets);
    QImageReader lecteur(&tampon);
    const QSize taille = lecteur.size();
    constexpr int kCoteAuPlus = 4000;
    if (taille.isEmpty() || std::max(taille.width(), taille.height()) > kCoteAuPlus) return {};
    QImage image = lecteur.read();
    const int largeur = std::min(taille.width(), largeurDeTexte());
    image = image.scaledToWidth(static_cast<int>(std::lround(largeur * devicePixelRatioF())), Qt::SmoothTransformation);
    image.setDevicePixelRatio(devicePixelRatioF());
    return image;
}

int VueGuide::largeurDeTexte() const {
    return std::clamp(viewport()->width() - 2 * kLarge, 1, kColonne);
}

void VueGuide::metEnPage() {
    QTextFrameFormat format = document()->rootFrame()->frameFormat();
    const int bord = std::max(kLarge, (viewport()->width() - largeurDeTexte()) / 2);
    format.setLeftMargin(bord);
    format.setRightMargin(bord);
    document()->rootFrame()->setFrameFormat(format);
}

// The place in the page stays, as far as its lines do.
void VueGuide::relis() {
    if (source().isEmpty()) return;
    QScrollBar& barre = *verticalScrollBar();
    const double part = barre.maximum() ? static_cast<double>(barre.value()) / barre.maximum() : 0;
    const qsizetype passage = m_passage;
    reload();
    metEnPage();
    marque();
    m_passage = std::min<qsizetype>(passage, passages() - 1);
    barre.setValue(static_cast<int>(std::lround(part * barre.maximum())));
}

void VueGuide::resizeEvent(QResizeEvent* evenement) {
    QTextBrowser::resizeEvent(evenement);
    if (source().isEmpty()) return;
    metEnPage();
    m_repos.start();
}

void VueGuide::changeEvent(QEvent* evenement) {
    QTextBrowser::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange) relis();
}

void VueGuide::cherche(const QStringList& mots) {
    m_mots = mots;
    marque();
}

void VueGuide::marque() {
    m_passages = ui::passages(plieePourChercher(document()->toPlainText()), m_mots);
    m_passage = -1;
    QList<ExtraSelection> marques;
    for (const Passage& passage : m_passages) {
        ExtraSelection marque;
        marque.cursor = QTextCursor(document());
        marque.cursor.setPosition(static_cast<int>(passage.place));
        marque.cursor.setPosition(static_cast<int>(passage.place + passage.longueur), QTextCursor::KeepAnchor);
        marque.format.setBackground(melange(accent(palette()), palette().color(QPalette::Base), 0.35));
        marques << marque;
    }
    setExtraSelections(marques);
}

bool VueGuide::passe(int sens) {
    const qsizetype voulu = m_passage + sens;
    if (voulu < 0 || voulu >= std::ssize(m_passages)) return false;
    m_passage = voulu;
    const Passage& passage = m_passages[static_cast<std::size_t>(voulu)];
    QTextCursor curseur(document());
    curseur.setPosition(static_cast<int>(passage.place));
    curseur.setPosition(static_cast<int>(passage.place + passage.longueur), QTextCursor::KeepAnchor);
    setTextCursor(curseur);
    ensureCursorVisible();
    return true;
}

void VueGuide::avantLePremier(int sens) {
    m_passage = sens > 0 ? -1 : std::ssize(m_passages);
}

}  // namespace ui
