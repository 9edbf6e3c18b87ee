#include "edit/Command13_Click.h"

#include "edit/TitreCite.h"

#include <cstddef>

namespace edit {

void ModesAjout::Command13_Click(int indice) {
    for (std::size_t i = 0; i < m_ajout.Command13.size(); ++i)
        m_ajout.Command13[i].FontBold = static_cast<int>(i) == indice;
    m_ajout.cmdAjoutFilm.Caption = "Ajouter";
    m_ajout.Label5.Caption = "-";
    m_ajout.frameAjoutAuto.Visible = false;
    m_ajout.Frame13.Visible = false;
    m_ajout.frameImportBase.Visible = indice == 2;
    if (indice == 0) ouvreAjoutAutomatique();
    if (indice == 1) ouvreSaisie();
}

void ModesAjout::passeEnCorrection(const std::string& titre) {
    m_ajout.cmdAjoutFilm.Caption = "Modifier";
    m_ajout.Label5.Caption = "Correction de " + titreCite(titre);
}

void ModesAjout::ouvreAjoutAutomatique() {
    m_ajout.frameAjoutAuto.Visible = true;
    m_ajout.Label5.Caption = "Ajout automatique de fiches de films";
    m_demandes.focus = "txtRechInternet";
    m_doublons.prepare();  // better while the page opens than after "Ajouter"
}

void ModesAjout::ouvreSaisie() {
    m_ajout.Frame13.Visible = true;
    for (ecran::ZoneTexte& zone : m_ajout.Text3)
        zone.Text.clear();
    m_ajout.txtResume.Text.clear();
    m_ajout.lblImage.Caption.clear();
    m_demandes.focus = "Text3_0";
    m_listes.remplit();
    m_doublons.prepare();  // better while the page opens than after "Ajouter"
}

}  // namespace edit
