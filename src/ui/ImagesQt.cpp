#include "ui/ImagesQt.h"

#include "ui/BalayagesJpeg.h"

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cmath>
#include <utility>

namespace ui {

namespace {

constexpr std::size_t kOctetsMax = 64 << 20;  // of a picture file
constexpr qint64 kPixelsMax = 64'000'000;     // beyond, a JPEG is not decoded
constexpr qint64 kPixelsSansReduction =
    8'000'000;  // likewise for the others, which cannot be decoded at a smaller size
constexpr qint64 kPixelsParcourus = 1'000'000'000;  // all scans together: a few seconds of decoding
constexpr double kPixelsEntiere = 16e6;             // decoded for the viewer
constexpr int kMemoireMax = 256;                    // megabytes for one decoding

bool estCouchee(const QImageReader& lecteur) {
    return lecteur.transformation() & QImageIOHandler::TransformationRotate90;
}

bool estTropGrande(const QSize& taille, const QByteArray& format, const QByteArray& octets) {
    const qint64 surface = qint64{taille.width()} * taille.height();
    if (format != "jpeg") return surface > kPixelsSansReduction;
    return surface > kPixelsMax || surface * compteBalayages(octets) > kPixelsParcourus;
}

// Ready to read the picture at the size in which it fills `pixels`. Its own size, upright; empty when it is not to be read.
QSize prepare(QImageReader& lecteur, const QByteArray& format, const QByteArray& octets, const QSize& pixels) {
    [[maybe_unused]] static const bool bornee = (QImageReader::setAllocationLimit(kMemoireMax), true);
    lecteur.setAutoDetectImageFormat(false);  // no other decoder has a look
    lecteur.setAutoTransform(true);
    const QSize brute = lecteur.size();
    if (brute.isEmpty() || estTropGrande(brute, format, octets)) return {};

    const bool couchee = estCouchee(lecteur);
    const QSize taille = couchee ? brute.transposed() : brute;
    const QSize cible = taille.scaled(pixels, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (cible.width() < taille.width()) lecteur.setScaledSize(couchee ? cible.transposed() : cible);
    return taille;
}

}  // namespace

QImage afficheReduite(const QByteArray& octets, const QSize& pixels) {
    const QByteArray format = formatDePhoto(octets);
    if (format.isEmpty()) return {};
    QBuffer tampon;
    tampon.setData(octets);
    QImageReader lecteur(&tampon, format);
    return prepare(lecteur, format, octets, pixels).isEmpty() ? QImage() : lecteur.read();
}

QByteArray formatDePhoto(const QByteArray& octets) {
    if (octets.startsWith("\xff\xd8\xff")) return "jpeg";
    if (octets.startsWith("\x89PNG\r\n\x1a\n")) return "png";
    if (octets.startsWith("GIF87a") || octets.startsWith("GIF89a")) return "gif";
    if (octets.startsWith("RIFF") && octets.mid(8, 4) == "WEBP") return "webp";
    return octets.startsWith("BM") ? "bmp" : QByteArray();
}

std::optional<ecran::TailleImage> ImagesQt::charge(const std::string& octets) {
    vide();
    if (octets.size() <= kOctetsMax) m_octets = QByteArray::fromStdString(octets);
    if (m_octets.isEmpty() || !decode(m_voulue)) {
        vide();
        return std::nullopt;
    }
    return ecran::TailleImage{m_taille.width(), m_taille.height()};
}

void ImagesQt::vide() {
    m_octets.clear();
    m_decodee = {};
    m_decodeePour = {};
    m_entiere = {};
    m_entiereEssayee = false;
}

const QPixmap& ImagesQt::affiche(const QSize& pixels) {
    if (!estVide() && m_decodeePour != pixels && !decode(pixels)) m_decodee = {};
    return m_decodee;
}

const QPixmap& ImagesQt::entiere() {
    if (estVide() || std::exchange(m_entiereEssayee, true)) return m_entiere;
    const double surface = double{1} * m_taille.width() * m_taille.height();
    m_entiere = decodee(m_taille * std::min(1.0, std::sqrt(kPixelsEntiere / surface)));
    return m_entiere;
}

bool ImagesQt::decode(const QSize& pixels) {
    m_decodee = decodee(pixels);
    m_decodeePour = pixels;
    return !m_decodee.isNull();
}

QPixmap ImagesQt::decodee(const QSize& pixels) {
    const QByteArray format = formatDePhoto(m_octets);
    if (format.isEmpty()) return {};
    QBuffer tampon(&m_octets);
    QImageReader lecteur(&tampon, format);
    const QSize taille = prepare(lecteur, format, m_octets, pixels);
    if (taille.isEmpty()) return {};
    m_taille = taille;
    return QPixmap::fromImageReader(&lecteur);
}

}  // namespace ui
