#include "Attente.h"
#include "doubles/DossierTemporaire.h"
#include "ui/DialoguesQt.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

namespace {

// Runs on the box as soon as it is open.
template <typename Boite>
void surLaBoite(const std::function<void(Boite&)>& action) {
    auto* minuterie = new QTimer(qApp);
    QObject::connect(minuterie, &QTimer::timeout, qApp, [=] {
        auto* boite = qobject_cast<Boite*>(QApplication::activeModalWidget());
        if (!boite) return;
        minuterie->stop();
        minuterie->deleteLater();
        action(*boite);
    });
    minuterie->start(1);
}

struct DialoguesQt : testing::Test {
    ui::Liaison liaison;
    ui::DialoguesQt boites{liaison};
};

TEST_F(DialoguesQt, AQuestionSpeaksFrenchAndIsShownPlainly) {
    surLaBoite<QMessageBox>([](QMessageBox& boite) {
        EXPECT_EQ(boite.icon(), QMessageBox::Question);
        EXPECT_EQ(boite.windowTitle(), "Ambrelis");
        EXPECT_EQ(boite.textFormat(), Qt::PlainText);
        EXPECT_EQ(boite.button(QMessageBox::Yes)->text().remove('&'), "Oui");
        boite.button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(boites.MsgBox("Supprimer <b>Été</b> ?", dialogues::kQuestion, dialogues::kTitre), dialogues::kOui);
    surLaBoite<QMessageBox>([](QMessageBox& boite) { boite.reject(); });
    EXPECT_EQ(boites.MsgBox("Continuer ?", dialogues::kQuestion, dialogues::kTitre), dialogues::kNon)
        << "closing answers No";
}

TEST_F(DialoguesQt, ABoxBelongsToTheWindowInUse) {
    QWidget principale, visionneuse;
    principale.show();
    boites.metParent(&principale);
    visionneuse.show();
    for (QWidget* enUsage : {&visionneuse, &principale}) {
        enUsage->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(enUsage, essais::kPatience));
        surLaBoite<QMessageBox>([=](QMessageBox& boite) {
            EXPECT_EQ(boite.parentWidget(), enUsage);
            boite.accept();
        });
        boites.MsgBox("Fichier sauvegardé.", dialogues::kInformation, dialogues::kTitre);
    }
}

// A report of a whole life's import: the box comes at once, keeps its text, and lists it line by line.
TEST_F(DialoguesQt, ALongReportIsAListThatIsScrolledSelectedAndCopied) {
    dialogues::Rapport rapport{"100000 films ajoutés.\n- Déjà existant : \n",
                               {"100000 films ajoutés.", "- Déjà existant : "}};
    std::string parLignes = rapport.lignes[0] + "\n" + rapport.lignes[1];
    for (int i = 0; i < 100000; ++i) {
        rapport.lignes.push_back("Un titre, déjà présent dans la base " + std::to_string(i));
        rapport.texte += rapport.lignes.back() + ", ";
        parLignes += "\n" + rapport.lignes.back();
    }
    surLaBoite<QMessageBox>([&](QMessageBox& boite) {
        EXPECT_EQ(boite.text().toStdString(), rapport.texte);
        EXPECT_LE(boite.height(), boite.screen()->availableSize().height());
        EXPECT_TRUE(boite.button(QMessageBox::Ok)->isVisible());
        auto* liste = boite.findChild<QPlainTextEdit*>("lstRapport");
        ASSERT_TRUE(liste && liste->isVisible() && liste->isReadOnly());
        EXPECT_EQ(liste->toPlainText().toStdString(), parLignes);
        EXPECT_GT(liste->verticalScrollBar()->maximum(), 0);
        QTest::keyClick(liste, Qt::Key_End, Qt::ShiftModifier);
        QTest::keyClick(liste, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "100000 films ajoutés.");
        boite.accept();
    });
    boites.montre(rapport);
}

TEST_F(DialoguesQt, TheTextOfABoxIsSelectedAndCopied) {
    surLaBoite<QMessageBox>([](QMessageBox& boite) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&boite, essais::kPatience));
        auto* texte = boite.findChild<QLabel*>("qt_msgbox_label");
        EXPECT_TRUE(texte->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        QTest::keyClick(&boite, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "Le fichier indiqué est inexistant !");
        texte->setFocus();
        texte->setSelection(3, 7);
        QTest::keyClick(texte, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "fichier");
        QTest::keyClick(texte, Qt::Key_Return);
    });
    EXPECT_EQ(boites.MsgBox("Le fichier indiqué est inexistant !", dialogues::kExclamation, dialogues::kTitre),
              dialogues::kOk);
}

