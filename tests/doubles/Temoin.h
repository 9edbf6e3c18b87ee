#pragma once

#include "doubles/DossierTemporaire.h"

#include <chrono>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <thread>

namespace doubles {

// Sets environment variables for one test and puts back what stood there.
class Environnement {
  public:
    explicit Environnement(const std::map<std::string, std::string>& variables) {
        for (const auto& [nom, valeur] : variables) {
            const char* ancienne = std::getenv(nom.c_str());
            m_anciennes[nom] = ancienne ? std::optional<std::string>(ancienne) : std::nullopt;
            setenv(nom.c_str(), valeur.c_str(), 1);
        }
    }
    Environnement(const Environnement&) = delete;
    Environnement& operator=(const Environnement&) = delete;
    ~Environnement() {
        for (const auto& [nom, valeur] : m_anciennes)
            valeur ? setenv(nom.c_str(), valeur->c_str(), 1) : unsetenv(nom.c_str());
    }

  private:
    std::map<std::string, std::optional<std::string>> m_anciennes;
};

// A real program, AMBRELIS_TEMOIN, that notes with which folder and arguments it was started (tests/temoin).
class Temoin {
  public:
    [[nodiscard]] static std::string programme() { return AMBRELIS_TEMOIN; }

    // What the program has written, once it has: the folder, then each argument in brackets, a line each.
    [[nodiscard]] std::string recu() const {
        using namespace std::chrono_literals;
        for (int i = 0; i < 24000 && !m_dossier.existe("recu"); ++i)  // two minutes: only a failing test waits so long
            std::this_thread::sleep_for(5ms);
        if (!m_dossier.existe("recu")) return "nothing was started";
        std::string texte = m_dossier.lit("recu");
        std::filesystem::remove(m_dossier.chemin("recu"));
        return texte;
    }
    [[nodiscard]] bool aRecu() const { return m_dossier.existe("recu"); }

  private:
    DossierTemporaire m_dossier;
    Environnement m_environnement{{{"TEMOIN_SORTIE", m_dossier.chemin("recu")}}};
};

}  // namespace doubles
