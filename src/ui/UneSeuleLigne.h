#pragma once

#include <QObject>

class QLineEdit;

namespace ui {

// Keeps a one-line box to one line: line ends and tabs of what is pasted, dropped or inserted there, which would be kept
// without being seen, become one blank. What the box held before is left alone. It is the box's own.
class UneSeuleLigne final : public QObject {
    Q_OBJECT
  public:
    explicit UneSeuleLigne(QLineEdit* zone);
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    void nettoie(const QString& texte);

    QLineEdit* m_zone;
    QString m_avant;  // what the next change is compared with
};

}  // namespace ui
