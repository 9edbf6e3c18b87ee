#include "app/Session.h"

#include "app/APropos.h"
#include "app/EffaceRestes.h"
#include "app/Liens.h"
#include "app/Rouages.h"
#include "app/cmdParcourir_Click.h"
#include "platform/systeme/FinDuProgramme.h"
#include "view/cmdSauverImage_Click.h"

#include <utility>

namespace app {

namespace {

MenuContextuel menuDemande(browse::MenuArbre menu) {
    switch (menu) {
        case browse::MenuArbre::Film:
            return MenuContextuel::MenuClicDroitFilm;
        case browse::MenuArbre::Support:
            return MenuContextuel::MenuClicDroitSupport;
        case browse::MenuArbre::Genre:
            return MenuContextuel::MenuClicDroitGenre;
        case browse::MenuArbre::Aucun:
            break;
    }
    return MenuContextuel::Aucun;
}

// What filled the list anew leaves the keys there, where what it did is to be seen.
template <typename Commande>
void puisVersLaListe(Etats& etats, Commande commande) {
    const int avant = etats.liste.TreeView1.Nodes.generation();
    commande();
    if (etats.liste.TreeView1.Nodes.generation() != avant) etats.demandes.focus = "TreeView1";
}

}  // namespace

Session::Session(const Machine& machine) : m_rouages(std::make_unique<Rouages>(machine, etats)) {}

Session::~Session() = default;

void Session::Form_Load() {
    m_rouages->demarrage.execute();
    m_rouages->enMarche = true;
}

void Session::Form_Activate() {
    m_rouages->demarrage.acheve();
    effaceRestes(m_rouages->chemins, etats.stockage);
}

void Session::Form_Unload() {
    if (!std::exchange(m_rouages->enMarche, false)) return;
    m_rouages->arret.execute(m_rouages->demarrage.reglagesLus());
}

bool Session::Form_QueryUnload() {
    return !m_rouages->enMarche || m_rouages->saisies.abandonneTout();
}

void Session::cmdStop_Click() {
    if (!Form_QueryUnload()) return;
    Form_Unload();
    throw systeme::FinDuProgramme{};
}

void Session::Form_Resize(bool deuxPages) {
    browse::EtatFiche& fiche = etats.fiche;
    if (fiche.cmdGeneralites.Visible == !deuxPages) return;
    if (deuxPages)
        m_rouages->volet = fiche.frameGeneralites[0].Visible ? browse::kVoletGeneralites : browse::kVoletAutresInfos;
    fiche.cmdGeneralites.Visible = fiche.cmdAutresInfos.Visible = !deuxPages;
    if (etats.panneaux.frameFiche.Visible) m_rouages->afficheVolet(m_rouages->volet);
}

void Session::ChoixZone_Click() {
    m_rouages->garde([this] { m_rouages->choixZone.Click(); });
}

void Session::ChoixZone_DropDown() {
    m_rouages->choixZone.DropDown();
}

void Session::ChoixZone_CloseUp() {
    m_rouages->choixZone.CloseUp();
}

void Session::ChoixTri_Click() {
    m_rouages->garde([this] { m_rouages->choixTri.Click(); });
}

void Session::vaCommencer() {
    m_rouages->rouvreSiRemplacee();
}

void Session::expliqueEchec(const std::string& raison) {
    if (!raison.empty()) m_rouages->avis.montre(raison);
}

void Session::TreeView1_NodeClick(int indice) {
    if (m_rouages->arbreRelu) return;
    m_rouages->garde([=, this] { m_rouages->treeView1.NodeClick(indice); });
}

void Session::TreeView1_NodeCheck(int indice, bool coche) {
    if (m_rouages->arbreRelu) {
        etats.liste.TreeView1.coches.clear();
        return;
    }
    m_rouages->treeView1.NodeCheck(indice, coche);
}

void Session::TreeView1_MouseUpDroit(int indice) {
    etats.menu = MenuContextuel::Aucun;
    if (m_rouages->arbreRelu) return;
    m_rouages->garde([=, this] { etats.menu = menuDemande(m_rouages->treeView1.MouseUp(indice)); });
}

void Session::AffStats_Click() {
    m_rouages->afficheTitres.AffStats_Click();
}

void Session::cmdGeneralites_Click() {
    m_rouages->afficheVolet(browse::kVoletGeneralites);
}

void Session::cmdAutresInfos_Click() {
    m_rouages->afficheVolet(browse::kVoletAutresInfos);
}

void Session::lblRealisateur_Click() {
    m_rouages->garde([this] { m_rouages->lblRealisateur(); });
}

void Session::cmdFichiersFilm_Click() {
    etats.fichiers.Visible = true;
    ++etats.fichiers.presentations;
}

void Session::Command1_Click(int indice) {
    m_rouages->command1(indice);
}

void Session::Image1_Click() {
    if (!etats.fiche.Image1.vide) m_rouages->visionneuse.montre();
}

void Session::Picture1_Click() {
    m_rouages->visionneuse.cache();
}

void Session::Picture1_KeyDown(int code) {
    m_rouages->garde([=, this] { m_rouages->touchesAffiche.Picture1_KeyDown(code); });
}

void Session::HScroll1_KeyDown(int code) {
    m_rouages->garde([=, this] { m_rouages->touchesAffiche.HScroll1_KeyDown(code); });
}

void Session::HScroll1_Change() {
    m_rouages->visionneuse.HScroll1_Change();
}

void Session::frmAffiche_KeyDown(int code) {
    m_rouages->garde([=, this] { m_rouages->touchesAffiche.Form_KeyDown(code); });
}

void Session::frmAffiche_Resize(int largeur, int hauteur) {
    m_rouages->visionneuse.Form_Resize(largeur, hauteur);
}

void Session::deplaceAffiche(int dx, int dy) {
    m_rouages->visionneuse.deplace(dx, dy);
}

void Session::cmdSauverImage_Click() {
    const std::string fichier =
        view::cmdSauverImage_Click(etats.fiche, m_rouages->chemins, m_rouages->machine.dialogues);
    if (!fichier.empty()) m_rouages->dernierExport.annonce("Affiche sauvegardée : ", fichier);
}

void Session::cmdRemplacerImage_Click() {
    m_rouages->cmdRemplacerImage();
}

void Session::ChoixFonction1_Divers() {
    m_rouages->garde([this] {
        m_rouages->choixFonction.ChoixFonction1_Divers();
        m_rouages->telechargement.ouvrePage();
    });
}

void Session::ChoixFonction2_Outils() {
    m_rouages->garde([this] { m_rouages->choixFonction.ChoixFonction2_Outils(); });
}

void Session::ChoixFonction3_Config() {
    m_rouages->garde([this] { m_rouages->choixFonction.ChoixFonction3_Config(); });
}

void Session::cmdAfficherFonctions_Click() {
    ChoixFonction1_Divers();
}

void Session::cmdConfigurer_Click() {
    ChoixFonction2_Outils();
}

void Session::cmdConfig_Click(int indice) {
    m_rouages->garde([=, this] { m_rouages->choixFonction.cmdConfig_Click(indice); });
}

void Session::cmdFonctionRecherche_Click() {
    m_rouages->garde([this] { m_rouages->cmdFonctionRecherche(); });
}

void Session::cmdRecherche_Click() {
    m_rouages->garde([this] { m_rouages->cmdRecherche(); });
}

void Session::cmdAide_Click() {
    m_rouages->machine.dialogues.MsgBox(texteAPropos(), dialogues::kInformation);
}

void Session::Image3_Click() {
    ouvreLien(kSiteMovieCovers, m_rouages->machine.documents, m_rouages->machine.dialogues);
}

void Session::Label4_Click() {
    ouvreLien(m_rouages->chemins.dansDossier(kGuide), m_rouages->machine.documents, m_rouages->machine.dialogues);
}

void Session::Combo6_Click(int indice) {
    m_rouages->logiciels.Combo6_Click(indice);
}

void Session::cmdParcourirLogiciel_Click() {
    m_rouages->logiciels.cmdParcourirLogiciel_Click();
}

void Session::cmdAjoutExtension_Click() {
    m_rouages->logiciels.cmdAjoutExtension_Click();
}

void Session::cmdSupprExtension_Click() {
    m_rouages->logiciels.cmdSupprExtension_Click();
}

void Session::cmdChargeOuvreBase_Click() {
    if (!m_rouages->saisies.abandonneTout()) return;
    m_rouages->garde([this] { m_rouages->surLaBase([this] { m_rouages->cmdChargeOuvreBase(); }); });
}

void Session::Option3_Click() {
    m_rouages->option3();
}

void Session::cmdParcourir_Click() {
    app::cmdParcourir_Click(etats.stockage, m_rouages->chemins, m_rouages->machine.dialogues);
}

void Session::Label12_Click() {
    if (etats.fiche.Label12.Caption == browse::kImageIllisible) return cmdRemplacerImage_Click();
    m_rouages->garde([this] { m_rouages->label12(); });
}

void Session::cmdMajBase_Click() {
    m_rouages->garde([this] { m_rouages->surLaBase([this] { m_rouages->cmdMajBase(); }); });
}

void Session::cmdCompacter_Click() {
    m_rouages->garde([this] { m_rouages->surLaBase([this] { m_rouages->cmdCompacter(); }); });
}

void Session::cmdInfosBase_Click() {
    db::cmdInfosBase_Click(m_rouages->base, m_rouages->machine.dialogues);
}

void Session::cmdSupprInfosPerso_Click() {
    m_rouages->garde([this] { m_rouages->cmdSupprInfosPerso(); });
}

void Session::Command13_Click(int indice) {
    m_rouages->garde([=, this] {
        m_rouages->modesAjout.Command13_Click(indice);
        m_rouages->telechargement.ouvrePage();
        m_rouages->saisies.retient();
        if (indice == 2) puisVersLaListe(etats, [this] { m_rouages->importAncienneBase.Command13_Click(); });
    });
}

void Session::cmdParcourir2_Click() {
    m_rouages->choixDossierFiches.cmdParcourir2_Click();
}

void Session::txtCheminAjoutAuto_Change() {
    m_rouages->choixDossierFiches.txtCheminAjoutAuto_Change();
}

void Session::cmdImporterBase_Click() {
    puisVersLaListe(etats, [this] { m_rouages->importAncienneBase.ImporterAncienneBase(); });
}

void Session::cmdAjoutAuto_Click() {
    if (!m_rouages->choixDossierFiches.remplaceCheminWindows()) return;
    m_rouages->garde([this] { puisVersLaListe(etats, [this] { m_rouages->importFiches.cmdAjoutAuto_Click(); }); });
}

void Session::cmdTelecharge_Click() {
    m_rouages->garde([this] { puisVersLaListe(etats, [this] { m_rouages->telechargement.cmdTelecharge_Click(); }); });
}

void Session::txtRechInternet_KeyDown(int code, int majuscule) {
    m_rouages->garde([=, this] {
        puisVersLaListe(etats, [=, this] { m_rouages->telechargement.txtRechInternet_KeyDown(code, majuscule); });
    });
}

void Session::cmdAjoutFilm_Click() {
    m_rouages->garde([this] { m_rouages->cmdAjoutFilm(); });
}

void Session::cmdModifierTitre_Click() {
    m_rouages->garde([this] { m_rouages->raccourcis.Modifie(); });
}

void Session::ModifieFilm_Click() {
    cmdModifierTitre_Click();
}

void Session::cmdValiderInfosPossessions_Click() {
    m_rouages->garde([this] { m_rouages->cmdValiderInfosPossessions(); });
    etats.demandes.focus = "TreeView1";
}

void Session::Option1_Click() {
    m_rouages->saisiePossession.Option1_Click();
}

void Session::Combo7_Change(int) {
    m_rouages->saisiePossession.Combo7_Change();
}

void Session::Text10_Change(int) {
    m_rouages->saisiePossession.Text10_Change();
}

void Session::Command2_Click(int indice) {
    m_rouages->saisiePossession.Command2_Click(static_cast<std::size_t>(indice));
}

void Session::cmdRaffraichirListe_Click() {
    m_rouages->boitesDeroulantes.RaffraichitBoitesDeroulantes();
}

void Session::cmdSupprimerTitre_Click() {
    m_rouages->garde([this] { m_rouages->suppressionTitre.cmdSupprimerTitre_Click(); });
}

void Session::SupprFilm_Click() {
    m_rouages->garde([this] { m_rouages->suppressionTitre.SupprFilm_Click(); });
}

void Session::cmdMultiSuppress_Click() {
    m_rouages->garde([this] { m_rouages->multiSuppression.cmdMultiSuppress_Click(); });
}

void Session::Option4_Click() {
    m_rouages->multiSuppression.Option4_Click();
}

void Session::cmdSupprTitresSelect_Click() {
    m_rouages->garde([this] { m_rouages->multiSuppression.cmdSupprTitresSelect_Click(); });
}

void Session::cmdModifieNote_Click() {
    m_rouages->garde([this] { m_rouages->notation.cmdModifieNote_Click(); });
}

void Session::RenommerGenreFilms_Click() {
    m_rouages->garde(
        [this] { puisVersLaListe(etats, [this] { m_rouages->renommageGroupe.RenommerGenreFilms_Click(); }); });
}

void Session::RenommeSupportFilms_Click() {
    m_rouages->garde(
        [this] { puisVersLaListe(etats, [this] { m_rouages->renommageGroupe.RenommeSupportFilms_Click(); }); });
}

void Session::cmdPonctuation_Click() {
    m_rouages->garde([this] { m_rouages->correctionTitres.cmdPonctuation_Click(); });
}

void Session::cmdCreeFichierTxt_Click() {
    m_rouages->cmdCreeFichierTxt();
}

void Session::GenereFichierTxt_Click() {
    cmdCreeFichierTxt_Click();
}

void Session::cmdCreerListe_Click() {
    m_rouages->cmdCreerListe();
}

void Session::cmdAvis_Click(int indice) {
    m_rouages->garde([=, this] { m_rouages->avis.cmdAvis_Click(static_cast<std::size_t>(indice)); });
}

void Session::cmdFermerAvis_Click() {
    m_rouages->saisies.oublie();
    m_rouages->avis.retire();
}

void Session::QuittePanneau() {
    m_rouages->garde([this] { m_rouages->raccourcis.QuittePanneau(); });
}

void Session::SaisieManuelle() {
    m_rouages->garde([this] { m_rouages->raccourcis.SaisieManuelle(); });
}

void Session::ModifieFilmAffiche() {
    m_rouages->garde([this] { m_rouages->raccourcis.ModifieFilmAffiche(); });
}

void Session::ValideSaisie() {
    m_rouages->garde([this] { m_rouages->raccourcis.Valide(); });
}

void Session::MontreTouches() {
    m_rouages->machine.dialogues.MsgBox(texteTouches(), dialogues::kInformation);
}

void Session::SupprimeFilmAffiche() {
    m_rouages->garde([this] { m_rouages->raccourcis.SupprimeFilmAffiche(); });
}

}  // namespace app
