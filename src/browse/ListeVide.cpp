#include "browse/ListeVide.h"

#include "browse/AffichageApresModification.h"
#include "browse/ListesDeChoix.h"

#include <array>

namespace browse {

namespace {

// In the order of the zones, then of a search.
constexpr std::array<const char*, kZones.size() + 1> kRaisons{
    "Aucun film n'est déclaré comme étant en votre possession.",
    "La base ne contient aucun film.",
    "Aucun de vos films n'est disponible : ils sont tous prêtés.",
    "Aucun de vos films n'est prêté.",
    "Aucun de vos films n'est réservé.",
    "Vous possédez tous les films de la base.",
    "Aucun film ne répond à cette recherche.",
};

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
    if (catalogueVide(liste)) return ListeVide{kRaisons[kZoneTous], false};
    const bool siens = zone > kZoneTous && zone < kZoneNonPossedes;
    return ListeVide{kRaisons.at(static_cast<std::size_t>(siens && aucunPersonnel(liste) ? kZoneMesFilms : zone)),
                     true};
}

void cmdTousLesFilms_Click(const Contexte& c) {
    quitteZoneRecherche(c.liste, kZoneTous);
    listeTousLesFilms(c);
    c.demandes.focus = "TreeView1";
}

}  // namespace browse
