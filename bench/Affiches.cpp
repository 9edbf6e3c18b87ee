#include "Affiches.h"

#include "Hasard.h"

#include <QBuffer>
#include <QImage>
#include <stdexcept>

namespace bench {

namespace {

constexpr int kImages = 12, kLargeur = kLargeurAffiche, kHauteur = kHauteurAffiche;

// Broad shapes under a grain, as a scanned poster has; the grain sets the size of the file.
QImage peint(std::uint64_t numero) {
    Hasard hasard(numero);
    QImage image(kLargeur, kHauteur, QImage::Format_RGB32);
    const int teinte = static_cast<int>(hasard.sous(360));
    const int grain = 11 + 3 * static_cast<int>(numero);
    for (int y = 0; y < kHauteur; ++y) {
        auto* ligne = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < kLargeur; ++x) {
            const bool forme = (x - 210) * (x - 210) + (y - 250) * (y - 250) < 24000 || y > 520;
            const int valeur = (forme ? 150 : 40) + y / 8 + static_cast<int>(hasard.sous(grain));
            ligne[x] = QColor::fromHsv((teinte + (forme ? 40 : 0) + x / 12) % 360, 150, std::min(valeur, 255)).rgb();
        }
    }
    return image;
}

std::string encode(const QImage& image) {
    QByteArray octets;
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    if (!image.save(&tampon, "JPG", 80)) throw std::runtime_error("Qt cannot write JPEG pictures here");
    return octets.toStdString();
}

}  // namespace

Affiches::Affiches() {
    for (std::uint64_t i = 0; i < kImages; ++i)
        m_images.push_back(encode(peint(i)));
}

std::string Affiches::affiche(std::uint64_t numero) const {
    const std::string& image = m_images[numero * 5 % m_images.size()];
    const std::string texte = "poster of film " + std::to_string(numero);
    std::string segment = {'\xff', '\xfe', '\0', static_cast<char>(texte.size() + 2)};
    return image.substr(0, 2) + segment + texte + image.substr(2);
}

}  // namespace bench
