#include "ui/BalayagesJpeg.h"

namespace ui {

namespace {

enum Marqueur : unsigned char {
    Bourrage = 0x00,
    Isole = 0x01,
    Reprise0 = 0xD0,
    Debut = 0xD8,
    Fin = 0xD9,
    Balayage = 0xDA,
    Annonce = 0xFF
};

// Between the compressed data, these stand alone: no length follows them.
bool estSeul(unsigned char marqueur) {
    return marqueur == Bourrage || marqueur == Isole || marqueur == Annonce ||
           (marqueur >= Reprise0 && marqueur <= Debut);
}

}  // namespace

// From one marker to the next: over a segment by its length, so that a preview inside it counts for nothing, and
// through compressed data by looking for what is no part of it.
qint64 compteBalayages(const QByteArray& octets) {
    const auto octet = [&](qsizetype ou) { return static_cast<unsigned char>(octets[ou]); };
    if (octets.size() < 2 || octet(0) != Annonce || octet(1) != Debut) return 0;
    qint64 balayages = 0;
    for (qsizetype ou = 0; (ou = octets.indexOf(static_cast<char>(Annonce), ou)) >= 0 && ou + 3 < octets.size();) {
        const unsigned char marqueur = octet(ou + 1);
        if (marqueur == Fin) break;
        if (marqueur == Balayage) ++balayages;
        ou += estSeul(marqueur) ? 1 : 2 + (octet(ou + 2) << 8 | octet(ou + 3));
    }
    return balayages;
}

}  // namespace ui
