#include "ui/ListeDeSaisie.h"

#include <QCompleter>
#include <QLineEdit>

namespace ui {

ListeDeroulante* listeDeSaisie() {
    auto* liste = new ListeDeroulante;
    liste->setEditable(true);
    liste->setInsertPolicy(QComboBox::NoInsert);
    liste->completer()->setCompletionMode(QCompleter::PopupCompletion);  // inline it would change the letters typed
    // Left, the box would choose the entry that reads the same but for its case.
    QObject::disconnect(liste->lineEdit(), &QLineEdit::editingFinished, liste, nullptr);
    liste->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return liste;
}

}  // namespace ui
