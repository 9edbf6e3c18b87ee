#include "browse/CreeRequeteAffichage.h"

#include "browse/TexteRequete.h"
#include "db/Requete.h"

namespace browse {

namespace {

constexpr const char* kTriParSupportImpossible =
    "Le tri par support n'est pas possible pour ce cas-là : il faut que la recherche soit sur les titres possédés (Mes "
    "Films).";

}  // namespace

void CreeRequeteAffichage::operator()(int zone, int tri, const std::string& condition) {
    oublieLeFilmCourant();
    if (zone == -1) return;
    if (zone == kZoneRecherche) zone = m_liste.zoneRecherche;
    if (tri < kTriTitre1 || tri > kTriSupport) return;
    if (tri == kTriSupport && (zone == kZoneTous || zone == kZoneNonPossedes)) {
        m_dialogues.MsgBox(kTriParSupportImpossible, dialogues::kExclamation);
        return;
    }
    // The old listing goes only once the new one stands: the tree's nodes lead to it.
    m_base.liste = db::ouvreRequete(m_base.base, construitRequete(zone, tri, condition),
                                    db::NumeroErreur::CreeRequeteAffichage, m_dialogues);
    m_liste.triDeLArbre = tri;
    try {
        m_afficheTitres(tri);
    } catch (const dao::ErreurDao&) {
        m_dialogues.MsgBox(db::texteErreurRequete(db::NumeroErreur::CreeRequeteAffichage), dialogues::kCritique);
        throw db::RequeteEchouee{};
    }
}

void CreeRequeteAffichage::apresChangementDeBase() {
    m_afficheTitres.vide();
    (*this)(m_liste.ChoixZone.ListIndex, m_liste.ChoixTri.ListIndex);
}

void CreeRequeteAffichage::oublieLeFilmCourant() {
    m_film = FilmCourant{};
    m_liste.noeudChoisi = -1;
    m_liste.cleCliquee.clear();
}

}  // namespace browse
