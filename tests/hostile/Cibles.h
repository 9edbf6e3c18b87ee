#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// What is read of the outside world. The same targets are searched for hours by libFuzzer (`longue`) and replayed in
// seconds by the tests.
namespace hostile {

// A target answers, or throws this: what must hold whatever the bytes does not.
struct Faute : std::logic_error {
    using std::logic_error::logic_error;
};
inline void exige(bool tient, const char* quoi) {
    if (!tient) throw Faute(quoi);
}

struct Cible {
    const char* nom;
    void (*essaie)(std::string_view octets);
    std::size_t longueurMax;  // of what libFuzzer makes
    int mutations;            // tried at each replay: about half a second of them
};

[[nodiscard]] std::span<const Cible> ciblesDesTextes();
[[nodiscard]] std::span<const Cible> ciblesDesBases();
[[nodiscard]] std::vector<Cible> cibles();

// The inputs that a target starts from, and those that broke it once: the lines of "graines.txt" that begin with its name
// (bytes that are no ASCII as "\C9"), and for sheets those of samples/.
[[nodiscard]] std::vector<std::string> corpus(const Cible& cible);

}  // namespace hostile
