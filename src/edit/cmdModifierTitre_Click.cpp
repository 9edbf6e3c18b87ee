#include "edit/cmdModifierTitre_Click.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/Command13_Click.h"
#include "edit/TitreCite.h"

namespace edit {

namespace {

void remplit(EtatAjout& ajout, const dao::Recordset& film) {
    static constexpr std::array<const char*, 5> kChamps{"Titre", "Realisateur", "Annee", "Duree", "Acteurs"};
    for (std::size_t i = 0; i < kChamps.size(); ++i)
        ajout.Text3[i].Text = film.texte(kChamps[i]);
    ajout.Combo2.Text = film.texte("Genre");
    ajout.Combo3.Text = film.texte("Origine");
    ajout.Combo4.Text = film.texte("Production");
    ajout.txtResume.Text = film.texte("Resume");
}

// Storing it adds it again.
void nommeLeDisparu(const Contexte& c) {
    c.ajout.Text3[0].Text = c.film.titre;
    c.ajout.Text3[1].Text = c.film.realisateur;
    c.avis.montre(titreCite(c.film.titre) + " n'est plus dans la base : « Modifier » l'ajoutera de nouveau.");
}

}  // namespace

void cmdModifierTitre_Click(const Contexte& c) {
    if (!c.film.estUnFilm()) return;
    // Read first: where it fails, no empty page takes the place of the sheet.
    const dao::Recordset film = db::ouvreRequete(c, db::enonceFilm(c.film), db::NumeroErreur::cmdModifierTitre);
    c.accompagnement.montreVoletAjout();
    Command13_Click(c, 1);
    passeEnCorrection(c, c.film.titre);
    if (film.RecordCount() > 0)
        remplit(c.ajout, film);
    else
        nommeLeDisparu(c);
}

}  // namespace edit
