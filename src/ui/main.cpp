#include "platform/systeme/DossierProgramme.h"
#include "ui/Apparence.h"
#include "ui/FinDemandee.h"
#include "ui/Programme.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ambrelis"));
    // Qt would answer another folder for one whose name is no UTF-8; the start refuses that one by its own name.
    std::string dossier = systeme::dossierDuProgramme();
    if (dossier.empty()) dossier = QCoreApplication::applicationDirPath().toStdString() + "/";
    ui::habille(dossier);
    ui::suisLaTeinteDuBureau();
    ui::Programme programme(dossier);
    const ui::FinDemandee fin(programme);
    if (!programme.demarre()) return 0;
    return QApplication::exec();
}
