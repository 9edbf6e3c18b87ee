#pragma once

#include "platform/dao/ErreurDao.h"

namespace dao {

// Does something with a row that someone else may have deleted since it was listed. False when that is so: what was done
// until then is all that was.
template <typename Geste>
bool siPresente(Geste geste) {
    try {
        geste();
        return true;
    } catch (const ErreurDao& erreur) {
        if (erreur.numero != kErreurEnregistrementSupprime) throw;
    }
    return false;
}

}  // namespace dao
