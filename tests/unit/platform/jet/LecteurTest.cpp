#include "doubles/BaseJet.h"
#include "doubles/DossierTemporaire.h"
#include "platform/jet/LecteurJet.h"
#include "util/Texte.h"

#include <bit>
#include <numeric>

#include <gmock/gmock.h>

namespace {

using namespace std::string_literals;
using doubles::BaseJet;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;
using Lignes = std::vector<BaseJet::Valeurs>;

class Lecteur : public testing::Test {
  protected:
    jet::Lecteur ouvre(const std::string& octets) { return jet::Lecteur(m_dossier.ecrit("Été.mdb", octets)); }
    Lignes lit(const BaseJet& base, const std::string& nom = "Films", const std::string& affiche = "") {
        jet::Lecteur lecteur = ouvre(base.octets());
        Lignes lignes;
        m_bilan = lecteur.parcourt(
            *lecteur.table(nom),
            [&](jet::Ligne ligne) { return lignes.emplace_back(ligne.begin(), ligne.end()), true; }, affiche);
        return lignes;
    }
    std::string refus(const std::string& octets) {
        try {
            jet::Lecteur lecteur = ouvre(octets);
            for (const jet::Table& table : lecteur.tables())
                lecteur.parcourt(table, [](jet::Ligne) { return true; });
        } catch (const jet::ErreurJet& erreur) {
            return erreur.what();
        }
        return "";
    }

