#include "ui/Typographie.h"

namespace ui {

QString sansSigneIsole(QString texte) {
    static const QString kSignes = QStringLiteral(";:!?»");
    for (qsizetype i = texte.indexOf(QLatin1Char(' ')); i >= 0; i = texte.indexOf(QLatin1Char(' '), i + 1)) {
        const bool avantUnSigne = i + 1 < texte.size() && kSignes.contains(texte[i + 1]);
        const bool apresOuvrant = i > 0 && texte[i - 1] == QChar(0x00ab);
        if (avantUnSigne || apresOuvrant) texte[i] = QChar::Nbsp;
    }
    return texte;
}

}  // namespace ui
