#include "app/DossierUtilisateur.h"
#include "platform/systeme/DossierProgramme.h"
#include "ui/Apparence.h"
#include "ui/FinDemandee.h"
#include "ui/Programme.h"

#include <QApplication>
#include <QMessageBox>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ambrelis"));
    // Qt would answer another folder for one whose name is no UTF-8; the start refuses that one by its own name.
    std::string dossier = systeme::dossierDuProgramme();
    if (dossier.empty()) dossier = QCoreApplication::applicationDirPath().toStdString() + "/";
    const app::DossierDeTravail travail = app::dossierDeTravail(dossier, systeme::dossierDesDonnees());
    ui::habille(dossier);
    ui::suisLaTeinteDuBureau();
    if (!travail.echec.empty()) {
        QMessageBox::critical(nullptr, QStringLiteral("Ambrelis"), QString::fromStdString(travail.echec));
        return 1;
    }
    ui::Programme programme(travail.dossier);
    const ui::FinDemandee fin(programme);
    if (!programme.demarre()) return 0;
    return QApplication::exec();
}
