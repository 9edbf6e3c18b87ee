#include "edit/cmdSupprTitresSelect_Click.h"

#include "browse/AffichageApresModification.h"
#include "browse/AfficheNbTitres.h"
#include "browse/LigneDuNoeud.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "db/Sauvegardes.h"
#include "edit/LignePossession.h"
#include "edit/TravailParLots.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

namespace edit {

namespace {

std::vector<int> filmsCoches(const browse::VueArbre& vue) {
    std::vector<int> noeuds;
    for (const int noeud : vue.coches)
        if (noeud >= 1 && noeud <= vue.Nodes.Count() && !vue.Nodes.estGroupe(noeud)) noeuds.push_back(noeud);
    return noeuds;
}

// All of them before the first deletion: of two films of the same names, the one deleted for the other leaves its slot
// unreadable. A film that is gone already is passed over.
std::vector<db::CleFilm> lis(const Contexte& c, const std::vector<int>& noeuds) {
    const dao::Souffle souffle = db::souffle(c);
    std::vector<db::CleFilm> films;
    for (const int noeud : noeuds) {
        souffle();
        if (auto film = filmDuNoeud(c, noeud)) films.push_back(std::move(*film));
    }
    return films;
}

// Films go with their posters: as many as their share of the file, whoever has the large ones.
std::int64_t octetsDe(const Contexte& c, std::ptrdiff_t films) {
    const std::int64_t base = fichiers::longueur(c.base.base.nom());
    return base / std::max(1L, c.base.films.RecordCount()) * films;
}

struct Supprimes {
    long films = 0;
    bool possessions = false;
};

Supprimes supprime(const Contexte& c, const std::vector<db::CleFilm>& films) {
    const bool possede = c.fiche.Option1[1].Value;
    Supprimes supprimes;
    TravailParLots travail(c, db::NumeroErreur::cmdSupprTitresSelect, std::ssize(films));
    travail.execute(std::ssize(films), [&](long rang) -> TravailParLots::Pas {
        const db::CleFilm& film = films[rang];
        if (possede && supprimePossession(c.base.base, film)) supprimes.possessions = true;
        dao::Recordset trouves = travail.ouvre(db::enonceFilmModifie(film));
        if (trouves.Eof()) return {};
        trouves.Delete();
        return {1};
    });
    travail.termine();
    supprimes.films = travail.faits();
    return supprimes;
}

// The panel stays: the user may have more to tick.
void montre(const Contexte& c, const Supprimes& supprimes) {
    c.liste.Frame1.Caption = "Liste des titres";
    browse::AfficheNbTitres(c);
    browse::AffichageApresModification(c);
    if (supprimes.possessions) browse::RaffraichitBoitesDeroulantes(c);
    c.dialogues.MsgBox(util::phraseCompte(supprimes.films, "# titre supprimé.", "# titres supprimés."),
                       dialogues::kInformation);
}

}  // namespace

void cmdMultiSuppress_Click(const Contexte& c) {
    c.panneaux.montre(c.panneaux.frameMultiSuppression);
    c.demandes.focus = c.multiSuppression.Option4[1].Value ? "Option4_1" : "Option4_0";
}

void rangeMultiSuppression(const Contexte& c) {
    if (!c.liste.TreeView1.Checkboxes) return;
    ecran::choisit(c.multiSuppression.Option4, 0);
    Option4_Click(c);
}

void Option4_Click(const Contexte& c) {
    const bool active = c.multiSuppression.Option4[1].Value;
    c.liste.TreeView1.Checkboxes = active;
    c.multiSuppression.cmdSupprTitresSelect.Visible = active;
}

void montreCoches(const Contexte& c, std::ptrdiff_t masques) {
    ecran::Etiquette& etiquette = c.multiSuppression.lblCoches;
    etiquette.Visible = c.liste.TreeView1.Checkboxes;
    if (!etiquette.Visible) return;
    etiquette.Caption =
        util::phraseCompte(std::ssize(filmsCoches(c.liste.TreeView1)), "# film coché", "# films cochés");
    if (masques > 0)
        etiquette.Caption +=
            util::phraseCompte(masques, ", dont # masqué par le filtre", ", dont # masqués par le filtre");
}

void cmdSupprTitresSelect_Click(const Contexte& c) {
    const std::vector<int> noeuds = filmsCoches(c.liste.TreeView1);
    if (noeuds.empty()) {
        c.dialogues.MsgBox("Aucun film n'a été coché !", dialogues::kExclamation);
        return;
    }
    if (c.dialogues.MsgBox(questionSuppression(noeuds.size()), dialogues::kQuestion) != dialogues::kOui) return;
    if (!db::sauvegardeAvant(c, db::Avant::Suppression, octetsDe(c, std::ssize(noeuds)))) return;
    const Supprimes supprimes = supprime(c, lis(c, noeuds));
    c.annulations.nomme("suppression de " + util::phraseCompte(supprimes.films, "# film", "# films"),
                        util::phraseCompte(supprimes.films, "# film supprimé.", "# films supprimés."));
    montre(c, supprimes);
}

std::string questionSuppression(std::size_t nombre) {
    if (nombre == 1) return "Voulez-vous vraiment supprimer ce titre ?";
    return "Voulez-vous vraiment supprimer ces " + std::to_string(nombre) + " titres ?";
}

}  // namespace edit
