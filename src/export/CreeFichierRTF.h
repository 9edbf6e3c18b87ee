#pragma once

#include "export/Contexte.h"

#include <string>

namespace exportation {

// The list of the owned titles as an RTF document, then opened.
//
// The file is asked for first, and what stood there is replaced by the whole list or not at all: a list that cannot be
// written ends quietly, and so does one that the user stops. Meanwhile the two halves of the program's name show how far
// it is; they are the name again however it ends.
//
// `reponseTri`: kOui when the list is sorted by genre, whose headings it then has. Answers the file's path, "" when none
// was made. Throws db::RequeteEchouee when the listing cannot be opened.
std::string CreeFichierRTF(const Contexte& c, const std::string& clauseOrderBy, int reponseTri);

}  // namespace exportation
