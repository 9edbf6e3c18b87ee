#pragma once

#include "platform/dao/Connexion.h"
#include "platform/dao/Valeur.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dao::interne {

// A field that a recordset shows: a column of one of its tables.
struct ChampDeJeu {
    int table = 0;
    int colonne = 0;
};

// What a recordset is underneath. Positions and reading are its kinds' own; editing is the same for all.
class Jeu {
  public:
    Jeu(const Jeu&) = delete;
    Jeu& operator=(const Jeu&) = delete;
    virtual ~Jeu();

    void vaAuDebut();
    void deplace(long pas);
    [[nodiscard]] bool fini() const;
    [[nodiscard]] long compte();

    [[nodiscard]] int rang(std::string_view nom) const;      // -1: no such field
    [[nodiscard]] int rangDeParcours(std::string_view nom);  // the same, for `vue` over many records
    [[nodiscard]] Valeur valeur(int rangDeChamp);
    [[nodiscard]] std::string_view vue(int rangDeChamp);  // until the next call

    void nouveau();
    void edite();
    void assigne(std::string_view nom, const Valeur& valeur);
    void ecrit();
    void supprime();

    void perdLaBase() { m_connexion = nullptr; }

  protected:
    Jeu(Connexion& connexion, std::vector<Table*> tables, std::vector<ChampDeJeu> champs);

    [[nodiscard]] Connexion& connexion() const;  // throws 3420 when the base was closed
    [[nodiscard]] Table& table(int rangDeTable) const { return *m_tables[static_cast<std::size_t>(rangDeTable)]; }
    [[nodiscard]] int nombreDeTables() const { return static_cast<int>(m_tables.size()); }
    [[nodiscard]] Valeur litDansLaBase(ChampDeJeu champ, long long ligne) const;

    // The current record: whether there is one, and the row of each of its tables (null: a join without partner).
    virtual void premier() = 0;
    virtual void pas(long nombre) = 0;
    [[nodiscard]] virtual bool estAuBout() const = 0;
    [[nodiscard]] virtual bool aUnCourant() const = 0;
    [[nodiscard]] virtual const long long* ligne(int rangDeTable) = 0;
    [[nodiscard]] virtual long combien() = 0;
    [[nodiscard]] virtual Valeur lit(ChampDeJeu champ) = 0;
    virtual void vaParcourir(ChampDeJeu) {}
    // True with the text when it is at hand without asking the base for this field alone.
    [[nodiscard]] virtual bool litVue(ChampDeJeu champ, std::string_view& texte) = 0;
    [[nodiscard]] virtual bool estModifiable() const { return true; }
    virtual void accueille(const std::vector<long long>& lignes) = 0;  // a new record, added at the end

  private:
    enum class Edition { Aucune, Nouveau, Courant };
    using Assignations = std::map<std::pair<int, int>, Valeur>;  // by table and column

    void exigeOuvert() const;
    void exigeCourant();
    void exigeModifiable() const;
    void ecritLignes(Connexion& base);
    [[nodiscard]] std::vector<std::pair<int, Valeur>> assigneesDe(int rangDeTable) const;

    Connexion* m_connexion;
    std::vector<Table*> m_tables;
    std::vector<ChampDeJeu> m_champs;
    Edition m_edition = Edition::Aucune;
    Assignations m_assignations;
    std::string m_tampon;  // what vue answers from when the base was asked
};

}  // namespace dao::interne
