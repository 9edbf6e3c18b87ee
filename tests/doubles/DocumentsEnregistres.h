#pragma once

#include "platform/systeme/Documents.h"

#include <string>
#include <vector>

namespace doubles {

// Opens nothing; remembers what it was asked to open. `reussit` is its answer.
class DocumentsEnregistres final : public systeme::Documents {
  public:
    bool reussit = true;
    std::vector<std::string> ouverts;

    bool ouvre(const std::string& adresseOuChemin) override {
        ouverts.push_back(adresseOuChemin);
        return reussit;
    }
};

}  // namespace doubles
