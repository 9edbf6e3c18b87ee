#include "db/Base.h"

namespace db {

void Base::ferme() {
    films.Close();
    personnel.Close();
    liste.Close();
    base.Close();
}

}  // namespace db
