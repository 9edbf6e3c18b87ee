#pragma once

#include "acquire/ImporterAncienneBase.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "acquire/cmdParcourir2_Click.h"
#include "acquire/cmdTelecharge_Click.h"
#include "app/Arret.h"
#include "app/BaseAbsente.h"
#include "app/ChoixFonction.h"
#include "app/Demarrage.h"
#include "app/LogicielsExternes.h"
#include "app/RaccourcisClavier.h"
#include "app/Saisies.h"
#include "app/Session.h"
#include "browse/AfficheNbTitres.h"
#include "browse/Label12_Click.h"
#include "browse/MontreFilm.h"
#include "browse/SelectionneTitre.h"
#include "browse/lblRealisateur_Click.h"
#include "db/cmdChargeOuvreBase_Click.h"
#include "db/cmdInfosBase_Click.h"
#include "db/cmdMajBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"
#include "edit/ModifieGroupe.h"
#include "edit/SaisiePossession.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "edit/cmdModifierTitre_Click.h"
#include "edit/cmdPonctuation_Click.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "export/cmdCreeFichierTxt_Click.h"
#include "export/cmdCreerListe_Click.h"
#include "view/Command1_Click.h"
#include "view/LanceFichier.h"
#include "view/TouchesAffiche.h"
#include "view/cmdRemplacerImage_Click.h"

#include <functional>

namespace app {

// What a session is made of, each part after those it uses: the base and the paths, then the commands.
struct Session::Rouages final : db::Rafraichissement {
    Rouages(const Machine& machine, Etats& etats);

    Machine machine;
    Etats& etats;
    bool enMarche = false;                  // between a start that held and the shut-down
    bool arbreRelu = false;                 // since the gesture that the running command answers
    int volet = browse::kVoletGeneralites;  // the page that was open before the layout showed both

    systeme::InstanceUnique instance;
    db::Chemins chemins = db::Chemins::depuis(machine.dossierProgramme);
    db::Base base;
    browse::FilmCourant film;
    TableExtensions extensions;
    ecran::Avis avis{etats.avis};

    // Base.
    db::OuvertureBase ouvertureBase{base, chemins, machine.dialogues};
    db::OuvertureJet ouvertureJet{{etats.fonctions.ProgressBar3, etats.fonctions.lblTravail, machine.ecran,
                                   machine.dialogues, etats.stockage, chemins}};
    db::cmdChargeOuvreBase_Click cmdChargeOuvreBase{base,         chemins, ouvertureBase,
                                                    ouvertureJet, *this,   machine.dialogues};
    BaseAbsente baseAbsente{chemins, avis, etats.avis, [this](const std::string& nom) {
                                if (saisies.abandonneTout()) surLaBase([&] { cmdChargeOuvreBase.ouvre(nom); });
                            }};
    db::Option3_Click option3{etats.stockage, chemins};
    db::cmdCompacter_Click cmdCompacter{base, chemins, ouvertureBase, *this, machine.dialogues};
    db::cmdMajBase_Click cmdMajBase{
        {base, chemins, etats.stockage, etats.fonctions.ProgressBar2, machine.ecran, machine.dialogues},
        cmdCompacter,
        *this};
    db::cmdSupprInfosPerso_Click cmdSupprInfosPerso{base, *this, machine.dialogues};

    // Listing.
    browse::AfficheAccueil afficheAccueil{etats.panneaux, machine.ecran};
    browse::AfficheTitres afficheTitres{etats.liste, base};
    browse::CreeRequeteAffichage creeRequeteAffichage{base, etats.liste, film, afficheTitres, machine.dialogues};
    browse::AffichageApresModification affichageApresModification{etats.liste, afficheAccueil, creeRequeteAffichage};
    browse::CreeEtAfficheRecherche creeEtAfficheRecherche{etats.liste, creeRequeteAffichage};
    browse::AfficheNbTitres afficheNbTitres{etats.liste, base};
    browse::ChoixTri choixTri{etats.liste, affichageApresModification};
    browse::ChoixZone choixZone{etats.liste, affichageApresModification};

