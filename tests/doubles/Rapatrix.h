#pragma once

#include "doubles/DossierTemporaire.h"

#include <filesystem>
#include <string>

namespace doubles {

// The downloader's stand-in (tests/rapatrix), installed in the program folder that its name begins with, with its "Tmp".
class Rapatrix {
  public:
    explicit Rapatrix(const DossierTemporaire& dossier, const std::string& nom = "Le Rapatrix/Rapatrix.exe")
        : m_dossier(dossier), m_recu(std::filesystem::path(nom).replace_filename("recu").string()) {
        const std::filesystem::path lieu = std::filesystem::path(dossier.chemin(nom)).parent_path();
        std::filesystem::create_directories(lieu.parent_path() / "Tmp");
        std::filesystem::create_directories(lieu);
        std::filesystem::copy_file(AMBRELIS_RAPATRIX, dossier.chemin(nom));
    }

    [[nodiscard]] bool aRecu() const { return m_dossier.existe(m_recu); }
    [[nodiscard]] std::string recu() const { return m_dossier.lit(m_recu); }  // see the stand-in

  private:
    const DossierTemporaire& m_dossier;
    std::string m_recu;
};

}  // namespace doubles
