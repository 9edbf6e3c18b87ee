#include "db/Requete.h"
#include "export/CreeFichierRTF.h"
#include "unit/export/FenetreExport.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kParTitre = "titre2 asc";
constexpr const char* kParGenre = "genre asc, titre asc";

class CreeFichierRTFTest : public FenetreExport {
  protected:
    static constexpr const char* kRealisateur = "Ada Verrières";

    void possede(const char* titre, Ligne champs, const Ligne& possession = {}) {
        champs.emplace_back("Realisateur", kRealisateur);
        ajouteFilm(titre, champs);
        Fenetre::possede(titre, kRealisateur, possession);
    }
    [[nodiscard]] std::string noms() const { return nom.lblNom1.Caption + nom.lblNom2.Caption; }
    [[nodiscard]] std::string liste() const { return dossier.lit("Été.rtf"); }
    // All that stands in the folder but the base and "Tmp".
    [[nodiscard]] std::vector<std::string> fichiersFaits() const {
        std::vector<std::string> faits = dossier.noms();
        std::erase_if(faits, [](const std::string& fait) { return fait == "Films.mdb" || fait == "Tmp"; });
        return faits;
    }
};

TEST_F(CreeFichierRTFTest, TheOwnedTitlesAreWrittenAndOpened) {
    possede("L'œuvre", {{"Genre", "Drame"}, {"Resume", "Un résumé\nsur deux lignes \"et\" {plus}"}},
            {{"Support", "DVD"}});
    possede("Été", {{"Genre", "Comédie"}, {"Affiche", "STO\xFF\xD8"}});
    ajouteFilm("Pas à moi", {{"Realisateur", "R"}});
    dossier.ecrit("tmp.rtf", "d'une autre fois");
    attendNom(dossier.chemin("Été"));
    dialogues.attendMsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    EXPECT_EQ(CreeFichierRTF(c, kParGenre, dialogues::kOui), dossier.chemin("Été.rtf"));
    EXPECT_THAT(documents.fichiers, ElementsAre(dossier.chemin("Été.rtf")));
    EXPECT_THAT(fichiersFaits(), ElementsAre("Été.rtf"));
    EXPECT_THAT(liste(),
                HasSubstr("\\pard\\qc\\f0\\b\\cf2\\fs22 - Genre : Com\\u233\\'e9die -\\b0\\cf1\\fs16\\par\r\n"));
    EXPECT_THAT(liste(), HasSubstr("\\cf3\\fs36 L'\\u339\\'9cuvre\\cf1\\fs16\\par\r\n"
                                   "\\pard\\qr\\fs24 de Ada Verri\\u232\\'e8res\\fs16\\par\r\n"));
    EXPECT_THAT(liste(), HasSubstr("Un r\\u233\\'e9sum\\u233\\'e9\\par\r\nsur deux lignes \"et\" \\{plus\\}"));
    EXPECT_THAT(liste(), testing::Not(HasSubstr("Pas ")));
    EXPECT_EQ(noms(), "Ambrelis");
}

TEST_F(CreeFichierRTFTest, TheNameIsAskedForBeforeTheTitlesAreLookedFor) {
    attendNom("");
    EXPECT_EQ(CreeFichierRTF(c, kParTitre, dialogues::kNon), "");
    attendNom(dossier.chemin("Été"));
    dialogues.attendMsgBox("Aucun titre personnel !", dialogues::kExclamation);
    EXPECT_EQ(CreeFichierRTF(c, kParTitre, dialogues::kNon), "");
    EXPECT_THAT(fichiersFaits(), IsEmpty());
    attendNom(dossier.chemin("Été"));
    dialogues.attendMsgBox("Erreur (26) : Etablissement de requête", dialogues::kCritique);
    EXPECT_THROW(CreeFichierRTF(c, "rien asc", dialogues::kNon), db::RequeteEchouee);
}

TEST_F(CreeFichierRTFTest, TheProgramNameShowsHowFarItIs) {
    for (const char* titre : {"A", "B", "C"})
        possede(titre, {});
    std::vector<std::string> vus;
    ecranMuet.pendantSouffle = [&] { vus.push_back(noms()); };
    attendNom(dossier.chemin("Été"));
    dialogues.attendMsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    CreeFichierRTF(c, kParTitre, dialogues::kNon);
    EXPECT_THAT(vus, ElementsAre("33%", "66%", "100%", "Formatagedes genres", "Formatagedes titres",
                                 "Formatagedes réalisateurs", "Formatagedes durées", "Formatagedes acteurs",
                                 "Formatagedes résumés"));
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
}

TEST_F(CreeFichierRTFTest, StoppedOrRefusedTheOldListStands) {
    possede("A", {});
    possede("B", {});
    dossier.ecrit("Été.rtf", "l'ancienne");
    for (const int souffle : {1, 4}) {  // among the films, then between two pairs of tags
        ecranMuet.souffles = 0;
        ecranMuet.arretApres = souffle;
        attendNom(dossier.chemin("Été"));
        EXPECT_EQ(CreeFichierRTF(c, kParTitre, dialogues::kNon), "");
        EXPECT_EQ(ecranMuet.souffles, souffle);
        EXPECT_EQ(noms(), "Ambrelis");
    }
    ecranMuet.arretApres = 0;
    attendNom(dossier.chemin("nulle part/Été"));
    EXPECT_EQ(CreeFichierRTF(c, kParTitre, dialogues::kNon), "");
    EXPECT_EQ(noms(), "Ambrelis");
    EXPECT_EQ(liste(), "l'ancienne");
    EXPECT_THAT(fichiersFaits(), ElementsAre("Été.rtf"));
    EXPECT_THAT(documents.fichiers, IsEmpty());
}

TEST_F(CreeFichierRTFTest, AFilmDeletedMeanwhileIsLeftOut) {
    for (const char* titre : {"A", "B", "C"})
        possede(titre, {});
    ecranMuet.pendantSouffle = [&] {
        if (ecranMuet.souffles == 1) base.base.OpenRecordset("SELECT * FROM Films WHERE Titre = \"B\"").Delete();
    };
    attendNom(dossier.chemin("Été"));
    dialogues.attendMsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    CreeFichierRTF(c, kParTitre, dialogues::kNon);
    EXPECT_THAT(liste(),
                testing::AllOf(HasSubstr(" A\\cf1"), testing::Not(HasSubstr(" B\\cf1")), HasSubstr(" C\\cf1")));
}

}  // namespace
