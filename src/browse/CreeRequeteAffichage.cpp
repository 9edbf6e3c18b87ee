#include "browse/CreeRequeteAffichage.h"

#include "browse/AfficheTitres.h"
#include "browse/ListesDeChoix.h"
#include "browse/MarquesFilm.h"
#include "browse/TexteRequete.h"
#include "db/Requete.h"

#include <utility>

namespace browse {

namespace {

constexpr const char* kTriParSupportImpossible =
    "Le tri par support n'est pas possible pour ce cas-là : il faut que la recherche soit sur les titres possédés (Mes "
    "Films).";

// The old listing goes only once the new one stands: the tree's nodes lead to it.
dao::Recordset ouvre(const Contexte& c, const std::string& requete) {
    try {
        return db::rouvreRequete(c, requete, db::NumeroErreur::CreeRequeteAffichage, kPorteesParLaListe, c.base.liste);
    } catch (const db::RequeteEchouee&) {
        nommeCeQuiEstMontre(c.liste);
        throw;
    }
}

void oublieLeFilmCourant(const Contexte& c) {
    c.film = FilmCourant{};
    c.liste.noeudChoisi = -1;
    c.liste.cleCliquee.clear();
}

}  // namespace

void CreeRequeteAffichage(const Contexte& c, int zone, int tri, const std::string& condition) {
    oublieLeFilmCourant(c);
    if (zone == -1) return;
    if (zone == kZoneRecherche) zone = c.liste.zoneRecherche;
    if (!estUnTri(tri)) return;
    if (!seTrie(zone, tri)) {
        c.dialogues.MsgBox(kTriParSupportImpossible, dialogues::kExclamation);
        return nommeCeQuiEstMontre(c.liste);
    }
    dao::Recordset liste = ouvre(c, construitRequete(zone, tri, condition));
    try {
        AfficheTitres(c, std::move(liste), tri);
        c.liste.triDeLArbre = tri;
        c.liste.zoneDeLArbre = condition.empty() ? zone : kZoneRecherche;
    } catch (const dao::ErreurDao& erreur) {
        nommeCeQuiEstMontre(c.liste);
        c.dialogues.MsgBox(db::texteErreurRequete(db::NumeroErreur::CreeRequeteAffichage), dialogues::kCritique);
        throw db::RequeteEchouee(erreur);
    }
}

void apresReouverture(const Contexte& c, const std::function<void()>& relit) {
    const Arbre& arbre = c.liste.TreeView1.Nodes;
    const int avant = arbre.generation();
    const auto videLAncien = [&] {
        if (arbre.generation() == avant) videLesTitres(c);
    };
    try {
        relit();
    } catch (...) {
        videLAncien();
        throw;
    }
    videLAncien();
}

void apresChangementDeBase(const Contexte& c) {
    quitteZoneRecherche(c.liste, c.liste.zoneRecherche);
    c.liste.critereRecherche.clear();
    apresReouverture(c, [&c] { CreeRequeteAffichage(c, c.liste.ChoixZone.ListIndex, c.liste.ChoixTri.ListIndex); });
}

void puisVersLaListe(const Contexte& c, const std::function<void()>& commande) {
    const Arbre& arbre = c.liste.TreeView1.Nodes;
    const int avant = arbre.generation();
    commande();
    if (arbre.generation() != avant) c.demandes.focus = "TreeView1";
}

}  // namespace browse
