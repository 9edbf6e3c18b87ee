#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "ensemble/Ressemblances.h"
#include "unit/edit/FenetreEdition.h"

#include <algorithm>
#include <random>
#include <tuple>

#include <gmock/gmock.h>

namespace {

using ensemble::Paire;
using testing::ElementsAre;

class RessemblancesTest : public FenetreEdition {
  protected:
    void remplit(const std::vector<db::CleFilm>& films) {
        dao::Transaction ensemble(base.base);
        for (const auto& [titre, realisateur] : films)
            ajoute(base.films, {{"Titre", titre}, {"Realisateur", realisateur}});
        ensemble.confirme();
    }
};

using Scores = std::tuple<std::string, std::string, std::string, std::string, int, int>;

Scores scoresDe(const db::CleFilm& un, const db::CleFilm& autre) {
    if (std::tie(autre.titre, autre.realisateur) < std::tie(un.titre, un.realisateur)) return scoresDe(autre, un);
    return {un.titre,
            un.realisateur,
            autre.titre,
            autre.realisateur,
            util::similarite(un.titre, autre.titre),
            util::similarite(un.realisateur, autre.realisateur)};
}

// Titles and directors of few letters: near misses of every kind, alone and of many films.
std::vector<db::CleFilm> hasard(std::size_t nombre) {
    std::mt19937 tirage(7);
    const auto mot = [&](std::size_t auPlus, int lettres) {
        std::string texte(tirage() % auPlus, ' ');
        for (char& lettre : texte)
            lettre = static_cast<char>('a' + static_cast<int>(tirage() % static_cast<unsigned>(lettres)));
        return texte;
    };
    std::vector<std::string> realisateurs;
    for (std::size_t i = 0; i < nombre / 20; ++i)
        realisateurs.push_back(mot(30, 6) + (i % 7 == 0 ? "É'1" : ""));
    std::vector<db::CleFilm> films;
    for (std::size_t i = 0; i < nombre; ++i)
        films.push_back({i % 500 == 0 ? std::string(300 + i / 100, 'x') : mot(40, 9),
                         realisateurs[tirage() % realisateurs.size()]});
    return films;
}

TEST_F(RessemblancesTest, FindsThePairsThatThePlainMeasureFindsAndNoOther) {
    const std::vector<db::CleFilm> films = hasard(3000);
    remplit(films);
    std::vector<Scores> attendues, trouvees;
    std::vector<util::CompteLettres> titres, realisateurs;
    for (const auto& [titre, realisateur] : films) {
        titres.push_back(util::compteLettres(titre));
        realisateurs.push_back(util::compteLettres(realisateur));
    }
    for (std::size_t i = 0; i < films.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (util::similarite(realisateurs[i], realisateurs[j]) > 80 && util::similarite(titres[i], titres[j]) > 80)
                attendues.push_back(scoresDe(films[i], films[j]));
    const ensemble::Ressemblances resultat = ensemble::ressemblances(c, 10000000);
    for (const Paire& paire : resultat.paires) {
        trouvees.push_back(scoresDe(paire.gauche, paire.droite));
        EXPECT_EQ(std::tuple(paire.titre, paire.realisateur),
                  std::tuple(std::get<4>(trouvees.back()), std::get<5>(trouvees.back())));
    }
    std::sort(attendues.begin(), attendues.end());
    std::sort(trouvees.begin(), trouvees.end());
    ASSERT_GT(attendues.size(), 1000U);
    EXPECT_EQ(trouvees, attendues);

    const ensemble::Ressemblances bornee = ensemble::ressemblances(c, 100);
    EXPECT_EQ(bornee.trouvees, resultat.trouvees);
    EXPECT_EQ(bornee.paires, std::vector<Paire>(resultat.paires.begin(), resultat.paires.begin() + 100));
}

TEST_F(RessemblancesTest, TheClosestComeFirstWithBothScores) {
    remplit({{"Solaris", "Andreï Tarkovski"},
             {"Solarise", "Andrei Tarkovski"},
             {"Solaris", "Steven Soderbergh"},
             {"solaris", "Andreï Tarkovski"},
             {"", "Andreï Tarkovski"}});
    const auto resultat = ensemble::ressemblances(c);
    ASSERT_EQ(resultat.paires.size(), 3U);
    EXPECT_EQ(texteRessemblanceTitre(resultat.paires[0]), "Ressemblance titre : 100 %");
    EXPECT_EQ(texteRessemblanceReali(resultat.paires[2]), "Ressemblance réali : 100 %");
    EXPECT_EQ(resultat.paires[1].titre, 93);
    EXPECT_EQ(resultat.paires[2].droite.titre, "Solarise");
    EXPECT_EQ(bilan(resultat), "3 paires de films se ressemblent.");
    EXPECT_EQ(bilan(ensemble::ressemblances(c, 1)), "3 paires de films se ressemblent. La plus proche est montrée.");
}

TEST_F(RessemblancesTest, ASearchShowsItsProgressAndCanBeStopped) {
    remplit(hasard(2000));
    long vues = 0;
    ecranMuet.pendantSouffle = [&] {
        EXPECT_TRUE(travaux.ProgressBar3.Visible);
        EXPECT_EQ(travaux.lblTravail.Caption, "Recherche de doublons");
        vues = travaux.ProgressBar3.Value;
    };
    ecranMuet.arretApres = 1;
    const auto resultat = ensemble::ressemblances(c);
    EXPECT_FALSE(resultat.complet);
    EXPECT_EQ(vues, 1);
    EXPECT_THAT(bilan(resultat), testing::HasSubstr("La recherche a été arrêtée avant la fin."));
    EXPECT_FALSE(travaux.ProgressBar3.Visible);
    EXPECT_EQ(ecranMuet.debuts, ecranMuet.fins);
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
}

}  // namespace
