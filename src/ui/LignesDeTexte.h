#pragma once

#include <QFont>
#include <QStringList>
#include <QTextLayout>
#include <functional>
#include <memory>
#include <vector>

namespace ui {

// A text broken into lines of a width, each paragraph once: those that its height is asked of are drawn as they were
// broken, the others are broken when they are drawn, so that a text of megabytes never lies in memory as lines.
class LignesDeTexte {
  public:
    LignesDeTexte(const QString& texte, const QFont& police, qreal largeur, bool justifie = false);
    LignesDeTexte(LignesDeTexte&&) noexcept = default;
    LignesDeTexte(const LignesDeTexte&) = delete;

    [[nodiscard]] const QFont& police() const { return m_police; }
    [[nodiscard]] int nombre(int auPlus);  // of its lines; at least `auPlus` where there are more
    // Each line in turn as long as `recoit` answers true; whether it always did.
    [[nodiscard]] bool parcourt(const std::function<bool(const QTextLine&)>& recoit) const;

  private:
    [[nodiscard]] std::unique_ptr<QTextLayout> romps(qsizetype paragraphe) const;

    QStringList m_paragraphes;
    QFont m_police;
    qreal m_largeur;
    bool m_justifie;
    std::vector<std::unique_ptr<QTextLayout>> m_rompus;  // the first paragraphs
    int m_lignes = 0;                                    // of these
};

}  // namespace ui
