#pragma once

#include "acquire/RapportImport.h"
#include "db/Chemins.h"

#include <string>
#include <vector>

namespace acquire {

// The folder of the program folder where sheets wait that were received and neither added nor refused.
inline constexpr const char* kDossierAImporter = "À importer";

// The sheets and the posters of one search, in "Tmp". Those of an earlier one go when it begins, its own when it ends;
// but what was neither added nor refused goes to the folder where it waits, where nothing takes its place. The film on
// the sheet keeps its temporary poster.
class FichesRecues {
  public:
    explicit FichesRecues(const db::Chemins& chemins);
    FichesRecues(const FichesRecues&) = delete;
    FichesRecues& operator=(const FichesRecues&) = delete;
    ~FichesRecues();  // when nobody said what became of them, all wait

    [[nodiscard]] long nombre() const;
    void refusees() { m_enSuspens = false; }
    // After an import, whose report then says how many wait, and where.
    void range(RapportImport& rapport);
    // Where sheets of this search wait; empty when none does.
    [[nodiscard]] std::string attente() const { return m_gardees > 0 ? m_attente : ""; }

  private:
    void garde(const std::vector<std::string>& fiches);
    void nettoie() const;

    const std::string m_tmp, m_afficheTmp, m_attente;
    bool m_enSuspens = true;
    long m_gardees = 0;
    long m_restees = 0;  // that could not be moved
};

}  // namespace acquire
