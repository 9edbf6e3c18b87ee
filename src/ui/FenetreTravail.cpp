#include "ui/FenetreTravail.h"

#include "ui/BandeTravail.h"
#include "ui/Composition.h"
#include "ui/EcranQt.h"
#include "ui/Lecteur.h"

#include <QCloseEvent>
#include <QScreen>

namespace ui {

FenetreTravail::FenetreTravail(const Atelier& atelier) : m_ecran(atelier.ecran), m_bande(new BandeTravail(atelier)) {
    setObjectName(QStringLiteral("frmTravail"));
    setWindowTitle(QStringLiteral("Ambrelis"));
    seLit(this, {.role = QAccessible::Dialog});
    auto* boite = colonne(0);
    boite->setContentsMargins(0, 0, 0, 0);
    boite->addWidget(m_bande);
    setLayout(boite);
    setMinimumWidth(620);
    connect(&m_ecran, &EcranQt::travailFini, this, &QWidget::hide);
}

void FenetreTravail::montre() {
    m_bande->montre();
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    show();
}

void FenetreTravail::closeEvent(QCloseEvent* evenement) {
    evenement->ignore();
    m_ecran.demandeArret();
}

}  // namespace ui
