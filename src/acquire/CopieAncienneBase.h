#pragma once

#include "acquire/Contexte.h"
#include "db/RapportJet.h"
#include "platform/jet/LecteurJet.h"

#include <optional>
#include <string>

namespace acquire {

// The base of a previous installation, genuine Jet or of ours, as a base of ours to read from: a working copy, which
// goes with its owner. The original is only read.
class CopieAncienneBase {
  public:
    // `c` outlives it. A working copy that was left in "Tmp" goes; ProgressBar1 shows how far the new one is.
    explicit CopieAncienneBase(const Contexte& c);
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

    const Contexte& m_c;
    std::string m_copie = m_c.chemins.dossierTmp + "/Ancienne.mdb";
    dao::Database m_base;
    std::string m_echec;
    db::RapportJet m_rapport;
    bool m_interrompue = false, m_abimee = false;
};

}  // namespace acquire
