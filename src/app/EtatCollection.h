#pragma once

#include <cstddef>

namespace app {

// What looks at the collection as a whole, in the order of the pages.
enum class PageDeCollection { Affiches, Prets, Statistiques, Sante, Doublons, CeSoir };
inline constexpr std::size_t kPagesDeCollection = static_cast<std::size_t>(PageDeCollection::CeSoir) + 1;

struct EtatCollection {
    PageDeCollection page = PageDeCollection::Affiches;  // shown, or to be shown again
};

}  // namespace app
