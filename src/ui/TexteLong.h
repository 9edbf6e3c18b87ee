#pragma once

#include <QPlainTextEdit>
#include <vector>

namespace ui {

// A text of several lines that comes back as it was written and typed: no-break spaces and line separators stay, and
// each line end that the user did not touch stays the one it was. His own are those of the text, CR LF in a new one.
class TexteLong final : public QPlainTextEdit {
    Q_OBJECT
  public:
    explicit TexteLong(QWidget* parent = nullptr);

    void metTexte(const QString& texte);
    [[nodiscard]] QString texte() const;

  protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    QMimeData* createMimeDataFromSelection() const override;

  private:
    void suisLesFins();

    // The document holds one paragraph separator for each line end; `m_fins` says which it was, in their order.
    QString m_brut;
    std::vector<char16_t> m_fins;
    bool m_metTexte = false;
};

}  // namespace ui
