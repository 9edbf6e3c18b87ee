#include "ui/UneSeuleLigne.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace ui {

namespace {

const QRegularExpression& horsLigne() {
    static const QRegularExpression expression(QStringLiteral("[\\t\\n\\v\\f\\r\\x{85}\\x{2028}\\x{2029}]+"));
    return expression;
}

}  // namespace

UneSeuleLigne::UneSeuleLigne(QLineEdit* zone) : QObject(zone), m_zone(zone), m_avant(zone->text()) {
    zone->installEventFilter(this);
    connect(zone, &QLineEdit::textEdited, this, &UneSeuleLigne::nettoie);
}

// The program writes the box without telling; whatever event comes next may be the one that pastes.
bool UneSeuleLigne::eventFilter(QObject*, QEvent*) {
    m_avant = m_zone->text();
    return false;
}

void UneSeuleLigne::nettoie(const QString& texte) {
    const QString avant = std::exchange(m_avant, texte);
    if (!texte.contains(horsLigne())) return;
    const qsizetype longueur = std::min(avant.size(), texte.size());
    const qsizetype debut = std::mismatch(avant.begin(), avant.begin() + longueur, texte.begin()).first - avant.begin();
    const qsizetype fin =
        std::mismatch(avant.rbegin(), avant.rbegin() + (longueur - debut), texte.rbegin()).first - avant.rbegin();
    const QString insere = texte.mid(debut, texte.size() - debut - fin);
    const QString propre = QString(insere).replace(horsLigne(), QStringLiteral(" "));
    if (propre == insere) return;
    m_zone->setSelection(static_cast<int>(debut), static_cast<int>(insere.size()));
    m_zone->insert(propre);
}

}  // namespace ui