    // Sheet.
    browse::AfficheTemporaire afficheTemporaire{chemins, etats.stockage, machine.dialogues, avis};
    view::Visionneuse visionneuse{etats.affiche, chemins};
    browse::ChargeAffiche chargeAffiche{etats.fiche, afficheTemporaire, machine.images, machine.ecran, &visionneuse};
    browse::AfficheVolet afficheVolet{etats.fiche, etats.demandes, chargeAffiche};
    browse::ModifieNoteFilm modifieNoteFilm{base, etats.fiche, film, machine.dialogues};
    browse::AffichePossession affichePossession{base, etats.fiche, film, machine.dialogues};
    browse::AfficheFiche afficheFiche{
        base,           etats.liste,       etats.fiche,       etats.panneaux,  film,
        machine.images, afficheTemporaire, affichePossession, modifieNoteFilm, afficheAccueil,
        afficheVolet};
    browse::Label12_Click label12{base, film, etats.fiche, etats.stockage, chemins, afficheFiche, machine.dialogues};
    browse::TreeView1 treeView1{etats.liste, afficheFiche, machine.dialogues};
    browse::SelectionneTitre selectionneTitre{etats.liste, base, treeView1};
    browse::MontreFilm montreFilm{
        base, etats.liste, film, affichageApresModification, selectionneTitre, machine.dialogues};

    // Poster viewer.
    view::TouchesAffiche touchesAffiche{visionneuse, etats.liste, film, afficheFiche, etats.demandes};
    view::cmdRemplacerImage_Click cmdRemplacerImage{
        base, etats.stockage, chemins, film, machine.images, afficheTemporaire, chargeAffiche, machine.dialogues};

    // Attached files, and those the program writes.
    view::LanceFichier lanceFichier{machine.programmes, machine.documents, machine.dialogues, machine.ecran};
    view::Command1_Click command1{etats.fichiers,     film,         extensions,       machine.volumes,
                                  machine.programmes, lanceFichier, machine.dialogues};

    // Search.
    browse::cmdFonctionRecherche_Click cmdFonctionRecherche{etats.panneaux, etats.demandes, afficheAccueil};
    browse::cmdRecherche_Click cmdRecherche{base, etats.recherche, etats.liste, creeEtAfficheRecherche,
                                            machine.dialogues};
    browse::lblRealisateur_Click lblRealisateur{film, etats.recherche, cmdFonctionRecherche, cmdRecherche};

    // Adding.
    edit::Doublons doublons{base, machine.dialogues};
    edit::ListesDeSaisie listesDeSaisie{base, etats.ajout, machine.dialogues};
    edit::ModesAjout modesAjout{etats.ajout, etats.demandes, listesDeSaisie, doublons};
    edit::BoitesDeroulantes boitesDeroulantes{base, etats.fiche, machine.dialogues};
    edit::Ressemblances ressemblances{base, machine.dialogues};
    edit::EnregistrementFilm enregistrement{base, etats.ajout, etats.stockage, chemins, film, machine.dialogues};
    acquire::ImportFiches importFiches{{base, chemins, etats.ajout, etats.stockage, enregistrement, doublons,
                                        ressemblances, machine.dialogues, machine.ecran},
                                       {etats.liste, creeEtAfficheRecherche, afficheNbTitres, boitesDeroulantes},
                                       machine.horloge};
    acquire::ImportAncienneBase importAncienneBase{
        {base, chemins, etats.ajout, etats.stockage, machine.dialogues, machine.ecran}, *this};
    acquire::ChoixDossierFiches choixDossierFiches{etats.ajout, chemins, machine.dialogues};
    acquire::Telechargement telechargement{{etats.ajout,
                                            etats.fonctions.chkLancerConnexion,
                                            {etats.fonctions.lblTravail, etats.fonctions.ProgressBar3},
                                            chemins,
                                            lanceFichier,
                                            importFiches,
                                            machine.dialogues,
                                            machine.ecran,
                                            etats.demandes}};
    edit::cmdAjoutFilm_Click cmdAjoutFilm{
        {base, etats.ajout, etats.fiche, etats.stockage, chemins, film, enregistrement, doublons, machine.dialogues,
         machine.horloge},
        {etats.liste, affichageApresModification, selectionneTitre, creeEtAfficheRecherche, afficheNbTitres, montreFilm,
         etats.panneaux, modesAjout, avis, [this] { saisies.filmStocke(); }}};

