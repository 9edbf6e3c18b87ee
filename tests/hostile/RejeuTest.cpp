#include "hostile/Cibles.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace {

using hostile::Cible;

// A little of what libFuzzer does, the same at each run.
class Mutations {
  public:
    std::string de(const std::vector<std::string>& corpus) {
        std::string octets = corpus[tire(corpus.size())];
        const std::string& autre = corpus[tire(corpus.size())];
        for (std::size_t reste = 1 + tire(4); reste > 0; --reste) {
            const std::size_t place = tire(octets.size() + 1), nombre = tire(std::min(octets.size() - place + 1, 9UL));
            switch (tire(4)) {
                case 0:
                    octets.erase(place, nombre);
                    break;
                case 1:
                    octets.insert(place, autre, tire(autre.size() + 1), nombre + 1);
                    break;
                case 2:
                    octets.insert(place, 1, "\0\xFF\x7F\"'<\r\n\\{"[tire(10)]);
                    break;
                default:
                    octets.replace(place, nombre, nombre, static_cast<char>(tire(256)));
            }
        }
        return octets;
    }

  private:
    std::size_t tire(std::size_t borne) { return std::uniform_int_distribution<std::size_t>(0, borne - 1)(m_hasard); }
    std::mt19937 m_hasard{1};
};

class Rejeu : public testing::TestWithParam<Cible> {};

TEST_P(Rejeu, TheProgramAnswersWhateverTheBytes) {
    const Cible& cible = GetParam();
    const std::vector<std::string> corpus = hostile::corpus(cible);
    const auto essaie = [&](const std::string& octets) {
        EXPECT_NO_THROW(cible.essaie(octets)) << testing::PrintToString(octets.substr(0, 2000));
    };
    std::ranges::for_each(corpus, essaie);
    Mutations mutations;
    for (int i = 0; i < cible.mutations && !HasFailure(); ++i)
        essaie(mutations.de(corpus));
}

INSTANTIATE_TEST_SUITE_P(Hostile, Rejeu, testing::ValuesIn(hostile::cibles()),
                         [](const auto& essai) { return std::string(essai.param.nom); });

}  // namespace
