#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// XML documents of the outside world, read from their beginning to their end with no more of them in memory than one
// element. Nothing that a document names is opened, no entity that it declares is expanded, and an element, a depth or a
// text that is too large makes it unreadable.
namespace xml {

// UTF-8. Names are without their prefix.
struct Element {
    std::string nom;
    std::vector<std::pair<std::string, std::string>> attributs;
    std::string texte;  // its own, without that of its children; CDATA as it stands
    std::vector<Element> enfants;

    [[nodiscard]] std::string_view attribut(std::string_view voulu) const;     // "" without it
    [[nodiscard]] const Element* enfant(std::string_view voulu) const;         // the first one
    [[nodiscard]] std::string_view texteDe(std::string_view nomEnfant) const;  // of the first one
};

// Fills what it is given: the bytes written, 0 at the end, less than 0 where it cannot be read.
using Source = std::function<std::ptrdiff_t(char* vers, std::size_t place)>;

struct Illisible : std::runtime_error {
    Illisible(const std::string& raison, int ligneLue) : runtime_error(raison), ligne(ligneLue) {}
    int ligne;  // 1-based; 0 where it is not known
};

// A walk through the elements in the document's order.
class Lecture {
  public:
    static constexpr std::size_t kElementAuPlus = 64 << 20;  // bytes, of one that is taken

    // Reads what the source gives when it is asked for it.
    explicit Lecture(Source source);
    Lecture(Lecture&&) noexcept;
    Lecture& operator=(Lecture&&) noexcept;
    ~Lecture();

    // The next element that begins, its name and attributes alone; nothing at the end. Throws Illisible.
    [[nodiscard]] const Element* suivant();
    // The names that it stands in, from the root to itself.
    [[nodiscard]] const std::vector<std::string>& chemin() const;
    // The whole of the last one that began, or no more of it: `suivant` then answers what follows it. Throw Illisible.
    [[nodiscard]] Element prends();
    void saute();

  private:
    struct Etat;
    std::unique_ptr<Etat> m_etat;
};

}  // namespace xml
