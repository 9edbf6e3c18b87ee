#include "browse/AffichePossession.h"
#include "doubles/Temoin.h"
#include "unit/view/FenetreVue.h"
#include "view/ChercheFichier.h"
#include "view/Command1_Click.h"
#include "view/LanceFichier.h"

using doubles::Temoin;
using systeme::Lancement;
using systeme::Ouverture;
using Mots = std::vector<std::string>;

TEST(TableExtensions, TheFirstRowThatYieldsTheExtensionGivesTheProgram) {
    const std::string defaut = view::kLogicielParDefaut;
    view::TableExtensions table;
    table.lignes[0] = {"avi", "premier"};
    table.lignes[1] = {"AVI", "second"};
    table.lignes[2] = {"mpg/mpeg/vob", "collés"};
    table.lignes[3] = {"mkv/ mp4/ œuf", "espacés"};
    table.lignes[4] = {"été/ ogv", "accents"};
    table.lignes[5] = {"ts", ""};
    const std::pair<const char*, std::string> cas[] = {{"avi", "premier"}, {"AVI", "premier"}, {"mpg", defaut},
                                                       {"mpeg", defaut},   {"vob", defaut},    {"mkv", defaut},
                                                       {"mp4", defaut},    {"ŒUF", "espacés"}, {"OGV", "accents"},
                                                       {"ogm", defaut},    {"ts", defaut},     {"mpg/", "collés"}};
    for (const auto& [extension, programme] : cas)
        EXPECT_EQ(table.logiciel(extension), programme) << extension;
    EXPECT_EQ(view::TableExtensions().logiciel(""), defaut) << "an empty table";
}

TEST(ChercheFichier, TriesWhatFollowsTheVolumeOnEveryOther) {
    const std::vector<systeme::Volume> volumes{
        {"/media/eve/DISQUE A"}, {"/media/fd0", false}, {"/mnt/nas", false}, {"/srv/films"}, {"/"}};
    const std::pair<const char*, Mots> cas[] = {
        {R"(\\nas\films\a.avi)", {"/media/eve/DISQUE A/a.avi", "/srv/films/a.avi", "/a.avi"}},
        {"/srv/films/a.avi", {"/srv/films/a.avi", "/media/eve/DISQUE A/a.avi", "/a.avi"}},
        {"/srv/films2/a.avi",
         {"/srv/films2/a.avi", "/media/eve/DISQUE A/srv/films2/a.avi", "/srv/films/srv/films2/a.avi"}},
        {"/mnt/nas/a.avi", {"/media/eve/DISQUE A/a.avi", "/srv/films/a.avi", "/a.avi"}},
        {"E:/mnt/nas/a.avi", {"/media/eve/DISQUE A/mnt/nas/a.avi", "/srv/films/mnt/nas/a.avi"}},
        {"/run/media/eve/USB/b/a.avi",
         {"/run/media/eve/USB/b/a.avi", "/media/eve/DISQUE A/run/media/eve/USB/b/a.avi",
          "/srv/films/run/media/eve/USB/b/a.avi", "/b/a.avi", "/media/eve/DISQUE A/b/a.avi", "/srv/films/b/a.avi"}},
        {"D:\\", {}},
        {"", {}}};
    for (const auto& [chemin, places] : cas)
        EXPECT_EQ(view::placesPossibles(chemin, volumes), places) << chemin;
    const Mots anciens = view::placesPossibles("/media/cdrom/b/a.avi", {{"/mnt/x"}});
    EXPECT_EQ(anciens, (Mots{"/mnt/x/media/cdrom/b/a.avi", "/mnt/x/b/a.avi", "/mnt/x/a.avi"}));
}

namespace {

class Lanceur : public testing::Test, protected doubles::MachineDEssai {
  protected:
    bool lance(const std::string& fichier, bool existence, const std::string& parametres, const std::string& ou,
               bool attente) {
        return view::LanceFichier(machine, fichier, existence, "open", parametres, ou, "2", attente);
    }
    bool document(const std::string& chemin) { return lance(chemin, false, "", "", false); }
};

class FichiersDuFilm : public FenetreVue {
  protected:
    void SetUp() override { volumes.volumes = {{dossier.chemin("usb")}, {dossier.chemin("disque")}}; }
};

}  // namespace

