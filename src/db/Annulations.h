#pragma once

#include "db/Base.h"
#include "db/Chemins.h"
#include "db/FichiersChanges.h"

#include <any>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace db {

// The commands that changed the base, so that each can be taken back and made again: the rows by what SQLite recorded of
// them, the poster files by their bytes. They hold for the run and for the open base, the last ones only; they go when a
// command that cannot be recorded changed it. Nothing is ever applied to rows or files that are no longer what the
// command left.
class Annulations {
  public:
    static constexpr std::size_t kCommandesAuPlus = 250;  // with DepotDAnnulation::kEnMemoire, 64 MB
    static constexpr std::int64_t kOctetsAuPlus = DepotDAnnulation::kAuPlus;

    Annulations(Base& base, const Chemins& chemins) : m_base(base), m_chemins(chemins) {}

    // One command that was recorded.
    struct Commande {
        explicit Commande(const std::string& dossierTmp);

        int numero = 0;
        std::string quoi = "dernière modification";      // "suppression de « Alien »"
        std::string fait = "Modification enregistrée.";  // "« Alien » supprimé."
        std::any vues;                                   // what the window keeps with it
        DepotDAnnulation depot;
        dao::Enregistrement lignes;
        FichiersChanges fichiers;
    };

    // --- round each command ---
    void commence();
    enum class Fin { Rien, Annulable, Perdue };  // Perdue: it changed the base and cannot be taken back
    [[nodiscard]] Fin termine();
    [[nodiscard]] const std::string& manque() const { return m_manque; }  // of Perdue, to be told; may be empty

    // --- by the command that runs; each may be called when none is recorded ---
    // What the user is told of it: what "Annuler" takes back, and what was done.
    void nomme(std::string quoi, std::string fait);
    void vaChanger(const std::string& fichier);
    void aEcrit(const std::string& fichier, std::string_view octets);
    // It is not recorded from here on, and what came before can no longer be taken back. The user was told.
    void renonce();
    // So too where so many bytes are more than can be kept, or than there is room for: answers why, which the user is to be
    // told before anything changes. "": it will be recorded.
    [[nodiscard]] std::string renonceSiTropGrande(std::int64_t octets);
    // The same base was opened again, its rows under their ids.
    void suisLaBase();
    void oublie();  // all of them

    // --- taking back, making again ---
    [[nodiscard]] Commande* aAnnuler() { return m_faites.empty() ? nullptr : m_faites.back().get(); }
    [[nodiscard]] Commande* aRetablir() { return m_defaites.empty() ? nullptr : m_defaites.back().get(); }
    struct Issue {
        bool faite = false;
        std::string texte{};  // what prevented it
    };
    // The last one. One that what changed meanwhile prevents is given up; anything else leaves all as it was, a stop by
    // `avance` too. Throws dao::ErreurDao, which does so as well.
    [[nodiscard]] Issue annule(const dao::Avance& avance = {}) {
        return applique(m_faites, m_defaites, dao::Sens::Defaire, avance);
    }
    [[nodiscard]] Issue retablit(const dao::Avance& avance = {}) {
        return applique(m_defaites, m_faites, dao::Sens::Refaire, avance);
    }

  private:
    using Pile = std::deque<std::unique_ptr<Commande>>;  // the last one last

    [[nodiscard]] Issue applique(Pile& de, Pile& vers, dao::Sens sens, const dao::Avance& avance);
    [[nodiscard]] Issue appliqueAvecFichiers(Commande& commande, dao::Sens sens, const dao::Avance& avance);
    void retireFichiers(Commande& commande, dao::Sens sens);
    void limite();

    Base& m_base;
    const Chemins& m_chemins;
    std::unique_ptr<Commande> m_enCours;
    Pile m_faites, m_defaites;
    std::string m_manque;
    bool m_renonce = false;
    int m_numero = 0;
};

}  // namespace db
