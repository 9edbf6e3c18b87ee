#include "app/ChoixFonction.h"
#include "app/LogicielsExternes.h"
#include "parcours/Installation.h"

#include <gmock/gmock.h>

namespace {

using dialogues::kExclamation;
using dialogues::kNon;
using dialogues::kOui;
using dialogues::kQuestion;
using parcours::Execution;
using parcours::Installation;
using testing::ElementsAre;

constexpr const char* kParDefaut = " Logiciel par défaut";

// The configuration page, open on a table of two extensions.
struct LogicielsExternesTest : testing::Test {
    Installation installation;
    std::optional<Execution> execution;

    void ouvre(const std::string& table = "avi\n/usr/bin/mpv --fs\nmkv\n/usr/bin/vidéo\n") {
        installation.ecrit("Extensions.txt", table);
        execution.emplace(installation.chemin());
        ASSERT_TRUE(execution->demarre());
        execution->session.execute(app::cmdConfig_Click, 1);
    }
    ecran::Liste& liste(std::size_t indice) { return execution->etats.fonctions.Combo6[indice]; }
    void choisit(int indice, int place) {
        liste(static_cast<std::size_t>(indice)).selectionne(place);
        execution->session.execute(app::Combo6_Click, indice);
    }
    void ajoute(const std::string& extension) {
        execution->etats.fonctions.txtNouvelleExtension.Text = extension;
        execution->session.execute(app::cmdAjoutExtension_Click);
    }
    void refuse(const std::string& extension, const std::string& message) {
        execution->boites.attendMsgBox(message, kExclamation);
        ajoute(extension);
        EXPECT_EQ(execution->etats.fonctions.txtNouvelleExtension.Text, extension);
        EXPECT_EQ(execution->etats.demandes.focus, "txtNouvelleExtension");
    }
    void retire(const std::string& extension, int reponse = kOui) {
        execution->boites.attendMsgBox("Retirer l'extension \"" + extension +
                                           "\" de la liste ?\nSes fichiers s'ouvriront avec le logiciel par défaut.",
                                       kQuestion, reponse);
        execution->session.execute(app::cmdSupprExtension_Click);
    }
    std::string fichier() { return installation.lit("Extensions.txt"); }
};

TEST_F(LogicielsExternesTest, ShowsTheProgramOfEachExtensionAndKeepsEveryChangeAtOnce) {
    ouvre();
    EXPECT_EQ(liste(1).Text, "/usr/bin/mpv --fs");
    EXPECT_THAT(liste(1).Items, ElementsAre("/usr/bin/mpv --fs", "/usr/bin/vidéo", kParDefaut));
    choisit(0, 1);
    EXPECT_EQ(liste(1).Text, "/usr/bin/vidéo");
    choisit(1, 0);
    EXPECT_EQ(fichier(), "avi\n/usr/bin/mpv --fs\nmkv\n/usr/bin/mpv --fs\n");

    ajoute(" *.ogm ");
    EXPECT_EQ(liste(0).Text, "ogm");
    EXPECT_EQ(liste(1).Text, kParDefaut);
    EXPECT_EQ(execution->etats.demandes.focus, "cmdParcourirLogiciel");
    const std::string lecteur = installation.ecrit("Mon lecteur d'été", "#!/bin/true\n");
    std::filesystem::permissions(lecteur, std::filesystem::perms::owner_all);
    execution->boites.attendFichier({"Logiciel des fichiers ogm", "Tous les fichiers|*.*", "/usr/bin"}, lecteur);
    execution->session.execute(app::cmdParcourirLogiciel_Click);
    EXPECT_EQ(liste(1).Text, lecteur);

    choisit(0, 0);
    retire("avi", kNon);
    EXPECT_EQ(liste(0).ListCount(), 3);
    retire("avi");
    EXPECT_EQ(liste(0).Text, "mkv");
    const std::string voulu = "mkv\n/usr/bin/mpv --fs\nogm\n" + lecteur + "\n";
    EXPECT_EQ(fichier(), voulu);

    execution.emplace(installation.chemin());  // without a shut-down
    ASSERT_TRUE(execution->demarre());
    EXPECT_THAT(liste(0).Items, ElementsAre("mkv", "ogm"));
    execution->session.Form_Unload();
    EXPECT_EQ(fichier(), voulu);
}

TEST_F(LogicielsExternesTest, ACancelledBoxOrAFileThatCannotRunChangesNothing) {
    ouvre();
    const std::string texte = installation.ecrit("notes.txt", "");
    const dialogues::DemandeFichier demande{"Logiciel des fichiers avi", "Tous les fichiers|*.*", "/usr/bin"};
    execution->boites.attendFichier(demande, "");
    execution->session.execute(app::cmdParcourirLogiciel_Click);
    for (const std::string& choisi : {texte, installation.chemin("absent"), installation.chemin()}) {
        execution->boites.attendFichier(demande, choisi);
        execution->boites.attendMsgBox("Ce fichier n'est pas un logiciel qui peut être lancé :\n" + choisi,
                                       kExclamation);
        execution->session.execute(app::cmdParcourirLogiciel_Click);
    }
    EXPECT_EQ(liste(1).Text, "/usr/bin/mpv --fs");
    EXPECT_EQ(fichier(), "avi\n/usr/bin/mpv --fs\nmkv\n/usr/bin/vidéo\n");
}

TEST_F(LogicielsExternesTest, RefusesWhatIsNoNewExtension) {
    ouvre();
    for (const char* vide : {"", "  ", ".", " *. "})
        refuse(vide, "Tapez d'abord une extension, par exemple avi.");
    for (const char* impossible : {"avi/mpg", "a vi", "tar.gz", "a\u00A0vi", "a\nvi", "C:\\avi"})
        refuse(impossible, "Une extension s'écrit sans espace, sans point et sans \"/\", par exemple avi.");
    refuse("MKV", "L'extension \"MKV\" est déjà dans la liste.");
    EXPECT_EQ(liste(0).Text + liste(1).Text, "mkv/usr/bin/vidéo");
    for (int i = 3; i <= 15; ++i)
        ajoute("e" + std::to_string(i));
    refuse("e16",
           "La liste est complète : elle ne contient pas plus de quinze extensions. Retirez-en une pour en ajouter une "
           "autre.");
    EXPECT_TRUE(fichier().ends_with("\ne15\n Logiciel par défaut\n"));
}

TEST_F(LogicielsExternesTest, RowsOfAnOlderFileAreKeptAsTheyStand) {
    ouvre("avi/ mpg\n\n. MKV \nvlc \"a b\"\n\nx");
    EXPECT_THAT(liste(0).Items, ElementsAre("avi/ mpg", ". MKV ", ""));
    EXPECT_EQ(liste(1).Text, kParDefaut);  // no program
    choisit(0, 1);
    EXPECT_EQ(liste(1).Text, "vlc \"a b\"");
    refuse("MPG", "L'extension \"MPG\" est déjà dans la liste.");  // the row that serves it, whatever else it holds
    EXPECT_EQ(liste(0).Text, "avi/ mpg");
    ajoute("avi");
    EXPECT_EQ(fichier(), "avi/ mpg\n\n. MKV \nvlc \"a b\"\n\nx\navi\n Logiciel par défaut\n");
    choisit(0, 2);
    retire("");
    EXPECT_EQ(fichier(), "avi/ mpg\n\n. MKV \nvlc \"a b\"\navi\n Logiciel par défaut\n");
}

TEST_F(LogicielsExternesTest, AnEmptyTableOffersOnlyToAdd) {
    ouvre("");
    const app::EtatFonctions& etat = execution->etats.fonctions;
    const auto offre = [&] {
        return std::vector{liste(0).Enabled, liste(1).Enabled, etat.cmdParcourirLogiciel.Enabled,
                           etat.cmdSupprExtension.Enabled};
    };
    EXPECT_THAT(offre(), testing::Each(false));
    ajoute("avi");
    EXPECT_THAT(offre(), testing::Each(true));
    retire("avi");
    EXPECT_THAT(offre(), testing::Each(false));
    EXPECT_EQ(fichier(), "");
    execution->session.execute(app::cmdSupprExtension_Click);
    execution->session.execute(app::cmdParcourirLogiciel_Click);
}

}  // namespace
