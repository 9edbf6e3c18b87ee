#pragma once

#include "acquire/cmdAjoutAuto_Click.h"
#include "acquire/cmdParcourir2_Click.h"
#include "app/ChoixFonction.h"
#include "app/Commandes.h"
#include "browse/Arbre.h"
#include "browse/ChoixTri.h"
#include "browse/ChoixZone.h"
#include "browse/cmdFonctionRecherche_Click.h"
#include "browse/cmdRecherche_Click.h"
#include "parcours/Installation.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What a user does with the window, and sees in it.
namespace parcours {

inline constexpr const char* kQuestionRessemblance =
    "Souhaitez-vous que le logiciel vérifie si les nouveaux titres ajoutés ressemblent à d'autres titres déjà présents "
    "en base ?";

inline std::string fiche(const char* titre, const char* realisateur, const char* annee, const char* origine,
                         const char* genre) {
    return std::string(titre) + "\r\n" + realisateur + "\r\n" + annee + "\r\n" + origine + "\r\n" + genre +
           "\r\n100\r\nActeur;Actrice\r\nUn r\xE9sum\xE9.\r\nProduction\r\n";
}

// Four sheets in Windows-1252, one of them a single line, one with a poster.
inline void ecritFiches(const Installation& installation) {
    installation.ecrit("Fiches/1.FILM", fiche("LE CERCLE ROUGE", "Jean-Pierre Melville", "1970", "France", "Policier"));
    installation.ecrit("Fiches/1.jpg", "\xFF\xD8 une image");
    installation.ecrit("Fiches/2.film", fiche("le samoura\xEF", "Jean-Pierre Melville", "1967", "France", "Policier"));
    installation.ecrit("Fiches/3.FILM", fiche("\xC9t\xE9 violent", "Valerio Zurlini", "1959", "Italie", "Drame"));
    installation.ecrit("Fiches/4.FILM", "Sans rien");
}

// The four sheets become owned films, on DVD.
inline void importe(Execution& execution, const Installation& installation) {
    const std::string dossier = installation.chemin("Fiches");
    doubles::DialoguesScript& boites = execution.boites;
    execution.session.execute(app::cmdAfficherFonctions_Click);
    boites.attendDossier("Dossier des fiches de films", "", dossier);
    execution.session.execute(acquire::cmdParcourir2_Click);
    EXPECT_EQ(execution.etats.ajout.lblNbFilms.Caption, "4 fichiers .FILM trouvés.");
    boites.attendMsgBox(
        "Souhaitez-vous déclarer les 4 films comme étant en votre possession ?\n\nDans le cas contraire, l'ajout sera "
        "fait mais il faudra indiquer \n pour chaque film qu'il se trouve bien dans votre vidéothèque.",
        dialogues::kQuestion, dialogues::kOui);
    boites.attendInputBox(
        "Vous pouvez indiquer le nom du support qui sera attribué à tous les films ajoutés (DVD, K7...)", "DVD",
        "Nom du support");
    boites.attendMsgBox(kQuestionRessemblance, dialogues::kQuestion, dialogues::kOui);
    boites.attendMsgBox(
        "4 films ajoutés.\n- Image manquante :\n" + dossier + "/2.jpg, " + dossier + "/3.jpg, " + dossier + "/4.jpg",
        dialogues::kInformation);
    execution.session.execute(acquire::cmdAjoutAuto_Click);
    boites.verifie();
}

inline dialogues::DemandeFichier demandeBase(const Installation& installation) {
    return {"Ouvrir/Créer une base de données", "Fichiers de base de données|*.mdb", installation.chemin(), true};
}

// Headings as they read, films behind two blanks, in the tree's order.
inline std::vector<std::string> arbre(const app::Etats& etats) {
    const browse::Arbre& noeuds = etats.liste.TreeView1.Nodes;
    std::vector<std::string> textes;
    const std::function<void(int)> ajoute = [&](int parent) {
        for (const int indice : noeuds.enfants(parent)) {
            textes.push_back((parent == 0 ? "" : "  ") + std::string(noeuds.Text(indice)));
            if (noeuds.estGroupe(indice)) ajoute(indice);
        }
    };
    ajoute(0);
    return textes;
}

inline int noeud(const app::Etats& etats, std::string_view texte) {
    const browse::Arbre& noeuds = etats.liste.TreeView1.Nodes;
    for (int i = 1; i <= noeuds.Count(); ++i)
        if (noeuds.Text(i) == texte) return i;
    ADD_FAILURE() << "no node reads " << texte;
    return 0;
}

inline void clique(Execution& execution, std::string_view texte) {
    execution.session.execute(app::TreeView1_NodeClick, noeud(execution.etats, texte));
}

inline void choisitTri(Execution& execution, int tri) {
    execution.etats.liste.ChoixTri.selectionne(tri);
    execution.session.execute(browse::ChoixTri_Click);
}

inline void choisitZone(Execution& execution, int zone) {
    execution.session.execute(browse::ChoixZone_DropDown);
    execution.etats.liste.ChoixZone.selectionne(zone);
    execution.session.execute(browse::ChoixZone_Click);
}

// `champs` ticks title, director, year and cast; `portee` is all films, the user's, or those not owned.
inline void cherche(Execution& execution, const std::string& texte, const std::array<int, 4>& champs = {1, 0, 0, 0},
                    std::size_t portee = 0) {
    browse::EtatRecherche& recherche = execution.etats.recherche;
    execution.session.execute(browse::cmdFonctionRecherche_Click);
    recherche.Text2.Text = texte;
    for (std::size_t i = 0; i < champs.size(); ++i)
        recherche.ZoneRecherche[i].Value = champs[i];
    ecran::choisit(recherche.TypeFilm, portee);
    execution.session.execute(browse::cmdRecherche_Click);
}

// The film of the sheet and the node selected in the tree: "Titre de Realisateur", "" when no sheet is shown.
inline std::string filmMontre(const app::Etats& etats) {
    if (!etats.panneaux.frameFiche.Visible) return "";
    const browse::VueArbre& vue = etats.liste.TreeView1;
    EXPECT_EQ(etats.liste.noeudChoisi, vue.SelectedItem);
    if (vue.SelectedItem < 1 || vue.SelectedItem > vue.Nodes.Count()) return "a sheet without a node";
    EXPECT_EQ(vue.Nodes.Text(vue.SelectedItem), etats.fiche.Label1[0].Caption);
    EXPECT_EQ(vue.Nodes.Key(vue.SelectedItem), etats.liste.cleCliquee);
    return etats.fiche.Label1[0].Caption + " " + etats.fiche.lblRealisateur.Caption;
}

// The heading that the selected film stands under.
inline std::string groupeChoisi(const app::Etats& etats) {
    const browse::VueArbre& vue = etats.liste.TreeView1;
    const int parent = vue.SelectedItem < 1 ? 0 : vue.Nodes.Parent(vue.SelectedItem);
    return parent == 0 ? "" : std::string(vue.Nodes.Text(parent));
}

}  // namespace parcours
