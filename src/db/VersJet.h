#pragma once

#include "platform/ecran/Controles.h"
#include "platform/ecran/Ecran.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace db {

// What a base that was written as a Jet base holds, and what could not be said in it.
struct RapportVersJet {
    long films = 0, possessions = 0;
    std::uint64_t octets = 0;  // of the file
    std::vector<std::string>
        ecarts{};                  // a line for each value that is not there as it was; as many as are worth reading
    std::size_t autresEcarts = 0;  // beyond those
};

struct IssueVersJet {
    RapportVersJet rapport{};            // of a whole base
    std::optional<std::string> echec{};  // why there is none: French sentences for the user
    bool interrompu = false;

    [[nodiscard]] bool estFaite() const { return !echec && !interrompu; }
};

// Writes a base of ours as a genuine Jet 4 base, both tables, in one state of it whatever comes meanwhile.
//
// The rows keep their order, Null stays apart from "", posters are as an installation of the program leaves them. What was
// written is read back and compared with what was read, value by value, and is on the disk when this is done; a file that
// would be too large is refused before anything is written.
class VersJet {
  public:
    VersJet(ecran::Progression& progression, ecran::Ecran& ecran) : m_progression(progression), m_ecran(ecran) {}

    // At `destination` stands an empty file. Throws nothing; what is not done leaves a file of no use there.
    // `jour`: of creation, in days since 30 December 1899.
    [[nodiscard]] IssueVersJet operator()(const std::string& source, const std::string& destination, double jour);

  private:
    ecran::Progression& m_progression;
    ecran::Ecran& m_ecran;
};

}  // namespace db
