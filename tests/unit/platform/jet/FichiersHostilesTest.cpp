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

std::string petiteBase(bool cartesSurDesPages) {
    BaseJet base;
    base.comprime = true;
    base.table("Personnel", {{"Titre2"}});
    const std::size_t films = base.table("Films", {{"Titre"}, {"Resume", BaseJet::Memo}, {"Note", BaseJet::Reel64}});
    base.cartesSurDesPages = cartesSurDesPages;
    for (std::size_t i = 0; i < 24; ++i)
        base.ligne(films, {"L'Été " + std::to_string(i), std::string(i * i * 10, 'r'), BaseJet::petit(0, 8)},
                   i % 5 == 0 ? BaseJet::Place::Deplacee : BaseJet::Place::Normale);
    return base.octets();
}

// Damages a file over and over and reads all there is. Anything but an answer or an ErreurJet ends the test.
class Harcelement {
  public:
    explicit Harcelement(std::string octets) : m_octets(std::move(octets)) {
        // All pages but those of long values, of which a few are enough.
        for (std::size_t page = 0, longues = 0; (page + 1) * m_taillePage <= m_octets.size(); ++page)
            if (m_octets.compare(page * m_taillePage + 4, 4, "LVAL") != 0 || ++longues < 4) m_pages.push_back(page);
    }
    void fois(int nombre) {
        for (int i = 0; i < nombre; ++i) {
            SCOPED_TRACE(i);
            essaie(i % 8 == 0 ? m_octets.substr(0, tire(m_octets.size())) : abimes());
        }
    }

  private:
    std::size_t tire(std::size_t borne) { return std::uniform_int_distribution<std::size_t>(0, borne - 1)(m_hasard); }
    // With a few bytes written over: by chance, by an edge value, by what stands elsewhere.
    std::string abimes() {
        static constexpr std::uint64_t kBords[] = {0, 1, 0x7F, 0xFF, 0x4000, 0x7FFF, 0x80000000, 0xFFFFFFFF};
        std::string octets = m_octets;
        for (std::size_t reste = 1 + tire(6); reste > 0; --reste) {
            // Heads of pages and places of rows decide more than what lies between.
            const std::size_t place = m_pages[tire(m_pages.size())] * m_taillePage + tire(tire(2) ? 100 : m_taillePage);
            const std::size_t longueur = std::min<std::size_t>(1U << tire(3), octets.size() - place);
            std::string par = BaseJet::petit(tire(2) ? tire(SIZE_MAX) : kBords[tire(8)], longueur);
            if (tire(8) == 0) par = octets.substr(tire(octets.size() - longueur), longueur);
            octets.replace(place, longueur, par);
        }
        return octets;
    }
    void essaie(const std::string& octets) {
        std::size_t rendus = 0;
        const auto compte = [&rendus](jet::Ligne ligne) {
            for (const auto& valeur : ligne)
                rendus += valeur ? valeur->size() : 0;
            return true;
        };
        const std::string chemin = m_dossier.ecrit("h.mdb", octets);
        try {
            jet::Lecteur lecteur(chemin), acharne(chemin, {.abimee = true});
            for (const jet::Table& table : lecteur.tables()) {
                lecteur.parcourt(table, compte, "Affiche");
                compareAuReste(lecteur, acharne, table);
            }
        } catch (const jet::ErreurJet& erreur) {
            EXPECT_STRNE(erreur.what(), "");
        }
        EXPECT_LE(rendus, 500 * octets.size());  // what comes out is bounded by the file
        try {
            jet::Lecteur acharne(chemin, {.abimee = true});
            for (const jet::Table& table : acharne.tables())
                acharne.parcourtCeQuiEstLisible(
                    table,
                    [&](jet::Ligne ligne, std::span<const jet::Perte> pertes) {
                        for (const jet::Perte& perte : pertes)
                            EXPECT_NE(perte.raison, "");
                        return compte(ligne);
                    },
                    "Affiche");
        } catch (const jet::ErreurJet&) {  // the head is lost
        }
        EXPECT_LE(rendus, 2000 * octets.size());
    }
    // What a strict reading gives whole, the other gives as well; more only where the declared rows fell short.
    static void compareAuReste(jet::Lecteur& lecteur, jet::Lecteur& acharne, const jet::Table& table) {
        std::vector<std::vector<std::optional<std::string>>> lues;
        const jet::Bilan bilan = lecteur.parcourt(
            table, [&](jet::Ligne ligne) { return lues.emplace_back(ligne.begin(), ligne.end()), true; });
        const auto meme = std::ranges::find(acharne.tables(), table.page, &jet::Table::page);
        ASSERT_NE(meme, acharne.tables().end());
        std::size_t rang = 0;
        acharne.parcourtCeQuiEstLisible(*meme, [&](jet::Ligne ligne, std::span<const jet::Perte> pertes) {
            if (rang >= lues.size()) return true;
            EXPECT_TRUE(pertes.empty() || (ligne.empty() && bilan.pagesEcartees > 0));
            EXPECT_TRUE(ligne.empty() || std::ranges::equal(ligne, lues[rang++]));
            return true;
        });
        EXPECT_EQ(rang, lues.size());
    }

    std::string m_octets;
    std::size_t m_taillePage = m_octets[0x14] == 0 ? 2048 : 4096;
    std::vector<std::size_t> m_pages;
    std::mt19937 m_hasard{1};
    doubles::DossierTemporaire m_dossier;
};

TEST(FichiersHostiles, aDamagedBaseEndsInAnAnswerOrAnError) {
    Harcelement(petiteBase(false)).fois(300);
    Harcelement(petiteBase(true)).fois(300);
}

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

TEST(FichiersHostiles, damagedRealBasesDoToo) {
    const std::filesystem::path dossier = doubles::donneesReelles("bases-jet");
    if (!std::filesystem::exists(dossier)) GTEST_SKIP() << "no real data: " << dossier;
    for (const char* nom : {"Films-2003-remaniee.mdb", "Films-97.mdb", "Vide-2000.mdb"}) {
        std::ifstream flux(dossier / nom, std::ios::binary);
        Harcelement({std::istreambuf_iterator<char>(flux), {}}).fois(80);
    }
}

}  // namespace
