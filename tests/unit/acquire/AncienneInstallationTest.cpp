#include "acquire/AncienneInstallation.h"
#include "doubles/BaseJet.h"
#include "unit/acquire/AncienneBase.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(AncienneBase, FindsTheBaseAndThePosters) {
    const doubles::DossierTemporaire ailleurs;
    const std::string autre = ailleurs.ecrit("Séries.mdb", "x");
    ancienne.ecrit("films.MDB", "x");
    ancienne.ecrit("Bases/Séries.mdb", "x");
    std::filesystem::create_directory(ancienne.chemin("IMAGES"));
    const struct {
        std::string images, base, imagesVues, baseVue;
    } cas[] = {
        {"", "", "IMAGES/", "films.MDB"},
        {"D:\\Ambrelis\\Mes Affiches", "D:\\Ambrelis\\Bases\\s\xC9ries.mdb", kImages, "Bases/Séries.mdb"},
        {"\\\\serveur\\partage\\mes affiches\\\\", "bases/Séries.mdb", kImages, "Bases/Séries.mdb"},
        {"/nulle/part/Mes affiches/", "/ailleurs/Films.mdb", kImages, "films.MDB"},
        {ancienne.chemin("Bases"), autre, "Bases/", autre},
    };
    for (const auto& un : cas) {
        ancienne.ecrit("AMBRELIS.INI", "0\r\n" + un.images + "\r\n0\r\n0\r\n0\r\n" + un.base + "\r\n");
        std::string lieu = ancienne.chemin();
        lieu.pop_back();
        const auto trouvee = acquire::AncienneInstallation::dans(lieu);
        EXPECT_EQ(trouvee.dossierImages, ancienne.chemin(un.imagesVues)) << un.images;
        EXPECT_EQ(trouvee.base, un.baseVue.starts_with('/') ? un.baseVue : ancienne.chemin(un.baseVue)) << un.base;
    }
    EXPECT_EQ(acquire::AncienneInstallation::dans(ailleurs.chemin()).base, "");

    // What is named and is not there; a file is no folder, nor a folder or a pipe a file.
    ASSERT_EQ(mkfifo(ancienne.chemin("tube.mdb").c_str(), 0600), 0);
    for (const auto& [lesImages, ancienneBase] :
         {std::pair("C:\\", "C:\\Ambrelis\\Partie.mdb"), {"Films.mdb", "Images"}, {"/nulle/part", "tube.mdb"}}) {
        ancienne.ecrit("AMBRELIS.INI", "0\r\n"s + lesImages + "\r\n0\r\n0\r\n0\r\n" + ancienneBase + "\r\n");
        const auto trouvee = acquire::AncienneInstallation::dans(ancienne.chemin());
        EXPECT_EQ(trouvee.base + trouvee.dossierImages, "");
        EXPECT_EQ(trouvee.baseAbsente, ancienneBase);
        EXPECT_EQ(trouvee.imagesAbsentes, lesImages);
    }
}

