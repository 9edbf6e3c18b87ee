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
        try {
            jet::Lecteur lecteur(m_dossier.ecrit("h.mdb", octets));
            for (const jet::Table& table : lecteur.tables())
                lecteur.parcourt(table, compte, "Affiche");
        } catch (const jet::ErreurJet& erreur) {
            EXPECT_STRNE(erreur.what(), "");
        }
        EXPECT_LE(rendus, 500 * octets.size());  // what comes out is bounded by the file
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

TEST(FichiersHostiles, damagedRealBasesDoToo) {
    const char* choisi = std::getenv("AMBRELIS_DONNEES");
    const std::string dossier = std::string(choisi ? choisi : AMBRELIS_DONNEES_DEFAUT) + "/bases-jet";
    if (!std::filesystem::exists(dossier)) GTEST_SKIP() << "no real data: " << dossier;
    for (const char* nom : {"Films-2003-remaniee.mdb", "Films-97.mdb", "Vide-2000.mdb"}) {
        std::ifstream flux(dossier + "/" + nom, std::ios::binary);
        Harcelement({std::istreambuf_iterator<char>(flux), {}}).fois(80);
    }
}

}  // namespace
