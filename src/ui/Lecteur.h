#pragma once

#include <QAccessible>
#include <QString>
#include <functional>

class QAbstractButton;
class QLabel;
class QLayout;
class QWidget;

// What screen readers are told where a widget's class says too little, or something else. Qt tells the rest.
namespace ui {

struct Lecture {
    QAccessible::Role role;
    std::function<QString()> nom = {};    // else what it is called for readers, a window's title, a label's text
    std::function<void()> presse = {};    // where it acts
    std::function<bool()> choisie = {};   // one page of several: whether it is the one that shows
    std::function<bool()> enfoncee = {};  // a button that stays down
};

// Replaces what was said of the widget before.
void seLit(QWidget* widget, Lecture lecture);
// A group of controls that is told by its name when the keys enter it.
void seLitCommeGroupe(QWidget* widget, const QString& nom);
// A list of pages whose buttons, those in it, are told as its tabs. The font of the one that shows is bold: the Tab key
// stops there alone, and the arrows go from page to page.
[[nodiscard]] QWidget* listeDOnglets(QLayout* onglets, const QString& nom);
// The page beside the one that shows, of the list of pages that is to be seen; false where none is.
bool tourneLaPage(QWidget* fenetre, int pas);

// Has readers speak the text, wherever the keys are; the label's, in its window. Qt's own alert ends nowhere on Linux:
// what is heard there is a notification that comes to be shown, so each window has one, which is not to be seen.
void annonce(QWidget* fenetre, const QString& texte);
void annonce(const QLabel* etiquette);

// A box that was ticked or unticked by a key, in a list whose current row is the one.
void annonceCoche(QWidget* liste);

// Readers come to the widgets in the order in which they are in their parent, which QSplitter turns around.
void litDansLOrdre(std::initializer_list<QWidget*> widgets);

}  // namespace ui
