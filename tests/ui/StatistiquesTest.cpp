#include "ProgrammeDEssai.h"
#include "ui/PageStatistiques.h"
#include "ui/VueBarres.h"

#include <QAccessible>
#include <QClipboard>
#include <QPrinter>
#include <fstream>
#include <sstream>

namespace {

using essais::ProgrammeDEssai;

struct Statistiques : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override {
        essai.demarre();
        essai.importe({{"Alien", "Ridley Scott", "Angoisse", {}},
                       {"Brazil", "Terry Gilliam", "Anticipation", {}},
                       {"Blade Runner", "Ridley Scott", "Anticipation", {}},
                       {"Nosferatu", "Murnau", "", {}}});
        essai.choisit("ChoixZone", 0);
        QTest::keyClick(&essai.fenetre(), Qt::Key_L, Qt::ControlModifier);
        essai.clique("OngletStatistiques");
        ASSERT_TRUE(attends("Anticipation : 2 (50 %)"));
    }
    ui::VueBarres& barres() { return essai.trouve<ui::VueBarres>("Barres"); }
    [[nodiscard]] std::string barre(int rang) {
        return barres().model()->index(rang, 0).data().toString().toStdString();
    }
    [[nodiscard]] bool attends(const std::string& premiere) {
        return essais::attends([&] { return barre(0) == premiere; });
    }
    std::string enregistre(const std::string& nom) {
        essai.boites.fichier = essai.dossier.chemin(nom);
        essai.clique("cmdEnregistrerStatistiques");
        std::ostringstream octets;
        octets << std::ifstream(essai.boites.fichier, std::ios::binary).rdbuf();
        return octets.str();
    }
};

TEST_F(Statistiques, ABarLeadsToItsFilmsByTheMouseAndByTheKeys) {
    EXPECT_EQ(barre(2), "Sans genre : 1 (25 %)");
    EXPECT_EQ(essai.texte("lblCompteDesBarres"), "4 films. Un film de plusieurs genres compte pour chacun.");
    QAccessibleInterface* lecteur = QAccessible::queryAccessibleInterface(&barres());
    EXPECT_EQ(lecteur->text(QAccessible::Name), "Films par genre");
    ASSERT_EQ(lecteur->childCount(), 3);
    EXPECT_EQ(lecteur->child(1)->text(QAccessible::Name), "Angoisse : 1 (25 %)");
    QTest::mouseClick(barres().viewport(), Qt::LeftButton, {},
                      barres().visualRect(barres().model()->index(0, 0)).center());
    EXPECT_EQ(essai.texte("lblCompteFiltre"), "2 titres sur 4");
    EXPECT_EQ(essai.trouve<QAbstractButton>("cmdLeverLimite").text(), "Genre : Anticipation ✕");

    essai.choisit("SujetDesStatistiques", 3);
    ASSERT_TRUE(attends("Ridley Scott : 2 (50 %)"));
    barres().setFocus();
    QTest::keyClick(&barres(), Qt::Key_Down);
    QTest::keyClick(&barres(), Qt::Key_Return);
    EXPECT_EQ(essai.texte("lblCompteFiltre"), "1 titre sur 4");
    EXPECT_EQ(essai.trouve<QAbstractButton>("cmdLeverLimite").text(), "Réalisateur : Murnau ✕");
    essai.clique("cmdLeverLimite");
    EXPECT_FALSE(essai.trouve("lblCompteFiltre").isVisible());

    essai.cliqueTitre("Alien");  // a change of the base counts again, the place is kept
    essai.boites.reponse = "8";
    essai.clique("cmdModifieNote");
    essai.clique("cmdCollection");
    ASSERT_TRUE(attends("Ridley Scott : 2 (50 %)"));
    EXPECT_EQ(barres().currentIndex().row(), 1);
    essai.choisit("SujetDesStatistiques", 5);
    EXPECT_TRUE(attends("8/10 : 1 (25 %)"));
}

TEST_F(Statistiques, IsSavedCopiedAndPrinted) {
    const std::string svg = enregistre("films.svg");
    EXPECT_NE(svg.find("Anticipation"), std::string::npos);
    EXPECT_TRUE(svg.starts_with("<svg ")) << svg;
    EXPECT_EQ(essai.texte("lblAvis"), "Fichier créé : " + essai.boites.fichier);
    const QImage png = QImage::fromData(QByteArray::fromStdString(enregistre("Films.PNG")), "PNG");
    EXPECT_EQ(png.width(), 1800);
    EXPECT_NE(png.convertToFormat(QImage::Format_RGB32).pixelColor(900, 110), QColor(Qt::white)) << "the longest bar";
    EXPECT_EQ(enregistre("films.doc"), "");
    EXPECT_EQ(essai.texte("lblAvis"), "Rien n'a été enregistré : le nom doit finir par « .png » ou « .svg ».");
    EXPECT_EQ(enregistre("absent/films.svg"), "");
    EXPECT_TRUE(QString::fromStdString(essai.texte("lblAvis")).endsWith("n'a pas pu être écrit."));
    essai.clique("cmdCopierStatistiques");
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "Films par genre\nAnticipation\t2 (50 %)\nAngoisse\t1 (25 %)\nSans genre\t1 (25 %)\n");

    ensemble::Diagramme long_{ensemble::Sujet::Ajouts, "Ajouts par mois"};
    for (int i = 0; i < 100; ++i)
        long_.barres.push_back({"mois " + std::to_string(i), {1, 2, 3}});
    long_.films = 300;
    QPrinter imprimante;
    imprimante.setOutputFormat(QPrinter::PdfFormat);
    imprimante.setOutputFileName(QString::fromStdString(essai.dossier.chemin("a.pdf")));
    EXPECT_TRUE(ui::imprimeDiagramme(imprimante, long_));
    std::ostringstream pdf;
    pdf << std::ifstream(essai.dossier.chemin("a.pdf"), std::ios::binary).rdbuf();
    EXPECT_NE(pdf.str().find("/Count 3"), std::string::npos) << "pages";
}

}  // namespace