TEST_F(AncienneBase, RefusesWhatCannotBeImported) {
    const std::string ancienneBase = ancienne.chemin("Films.mdb"), ici = dossier.chemin("Tmp/..");
    const auto refuse = [&](const std::string& lieu, const std::string& message) {
        attendChoix(lieu);
        dialogues.attendMsgBox(message, dialogues::kExclamation);
        proposeImportAncienneBase(c);
    };
    const auto illisible = [&](const std::string& raison) {
        attendChoix(ancienne.chemin());
        attendAccord();
        dialogues.attendMsgBox("La base " + ancienneBase + " n'a pas pu être lue.\n" + raison, dialogues::kCritique);
        proposeImportAncienneBase(c);
    };
    dialogues.attendMsgBox(kQuestion, dialogues::kQuestion, dialogues::kNon);
    proposeImportAncienneBase(c);
    attendChoix("");
    proposeImportAncienneBase(c);
    ancienne.ecrit("AMBRELIS.INI", "");
    refuse(ancienne.chemin(), "Aucune base de données n'a été trouvée dans le dossier " + ancienne.chemin() + ".");
    refuse(ici, "Le dossier " + ici + " est celui d'Ambrelis : choisissez celui de la version précédente.");
    std::filesystem::create_symlink(chemins.base, ancienneBase);
    refuse(ancienne.chemin(), "La base " + ancienneBase + " est celle qui est ouverte : il n'y a rien à importer.");
    std::filesystem::remove(ancienneBase);
    images = "";
    ancienne.ecrit("Films.mdb", "ni l'une ni l'autre");
    illisible("Ce fichier n'est pas une base, ou il est endommagé.");
    std::filesystem::remove(ancienneBase);
    dao::DBEngine::CreateDatabase(ancienneBase, "CREATE TABLE Films (Titre TEXT)");
    illisible("La table « Personnel » n'existe pas dans la base.");
    doubles::BaseJet jet;
    jet.table("Films", {{"Titre"}});
    ancienne.ecrit("Films.mdb", jet.octets());
    illisible("Le champ « Realisateur » manque dans la table « Films ».");
    EXPECT_THAT(colonne("Films", "Titre"), IsEmpty());
    EXPECT_THAT(rafraichissement.appels, IsEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(chemins.dossierTmp));
}

// What the settings name and is not there is asked for; nothing else is taken for it.
TEST_F(AncienneBase, AsksForWhatIsNotWhereTheSettingsSay) {
    anciens({film("Été", "JPGÉté - R.jpg")}, {});
    const auto reglages = [&](const std::string& lesImages, const std::string& ancienneBase) {
        ancienne.ecrit("AMBRELIS.INI", "1\n" + lesImages + "\n\n\n\n" + ancienneBase + "\n");
    };
    const auto demandeBase = [&](int reponse) {
        attendChoix(ancienne.chemin());
        dialogues.attendMsgBox(
            "La base D:\\Séries.mdb, que nomment les réglages de cette version, n'a pas été trouvée."
            "\nSouhaitez-vous indiquer où elle se trouve ?",
            dialogues::kQuestion, reponse);
    };
    const auto choisitBase = [&](const std::string& ancienneBase) {
        demandeBase(dialogues::kOui);
        dialogues.attendFichier(
            {"Base de la précédente version", "Fichiers de base de données|*.mdb", ancienne.chemin(), false},
            ancienneBase);
    };
    const auto demandeImages = [&](int reponse) {
        dialogues.attendMsgBox(
            "Le dossier des images E:\\Affiches, que nomment les réglages de cette version, n'a pas été "
            "trouvé.\nSouhaitez-vous indiquer où il se trouve ?",
            dialogues::kQuestion, reponse);
    };
    reglages("E:\\Affiches", "D:\\Séries.mdb");
    demandeBase(dialogues::kNon);
    proposeImportAncienneBase(c);
    choisitBase("");
    proposeImportAncienneBase(c);
    choisitBase(ancienne.chemin("absente.mdb"));
    dialogues.attendMsgBox("Le fichier indiqué est inexistant !", dialogues::kExclamation);
    proposeImportAncienneBase(c);
    choisitBase(ancienne.chemin("Films.mdb"));
    demandeImages(dialogues::kNon);
    images = "";
    attendAccord(dialogues::kNon);
    proposeImportAncienneBase(c);
    EXPECT_EQ(base.films.RecordCount(), 0);

    reglages("E:\\Affiches", "");
    attendChoix(ancienne.chemin());
    demandeImages(dialogues::kOui);
    images = ancienne.chemin(kImages);
    dialogues.attendDossier("Dossier des images de la précédente version", ancienne.chemin(), images);
    attendAccord();
    dialogues.attendMsgBox("1 film ajouté.\n" + origine(), dialogues::kInformation);
    proposeImportAncienneBase(c);
    EXPECT_THAT(colonne("Films", "Affiche"), ElementsAre("STOimage d'été"));
}

}  // namespace
