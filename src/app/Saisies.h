#pragma once

#include "app/EtatFonctions.h"
#include "browse/AfficheVolet.h"
#include "browse/EtatPanneaux.h"
#include "browse/MontreFilm.h"
#include "edit/Command13_Click.h"
#include "edit/VoletAjout.h"
#include "platform/ecran/Avis.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace app {

// What the user is typing and has not stored: the page of entry, and the holdings of the current film. What a command
// drops of it is set aside, told in the notice line and brought back whole by "Reprendre"; what it merely reads again
// stays as it was typed.
class Saisies {
  public:
    // All of it outlives the window's commands.
    struct Montre {
        const EtatFonctions& fonctions;
        const browse::EtatPanneaux& panneaux;
        browse::EtatFiche& fiche;
        browse::EtatListe& liste;
        edit::EtatAjout& ajout;
        browse::FilmCourant& film;
        ecran::EtatAvis& avis;
        ecran::Demandes& demandes;
    };
    struct Gestes {
        edit::VoletAjout& volet;
        edit::ModesAjout& modes;
        browse::MontreFilm& montreFilm;
        browse::AfficheVolet& afficheVolet;
        ecran::Avis& avis;
    };
    Saisies(const Montre& montre, const Gestes& gestes, dialogues::Dialogues& dialogues)
        : m_montre(montre), m_gestes(gestes), m_dialogues(dialogues) {}

    // Runs a command that may hide, fill or read again what is being typed.
    void surveille(const std::function<void()>& commande);

    void retient() { m_retenus = textes(); }  // the page of entry was just filled: it holds nothing that would be lost
    void filmStocke() { m_filmStocke = true; }  // by the command that runs
    void possessionStockee() { m_possessionStockee = true; }

    [[nodiscard]] bool pageMontree() const;
    [[nodiscard]] bool pageEnSuspens() const { return pageMontree() && textes() != m_retenus; }
    [[nodiscard]] bool abandonnePage();  // asks where something would be lost; false: the user goes on typing
    [[nodiscard]] bool abandonneTout();  // the same for the holdings too
    // Takes up the entry of a new film that was set aside last; false when there is none.
    bool reprendAjout();
    // The notice line was closed: what it spoke of is given up.
    void oublie();

  private:
    using Textes = std::array<std::string, 9>;
    struct Identite {
        std::string titre, realisateur;
    };
    struct Page {
        Textes saisis, retenus;
        std::optional<Identite> corrige;  // none: a new film
    };
    struct Possession {
        Identite film;
        browse::ChampsPossession saisis, lus;
    };
    struct Saisie {
        std::optional<Page> page;
        std::optional<Possession> possession;
    };
    struct Avant {
        Saisie saisie;
        Identite film;
        bool page = false;
        int avis = 0;
    };

    [[nodiscard]] Textes textes() const;
    void ecrit(const Textes& textes);
    [[nodiscard]] Avant avant() const;
    void apres(Avant avant);
    [[nodiscard]] bool pageGardee(const Page& page);
    [[nodiscard]] bool possessionGardee(const Possession& possession);
    void remet(const Possession& possession);
    void laisse(Saisie saisie);
    void rappelle(const Avant& avant);
    void propose(int numero, const std::string& texte);
    void reprend(int numero);
    void reprendPage(const Page& page);
    [[nodiscard]] bool reprendPossession(const Possession& possession);
    [[nodiscard]] bool demandeAbandon(const std::string& quoi);

    struct Laissee {
        int numero;
        Saisie saisie;
    };
    Montre m_montre;
    Gestes m_gestes;
    dialogues::Dialogues& m_dialogues;
    Textes m_retenus;
    std::vector<Laissee> m_laissees;  // the last one last
    int m_numero = 0;                 // of the last one
    int m_proposee = 0, m_avis = 0;   // the one that the line offers, and its notice
    bool m_filmStocke = false, m_possessionStockee = false;
};

}  // namespace app
