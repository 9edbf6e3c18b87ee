#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

// Archives of the outside world (zip; tar, compressed or not), read from their beginning to their end. Nothing is ever
// unpacked on the disk: a name in an archive is a text.
namespace archives {

class Archive {
  public:
    static constexpr long kEntreesAuPlus = 500'000;
    // Unpacked, all together: what a collection may hold, and no more than its own size makes likely. Documents pack to a
    // twentieth at best and posters not at all; a file of zeros packs to a thousandth, or less.
    static constexpr std::int64_t kOctetsAuPlus = 32LL << 30, kOctetsToujours = 512LL << 20;
    static constexpr std::int64_t kFoisSaTaille = 30;

    struct Entree {
        std::string nom;  // UTF-8, with "/" between folders
        long rang;        // among the ordinary files, from 0
    };

    // Nothing where the file is no such archive, or cannot be read.
    [[nodiscard]] static std::optional<Archive> ouvre(const std::string& chemin);
    Archive(Archive&&) noexcept;
    Archive& operator=(Archive&&) noexcept;
    ~Archive();

    // The next ordinary file; nothing at the end.
    [[nodiscard]] std::optional<Entree> suivante();
    // Whether the end came by damage, or by a bound above.
    [[nodiscard]] bool abimee() const;
    // Of that file, as xml::Source: the bytes written, 0 at its end, less than 0 where it is broken, enciphered or beyond
    // a bound.
    [[nodiscard]] std::ptrdiff_t lis(char* vers, std::size_t place);
    // The whole of it; nothing where it is longer, or broken. A longer one is `tropLongue`.
    struct Contenu {
        std::optional<std::string> octets;
        bool tropLongue = false;
    };
    [[nodiscard]] Contenu contenu(std::int64_t limite);

  private:
    struct Etat;
    explicit Archive(std::unique_ptr<Etat> etat);
    std::unique_ptr<Etat> m_etat;
};

}  // namespace archives
