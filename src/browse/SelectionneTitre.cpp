#include "browse/SelectionneTitre.h"

#include "browse/TreeView1.h"
#include "db/Requete.h"
#include "platform/dao/Comparaison.h"

#include <cstdint>
#include <functional>
#include <string>

namespace browse {

namespace {

using Convient = std::function<bool(std::string_view)>;

Convient memesOctets(const std::string& voulu) {
    return [&voulu](std::string_view texte) { return texte == voulu; };
}

// The wanted text's key is worked out once, whatever its length.
Convient egalPourLaBase(const std::string& voulu) {
    return [cle = dao::cleDeComparaison(voulu)](std::string_view texte) { return dao::cleDeComparaison(texte) == cle; };
}

// The position of the first such film in the listing, 0 when it has none.
std::uint32_t cherche(const Contexte& c, const Convient& titreConvient, const Convient& realisateurConvient) {
    dao::Recordset& liste = c.base.liste;
    const dao::Souffle souffle = db::souffle(c);
    if (liste.RecordCount() < 1) return 0;
    const dao::Colonne titres = liste.colonne("Titre"), realisateurs = liste.colonne("Realisateur");
    dao::Cadence cadence(souffle);
    std::uint32_t position = 0;
    for (liste.MoveFirst(); !liste.Eof(); liste.MoveNext()) {
        cadence();
        ++position;
        if (titreConvient(liste.vue(titres)) && realisateurConvient(liste.vue(realisateurs))) return position;
    }
    return 0;
}

}  // namespace

void SelectionneTitre(const Contexte& c, db::CleFilm film) {
    if (const int noeud = noeudDuFilm(c, film); noeud != 0) TreeView1_NodeClick(c, noeud);
}

// Nearly always the very texts are listed, and comparing bytes over a whole collection takes no time.
int noeudDuFilm(const Contexte& c, const db::CleFilm& film) {
    std::uint32_t position = cherche(c, memesOctets(film.titre), memesOctets(film.realisateur));
    if (position == 0) position = cherche(c, egalPourLaBase(film.titre), egalPourLaBase(film.realisateur));
    return position == 0 ? 0 : c.liste.TreeView1.Nodes.noeudDuFilm(position);
}

void SelectionneGroupe(const Contexte& c, std::string_view valeur) {
    const Arbre& arbre = c.liste.TreeView1.Nodes;
    for (const std::int32_t racine : arbre.enfants(0)) {
        if (!arbre.estGroupe(racine) || !dao::egalJet(arbre.texteDuGroupe(racine), valeur)) continue;
        TreeView1_NodeClick(c, racine);
        c.liste.TreeView1.aOuvrir = racine;
        return;
    }
}

}  // namespace browse
