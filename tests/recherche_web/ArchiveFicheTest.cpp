#include "doubles/DossierTemporaire.h"
#include "rapatrix/ArchiveFiche.h"
#include "recherche_web/Archives.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using essais::zip;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

std::vector<std::string> noms(const std::optional<std::vector<rapatrix::FicheRecue>>& fiches) {
    std::vector<std::string> resultat;
    for (const auto& fiche : fiches.value())
        resultat.push_back(fiche.nom + (fiche.affiche.empty() ? "" : "+"));
    return resultat;
}

TEST(ArchiveFiche, SheetsAndTheirPostersComeByTheirNames) {
    const auto fiches = rapatrix::ouvreArchive(zip({{"lisezmoi.txt", "x"},
                                                    {"a/L'\u00C9t\u00E9.FILM", "fiche"},
                                                    {"L'\u00C9t\u00E9.jpg", "image"},
                                                    {"B.film", "b"}}));
    EXPECT_THAT(noms(fiches), UnorderedElementsAre("L'\u00C9t\u00E9+", "B"));
    EXPECT_THAT(noms(rapatrix::ouvreArchive(zip({{"affiche.JPG", "image"}, {"B.film", "b"}}))), ElementsAre("B+"));
}

TEST(ArchiveFiche, NoNameLeavesItsFolder) {
    const auto fiches = rapatrix::ouvreArchive(
        zip({{"../../etc/.passe.film", "1"}, {"C:\\windows\\..\\deux?.film", "2"}, {"...film", "3"}}));
    EXPECT_THAT(noms(fiches), UnorderedElementsAre("passe", "deux", "Fiche"));
}

TEST(ArchiveFiche, WhatIsNoSheetIsRefused) {
    const std::string entiere = zip({{"B.film", std::string(5000, 'b')}, {"B.jpg", "image"}});
    EXPECT_TRUE(rapatrix::ouvreArchive(entiere));
    EXPECT_FALSE(rapatrix::ouvreArchive(""));
    EXPECT_FALSE(rapatrix::ouvreArchive("<html>Connectez-vous"));
    EXPECT_FALSE(rapatrix::ouvreArchive(zip({{"lisezmoi.txt", "x"}})));
    EXPECT_FALSE(rapatrix::ouvreArchive(zip({{"bombe.film", std::string(rapatrix::kTailleMaxFiche + 1, 'x')}})));
    std::vector<std::pair<std::string, std::string>> trop{{"a.film", "a"}};
    for (int i = 0; i < 3; ++i)
        trop.emplace_back(std::to_string(i) + ".jpg", std::string(rapatrix::kTailleMaxAffiche - 1, 'x'));
    EXPECT_FALSE(rapatrix::ouvreArchive(zip(trop))) << "small once packed, 30 MB once unpacked";
    for (std::size_t coupe = 0; coupe < entiere.size(); ++coupe) {
        const auto fiches = rapatrix::ouvreArchive(std::string_view(entiere).substr(0, coupe));
        EXPECT_TRUE(!fiches || fiches->front().fiche.size() == 5000) << coupe;
    }
}

TEST(ArchiveFiche, AreDepositedWholeBesideWhatStandsThere) {
    const doubles::DossierTemporaire dossier;
    dossier.ecrit("ImageTMP.jpg", "celle du programme");
    EXPECT_EQ(rapatrix::depose({{"ImageTMP", "f", "affiche"}, {"B", "b", ""}, {"B", "b2", ""}}, dossier.chemin()), 3u);
    EXPECT_EQ(dossier.lit("ImageTMP.jpg"), "celle du programme");
    EXPECT_EQ(dossier.lit("ImageTMP (2).jpg") + dossier.lit("ImageTMP (2).film"), "affichef");
    EXPECT_EQ(dossier.lit("B (2).film"), "b2");
    EXPECT_EQ(rapatrix::depose({{"C", "c", "affiche"}}, dossier.chemin("absent")), 0u);
}

}  // namespace
