#pragma once

#include "platform/dao/Database.h"

#include <string>
#include <utility>
#include <vector>

namespace doubles {

// Adds a row; the fields that are not given stay Null.
inline void ajoute(dao::Recordset& table, const std::vector<std::pair<std::string, dao::Valeur>>& champs) {
    table.AddNew();
    for (const auto& [nom, valeur] : champs)
        table.assigne(nom, valeur);
    table.Update();
}

// One column of a table or of a statement's rows, in their order.
inline std::vector<std::string> colonne(dao::Database& base, const std::string& source, const std::string& champ) {
    std::vector<std::string> valeurs;
    for (dao::Recordset lignes = base.OpenRecordset(source); !lignes.Eof(); lignes.MoveNext())
        valeurs.push_back(lignes.texte(champ));
    return valeurs;
}

}  // namespace doubles
