#include "app/Rouages.h"

#include "platform/systeme/FinDuProgramme.h"

#include <utility>

namespace app {

Session::Rouages::Rouages(const Machine& laMachine, Etats& lesEtats) : machine(laMachine), etats(lesEtats) {}

void Session::Rouages::garde(const std::function<void()>& commande) {
    const auto suite = [this] {
        if (!etats.panneaux.frameMultiSuppression.Visible) multiSuppression.range();
        if (!film.estUnFilm()) etats.fichiers.Visible = false;
    };
    try {
        saisies.surveille(commande);
    } catch (...) {
        suite();
        throw;
    }
    suite();
}

void Session::Rouages::surLaBase(const std::function<void()>& commande) {
    try {
        commande();
    } catch (const systeme::FinDuProgramme&) {
        enMarche = false;  // no base is open: the settings keep the one they name
        throw;
    }
    baseAbsente.suisLaBase();
}

void Session::Rouages::AffichageApresModification() {
    const browse::EtatPanneaux panneaux = etats.panneaux;
    creeRequeteAffichage.apresReouverture([this] { affichageApresModification(); });
    etats.panneaux = panneaux;
}

void Session::Rouages::rouvreSiRemplacee() {
    arbreRelu = false;
    if (!enMarche || !base.base.estOuverte() || base.base.emplacement() != dao::Emplacement::Remplacee) return;
    if (!ouvertureBase.rouvre()) return;  // the command will be told what is so
    arbreRelu = true;
    avis.montre("La base a été remplacée par un autre programme : elle a été rouverte.");
    try {
        garde([this] { relis(); });
    } catch (const db::RequeteEchouee&) {  // its message was shown
    }
}

// The film on the sheet stays, with what was typed about it, as long as the listing has it.
void Session::Rouages::relis() {
    browse::FilmCourant courant = film;
    AffichageApresModification();
    AfficheNbTitres();
    if (!courant.estUnFilm()) return;
    const int noeud = selectionneTitre.noeud(courant.titre, courant.realisateur);
    if (noeud == 0) return afficheAccueil();
    courant.cle = etats.liste.cleCliquee = etats.liste.TreeView1.Nodes.Key(noeud);
    etats.liste.TreeView1.SelectedItem = etats.liste.noeudChoisi = noeud;
    film = std::move(courant);
}

}  // namespace app
