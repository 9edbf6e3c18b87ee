#include "doubles/DossierTemporaire.h"
#include "doubles/Mort.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Restes.h"

#include <array>
#include <chrono>
#include <filesystem>

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

using doubles::DossierTemporaire;
using namespace std::string_literals;
namespace fs = std::filesystem;

namespace {

// Another program waits while it writes, until its end of the pipe is closed.
class AutreProgramme {
  public:
    explicit AutreProgramme(const DossierTemporaire& d) {
        if (pipe(m_ordres.data()) != 0 || pipe(m_nouvelles.data()) != 0) throw std::runtime_error("no pipe");
        m_enfant = fork();
        if (m_enfant != 0) {
            char prete = 0;
            if (read(m_nouvelles[0], &prete, 1) != 1) throw std::runtime_error("it does not write");
            return;
        }
        close(m_ordres[1]);
        fichiers::copie(d.chemin("source"), d.chemin("cible"), [&](std::int64_t) {
            char ordre = 0;
            return write(m_nouvelles[1], "x", 1) == 1 && read(m_ordres[0], &ordre, 1) == 1;
        });
        _exit(0);
    }
    AutreProgramme(const AutreProgramme&) = delete;
    AutreProgramme& operator=(const AutreProgramme&) = delete;
    ~AutreProgramme() {
        for (const int bout : {m_ordres[0], m_ordres[1], m_nouvelles[0], m_nouvelles[1]})
            close(bout);
        waitpid(m_enfant, nullptr, 0);
    }

  private:
    std::array<int, 2> m_ordres{}, m_nouvelles{};
    pid_t m_enfant = -1;
};

TEST(FichiersRestes, WhatKilledProgramsLeftGoesAndNothingElse) {
    const DossierTemporaire d;
    d.ecrit("source", "image");
    EXPECT_TRUE(doubles::meurtEnRoute([&] {
        fichiers::copie(d.chemin("source"), d.chemin("cible"), [](std::int64_t) -> bool { doubles::meurs(); });
    }));
    const AutreProgramme vivant(d);
    const std::string mien = ".ambrelis-" + std::to_string(getpid()) + "-1-2.tmp";
    for (const std::string& nom : {mien, "x.ambrelis-999999999-1-2.tmp"s, ".ambrelis-999999999-1-2.tmp.jpg"s,
                                   ".ambrelis-999999999-1.tmp"s, ".ambrelis-999999999--2.tmp"s, ".ambrelis-a-1-2.tmp"s,
                                   ".ambrelis-999999999-1-2.tmp"s, ".ambrelis-999999999-1-2.tmp-journal"s,
                                   ".ambrelis-1-1-2.tmp"s, ".ambrelis-1-1-2.tmp-journal"s, ".ambrelis.verrou"s})
        d.ecrit(nom, "");
    fs::create_symlink("source", d.chemin(".ambrelis-999999999-3-3.tmp"));
    fs::create_directory(d.chemin(".ambrelis-999999999-4-4.tmp"));
    const auto avant = d.noms();
    EXPECT_EQ(fichiers::supprimeRestes(d.chemin()), 4)
        << "the killed one's, mine of an earlier run, nobody's, a journal";
    const auto apres = d.noms();
    EXPECT_EQ(apres.size(), avant.size() - 4);
    for (const std::string& nom : {mien, ".ambrelis-999999999-1-2.tmp"s})
        EXPECT_THAT(apres, testing::Not(testing::Contains(nom)));
    EXPECT_THAT(apres, testing::IsSupersetOf({".ambrelis-1-1-2.tmp", ".ambrelis-999999999-3-3.tmp",
                                              ".ambrelis-999999999-4-4.tmp", "source"}));
    EXPECT_EQ(fichiers::supprimeRestes(d.chemin()), 0) << "they may be being written";
    for (const std::string& nom : d.noms())
        fs::last_write_time(d.chemin(nom), fs::file_time_type::clock::now() - std::chrono::hours(1));
    EXPECT_EQ(fichiers::supprimeRestes(d.chemin()), 2) << "but for one, nobody does for an hour without a byte";
    EXPECT_FALSE(d.existe(".ambrelis-1-1-2.tmp"));
}

}  // namespace
