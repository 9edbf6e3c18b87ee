#pragma once

#include "platform/ecran/Ecran.h"

#include <optional>
#include <string>

namespace doubles {

// Loads no picture: bytes that begin with the JPEG marker FF D8 are a picture of the size `taille`, any other are broken.
// Remembers which picture is current (none: "").
class ImagesSimulees final : public ecran::Images {
  public:
    ecran::TailleImage taille{300, 400};
    std::string courante;

    std::optional<ecran::TailleImage> charge(const std::string& octets) override {
        const bool estJpeg = octets.starts_with("\xFF\xD8");
        courante = estJpeg ? octets : "";
        return estJpeg ? std::optional(taille) : std::nullopt;
    }
    void vide() override { courante.clear(); }
};

}  // namespace doubles
