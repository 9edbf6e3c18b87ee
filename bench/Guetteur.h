#pragma once

#include "Mesure.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <vector>

namespace bench {

// Watches the paint events of one widget, from outside: what is measured needs no hook for it.
class Guetteur : public QObject {
  public:
    explicit Guetteur(QWidget& cible) : m_cible(cible) { m_cible.installEventFilter(this); }

    // Runs the event loop until the widget is painted; the moment of it.
    double attend() {
        while (!m_peint)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return maintenant();
    }
    // How long a gesture lasts, from its start to the end of the painting that it brings.
    template <typename Geste>
    double dureeDe(Geste geste) {
        m_peint = false;
        const double depart = maintenant();
        geste();
        attend();
        QApplication::processEvents();
        return maintenant() - depart;
    }

    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (objet == &m_cible && evenement->type() == QEvent::Paint) m_peint = true;
        return false;
    }

  private:
    QWidget& m_cible;
    bool m_peint = false;
};

// How long the program let no event through, at most, since it was made: a watch of a millisecond tells.
class Veille {
  public:
    Veille() {
        m_montre.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_montre, &QTimer::timeout, [this] { note(); });
        m_montre.start(1);
    }
    [[nodiscard]] double pire() {
        note();
        return m_pire;
    }

  private:
    void note() {
        const double instant = maintenant();
        m_pire = std::max(m_pire, instant - m_vue);
        m_vue = instant;
    }

    QTimer m_montre;
    double m_vue = maintenant(), m_pire = 0;
};

// Lets a program do what it left for its idle moments.
inline void laisseFinir() {
    for (int i = 0; i < 20; ++i)
        QApplication::processEvents();
}

inline void declareSerie(const std::string& nom, std::vector<double> durees) {
    if (durees.empty()) return;
    std::sort(durees.begin(), durees.end());
    declare(nom + "_median", durees[durees.size() / 2]);
    declare(nom + "_pire", durees.back());
}

// The sorts and zones that are measured, one after the other: each sort that groups, then each zone.
inline constexpr int kTris[] = {2, 3, 4, 5, 6, 7, 8, 0};
inline constexpr int kZones[] = {1, 2, 3, 4, 5, 0};

}  // namespace bench
