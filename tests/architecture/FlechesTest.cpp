#include "architecture/Fleches.h"

#include <cstdlib>
#include <fstream>

#include <gmock/gmock.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Fleches : public testing::Test {
  protected:
    void SetUp() override {
        std::string modele = (fs::temp_directory_path() / "fleches-XXXXXX").string();
        ASSERT_NE(mkdtemp(modele.data()), nullptr);
        m_arbre = modele;
    }
    void TearDown() override { fs::remove_all(m_arbre); }

    std::vector<std::string> juge(const std::string& fichier, const std::string& texte) {
        const fs::path place = m_arbre / fichier;
        fs::create_directories(place.parent_path());
        std::ofstream(place) << texte;
        return architecture::fautes(m_arbre);
    }

    fs::path m_arbre;
};

TEST_F(Fleches, TheHouseStands) {
    EXPECT_THAT(architecture::fautes(AMBRELIS_SOURCE_DIR "/src"), IsEmpty());
}

TEST_F(Fleches, ArrowsDownwardAndWithinARoomAreFree) {
    EXPECT_THAT(juge("ui/Fenetre.cpp",
                     "#include <QWidget>\n#include \"app/Session.h\"\n#include \"util/Texte.h\"\n"
                     "#include \"Fenetre.moc\"\n"),
                IsEmpty());
    EXPECT_THAT(juge("acquire/Import.cpp", "#include \"edit/Etat.h\"\n#include \"view/Affiche.h\"\n"), IsEmpty());
    EXPECT_THAT(juge("platform/dao/Base.cpp", "#include <sqlite3.h>\n#include \"platform/dao/Base.h\"\n"), IsEmpty());
    EXPECT_THAT(juge("platform/systeme/P.cpp", "#include <spawn.h>\nint a = execv(b, c);\n"), IsEmpty());
}

TEST_F(Fleches, ArrowsUpwardAndSidewaysAreFaults) {
    EXPECT_THAT(juge("db/a/Base.cpp", "// first\n#include \"browse/Arbre.h\"\n"),
                ElementsAre("db/a/Base.cpp:2: db may not look at browse"));
    fs::remove_all(m_arbre / "db");
    EXPECT_THAT(juge("edit/E.h", "  #  include \"view/V.h\" // why\n"),
                ElementsAre("edit/E.h:1: edit may not look at view"));
    fs::remove_all(m_arbre / "edit");
    EXPECT_THAT(juge("platform/fichiers/F.cpp", "#include \"platform/systeme/S.h\"\n#include \"util/T.h\"\n"),
                ElementsAre("platform/fichiers/F.cpp:1: platform/fichiers may not look at platform/systeme"));
}

TEST_F(Fleches, ReservedThingsStayInTheirRoom) {
    EXPECT_THAT(juge("app/A.cpp",
                     "#include <QString>\n#include <QtCore/QFile>\n#include <sqlite3.h>\n"
                     "#include <mdbtools.h>\n#include <sys/wait.h>\nif (::fork() == 0) execlp (a, b);\n"),
                ElementsAre("app/A.cpp:1: QString belongs to ui alone", "app/A.cpp:2: QtCore/QFile belongs to ui alone",
                            "app/A.cpp:3: sqlite3.h belongs to platform/dao alone",
                            "app/A.cpp:4: mdbtools.h belongs to platform/jet alone",
                            "app/A.cpp:5: sys/wait.h belongs to platform/systeme alone",
                            "app/A.cpp:6: fork() belongs to platform/systeme alone"));
}

TEST_F(Fleches, OnlyTheLibrarysOwnCallsAreProcessCalls) {
    EXPECT_THAT(juge("ui/L.cpp", "auto l = QLocale::system();\nb.system(c);\nd->fork();\nmonsystem(e);\n"), IsEmpty());
    EXPECT_THAT(juge("ui/L.cpp", "std::system(a);\n"),
                ElementsAre("ui/L.cpp:1: system() belongs to platform/systeme alone"));
}

TEST_F(Fleches, TheWindowCallsACommandWithAllThatAppPutsAroundIt) {
    juge("app/Commandes.h", "void Label12_Click(const Contexte& c);\nvoid Form_Load();\n");
    EXPECT_THAT(juge("ui/P.cpp", "a.auClic(b, app::Label12_Click);\nc(browse::AffStats_Click);\n"), IsEmpty());
    EXPECT_THAT(juge("ui/P.cpp", "a.auClic(b, browse::Label12_Click);\n"),
                ElementsAre("ui/P.cpp:1: browse::Label12_Click has more around it in app"));
}

TEST_F(Fleches, WhatIsNotWrittenFromARoomIsAFault) {
    EXPECT_THAT(juge("db/B.cpp", "#include \"B.h\"\n#include \"doubles/Dialogues.h\"\n#include \"util/../app/A.h\"\n"),
                ElementsAre("db/B.cpp:1: \"B.h\" is not written from a room of src/",
                            "db/B.cpp:2: \"doubles/Dialogues.h\" is not written from a room of src/",
                            "db/B.cpp:3: \"util/../app/A.h\" is not written from a room of src/"));
    fs::remove_all(m_arbre / "db");
    EXPECT_THAT(juge("main.cpp", ""), ElementsAre("main.cpp:1: stands in no room"));
}

TEST_F(Fleches, CommentsAndTextsAreNotCode) {
    EXPECT_THAT(juge("util/T.cpp",
                     "/* #include \"app/A.h\"\n#include \"app/A.h\"\n fork() */\n// system(x)\n"
                     "auto t = \"fork() // \\\" /*\"; auto c = '\"'; f.system_(x); \n"),
                IsEmpty());
    EXPECT_THAT(juge("util/U.cpp", "auto t = \"//\"; system(t);\n"),
                ElementsAre("util/U.cpp:1: system() belongs to platform/systeme alone"));
}

}  // namespace