    doubles::DossierTemporaire m_dossier;
    jet::Bilan m_bilan;
};

constexpr auto petit = BaseJet::petit;
std::string reel(double valeur) {
    return petit(std::bit_cast<std::uint64_t>(valeur), 8);
}

TEST_F(Lecteur, nullEmptyAndEveryCharacterComeThrough) {
    for (const bool comprime : {false, true}) {
        BaseJet base;
        base.comprime = comprime;
        const std::size_t films = base.table("Films", {{"Titre"}, {"Résumé", BaseJet::Memo}, {"Note", BaseJet::Octet}});
        const Lignes lignes{{"L'Été meurtrier", "Une \"belle\" histoire\r\n", petit(8, 1)},
                            {"", "", std::nullopt},
                            {std::nullopt, std::nullopt, std::nullopt},
                            {"L'Œuvre 日本 🎬", "a\0b"s, std::nullopt}};
        for (const auto& ligne : lignes)
            base.ligne(films, ligne);
        Lignes attendues = lignes;
        attendues[0][2] = "8";
        EXPECT_EQ(lit(base), attendues) << comprime;
    }
}

TEST_F(Lecteur, aCompressedTextGoesOverToTwoBytesAndBack) {
    BaseJet base;
    base.ligne(base.table("Films", {{"Titre", BaseJet::Binaire}}), {"\xFF\xFEL'\0\x53\x01\0uvre \0\x3D\xD8"s});
    std::string octets = base.octets();
    // A field of binary type takes any bytes: called a text afterwards, it is one.
    octets.at(octets.find("\x09\0\0\0\0\0\0"s, 4096)) = BaseJet::Texte;
    jet::Lecteur lecteur = ouvre(octets);
    lecteur.parcourt(lecteur.tables()[0], [](jet::Ligne ligne) {
        EXPECT_THAT(ligne[0], Optional("L'œuvre \xEF\xBF\xBD"s));  // half a pair stands for no character
        return true;
    });
}

TEST_F(Lecteur, everyTypeBecomesText) {
    struct Cas {
        BaseJet::Type type;
        std::optional<std::string> octets, attendu;
    };
    const std::vector<Cas> cas{
        {BaseJet::Booleen, "", "-1"},
        {BaseJet::Booleen, std::nullopt, "0"},
        {BaseJet::Octet, petit(200, 1), "200"},
        {BaseJet::Entier16, petit(-12, 2), "-12"},
        {BaseJet::Entier32, petit(-100000, 4), "-100000"},
        {BaseJet::Monetaire, petit(-75000, 8), "-7.5"},
        {BaseJet::Monetaire, petit(80000, 8), "8"},
        {BaseJet::Reel32, petit(std::bit_cast<std::uint32_t>(7.3F), 4), "7.3"},
        {BaseJet::Reel64, reel(9), "9"},
        {BaseJet::Reel64, reel(0.1), "0.1"},
        {BaseJet::Date, reel(38058), "12/03/2004"},
        {BaseJet::Date, reel(38058.75), "12/03/2004 18:00:00"},
        {BaseJet::Date, reel(-1.25), "29/12/1899 06:00:00"},
        {BaseJet::Date, reel(1e300), "1e+300"},
        {BaseJet::Decimal, petit(0x80, 13) + petit(12345, 4), "-12.345"},
        {BaseJet::Decimal, petit(0, 1) + petit(1, 16), "79228162514264337593543950.336"},
        {BaseJet::Identifiant, "0123456789abcdef", "{33323130-3534-3736-3839-616263646566}"},
        {BaseJet::Binaire, "a\xFF", "a\xFF"},
        {BaseJet::Ole, std::string(5000, '\xFF'), std::string(5000, '\xFF')},
    };
    BaseJet base;
    std::vector<BaseJet::Champ> champs;
    BaseJet::Valeurs valeurs, attendues;
    for (const auto& [type, octets, attendu] : cas) {
        champs.push_back({"C", type});
        valeurs.push_back(octets);
        attendues.push_back(attendu);
    }
    base.ligne(base.table("Films", champs), valeurs);
    EXPECT_EQ(lit(base), Lignes{attendues});
}

TEST_F(Lecteur, longValuesMovedRowsAndBothKindsOfMapAreFollowed) {
    for (const int nombre : {100, 700}) {  // the second one too large for maps of one row
        BaseJet base;
        const std::size_t films = base.table("Films", {{"Titre"}, {"Resume", BaseJet::Memo}});
        base.table("Personnel", {{"Titre2"}});
        Lignes attendues;
        for (int i = 0; i < nombre; ++i) {  // summaries in the row, on a page, on several
            const std::string resume(static_cast<std::size_t>(i % 3 == 0 ? 30 : i % 3 == 1 ? 700 : 9000), 'r');
            attendues.push_back({"Film " + std::to_string(i) + std::string(60, '.'), resume});
            base.ligne(films, attendues.back(), i % 7 == 0 ? BaseJet::Place::Deplacee : BaseJet::Place::Normale);
            if (i % 5 == 0) base.ligne(films, {"gone", "gone"}, BaseJet::Place::Supprimee);
        }
        EXPECT_EQ(lit(base), attendues) << nombre;
        EXPECT_EQ(m_bilan.lignesLues, attendues.size());
        EXPECT_THAT(lit(base, "personnel"), IsEmpty());
    }
}

TEST_F(Lecteur, postersAreBytes) {
    std::string photo(230001, '\0');
    std::iota(photo.begin(), photo.end(), '\0');
    BaseJet base;
    const std::size_t films = base.table("Films", {{"Affiche", BaseJet::Memo}, {"Resume", BaseJet::Memo}});
    const std::string caracteres = "STO" + util::depuis1252(photo);
    base.ligne(films, {caracteres, caracteres});
    base.ligne(films, {"JPGL'Œuvre.jpg", "STO"});
    base.ligne(films, {"STO?日\u0153", std::nullopt});
    EXPECT_EQ(lit(base, "Films", "AFFICHE"),
              (Lignes{{"STO" + photo, caracteres}, {"JPGL'Œuvre.jpg", "STO"}, {"STO??\x9C", std::nullopt}}));
    EXPECT_EQ(m_bilan.affichesAlterees, 1u);
}

TEST_F(Lecteur, tablesAreTheUsersOwn) {
    BaseJet base;
    std::vector<BaseJet::Champ> champs;
    for (int i = 0; i < 200; ++i)  // a definition over several pages
        champs.push_back({"Un champ de nom plutôt long " + std::to_string(i)});
    base.table("Notes diverses", champs);
    base.table("MSysACEs", {{"Id", BaseJet::Entier32}}, 0x80000000);
    const std::size_t films = base.table("Films", {{"Titre"}, {"Note", BaseJet::Entier16}});
    for (int i = 0; i < 3; ++i)
        base.ligne(films, {"Z", std::nullopt});
    jet::Lecteur lecteur = ouvre(base.octets());
    ASSERT_EQ(lecteur.tables().size(), 2u);
    ASSERT_EQ(lecteur.tables()[0].champs.size(), 200u);
    EXPECT_EQ(lecteur.tables()[0].champs[199].nom, "Un champ de nom plutôt long 199");
    EXPECT_EQ(lecteur.table("MSysACEs"), nullptr);
    const jet::Table& table = lecteur.tables()[1];
    EXPECT_EQ(lecteur.table("FILMS"), &table);
    EXPECT_EQ(table.lignesDeclarees, 3u);
    EXPECT_EQ(table.champs[0].nature, jet::Nature::Texte);
    EXPECT_EQ(table.champs[1].nature, jet::Nature::Nombre);
    // The receiver stops the reading.
    int recues = 0;
    const jet::Bilan bilan = lecteur.parcourt(table, [&](jet::Ligne) { return ++recues < 2; });
    EXPECT_EQ(bilan.lignesLues, 2u);
    EXPECT_TRUE(bilan.interrompu);
}

TEST_F(Lecteur, aBaseWithAPasswordAsksForIt) {
    for (const std::uint32_t cle : {0u, 0x12345678u})
        for (const double jour : {0.0, 38000.75}) {
            BaseJet base;
            base.ligne(base.table("Films", {{"Titre"}}), {"Z"});
            base.cle = cle;
            base.jourDeCreation = jour;
            EXPECT_EQ(base.octets().find("T\0i\0t"s) == std::string::npos, cle != 0);
            EXPECT_EQ(lit(base), (Lignes{{"Z"}}));
            for (const std::string secret : {"s", "L'Été à 20 caractère"}) {
                base.motDePasse = secret;
                const std::string chemin = m_dossier.ecrit("Été.mdb", base.octets());
                EXPECT_EQ(refus(base.octets()), "La base \"" + chemin + "\" est protégée par un mot de passe.");
                for (const std::string& faux : {""s, "S"s, secret + "s", secret + "\0"s, secret.substr(1)})
                    EXPECT_FALSE(jet::accepteMotDePasse(chemin, faux)) << faux;
                EXPECT_TRUE(jet::accepteMotDePasse(chemin, secret));
                EXPECT_EQ(jet::Lecteur(chemin, {.motDePasse = secret}).tables().size(), 1u);
            }
        }
    EXPECT_TRUE(jet::accepteMotDePasse(m_dossier.chemin("rien.mdb"), ""));
    // A Jet 3 head holds the characters themselves, in code page 1252.
    BaseJet ancienne;
    ancienne.jet3 = true;
    ancienne.motDePasse = "L'œuvre";
    const std::string chemin = m_dossier.ecrit("97.mdb", ancienne.octets());
    EXPECT_FALSE(jet::accepteMotDePasse(chemin, "L'oeuvre"));
    EXPECT_TRUE(jet::accepteMotDePasse(chemin, "L'œuvre"));
}

TEST_F(Lecteur, whatIsNoJetBaseIsRefused) {
    const std::string chemin = m_dossier.chemin("Été.mdb");
    EXPECT_FALSE(jet::estBaseJet(chemin));
    EXPECT_THROW(jet::Lecteur{chemin}, jet::ErreurJet);
    EXPECT_FALSE(jet::estBaseJet(m_dossier.chemin()));
    EXPECT_EQ(refus(""), "La base \"" + chemin + "\" ne peut pas être lue.");
    EXPECT_EQ(refus(std::string(5000, 'S')), "Le fichier \"" + chemin + "\" n'est pas une base Access.");
    EXPECT_FALSE(jet::estBaseJet(chemin));
    std::string recente = BaseJet().octets();
    recente[0x14] = 3;
    EXPECT_EQ(refus(recente), "La base \"" + chemin + "\" est d'une version d'Access inconnue (3).");
    EXPECT_TRUE(jet::estBaseJet(chemin));
}

// What the file announces and does not hold is told, with its place.
TEST_F(Lecteur, damageIsToldWithItsPlace) {
    BaseJet base;
    const std::size_t films = base.table("Films", {{"Titre"}, {"Resume", BaseJet::Memo}});
    base.ligne(films, {"Un", std::string(9000, 'r')});
    for (int i = 0; i < 10; ++i)
        base.ligne(films, {"Deux", std::string(100, 's')});
    base.ligne(films, {"Trois", ""}, BaseJet::Place::Deplacee);
    const std::string saine = base.octets();
    EXPECT_EQ(refus(saine), "");
    const auto change = [&saine](const std::string& cherche, std::size_t decalage, const std::string& par) {
        std::string octets = saine;
        for (std::size_t i = octets.find(cherche); i != std::string::npos; i = octets.find(cherche, i + 1))
            octets.replace(i + decalage, par.size(), par);
        EXPECT_NE(octets, saine);
        return octets;
    };
    const std::string tete = petit(18000, 4), debut = "La base est endommagée : table \"Films\", ligne ";
    const std::string resume = debut + "1, champ \"Resume\" : ";
    EXPECT_EQ(refus(change(tete, 0, petit(18001, 4))), resume + "18001 octets sont annoncés, 18000 trouvés.");
    EXPECT_EQ(refus(change(tete, 0, petit(17999, 4))), resume + "17999 octets sont annoncés, 18000 trouvés.");
    EXPECT_EQ(refus(change(tete, 4, petit(0x200, 4))), resume + "un renvoi mène à une page étrangère.");
    EXPECT_THAT(refus(change(tete, 4, petit(0xFFFF00, 4))), HasSubstr("n'est pas dans le fichier."));
    EXPECT_THAT(refus(saine.substr(0, saine.size() - 1)), HasSubstr("n'est pas dans le fichier."));
    // Every short summary made to lead to the long one.
    EXPECT_THAT(refus(change(petit(0x40000000 | 200, 4), 0, saine.substr(saine.find(tete), 8))),
                HasSubstr(", champ \"Resume\" : des renvois mènent plusieurs fois au même endroit."));
    // The moved row's pointer, from the first page of rows, made to lead to itself.
    const std::size_t page = saine.find(petit(0x0101, 4) + petit(3, 4)) / 4096;
    EXPECT_EQ(refus(change(petit(page << 8 | 11, 4), 0, petit(page << 8 | 12, 4))),
              debut + "12 : des renvois tournent en rond.");
}

TEST_F(Lecteur, aTableWhoseDefinitionIsLostHidesNoOther) {
    BaseJet base;
    base.ligne(base.table("Perdue", {{"Titre"}}), {"x"});
    base.ligne(base.table("Films", {{"Titre"}}), {"Z"});
    std::string octets = base.octets();
    octets[3 * 4096] = 0;  // the first table's definition
    jet::Lecteur lecteur = ouvre(octets);
    EXPECT_THAT(lecteur.table("Perdue")->champs, IsEmpty());
    EXPECT_EQ(lecteur.parcourt(*lecteur.table("Films"), [](jet::Ligne) { return true; }).lignesLues, 1u);
    EXPECT_EQ(refus(octets), "La base est endommagée : table \"Perdue\" : sa définition est illisible.");
    octets[3 * 4096] = 2;
    octets[3 * 4096 + 45] = 0;
    EXPECT_EQ(refus(octets), "La base est endommagée : table \"Perdue\" : sa définition annonce 0 champs.");
    EXPECT_THAT(ouvre(octets).table("Perdue")->champs, IsEmpty());
}

}  // namespace
