#include "acquire/FicheFilm.h"
#include "acquire/RapportImport.h"
#include "acquire/cmdParcourir2_Click.h"
#include "doubles/Temoin.h"
#include "unit/acquire/FenetreAcquisition.h"

#include <filesystem>
#include <string>

namespace {

using namespace std::string_literals;

TEST(FicheFilm, carriesHostileTextsThrough) {
    struct Cas {
        const char* nom;
        std::string octets, titre, realisateur, annee;
    };
    const std::string vingt = "vingt caracteres ici";
    for (const Cas& cas : {
             Cas{"no line", "", "Non défini", "Non défini", ""},
             Cas{"one line without an end", "Alien", "Alien", "Non défini", ""},
             Cas{"empty lines", "\r\n\r\n1979\r\n", "Non défini", "Non défini", "1979"},
             Cas{"LF ends", "alien\nScott\n1979", "Alien", "Scott", "1979"},
             Cas{"CR ends", "alien\rScott\r1979", "Alien", "Scott", "1979"},
             Cas{"Windows-1252", "l'\xC9T\xC9\r\nAndr\xE9 \x9Cuvre\r\n", "L'Été", "André œuvre", ""},
             Cas{"UTF-8", "l'ÉTÉ\r\nAndré œuvre\r\n", "L'Été", "André œuvre", ""},
             Cas{"byte order mark",
                 "\xEF\xBB\xBF"
                 "alien\r\nScott",
                 "Alien", "Scott", ""},
             Cas{"an accent of 1252 after the lines that count", "l'été\n\n\n\n\n\n\n\n\n\xE9", "L'Été", "Non défini",
                 ""},
             Cas{"NULs", "al\0ien\r\0\nSc\0ott\r\n\0\0"s, "Alien", "Scott", ""},
             Cas{"quotes and statements", "\"10\"; DROP TABLE Films\r\na\"b", "\"10\"; Drop Table Films", "a\"b", ""},
             Cas{"title cut before its capitals", vingt + vingt + vingt + vingt + vingt + "X",  // 101 characters
                 "Vingt Caracteres Icivingt Caracteres Icivingt Caracteres Icivingt Caracteres Icivingt Caracteres Ici",
                 "Non défini", ""},
             Cas{"lines of 5 MB", std::string(5 << 20, 'a') + "\n" + std::string(5 << 20, 'b') + "\n19999",
                 "A" + std::string(99, 'a'), std::string(100, 'b'), "1999"},
         }) {
        const acquire::FicheFilm fiche = acquire::analyseFiche(cas.octets).value_or(acquire::FicheFilm());
        EXPECT_EQ(fiche.titre, cas.titre) << cas.nom;
        EXPECT_EQ(fiche.realisateur, cas.realisateur) << cas.nom;
        EXPECT_EQ(fiche.annee, cas.annee) << cas.nom;
    }
    EXPECT_EQ(acquire::analyseFiche("\n\n\n\n\n\n\n" + std::string(5 << 20, 'r'))->resume.size(), 5u << 20);
}

// The same nine lines whatever the width of their characters; a mark says it, or the zero bytes.
TEST(FicheFilm, readsCharactersOfTwoAndFourBytes) {
    const std::u32string lignes = U"l'ÉTÉ\r\nAndré œuvre\r\n1983\r\nFrance\r\nDrame\r\n1H30\r\nA\r\nUn été.\r\nUGC\r\n";
    const auto ecrit = [&](const std::string& marque, int octets, bool petitDabord) {
        std::string texte = marque;
        for (const char32_t point : lignes)
            for (int rang = 0; rang < octets; ++rang)
                texte += static_cast<char>(point >> (petitDabord ? rang : octets - 1 - rang) * 8);
        return texte;
    };
    for (const std::string& octets :
         {ecrit("\xFF\xFE", 2, true), ecrit("\xFE\xFF", 2, false), ecrit("", 2, true), ecrit("", 2, false),
          ecrit("\xFF\xFE\0\0"s, 4, true), ecrit("\0\0\xFE\xFF"s, 4, false)}) {
        const acquire::FicheFilm fiche = acquire::analyseFiche(octets).value_or(acquire::FicheFilm());
        EXPECT_EQ(fiche.titre + "|" + fiche.realisateur + "|" + fiche.resume + "|" + fiche.production,
                  "L'Été|André œuvre|Un été.|UGC");
    }
}

TEST(FicheFilm, takesNoNoiseForASheet) {
    std::string tousLesOctets;
    for (int i = 0; i < 2048; ++i)
        tousLesOctets += static_cast<char>(i * 7);
    for (const std::string& bruit :
         {"\x7F"
          "ELF\2\1\1\0\0\0\0\0\0\0\0\0"s,
          "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\1\0H\0H"s, "PK\3\4\x14\0\0\0\x08\0"s, std::string(240, '\0'), tousLesOctets,
          "\xFF\xFE" + tousLesOctets, "\xFF\xFE\0\0"s + tousLesOctets})
        EXPECT_FALSE(acquire::analyseFiche(bruit)) << bruit.substr(0, 8);
    EXPECT_TRUE(acquire::analyseFiche("Alien\nR\n\n\n\n\n\nUn\x1Fr\xE9sum\xE9\x1E venu d'ailleurs.\n"));
}

TEST(RapportImport, tellsOnlyWhatThereIs) {
    acquire::RapportImport rapport;
    EXPECT_EQ(rapport.texte().texte, "0 film ajouté.");
    rapport.ajoutes = 2;
    rapport.titresRefuses = {"Alien", "Le Bon, La Brute"};
    rapport.affichesManquantes = {"/f/a.jpg", "/f/b.jpg (trop grande pour la base) "};
    rapport.fichesIllisibles = {"/f/c.film"};
    rapport.fichesRestantes = {"/f/d.film"};
    rapport.affichesAjoutees = 1;
    rapport.rangement = {"Ailleurs."};
    const std::string fin =
        "\n1 image ajoutée à un film déjà présent.\nL'import a été interrompu : relancez-le pour ajouter la fiche qui "
        "reste.\nAilleurs.";
    const dialogues::Rapport montre = rapport.texte();
    std::string lignes;
    for (const std::string& ligne : montre.lignes)
        lignes += (lignes.empty() ? "" : "\n") + ligne;
    EXPECT_EQ(lignes, "2 films ajoutés.\n2 films non ajoutés car déjà dans la base." + fin +
                          "\n- Image manquante :\n/f/a.jpg\n/f/b.jpg (trop grande pour la base) \n- Déjà existant : "
                          "\nAlien\nLe Bon, La Brute\n- Fiche illisible :\n/f/c.film");
}

class ChoixDossierFiches : public FenetreAcquisition {};

TEST_F(ChoixDossierFiches, countsTheSheetsOfTheFolderChosenOrTyped) {
    const doubles::DossierTemporaire personnel;
    const auto choisit = [&](const std::string& reponse) {
        dialogues.attendDossier("Dossier des fiches de films", ajout.txtCheminAjoutAuto.Text, reponse);
        cmdParcourir2_Click(c);
        return ajout.lblNbFilms.Caption;
    };
    std::filesystem::create_directory(dossier.chemin("dossier.film"));
    dossier.ecrit("afilm", "");
    dossier.ecrit("b.films", "");
    EXPECT_EQ(choisit(dossier.chemin()), "Aucun fichier .FILM trouvé.");
    dossier.ecrit("NOM.FILM", "");
    dossier.ecrit("nom.Film", "");
    EXPECT_EQ(choisit(dossier.chemin()), "2 fichiers .FILM trouvés.");
    EXPECT_EQ(choisit(""), "2 fichiers .FILM trouvés.");  // cancelled
    EXPECT_EQ(ajout.txtCheminAjoutAuto.Text, dossier.chemin());

    const auto tape = [&](const std::string& texte) {
        ajout.txtCheminAjoutAuto.Text = texte;
        txtCheminAjoutAuto_Change(c);
        return ajout.lblNbFilms.Caption;
    };
    const doubles::Environnement chezSoi({{"HOME", personnel.chemin()}});
    personnel.ecrit("été/a.film", "");
    dossier.ecrit("Fiches/a.film", "");
    EXPECT_EQ(tape("~/été"), "Un fichier .FILM trouvé.");
    EXPECT_EQ(tape("Fiches"), "Un fichier .FILM trouvé.");
    EXPECT_EQ(tape("Fiches/a.film"), "Ce dossier n'existe pas.");
    EXPECT_EQ(tape(""), "");

    EXPECT_TRUE(remplaceCheminWindows(c));
    ajout.txtCheminAjoutAuto.Text = "D:\\Fiches";
    for (const std::string& reponse : {std::string(), dossier.chemin()}) {
        dialogues.attendDossier("Dossier des fiches de films", "D:\\Fiches", reponse);
        EXPECT_EQ(remplaceCheminWindows(c), !reponse.empty());
    }
    EXPECT_EQ(ajout.txtCheminAjoutAuto.Text, dossier.chemin());
}

}  // namespace
