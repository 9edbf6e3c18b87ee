#pragma once

#include "platform/dao/Plan.h"

#include <optional>
#include <string>
#include <vector>

struct sqlite3_blob;

namespace dao::interne {

// The statement that reads a plan's columns from one of its tables, whole or by row id.
[[nodiscard]] std::string enonceDeLecture(const TableDuPlan& table, bool parLigne);

// The rows of one table of a plan that pass the table's own filters, in no order.
class Balayage {
  public:
    Balayage(Connexion& connexion, const TableDuPlan& table, int rangDeTable,
             std::optional<long long> ligne = std::nullopt);
    Balayage(const Balayage&) = delete;
    Balayage& operator=(const Balayage&) = delete;
    ~Balayage();

    bool avance();
    [[nodiscard]] long long id() const { return m_requete.entier(0); }
    [[nodiscard]] const std::vector<ValeurVue>& valeurs() const { return m_valeurs; }  // until the next row
    [[nodiscard]] long vues() const { return m_vues; }                                 // rows seen, kept or not

  private:
    void litLigne();
    [[nodiscard]] ValeurVue litDebut(const ColonneLue& lue, int colonne);

    Connexion& m_connexion;
    const TableDuPlan& m_table;
    int m_rangDeTable;
    Requete m_requete;
    std::vector<ValeurVue> m_valeurs;
    std::string m_debut;
    sqlite3_blob* m_octets = nullptr;
    long m_vues = 0;
};

}  // namespace dao::interne
