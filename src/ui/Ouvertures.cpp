#include "ui/Ouvertures.h"

#include "app/Ouvertures.h"

#include <QApplication>
#include <QFile>

namespace ui {

namespace {

constexpr int kAttente = 250;  // milliseconds

}  // namespace

Ouvertures::Ouvertures(const Atelier& atelier, QObject* parent) : QObject(parent), m_atelier(atelier) {
    const auto dossier = [](const app::Contexte& c) { return app::dossierDesDemandes(c.chemins.dossier); };
    m_veilleur.addPath(QFile::decodeName(m_atelier.session.regarde(dossier).c_str()));
    m_attente.setSingleShot(true);
    m_attente.setInterval(kAttente);
    connect(&m_veilleur, &QFileSystemWatcher::directoryChanged, this, &Ouvertures::sers);
    connect(&m_attente, &QTimer::timeout, this, &Ouvertures::sers);
    m_attente.start(0);  // what came before
}

bool Ouvertures::peutServir() const {
    return !m_atelier.commande.enCours() && !QApplication::activeModalWidget() && !QApplication::activePopupWidget();
}

void Ouvertures::sers() {
    if (m_atelier.commande.finie() || !m_atelier.session.regarde(app::ouvertureDemandee)) return;
    if (peutServir())
        m_atelier.execute(app::ouvreCeQuiEstDemande);
    else
        m_attente.start(kAttente);
}

}  // namespace ui
