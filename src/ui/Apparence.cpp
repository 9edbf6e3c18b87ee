#include "ui/Apparence.h"

#include "ui/StyleAmbrelis.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace ui {

namespace {

void parleFrancais(const std::string& dossierProgramme) {
    if (QLocale::system().language() != QLocale::French) QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    auto* textes = new QTranslator(qApp);
    const QString nom = QStringLiteral("qtbase_fr");
    if (textes->load(nom, QString::fromStdString(dossierProgramme) + QLatin1String("traductions")) ||
        textes->load(nom, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(textes);
}

}  // namespace

void habille(const std::string& dossierProgramme) {
    if (QApplication::style()->name() == QLatin1String("fusion")) QApplication::setStyle(new StyleAmbrelis);
    parleFrancais(dossierProgramme);
}

}  // namespace ui
