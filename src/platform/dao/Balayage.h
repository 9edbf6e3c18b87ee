#pragma once

#include "platform/dao/Connexion.h"
#include "platform/dao/Plan.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace dao::interne {

// The rows of one table of a plan that meet a condition, in no order: of the whole table, or the one of a row id.
class Balayage {
  public:
    Balayage(Connexion& connexion, const TableDuPlan& table, const std::string& condition,
             std::optional<long long> ligne = std::nullopt);

    bool avance();
    [[nodiscard]] long long id() const { return m_requete.entier(0); }
    [[nodiscard]] const Par<RangLu, ValeurVue>& valeurs() const { return m_valeurs; }  // until the next row

  private:
    Table& m_table;
    bool m_entier;  // every row of the table is met
    Requete m_requete;
    Par<RangLu, ValeurVue> m_valeurs;
    long m_vues = 0;
};

// What Database::parcourt says.
void parcourt(Connexion& connexion, Table& table, std::span<const std::string_view> colonnes,
              const Database::Recoit& recoit);

}  // namespace dao::interne
