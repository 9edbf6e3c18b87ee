#include "app/ApercuFiches.h"

#include "ensemble/Suites.h"

namespace app {

std::vector<std::string> completeLesFilms(const Contexte& c, const acquire::FichesChoisies& fiches) {
    std::vector<std::string> completees = acquire::completeLesFilms(c, fiches);
    if (!completees.empty()) ensemble::rafraichit(c, false);
    return completees;
}

}  // namespace app
