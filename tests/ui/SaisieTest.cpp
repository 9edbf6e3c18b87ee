#include "Attente.h"
#include "ui/ListeDeSaisie.h"
#include "ui/TexteLong.h"
#include "ui/UneSeuleLigne.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

#include <gtest/gtest.h>

namespace {

void fermeLesSuggestions() {
    if (QWidget* suggestions = QApplication::activePopupWidget()) suggestions->close();
}

// --- one line ----------------------------------------------------------------------------------------------------

TEST(UneSeuleLigne, MakesOneBlankOfLineEndsAndTabsHoweverTheyComeIn) {
    QWidget fenetre;
    auto* zone = new QLineEdit(&fenetre);
    new ui::UneSeuleLigne(zone);
    fenetre.show();
    QGuiApplication::clipboard()->setText("Alien\r\n\tII\u2028fin");
    zone->paste();
    EXPECT_EQ(zone->text(), "Alien II fin");
    zone->undo();
    EXPECT_FALSE(zone->text().contains('\n'));

    zone->setText(QString());
    QMimeData donnees;
    donnees.setText("Le\tretour");
    QDragEnterEvent entree(QPoint(2, 2), Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(zone, &entree);
    QDropEvent depot(QPointF(2, 2), Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(zone, &depot);
    EXPECT_EQ(zone->text(), "Le retour");

    // What came from the base is not touched by what is typed beside it.
    {
        const QSignalBlocker silence(zone);
        zone->setText("Première\nSeconde");
    }
    zone->setCursorPosition(0);
    QTest::keyClicks(zone, "La ");
    QGuiApplication::clipboard()->setText("toute\n");
    QTest::keyClick(zone, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(zone->text(), "La toute Première\nSeconde");
}

// --- lists that may be typed in ----------------------------------------------------------------------------------

TEST(ListeDeSaisie, KeepsTheLettersTypedWhenLeftOrEntered) {
    QWidget fenetre;
    auto* liste = ui::listeDeSaisie();
    liste->setParent(&fenetre);
    auto* autre = new QLineEdit(&fenetre);
    liste->addItems({"comedie", "dvd"});
    liste->setCurrentIndex(-1);
    fenetre.show();
    fenetre.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre, essais::kPatience));
    liste->setFocus();
    QTest::keyClicks(liste->lineEdit(), "Comedie");
    autre->setFocus();
    EXPECT_EQ(liste->currentText(), "Comedie");
    liste->setFocus();
    liste->lineEdit()->selectAll();
    QTest::keyClicks(liste->lineEdit(), "DVD");
    fermeLesSuggestions();
    QTest::keyClick(liste->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(liste->currentText(), "DVD");
}

// --- the summary -------------------------------------------------------------------------------------------------

struct TexteLong : testing::Test {
    ui::TexteLong zone;

    void insere(int position, const char* texte) {
        QTextCursor curseur(zone.document());
        curseur.setPosition(position);
        zone.setTextCursor(curseur);
        for (const char* lettre = texte; *lettre; ++lettre)
            *lettre == '\n' ? QTest::keyClick(&zone, Qt::Key_Return) : QTest::keyClick(&zone, *lettre);
    }
};

TEST_F(TexteLong, AnEditLeavesTheRestAsItWas) {
    const QString texte = QString::fromUtf8("Un\u00a0film\r\nde\u2028trois\nlignes\rou\u2029plus\r\n");
    zone.metTexte(texte);
    EXPECT_EQ(zone.texte(), texte);
    insere(0, "A");
    EXPECT_EQ(zone.texte(), "A" + texte);
    insere(static_cast<int>(zone.document()->toRawText().size()), "\nz");  // in two places
    EXPECT_EQ(zone.texte(), "A" + texte + "\r\nz");
    while (zone.document()->isUndoAvailable())
        zone.undo();
    EXPECT_EQ(zone.texte(), texte);

    // A paragraph between two others is taken out with its own end.
    QTextCursor curseur(zone.document());
    curseur.setPosition(8);
    curseur.setPosition(17, QTextCursor::KeepAnchor);
    curseur.removeSelectedText();
    EXPECT_EQ(zone.texte(), QString::fromUtf8("Un\u00a0film\r\nlignes\rou\u2029plus\r\n"));
}

TEST_F(TexteLong, NewLineEndsAreThoseOfTheText) {
    insere(0, "a\nb");
    EXPECT_EQ(zone.texte(), "a\r\nb");
    QTest::keyClick(&zone, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(zone.texte(), "a\r\nb\r\n");
    zone.metTexte("un\ndeux");
    insere(2, "\n");
    EXPECT_EQ(zone.texte(), "un\n\ndeux");
}

TEST_F(TexteLong, WhatIsPastedOrMovedKeepsItsBlanks) {
    const QString texte = QString::fromUtf8("«\u00a0Oui\u00a0»\nNon");
    QGuiApplication::clipboard()->setText(texte);
    zone.paste();
    EXPECT_EQ(zone.texte(), QString(texte).replace("\n", "\r\n"));
    zone.selectAll();
    zone.cut();
    EXPECT_EQ(zone.texte(), "");
    zone.paste();
    EXPECT_EQ(zone.texte(), QString(texte).replace("\n", "\r\n"));
}

}  // namespace
