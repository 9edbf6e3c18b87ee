#include "ui/LigneDExamen.h"

#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"

namespace ui {

LigneDExamen::LigneDExamen(const std::string& nom, Textes textes)
    : m_textes(std::move(textes)),
      m_bouton(bouton<BoutonAccent>(("cmd" + nom).c_str(), m_textes.commencer, m_textes.infobulle)),
      m_bilan(nomme((new Etiquette)->avecTon(Ton::Discret)->avecLignes(2), ("lblBilan" + nom).c_str())),
      m_perime(nomme((new Etiquette(m_textes.perime))->avecLignes(2), ("lblPerime" + nom).c_str())) {
    auto* lignes = colonne(0);
    lignes->addStretch();
    lignes->addWidget(m_bilan);
    lignes->addWidget(m_perime);
    lignes->addStretch();
    auto* boite = rangee({m_bouton}, kMoyen);
    boite->addLayout(lignes, 1);
    setLayout(boite);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(m_bouton, &QAbstractButton::clicked, this, &LigneDExamen::demande);
    rienDeLu();
}

void LigneDExamen::rienDeLu() {
    m_bouton->setText(m_textes.commencer);
    m_bouton->metPrincipal(true);
    m_bilan->hide();
    m_perime->hide();
}

void LigneDExamen::lu(const std::string& bilan, bool perime) {
    m_bouton->setText(m_textes.recommencer);
    m_bouton->metPrincipal(perime);
    const bool autre = m_bilan->isHidden() || m_bilan->text().toStdString() != bilan;
    m_bilan->setText(QString::fromStdString(bilan));
    m_bilan->show();
    if (autre) annonce(m_bilan);
    m_perime->setVisible(perime);
}

}  // namespace ui
