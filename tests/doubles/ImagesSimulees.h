#pragma once

#include "platform/ecran/Ecran.h"

#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace doubles {

// Loads no picture: a file that begins with the JPEG marker FF D8 is a picture of the size `taille`, any other is
// broken. Remembers the paths asked for, and which picture is current (none: "").
class ImagesSimulees final : public ecran::Images {
  public:
    ecran::TailleImage taille{300, 400};
    std::vector<std::string> chemins;
    std::string courante;
    int vidages = 0;

    std::optional<ecran::TailleImage> charge(const std::string& chemin) override {
        chemins.push_back(chemin);
        std::ifstream fichier(chemin, std::ios::binary);
        const bool estJpeg = fichier.get() == 0xFF && fichier.get() == 0xD8;
        courante = estJpeg ? chemin : "";
        return estJpeg ? std::optional(taille) : std::nullopt;
    }
    void vide() override {
        ++vidages;
        courante.clear();
    }
};

}  // namespace doubles
