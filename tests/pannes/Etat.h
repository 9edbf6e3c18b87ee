#pragma once

#include <map>
#include <set>
#include <string>

struct sqlite3;

namespace pannes {

// What a folder holds for its user. Of each base the rows, a poster standing in its row as its bytes, wherever they are
// kept; of a file that is no base of ours its bytes. The witness is left out, and what another program adds.
using Lignes = std::map<std::string, std::string>;
struct Etat {
    std::map<std::string, Lignes> bases;          // by file
    std::map<std::string, std::string> fichiers;  // all but the bases, the settings and what is at work
    std::set<std::string> fiches,
        fichesCopiees;    // the rows without their posters: of the bases, of their safety copies
    std::string dommage;  // what no base may have

    static Etat de(const std::string& dossier);
    bool operator==(const Etat&) const = default;

    // The same films, holdings and posters, whatever their row ids; holdings of no film apart, which a compaction drops.
    [[nodiscard]] bool memesFilms(const Etat& autre) const;
    // What of it stands neither in the one nor in the other; "" when all does.
    [[nodiscard]] std::string ecart(const Etat& avant, const Etat& apres, bool entiere) const;
};

// Files at work, which may stand there while the program runs.
[[nodiscard]] bool estDeTravail(const std::string& nom);
[[nodiscard]] long noteDe(const char* titre, const std::string& base);  // of a film; -1 without it

// Somebody else with the same base.
class AutreProgramme {
  public:
    explicit AutreProgramme(const std::string& base);
    AutreProgramme(const AutreProgramme&) = delete;
    AutreProgramme& operator=(const AutreProgramme&) = delete;
    ~AutreProgramme();
    void execute(const std::string& sql);

  private:
    sqlite3* m_base;
};

}  // namespace pannes
