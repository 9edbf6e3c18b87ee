#include "ui/FinDemandee.h"

#include <QApplication>
#include <QSocketNotifier>
#include <cstdlib>

namespace ui {

namespace {

Programme* g_programme = nullptr;

// Qt leaves by exit() when the screen is gone.
void aLaSortie() {
    if (g_programme) g_programme->session().Form_Unload();
}

}  // namespace

FinDemandee::FinDemandee(Programme& programme) : m_programme(programme) {
    if (m_signaux.descripteur() >= 0) {
        auto* veilleur = new QSocketNotifier(m_signaux.descripteur(), QSocketNotifier::Read, this);
        connect(veilleur, &QSocketNotifier::activated, this, [this] {
            if (m_signaux.recue()) m_programme.termine();
        });
    }
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this] { m_programme.termine(); }, Qt::DirectConnection);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { m_programme.session().Form_Unload(); });
    g_programme = &programme;
    [[maybe_unused]] static const int inscrite = std::atexit(aLaSortie);
}

FinDemandee::~FinDemandee() {
    g_programme = nullptr;
}

}  // namespace ui
