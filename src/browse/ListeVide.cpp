#include "browse/ListeVide.h"

#include "browse/AffichageApresModification.h"
#include "browse/ListesDeChoix.h"

namespace browse {

namespace {

bool aucunPersonnel(const EtatListe& liste) {
    return liste.Label9[1].Caption == "0 personnel";
}

}  // namespace

bool catalogueVide(const EtatListe& liste) {
    return liste.Label9[0].Caption == "0 titre";
}

std::optional<ListeVide> listeVide(const EtatListe& liste) {
    const int zone = liste.zoneDeLArbre;
    if (liste.TreeView1.Nodes.Count() > 0 || zone < 0 || zone > kZoneRecherche) return std::nullopt;
    if (catalogueVide(liste)) return ListeVide{zoneDe(kZoneTous).vide, false};
    const bool siens = zone > kZoneTous && zone < kZoneNonPossedes;
    return ListeVide{zoneDe(siens && aucunPersonnel(liste) ? kZoneMesFilms : zone).vide, true};
}

void cmdTousLesFilms_Click(const Contexte& c) {
    quitteZoneRecherche(c.liste, kZoneTous);
    listeTousLesFilms(c);
    c.demandes.focus = "TreeView1";
}

}  // namespace browse
