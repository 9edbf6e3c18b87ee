#include "db/Requete.h"
#include "doubles/DialoguesScript.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/EcranMuet.h"
#include "doubles/ProgrammesSimules.h"
#include "export/CreeFichierRTF.h"
#include "unit/edit/BaseDEssai.h"
#include "view/LanceFichier.h"

#include <filesystem>
#include <set>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kParTitre = "titre2 asc";
constexpr const char* kParGenre = "genre asc, titre asc";

class CreeFichierRTFTest : public testing::Test, public doubles::BaseDEssai {
  protected:
    doubles::DialoguesScript boites;
    doubles::EcranMuet ecran;
    doubles::ProgrammesSimules programmes;
    doubles::DocumentsEnregistres documents;
    view::LanceFichier lanceFichier{programmes, documents, boites, ecran};
    db::Chemins chemins = db::Chemins::depuis(dossier.chemin(""));
    exportation::EtatNom nom;
    ecran::Progression progression;
    ecran::EtatAvis etatAvis;
    ecran::Avis avis{etatAvis};
    exportation::DernierExport dernier{avis, lanceFichier, documents, boites};
    exportation::CreeFichierRTF creeFichierRTF{base, chemins, nom, progression, ecran, boites, dernier, lanceFichier};

    void possede(const std::string& titre, const Champs& film, const Champs& possession = {}) {
        Champs champs{{"Titre", titre}, {"Realisateur", "Ada Verrières"}};
        champs.insert(champs.end(), film.begin(), film.end());
        ajoute(base.films, champs);
        champs = {{"Titre2", titre}, {"Realisateur2", "Ada Verrières"}};
        champs.insert(champs.end(), possession.begin(), possession.end());
        ajoute(base.personnel, champs);
    }
    void attendFichier(const std::string& reponse) {
        boites.attendInputBox("Entrez le chemin et le nom du fichier à créer (sans l'extension)..\nExemple : C:\\FILMS",
                              reponse, "Créer la liste des titres");
    }
    [[nodiscard]] std::string noms() const { return nom.lblNom1.Caption + nom.lblNom2.Caption; }
    [[nodiscard]] std::string liste() const { return dossier.lit("Été.rtf"); }
    // All that stands in the folder but the base.
    [[nodiscard]] std::set<std::string> fichiersFaits() const {
        std::set<std::string> resultat;
        for (const auto& entree : std::filesystem::directory_iterator(dossier.chemin("")))
            resultat.insert(entree.path().filename());
        resultat.erase("Films.mdb");
        return resultat;
    }
};

TEST_F(CreeFichierRTFTest, TheOwnedTitlesAreWrittenAndOpened) {
    possede("L'œuvre", {{"Genre", "Drame"}, {"Resume", "Un résumé\nsur deux lignes \"et\" {plus}"}},
            {{"Support", "DVD"}});
    possede("Été", {{"Genre", "Comédie"}, {"Affiche", "STO\xFF\xD8"}});
    ajouteFilm("Pas à moi", "R");
    dossier.ecrit("tmp.rtf", "d'une autre fois");
    attendFichier(dossier.chemin("Été"));
    boites.attendMsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    EXPECT_EQ(creeFichierRTF(kParGenre, dialogues::kOui), dossier.chemin("Été.rtf"));
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
    attendFichier("");
    EXPECT_EQ(creeFichierRTF(kParTitre, dialogues::kNon), "");
    attendFichier(dossier.chemin("Été"));
    boites.attendMsgBox("Aucun titre personnel !", dialogues::kExclamation);
    EXPECT_EQ(creeFichierRTF(kParTitre, dialogues::kNon), "");
    EXPECT_THAT(fichiersFaits(), IsEmpty());
    attendFichier(dossier.chemin("Été"));
    boites.attendMsgBox("Erreur (26) : Etablissement de requête", dialogues::kCritique);
    EXPECT_THROW(creeFichierRTF("rien asc", dialogues::kNon), db::RequeteEchouee);
}

TEST_F(CreeFichierRTFTest, TheProgramNameShowsHowFarItIs) {
    for (const char* titre : {"A", "B", "C"})
        possede(titre, {});
    std::vector<std::string> vus;
    ecran.pendantSouffle = [&] { vus.push_back(noms()); };
    attendFichier(dossier.chemin("Été"));
    boites.attendMsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    creeFichierRTF(kParTitre, dialogues::kNon);
    EXPECT_THAT(vus, ElementsAre("33%", "66%", "100%", "Formatagedes genres", "Formatagedes titres",
                                 "Formatagedes réalisateurs", "Formatagedes durées", "Formatagedes acteurs",
                                 "Formatagedes résumés"));
    EXPECT_EQ(ecran.soufflesHorsTravail, 0);
}

TEST_F(CreeFichierRTFTest, StoppedOrRefusedTheOldListStands) {
    possede("A", {});
    possede("B", {});
    dossier.ecrit("Été.rtf", "l'ancienne");
    for (const int souffle : {1, 4}) {  // among the films, then between two pairs of tags
        ecran.souffles = 0;
        ecran.arretApres = souffle;
        attendFichier(dossier.chemin("Été"));
        EXPECT_EQ(creeFichierRTF(kParTitre, dialogues::kNon), "");
        EXPECT_EQ(ecran.souffles, souffle);
        EXPECT_EQ(noms(), "Ambrelis");
    }
    ecran.arretApres = 0;
    attendFichier(dossier.chemin("nulle part/Été"));
    EXPECT_EQ(creeFichierRTF(kParTitre, dialogues::kNon), "");
    EXPECT_EQ(noms(), "Ambrelis");
    EXPECT_EQ(liste(), "l'ancienne");
    EXPECT_THAT(fichiersFaits(), ElementsAre("Été.rtf"));
    EXPECT_THAT(documents.fichiers, IsEmpty());
}

TEST_F(CreeFichierRTFTest, AFilmDeletedMeanwhileIsLeftOut) {
    for (const char* titre : {"A", "B", "C"})
        possede(titre, {});
    ecran.pendantSouffle = [&] {
        if (ecran.souffles == 1) base.base.OpenRecordset("SELECT * FROM Films WHERE Titre = \"B\"").Delete();
    };
    attendFichier(dossier.chemin("Été"));
    boites.attendMsgBox("Le fichier RTF a été créé.", dialogues::kInformation);
    creeFichierRTF(kParTitre, dialogues::kNon);
    EXPECT_THAT(liste(),
                testing::AllOf(HasSubstr(" A\\cf1"), testing::Not(HasSubstr(" B\\cf1")), HasSubstr(" C\\cf1")));
}

}  // namespace
