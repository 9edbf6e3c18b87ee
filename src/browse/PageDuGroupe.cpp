#include "browse/PageDuGroupe.h"

#include "browse/LigneDuNoeud.h"
#include "browse/ListesDeChoix.h"
#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "platform/dao/ErreurDao.h"
#include "util/Nombres.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace browse {

namespace {

// The chosen heading; 0 for the whole listing.
int groupeChoisi(const VueArbre& vue) {
    const int choisi = vue.SelectedItem;
    return choisi >= 1 && choisi <= vue.Nodes.Count() && vue.Nodes.estGroupe(choisi) ? choisi : 0;
}

// " Hors tri !" begins with one, to stand first.
std::string sansBlancDeTete(std::string_view texte) {
    return std::string(texte.substr(std::min(texte.find_first_not_of(' '), texte.size())));
}

std::string nomDeLaListe(const EtatListe& liste) {
    if (liste.zoneDeLArbre == kZoneRecherche) return kTexteZoneRecherche;
    return estUneZone(liste.zoneDeLArbre) ? zoneDe(liste.zoneDeLArbre).legende : "";
}

long compteFilms(const Arbre& arbre, int groupe) {
    if (groupe != 0) return static_cast<long>(arbre.enfants(groupe).size());
    long films = 0;
    for (const int noeud : arbre.enfants(0))
        films += arbre.estGroupe(noeud) ? compteFilms(arbre, noeud) : 1;
    return films;
}

// Where the context menu of the heading has its command too.
Renommage renommageDe(int tri) {
    if (tri == kTriGenre) return Renommage::Genre;
    return tri == kTriSupport ? Renommage::Support : Renommage::Aucun;
}

// The folder is settled by who shows the poster or writes one, not by a look at it.
std::optional<fichiers::Place> fichierSansRienFixer(const Contexte& c, const std::string& affiche) {
    const std::string avant = c.stockage.Text4.Text;
    const std::string dossier = db::dossierImages(c);
    c.stockage.Text4.Text = avant;
    const auto fichier = db::fichierAffiche(dossier, affiche);
    return fichier ? fichier : db::afficheVoisine(c.chemins.base, affiche);
}

SourceAffiche source(const Contexte& c, std::string affiche) {
    if (affiche.size() <= db::kTaillePrefixe) return {};
    if (!db::estDansLaBase(affiche)) {
        const auto fichier = fichierSansRienFixer(c, affiche);
        return {"", fichier ? fichier->chemin : ""};
    }
    if (affiche.size() > static_cast<std::size_t>(kTailleMaxApercu)) return {};
    return {affiche.erase(0, db::kTaillePrefixe), ""};
}

bool estUnFilm(const Arbre& arbre, int noeud) {
    return noeud >= 1 && noeud <= arbre.Count() && !arbre.estGroupe(noeud);
}

}  // namespace

PageDuGroupe pageDuGroupe(const EtatListe& liste) {
    const Arbre& arbre = liste.TreeView1.Nodes;
    const int groupe = groupeChoisi(liste.TreeView1);
    PageDuGroupe page;
    page.nom = groupe != 0 ? sansBlancDeTete(arbre.texteDuGroupe(groupe)) : nomDeLaListe(liste);
    page.groupe = groupe;
    page.films = compteFilms(arbre, groupe);
    page.compte = util::phraseCompte(page.films, "# film", "# films");
    if (groupe != 0) page.renommage = renommageDe(liste.triDeLArbre);
    return page;
}

SourceAffiche sourceDuNoeud(const Contexte& c, int noeud) {
    if (!estUnFilm(c.liste.TreeView1.Nodes, noeud)) return {};
    try {
        vaSurLaLigne(c, noeud);
        return source(c, c.base.liste.texte("Affiche"));
    } catch (const dao::ErreurDao&) {  // the film is gone, or the base
        return {};
    }
}

SourceAffiche sourceDuFilm(const Contexte& c, const db::CleFilm& film, long rang) {
    try {
        dao::Recordset ligne = c.base.base.OpenRecordset(db::enonceFilm(film));
        for (; rang > 0 && !ligne.Eof(); --rang)
            ligne.MoveNext();
        return ligne.Eof() ? SourceAffiche() : source(c, ligne.texte("Affiche"));
    } catch (const dao::ErreurDao&) {
        return {};
    }
}

std::optional<std::string> octetsDe(SourceAffiche source) {
    if (!source.octets.empty()) return std::move(source.octets);
    return source.fichier.empty() ? std::nullopt : fichiers::litSansLien(source.fichier, kTailleMaxApercu);
}

std::optional<std::string> afficheDuFilm(const Contexte& c, const db::CleFilm& film, long rang) {
    return octetsDe(sourceDuFilm(c, film, rang));
}

LegendeFilm legendeDuNoeud(const Contexte& c, int noeud) {
    if (!estUnFilm(c.liste.TreeView1.Nodes, noeud)) return {};
    try {
        vaSurLaLigne(c, noeud);
        return {c.base.liste.texte("Realisateur"), c.base.liste.texte("Annee")};
    } catch (const dao::ErreurDao&) {
        return {};
    }
}

}  // namespace browse
