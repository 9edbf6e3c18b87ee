#pragma once

#include <QAbstractButton>
#include <QPixmap>
#include <QVariantAnimation>

namespace ui {

// One film as a small poster above its title; a drawn one as long as there is none.
class Vignette final : public QAbstractButton {
    Q_OBJECT
  public:
    explicit Vignette(QWidget* parent);

    void metTitre(const QString& titre);  // another film's: the poster goes
    // Decodes the bytes aside, at the size shown, and shows the picture when it is there. Empty: no poster.
    void chargeAffiche(const QByteArray& octets);

    [[nodiscard]] static int hauteurPour(int largeur, const QFontMetrics& mesure);
    [[nodiscard]] bool aUneAffiche() const { return !m_affiche.isNull(); }

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    bool event(QEvent* evenement) override;

  private:
    [[nodiscard]] QRect cadre() const;
    void montre(const QImage& affiche);

    QPixmap m_affiche;
    int m_demande = 0;  // the last one; what an earlier one brings is late
    QVariantAnimation m_apparition;
};

}  // namespace ui
