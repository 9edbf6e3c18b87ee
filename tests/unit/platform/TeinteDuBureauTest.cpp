#include "doubles/PortailSimule.h"
#include "doubles/Temoin.h"
#include "platform/systeme/TeinteDuBureau.h"

#include <cstdlib>

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

using systeme::Teinte;
using testing::ElementsAre;
using namespace std::chrono_literals;

struct TeinteTest : testing::Test {
    // The name of a socket is short, wherever temporary folders lie.
    char modele[24] = "/tmp/teinte-XXXXXX";
    std::string dossier = mkdtemp(modele);
    std::vector<Teinte> dites;

    ~TeinteTest() override { std::filesystem::remove_all(dossier); }
    const doubles::Environnement avant{{{"DBUS_SESSION_BUS_ADDRESS", ""}, {"XDG_RUNTIME_DIR", ""}}};
    std::function<void(Teinte)> note() {
        return [this](Teinte teinte) { dites.push_back(teinte); };
    }
};

TEST_F(TeinteTest, TheDesktopsWishIsToldAndFollowed) {
    doubles::PortailSimule portail(dossier + "/bus", 1);
    setenv("DBUS_SESSION_BUS_ADDRESS", portail.adresse().c_str(), 1);
    systeme::TeinteDuBureau teinte(note());
    EXPECT_TRUE(teinte.attends(120s));
    EXPECT_THAT(dites, ElementsAre(Teinte::Sombre));
    portail.change("accent-color", 2);
    portail.change("color-scheme", 2);
    EXPECT_TRUE(portail.jusquA([&] { return dites.size() == 2; }));
    EXPECT_THAT(dites, ElementsAre(Teinte::Sombre, Teinte::Claire));
}

TEST_F(TeinteTest, WhetherThingsMayMoveIsToldWhereTheDesktopSaysSo) {
    doubles::PortailSimule portail(dossier + "/bus", 1);
    setenv("DBUS_SESSION_BUS_ADDRESS", portail.adresse().c_str(), 1);
    std::vector<bool> mouvements;
    systeme::TeinteDuBureau teinte(note(), [&](bool souhaite) { mouvements.push_back(souhaite); });
    EXPECT_TRUE(teinte.attends(120s));
    portail.change("org.gnome.desktop.interface", "enable-animations", g_variant_new_uint32(0));  // no yes or no
    portail.metAnimations(false);
    portail.metAnimations(true);
    EXPECT_TRUE(portail.jusquA([&] { return mouvements.size() == 2; }));
    EXPECT_THAT(mouvements, ElementsAre(false, true));
    EXPECT_THAT(dites, ElementsAre(Teinte::Sombre));
}

TEST_F(TeinteTest, APortalThatRefusesLeavesNoWish) {
    doubles::PortailSimule portail(dossier + "/bus", -1);
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    setenv("XDG_RUNTIME_DIR", dossier.c_str(), 1);  // where the bus lies when no variable names it
    systeme::TeinteDuBureau teinte(note());
    EXPECT_TRUE(teinte.attends(120s));
    EXPECT_THAT(dites, ElementsAre(Teinte::SansSouhait));
}

TEST_F(TeinteTest, WithoutABusThereIsNothingToWaitFor) {
    setenv("XDG_RUNTIME_DIR", dossier.c_str(), 1);
    for (const char* adresse : {"", "autolaunch:"}) {
        setenv("DBUS_SESSION_BUS_ADDRESS", adresse, 1);
        EXPECT_TRUE(systeme::TeinteDuBureau(note()).attends(0ms)) << adresse;
    }
    EXPECT_TRUE(dites.empty());
    setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + dossier + "/absent").c_str(), 1);
    EXPECT_TRUE(systeme::TeinteDuBureau(note()).attends(120s));
}

// It takes the call and never says a word.
TEST_F(TeinteTest, ABusThatHangsHoldsNobodyUp) {
    const int prise = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    (dossier + "/bus").copy(adresse.sun_path, sizeof adresse.sun_path - 1);
    ASSERT_EQ(bind(prise, reinterpret_cast<sockaddr*>(&adresse), sizeof adresse), 0);
    ASSERT_EQ(listen(prise, 4), 0);
    setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + dossier + "/bus").c_str(), 1);
    {
        systeme::TeinteDuBureau teinte(note());
        EXPECT_FALSE(teinte.attends(20ms));
    }
    EXPECT_TRUE(dites.empty());
    close(prise);
}

}  // namespace
