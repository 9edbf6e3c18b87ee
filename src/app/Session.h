#pragma once

#include "app/Etats.h"
#include "platform/dialogues/Dialogues.h"
#include "platform/ecran/Ecran.h"
#include "platform/systeme/Documents.h"
#include "platform/systeme/Horloge.h"
#include "platform/systeme/Programmes.h"
#include "platform/systeme/Volumes.h"

#include <memory>
#include <string>

namespace app {

// What the program asks of its machine. Everything outlives the session.
struct Machine {
    dialogues::Dialogues& dialogues;
    ecran::Ecran& ecran;
    ecran::Images& images;
    systeme::Horloge& horloge;
    systeme::Documents& documents;
    systeme::Programmes& programmes;
    systeme::Volumes& volumes;
    std::string dossierProgramme;  // the executable's folder
};

// One run of the program: owns the panels' state, the open base and the commands, and wires them. The window calls one
// command per gesture, through its wrapper, with `etats` up to date; afterwards it shows `etats`.
//
// Any command may throw systeme::FinDuProgramme (the program ends), db::RequeteEchouee (the message was shown) or
// dao::ErreurDao (to be shown as "Erreur " + number + " : " + description).
class Session {
  public:
    explicit Session(const Machine& machine);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Etats etats;

    // Life of the window. Form_Load runs before it is shown, Form_Activate once it is painted. Form_Unload is the
    // shut-down; it runs once, later calls do nothing.
    void Form_Load();
    void Form_Activate();
    void Form_Unload();
    // Asks, where something is typed that closing the window would lose; false: the window stays.
    [[nodiscard]] bool Form_QueryUnload();
    void cmdStop_Click();  // asks as Form_QueryUnload, shuts down, then throws FinDuProgramme
    // The layout has room for both pages of the sheet, or no longer has.
    void Form_Resize(bool deuxPages);

    // Before each command, once `etats` is up to date. A base that another program put another file in the place of is
    // opened again and listed; a gesture on a node of the old tree then does nothing.
    void vaCommencer();
    // After a command that ended by db::RequeteEchouee: why, in the notice line.
    void expliqueEchec(const std::string& raison);

    // Listing and tree.
    void ChoixZone_Click();
    void ChoixZone_DropDown();
    void ChoixZone_CloseUp();
    void ChoixTri_Click();
    void TreeView1_NodeClick(int indice);
    void TreeView1_NodeCheck(int indice, bool coche);
    // A right click on a node (which first does what a click on another does); sets etats.menu.
    void TreeView1_MouseUpDroit(int indice);
    void AffStats_Click();

    // Sheet.
    void cmdGeneralites_Click();
    void cmdAutresInfos_Click();
    void lblRealisateur_Click();

    // The window of the attached files; the indexes are those of Command1.
    void cmdFichiersFilm_Click();
    void Command1_Click(int indice);  // closing the window does what 3 does

    // Poster viewer. Key codes as in Windows; sizes and distances in twips.
    void Image1_Click();    // the sheet's poster
    void Picture1_Click();  // closing the window does the same
    void Picture1_KeyDown(int code);
    void HScroll1_KeyDown(int code);
    void HScroll1_Change();
    void frmAffiche_KeyDown(int code);
    void frmAffiche_Resize(int largeur, int hauteur);
    void deplaceAffiche(int dx, int dy);  // by the wheel or by dragging
    void cmdSauverImage_Click();
    void cmdRemplacerImage_Click();

    // Panels.
    void ChoixFonction1_Divers();
    void ChoixFonction2_Outils();
    void ChoixFonction3_Config();
    void cmdAfficherFonctions_Click();
    void cmdConfigurer_Click();
    void cmdConfig_Click(int indice);
    void cmdFonctionRecherche_Click();
    void cmdRecherche_Click();
    void cmdAide_Click();
    void Image3_Click();
    void Label4_Click();

    // Programs of the attached files, by extension; the indexes are those of Combo6.
    void Combo6_Click(int indice);
    void cmdParcourirLogiciel_Click();
    void cmdAjoutExtension_Click();
    void cmdSupprExtension_Click();

    // Base and posters.
    void cmdChargeOuvreBase_Click();
    void Option3_Click();
    void cmdParcourir_Click();
    void Label12_Click();  // attaches a poster to the film of the sheet that has none, replaces one that cannot be read
    void cmdMajBase_Click();
    void cmdCompacter_Click();
    void cmdInfosBase_Click();
    void cmdSupprInfosPerso_Click();

    // Adding.
    void Command13_Click(int indice);
    void cmdParcourir2_Click();
    void txtCheminAjoutAuto_Change();
    void cmdAjoutAuto_Click();
    void cmdImporterBase_Click();  // the button of its page: without the question that opening the page asks
    void cmdTelecharge_Click();
    void txtRechInternet_KeyDown(int code, int majuscule);
    void cmdAjoutFilm_Click();

    // Correcting the film of the sheet, from its button and from the tree's menu.
    void cmdModifierTitre_Click();
    void ModifieFilm_Click();

    // Holdings. Option1's values are those after the click; the indexes are those of Combo7, Text10 and Command2.
    void cmdValiderInfosPossessions_Click();
    void Option1_Click();
    void Combo7_Change(int indice);
    void Text10_Change(int indice);
    void Command2_Click(int indice);
    void cmdRaffraichirListe_Click();

    // Export: the sheet, from its button and from the tree's menu, and the list of the owned titles.
    void cmdCreeFichierTxt_Click();
    void GenereFichierTxt_Click();
    void cmdCreerListe_Click();

    // The notice line: what it offers to do, and its end.
    void cmdAvis_Click(int indice);
    void cmdFermerAvis_Click();

    // Deletion: of the current film, by the sheet's button or the tree's menu, and of the ticked ones.
    void cmdSupprimerTitre_Click();
    void SupprFilm_Click();
    void cmdMultiSuppress_Click();
    void Option4_Click();  // the check boxes of the tree come or go, as Option4's values say
    void cmdSupprTitresSelect_Click();

    // Rating of the current film, renaming of the selected heading, correction of every title.
    void cmdModifieNote_Click();
    void RenommerGenreFilms_Click();
    void RenommeSupportFilms_Click();
    void cmdPonctuation_Click();

    // What keys do beside the buttons, on what is seen.
    void QuittePanneau();
    void SaisieManuelle();
    void ModifieFilmAffiche();
    void SupprimeFilmAffiche();
    void ValideSaisie();
    void MontreTouches();

  private:
    struct Rouages;  // the base, the paths and the commands
    std::unique_ptr<Rouages> m_rouages;
};

}  // namespace app
