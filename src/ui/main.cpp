#include "app/DossierUtilisateur.h"
#include "app/LigneDeCommande.h"
#include "app/Ouvertures.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/DossierProgramme.h"
#include "platform/systeme/Memoire.h"
#include "ui/Apparence.h"
#include "ui/FinDemandee.h"
#include "ui/Programme.h"

#include <QApplication>
#include <QMessageBox>
#include <iostream>
#include <string_view>

namespace {

// Qt's part of the command line: what a session manager starts the program again with. All the rest names files.
int motsDeQt(int argc, char** argv) {
    return argc >= 3 && std::string_view(argv[1]) == "-session" ? 3 : 1;
}

void signale(const std::string& echec) {
    QMessageBox::critical(nullptr, QStringLiteral("Ambrelis"), QString::fromStdString(echec));
}

// Before the start: it may find the program running, which then takes them.
void remetsLesFichiers(const std::string& dossier, const std::vector<std::string>& chemins) {
    if (!chemins.empty() && !app::demandeOuverture(dossier, chemins))
        signale("Les fichiers à ouvrir n'ont pas pu être notés dans " + dossier + " (" + fichiers::raisonDeLEchec() +
                ") : ils ne seront pas importés.");
}

}  // namespace

int main(int argc, char** argv) {
    systeme::gardeLesGrandsBlocsAPart();
    int deQt = motsDeQt(argc, argv);
    const app::Appel appel = app::lisAppel({argv + deQt, argv + argc});
    if (!appel.reponse.empty()) {
        std::cout << appel.reponse;
        return 0;
    }
    QApplication application(deQt, argv);
    QApplication::setApplicationName(QStringLiteral("Ambrelis"));
    // Qt would answer another folder for one whose name is no UTF-8; the start refuses that one by its own name.
    std::string dossier = systeme::dossierDuProgramme();
    if (dossier.empty()) dossier = QCoreApplication::applicationDirPath().toStdString() + "/";
    const app::DossierDeTravail travail = app::dossierDeTravail(dossier, systeme::dossierDesDonnees());
    ui::habille(dossier);
    ui::suisLaTeinteDuBureau();
    if (!travail.echec.empty()) {
        signale(travail.echec);
        return 1;
    }
    remetsLesFichiers(travail.dossier, appel.chemins);
    ui::Programme programme(travail.dossier);
    const ui::FinDemandee fin(programme);
    if (!programme.demarre()) return 0;
    return QApplication::exec();
}
