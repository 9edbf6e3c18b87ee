#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

namespace ui {

// The one button of a panel that does what the panel is for: filled with the accent colour.
class BoutonAccent final : public QPushButton {
    Q_OBJECT
  public:
    using QPushButton::QPushButton;
    // Whether there is something to do it to: without, it looks like any other button.
    void metPrincipal(bool principal);

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    bool m_principal = true;
};

// The way to a panel: pressed and underlined in the accent colour while that panel is open, whatever is clicked.
class BoutonDePanneau final : public QPushButton {
    Q_OBJECT
  public:
    explicit BoutonDePanneau(const QString& texte);

  protected:
    void nextCheckState() override {}  // the panel tells
    void paintEvent(QPaintEvent* evenement) override;
};

// A page of several: the one whose font is bold is showing, and underlined in the accent colour.
class BoutonOnglet final : public QPushButton {
    Q_OBJECT
  public:
    using QPushButton::QPushButton;
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
};

// Text that acts: underlined under the mouse or with the focus, elided where it does not fit.
class BoutonLien final : public QAbstractButton {
    Q_OBJECT
  public:
    explicit BoutonLien(const QString& texte = {}, QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    bool event(QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
};

// A check box that is a small button with a sign on it: pressed when it is ticked. Its text is for screen readers and for
// its mnemonic; the tool tip has to say it.
class Bascule final : public QCheckBox {
    Q_OBJECT
  public:
    Bascule(const QString& texte, const QString& signe, QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    bool hitButton(const QPoint& endroit) const override { return rect().contains(endroit); }

  private:
    QString m_signe;
};

// A drop-down list that tells when it opens, before its entries are shown, and when it closed, and leaves the wheel to
// what scrolls. Readers hear the entry that is chosen in its description, and another one when the keys choose it: of a
// closed list Qt has them hear neither.
class ListeDeroulante final : public QComboBox {
    Q_OBJECT
  public:
    explicit ListeDeroulante(QWidget* parent = nullptr);
    void showPopup() override;
    void hidePopup() override;
    QSize minimumSizeHint() const override;

  signals:
    void vaSOuvrir();
    void sEstFermee();  // after what the choice of an entry brought

  protected:
    void wheelEvent(QWheelEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;

  private:
    void decrisLEntree();
};

}  // namespace ui
