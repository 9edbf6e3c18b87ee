#pragma once

#include "platform/systeme/Documents.h"

#include <string>
#include <vector>

namespace doubles {

// Opens nothing; remembers what it was asked to open. `reussit` and `issue` are its answers.
class DocumentsEnregistres final : public systeme::Documents {
  public:
    bool reussit = true;
    systeme::Ouverture issue = systeme::Ouverture::Faite;
    std::vector<std::string> ouverts;   // addresses
    std::vector<std::string> fichiers;  // files
    std::vector<std::string> dossiers;  // where the application of each file was to start

    bool ouvre(const std::string& adresse) override {
        ouverts.push_back(adresse);
        return reussit;
    }
    systeme::Ouverture ouvreFichier(const std::string& chemin, const std::string& dossier) override {
        fichiers.push_back(chemin);
        dossiers.push_back(dossier);
        return issue;
    }
};

}  // namespace doubles
