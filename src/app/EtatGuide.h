#pragma once

#include <string>

namespace app {

// The window of the guide.
struct EtatGuide {
    std::string page;       // that was asked for last, as a page of the guide names another: "fiche.html", "x.html#y"
    int presentations = 0;  // rises each time one is asked for
};

}  // namespace app
