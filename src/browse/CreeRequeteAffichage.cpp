#include "browse/CreeRequeteAffichage.h"

#include "browse/TexteRequete.h"
#include "browse/ZoneRecherche.h"
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
        return nommeCeQuiEstMontre(m_liste);
    }
    m_base.liste = ouvre(construitRequete(zone, tri, condition));
    m_liste.triDeLArbre = tri;
    m_liste.zoneDeLArbre = condition.empty() ? zone : kZoneRecherche;
    try {
        m_afficheTitres(tri);
    } catch (const dao::ErreurDao& erreur) {
        m_dialogues.MsgBox(db::texteErreurRequete(db::NumeroErreur::CreeRequeteAffichage), dialogues::kCritique);
        throw db::RequeteEchouee(erreur);
    }
}

// The old listing goes only once the new one stands: the tree's nodes lead to it.
dao::Recordset CreeRequeteAffichage::ouvre(const std::string& requete) {
    try {
        return db::ouvreRequete(m_base.base, requete, db::NumeroErreur::CreeRequeteAffichage, m_dialogues);
    } catch (const db::RequeteEchouee&) {
        nommeCeQuiEstMontre(m_liste);
        throw;
    }
}

void CreeRequeteAffichage::apresReouverture(const std::function<void()>& relit) {
    const int avant = m_liste.TreeView1.Nodes.generation();
    const auto videLAncien = [&] {
        if (m_liste.TreeView1.Nodes.generation() == avant) m_afficheTitres.vide();
    };
    try {
        relit();
    } catch (...) {
        videLAncien();
        throw;
    }
    videLAncien();
}

void CreeRequeteAffichage::apresChangementDeBase() {
    quitteZoneRecherche(m_liste, m_liste.zoneRecherche);
    m_liste.critereRecherche.clear();
    apresReouverture([this] { (*this)(m_liste.ChoixZone.ListIndex, m_liste.ChoixTri.ListIndex); });
}

void CreeRequeteAffichage::oublieLeFilmCourant() {
    m_film = FilmCourant{};
    m_liste.noeudChoisi = -1;
    m_liste.cleCliquee.clear();
}

}  // namespace browse
