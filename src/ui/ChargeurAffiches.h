#pragma once

#include "browse/PageDuGroupe.h"

#include <QByteArray>
#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QSet>
#include <QThreadPool>

namespace ui {

// Posters at the size in which they are shown. They are decoded aside, a few at a time, so that what is wanted first can
// change meanwhile; what was decoded is kept as long as its room allows, the one used longest ago going first.
class ChargeurAffiches final : public QObject {
    Q_OBJECT
  public:
    static constexpr qsizetype kOctetsMax = 60 << 20;  // of all pictures together

    explicit ChargeurAffiches(QObject* parent = nullptr, qsizetype octetsMax = kOctetsMax);
    ~ChargeurAffiches() override;

    // What is known of a film's poster, nullptr before. Its picture is null where there is none; it may be of another size,
    // or of before a change, as long as a newer one is on its way.
    [[nodiscard]] const QPixmap* affiche(const QByteArray& film) const;
    // Nothing newer is to be had: of that size, and of after the last perime().
    [[nodiscard]] bool estAJour(const QByteArray& film, const QSize& pixels) const;
    void perime() { ++m_epoque; }  // posters may have changed: one that did not is not decoded again

    [[nodiscard]] bool peutPrendre() const { return m_enCours.size() < m_threads.maxThreadCount() * 2; }
    [[nodiscard]] bool prendDeja(const QByteArray& film) const { return m_enCours.contains(film); }
    void prends(const QByteArray& film, browse::SourceAffiche source, const QSize& pixels);

    [[nodiscard]] qsizetype octets() const { return m_affiches.totalCost(); }
    [[nodiscard]] long decodees() const { return m_decodees; }  // so far

  signals:
    void arrivee(const QByteArray& film);

  private:
    struct Affiche {
        QPixmap image;
        QSize pour;
        size_t empreinte = 0;  // of the file's bytes, 0 for none
        int epoque = 0;
    };
    struct Lue {
        QImage image;
        QSize pour;
        size_t empreinte = 0;
        int epoque = 0;
        bool inchangee = false;
    };
    [[nodiscard]] static Lue decode(browse::SourceAffiche source, Lue attendue, size_t avant);
    void range(const QByteArray& film, const Lue& lue);

    QCache<QByteArray, Affiche> m_affiches;
    QSet<QByteArray> m_enCours;
    QThreadPool m_threads;
    int m_epoque = 0;
    long m_decodees = 0;
};

}  // namespace ui
