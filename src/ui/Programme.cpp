#include "ui/Programme.h"

#include "platform/systeme/FinDuProgramme.h"

#include <QCoreApplication>
#include <utility>

namespace ui {

namespace {

template <typename Service>
Service& choisi(Service* deTest, Service& reel) {
    return deTest ? *deTest : reel;
}

}  // namespace

Programme::Programme(const std::string& dossier, const Services& services)
    : m_boites(m_liaison),
      m_ecran(m_liaison, services.montre),
      m_session(app::Machine{choisi<dialogues::Dialogues>(services.dialogues, m_boites), m_ecran, m_images,
                             choisi<systeme::Horloge>(services.horloge, m_horloge),
                             choisi<systeme::Documents>(services.documents, m_documents),
                             choisi<systeme::Programmes>(services.programmes, m_programmes),
                             choisi<systeme::Volumes>(services.volumes, m_volumes), dossier, services.montre}),
      m_commande(m_liaison, choisi<dialogues::Dialogues>(services.dialogues, m_boites)),
      m_fenetre(Atelier{m_session, m_liaison, m_commande, m_images, m_ecran}) {
    m_boites.metParent(&m_fenetre);
    m_ecran.patientePendant([this] { return m_commande.enCours(); });
    QObject::connect(&m_commande, &Commande::finDuProgramme, &m_fenetre, [this] {
        m_fenetre.hide();
        QCoreApplication::quit();
    });
    QObject::connect(&m_commande, &Commande::terminee, &m_fenetre, [this] {
        if (m_termine) finis();
    });
    QObject::connect(&m_commande, &Commande::lectureFinie, &m_fenetre, [this] {
        if (m_termine) finis();
    });
    QObject::connect(&m_ecran, &EcranQt::travailCommence, &m_fenetre, [this] { montreTravail(); });
}

void Programme::montreTravail() {
    if (m_fenetre.isVisible()) return;
    if (!m_fenetreTravail)
        m_fenetreTravail =
            std::make_unique<FenetreTravail>(Atelier{m_session, m_liaison, m_commande, m_images, m_ecran});
    m_fenetreTravail->montre();
}

bool Programme::demarre() {
    if (m_commande.execute([this] { m_session.Form_Load(); }) != Commande::Issue::Faite || m_termine) return false;
    m_fenetre.ouvre();
    return true;
}

void Programme::termine() {
    if (std::exchange(m_termine, true)) return;
    m_ecran.arretePourDeBon();
    m_boites.refuse();
    if (!m_commande.enCours()) finis();
}

void Programme::finis() {
    m_commande.execute([this] {
        m_session.Form_Unload();
        throw systeme::FinDuProgramme{};
    });
}

}  // namespace ui
