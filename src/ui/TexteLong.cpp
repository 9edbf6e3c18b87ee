#include "ui/TexteLong.h"

#include <QKeyEvent>
#include <QMimeData>
#include <algorithm>

namespace ui {

namespace {

constexpr char16_t kCrLf = 0;  // any other end is one character, and is itself
constexpr QChar kParagraphe = QChar::ParagraphSeparator;

// The characters that the document takes for a line end.
bool estUneFin(QChar caractere) {
    const char16_t code = caractere.unicode();
    return code == u'\r' || code == u'\n' || caractere == kParagraphe || code == 0xfdd0 || code == 0xfdd1;
}

std::vector<char16_t> finsDe(const QString& texte) {
    std::vector<char16_t> fins;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        if (!estUneFin(texte[i])) continue;
        const bool crLf = texte[i] == u'\r' && i + 1 < texte.size() && texte[i + 1] == u'\n';
        fins.push_back(crLf ? kCrLf : texte[i].unicode());
        if (crLf) ++i;
    }
    return fins;
}

qsizetype debutCommun(const QString& a, const QString& b) {
    const qsizetype longueur = std::min(a.size(), b.size());
    return std::mismatch(a.begin(), a.begin() + longueur, b.begin()).first - a.begin();
}

qsizetype finCommune(const QString& a, const QString& b, qsizetype debut) {
    const qsizetype longueur = std::min(a.size(), b.size()) - debut;
    return std::mismatch(a.rbegin(), a.rbegin() + longueur, b.rbegin()).first - a.rbegin();
}

}  // namespace

TexteLong::TexteLong(QWidget* parent) : QPlainTextEdit(parent) {
    connect(document(), &QTextDocument::contentsChanged, this, &TexteLong::suisLesFins);
}

void TexteLong::metTexte(const QString& texte) {
    m_metTexte = true;
    setPlainText(texte);
    m_metTexte = false;
    m_fins = finsDe(texte);
    m_brut = document()->toRawText();
}

QString TexteLong::texte() const {
    QString texte;
    texte.reserve(m_brut.size() + static_cast<qsizetype>(m_fins.size()));
    auto fin = m_fins.begin();
    for (const QChar caractere : m_brut) {
        if (caractere != kParagraphe)
            texte += caractere;
        else if (const char16_t code = *fin++; code == kCrLf)
            texte += QLatin1String("\r\n");
        else
            texte += QChar(code);
    }
    return texte;
}

// What stands before the place of the change, and after it, keeps its line ends.
void TexteLong::suisLesFins() {
    if (m_metTexte) return;
    QString brut = document()->toRawText();
    if (brut == m_brut) return;
    const qsizetype debut = debutCommun(m_brut, brut), fin = finCommune(m_brut, brut, debut);
    const QStringView change = QStringView(brut).mid(debut, brut.size() - debut - fin);
    const auto avant = QStringView(m_brut).left(debut).count(kParagraphe);
    const auto apres = QStringView(m_brut).right(fin).count(kParagraphe);
    const char16_t usage = m_fins.empty() ? kCrLf : m_fins.front();
    m_fins.erase(m_fins.begin() + avant, m_fins.end() - apres);
    m_fins.insert(m_fins.begin() + avant, static_cast<std::size_t>(change.count(kParagraphe)), usage);
    m_brut = std::move(brut);
}

// Qt's own line separator, which no other program would break the line at.
void TexteLong::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->matches(QKeySequence::InsertLineSeparator))
        textCursor().insertBlock();
    else
        QPlainTextEdit::keyPressEvent(evenement);
}

// Cut and moved, a text would lose its no-break spaces.
QMimeData* TexteLong::createMimeDataFromSelection() const {
    auto* donnees = new QMimeData;
    donnees->setText(textCursor().selectedText().replace(kParagraphe, QLatin1Char('\n')));
    return donnees;
}

}  // namespace ui
