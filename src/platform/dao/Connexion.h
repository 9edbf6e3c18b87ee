#pragma once

#include "platform/dao/Database.h"
#include "platform/dao/Table.h"
#include "platform/dao/Valeur.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <sys/types.h>

struct sqlite3;
struct sqlite3_stmt;

namespace dao::interne {

class Jeu;

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
    [[nodiscard]] sqlite3_stmt* brute() const { return m_brute; }

  private:
    sqlite3* m_base;
    sqlite3_stmt* m_brute;
};

// One open file: its prepared statements, its tables, its transaction, the recordsets that stand on it.
class Connexion {
  public:
    Connexion(sqlite3* base, std::string nom);  // takes the base over
    Connexion(const Connexion&) = delete;
    Connexion& operator=(const Connexion&) = delete;
    ~Connexion();

    [[nodiscard]] sqlite3* brute() const { return m_base; }
    [[nodiscard]] const std::string& nom() const { return m_nom; }

    // Prepared once for each text. The same text must not be asked for again while it is in use.
    [[nodiscard]] Requete prepare(const std::string& sql);
    void execute(std::string_view sql);  // any statements, prepared for this once

    // Throws ErreurDao 3078. The table lives as long as the connection.
    [[nodiscard]] Table& table(std::string_view nom);

    void commence();
    void confirme();
    void annule();
    // Between commence and confirme or annule.
    [[nodiscard]] bool estCommencee() const { return m_commencee; }
    // What the file engine says: it ends a transaction by itself when the disk is full or fails.
    [[nodiscard]] bool enTransaction() const;

    // Looks whether another program changed the file, and if so throws away what is known of its rows. Throws ErreurDao
    // 3024 when the base's path no longer leads to the file that was opened.
    void veille();
    [[nodiscard]] Emplacement emplacement() const;
    // Grows when everything known before may be wrong.
    [[nodiscard]] std::uint64_t epoque() const { return m_epoque; }
    // Grows with each change to a row.
    [[nodiscard]] std::uint64_t version() const { return m_version; }
    std::uint64_t nouvelleVersion() { return ++m_version; }

    void inscrit(Jeu& jeu) { m_jeux.push_back(&jeu); }
    void desinscrit(Jeu& jeu) { std::erase(m_jeux, &jeu); }

  private:
    void suitLeFichier();
    void relitLesTables();
    void oublieLesLignes();
    long long versionDuFichier();
    void exigeEnPlace() const;

    sqlite3* m_base;
    std::string m_nom;
    std::optional<std::pair<dev_t, ino_t>> m_fichier;  // the one that was opened
    std::unordered_map<std::string, sqlite3_stmt*> m_requetes;
    std::map<std::string, std::unique_ptr<Table>, std::less<>> m_tables;  // by lower-case name
    std::vector<Jeu*> m_jeux;
    bool m_commencee = false;
    std::uint64_t m_epoque = 0;
    std::uint64_t m_version = 0;
    long long m_versionDuFichier = 0;
};

// Reads the columns of a table. Null when the base has no plain table of that name.
[[nodiscard]] std::unique_ptr<Table> litTable(Connexion& connexion, std::string_view nom);

}  // namespace dao::interne
