#pragma once

#include "platform/dao/Database.h"
#include "platform/dao/Enregistrement.h"
#include "platform/dao/Poignee.h"
#include "platform/dao/Souffle.h"
#include "platform/dao/Table.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sys/types.h>

namespace dao::interne {

class Enregistreur;
class Jeu;

// One open file: its prepared statements, its tables, its transaction, the recordsets that stand on it.
class Connexion {
  public:
    Connexion(Poignee base, std::string nom);
    Connexion(const Connexion&) = delete;
    Connexion& operator=(const Connexion&) = delete;
    ~Connexion();

    [[nodiscard]] sqlite3* brute() const { return m_base.brute(); }
    [[nodiscard]] const std::string& nom() const { return m_nom; }

    [[nodiscard]] Requete prepare(const std::string& sql) {
        exigeTransaction();
        return m_base.prepare(sql);
    }
    void execute(std::string_view sql);  // any statements, prepared for this once

    // Throws ErreurDao 3078. The table lives as long as the connection.
    [[nodiscard]] Table& table(std::string_view nom);
    void declareCles(std::vector<Cle> cles);

    void commence();
    void confirme();
    void annule();
    // Between commence and confirme or annule.
    [[nodiscard]] bool estCommencee() const { return m_commencee; }
    // Ends a transaction that was given up and could not be rolled back then, for want of memory.
    void acheveLeReste();
    // What the file engine says: it ends a transaction by itself when the disk is full or fails.
    [[nodiscard]] bool enTransaction() const;

    // Looks whether another program changed the file, and if so throws away what is known of its rows. Throws ErreurDao
    // 3024 when the base's path no longer leads to the file that was opened.
    void veille();
    [[nodiscard]] Emplacement emplacement() const;
    [[nodiscard]] std::uint32_t numero() const { return m_numero; }  // of this opening, among those of the program
    // Grows when everything known before may be wrong.
    [[nodiscard]] std::uint64_t epoque() const { return m_epoque; }
    // Grows with each change to a row.
    [[nodiscard]] std::uint64_t version() const { return m_version; }
    std::uint64_t nouvelleVersion() { return ++m_version; }

    // What Database::enregistre says of a recording; while there is one, every change belongs to a transaction.
    bool enregistre(Enregistrement* suite);
    [[nodiscard]] bool estEnregistree() const { return m_enregistreur != nullptr; }
    void noteModification();  // a row is about to be modified
    void soulageLEnregistrement();
    // As after another program's change. What was known of the rows goes to `anciens`, which has a place for each table.
    void relisToutesLesLignes(std::vector<AncienSuivi>& anciens) noexcept;
    [[nodiscard]] std::size_t nombreDeTables() const { return m_tables.size(); }

    // Between two rows of whatever is read at length (Database::respireAvec).
    void respireAvec(Souffle souffle) { m_souffle = std::move(souffle); }
    void respire() {
        if (m_souffle) m_souffle();
    }
    void respireEntreDeuxLignes() { m_entreDeuxLignes(); }  // once in so many
    [[nodiscard]] const Souffle& souffle() const { return m_souffle; }

    void inscrit(Jeu& jeu) { m_jeux.push_back(&jeu); }
    void desinscrit(Jeu& jeu) { std::erase(m_jeux, &jeu); }

  private:
    friend class Regard;
    void suitLeFichier();
    void relitLesTables();
    void oublieLesLignes();
    [[nodiscard]] long long versionDuFichier() { return m_base.entier("PRAGMA data_version"); }
    void exigeEnPlace() const;
    void exigeTransaction() const;  // the one that was begun is still there; throws ErreurDao 3043

    inline static std::uint32_t s_ouvertes = 0;

    Poignee m_base;
    std::string m_nom;
    const std::uint32_t m_numero = ++s_ouvertes;
    std::optional<std::pair<dev_t, ino_t>> m_fichier;                     // the one that was opened
    std::map<std::string, std::unique_ptr<Table>, std::less<>> m_tables;  // by lower-case name
    std::vector<Cle> m_cles;
    std::vector<Jeu*> m_jeux;
    bool m_commencee = false;
    int m_regards = 0;  // open, each with the transaction in it
    std::uint64_t m_epoque = 0;
    std::uint64_t m_version = 0;
    long long m_versionDuFichier = 0;
    Souffle m_souffle;
    Cadence m_entreDeuxLignes{m_souffle};
    std::unique_ptr<Enregistreur> m_enregistreur;
    bool m_dejaEnregistree = false;
};

// One state of the file, and one lock on it, for several readings.
class Regard {
  public:
    explicit Regard(Connexion& connexion);
    Regard(const Regard&) = delete;
    Regard& operator=(const Regard&) = delete;
    ~Regard();

  private:
    Connexion& m_connexion;
    bool m_ouvert = false;
};

// Reads the columns of a table. Null when the base has no plain table of that name.
[[nodiscard]] std::unique_ptr<Table> litTable(Connexion& connexion, std::string_view nom);

}  // namespace dao::interne
