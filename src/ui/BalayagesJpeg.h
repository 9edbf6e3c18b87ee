#pragma once

#include <QByteArray>

namespace ui {

// How many times a decoder goes over the picture of this JPEG: once for each of its scans. A file of another format, or
// one that is cut off, has those found up to there.
[[nodiscard]] qint64 compteBalayages(const QByteArray& octets);

}  // namespace ui
