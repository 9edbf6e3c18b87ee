#pragma once

#include "platform/dao/IndexDesFilms.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace dao::interne {

struct ColonneDeTable {
    std::string nom;
    bool numerique = false;  // declared so: its values order as numbers

    friend bool operator==(const ColonneDeTable&, const ColonneDeTable&) = default;
};

// What happened to a table's rows since the base was opened, as far as the open recordsets must know.
// A row id is never given twice while the base is open: a recordset's slot never meets another row under its id.
struct Suivi {
    [[nodiscard]] bool ecriteDepuis(long long ligne, std::uint64_t version) const {
        if (ecrites.empty()) return false;
        const auto trouvee = ecrites.find(ligne);
        return trouvee != ecrites.end() && trouvee->second > version;
    }
    [[nodiscard]] bool estSupprimee(long long ligne) const { return !supprimees.empty() && supprimees.contains(ligne); }

    std::unordered_map<long long, std::uint64_t> ecrites;
    std::unordered_set<long long> supprimees;
    std::vector<long long> supprimeesEnCours;  // by the open transaction
    long long plusHaute = 0;
    std::optional<long> compte;
    IndexDesFilms index;
};

// One table of an open base: its columns, and the follow-up of its rows.
struct Table {
    // The column's rank, or -1. Names are compared without case.
    [[nodiscard]] int rang(std::string_view colonne) const;
    // The name between the file engine's quotes.
    [[nodiscard]] std::string nomSql() const;
    [[nodiscard]] std::string colonneSql(int rangDeColonne) const;
    [[nodiscard]] bool estCle(int rangDeColonne) const {
        return rangDeColonne >= 0 && (rangDeColonne == titre || rangDeColonne == realisateur);
    }
    [[nodiscard]] bool memeForme(const Table& autre) const { return nom == autre.nom && colonnes == autre.colonnes; }
    [[nodiscard]] bool aUneCle() const { return titre >= 0 && realisateur >= 0; }

    std::string nom;
    std::string ligneSql;  // what the row id is called: "rowid", or another of its names when a column bears that one
    std::vector<ColonneDeTable> colonnes;
    int titre = -1;  // the columns that the program finds a film by
    int realisateur = -1;
    Suivi suivi{};
};

[[nodiscard]] std::string nomEntreGuillemets(std::string_view nom);

}  // namespace dao::interne
