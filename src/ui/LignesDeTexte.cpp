#include "ui/LignesDeTexte.h"

#include <utility>

namespace ui {

LignesDeTexte::LignesDeTexte(const QString& texte, const QFont& police, qreal largeur, bool justifie)
    : m_paragraphes(texte.split(QLatin1Char('\n'))), m_police(police), m_largeur(largeur), m_justifie(justifie) {}

std::unique_ptr<QTextLayout> LignesDeTexte::romps(qsizetype paragraphe) const {
    auto bloc = std::make_unique<QTextLayout>(m_paragraphes[paragraphe].trimmed(), m_police);
    QTextOption option(m_justifie ? Qt::AlignJustify : Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    bloc->setTextOption(option);
    bloc->setCacheEnabled(true);  // or its letters are shaped again for each line that is drawn
    bloc->beginLayout();
    for (QTextLine ligne = bloc->createLine(); ligne.isValid(); ligne = bloc->createLine())
        ligne.setLineWidth(m_largeur);
    bloc->endLayout();
    return bloc;
}

int LignesDeTexte::nombre(int auPlus) {
    while (m_lignes < auPlus && std::ssize(m_rompus) < m_paragraphes.size()) {
        m_rompus.push_back(romps(std::ssize(m_rompus)));
        m_lignes += m_rompus.back()->lineCount();
    }
    return m_lignes;
}

bool LignesDeTexte::parcourt(const std::function<bool(const QTextLine&)>& recoit) const {
    for (qsizetype i = 0; i < m_paragraphes.size(); ++i) {
        const bool rompu = i < std::ssize(m_rompus);
        const std::unique_ptr<QTextLayout> lui = rompu ? nullptr : romps(i);
        const QTextLayout& bloc = rompu ? *m_rompus[static_cast<std::size_t>(i)] : *lui;
        for (int ligne = 0; ligne < bloc.lineCount(); ++ligne)
            if (!recoit(bloc.lineAt(ligne))) return false;
    }
    return true;
}

}  // namespace ui