TEST_F(DialoguesQt, AnInputAnswersItsTextOrNothing) {
    surLaBoite<QInputDialog>([](QInputDialog& boite) {
        EXPECT_EQ(boite.textValue(), "Comédie");
        EXPECT_EQ(boite.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        EXPECT_EQ(boite.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->text().remove('&'),
                  "Annuler");
        boite.setTextValue("Œuvre");
        boite.accept();
    });
    EXPECT_EQ(boites.InputBox("Quel <i>genre</i> ?", "Modifier le genre", "Comédie"), "Œuvre");
    surLaBoite<QInputDialog>([](QInputDialog& boite) { boite.reject(); });
    EXPECT_EQ(boites.InputBox("Quel genre ?", "Modifier le genre", "Comédie"), "");
}

TEST_F(DialoguesQt, APasswordIsNotShown) {
    for (const std::string saisi : {"L'Été", ""}) {
        surLaBoite<QInputDialog>([&](QInputDialog& boite) {
            EXPECT_EQ(boite.findChild<QLineEdit*>()->echoMode(), QLineEdit::Password);
            boite.findChild<QLineEdit*>()->setText(QString::fromStdString(saisi));
            boite.accept();
        });
        EXPECT_EQ(boites.demandeMotDePasse("Quel est-il ?"), saisi);
    }
    surLaBoite<QInputDialog>([](QInputDialog& boite) { boite.reject(); });
    EXPECT_EQ(boites.demandeMotDePasse("Quel est-il ?"), std::nullopt);
}

// The path browsed for stands in the box without the extension that will be appended to it.
TEST_F(DialoguesQt, APathIsTypedOrBrowsedFor) {
    const doubles::DossierTemporaire dossier;
    for (const bool ajoutee : {false, true}) {
        const std::string tape = dossier.chemin("Été") + (ajoutee ? "" : ".txt");
        surLaBoite<QInputDialog>([&](QInputDialog& boite) {
            EXPECT_EQ(boite.textValue().toStdString(), tape);
            surLaBoite<QFileDialog>([&](QFileDialog& choix) {
                EXPECT_EQ(choix.acceptMode(), QFileDialog::AcceptSave);
                EXPECT_EQ(choix.directory().absolutePath().toStdString() + "/", dossier.chemin());
                choix.findChild<QLineEdit*>("fileNameEdit")->setText("L'œuvre");
                choix.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
            });
            boite.findChild<QPushButton*>("cmdParcourirChemin")->click();
            boite.accept();
        });
        EXPECT_EQ(boites.demandeChemin({"Où ?", "Créer", tape, ".txt", ajoutee}),
                  dossier.chemin("L'œuvre") + (ajoutee ? "" : ".txt"));
    }
}

// Who asks for a file has its own words for one that is not there.
TEST_F(DialoguesQt, TheFileBoxAcceptsTheTypedNameOfAFileThatIsNotThere) {
    const doubles::DossierTemporaire dossier;
    for (const bool peutCreer : {true, false}) {
        surLaBoite<QFileDialog>([&](QFileDialog& boite) {
            EXPECT_EQ(boite.acceptMode(), QFileDialog::AcceptOpen);
            EXPECT_TRUE(boite.testOption(QFileDialog::DontUseNativeDialog));
            const QHeaderView& entete = *boite.findChild<QTreeView*>("treeView")->header();
            for (int colonne = 0; colonne < entete.count(); ++colonne)
                EXPECT_GE(entete.sectionSize(colonne), entete.sectionSizeHint(colonne)) << colonne;
            QTest::keyClicks(boite.findChild<QLineEdit*>("fileNameEdit"), "absent.jpg");
            QTest::keyClick(boite.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        });
        EXPECT_EQ(boites.choisitFichier({"Choix", "Fichiers JPEG|*.jpg", dossier.chemin(), peutCreer}),
                  dossier.chemin("absent.jpg"));
    }
}

TEST_F(DialoguesQt, AWholePathIsTypedLetterByLetterInTheFolderThatIsShown) {
    const doubles::DossierTemporaire dossier;
    const std::string chemin = dossier.ecrit("Films.mdb", "x");
    surLaBoite<QFileDialog>([&](QFileDialog& boite) {
        auto* nom = boite.findChild<QLineEdit*>("fileNameEdit");
        auto* ouvrir = boite.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
        // Its folder is read aside: what is typed is chosen in the list only then.
        ASSERT_TRUE(essais::attends([&] {
            nom->setText(boite.directory().absolutePath());
            QTest::keyClicks(nom, "/Films.mdb");
            return boite.findChild<QTreeView*>("treeView")->selectionModel()->hasSelection();
        }));
        EXPECT_TRUE(ouvrir->isEnabled());
        EXPECT_EQ(boite.selectedFiles(), QStringList(QString::fromStdString(chemin)));
        boite.reject();
    });
    static_cast<void>(boites.choisitFichier({"Ouvrir", "Fichiers|*.mdb", dossier.chemin()}));
}

TEST_F(DialoguesQt, TheFileBoxSaysWhyItLeavesNamesOut) {
    const doubles::DossierTemporaire dossier;
    dossier.ecrit("Été.jpg", "x");
    dossier.ecrit("dedans/Film\xE9.jpg", "x");
    dossier.ecrit("dedans/\xC9t\xE9.jpg", "x");
    surLaBoite<QFileDialog>([&](QFileDialog& boite) {
        auto* texte = boite.findChild<QLabel*>("lblNomsIllisibles");
        EXPECT_FALSE(texte->isVisible());
        QTest::keyClicks(boite.findChild<QLineEdit*>("fileNameEdit"), "dedans");
        QTest::keyClick(boite.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        EXPECT_TRUE(texte->isVisible());
        EXPECT_TRUE(texte->text().startsWith("2 ")) << texte->text().toStdString();
        EXPECT_TRUE(texte->text().contains("UTF-8"));
        boite.reject();
    });
    EXPECT_EQ(boites.choisitFichier({"Choix", "Fichiers JPEG|*.jpg", dossier.chemin(), false}), "");
}

TEST_F(DialoguesQt, APlaceForAPathOfWindowsIsChosenUnderItsName) {
    const doubles::DossierTemporaire dossier;
    const auto enregistre = [&](QFileDialog& boite) {
        EXPECT_EQ(boite.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(boite.findChild<QLineEdit*>("fileNameEdit")->text(), "FILMS.txt");
        boite.setDirectory(QString::fromStdString(dossier.chemin()));
        boite.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    };
    surLaBoite<QFileDialog>(enregistre);
    EXPECT_EQ(boites.choisitFichier({"Créer", "Fichiers TXT|*.txt", "", true, "FILMS.txt"}),
              dossier.chemin("FILMS.txt"));
    surLaBoite<QInputDialog>([&](QInputDialog& boite) {
        surLaBoite<QFileDialog>(enregistre);
        boite.findChild<QPushButton*>("cmdParcourirChemin")->click();
        boite.accept();
    });
    EXPECT_EQ(boites.demandeChemin({"Où ?", "Créer", "C:\\Mes films\\FILMS.txt", ".txt", false}),
              dossier.chemin("FILMS.txt"));
}

TEST(Filtres, TakeBothLetterCases) {
    EXPECT_EQ(ui::filtreQt("Fichiers JPEG|*.jpg"), "Fichiers JPEG (*.jpg *.JPG)");
    EXPECT_EQ(ui::filtreQt("Tous types de fichiers|*.*"), "Tous types de fichiers (*)");
    EXPECT_EQ(ui::filtreQt(""), " (*)");
}

}  // namespace
