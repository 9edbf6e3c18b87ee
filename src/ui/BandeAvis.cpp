#include "ui/BandeAvis.h"

#include "app/Commandes.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"

namespace ui {

BandeAvis::BandeAvis(const Atelier& atelier, QWidget* parent)
    : QWidget(parent), m_etat(atelier.etats().avis), m_texte(nomme(new Etiquette, "lblAvis")) {
    nomme(this, "frameAvis");
    seLitCommeGroupe(this, tr("Avis"));
    auto& etat = atelier.etats().avis;
    atelier.liaison.lie(etat.lblAvis, static_cast<Etiquette*>(m_texte));
    auto* ligne = rangee({filetVertical(), m_texte}, kGrand);
    for (std::size_t i = 0; i < etat.cmdAvis.size(); ++i) {
        auto* action = nomme(new BoutonLien, "cmdAvis", i);
        atelier.liaison.lie(etat.cmdAvis[i], action);
        atelier.auClic(action, app::cmdAvis_Click, static_cast<int>(i));
        ligne->addWidget(action);
    }
    ligne->addStretch(1);  // what it offers stands by what it says, however wide the window is
    auto* fermer = bouton<BoutonLien>("cmdFermerAvis", tr("Fermer"), tr("Retirer cette ligne"));
    atelier.auClic(fermer, app::cmdFermerAvis_Click);
    ligne->addWidget(fermer);
    ligne->setContentsMargins(kGrand, kSerre, kGrand, kSerre);
    setLayout(ligne);
    atelier.liaison.lie(etat.frameAvis, this);
    atelier.liaison.apresEcriture([this] { annonce(); });
}

void BandeAvis::annonce() {
    if (m_annonce == m_etat.numero) return;
    m_annonce = m_etat.numero;
    ui::annonce(static_cast<QLabel*>(m_texte));
}

}  // namespace ui
