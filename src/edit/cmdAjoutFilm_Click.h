#pragma once

#include "browse/AffichageApresModification.h"
#include "browse/AfficheNbTitres.h"
#include "browse/CreeEtAfficheRecherche.h"
#include "browse/EtatFiche.h"
#include "browse/EtatPanneaux.h"
#include "browse/MontreFilm.h"
#include "browse/SelectionneTitre.h"
#include "edit/Command13_Click.h"
#include "edit/EnregistreNouveauFilm.h"
#include "edit/TitreDejaExistant.h"
#include "platform/ecran/Avis.h"
#include "platform/systeme/Horloge.h"

#include <functional>
#include <string>

namespace edit {

// What the entry reads and writes. All of it outlives the command.
struct OutilsSaisie {
    db::Base& base;
    EtatAjout& ajout;
    browse::EtatFiche& fiche;
    db::EtatStockage& stockage;
    const db::Chemins& chemins;
    const browse::FilmCourant& courant;
    EnregistrementFilm& enregistrement;
    const Doublons& doublons;
    dialogues::Dialogues& dialogues;
    const systeme::Horloge& horloge;
};

// How the entry shows what it did. All of it outlives the command.
struct SuitesSaisie {
    browse::EtatListe& liste;
    browse::AffichageApresModification& affichageApresModification;
    browse::SelectionneTitre& selectionneTitre;
    browse::CreeEtAfficheRecherche& creeEtAfficheRecherche;
    browse::AfficheNbTitres& afficheNbTitres;
    browse::MontreFilm& montreFilm;
    browse::EtatPanneaux& panneaux;
    ModesAjout& modes;
    ecran::Avis& avis;
    std::function<void()> stockee = {};  // told as soon as the film is in the base
};

// Checks the manual entry and stores it. In add mode the film and its holding are added, the films of the day listed with
// the new one selected, and the page emptied for the next; in modify mode (caption of the button) the current film and
// its holding are rewritten, and the film shown again. Both rows are written, with the poster, or none of them.
class cmdAjoutFilm_Click {
  public:
    cmdAjoutFilm_Click(const OutilsSaisie& outils, const SuitesSaisie& suites) : m_outils(outils), m_suites(suites) {}

    // Throws db::RequeteEchouee after its message, or dao::ErreurDao.
    void operator()();

  private:
    // As they will be stored.
    struct Identite {
        std::string titre;
        std::string realisateur;
    };
    [[nodiscard]] std::string motifDeRefus(const Identite& film) const;  // empty: the entry is accepted
    [[nodiscard]] bool changeDeNom(const Identite& film) const;
    void ajoute(const Identite& film);
    // What is told of a film that was stored.
    struct Ajout {
        std::string possession;  // the holding it took over, described; "" when it has one of its own
        SortAffiche affiche = SortAffiche::Aucune;
    };
    // Throws db::EchecConversion when the poster cannot be stored.
    [[nodiscard]] Ajout enregistre(const Identite& film, const std::string& affiche, const std::string& date);
    // The holding of the film; one that no film had any more becomes its own, as it stands, and is described.
    [[nodiscard]] std::string possede(const Identite& film, dao::Recordset& orpheline);
    void annonce(const Identite& film, const Ajout& ajout);
    void montreLeFilmAjoute(const Identite& film, const std::string& date);
    [[nodiscard]] std::string choisitAffiche();
    [[nodiscard]] std::string motifDeRefusAffiche(const std::string& chemin) const;
    void annonceAffiche(const std::string& chemin);
    void modifie(const Identite& film);
    void remontre(const Identite& film);

    OutilsSaisie m_outils;
    SuitesSaisie m_suites;
};

}  // namespace edit
