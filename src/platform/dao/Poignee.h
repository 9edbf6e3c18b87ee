#pragma once

#include "platform/dao/AccesValeur.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace dao::interne {

// A prepared statement in use: given back, reset, when it goes. Values are bound before the first row is asked for.
class Requete {
  public:
    Requete(sqlite3* base, sqlite3_stmt* brute) : m_base(base), m_brute(brute) {}
    Requete(const Requete&) = delete;
    Requete& operator=(const Requete&) = delete;
    ~Requete();

    Requete& lie(int rang, long long entier);
    Requete& lie(int rang, const Valeur& valeur);
    bool avance();  // to the next row, if there is one; throws ErreurDao
    void execute();
    [[nodiscard]] long long entier(int colonne) const;
    [[nodiscard]] Valeur valeur(int colonne) const;
    [[nodiscard]] ValeurVue vue(int colonne) const;  // until the next row

  private:
    sqlite3* m_base;
    sqlite3_stmt* m_brute;
};

// An SQLite handle and its prepared statements.
class Poignee {
  public:
    Poignee(const std::string& chemin, int options);

    [[nodiscard]] sqlite3* brute() const { return m_base.get(); }
    // Prepared once for each text. The same text must not be asked for again while it is in use.
    [[nodiscard]] Requete prepare(const std::string& sql);
    [[nodiscard]] int essaie(const std::string& sql);  // any statements, prepared for this once; answers SQLite's code
    void execute(const std::string& sql);

    // Of a statement with one column: its first row, and all of its rows as text.
    [[nodiscard]] long long entier(const std::string& sql);
    [[nodiscard]] std::vector<std::string> textes(const std::string& sql);

  private:
    struct Ferme {
        void operator()(sqlite3* base) const;  // rolls back what was not confirmed
        void operator()(sqlite3_stmt* requete) const;
    };
    std::unique_ptr<sqlite3, Ferme> m_base;
    std::unordered_map<std::string, std::unique_ptr<sqlite3_stmt, Ferme>> m_requetes;
};

// What SQLite takes for the base's own where it stands beside it came from wherever the base did. A pipe would be waited
// for; and a journal that ends as those of several bases do names a file that SQLite deletes, whichever it is. Throws
// ErreurDao 3343 where one of them is so.
void exigeJournauxSimples(const std::string& chemin);

// Opens an existing base as DBEngine::OpenDatabase says, and throws what it throws.
[[nodiscard]] Poignee ouvreBase(const std::string& chemin, bool exclusif);

}  // namespace dao::interne
