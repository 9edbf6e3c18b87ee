#include "edit/Command13_Click.h"

#include "edit/TitreCite.h"
#include "edit/TitreDejaExistant.h"
#include "edit/ValeursDeSaisie.h"

#include <cstddef>

namespace edit {

namespace {

void ouvreAjoutAutomatique(const Contexte& c) {
    c.ajout.frameAjoutAuto.Visible = true;
    c.ajout.Label5.Caption = "Ajout automatique de fiches de films";
    c.demandes.focus = "txtRechInternet";
    prepareTitreDejaExistant(c);  // better while the page opens than after "Ajouter"
}

void ouvreSaisie(const Contexte& c) {
    c.ajout.Frame13.Visible = true;
    for (ecran::ZoneTexte& zone : c.ajout.Text3)
        zone.Text.clear();
    c.ajout.txtResume.Text.clear();
    c.ajout.lblImage.Caption.clear();
    c.demandes.focus = "Text3_0";
    remplitListesDeSaisie(c);
}

}  // namespace

void Command13_Click(const Contexte& c, int indice) {
    for (std::size_t i = 0; i < c.ajout.Command13.size(); ++i)
        c.ajout.Command13[i].FontBold = static_cast<int>(i) == indice;
    c.ajout.cmdAjoutFilm.Caption = "Ajouter";
    c.ajout.Label5.Caption = "-";
    c.ajout.frameAjoutAuto.Visible = false;
    c.ajout.Frame13.Visible = false;
    c.ajout.frameImportBase.Visible = indice == 2;
    if (indice == 0) ouvreAjoutAutomatique(c);
    if (indice == 1) ouvreSaisie(c);
}

void passeEnCorrection(const Contexte& c, const std::string& titre) {
    c.ajout.cmdAjoutFilm.Caption = "Modifier";
    c.ajout.Label5.Caption = "Modifier : " + titreCite(titre);
}

}  // namespace edit
