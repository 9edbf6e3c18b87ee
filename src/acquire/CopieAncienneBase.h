#pragma once

#include "db/RapportJet.h"
#include "platform/dao/Database.h"
#include "platform/ecran/Controles.h"
#include "platform/ecran/Ecran.h"
#include "platform/jet/LecteurJet.h"

#include <optional>
#include <string>

namespace acquire {

// The base of a previous installation, genuine Jet or of ours, as a base of ours to read from: a working copy, which
// goes with its owner. The original is only read.
class CopieAncienneBase {
  public:
    // What stands at `copie` is a working copy that was left there.
    CopieAncienneBase(std::string copie, ecran::Progression& progression, ecran::Ecran& ecran);
    CopieAncienneBase(const CopieAncienneBase&) = delete;
    CopieAncienneBase& operator=(const CopieAncienneBase&) = delete;
    ~CopieAncienneBase();

    enum class Issue { Ouverte, Interrompue, Echouee };
    // `ouverture` is for a genuine Jet base.
    [[nodiscard]] Issue ouvre(const std::string& original, const jet::Ouverture& ouverture);

    [[nodiscard]] dao::Database& base() { return m_base; }
    [[nodiscard]] const std::string& echec() const { return m_echec; }  // why it failed, for the user
    [[nodiscard]] bool abimee() const { return m_abimee; }              // something of it may be readable all the same
    [[nodiscard]] const db::RapportJet& rapport() const { return m_rapport; }  // of a genuine Jet base

  private:
    [[nodiscard]] Issue convertit(const std::string& original, const jet::Ouverture& ouverture);
    [[nodiscard]] Issue copie(const std::string& original);
    [[nodiscard]] bool copieFichier(const std::string& de, const std::string& vers);
    [[nodiscard]] Issue echoue(std::string raison);
    void efface();

    std::string m_copie;
    ecran::Progression& m_progression;
    ecran::Ecran& m_ecran;
    dao::Database m_base;
    std::string m_echec;
    db::RapportJet m_rapport;
    bool m_interrompue = false, m_abimee = false;
};

}  // namespace acquire
