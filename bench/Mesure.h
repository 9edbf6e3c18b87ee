#pragma once

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

// What every measured program uses to tell its figures: lines "name value" on its standard output.
namespace bench {

inline constexpr const char* kVariableDepart = "AMBRELIS_DEPART";

// Milliseconds of the clock that all processes share.
inline double maintenant() {
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// Since the process that measures asked the system to start this one.
inline double depuisLeDepart() {
    const char* depart = std::getenv(kVariableDepart);
    return depart ? maintenant() - std::strtod(depart, nullptr) : 0;
}

// How long one of several runs of the same work lasts, at best.
template <typename Travail>
double meilleureDuree(int passages, Travail travail) {
    double meilleure = 0;
    for (int i = 0; i < passages; ++i) {
        const double depart = maintenant();
        travail();
        const double duree = maintenant() - depart;
        if (i == 0 || duree < meilleure) meilleure = duree;
    }
    return meilleure;
}

inline void declare(std::string_view nom, double valeur) {
    std::cout << nom << ' ' << valeur << std::endl;
}

// A number of one of the system's files about this process: the first after that word.
inline double nombreDuSysteme(const char* fichier, std::string_view mot) {
    std::ifstream flux(fichier);
    for (std::string lu; flux >> lu;)
        if (double valeur = 0; lu == mot && flux >> valeur) return valeur;
    return 0;
}
inline double memoireDePointe() {
    return nombreDuSysteme("/proc/self/status", "VmHWM:") / 1024;
}  // MB
inline double octetsLus() {
    return nombreDuSysteme("/proc/self/io", "rchar:");
}

}  // namespace bench
