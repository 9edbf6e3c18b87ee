#include "doubles/BaseJet.h"
#include "doubles/DossierTemporaire.h"
#include "platform/jet/LecteurJet.h"

#include <cstdlib>
#include <filesystem>
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
    const std::string note = BaseJet::petit(0, 8);
    for (std::size_t i = 0; i < 24; ++i)
        base.ligne(films, {"L'Été " + std::to_string(i), std::string(i * i * 10, 'r'), note},
                   i % 5 == 0 ? BaseJet::Place::Deplacee : BaseJet::Place::Normale);
    return base.octets();
}

class Hostiles {
  public:
    explicit Hostiles(unsigned graine) : m_hasard(graine) {}

    // Reads all there is. Anything but an answer or an ErreurJet ends the test; what comes out is bounded by the file.
    void essaie(const std::string& octets) {
        try {
            jet::Lecteur lecteur(m_dossier.ecrit("h.mdb", octets));
            for (const jet::Table& table : lecteur.tables()) {
                try {
                    std::size_t rendus = 0;
                    lecteur.parcourt(
                        table,
                        [&rendus](jet::Ligne ligne) {
                            for (const auto& valeur : ligne)
                                rendus += valeur ? valeur->size() : 0;
                            return true;
                        },
                        "Affiche");
                    EXPECT_LE(rendus, 300 * octets.size());
                } catch (const jet::ErreurJet& erreur) {
                    EXPECT_STRNE(erreur.what(), "");
                }
            }
        } catch (const jet::ErreurJet& erreur) {
            EXPECT_STRNE(erreur.what(), "");
        }
    }
    // A few bytes of one of the `pages` written over: by chance, by an edge value, by what stands elsewhere.
    void abime(std::string octets, const std::vector<std::size_t>& pages, std::size_t taillePage) {
        for (std::size_t fois = 1 + tire(6); fois > 0; --fois) {
            const std::size_t place = pages[tire(pages.size())] * taillePage + placeDansLaPage(taillePage);
            const std::size_t longueur = std::min<std::size_t>(1U << tire(3), octets.size() - place);
            static constexpr std::uint64_t kBords[] = {0, 1, 0x7F, 0xFF, 0x4000, 0x7FFF, 0x80000000, 0xFFFFFFFF};
            if (tire(8) == 0)
                octets.replace(place, longueur, octets, tire(octets.size() - longueur), longueur);
            else
                octets.replace(place, longueur, BaseJet::petit(tire(2) ? tire(SIZE_MAX) : kBords[tire(8)], longueur));
        }
        essaie(octets);
    }
    void tronque(const std::string& octets) { essaie(octets.substr(0, tire(octets.size()))); }

  private:
    std::size_t tire(std::size_t borne) { return std::uniform_int_distribution<std::size_t>(0, borne - 1)(m_hasard); }
    // Heads of pages, places of rows and last bytes decide more than what lies between.
    std::size_t placeDansLaPage(std::size_t taille) { return tire(2) ? tire(100) : tire(taille); }

    std::mt19937 m_hasard;
    doubles::DossierTemporaire m_dossier;
};

// All pages but those of long values, of which a few are enough.
std::vector<std::size_t> pagesQuiComptent(const std::string& octets, std::size_t taillePage) {
    std::vector<std::size_t> pages;
    for (std::size_t page = 0, longues = 0; (page + 1) * taillePage <= octets.size(); ++page)
        if (octets.compare(page * taillePage + 4, 4, "LVAL") != 0 || ++longues < 4) pages.push_back(page);
    return pages;
}

void harcele(const std::string& octets, int fois) {
    const std::size_t taillePage = octets[0x14] == 0 ? 2048 : 4096;
    const std::vector<std::size_t> pages = pagesQuiComptent(octets, taillePage);
    Hostiles hostiles(1);
    for (int i = 0; i < fois; ++i) {
        SCOPED_TRACE(i);
        hostiles.abime(octets, pages, taillePage);
        if (i % 8 == 0) hostiles.tronque(octets);
    }
}

TEST(FichiersHostiles, aDamagedBaseEndsInAnAnswerOrAnError) {
    harcele(petiteBase(false), 500);
    harcele(petiteBase(true), 500);
}

TEST(FichiersHostiles, damagedRealBasesDoToo) {
    const char* choisi = std::getenv("AMBRELIS_DONNEES");
    const std::string dossier = std::string(choisi ? choisi : AMBRELIS_DONNEES_DEFAUT) + "/bases-jet";
    if (!std::filesystem::exists(dossier)) GTEST_SKIP() << "no real data: " << dossier;
    for (const char* nom : {"Films-2003-remaniee.mdb", "Films-97.mdb", "Vide-2000.mdb"}) {
        std::ifstream flux(dossier + "/" + nom, std::ios::binary);
        harcele({std::istreambuf_iterator<char>(flux), {}}, 150);
    }
}

}  // namespace
