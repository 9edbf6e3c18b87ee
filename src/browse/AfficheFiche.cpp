#include "browse/AfficheFiche.h"

#include "browse/CacheFiche.h"
#include "db/Affiches.h"
#include "db/Requete.h"
#include "util/Nombres.h"
#include "util/Texte.h"

namespace browse {

namespace {

constexpr double kNoteMax = 10, kAncienneNoteMax = 100;

int depuisAncienneNote(double note) {
    return util::arrondiPair(note / 10 - 1);
}

}  // namespace

void AfficheFiche::operator()() {
    const Arbre& arbre = m_liste.TreeView1.Nodes;
    const int noeud = m_liste.TreeView1.SelectedItem;
    m_film = FilmCourant{};
    if (noeud < 1 || noeud > arbre.Count()) return m_afficheAccueil();
    m_film.cle = arbre.Key(noeud);
    if (arbre.estGroupe(noeud)) return m_afficheAccueil();
    try {
        remplit(arbre.position(noeud));
    } catch (const dao::ErreurDao& erreur) {
        abandonne();
        if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
    } catch (const db::RequeteEchouee&) {
        abandonne();
        throw;
    }
}

// No film is current, so that no command reaches the one shown before.
void AfficheFiche::abandonne() {
    m_film = FilmCourant{};
    m_liste.noeudChoisi = -1;
    m_afficheAccueil();
}

void AfficheFiche::remplit(std::uint32_t position) {
    CacheFiche(m_panneaux);
    videImages();
    m_base.liste.MoveFirst();
    m_base.liste.Move(static_cast<long>(position) - 1);
    const std::string affiche = m_base.liste.texte("Affiche");
    m_film.titre = m_base.liste.texte("Titre");
    m_film.realisateur = m_base.liste.texte("Realisateur");
    m_film.affiche = db::estDansLaBase(affiche) ? "STO" : affiche;
    remplitGeneralites();
    remplitNote();
    m_afficheTemporaire.depuis(affiche);
    m_affichePossession();
    m_panneaux.montre(m_panneaux.frameFiche);
    m_afficheVolet(m_fiche.frameGeneralites[0].Visible ? kVoletGeneralites : kVoletAutresInfos);
}

void AfficheFiche::videImages() {
    m_images.vide();
    m_fiche.Image1.vide = true;
    m_afficheTemporaire.efface();
}

void AfficheFiche::remplitGeneralites() {
    const dao::Recordset& film = m_base.liste;
    m_fiche.Label1[0].Caption = m_film.titre;
    m_fiche.Label1[1].Caption = m_fiche.lblRealisateur.Caption = "de " + m_film.realisateur;
    m_fiche.Label1[2].Caption = film.texte("Production") + " (" + film.texte("Annee") + ")";
    m_fiche.Label1[4].Caption = film.texte("Origine");
    m_fiche.Label1[5].Caption = film.texte("Duree");
    m_fiche.Label1[6].Caption = film.texte("Genre");
    m_fiche.lblInfosActeurs.Caption = util::remplace(film.texte("Acteurs"), ";", "\r\n");
    m_fiche.Text1.Text = film.texte("Resume");
    m_fiche.captionAffiche = m_film.titre;
}

// Ratings were once out of 100: one met here is brought to the present scale, in the base too.
void AfficheFiche::remplitNote() {
    const double note = m_base.liste.valeur("Note").nombre();
    if (note > kNoteMax && note <= kAncienneNoteMax) {
        m_fiche.lblNote.Caption = texteDeLaNote(depuisAncienneNote(note));
        m_modifieNoteFilm(depuisAncienneNote(note));
    } else {
        m_fiche.lblNote.Caption = texteDeLaNote(note);
    }
}

}  // namespace browse
