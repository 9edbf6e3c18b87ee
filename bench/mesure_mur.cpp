// mesure_mur DOSSIER: the wall of posters of the program in a program folder, started as its main does, driven and watched
// from outside. Beside it, the bare decoding of as many posters at the same size.

#include "Affiches.h"
#include "Guetteur.h"
#include "platform/systeme/Memoire.h"
#include "ui/Apparence.h"
#include "ui/MurDAffiches.h"
#include "ui/Programme.h"

#include <QBuffer>
#include <QComboBox>
#include <QImageReader>
#include <QScrollBar>
#include <QTreeView>
#include <stdexcept>

namespace {

constexpr double kImage = 1000.0 / 60;  // milliseconds
constexpr QSize kFenetre{1366, 740};
constexpr int kImages = 600;  // frames from top to bottom

double memoirePresente() {
    return bench::nombreDuSysteme("/proc/self/status", "VmRSS:") / 1024;
}

// A choice in the list of sorts, until the wall is painted with its films.
void mesureLeMur(QComboBox& tri, int indice, const ui::MurDAffiches& mur) {
    bool autre = false;
    const auto suivi = QObject::connect(mur.model(), &QAbstractItemModel::modelReset, [&] { autre = true; });
    bench::Guetteur guetteur(*mur.viewport());
    const double depart = bench::maintenant();
    tri.setCurrentIndex(indice);
    emit tri.activated(indice);
    while (!autre)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    static_cast<void>(guetteur.dureeDe([&] { mur.viewport()->update(); }));
    bench::declare("mur", bench::maintenant() - depart);
    QObject::disconnect(suivi);
}

// A page that was not seen yet, until all of its posters are painted. How many they are.
long mesureLaPage(const ui::MurDAffiches& mur) {
    bench::laisseFinir();
    const long avant = mur.chargeur().decodees();
    QScrollBar& barre = *mur.verticalScrollBar();
    const double depart = bench::maintenant();
    barre.setValue(barre.maximum() / 2);
    while (!mur.estComplet())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QApplication::processEvents();
    bench::declare("page", bench::maintenant() - depart);
    return mur.chargeur().decodees() - avant;
}

// From top to bottom, a frame at each sixtieth of a second: how late each one is painted.
void mesureLeDefilement(const ui::MurDAffiches& mur) {
    QScrollBar& barre = *mur.verticalScrollBar();
    bench::Guetteur guetteur(*mur.viewport());
    std::vector<double> durees;
    double image = bench::maintenant();
    for (int i = 1; i <= kImages; ++i) {
        const int voulue = static_cast<int>(static_cast<qint64>(barre.maximum()) * i / kImages);
        guetteur.dureeDe([&] { barre.setValue(voulue); });
        durees.push_back(bench::maintenant() - image);
        for (image += kImage; bench::maintenant() < image;)
            QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 1);
        image = std::max(image, bench::maintenant() - kImage);
    }
    bench::declareSerie("image", std::move(durees));
}

void mesureLePlancher(long nombre, const QSize& pixels) {
    const bench::Affiches affiches;
    const double depart = bench::maintenant();
    for (long i = 0; i < nombre; ++i) {
        QByteArray octets = QByteArray::fromStdString(affiches.affiche(static_cast<std::uint64_t>(i)));
        QBuffer tampon(&octets);
        QImageReader lecteur(&tampon, "jpeg");
        lecteur.setScaledSize(lecteur.size().scaled(pixels, Qt::KeepAspectRatio));
        if (lecteur.read().isNull()) throw std::runtime_error("a poster does not decode");
    }
    bench::declare("plancher", bench::maintenant() - depart);
}

void mesure(const std::string& dossier) {
    ui::habille(dossier);
    ui::Programme programme(dossier);
    QWidget& fenetre = programme.fenetre();
    auto& mur = *fenetre.findChild<ui::MurDAffiches*>("MurDAffiches");
    bench::Guetteur arbre(*fenetre.findChild<QTreeView*>("TreeView1")->viewport());
    if (!programme.demarre()) throw std::runtime_error("the program ended at its start");
    arbre.attend();
    const double avant = memoirePresente();
    while (mur.model()->rowCount() == 0 || !mur.estComplet())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    bench::declare("demarrage", bench::depuisLeDepart());
    fenetre.resize(kFenetre);  // the offscreen platform's screen is smaller, and the window was held to it
    bench::laisseFinir();
    auto& tri = *fenetre.findChild<QComboBox*>("ChoixTri");
    mesureLeMur(tri, 2, mur);
    mesureLeMur(tri, 0, mur);
    const long affiches = mesureLaPage(mur);
    mesureLeDefilement(mur);
    bench::declare("memoire", bench::memoireDePointe() - avant);
    mesureLePlancher(affiches, mur.tailleDesAffiches());
    bench::declare("affiches", static_cast<double>(affiches));
}

}  // namespace

int main(int nombre, char** mots) try {
    systeme::gardeLesGrandsBlocsAPart();  // as the program does
    QApplication application(nombre, mots);
    QApplication::setApplicationName(QStringLiteral("Ambrelis"));
    if (nombre < 2) throw std::invalid_argument("usage: mesure_mur DOSSIER");
    mesure(std::string(mots[1]) + "/");
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_mur: " << e.what() << '\n';
    return 1;
}
