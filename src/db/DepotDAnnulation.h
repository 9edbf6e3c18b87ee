#pragma once

#include "platform/dao/Enregistrement.h"
#include "platform/fichiers/FichierAnonyme.h"

#include <optional>
#include <string>

namespace db {

// What one command changed: a little of it in memory, more of it in a file of "Tmp" that has no name, so that nothing is
// left of it when the program ends. It never takes the room that the base itself may need.
class DepotDAnnulation final : public dao::Depot {
  public:
    static constexpr std::size_t kEnMemoire = 256 << 10;
    static constexpr std::int64_t kAuPlus = 1LL << 30;
    static constexpr std::int64_t kLaisseLibre = 256LL << 20;  // on the disk of "Tmp"

    explicit DepotDAnnulation(std::string dossier) : m_dossier(std::move(dossier)) {}

    [[nodiscard]] bool ajoute(std::string_view octets) override;
    [[nodiscard]] std::int64_t taille() const override {
        return surDisque() + static_cast<std::int64_t>(m_memoire.size());
    }
    [[nodiscard]] std::size_t lit(std::int64_t place, char* tampon, std::size_t octets) const override;
    // Why so many more bytes cannot be kept, for brackets; "" when they can.
    [[nodiscard]] std::string manquePour(std::int64_t octets) const;
    void tasse() { m_memoire.shrink_to_fit(); }  // no more is added, or little
    [[nodiscard]] std::size_t enMemoire() const { return m_memoire.capacity(); }

  private:
    [[nodiscard]] std::int64_t surDisque() const { return m_fichier ? m_fichier->taille() : 0; }
    [[nodiscard]] bool verse();

    std::string m_dossier;
    std::optional<fichiers::FichierAnonyme> m_fichier;
    std::string m_memoire;  // what follows the file
};

}  // namespace db
