#pragma once

#include "platform/ecran/Ecran.h"

#include <QByteArray>
#include <QImage>
#include <QPixmap>
#include <QSize>

namespace ui {

// The name of the decoder for these bytes, by how they begin: "jpeg", or one of the kinds that pictures of the web come in
// under a .jpg name ("png", "bmp", "gif", "webp"). Empty for anything else, which no decoder is to see: some of them (SVG)
// work without end before they have told a size.
[[nodiscard]] QByteArray formatDePhoto(const QByteArray& octets);

// A picture file's bytes decoded to fill `pixels` as far as its shape allows, never larger than it is; null where no
// decoder is to see them. May be called by any thread.
[[nodiscard]] QImage afficheReduite(const QByteArray& octets, const QSize& pixels);

// The current poster. Its file is kept as bytes, and decoded at the size in which it is shown: a full decoding of each
// poster would cost the browsing more than everything else.
class ImagesQt final : public ecran::Images {
  public:
    std::optional<ecran::TailleImage> charge(const std::string& octets) override;
    void vide() override;

    [[nodiscard]] bool estVide() const { return m_octets.isEmpty(); }
    [[nodiscard]] QSize taille() const { return m_taille; }  // of the poster at its own size, upright
    // The poster, filling `pixels` as far as its shape allows; never larger than it is.
    [[nodiscard]] const QPixmap& affiche(const QSize& pixels);
    // The poster at its own size, upright; decoded when first asked for. One of many megapixels comes smaller, to be
    // drawn enlarged: the memory it takes stays bounded.
    [[nodiscard]] const QPixmap& entiere();
    // The size, in pixels of the screen, in which the window last showed a poster.
    void metTailleVoulue(const QSize& pixels) { m_voulue = pixels; }

  private:
    [[nodiscard]] bool decode(const QSize& pixels);
    [[nodiscard]] QPixmap decodee(const QSize& pixels);

    QByteArray m_octets;  // of a picture that could be decoded, else empty
    QSize m_taille;       // of the picture, upright
    QSize m_voulue{193, 297};
    QPixmap m_decodee;
    QSize m_decodeePour;
    QPixmap m_entiere;
    bool m_entiereEssayee = false;
};

}  // namespace ui
