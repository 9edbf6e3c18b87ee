#include "app/Session.h"

#include "app/Annulation.h"
#include "app/Arret.h"
#include "app/BaseAbsente.h"
#include "app/Demarrage.h"
#include "app/Filtre.h"
#include "app/Saisies.h"
#include "browse/AfficheAccueil.h"
#include "browse/AfficheVolet.h"
#include "browse/SelectionneTitre.h"
#include "browse/SuitesDeLaBase.h"
#include "db/OuvertureBase.h"
#include "db/Requete.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/FinDuProgramme.h"
#include "platform/systeme/InstanceUnique.h"

#include <utility>

namespace app {

namespace {

// In the window's title, and where the user is told which base he works with.
void nommeLaBase(const Contexte& c) {
    const bool ouverte = c.base.base.estOuverte();
    const std::string nom = fichiers::nomDeFichier(c.chemins.base);
    c.etats.frmPrincipal.Caption = ouverte ? nom + " - Ambrelis" : "Ambrelis";
    c.etats.fonctions.lblCheminBase.Caption = ouverte ? c.chemins.base : "";
    c.etats.ajout.lblBaseOuImporter.Caption = ouverte ? "Base complétée : " + c.chemins.base : "";
}

}  // namespace

// What a session owns, and the one context that leads to it.
struct Session::Rouages {
    Rouages(const Machine& m, Etats& etats)
        : chemins(db::Chemins::depuis(m.dossierProgramme)),
          avis(etats.avis),
          visionneuse(etats.affiche, chemins),
          fenetre{{m.dialogues, m.ecran, m.images, m.horloge, m.documents, m.programmes, m.volumes, avis,
                   etats.demandes, etats.travaux, base, chemins, etats.stockage, suites, annulations, m.montre},
                  etats.liste,
                  etats.recherche,
                  etats.fiche,
                  etats.panneaux,
                  film,
                  &visionneuse},
          contexte{{{fenetre, etats.ajout, etats.multiSuppression, saisies}, etats.fonctions.chkLancerConnexion},
                   etats,
                   {fenetre, visionneuse, etats.fichiers, extensions,
                    [&etats](int noeud) { return etats.filtre.titres.estVu(etats.liste.TreeView1.Nodes, noeud); }},
                   {fenetre, etats.nom},
                   extensions,
                   saisies,
                   arbreRelu} {}

    bool enMarche = false;                  // between a start that held and the shut-down
    bool arbreRelu = false;                 // since the gesture that the running command answers
    int volet = browse::kVoletGeneralites;  // the page that was open before the layout showed both

    systeme::InstanceUnique instance;
    db::Chemins chemins;
    db::Base base;
    db::Annulations annulations{base, chemins};
    browse::FilmCourant film;
    view::TableExtensions extensions;
    ecran::Avis avis;
    view::Visionneuse visionneuse;
    Saisies saisies{contexte};
    browse::SuitesDeLaBase suites{fenetre};
    const browse::Contexte fenetre;  // what the others begin with
    const Contexte contexte;
    BaseAbsente baseAbsente{contexte};
    Annulation annulation{contexte};
    Demarrage demarrage{contexte, instance, baseAbsente};
};

Session::Session(const Machine& machine) : m_rouages(std::make_unique<Rouages>(machine, etats)) {}

Session::~Session() = default;

const Contexte& Session::contexte() const {
    return m_rouages->contexte;
}

void Session::accompagne(const std::function<void()>& commande) {
    const auto suite = [&c = contexte()] {
        if (!c.panneaux.frameMultiSuppression.Visible) edit::rangeMultiSuppression(c);
        suisLesRecherches(c);
        montreCoches(c);
        if (!c.film.estUnFilm()) c.etats.fichiers.Visible = false;
        nommeLaBase(c);
    };
    m_rouages->avis.nouvelleCommande();
    try {
        m_rouages->annulation.surveille(commande);
    } catch (const systeme::FinDuProgramme&) {
        m_rouages->enMarche = false;  // no base is open: the settings keep the one they name
        throw;
    } catch (...) {
        suite();
        throw;
    }
    m_rouages->baseAbsente.suisLaBase();
    suite();
}

void Session::Form_Load() {
    m_rouages->demarrage.execute();
    nommeLaBase(contexte());
    m_rouages->enMarche = true;
}

void Session::Form_Activate() {
    m_rouages->demarrage.acheve();
}

void Session::Form_Unload() {
    if (!std::exchange(m_rouages->enMarche, false)) return;
    arrete(contexte(), m_rouages->demarrage.reglagesLus());
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
    if (etats.panneaux.frameFiche.Visible) browse::AfficheVolet(contexte(), m_rouages->volet);
}

void Session::vaCommencer() {
    m_rouages->arbreRelu = false;
    m_rouages->annulation.parleAvant(false);
    const dao::Database& base = m_rouages->base.base;
    if (!m_rouages->enMarche || !base.estOuverte() || base.emplacement() != dao::Emplacement::Remplacee) return;
    if (!db::rouvreLaBase(contexte())) return;  // the command will be told what is so
    m_rouages->arbreRelu = true;
    m_rouages->avis.montre("La base a été remplacée par un autre programme : elle a été rouverte.");
    m_rouages->annulation.parleAvant(true);
    try {
        accompagne([this] { relis(); });
    } catch (const db::RequeteEchouee&) {  // its message was shown
    }
}

// The film on the sheet stays, with what was typed about it, as long as the listing has it.
void Session::relis() {
    const Contexte& c = contexte();
    browse::FilmCourant courant = c.film;
    m_rouages->suites.AffichageApresModification();
    m_rouages->suites.AfficheNbTitres();
    if (!courant.estUnFilm()) return;
    const int noeud = browse::noeudDuFilm(c, courant);
    if (noeud == 0) return browse::AfficheAccueil(c);
    courant.cle = c.liste.cleCliquee = c.liste.TreeView1.Nodes.Key(noeud);
    c.liste.TreeView1.SelectedItem = c.liste.noeudChoisi = noeud;
    c.film = std::move(courant);
}

void Session::expliqueEchec(const std::string& raison) {
    if (!raison.empty()) m_rouages->avis.montre(raison);
}

}  // namespace app
