#include "util/Sql.h"

#include "util/Texte.h"

namespace util {

std::string doubleGuillemets(std::string_view valeur) {
    return remplace(valeur, "\"", "\"\"");
}

std::string entreGuillemets(std::string_view valeur) {
    return '"' + doubleGuillemets(valeur) + '"';
}

}  // namespace util
