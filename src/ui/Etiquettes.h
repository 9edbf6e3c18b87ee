#pragma once

#include <QLabel>

namespace ui {

enum class Ton { Normal, Discret, Accent };

// A label that wraps to a given number of lines and elides the rest, told by a tool tip. Its colour is a shade of the
// palette, so that it follows light and dark.
class Etiquette : public QLabel {
    Q_OBJECT
  public:
    explicit Etiquette(const QString& texte = {}, QWidget* parent = nullptr);

    Etiquette* avecTon(Ton ton);
    Etiquette* avecLignes(int maximum);                                            // 1: one line
    Etiquette* avecPolice(double facteur, QFont::Weight graisse = QFont::Normal);  // relative to the program's font

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return m_lignesMax > 1; }
    int heightForWidth(int largeur) const override;

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    bool event(QEvent* evenement) override;

  private:
    struct Lignes {
        QStringList textes;
        bool coupees = false;
    };
    [[nodiscard]] QString debut(const QString& texte) const;
    [[nodiscard]] Lignes lignes(int largeur) const;
    [[nodiscard]] int interligne() const;
    [[nodiscard]] int hauteur(qsizetype lignes) const;
    void peintLegende(QPainter& peintre) const;

    Ton m_ton = Ton::Normal;
    int m_lignesMax = 1;
};

// The title of a help section, as published: " - Titre : ". What frames it is in the accent colour, and the blank before
// the dash hangs in the margin, so that the dash is in line with what is below. A lone dash stands for no title.
class TitreDeSection final : public Etiquette {
    Q_OBJECT
  public:
    explicit TitreDeSection(double facteur = 1.08, QWidget* parent = nullptr);
    [[nodiscard]] bool estVide() const { return text().trimmed().isEmpty() || text().trimmed() == QLatin1String("-"); }

  protected:
    void paintEvent(QPaintEvent* evenement) override;
};

[[nodiscard]] QFont policeRelative(double facteur, QFont::Weight graisse = QFont::Normal);

}  // namespace ui
