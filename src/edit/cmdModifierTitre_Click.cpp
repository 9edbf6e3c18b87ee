#include "edit/cmdModifierTitre_Click.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"
#include "edit/TitreCite.h"

namespace edit {

void cmdModifierTitre_Click::operator()() {
    if (!m_courant.estUnFilm()) return;
    // Read first: where it fails, no empty page takes the place of the sheet.
    const dao::Recordset film = db::ouvreRequete(m_base.base, db::enonceFilm(m_courant.titre, m_courant.realisateur),
                                                 db::NumeroErreur::cmdModifierTitre, m_dialogues);
    m_volet.montreVoletAjout();
    m_modes.Command13_Click(1);
    m_modes.passeEnCorrection(m_courant.titre);
    if (film.RecordCount() > 0)
        remplit(film);
    else
        nommeLeDisparu();
}

// Storing it adds it again.
void cmdModifierTitre_Click::nommeLeDisparu() {
    m_ajout.Text3[0].Text = m_courant.titre;
    m_ajout.Text3[1].Text = m_courant.realisateur;
    m_avis.montre(titreCite(m_courant.titre) + " n'est plus dans la base : « Modifier » l'ajoutera de nouveau.");
}

void cmdModifierTitre_Click::remplit(const dao::Recordset& film) {
    static constexpr std::array<const char*, 5> kChamps{"Titre", "Realisateur", "Annee", "Duree", "Acteurs"};
    for (std::size_t i = 0; i < kChamps.size(); ++i)
        m_ajout.Text3[i].Text = film.texte(kChamps[i]);
    m_ajout.Combo2.Text = film.texte("Genre");
    m_ajout.Combo3.Text = film.texte("Origine");
    m_ajout.Combo4.Text = film.texte("Production");
    m_ajout.txtResume.Text = film.texte("Resume");
}

}  // namespace edit
