// The downloader with a user who takes all that is found and then ends it.
#include "platform/fichiers/Fichiers.h"
#include "rapatrix/Fenetre.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const auto octets = argc == 2 ? fichiers::lit(argv[1]) : std::nullopt;
    const auto reglages = octets ? rapatrix::litReglages(*octets) : std::nullopt;
    if (!reglages) return 2;
    rapatrix::Fenetre fenetre(*reglages);
    fenetre.show();
    const auto clique = [&](const char* nom) { fenetre.findChild<QPushButton*>(QLatin1String(nom))->click(); };
    bool demande = false;
    QTimer main;
    QObject::connect(&main, &QTimer::timeout, &fenetre, [&] {
        if (fenetre.findChild<QPushButton*>(QStringLiteral("cmdArreter"))->isVisible()) return;
        clique("cmdTout");
        clique(std::exchange(demande, true) ? "cmdTerminer" : "cmdTelecharger");
    });
    fenetre.demarre();
    main.start(10);
    return QApplication::exec();
}
