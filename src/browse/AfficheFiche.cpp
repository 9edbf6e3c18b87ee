#include "browse/AfficheFiche.h"

#include "browse/AfficheAccueil.h"
#include "browse/AffichePossession.h"
#include "browse/AfficheTemporaire.h"
#include "browse/AfficheVolet.h"
#include "browse/CacheFiche.h"
#include "browse/LigneDuNoeud.h"
#include "browse/ModifieNoteFilm.h"
#include "db/Affiches.h"
#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "db/TitreCite.h"
#include "util/Nombres.h"
#include "util/Texte.h"

namespace browse {

namespace {

constexpr double kNoteMax = 10, kAncienneNoteMax = 100;

int depuisAncienneNote(double note) {
    return util::arrondiPair(note / 10 - 1);
}

// No film is current, so that no command reaches the one shown before.
void abandonne(const Contexte& c) {
    c.film = FilmCourant{};
    c.liste.noeudChoisi = -1;
    AfficheAccueil(c);
}

void videImages(const Contexte& c) {
    c.images.vide();
    c.fiche.Image1.vide = true;
    effaceAfficheTemporaire(c);
}

void remplitGeneralites(EtatFiche& fiche, const db::CleFilm& cle, const dao::Recordset& film) {
    fiche.Label1[0].Caption = cle.titre;
    fiche.Label1[1].Caption = fiche.lblRealisateur.Caption = "de " + cle.realisateur;
    fiche.Label1[2].Caption = film.texte("Production") + " (" + film.texte("Annee") + ")";
    fiche.Label1[4].Caption = film.texte("Origine");
    fiche.Label1[5].Caption = film.texte("Duree");
    fiche.Label1[6].Caption = film.texte("Genre");
    fiche.lblInfosActeurs.Caption = util::remplace(film.texte("Acteurs"), ";", "\r\n");
    fiche.Text1.Text = film.texte("Resume");
    fiche.captionAffiche = cle.titre;
}

// A rating is stored with the first film of that name, which may be another one with a rating of its own.
bool estNoteeAinsi(const Contexte& c, double note) {
    const dao::Recordset films = db::ouvreRequete(c, db::enonceFilmNote(c.film), db::NumeroErreur::ModifieNoteFilm);
    return films.Eof() || films.valeur("Note").nombre() == note;
}

// A base that cannot be written, locked or on a full disk, is looked at all the same: the next look does it.
void ramene(const Contexte& c, double note) {
    const std::string titre = db::titreCite(c.film.titre);
    try {
        if (!estNoteeAinsi(c, note)) return;
        ModifieNoteFilm(c, depuisAncienneNote(note));
        c.annulations.nomme("passage sur 10 de la note de " + titre, titre + " : sa note, sur 100, est passée sur 10.");
    } catch (const dao::ErreurDao& erreur) {
        c.avis.montre("La note de " + titre + ", sur 100, n'a pas pu passer sur 10 : " + erreur.description);
    }
}

// Ratings were once out of 100: one met here is brought to the present scale, in the base too.
void remplitNote(const Contexte& c) {
    const double note = c.base.liste.valeur("Note").nombre();
    const bool ancienne = note > kNoteMax && note <= kAncienneNoteMax;
    montreNote(c.fiche, ancienne ? depuisAncienneNote(note) : note);
    if (ancienne) ramene(c, note);
}

void remplit(const Contexte& c, int noeud) {
    CacheFiche(c.panneaux);
    videImages(c);
    vaSurLaLigne(c, noeud);
    const dao::Recordset& liste = c.base.liste;
    const std::string affiche = liste.texte("Affiche");
    c.film.titre = liste.texte("Titre");
    c.film.realisateur = liste.texte("Realisateur");
    c.film.affiche = db::estDansLaBase(affiche) ? "STO" : affiche;
    remplitGeneralites(c.fiche, c.film, liste);
    remplitNote(c);
    prepareAfficheTemporaire(c, affiche);
    AffichePossession(c);
    c.panneaux.montre(c.panneaux.frameFiche);
    AfficheVolet(c, c.fiche.frameGeneralites[0].Visible ? kVoletGeneralites : kVoletAutresInfos);
}

}  // namespace

void AfficheFiche(const Contexte& c) {
    const Arbre& arbre = c.liste.TreeView1.Nodes;
    const int noeud = c.liste.TreeView1.SelectedItem;
    c.film = FilmCourant{};
    if (noeud < 1 || noeud > arbre.Count()) return AfficheAccueil(c);
    c.film.cle = arbre.Key(noeud);
    if (arbre.estGroupe(noeud)) return AfficheAccueil(c);
    try {
        remplit(c, noeud);
    } catch (const dao::ErreurDao& erreur) {
        abandonne(c);
        if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
        c.avis.montre(db::titreCite(std::string(arbre.Text(noeud))) + " n'est plus dans la base.");
    } catch (...) {  // a sheet that is not whole is nobody's
        abandonne(c);
        throw;
    }
}

}  // namespace browse
