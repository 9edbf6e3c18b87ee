#pragma once

#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace doubles {

// The fields of a row by their names; nothing for Null. A poster is "STO <bytes> <sha256>".
using LigneJson = std::map<std::string, std::optional<std::string>>;

// The rows that a table of real data is said to hold, in their order. Throws when the file cannot be understood.
inline std::vector<LigneJson> litCollection(const std::string& chemin, const std::string& table) {
    std::ifstream flux(chemin, std::ios::binary);
    const std::string json{std::istreambuf_iterator<char>(flux), {}};
    sqlite3* base = nullptr;
    sqlite3_stmt* lignes = nullptr;
    sqlite3_open(":memory:", &base);
    sqlite3_prepare_v2(
        base,
        "SELECT l.key, c.key, CASE c.type WHEN 'object' THEN json_extract(c.value, '$.prefixe') || ' ' ||"
        " json_extract(c.value, '$.octets') || ' ' || json_extract(c.value, '$.sha256') ELSE c.value END"
        " FROM json_each(?1, '$.' || ?2) AS l, json_each(l.value) AS c ORDER BY l.key",
        -1, &lignes, nullptr);
    sqlite3_bind_text(lignes, 1, json.data(), static_cast<int>(json.size()), SQLITE_STATIC);
    sqlite3_bind_text(lignes, 2, table.data(), static_cast<int>(table.size()), SQLITE_STATIC);
    const auto texte = [lignes](int colonne) {
        const auto* octets = reinterpret_cast<const char*>(sqlite3_column_text(lignes, colonne));
        return octets ? std::optional(std::string(octets, sqlite3_column_bytes(lignes, colonne))) : std::nullopt;
    };
    std::vector<LigneJson> resultat;
    int etat = SQLITE_ROW;
    while ((etat = sqlite3_step(lignes)) == SQLITE_ROW) {
        resultat.resize(sqlite3_column_int64(lignes, 0) + 1);
        resultat.back()[texte(1).value_or("")] = texte(2);
    }
    sqlite3_finalize(lignes);
    sqlite3_close(base);
    if (etat != SQLITE_DONE) throw std::runtime_error("not understood: " + chemin);
    return resultat;
}

}  // namespace doubles
