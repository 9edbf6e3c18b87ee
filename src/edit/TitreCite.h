#pragma once

#include "db/TitreCite.h"

namespace edit {

using db::titreCite;

}  // namespace edit