TEST_F(Lanceur, OpensADocumentThroughTheDesktopAndNeverAsAProgram) {
    const std::string script = dossier.ecrit("L'été \"52\".sh", "#!/bin/sh\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    EXPECT_TRUE(document("\"" + script + "\""));
    EXPECT_EQ(documents.fichiers, Mots{script});
    EXPECT_EQ(documents.dossiers, Mots{dossier.chemin()});
    EXPECT_TRUE(programmes.lances.empty());
}

TEST_F(Lanceur, TellsWhyADocumentWasNotOpened) {
    dialogues.attendMsgBox("L'attente de la fin d'exécution d'un document n'est pas gérée !", dialogues::kExclamation);
    EXPECT_FALSE(lance("/a/b.avi", false, "", "", true));
    dialogues.attendMsgBox("Fichier /a/absent.avi inexistant !", dialogues::kCritique);
    EXPECT_FALSE(lance("/a/absent.avi", true, "", "", false));
    EXPECT_TRUE(documents.fichiers.empty());
    const std::pair<Ouverture, std::pair<const char*, int>> cas[] = {
        {Ouverture::SansMemoire, {"Le système manque de mémoire pour exécuter le fichier.", 16}},
        {Ouverture::SansAssociation,
         {"Le fichier à lancer est de type AVI mais aucune application n'est associée.", 48}},
        {Ouverture::Echouee, {"Le fichier /a/b.avi n'a pas pu être ouvert.", 16}}};
    for (const auto& [issue, boite] : cas) {
        documents.issue = issue;
        dialogues.attendMsgBox(boite.first, boite.second);
        EXPECT_FALSE(document("\"/a/b.avi\""));
    }
}

TEST_F(Lanceur, RunsAProgramWithItsParametersInItsFolder) {
    const std::string chemin = dossier.ecrit("Le Rapatrix/Rapatrix.exe", "MZ");
    EXPECT_TRUE(lance(dossier.chemin("le rapatrix\\rapatrix.EXE"), true, "-x \"L'été $HOME\"", "", false));
    EXPECT_EQ(programmes.lances.at(0).arguments, (Mots{chemin, "-x", "L'été $HOME"}));
    EXPECT_EQ(programmes.lances[0].dossier, dossier.chemin("Le Rapatrix/"));
    EXPECT_TRUE(lance("\"" + chemin + "\" -y", false, "", "/tmp", true));
    EXPECT_EQ(programmes.attendus.at(0).arguments, (Mots{chemin, "-y"}));
    EXPECT_EQ(programmes.attendus[0].dossier, "/tmp");
    EXPECT_TRUE(documents.fichiers.empty());
    dialogues.attendMsgBox("Un guillemet n'est pas fermé dans les paramètres de " + chemin + ".", dialogues::kCritique);
    EXPECT_FALSE(lance(chemin, false, "\"oubli", "", false));
    programmes.issue = Lancement::PasUnProgramme;
    for (const bool attente : {false, true}) {
        dialogues.attendMsgBox(
            "Le programme " + chemin +
                " n'a pas pu être lancé : ce n'est pas un programme que cette machine sait exécuter.",
            dialogues::kCritique);
        EXPECT_FALSE(lance(chemin, false, "", "", attente));
    }
}

TEST_F(Lanceur, BreathesWhileItWaitsAndTheUserMayEndIt) {
    const std::string chemin = dossier.chemin("dormeur.exe");
    std::filesystem::copy_file(Temoin::programme(), chemin);
    systeme::ProgrammesSysteme vrais;
    programmes.vrais = &vrais;
    EXPECT_TRUE(lance(chemin, true, "finit", "", true));
    ecranMuet.souffles = 0;
    ecranMuet.arretApres = 3;
    EXPECT_FALSE(lance(chemin, true, "dort", "", true)) << "it would never end by itself";
    EXPECT_EQ(ecranMuet.souffles, 3);
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
}

TEST_F(FichiersDuFilm, HaveAWindowThatComesToTheFrontEachTime) {
    cmdFichiersFilm_Click(c);
    EXPECT_TRUE(fichiers.Visible && fichiers.presentations == 2);
    Command1_Click(c, 3);
    EXPECT_FALSE(fichiers.Visible);
}

