#pragma once

#include "platform/dao/Database.h"

#include <string>

namespace db {

// The open base and the three recordsets the whole program shares. All are open while the window exists, except during
// a change of base.
struct Base {
    dao::Database base;
    dao::Recordset films;      // the catalogue, live
    dao::Recordset personnel;  // the holdings, live
    dao::Recordset liste;      // first the catalogue, then the result of each listing query
    std::string raison;        // more of the last failed opening than its message says; may be empty

    // Recordsets first (catalogue, holdings, listing), then the base.
    void ferme();
};

}  // namespace db
