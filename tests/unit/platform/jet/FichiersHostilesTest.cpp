#include "doubles/BaseJet.h"
#include "doubles/DossierTemporaire.h"
#include "platform/jet/LecteurJet.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <random>

#include <gtest/gtest.h>

namespace {

using doubles::BaseJet;

// A page after the other is lost, in one way or another: what does not stand on it comes as it was, and what does is
// told. No value is another film's.
TEST(FichiersHostiles, whatIsNotDamagedComesAndTheRestIsTold) {
    constexpr std::size_t kPage = 4096, kFilms = 24, kFilmsParPage = 8;
    BaseJet base;
    const std::size_t films = base.table("Films", {{"Titre"}, {"Resume", BaseJet::Memo}, {"Note", BaseJet::Octet}});
    std::map<std::string, std::vector<std::optional<std::string>>> attendues;
    for (std::size_t i = 0; i < kFilms; ++i) {
        const std::string titre = std::to_string(i) + std::string(220, '.'),
                          resume(i * i * 20, static_cast<char>('a' + i));
        base.ligne(films, {titre, resume, BaseJet::petit(i, 1)});
        attendues[titre] = {titre, resume, std::to_string(i)};
    }
    const std::string saine = base.octets();
    const doubles::DossierTemporaire dossier;
    std::mt19937 hasard(7);
    for (std::size_t page = 4; page < saine.size() / kPage; ++page) {
        const std::string avant = saine.substr(page * kPage, kPage);
        if (avant[0] != 1) continue;
        const bool longue = avant.substr(4, 4) == "LVAL";
        std::string bruit(kPage, '\0');
        std::ranges::generate(bruit, [&] { return static_cast<char>(hasard()); });
        for (const std::string& par :
             {std::string(kPage, '\0'), std::string(kPage, '\xFF'), bruit, avant.substr(0, 14) + bruit.substr(14),
              bruit.substr(0, 512) + avant.substr(512)}) {
            SCOPED_TRACE(page);
            std::string octets = saine;
            jet::Lecteur lecteur(dossier.ecrit("p.mdb", octets.replace(page * kPage, kPage, par)), {.abimee = true});
            if (avant.substr(4, 4) == BaseJet::petit(2, 4)) {  // of the catalogue: the tables have lost their names
                EXPECT_EQ(lecteur.table("Films"), nullptr);
                continue;
            }
            ASSERT_NE(lecteur.table("Films"), nullptr);
            std::size_t lignes = 0, perdues = 0, pages = 0, faux = 0;
            lecteur.parcourtCeQuiEstLisible(
                *lecteur.table("Films"), [&](jet::Ligne ligne, std::span<const jet::Perte> pertes) {
                    if (ligne.empty()) return ++(pertes[0].quoi == jet::Perte::Quoi::UneLigne ? perdues : pages), true;
                    ++lignes;
                    const auto attendue = attendues.find(ligne[0].value_or(""));
                    if (attendue == attendues.end()) return ++faux, true;  // a row of the page that was written over
                    for (std::size_t i = 1; i < ligne.size(); ++i) {
                        const bool dite = std::ranges::find(pertes, i, &jet::Perte::champ) != pertes.end();
                        if (!dite && ligne[i] != attendue->second[i]) ++faux;
                    }
                    return true;
                });
            EXPECT_GE(lignes - std::min(lignes, faux), longue ? kFilms : kFilms - kFilmsParPage);
            EXPECT_TRUE(lignes == kFilms || perdues + pages > 0);
            if (longue && par != avant.substr(0, 14) + bruit.substr(14)) {
                EXPECT_EQ(faux, 0u);
            }
        }
    }
}

// Without its maps, or the list of its tables, a base is searched for what says that it is of the table.
TEST(FichiersHostiles, aTableWithoutMapOrNameIsFoundByItsPages) {
    BaseJet base;
    const std::size_t films = base.table("Films", {{"Titre"}, {"Resume", BaseJet::Memo}});
    std::vector<std::string> attendus;
    for (int i = 0; i < 60; ++i) {
        const auto place = i % 7 == 0   ? BaseJet::Place::Supprimee
                           : i % 5 == 0 ? BaseJet::Place::Deplacee
                                        : BaseJet::Place::Normale;
        base.ligne(films, {"Film " + std::to_string(i) + std::string(100, '.'), "r"}, place);
        if (place != BaseJet::Place::Supprimee) attendus.push_back("Film " + std::to_string(i) + std::string(100, '.'));
    }
    std::string octets = base.octets();
    octets.replace(4096, 4096, std::string(4096, '\0'));  // the maps, the catalogue's too
    const doubles::DossierTemporaire dossier;
    const std::string chemin = dossier.ecrit("c.mdb", octets);
    EXPECT_THROW(jet::Lecteur{chemin}, jet::BaseEndommagee);
    jet::Lecteur lecteur(chemin, {.abimee = true});
    const auto table = std::ranges::find(lecteur.tables(), 3u, &jet::Table::page);
    ASSERT_NE(table, lecteur.tables().end());
    EXPECT_EQ(table->nom, "");
    std::vector<std::string> lus;
    const jet::Bilan bilan = lecteur.parcourtCeQuiEstLisible(*table, [&](jet::Ligne ligne, auto) {
        if (!ligne.empty()) lus.push_back(*ligne[0]);
        return true;
    });
    EXPECT_EQ(lus, attendus);
    EXPECT_EQ(bilan.lignesRetrouvees, attendus.size());
}

}  // namespace
