#include "app/Filtre.h"

#include "edit/cmdSupprTitresSelect_Click.h"

#include <algorithm>
#include <new>
#include <utility>

namespace app {

namespace {

std::optional<std::vector<std::int32_t>> filtreLaListe(const Contexte& c, ensemble::EtatFiltre& filtre) {
    if (filtre.saisie.empty() && !filtre.titres.actif()) return std::nullopt;
    if (filtre.titres.tarderait(c)) {  // the window reads it first, then asks again
        filtre.titres.perime();
        return std::vector<std::int32_t>();
    }
    filtre.titres.filtre(c, filtre.saisie);
    if (!filtre.titres.estLimite()) filtre.libelle.clear();
    if (!filtre.titres.actif()) return std::nullopt;
    return filtre.titres.noeudsVus(c.liste.TreeView1.Nodes);
}

}  // namespace

std::optional<std::vector<std::int32_t>> noeudsFiltres(const Contexte& c) {
    ensemble::EtatFiltre& filtre = c.etats.filtre;
    std::optional<std::vector<std::int32_t>> noeuds;
    filtre.echec.clear();
    try {
        noeuds = filtreLaListe(c, filtre);
    } catch (const dao::ErreurDao& erreur) {
        filtre.echec = erreur.description;
    } catch (const std::bad_alloc&) {
        filtre.titres = {};
        filtre.echec = "la mémoire manque.";
    }
    montreCoches(c);
    return noeuds;
}

std::string raisonDuFiltreVide(const ensemble::EtatFiltre& filtre) {
    const std::string cite = "« " + filtre.saisie + " »", limite = "« " + filtre.libelle + " »";
    if (filtre.saisie.empty()) return "Aucun film de " + limite + " n’est dans cette liste.";
    return (filtre.titres.estLimite() ? "Aucun film de " + limite : std::string("Aucun film de cette liste")) +
           " ne contient " + cite + ".";
}

bool filtreTarderait(const Contexte& c) {
    return c.etats.filtre.titres.tarderait(c);
}

bool prepareLeFiltre(const Contexte& c, std::chrono::milliseconds duree) {
    try {
        return c.etats.filtre.titres.prepare(c, duree);
    } catch (const dao::ErreurDao&) {  // told where it is asked for
        return true;
    } catch (const std::bad_alloc&) {
        c.etats.filtre.titres = {};
        return true;
    }
}

void montreSeulement(const Contexte& c, const std::vector<std::uint32_t>& lignes, const std::string& libelle) {
    c.etats.filtre.titres.limite(c, lignes);
    c.etats.filtre.libelle = libelle;
    c.demandes.focus = "TreeView1";
}

void leveLaLimite(const Contexte& c) {
    c.etats.filtre.titres.leveLaLimite();
    c.etats.filtre.libelle.clear();
}

void suisLesRecherches(const Contexte& c) {
    ensemble::EtatFiltre& filtre = c.etats.filtre;
    if (std::exchange(filtre.recherches, c.liste.recherches) == c.liste.recherches) return;
    filtre.saisie.clear();
    leveLaLimite(c);
}

void montreCoches(const Contexte& c) {
    const browse::VueArbre& vue = c.liste.TreeView1;
    const auto masques = std::ranges::count_if(vue.coches, [&](int noeud) {
        return noeud <= vue.Nodes.Count() && !c.etats.filtre.titres.estVu(vue.Nodes, noeud);
    });
    edit::montreCoches(c, masques);
}

}  // namespace app
