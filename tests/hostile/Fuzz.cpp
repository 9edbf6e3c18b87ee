#include "hostile/Cibles.h"

#include <cstdint>
#include <fstream>
#include <iostream>

#include <gtest/gtest.h>
#include <stdlib.h>

// libFuzzer's program. AMBRELIS_CIBLE names the target, without it they are listed; the folder AMBRELIS_GRAINES gets the
// inputs to start from.

namespace {

hostile::Cible choisie{};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    testing::InitGoogleTest();
    testing::GTEST_FLAG(break_on_failure) = true;
    const char *nom = getenv("AMBRELIS_CIBLE"), *dossier = getenv("AMBRELIS_GRAINES");
    for (const hostile::Cible& cible : hostile::cibles()) {
        if (nom == nullptr) std::cout << cible.nom << ' ' << cible.longueurMax << '\n';
        if (nom != nullptr && std::string(nom) == cible.nom) choisie = cible;
    }
    if (choisie.essaie == nullptr) exit(nom == nullptr ? 0 : 2);
    std::size_t rang = 0;
    for (const std::string& graine : hostile::corpus(choisie))
        if (dossier != nullptr)
            std::ofstream(dossier + ("/graine" + std::to_string(rang++)), std::ios::binary) << graine;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    choisie.essaie({reinterpret_cast<const char*>(octets), taille});
    return 0;
}
