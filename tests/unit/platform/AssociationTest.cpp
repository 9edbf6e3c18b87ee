#include "doubles/Temoin.h"
#include "platform/systeme/Documents.h"

#include <cerrno>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

using doubles::DossierTemporaire;
using doubles::Temoin;
using systeme::Ouverture;

namespace {

// A desktop of its own, for the whole program: the library reads these variables once, at its first use. It knows two
// kinds of films, and one application.
class Bureau final : public testing::Environment {
  public:
    void SetUp() override {
        m_dossier.ecrit("donnees/mime/globs2", "50:video/x-essai:*.essai\n50:video/x-seul:*.seul\n");
        m_dossier.ecrit(
            "donnees/applications/temoin.desktop",
            "[Desktop Entry]\nType=Application\nName=Témoin\nExec=\"" + Temoin::programme() + "\" --film %f\n");
        m_dossier.ecrit("reglages/mimeapps.list", "[Default Applications]\nvideo/x-essai=temoin.desktop\n");
        for (const auto& [nom, valeur] :
             {std::pair("XDG_DATA_HOME", "donnees"), std::pair("XDG_CONFIG_HOME", "reglages"),
              std::pair("XDG_DATA_DIRS", "vide"), std::pair("XDG_CONFIG_DIRS", "vide")})
            setenv(nom, m_dossier.chemin(valeur).c_str(), 1);
    }

  private:
    DossierTemporaire m_dossier;
};

[[maybe_unused]] const testing::Environment* const kBureau = testing::AddGlobalTestEnvironment(new Bureau);

}  // namespace

TEST(Association, TheFileReachesItsApplicationByteForByteInTheFolder) {
    const Temoin temoin;
    const DossierTemporaire films;
    systeme::DocumentsSysteme documents;
    const std::string lieu = films.chemin().substr(0, films.chemin().size() - 1);
    for (const char* nom : {"L'été.essai", "un \"deux\"  $(id) `x` %f %U;*.essai", "-x #.essai", "l'\xE9t\xE9.essai"}) {
        const std::string film = films.ecrit(nom, "film");
        EXPECT_EQ(documents.ouvreFichier(film, films.chemin()), Ouverture::Faite) << nom;
        EXPECT_EQ(temoin.recu(), lieu + "\n[--film]\n[" + film + "]\n");
    }
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left to wait for";
    EXPECT_EQ(errno, ECHILD);
}

TEST(Association, ItsAbsenceIsToldFromAFailureAndNothingIsEverExecuted) {
    const Temoin temoin;
    const DossierTemporaire dossier;
    systeme::DocumentsSysteme documents;
    const std::string lance = Temoin::programme();
    const std::pair<const char*, std::string> sansApplication[] = {
        {"a.seul", "film"},
        {"script.sh", "#!" + lance + "\n"},
        {"piege.desktop", "[Desktop Entry]\nType=Application\nName=Piège\nExec=\"" + lance + "\"\n"}};
    std::filesystem::copy_file(lance, dossier.chemin("programme"));
    EXPECT_EQ(documents.ouvreFichier(dossier.chemin("programme"), ""), Ouverture::SansAssociation);
    for (const auto& [nom, contenu] : sansApplication) {
        const std::string chemin = dossier.ecrit(nom, contenu);
        chmod(chemin.c_str(), 0755);
        EXPECT_EQ(documents.ouvreFichier(chemin, ""), Ouverture::SansAssociation) << nom;
    }
    for (const std::string& chemin : {dossier.chemin("absent.essai"), std::string(), std::string("a\0b.essai", 9)})
        EXPECT_EQ(documents.ouvreFichier(chemin, ""), Ouverture::Echouee) << chemin;
    EXPECT_FALSE(temoin.aRecu());
}
