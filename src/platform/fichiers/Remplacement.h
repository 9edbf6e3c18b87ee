#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace fichiers {

// A file that is written piece by piece beside the one whose place it takes in the end, as `remplace` does with a text that
// is there at once. Nothing stands there before, nothing stays beside it without `termine`.
class Remplacement {
  public:
    explicit Remplacement(const std::string& chemin);
    Remplacement(const Remplacement&) = delete;
    Remplacement& operator=(const Remplacement&) = delete;
    ~Remplacement();

    // False from the first failure on, of the opening too.
    bool ecrit(std::string_view octets);
    // All is on the disk and in its place; false: what stood there still stands. Nothing is written after it.
    [[nodiscard]] bool termine();
    // Why it failed, for a message's parentheses; "" as long as it did not.
    [[nodiscard]] const std::string& raison() const;

  private:
    struct Fichier;
    std::unique_ptr<Fichier> m_fichier;
};

}  // namespace fichiers
