#pragma once

#include "app/Contexte.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace app {

// What the user is typing and has not stored: the page of entry, and the holdings of the current film. What a command
// drops of it is set aside, told in the notice line and brought back whole by "Reprendre"; what it merely reads again
// stays as it was typed.
class Saisies final : public edit::Accompagnement {
  public:
    explicit Saisies(const Contexte& c) : m_c(c) {}  // which outlives it

    // Runs a command, which may hide, fill or read again what is being typed.
    void surveille(const std::function<void()>& commande);

    void retient() { m_retenus = textes(); }  // the page of entry was just filled: it holds nothing that would be lost
    void montreVoletAjout() override;
    void filmStocke() override { m_filmStocke = true; }  // by the command that runs
    void possessionStockee() override { m_possessionStockee = true; }

    [[nodiscard]] bool pageMontree() const;
    [[nodiscard]] bool pageEnSuspens() const { return pageMontree() && textes() != m_retenus; }
    [[nodiscard]] bool abandonnePage();  // asks where something would be lost; false: the user goes on typing
    [[nodiscard]] bool abandonneTout();  // the same for the holdings too
    // Takes up the entry of a new film that was set aside last; false when there is none.
    bool reprendAjout();
    // The notice line offers what was set aside.
    [[nodiscard]] bool parle() const;
    // The notice line was closed: what it spoke of is given up.
    void oublie();

  private:
    using Textes = std::array<std::string, 9>;
    struct Page {
        Textes saisis, retenus;
        std::optional<db::CleFilm> corrige;  // none: a new film
    };
    struct Possession {
        db::CleFilm film;
        browse::ChampsPossession saisis, lus;
    };
    struct Saisie {
        std::optional<Page> page;
        std::optional<Possession> possession;
    };
    struct Avant {
        Saisie saisie;
        db::CleFilm film;
        bool page = false;
        int avis = 0;
    };

    [[nodiscard]] Textes textes() const;
    void ecrit(const Textes& textes);
    [[nodiscard]] Avant avant() const;
    void apres(Avant avant);
    [[nodiscard]] bool pageGardee(const Page& page);
    [[nodiscard]] bool possessionGardee(const Possession& possession);
    void rendCourant(const db::CleFilm& film);
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
    const Contexte& m_c;
    Textes m_retenus;
    std::vector<Laissee> m_laissees;  // the last one last
    int m_numero = 0;                 // of the last one
    int m_proposee = 0, m_avis = 0;   // the one that the line offers, and its notice
    bool m_filmStocke = false, m_possessionStockee = false;
};

}  // namespace app
