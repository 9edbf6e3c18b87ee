#pragma once

#include "db/Contexte.h"
#include "db/Requete.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace db {

// What a poster file could not be given or taken: told to the user, it ends the work.
struct EchecConversion {
    std::string texte;
};

// The poster files that one transaction makes in the images folder: they are on the disk before the rows that name them
// are stored, and gone again when these are not.
//
// No film ever sees its poster change by it: a file that another film names is left alone, and so is its name while the
// file is away. The picture then gets the name's " (2)", " (3)"…
class LotAffiches {
  public:
    // What becomes of a file that bears the name and that no film of the base names.
    enum class Inconnus { Gardes, Ecrases };

    // `c` need not outlive it.
    LotAffiches(const Contexte& c, std::string dossier, Inconnus inconnus = Inconnus::Gardes)
        : m_base(c.base.base),
          m_annulations(c.annulations),
          m_attente(attente(c)),
          m_dossier(std::move(dossier)),
          m_inconnus(inconnus) {}

    // Gives the picture a file of that name, or of the next one that is free, and answers it. A file of the very same
    // bytes is shared. `actuelle` is the film's present value: the file it names is the film's own to replace, unless
    // another film names it too. Throws EchecConversion, or dao::ErreurDao.
    [[nodiscard]] std::string pose(const std::string& nom, std::string_view octets, std::string_view actuelle = {});
    void avantValidation();  // throws EchecConversion
    void apresValidation();
    void apresAnnulation();  // nothing of the lot is left in the folder

    [[nodiscard]] const std::string& dossier() const { return m_dossier; }

  private:
    // How a folder's names are told apart: without regard to letter case, as they are looked for.
    using Cle = std::string;
    struct Connaissance {
        std::unordered_set<Cle> presents;             // files and whatever else stands in the folder
        std::unordered_map<Cle, long> nommes;         // names in the films' values, and how many of these
        std::unordered_map<std::string, int> suites;  // by unnumbered name, the last number given
    };
    [[nodiscard]] bool poseSous(const std::string& nom, std::string_view octets, std::string_view actuelle);
    [[nodiscard]] bool poseSurUnAutre(const std::string& nom, std::string_view octets, bool remplacable, bool sansFilm);
    [[nodiscard]] bool cree(const std::string& nom, std::string_view octets);
    [[nodiscard]] Connaissance& connaissance();
    void releveNommes(Connaissance& connu);
    void releveDossier(Connaissance& connu) const;

    dao::Database& m_base;
    Annulations& m_annulations;  // told of every file that is made or replaced
    dao::Attente m_attente;
    std::string m_dossier;  // with its final separator
    Inconnus m_inconnus;
    std::optional<Connaissance> m_connaissance;  // read once for each lot
    std::vector<std::string> m_crees;
    std::vector<std::string> m_aSynchroniser;  // those, and the files shared or replaced
};

}  // namespace db
