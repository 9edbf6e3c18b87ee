#pragma once

#include "db/Affiches.h"
#include "db/CleFilm.h"
#include "db/Contexte.h"
#include "db/LotAffiches.h"
#include "platform/dao/Valeur.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace acquire {

// What a poster becomes here, and the bytes that it takes in the base.
struct AfficheImportee {
    dao::Valeur valeur = "";
    std::size_t octets = 0;
};

// The bytes of a picture's file that are read at most.
[[nodiscard]] constexpr std::int64_t limiteDesAffiches(bool dansLaBase) {
    return dansLaBase ? db::kTailleMaxAffiche : db::kTailleMaxImage;
}

// Where the posters of an import go: in the base, or as files of a lot in the images folder.
class AffichesImportees {
  public:
    explicit AffichesImportees(const db::Contexte& c);  // which outlives it

    [[nodiscard]] bool dansLaBase() const { return m_c.stockage.dansLaBase(); }
    [[nodiscard]] std::int64_t limite() const { return limiteDesAffiches(dansLaBase()); }
    // Where posters are files, makes their folder. Throws db::EchecConversion.
    void prepareDossier();
    // Stores the picture of a film whose value is `actuelle`, in a folder that is prepared. Nothing when the base has no
    // place for it. Throws db::EchecConversion.
    [[nodiscard]] std::optional<AfficheImportee> place(const db::CleFilm& film, std::string_view octets,
                                                       bool tientDansLaBase, std::string_view actuelle = {});
    // Whether that value of `Affiche` names a file of the images folder that is there.
    [[nodiscard]] bool aSonFichier(const std::string& affiche) const;

    void avantValidation() { m_lot.avantValidation(); }  // throws db::EchecConversion
    void apresValidation() { m_lot.apresValidation(); }
    void apresAnnulation() { m_lot.apresAnnulation(); }

  private:
    const db::Contexte& m_c;
    db::LotAffiches m_lot;
    bool m_dossierPret = false;
};

}  // namespace acquire
