#include "platform/dao/CleJet.h"
#include "platform/dao/Ordre.h"

#include <algorithm>
#include <random>
#include <tuple>

#include <gtest/gtest.h>

// Few values in the first column are ordered by number, many by bytes: both must be the order of the values.
TEST(Ordre, IsTheSameForFewValuesAndForMany) {
    for (const int valeurs : {1, 20, 1023, 1024, 1025, 5000}) {
        std::mt19937 hasard(7);
        std::vector<std::tuple<int, int, int>> lignes;  // first column (0: Null), second, row id
        for (int i = 0; i < 6000; ++i) {
            lignes.emplace_back(static_cast<int>(hasard() % static_cast<unsigned>(valeurs)),
                                static_cast<int>(hasard() % 50), 6000 - i);
        }
        dao::interne::Ordre ordre;
        for (const auto& [premier, second, id] : lignes) {
            const std::string texte = "Comédie dramatique " + std::to_string(10000 + premier);
            if (premier == 0) {
                ordre.ajouteNul();
            } else {
                ordre.ajouteTexte(dao::interne::cleJet(texte));
            }
            ordre.ajouteNombre(second - 25.5);
            ordre.finit();
        }
        std::vector<std::tuple<int, int, int>> obtenues;
        const auto precede = [&lignes](std::uint32_t a, std::uint32_t b) {
            return std::get<2>(lignes[a]) < std::get<2>(lignes[b]);
        };
        int souffles = 0;
        for (const std::uint32_t rang : ordre.rangs(false, precede, [&souffles] { ++souffles; }))
            obtenues.push_back(lignes[rang]);
        std::sort(lignes.begin(), lignes.end());
        ASSERT_EQ(obtenues, lignes) << valeurs;
    }
}
