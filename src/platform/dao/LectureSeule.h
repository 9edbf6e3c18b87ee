#pragma once

#include "platform/dao/Poignee.h"

namespace dao::interne {

// Opens a base of ours that is only to be read, and whose file is left as it is. Throws ErreurDao 3024 where there is no
// file, 3343 where it is no base of ours or is damaged at its head, or where a program that ended in the middle of a change
// left its journal: undoing that would write the file.
[[nodiscard]] Poignee ouvreEnLecture(const std::string& chemin);

}  // namespace dao::interne
