#pragma once

#include "platform/dao/Database.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace db {

// What a poster file could not be given or taken: told to the user, it ends the work.
struct EchecConversion {
    std::string texte;
};

// The poster files that one transaction makes in the images folder: they are on the disk before the rows that name them
// are stored, and gone again when these are not.
class LotAffiches {
  public:
    LotAffiches(dao::Database& base, std::string dossier) : m_base(base), m_dossier(std::move(dossier)) {}

    // Gives the picture that file name. A file that stands there is shared when it holds the same bytes; false when it
    // holds another picture, and stays. Throws EchecConversion.
    [[nodiscard]] bool pose(const std::string& nom, std::string_view octets);
    void avantValidation();  // throws EchecConversion
    void apresValidation() { m_crees.clear(), m_aSynchroniser.clear(); }
    void apresAnnulation();  // nothing of the lot is left in the folder

  private:
    [[nodiscard]] bool poseSurUnAutre(const std::string& nom, std::string_view octets);
    [[nodiscard]] bool estNomme(const std::string& nom);

    dao::Database& m_base;
    std::string m_dossier;  // with its final separator
    std::vector<std::string> m_crees;
    std::vector<std::string> m_aSynchroniser;  // those, and the files shared
};

}  // namespace db
