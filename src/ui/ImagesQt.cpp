#include "ui/ImagesQt.h"

#include "ui/BalayagesJpeg.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <cmath>
#include <utility>

namespace ui {

namespace {

constexpr qint64 kOctetsMax = 64 << 20;             // of a picture file
constexpr qint64 kPixelsMax = 64'000'000;           // beyond, a picture is not decoded
constexpr qint64 kPixelsParcourus = 1'000'000'000;  // all scans together: a few seconds of decoding
constexpr double kPixelsEntiere = 16e6;             // decoded for the viewer
constexpr int kMemoireMax = 256;                    // megabytes for one decoding

bool estUnFormatDePhoto(const QByteArray& format) {
    return format == "jpeg" || format == "jpg" || format == "png" || format == "bmp" || format == "gif" ||
           format == "webp";
}

bool estCouchee(const QImageReader& lecteur) {
    return lecteur.transformation() & QImageIOHandler::TransformationRotate90;
}

QByteArray litFichier(const std::string& chemin) {
    QFile fichier(QString::fromStdString(chemin));
    if (!fichier.open(QIODevice::ReadOnly) || fichier.size() > kOctetsMax) return {};
    return fichier.readAll();
}

}  // namespace

std::optional<ecran::TailleImage> ImagesQt::charge(const std::string& chemin) {
    vide();
    m_octets = litFichier(chemin);
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
    QImageReader::setAllocationLimit(kMemoireMax);
    QBuffer tampon(&m_octets);
    QImageReader lecteur(&tampon);  // a buffer has no name: the bytes alone tell the format
    lecteur.setAutoTransform(true);
    const QSize brute = lecteur.size();
    if (!estUnFormatDePhoto(lecteur.format()) || brute.isEmpty()) return {};
    const qint64 surface = qint64{brute.width()} * brute.height();
    if (surface > kPixelsMax || surface * compteBalayages(m_octets) > kPixelsParcourus) return {};

    const bool couchee = estCouchee(lecteur);
    m_taille = couchee ? brute.transposed() : brute;
    const QSize cible = m_taille.scaled(pixels, Qt::KeepAspectRatio).expandedTo({1, 1});
    if (cible.width() < m_taille.width()) lecteur.setScaledSize(couchee ? cible.transposed() : cible);
    return QPixmap::fromImageReader(&lecteur);
}

}  // namespace ui
