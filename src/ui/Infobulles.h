#pragma once

#include <QObject>

class QLineEdit;

namespace ui {

// A text as it is, whatever its signs: Qt takes some texts for HTML.
[[nodiscard]] QString enInfobulle(const QString& texte);

// A text that its box cannot show whole is told by a tool tip, in the place of the box's own.
class InfobulleEntiere final : public QObject {
    Q_OBJECT
  public:
    explicit InfobulleEntiere(QLineEdit* zone);  // which owns it

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    QLineEdit* m_zone;
};

}  // namespace ui
