#pragma once

#include "ui/PagesDuGuide.h"

#include <QTextBrowser>
#include <QTimer>

namespace ui {

// A page of the guide, in the window's colours: the files are those that a browser shows (docs/guide), whose style sheet
// knows more than this view does, so that it is given one of its own. A page is named as the pages name each other.
class VueGuide final : public QTextBrowser {
    Q_OBJECT
  public:
    explicit VueGuide(const PagesDuGuide& pages, QWidget* parent = nullptr);

    void montre(const QString& page);
    [[nodiscard]] QString page() const;  // without what follows "#"

    // Marks the passages of these folded words on this page and on those that follow.
    void cherche(const QStringList& mots);
    // Shows the passage after the one shown, or before it; false when there is none.
    bool passe(int sens);
    void avantLePremier(int sens);  // so that passe leads to the first one, or to the last one
    [[nodiscard]] qsizetype passages() const { return std::ssize(m_passages); }
    [[nodiscard]] qsizetype passage() const { return m_passage + 1; }  // the one shown, from 1 on; 0 before that

    QVariant loadResource(int genre, const QUrl& nom) override;

  signals:
    void lienAuDehors(const QString& adresse);

  protected:
    void resizeEvent(QResizeEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;

  private:
    void suisLeLien(const QUrl& lien);
    void metEnPage();
    void relis();
    void marque();
    [[nodiscard]] int largeurDeTexte() const;
    [[nodiscard]] QVariant image(const QByteArray& octets) const;

    const PagesDuGuide& m_pages;
    QStringList m_mots;
    std::vector<Passage> m_passages;
    qsizetype m_passage = -1;
    int m_largeurDesImages = 0;  // that those of the page were made for
    QTimer m_repos;              // of the window's edges
};

}  // namespace ui
