#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <cstdint>
#include <random>

namespace affiches {

// The five colours of a poster: the field, its darkest and lightest tones, and two accents.
struct Palette {
    QColor fond, sombre, clair, vif, doux;
};

// Draws that depend on the seed alone, whatever the standard library.
class Tirage {
  public:
    explicit Tirage(std::uint64_t graine) : m_suite(graine) {}

    double entre(double bas, double haut) {
        return bas + (haut - bas) * static_cast<double>(m_suite() >> 11) * 0x1p-53;
    }
    int parmi(int nombre) { return static_cast<int>(m_suite() % static_cast<std::uint64_t>(nombre)); }
    bool pileOuFace() { return parmi(2) == 0; }

  private:
    std::mt19937_64 m_suite;
};

// A composition that fills the rectangle; the painter is clipped to it by the caller.
using Motif = void (*)(QPainter&, const QRectF&, const Palette&, Tirage&);

// One of the colour sets, and one of the compositions, that suit the genre of a film.
[[nodiscard]] Palette palettePour(const QString& genre, Tirage& tirage);
[[nodiscard]] Motif motifPour(const QString& genre, Tirage& tirage);

}  // namespace affiches
