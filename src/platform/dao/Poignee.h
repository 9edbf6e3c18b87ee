#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace dao::interne {

// An SQLite handle that is closed unless it is handed on.
class Poignee {
  public:
    Poignee(const std::string& chemin, int options);
    Poignee(const Poignee&) = delete;
    Poignee& operator=(const Poignee&) = delete;
    ~Poignee();

    [[nodiscard]] sqlite3* brute() const { return m_base; }
    sqlite3* cede() { return std::exchange(m_base, nullptr); }

    void regle(int reglage, int valeur);
    int essaie(const std::string& sql);
    void execute(const std::string& sql);
    void execute(const std::string& sql, const std::string& parametre);

    // Of a statement with one column: its first row, and all of its rows as text.
    long long entier(const std::string& sql);
    std::vector<std::string> textes(const std::string& sql);

  private:
    [[nodiscard]] sqlite3_stmt* prepare(const std::string& sql);

    sqlite3* m_base = nullptr;
};

// Opens an existing base as DBEngine::OpenDatabase says, and throws what it throws.
[[nodiscard]] std::unique_ptr<Poignee> ouvreBase(const std::string& chemin, bool exclusif);

}  // namespace dao::interne
