#include "ui/BandeTravail.h"

#include "ui/Composition.h"
#include "ui/EcranQt.h"
#include "ui/Lecteur.h"

#include <QApplication>
#include <QPointer>
#include <QProgressBar>

namespace ui {

BandeTravail::BandeTravail(const Atelier& atelier, QWidget* parent)
    : QWidget(parent),
      m_texte(new Etiquette),
      m_progression(nomme(new QProgressBar, "ProgressBar3")),
      m_annuler(bouton("cmdAnnuler", tr("Annuler"))) {
    m_annuler->setToolTip(tr("Arrêter après l'élément en cours"));
    m_progression->setAccessibleName(tr("Avancement"));
    m_progression->setTextVisible(false);
    m_progression->setFixedSize(220, 8);
    auto* ligne = rangee({filetVertical(), m_texte}, kGrand);
    ligne->setContentsMargins(kGrand, kSerre, kGrand, kSerre);
    ligne->setStretch(1, 1);
    ligne->addWidget(m_progression);
    ligne->addWidget(m_annuler);
    setLayout(ligne);
    hide();

    EcranQt* ecran = &atelier.ecran;
    ecran->laissePasser(m_annuler);
    connect(m_annuler, &QPushButton::clicked, ecran, &EcranQt::demandeArret);
    connect(ecran, &EcranQt::travailCommence, this, &BandeTravail::montre);
    connect(ecran, &EcranQt::travailFini, this, &QWidget::hide);
    connect(m_annuler, &QPushButton::clicked, m_annuler, [this] { m_annuler->setEnabled(false); });
    atelier.liaison.apresEcriture([this, etats = &atelier.etats()] { suis(*etats); });
}

void BandeTravail::montre() {
    m_annuler->setEnabled(true);
    m_aAnnoncer = true;
    show();
    m_annuler->setFocus();
}

void BandeTravail::suis(const app::Etats& etats) {
    if (!isVisible()) return;
    const bool ajout = etats.ajout.ProgressBar1.Visible, autre = etats.travaux.ProgressBar3.Visible;
    const ecran::Progression& progression = ajout   ? etats.ajout.ProgressBar1
                                            : autre ? etats.travaux.ProgressBar3
                                                    : etats.travaux.ProgressBar2;
    const std::string& texte = ajout ? etats.ajout.lblProgression.Caption : etats.travaux.lblTravail.Caption;
    const bool ailleurs = ajout ? seVoitDansSonPanneau("ProgressBar1") : !autre && seVoitDansSonPanneau("ProgressBar2");
    m_texte->setText(ailleurs ? tr("Travail en cours…") : QString::fromStdString(texte));
    m_progression->setVisible(!ailleurs);
    if (m_aAnnoncer && !m_texte->text().isEmpty()) {
        m_aAnnoncer = false;
        annonce(m_texte);
    }
    m_progression->setRange(0, static_cast<int>(progression.Max));
    m_progression->setValue(static_cast<int>(progression.Value));
}

// A panel may be scrolled away from its bar.
bool BandeTravail::seVoitDansSonPanneau(const char* barre) const {
    const auto* widget = window()->findChild<QProgressBar*>(QLatin1String(barre));
    return widget && widget->isVisible() && !widget->visibleRegion().isEmpty();
}

}  // namespace ui
