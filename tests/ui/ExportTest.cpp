#include "ProgrammeDEssai.h"
#include "ui/ExportPapier.h"

#include <QAction>
#include <QBuffer>
#include <QLineEdit>
#include <QPdfWriter>
#include <map>

namespace {

using essais::ProgrammeDEssai;

TEST(Export, TheLastFileIsOpenedFromItsLine) {
    ProgrammeDEssai essai;
    essai.demarre();
    essai.importe({{"L'Été", "Agnès Varda", "Drame", ""}});
    essai.cliqueTitre("L'Été");
    for (const char* nom : {"bouton.txt", "menu.txt"}) {
        essai.boites.reponse = essai.dossier.chemin(nom);
        if (nom == std::string("bouton.txt"))
            essai.clique("cmdCreeFichierTxt");
        else
            essai.fenetre().findChild<QAction*>("GenereFichierTxt")->trigger();
        EXPECT_TRUE(essai.dossier.lit(nom).starts_with("L'Été\r\nde Agnès Varda\r\n"));
        EXPECT_EQ(essai.texte("lblAvis"), "Fichier créé : " + essai.dossier.chemin(nom));
    }
    essai.clique("cmdAvis_0");
    essai.clique("cmdAvis_1");
    EXPECT_EQ(essai.documents.fichiers, (std::vector{essai.dossier.chemin("menu.txt"), essai.dossier.chemin()}));
    essai.clique("cmdFermerAvis");
    EXPECT_FALSE(essai.trouve("frameAvis").isVisible());

    essai.clique("cmdConfigurer");
    essai.boites.reponse = essai.dossier.chemin("liste");
    essai.clique("cmdCreerListe");
    EXPECT_TRUE(essai.dossier.lit("liste.rtf").starts_with("{\\rtf1"));
    EXPECT_EQ(essai.documents.fichiers.back(), essai.dossier.chemin("liste.rtf"));
    essai.boites.reponse = essai.dossier.chemin("absent/liste");
    essai.clique("cmdCreerListe");
    EXPECT_EQ(essai.texte("lblAvis"),
              "Le fichier " + essai.dossier.chemin("absent/liste.rtf") + " n'a pas pu être écrit.");
    EXPECT_FALSE(essai.trouve("cmdAvis_0").isVisible());
    EXPECT_EQ(essai.texte("lblNom1") + essai.texte("lblNom2"), "Ambrelis");
}

// Each format from the one window, the listing as it is filtered; nothing that stands is replaced without the question.
TEST(Export, OneWindowWritesEveryFormat) {
    ProgrammeDEssai essai;
    essai.demarre();
    essai.importe({{"L'Été", "Agnès Varda", "Drame", essais::octetsDImage(Qt::red, {400, 600})},
                   {"Alien", "Ridley Scott", "SF", ""}});
    essai.clique("cmdConfigurer");
    const auto exporte = [&](const char* format, const std::string& nom) {
        essai.clique("cmdExporter");
        essai.trouve<QAbstractButton>(format).click();
        auto& chemin = essai.trouve<QLineEdit>("txtCheminExport");
        chemin.setText(QString::fromStdString(essai.dossier.chemin(nom)));  // no key writes an accent
        chemin.setModified(true);
        essai.clique("cmdFaireExport");
        return !essai.trouve("frmExport").isVisible();
    };
    EXPECT_TRUE(exporte("optCsv", "a.csv"));
    EXPECT_EQ(essai.texte("lblAvis"), "2 films exportés : " + essai.dossier.chemin("a.csv"));
    EXPECT_TRUE(exporte("optHtml", "a"));  // the ending is added
    EXPECT_NE(essai.dossier.lit("a.html").find("<img loading=\"lazy\" decoding=\"async\" alt=\"\" width=\"208\""),
              std::string::npos);
    EXPECT_TRUE(exporte("optFiches", "fiches exportées"));
    EXPECT_EQ(essai.dossier.lit("fiches exportées/L'Été - Agnès Varda.jpg"), essai.dossier.lit("fiches/0.jpg"));
    for (const auto& [mise, marge] : {std::pair(0, 4000), std::pair(1, 3000)}) {
        essai.trouve<QComboBox>("cboMiseEnPage").setCurrentIndex(mise);
        EXPECT_TRUE(exporte("optPdf", "a.pdf"));
        const std::string pdf = essai.dossier.lit("a.pdf");
        EXPECT_TRUE(pdf.starts_with("%PDF") && pdf.ends_with("%%EOF\n"));
        EXPECT_GT(pdf.size(), static_cast<std::size_t>(marge));
    }
    EXPECT_EQ(essai.boites.messages.back(),
              "Le fichier " + essai.dossier.chemin("a.pdf") + " existe déjà. Voulez-vous le remplacer ?");
    essai.boites.reponseAuxQuestions = dialogues::kNon;
    const std::string avant = essai.dossier.lit("a.csv");
    EXPECT_FALSE(exporte("optCsv", "a.csv"));
    EXPECT_EQ(essai.dossier.lit("a.csv"), avant);
    essai.clique("cmdFermerExport");
    EXPECT_FALSE(exporte("optFiches", "fiches"));  // not empty
    EXPECT_TRUE(essai.boites.messages.back().ends_with("n'est pas vide : donnez le nom d'un nouveau dossier."));
    essai.clique("cmdFermerExport");
}

// Whatever a film says, pages end; what is longer than one goes on over the next.
TEST(Export, ACatalogueBreaksIntoPages) {
    for (const auto mise : {ui::MiseEnPage::Liste, ui::MiseEnPage::Fiches}) {
        QBuffer octets;
        octets.open(QIODevice::WriteOnly);
        QPdfWriter pdf(&octets);
        pdf.setResolution(300);
        ui::CatalogueSurPapier catalogue(pdf, 300,
                                         {.titre = "Titre",
                                          .date = "",
                                          .films = 40,
                                          .groupes = {"Un\ngroupe", std::string(3000, 'g')},
                                          .champs = exportation::Champs::tous(),
                                          .miseEnPage = mise});
        ASSERT_TRUE(catalogue.commence());
        exportation::FilmExporte film;
        film.fiche.fill(std::string(400, 'w') + "\r\n\x01\xFF");
        for (film.groupe = 0; film.groupe < 2; ++film.groupe)
            for (int i = 0; i < 20; ++i)
                ASSERT_TRUE(catalogue.ajoute(film, i % 2 ? QImage() : QImage(2000, 3, QImage::Format_RGB32)));
        const int pages = catalogue.pages();
        EXPECT_GT(pages, 1);
        std::string resume;
        for (int i = 0; i < 5000; ++i)
            resume += "des mots ; ";
        film.groupe = 1;
        film.fiche[static_cast<std::size_t>(exportation::Champ::Resume)] = resume;
        ASSERT_TRUE(catalogue.ajoute(film, {}));
        EXPECT_EQ(catalogue.pages() > pages + 4, mise == ui::MiseEnPage::Fiches);
        // Sheets of one height stand as many on each page: none is cut in two.
        film.fiche[static_cast<std::size_t>(exportation::Champ::Resume)] = resume.substr(0, 700);
        std::map<int, int> surLaPage;
        for (int i = 0; i < 60; ++i) {
            ASSERT_TRUE(catalogue.ajoute(film, {}));
            ++surLaPage[catalogue.pages()];
        }
        surLaPage.erase(surLaPage.begin());
        surLaPage.erase(std::prev(surLaPage.end()));
        for (const auto& [page, nombre] : surLaPage)
            EXPECT_EQ(nombre, surLaPage.begin()->second) << page;
        EXPECT_TRUE(catalogue.termine());
        EXPECT_TRUE(octets.data().startsWith("%PDF"));
    }
}

// Of a film without a poster, nothing is kept free for one.
TEST(Export, AFilmWithoutAPosterTakesTheWholeWidth) {
    const auto pages = [](bool avecAffiches) {
        QBuffer octets;
        octets.open(QIODevice::WriteOnly);
        QPdfWriter pdf(&octets);
        pdf.setResolution(300);
        exportation::Champs champs = exportation::Champs::tous();
        champs.met(exportation::Champ::Affiche, avecAffiches);
        ui::CatalogueSurPapier catalogue(pdf, 300,
                                         {.titre = "Titre", .date = "", .films = 60, .groupes = {}, .champs = champs});
        EXPECT_TRUE(catalogue.commence());
        exportation::FilmExporte film;
        for (int i = 0; i < 60; ++i) {
            film.fiche[static_cast<std::size_t>(exportation::Champ::Resume)] += "encore quelques mots de plus ; ";
            EXPECT_TRUE(catalogue.ajoute(film, {}));
        }
        EXPECT_TRUE(catalogue.termine());
        return catalogue.pages();
    };
    EXPECT_EQ(pages(true), pages(false));
}

}  // namespace
