#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include <sqlite3.h>

// Bare SQLite, for the floors: nothing but its own calls, and an exception when one fails.
namespace bench {

class Sqlite {
  public:
    explicit Sqlite(const std::string& chemin) {
        verifie(sqlite3_open_v2(chemin.c_str(), &m_base, SQLITE_OPEN_READWRITE, nullptr));
    }
    Sqlite(const Sqlite&) = delete;
    Sqlite& operator=(const Sqlite&) = delete;
    ~Sqlite() { sqlite3_close(m_base); }

    void execute(const char* sql) { verifie(sqlite3_exec(m_base, sql, nullptr, nullptr, nullptr)); }
    void verifie(int code) const {
        if (code != SQLITE_OK) throw std::runtime_error(m_base ? sqlite3_errmsg(m_base) : sqlite3_errstr(code));
    }
    [[nodiscard]] sqlite3* brut() const { return m_base; }

  private:
    sqlite3* m_base = nullptr;
};

class Enonce {
  public:
    Enonce(const Sqlite& base, const std::string& sql) : m_base(base) {
        base.verifie(sqlite3_prepare_v2(base.brut(), sql.c_str(), -1, &m_enonce, nullptr));
    }
    Enonce(const Enonce&) = delete;
    Enonce& operator=(const Enonce&) = delete;
    ~Enonce() { sqlite3_finalize(m_enonce); }

    bool ligne() {
        const int code = sqlite3_step(m_enonce);
        if (code != SQLITE_ROW && code != SQLITE_DONE) m_base.verifie(code);
        return code == SQLITE_ROW;
    }
    void recommence() { sqlite3_reset(m_enonce); }
    [[nodiscard]] std::string_view colonne(int rang) const {  // text or bytes, until the next row
        const auto* octets = static_cast<const char*>(sqlite3_column_blob(m_enonce, rang));
        return {octets ? octets : "", static_cast<std::size_t>(sqlite3_column_bytes(m_enonce, rang))};
    }
    [[nodiscard]] long long entier(int rang) const { return sqlite3_column_int64(m_enonce, rang); }

    // The bytes must outlive the next call of ligne.
    void lie(int rang, std::string_view texte) {
        sqlite3_bind_text(m_enonce, rang, texte.data(), static_cast<int>(texte.size()), SQLITE_STATIC);
    }
    void lieOctets(int rang, std::string_view octets) {
        sqlite3_bind_blob(m_enonce, rang, octets.data(), static_cast<int>(octets.size()), SQLITE_STATIC);
    }
    void lie(int rang, long long entier) { sqlite3_bind_int64(m_enonce, rang, entier); }
    void lieNull(int rang) { sqlite3_bind_null(m_enonce, rang); }

  private:
    const Sqlite& m_base;
    sqlite3_stmt* m_enonce = nullptr;
};

}  // namespace bench
