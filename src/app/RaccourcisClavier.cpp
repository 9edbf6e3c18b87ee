#include "app/RaccourcisClavier.h"

#include "app/ChoixFonction.h"
#include "app/Saisies.h"
#include "browse/AfficheAccueil.h"
#include "browse/AfficheVolet.h"
#include "edit/Command13_Click.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifierTitre_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"

namespace app {

void QuittePanneau(const Contexte& c) {
    browse::EtatPanneaux& panneaux = c.panneaux;
    const bool coche = panneaux.frameMultiSuppression.Visible;
    if (!coche && (panneaux.frameFiche.Visible || panneaux.framePresentation.Visible)) {
        c.demandes.focus = "TreeView1";
        return;
    }
    if (!c.saisies.abandonnePage()) return;
    c.demandes.focus = "TreeView1";
    panneaux.montreAucun();
    if (!c.film.estUnFilm()) return browse::AfficheAccueil(c);
    panneaux.montre(panneaux.frameFiche);
    const bool generalites = c.fiche.frameGeneralites[0].Visible;
    browse::AfficheVolet(c, generalites ? browse::kVoletGeneralites : browse::kVoletAutresInfos);
}

void SaisieManuelle(const Contexte& c) {
    if (c.saisies.pageEnSuspens() && !c.ajout.modeModifier()) {
        c.demandes.focus = "Text3_0";
        return;
    }
    if (!c.saisies.pageMontree() && c.saisies.reprendAjout()) return;
    if (!c.saisies.abandonnePage()) return;
    montreVoletAjout(c);
    edit::Command13_Click(c, 1);
    c.saisies.retient();
}

void cmdModifierTitre_Click(const Contexte& c) {
    if (c.saisies.pageEnSuspens() && c.ajout.modeModifier()) {
        c.demandes.focus = "Text3_0";
        return;
    }
    if (!c.film.estUnFilm()) return;
    edit::cmdModifierTitre_Click(c);
    c.saisies.retient();
}

void ModifieFilmAffiche(const Contexte& c) {
    if (c.panneaux.frameFiche.Visible) cmdModifierTitre_Click(c);
}

void SupprimeFilmAffiche(const Contexte& c) {
    if (c.panneaux.frameFiche.Visible) edit::cmdSupprimerTitre_Click(c);
}

void ValideSaisie(const Contexte& c) {
    if (c.saisies.pageMontree())
        edit::cmdAjoutFilm_Click(c);
    else if (c.panneaux.frameFiche.Visible && c.fiche.cmdValiderInfosPossessions.Visible)
        edit::cmdValiderInfosPossessions_Click(c);
}

void MontreTouches(const Contexte& c) {
    c.dialogues.MsgBox(texteTouches(), dialogues::kInformation);
}

std::string texteTouches() {
    return "Touches d'Ambrelis\n"
           "\n"
           "F1 : le guide, à la page de ce qui est montré\n"
           "Ctrl+F : rechercher\n"
           "Ctrl+K : filtrer les titres de la liste (/ aussi, dans la liste)\n"
           "Ctrl+L : la collection d'un coup d'œil\n"
           "Ctrl+N : saisir un film\n"
           "Ctrl+O : ouvrir ou créer une base\n"
           "Ctrl+Q : quitter\n"
           "Ctrl+Z : annuler la dernière modification de la base\n"
           "Ctrl+Maj+Z : rétablir ce qui vient d'être annulé\n"
           "F2 : modifier le film affiché\n"
           "Suppr : supprimer le film affiché\n"
           "Ctrl+Entrée : enregistrer ce qui est saisi (Entrée aussi, dans un champ d'une ligne)\n"
           "Ctrl+C : copier l'affiche ou la fiche\n"
           "Ctrl+V : coller une affiche\n"
           "F6, Maj+F6 : aller de la liste à la page, puis à l'avis du bas ; et en arrière\n"
           "Ctrl+Page suivante, Ctrl+Page précédente : la page d'à côté, où il y a des onglets\n"
           "Échap : quitter le panneau, ou revenir à la liste ; pendant un long travail, l'arrêter\n"
           "Alt+lettre soulignée : le bouton ou le champ qui la porte\n"
           "\n"
           "Dans la liste :\n"
           "Entrée : montrer le film, ouvrir ou fermer la catégorie\n"
           "Espace : cocher le film (multi-suppression)\n"
           "Maj+F10 : menu du film ou de la catégorie\n"
           "\n"
           "Sur les étoiles de la note :\n"
           "Gauche, Droite : choisir une note (Origine : aucune)\n"
           "Entrée : la donner au film\n"
           "\n"
           "Sur le mur d'affiches :\n"
           "Entrée : ouvrir la fiche\n"
           "Ctrl+molette, Ctrl++, Ctrl+- : affiches plus grandes, plus petites (Ctrl+0 : taille habituelle)\n"
           "\n"
           "Dans l'afficheur d'images :\n"
           "Page précédente, Page suivante : film précédent, film suivant\n"
           "Gauche, Droite : de même, quand l'image tient entière\n"
           "Ctrl+molette, Ctrl++, Ctrl+- : agrandir, réduire (Ctrl+0 : taille réelle)\n"
           "F1, Échap : fermer\n"
           "\n"
           "Dans le guide :\n"
           "Ctrl+F : chercher dans toutes les pages\n"
           "F3, Maj+F3 : le passage suivant, le passage précédent\n"
           "Alt+Gauche, Alt+Droite : revenir à la page d'avant, avancer de nouveau\n"
           "Alt+Origine : le sommaire\n"
           "Échap : fermer";
}

}  // namespace app
