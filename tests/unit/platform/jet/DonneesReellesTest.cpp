#include "doubles/CollectionJson.h"
#include "platform/jet/LecteurJet.h"

#include <cstdlib>
#include <filesystem>
#include <memory>

#include <glib.h>
#include <gmock/gmock.h>

namespace {

using doubles::LigneJson;

std::string dossier() {
    const char* choisi = std::getenv("AMBRELIS_DONNEES");
    return std::string(choisi ? choisi : AMBRELIS_DONNEES_DEFAUT) + "/bases-jet/";
}

std::string sha256(const std::string& octets) {
    const auto* debut = reinterpret_cast<const guchar*>(octets.data());
    const std::unique_ptr<char, decltype(&g_free)> somme(
        g_compute_checksum_for_data(G_CHECKSUM_SHA256, debut, octets.size()), g_free);
    return somme.get();
}

std::vector<LigneJson> lit(jet::Lecteur& lecteur, const std::string& nom) {
    const jet::Table* table = lecteur.table(nom);
    if (!table) throw jet::ErreurJet("no table " + nom);
    std::vector<LigneJson> lignes;
    const jet::Bilan bilan = lecteur.parcourt(
        *table,
        [&](jet::Ligne ligne) {
            LigneJson lue;
            for (std::size_t i = 0; i < ligne.size(); ++i) {
                std::optional<std::string> valeur = ligne[i];
                if (valeur && table->champs[i].nom == "Affiche" && valeur->starts_with("STO"))
                    valeur = "STO " + std::to_string(valeur->size() - 3) + " " + sha256(valeur->substr(3));
                lue[table->champs[i].nom] = valeur;
            }
            lignes.push_back(lue);
            return true;
        },
        "affiche");
    EXPECT_EQ(bilan.lignesLues, table->lignesDeclarees);
    EXPECT_EQ(bilan.affichesAlterees, 0u);
    EXPECT_EQ(bilan.pagesEcartees, 0u);
    return lignes;
}

TEST(DonneesReelles, everyFieldOfEveryBaseIsReadExactly) {
    if (!std::filesystem::exists(dossier())) GTEST_SKIP() << "no real data: " << dossier();
    int bases = 0;
    for (const auto& entree : std::filesystem::directory_iterator(dossier())) {
        if (entree.path().extension() != ".mdb") continue;
        ++bases;
        SCOPED_TRACE(entree.path().filename().string());
        EXPECT_TRUE(jet::estBaseJet(entree.path()));
        jet::Lecteur lecteur(entree.path());
        for (const char* table : {"Films", "Personnel"}) {
            const std::vector<LigneJson> lues = lit(lecteur, table);
            const std::vector<LigneJson> attendues =
                doubles::litCollection(std::filesystem::path(entree.path()).replace_extension("json"), table);
            ASSERT_EQ(lues.size(), attendues.size()) << table;
            for (std::size_t i = 0; i < lues.size(); ++i)
                EXPECT_THAT(lues[i], testing::ContainerEq(attendues[i])) << table << " " << i;
        }
        const jet::Avancement avancement = lecteur.avancement();
        EXPECT_LE(avancement.pagesLues, avancement.pages);
    }
    EXPECT_EQ(bases, 8);
}

}  // namespace
