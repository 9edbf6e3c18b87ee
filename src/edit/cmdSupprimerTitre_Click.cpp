#include "edit/cmdSupprimerTitre_Click.h"

#include "browse/AfficheAccueil.h"
#include "browse/AfficheNbTitres.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "browse/RetireNoeud.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/LignePossession.h"
#include "edit/TitreCite.h"
#include "edit/cmdSupprTitresSelect_Click.h"

#include <charconv>

namespace edit {

namespace {

struct Supprimes {
    bool film = false;
    bool possession = false;
};

// The film's statement is opened first: its failure shows a box, which has no place in a transaction.
Supprimes supprime(const Contexte& c) {
    Supprimes supprimes;
    dao::Recordset films = db::ouvreRequete(c, db::enonceFilmModifie(c.film), db::NumeroErreur::cmdSupprimerTitre);
    dao::Transaction ensemble(c.base.base);
    if (c.fiche.Option1[1].Value) supprimes.possession = supprimePossession(c.base.base, c.film);
    supprimes.film = !films.Eof();
    if (supprimes.film) films.Delete();
    ensemble.confirme();
    return supprimes;
}

// The film's own node: a tick moves the highlight without showing a sheet.
void retireDeLArbre(const Contexte& c) {
    std::uint32_t position = 0;
    std::from_chars(c.film.cle.data() + 1, c.film.cle.data() + c.film.cle.size(), position);
    const int noeud = c.liste.TreeView1.Nodes.noeudDuFilm(position);
    if (noeud != 0) browse::retireNoeud(c.liste, noeud);
}

}  // namespace

void cmdSupprimerTitre_Click(const Contexte& c) {
    if (!c.film.estUnFilm()) return;
    if (c.dialogues.MsgBox(questionSuppression(1), dialogues::kQuestion) != dialogues::kOui) return;
    const Supprimes supprimes = supprime(c);
    c.annulations.nomme("suppression de " + titreCite(c.film.titre), titreCite(c.film.titre) + " supprimé.");
    if (supprimes.film)
        retireDeLArbre(c);
    else
        c.dialogues.MsgBox("Titre non trouvé !", dialogues::kExclamation);
    c.film = {};
    c.liste.noeudChoisi = -1;
    c.liste.Frame1.Caption = "Liste des titres";
    browse::AfficheAccueil(c);
    browse::AfficheNbTitres(c);
    if (supprimes.possession) browse::RaffraichitBoitesDeroulantes(c);
}

}  // namespace edit
