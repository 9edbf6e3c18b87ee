#include "browse/SuitesDeLaBase.h"

#include "browse/AffichageApresModification.h"
#include "browse/AfficheAccueil.h"
#include "browse/AfficheNbTitres.h"
#include "browse/CreeRequeteAffichage.h"
#include "browse/RaffraichitBoitesDeroulantes.h"

namespace browse {

void SuitesDeLaBase::AfficheAccueil() {
    browse::AfficheAccueil(m_c);
}

void SuitesDeLaBase::reconstruitListe() {
    apresChangementDeBase(m_c);
}

void SuitesDeLaBase::RaffraichitBoitesDeroulantes() {
    browse::RaffraichitBoitesDeroulantes(m_c);
}

void SuitesDeLaBase::AfficheNbTitres() {
    browse::AfficheNbTitres(m_c);
}

void SuitesDeLaBase::AffichageApresModification() {
    const EtatPanneaux panneaux = m_c.panneaux;
    apresReouverture(m_c, [this] { browse::AffichageApresModification(m_c); });
    m_c.panneaux = panneaux;
}

}  // namespace browse
