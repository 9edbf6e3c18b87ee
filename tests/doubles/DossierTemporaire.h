#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <stdlib.h>

namespace doubles {

// A folder of the real data, which is no part of the checkout: it may be absent.
inline std::filesystem::path donneesReelles(std::string_view dossier) {
    const char* choisies = getenv("AMBRELIS_DONNEES");
    return std::filesystem::path(choisies ? choisies : AMBRELIS_DONNEES_DEFAUT) / dossier;
}

// The real Jet bases, in the order of their names; none where there are no real data.
inline std::vector<std::filesystem::path> basesJetReelles() {
    std::vector<std::filesystem::path> bases;
    std::error_code absent;
    for (const auto& entree : std::filesystem::directory_iterator(donneesReelles("bases-jet"), absent))
        if (entree.path().extension() == ".mdb") bases.push_back(entree.path());
    std::sort(bases.begin(), bases.end());
    return bases;
}

// A folder of its own for one test, deleted with all it holds. Names are relative to it; a name with folders makes them.
class DossierTemporaire {
  public:
    DossierTemporaire() {
        std::string modele = (std::filesystem::temp_directory_path() / "ambrelis-XXXXXX").string();
        if (!mkdtemp(modele.data())) throw std::runtime_error("no temporary folder: " + modele);
        m_chemin = modele + "/";
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;
    ~DossierTemporaire() {
        std::error_code ignoree;
        // A test may have made a folder read-only.
        std::filesystem::permissions(m_chemin, std::filesystem::perms::owner_all, ignoree);
        std::filesystem::remove_all(m_chemin, ignoree);
    }

    [[nodiscard]] const std::string& chemin() const { return m_chemin; }  // with its final "/"
    [[nodiscard]] std::string chemin(std::string_view nom) const { return m_chemin + std::string(nom); }

    // Answers the whole path.
    std::string ecrit(std::string_view nom, std::string_view octets) const {
        const std::string complet = chemin(nom);
        std::filesystem::create_directories(std::filesystem::path(complet).parent_path());
        std::ofstream(complet, std::ios::binary).write(octets.data(), static_cast<std::streamsize>(octets.size()));
        return complet;
    }
    // The bytes of a file; throws when it is not there, so that an absent file is never taken for an empty one.
    [[nodiscard]] std::string lit(std::string_view nom) const {
        std::ifstream fichier(chemin(nom), std::ios::binary);
        if (!fichier) throw std::runtime_error("no such file: " + chemin(nom));
        return {std::istreambuf_iterator<char>(fichier), {}};
    }
    // Every file under it with its bytes.
    [[nodiscard]] std::map<std::string, std::string> contenu() const {
        std::map<std::string, std::string> fichiers;
        for (const auto& entree : std::filesystem::recursive_directory_iterator(m_chemin))
            if (const std::string nom = entree.path().lexically_relative(m_chemin); entree.is_regular_file())
                fichiers[nom] = lit(nom);
        return fichiers;
    }
    // What stands directly in one of its folders, or in itself, in the order of the names; nothing where there is no such
    // folder.
    [[nodiscard]] std::vector<std::string> noms(std::string_view sousDossier = "") const {
        std::vector<std::string> trouves;
        std::error_code absent;
        for (const auto& entree : std::filesystem::directory_iterator(chemin(sousDossier), absent))
            trouves.push_back(entree.path().filename());
        std::sort(trouves.begin(), trouves.end());
        return trouves;
    }
    [[nodiscard]] bool existe(std::string_view nom) const { return std::filesystem::exists(chemin(nom)); }

  private:
    std::string m_chemin;
};

}  // namespace doubles
