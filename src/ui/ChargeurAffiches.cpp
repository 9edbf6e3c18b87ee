#include "ui/ChargeurAffiches.h"

#include "ui/ImagesQt.h"

#include <QThread>
#include <algorithm>
#include <utility>

namespace ui {

namespace {

constexpr qsizetype kOctetsDUneEntree = 200;  // beside its pixels

qsizetype octetsDe(const QPixmap& image) {
    return kOctetsDUneEntree + qsizetype{4} * image.width() * image.height();
}

}  // namespace

// One processor is left to the window where there are several.
ChargeurAffiches::ChargeurAffiches(QObject* parent, qsizetype octetsMax) : QObject(parent), m_affiches(octetsMax) {
    m_threads.setMaxThreadCount(std::clamp(QThread::idealThreadCount() - 1, 1, 4));
}

ChargeurAffiches::~ChargeurAffiches() {
    m_threads.clear();
    m_threads.waitForDone();
}

const QPixmap* ChargeurAffiches::affiche(const QByteArray& film) const {
    const Affiche* connue = m_affiches.object(film);
    return connue ? &connue->image : nullptr;
}

bool ChargeurAffiches::estAJour(const QByteArray& film, const QSize& pixels) const {
    const Affiche* connue = m_affiches.object(film);
    return connue && connue->epoque == m_epoque && (connue->image.isNull() || connue->pour == pixels);
}

ChargeurAffiches::Lue ChargeurAffiches::decode(browse::SourceAffiche source, Lue lue, size_t avant) {
    const auto octets = browse::octetsDe(std::move(source));
    if (!octets || octets->empty()) return lue;
    lue.empreinte = std::max<size_t>(1, qHashBits(octets->data(), octets->size()));
    lue.inchangee = lue.empreinte == avant;
    if (!lue.inchangee)
        lue.image =
            afficheReduite(QByteArray::fromRawData(octets->data(), static_cast<qsizetype>(octets->size())), lue.pour);
    return lue;
}

void ChargeurAffiches::prends(const QByteArray& film, browse::SourceAffiche source, const QSize& pixels) {
    const Affiche* connue = m_affiches.object(film);
    const bool memeTaille = connue && (connue->image.isNull() || connue->pour == pixels);
    Lue attendue;
    attendue.pour = pixels;
    attendue.epoque = m_epoque;
    const size_t avant = memeTaille ? connue->empreinte : 0;
    if (source.octets.empty() && source.fichier.empty()) return range(film, attendue);
    m_enCours.insert(film);
    m_threads.start([this, film, attendue, avant, source = std::move(source)]() mutable {
        Lue lue = decode(std::move(source), attendue, avant);
        QMetaObject::invokeMethod(this, [this, film, lue = std::move(lue)] {
            m_enCours.remove(film);
            m_decodees += lue.image.isNull() ? 0 : 1;
            range(film, lue);
        });
    });
}

void ChargeurAffiches::range(const QByteArray& film, const Lue& lue) {
    if (lue.inchangee) {  // else it went meanwhile, and is asked for again
        if (Affiche* connue = m_affiches.object(film)) connue->epoque = lue.epoque;
    } else {
        auto* nouvelle = new Affiche{QPixmap::fromImage(lue.image), lue.pour, lue.empreinte, lue.epoque};
        m_affiches.insert(film, nouvelle, octetsDe(nouvelle->image));
    }
    emit arrivee(film);
}

}  // namespace ui
