#include "ui/Apparence.h"
#include "ui/Programme.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ambrelis"));
    const std::string dossier = QCoreApplication::applicationDirPath().toStdString() + "/";
    ui::habille(dossier);
    ui::suisLaTeinteDuBureau();
    ui::Programme programme(dossier);
    if (!programme.demarre()) return 0;
    return QApplication::exec();
}
