#pragma once

#include "platform/dao/Ecriture.h"

#include <compare>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace dao::interne {

// A field that a recordset shows: a column of one of its tables.
struct ChampDeJeu {
    RangTable table;
    RangColonne colonne;
    friend auto operator<=>(const ChampDeJeu&, const ChampDeJeu&) = default;
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
    [[nodiscard]] virtual long place() const { return -1; }  // of the current record, where they have places

    // None: no such field, reading it gives "".
    [[nodiscard]] std::optional<RangChamp> rang(std::string_view nom) const;
    [[nodiscard]] std::optional<RangChamp> rangDeParcours(std::string_view nom);  // for `vue` over many records
    [[nodiscard]] Valeur valeur(std::optional<RangChamp> rangDeChamp);
    [[nodiscard]] std::string_view vue(std::optional<RangChamp> rangDeChamp);  // until the next call

    void nouveau();
    void edite();
    void assigne(std::string_view nom, const Valeur& valeur);
    void ecrit();
    void supprime();

    void perdLaBase() { m_connexion = nullptr; }
    virtual void allege() {}  // what is kept beside the row ids is read from the base from now on

  protected:
    Jeu(Connexion& connexion, Par<RangTable, Table*> tables, Par<RangChamp, ChampDeJeu> champs);

    [[nodiscard]] bool estSur(const Connexion& connexion) const { return m_connexion == &connexion; }
    [[nodiscard]] Connexion& connexion() const;  // throws 3420 when the base was closed
    [[nodiscard]] const Par<RangTable, Table*>& tables() const { return m_tables; }
    [[nodiscard]] Table& table(RangTable rang) const { return *m_tables[rang]; }
    [[nodiscard]] Valeur litDansLaBase(ChampDeJeu champ, long long ligne) const;

    // The current record: whether there is one, and the row of each of its tables (null: a join without partner).
    virtual void premier() = 0;
    virtual void pas(long nombre) = 0;
    [[nodiscard]] virtual bool estAuBout() const = 0;
    [[nodiscard]] virtual bool aUnCourant() const = 0;
    [[nodiscard]] virtual const long long* ligne(RangTable table) = 0;
    [[nodiscard]] virtual long combien() = 0;
    [[nodiscard]] virtual Valeur lit(ChampDeJeu champ) = 0;
    virtual void vaParcourir(ChampDeJeu) {}
    // True with the text when it is at hand without asking the base for this field alone.
    [[nodiscard]] virtual bool litVue(ChampDeJeu champ, std::string_view& texte) = 0;
    [[nodiscard]] virtual bool estModifiable() const { return true; }
    virtual void accueille(const Par<RangTable, long long>& lignes) = 0;  // a new record, added at the end

  private:
    enum class Edition { Aucune, Nouveau, Courant };
    void exigeOuvert() const;
    void exigeCourant();
    void exigeModifiable() const;
    void ecritLignes(Connexion& base);
    void supprimeLaLigne(Table& table, long long ligne);
    [[nodiscard]] Assignees assigneesDe(RangTable table) const;

    Connexion* m_connexion;
    Par<RangTable, Table*> m_tables;
    Par<RangChamp, ChampDeJeu> m_champs;
    Edition m_edition = Edition::Aucune;
    std::map<ChampDeJeu, Valeur> m_assignations;
    std::string m_tampon;  // what vue answers from when the base was asked
};

}  // namespace dao::interne
