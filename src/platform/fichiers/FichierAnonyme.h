#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace fichiers {

// A file without a name: its room is free again once its owner is gone, or the process, however that ends.
class FichierAnonyme {
  public:
    // In a folder where the user may make files; a link that stands for it is not followed.
    [[nodiscard]] static std::optional<FichierAnonyme> dans(const std::string& dossier);
    FichierAnonyme(FichierAnonyme&& autre) noexcept
        : m_numero(std::exchange(autre.m_numero, -1)), m_taille(autre.m_taille) {}
    FichierAnonyme& operator=(FichierAnonyme&&) = delete;
    ~FichierAnonyme();

    [[nodiscard]] bool ajoute(std::string_view octets);  // all of them, or the file is as it was
    [[nodiscard]] std::int64_t taille() const { return m_taille; }
    // Fewer only at the end, or when they cannot be read.
    [[nodiscard]] std::size_t lit(std::int64_t place, char* tampon, std::size_t octets) const;
    [[nodiscard]] std::int64_t placeLibre() const;  // bytes that its disk still takes

  private:
    explicit FichierAnonyme(int numero) : m_numero(numero) {}

    int m_numero;
    std::int64_t m_taille = 0;
};

}  // namespace fichiers
