#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

inline constexpr int kLargeurAffiche = 420, kHauteurAffiche = 620;

// Posters of 20 to 60 KB that decode, no two alike. A few pictures are encoded once; what tells one poster from the next
// is a comment segment in the file, so that thousands are made in no time.
class Affiches {
  public:
    Affiches();
    [[nodiscard]] std::string affiche(std::uint64_t numero) const;  // the JPEG file's bytes

  private:
    std::vector<std::string> m_images;
};

}  // namespace bench
