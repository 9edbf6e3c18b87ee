#include "ProgrammeDEssai.h"
#include "app/Ouvertures.h"

#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QFileSystemWatcher>
#include <QMimeData>

#include <gmock/gmock.h>

namespace {

using essais::attends;
using essais::ProgrammeDEssai;

struct Depot : testing::Test {
    ProgrammeDEssai essai;

    void SetUp() override {
        essai.demarre();
        essai.importe({{"L'Été", "Agnès Varda", "Drame", ""}});
        essai.cliqueTitre("L'Été");
    }
    // What a file manager does; whether the window takes it.
    bool depose(const QList<std::string>& chemins, QWidget* ou = nullptr) {
        QMimeData donnees;
        QList<QUrl> adresses;
        for (const std::string& chemin : chemins)
            adresses << QUrl::fromLocalFile(QString::fromStdString(chemin));
        donnees.setUrls(adresses);
        QWidget& fenetre = essai.fenetre();
        const QPoint place = ou ? ou->mapTo(&fenetre, ou->rect().center()) : QPoint(20, fenetre.height() / 2);
        QDragEnterEvent entre(place, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&fenetre, &entre);
        QDragMoveEvent passe(place, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&fenetre, &passe);
        if (!entre.isAccepted() || !passe.isAccepted()) return false;
        QDropEvent lache(place, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        const std::size_t questions = essai.boites.messages.size();
        QApplication::sendEvent(&fenetre, &lache);
        EXPECT_EQ(essai.boites.messages.size(), questions) << "the other program waits for its answer";
        return true;
    }
    bool compte(const char* titres) {
        return attends([&] { return essai.texte("Label9_0") == titres; });
    }
    std::string fichier(const char* nom, const std::string& octets) {
        essai.dossier.ecrit(nom, octets);
        return essai.dossier.chemin(nom);
    }
};

TEST_F(Depot, SheetsAreImportedFromSeveralFoldersAndStayThere) {
    const char* fiche = "\nGérard Oury\n1966\nFrance\nComédie\n2H\nDe Funès\nDeux \"anglais\"\nUGC\n";
    const std::string une = fichier("a/fiche.FILM", std::string("La Grande Vadrouille") + fiche);
    const std::string autre = fichier("b/fiche.film", std::string("Le Corniaud") + fiche);
    fichier("b/fiche.JPG", essais::octetsDImage(Qt::blue));
    const std::string avant = essai.etats().ajout.txtCheminAjoutAuto.Text;
    EXPECT_FALSE(depose({fichier("notes.txt", "rien")}));
    EXPECT_TRUE(depose({une, autre}));
    EXPECT_TRUE(compte("3 titres"));
    EXPECT_THAT(essai.boites.messages.back(),
                testing::HasSubstr("- Image manquante :\n" + essai.dossier.chemin("a/fiche.jpg")));
    EXPECT_EQ(essai.etats().ajout.txtCheminAjoutAuto.Text, avant);
    EXPECT_TRUE(QFile::exists(QString::fromStdString(une)) && QFile::exists(QString::fromStdString(autre)));
    essai.cliqueTitre("Le Corniaud");
    EXPECT_TRUE(essai.trouve("Image1").isVisible()) << "its poster came along";
    fichier("c/autre.FILM", std::string("Fantômas") + fiche);
    EXPECT_TRUE(depose({essai.dossier.chemin("c")}));
    EXPECT_TRUE(compte("4 titres"));
}

TEST_F(Depot, AnotherCollectionIsShownBeforeItIsImported) {
    for (const auto& [nom, octets, fenetre] :
         {std::tuple("c.GCS", "<collection type=\"GCfilms\"><item title=\"Été\"/></collection>", "frmVoisins"),
          std::tuple("t.csv", "Titre;Année\nÉté;1968\n", "frmTableau")}) {
        EXPECT_TRUE(depose({fichier(nom, octets)}));
        ASSERT_TRUE(essais::attends([&] { return essai.fenetre().findChild<QWidget*>(fenetre) != nullptr; })) << nom;
        essai.fenetre().findChild<QDialog*>(fenetre)->reject();
        ASSERT_TRUE(essais::attends([&] { return !essai.fenetre().findChild<QWidget*>(fenetre); })) << nom;
    }
    EXPECT_EQ(essai.texte("Label9_0"), "1 titre");
}

// A field would write the file's address among what is typed.
TEST_F(Depot, AFileThatIsDroppedOnAFieldIsTheWindows) {
    essai.clique("cmdModifierTitre");
    auto& resume = essai.trouve<QPlainTextEdit>("txtResume");
    const QString avant = resume.toPlainText();
    for (QWidget* champ : {&essai.trouve("Text3_0"), resume.viewport()}) {
        QMimeData donnees;
        donnees.setUrls({QUrl::fromLocalFile(QString::fromStdString(fichier("notes.txt", "rien")))});
        donnees.setText("notes.txt");  // as file managers do
        QDragEnterEvent entre(QPoint(5, 5), Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(champ, &entre);
        QDropEvent lache(QPoint(5, 5), Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(champ, &lache);
    }
    EXPECT_EQ(essai.trouve<QLineEdit>("Text3_0").text(), "L'Été");
    EXPECT_EQ(resume.toPlainText(), avant);
}

// An import fills the controls of the page of entry, and lists other films than the one on the sheet.
TEST_F(Depot, NoSheetNorPageOfAnotherFilmStaysAfterAnImport) {
    const std::string fiche = fichier("a.FILM", "Fantômas\nAndré Hunebelle\n1964\n");
    EXPECT_TRUE(depose({fiche}));
    EXPECT_TRUE(compte("2 titres"));
    EXPECT_FALSE(essai.trouve("frameFiche").isVisible());
    essai.cliqueTitre("L'Été");
    essai.clique("cmdModifierTitre");
    QTest::keyClicks(&essai.trouve("Text3_1"), " et d'autres");
    EXPECT_TRUE(depose({fichier("b.FILM", "Alphaville\nJean-Luc Godard\n1965\n")}));
    EXPECT_TRUE(compte("3 titres"));
    EXPECT_FALSE(essai.trouve("Frame13").isVisible());
    essai.clique("cmdAvis_0");
    EXPECT_EQ(essai.trouve<QLineEdit>("Text3_1").text(), " et d'autresAgnès Varda");
    EXPECT_EQ(essai.trouve<QAbstractButton>("cmdAjoutFilm").text(), "Modifier");
}

// What a start of the program is asked to open while another one runs.
TEST_F(Depot, SheetsOpenedFromTheDesktopWaitForACommandAndABox) {
    const std::string demandes = app::dossierDesDemandes(essai.dossier.chemin());
    int vues = 0;
    QFileSystemWatcher temoin({QString::fromStdString(demandes)});
    QObject::connect(&temoin, &QFileSystemWatcher::directoryChanged, [&] { ++vues; });
    const auto enAttente = [&] { return !std::filesystem::is_empty(demandes); };
    const auto ouvre = [&](const char* nom) {
        const std::string fiche = fichier(nom, std::string(nom) + "\nGérard Oury\n1966\n");
        const int avant = vues;
        ASSERT_TRUE(app::demandeOuverture(essai.dossier.chemin(), {fiche}));
        ASSERT_TRUE(attends([&] { return vues > avant; }));
    };
    essai.programme->commande().execute([&] {
        ouvre("un.FILM");
        EXPECT_TRUE(enAttente());
    });
    EXPECT_TRUE(compte("2 titres"));
    QDialog boite(&essai.fenetre());
    boite.open();
    ouvre("deux.FILM");
    EXPECT_TRUE(enAttente());
    boite.close();
    EXPECT_TRUE(compte("3 titres"));
    EXPECT_FALSE(enAttente());
}

TEST_F(Depot, APictureOnThePosterIsAttachedThenReplacesAndAVideoFillsABox) {
    QWidget* cadre = &essai.trouve("cadreAffiche");
    EXPECT_TRUE(depose({fichier("rouge.jpg", essais::octetsDImage(Qt::red))}, cadre));
    ASSERT_TRUE(attends([&] { return essai.trouve("Image1").isVisible(); }));
    EXPECT_TRUE(depose({fichier("bleue.jpg", essais::octetsDImage(Qt::blue))}, cadre));
    EXPECT_TRUE(attends([&] {
        const QImage image = QImage::fromData(QByteArray::fromStdString(essai.dossier.lit("Tmp/ImageTMP.jpg")));
        return image.pixelColor(20, 20).blue() > 200;
    }));
    EXPECT_FALSE(depose({fichier("affiche.svg", "<svg/>")}, cadre));
    essai.clique("cmdAutresInfos");
    const std::string film = fichier("L'été \"2\".mkv", "x");
    EXPECT_TRUE(depose({film}, &essai.trouve("Text10_1")));
    EXPECT_TRUE(attends([&] { return essai.trouve("cmdValiderInfosPossessions").isVisible(); }));
    EXPECT_EQ(essai.trouve<QLineEdit>("Text10_1").text().toStdString(), film);
}

TEST_F(Depot, TheSheetIsCopiedAsTextAndHtmlAndAPictureIsPasted) {
    QImage image(40, 60, QImage::Format_RGB32);
    image.fill(Qt::green);
    QApplication::clipboard()->setImage(image);
    essai.arbre().setFocus();
    QTest::keyClick(&essai.arbre(), Qt::Key_V, Qt::ControlModifier);
    ASSERT_TRUE(essai.trouve("Image1").isVisible());
    essai.trouve("Image1").setFocus();
    QTest::keyClick(&essai.trouve("Image1"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->image().size(), image.size());
    essai.trouve("cmdModifierTitre").setFocus();
    QTest::keyClick(&essai.trouve("cmdModifierTitre"), Qt::Key_C, Qt::ControlModifier);
    const QMimeData* copie = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(copie->text().contains("de Agnès Varda")) << copie->text().toStdString();
    EXPECT_TRUE(copie->html().contains("<h2>L'Été</h2>")) << copie->html().toStdString();
}

}  // namespace
