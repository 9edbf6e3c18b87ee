#pragma once

#include "browse/AffichageApresModification.h"
#include "browse/AfficheNbTitres.h"
#include "browse/CreeEtAfficheRecherche.h"
#include "browse/EtatFiche.h"
#include "browse/SelectionneTitre.h"
#include "edit/EnregistreNouveauFilm.h"
#include "edit/ListesDeSaisie.h"
#include "edit/TitreDejaExistant.h"
#include "platform/systeme/Horloge.h"

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
    ListesDeSaisie& listes;
};

// Checks the manual entry and stores it. In add mode the film and its holding are added, and the films of the day shown;
// in modify mode (caption of the button) the current film and its holding are rewritten, and the film shown again.
// Both rows are written or neither.
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
    [[nodiscard]] std::string choisitAffiche();
    [[nodiscard]] std::string motifDeRefusAffiche(const std::string& chemin) const;
    void annonceAffiche(const std::string& chemin);
    void montreAjoutsDuJour(const std::string& date);
    void modifie(const Identite& film);

    OutilsSaisie m_outils;
    SuitesSaisie m_suites;
};

}  // namespace edit