TEST_F(FichiersDuFilm, AreFoundOnTheVolumeWhereTheyNowAre) {
    film.fichiers = {R"(D:\Films\L'Été.AVI)", "/media/eve/PERDU/b/c.mkv", ""};
    const std::string ete = dossier.ecrit("disque/films/L'été.avi", "film");
    const std::string autre = dossier.ecrit("usb/b/c.mkv", "film");
    for (const int indice : {0, 1, 2})
        Command1_Click(c, indice);
    EXPECT_EQ(documents.fichiers, (Mots{ete, autre})) << "the third is empty";
    const std::string premier = dossier.ecrit("usb/Films/L'Été.AVI", "film");
    Command1_Click(c, 0);
    EXPECT_EQ(documents.fichiers.back(), premier) << "the first volume wins";

    const std::string personnel = std::getenv("HOME") ? std::getenv("HOME") : "/";
    setenv("HOME", dossier.chemin("usb").c_str(), 1);
    film.fichiers[2] = "~/b/c.mkv";
    Command1_Click(c, 2);
    setenv("HOME", personnel.c_str(), 1);
    EXPECT_EQ(documents.fichiers.back(), autre);
}

TEST_F(FichiersDuFilm, WhatIsNowhereOrOnASilentVolumeOrAFolderIsNotFound) {
    dossier.ecrit("disquette/a.avi", "film");
    dossier.ecrit("usb/dossier.avi/x", "film");
    volumes.volumes.push_back({dossier.chemin("disquette"), false});
    film.fichiers = {"A:\\a.avi", dossier.chemin("usb/absent.avi"), "dossier.avi"};
    for (const int indice : {0, 1, 2}) {
        dialogues.attendMsgBox(
            "Le fichier " + film.fichiers[static_cast<std::size_t>(indice)] + " n'a pas été trouvé !",
            dialogues::kCritique);
        Command1_Click(c, indice);
    }
    EXPECT_TRUE(documents.fichiers.empty() && programmes.lances.empty());
}

// What turns the letters of a name round would show "exe.avi".
TEST_F(FichiersDuFilm, AProgramIsNotShownAsAFilm) {
    FenetreVue::SetUp();
    possede("Alien", "", {{"Fichier1", "usb/Été\n\u202Eiva.exe"}});
    film.titre = "Alien";
    browse::AffichePossession(c);
    EXPECT_EQ(fiche.Command1[0].Caption, "Été \uFFFDiva.exe");
    EXPECT_EQ(fiche.cheminsFichiers[0], "usb/Été \uFFFDiva.exe");
    dialogues.attendMsgBox("Le fichier usb/Été \uFFFDiva.exe n'a pas été trouvé !", dialogues::kCritique);
    Command1_Click(c, 0);
}

TEST_F(FichiersDuFilm, APathOfMegabytesIsLookedForNowhereAndShortenedInItsMessage) {
    std::string debut;
    for (int i = 0; i < 333; ++i)
        debut += "..\\";
    while (film.fichiers[0].size() < 5'000'000)
        film.fichiers[0] += "..\\";
    dialogues.attendMsgBox("Le fichier " + debut + ".… n'a pas été trouvé !", dialogues::kCritique);
    Command1_Click(c, 0);
}

TEST_F(FichiersDuFilm, OpenWithTheProgramOfTheirExtension) {
    const std::string nom = "L'œuvre \"$(id)\" --x.avi", film1 = dossier.ecrit("usb/" + nom, "film");
    const std::string mkv = dossier.ecrit("usb/-x.mkv", "film"), vob = dossier.ecrit("usb/a.vob", "film");
    const std::string logiciel = dossier.ecrit("Lecteur vidéo (2)/lis moi", "programme");
    extensions.lignes[0] = {"avi", "/usr/bin/lecteur --plein-écran '--titre=Un été'"};
    extensions.lignes[1] = {"MKV", logiciel};
    extensions.lignes[2] = {"vob", view::kLogicielParDefaut};
    film.fichiers = {nom, "-x.mkv", "a.vob"};
    for (const int indice : {0, 1, 2})
        Command1_Click(c, indice);
    EXPECT_EQ(programmes.lances.at(0).arguments, (Mots{"/usr/bin/lecteur", "--plein-écran", "--titre=Un été", film1}));
    EXPECT_EQ(programmes.lances.at(1).arguments, (Mots{logiciel, mkv})) << "a whole path, blanks included";
    EXPECT_EQ(documents.fichiers, Mots{vob});

    extensions.lignes[0][1] = R"(C:\Program Files\lecteur.exe)";
    programmes.issue = Lancement::Introuvable;
    dialogues.attendMsgBox(R"(Le programme C:\Program Files\lecteur.exe n'a pas pu être lancé : il est introuvable.)",
                           dialogues::kCritique);
    Command1_Click(c, 0);
}
