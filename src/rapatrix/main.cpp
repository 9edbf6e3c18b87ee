// Le Rapatrix: fetches the sheets of films from the web for the program that starts it. Its one argument is the path of
// a configuration file (Reglages.h); it ends when its window is closed.
#include "platform/fichiers/Fichiers.h"
#include "rapatrix/Fenetre.h"
#include "rapatrix/Reglages.h"
#include "ui/Apparence.h"

#include <QApplication>
#include <QMessageBox>

namespace {

constexpr std::int64_t kTailleMaxConfiguration = 1 << 20;

int refuse(const QString& texte) {
    QMessageBox::critical(nullptr, QStringLiteral("Le Rapatrix"), texte);
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Le Rapatrix"));
    ui::habille(QCoreApplication::applicationDirPath().toStdString() + "/../");
    if (argc != 2)
        return refuse(QApplication::tr("Ce programme est lancé par Ambrelis pour chercher des films sur Internet."));
    const auto octets = fichiers::lit(argv[1], kTailleMaxConfiguration);
    const auto reglages = octets ? rapatrix::litReglages(*octets) : std::nullopt;
    if (!reglages)
        return refuse(QApplication::tr("Le fichier de configuration %1 est absent ou illisible.")
                          .arg(QString::fromLocal8Bit(argv[1])));
    if (reglages->supprimeConfiguration) fichiers::supprime(argv[1]);
    rapatrix::Fenetre fenetre(*reglages);
    fenetre.show();
    fenetre.demarre();
    return QApplication::exec();
}
