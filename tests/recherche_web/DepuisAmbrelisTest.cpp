#include "doubles/ServeurWeb.h"
#include "platform/fichiers/Fichiers.h"
#include "recherche_web/Archives.h"
#include "ui/ProgrammeDEssai.h"

#include <QCheckBox>
#include <QLineEdit>
#include <filesystem>

namespace {

// A site of this machine stands in for every site, as the proxy of the web.
struct ToutLeWeb {
    ToutLeWeb() { qputenv("http_proxy", serveur.adresse()); }
    ~ToutLeWeb() { qunsetenv("http_proxy"); }
    doubles::ServeurWeb serveur;
};

TEST(DepuisAmbrelis, ASearchOnTheWebEndsInTheCollection) {
    ToutLeWeb web;
    const std::string affiche = essais::octetsDImage(Qt::red);
    web.serveur.metPage("/multicrit.html?titre=l'ete", "<a href=/film/ETE>L'Été</a>");
    web.serveur.metPage("/film/ETE", "<a href='/getzip.html/ETE.zip'>Télécharger</a>");
    doubles::ServeurWeb::Page zip;
    zip.corps = QByteArray::fromStdString(
        essais::zip({{"ETE.film", "L'\xC9t\xE9\r\nAgn\xE8s Varda\r\n1977\r\n"}, {"ETE.jpg", affiche}}));
    web.serveur.met("/getzip.html/ETE.zip", zip);

    systeme::ProgrammesSysteme programmes;
    essais::ProgrammeDEssai essai;
    essai.vrais = &programmes;
    std::filesystem::create_directories(essai.dossier.chemin("Le Rapatrix"));
    std::filesystem::copy_file(AMBRELIS_RAPATRIX_AUTOMATE, essai.dossier.chemin("Le Rapatrix/Rapatrix.exe"));
    essai.demarre();
    essai.trouve<QCheckBox>("chkLancerConnexion").setChecked(true);
    essai.clique("cmdAfficherFonctions");
    essai.trouve<QLineEdit>("txtRechInternet").setText(QStringLiteral("L'Été"));
    essai.clique("cmdTelecharge");
    EXPECT_EQ(essai.texte("Label9_0"), "1 titre");
    EXPECT_EQ(essai.boites.messages.back().substr(0, 15), "1 film ajouté.");
    EXPECT_FALSE(fichiers::existe(essai.dossier.chemin("Tmp/RechFilms.tmp")));
    essai.cliqueTitre("L'Été");
    EXPECT_EQ(essai.dossier.lit("Tmp/ImageTMP.jpg"), affiche);
}

}  // namespace