    // Holdings.
    edit::SaisiePossession saisiePossession{etats.fiche, machine.dialogues};
    edit::cmdValiderInfosPossessions_Click cmdValiderInfosPossessions{
        base,
        etats.fiche,
        film,
        {affichageApresModification, selectionneTitre, afficheNbTitres, boitesDeroulantes,
         [this] { saisies.possessionStockee(); }},
        machine.dialogues};

    // Deletion, ratings, renaming, correction of the titles.
    edit::OutilsTravail outilsTravail{base.base, machine.ecran, etats.fonctions.ProgressBar3, machine.dialogues};
    edit::SuitesModification suites{affichageApresModification, selectionneTitre, afficheNbTitres, boitesDeroulantes};
    edit::SuppressionTitre suppressionTitre{
        base, etats.fiche, film, {etats.liste, afficheAccueil, afficheNbTitres, boitesDeroulantes}, machine.dialogues};
    edit::MultiSuppression multiSuppression{base,
                                            {etats.liste, etats.fiche, etats.panneaux, etats.fonctions.Option4,
                                             etats.fonctions.cmdSupprTitresSelect, etats.demandes},
                                            outilsTravail,
                                            suites};
    edit::Notation notation{etats.liste, film, modifieNoteFilm, suites, machine.dialogues};
    edit::RenommageGroupe renommageGroupe{base, etats.liste, film, outilsTravail, suites};
    edit::CorrectionTitres correctionTitres{base, etats.panneaux, outilsTravail, suites};

    // Export.
    exportation::DernierExport dernierExport{avis, lanceFichier, machine.documents, machine.dialogues};
    exportation::cmdCreeFichierTxt_Click cmdCreeFichierTxt{film, etats.fiche, chemins, dernierExport,
                                                           machine.dialogues};
    exportation::CreeFichierRTF creeFichierRTF{
        base,          chemins,           etats.nom,     etats.fonctions.ProgressBar3,
        machine.ecran, machine.dialogues, dernierExport, lanceFichier};
    exportation::cmdCreerListe_Click cmdCreerListe{
        {base, chemins, machine.dialogues, machine.ecran, etats.fonctions.ProgressBar3},
        creeFichierRTF,
        dernierExport,
        lanceFichier};

    // Life of the window.
    LogicielsExternes logiciels{etats.fonctions, extensions, chemins, machine.dialogues, etats.demandes};
    ChoixFonction choixFonction{etats.fonctions, etats.panneaux, afficheAccueil, modesAjout, logiciels};
    edit::cmdModifierTitre_Click cmdModifierTitre{base, etats.ajout,      film, choixFonction, modesAjout,
                                                  avis, machine.dialogues};
    Saisies saisies{
        {etats.fonctions, etats.panneaux, etats.fiche, etats.liste, etats.ajout, film, etats.avis, etats.demandes},
        {choixFonction, modesAjout, montreFilm, afficheVolet, avis},
        machine.dialogues};
    RaccourcisClavier raccourcis{{etats.panneaux, etats.fiche, etats.ajout, film, etats.demandes},
                                 {saisies, choixFonction, modesAjout, cmdAjoutFilm, cmdModifierTitre, suppressionTitre,
                                  cmdValiderInfosPossessions, afficheVolet, afficheAccueil}};
    Demarrage demarrage{
        etats,
        chemins,
        extensions,
        instance,
        machine.dialogues,
        {option3, ouvertureBase, ouvertureJet, cmdChargeOuvreBase, baseAbsente, avis, choixTri, choixZone, *this}};
    Arret arret{etats, chemins, extensions, base, machine.dialogues};

    // What a change of base asks for.
    void AfficheAccueil() override { afficheAccueil(); }
    void reconstruitListe() override { creeRequeteAffichage.apresChangementDeBase(); }
    void RaffraichitBoitesDeroulantes() override { boitesDeroulantes.RaffraichitBoitesDeroulantes(); }
    void AfficheNbTitres() override { afficheNbTitres(); }
    void AffichageApresModification() override;

    void rouvreSiRemplacee();
    void relis();

    // Runs a command that may show something else than what is being typed; whatever followed the film follows it.
    void garde(const std::function<void()>& commande);
    // Runs a command that closes the base and opens one again.
    void surLaBase(const std::function<void()>& commande);
};

}  // namespace app
