#include "edit/cmdModifierTitre_Click.h"

#include "db/EnonceFilm.h"
#include "db/Requete.h"

namespace edit {

void cmdModifierTitre_Click::operator()() {
    if (!m_courant.estUnFilm()) return;
    m_volet.montreVoletAjout();
    m_modes.Command13_Click(1);
    m_ajout.cmdAjoutFilm.Caption = "Modifier";
    const dao::Recordset film = db::ouvreRequete(m_base.base, db::enonceFilm(m_courant.titre, m_courant.realisateur),
                                                 db::NumeroErreur::cmdModifierTitre, m_dialogues);
    if (film.RecordCount() > 0) remplit(film);
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
