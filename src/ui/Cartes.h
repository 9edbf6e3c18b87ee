#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace ui {

// A group of controls on a surface of its own.
class Carte final : public QWidget {
    Q_OBJECT
  public:
    enum class Sorte { Ordinaire, Dangereuse };
    explicit Carte(QLayout* contenu, Sorte sorte = Sorte::Ordinaire);

  protected:
    void paintEvent(QPaintEvent* evenement) override;

  private:
    Sorte m_sorte;
};

// Its widgets are side by side, as wide as one another, where it is at least so wide and has room for each; else one
// below the other.
class CoteACote final : public QWidget {
    Q_OBJECT
  public:
    CoteACote(std::initializer_list<QWidget*> widgets, int aPartirDe, int espacement, QWidget* parent = nullptr);
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* evenement) override;
    bool event(QEvent* evenement) override;

  private:
    void dispose();

    QBoxLayout* m_boite;
    int m_aPartirDe;
};

}  // namespace ui
