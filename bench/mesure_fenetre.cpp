// mesure_fenetre DOSSIER [CLICS | filtre]: the program itself in a program folder, started as its main does, driven and watched from
// outside by its published control names.

#include "Guetteur.h"
#include "platform/systeme/Memoire.h"
#include "ui/Apparence.h"
#include "ui/Programme.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QTreeView>
#include <array>
#include <chrono>
#include <stdexcept>

namespace {

using namespace std::chrono_literals;

template <typename Type>
Type& controle(const QWidget& fenetre, const char* nom) {
    if (auto* trouve = fenetre.findChild<Type*>(nom)) return *trouve;
    throw std::runtime_error(std::string("no control named ") + nom);
}

constexpr qsizetype kAfficheLourde = 50000;  // bytes

// What a choice in a drop-down list does: the entry becomes the current one, then the list tells of the gesture.
double choisit(QComboBox& liste, int indice, bench::Guetteur& arbre) {
    return arbre.dureeDe([&] {
        liste.setCurrentIndex(indice);
        emit liste.activated(indice);
    });
}

std::vector<QModelIndex> films(const QAbstractItemModel& modele) {
    std::vector<QModelIndex> resultat;
    for (int g = 0; g < modele.rowCount(); ++g) {
        const QModelIndex groupe = modele.index(g, 0);
        for (int f = 0; f < modele.rowCount(groupe); ++f)
            resultat.push_back(modele.index(f, 0, groupe));
    }
    return resultat;
}

void clique(QWidget& cible, const QPointF& place) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons boutons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent evenement(type, place, cible.mapToGlobal(place), Qt::LeftButton, boutons, Qt::NoModifier);
        QApplication::sendEvent(&cible, &evenement);
    }
}

void mesureClics(const QWidget& fenetre, QTreeView& arbre, std::size_t nombre) {
    std::vector<double> durees;
    const auto tous = films(*arbre.model());
    auto& titre = controle<QLabel>(fenetre, "Label1_0");
    auto& chargement = controle<QWidget>(fenetre, "Label12");
    bench::Guetteur affiche(controle<QWidget>(fenetre, "Image1"));
    for (std::size_t i = 0; i < nombre; ++i) {
        const QModelIndex film = tous[i * tous.size() / nombre];
        arbre.scrollTo(film, QAbstractItemView::PositionAtCenter);
        bench::laisseFinir();
        durees.push_back(affiche.dureeDe([&] { clique(*arbre.viewport(), arbre.visualRect(film).center()); }));
        if (titre.text() != film.data().toString() || chargement.isVisible())
            throw std::runtime_error("the sheet of another film is shown, or no poster");
    }
    bench::declareSerie("clic", std::move(durees));
}

// One decoding of the poster shown, at its own size: what no viewer does without.
double decode(const QByteArray& octets) {
    return bench::meilleureDuree(3, [&] {
        if (QPixmap image; !image.loadFromData(octets)) throw std::runtime_error("the poster does not decode");
    });
}

QByteArray afficheCourante(const std::string& dossier) {
    QFile fichier(QString::fromStdString(dossier + "Tmp/ImageTMP.jpg"));
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

// From film to film with Page Down; only the heavy posters count.
void mesureVisionneuse(const QWidget& fenetre, QTreeView& arbre, const std::string& dossier, std::size_t nombre) {
    const QModelIndex premier = arbre.model()->index(0, 0, arbre.model()->index(0, 0));
    arbre.scrollTo(premier);
    bench::laisseFinir();
    clique(*arbre.viewport(), arbre.visualRect(premier).center());
    clique(controle<QWidget>(fenetre, "Image1"), {5, 5});
    auto& barre = controle<QWidget>(fenetre, "HScroll1");
    bench::Guetteur affiche(controle<QWidget>(fenetre, "Picture1"));
    std::vector<double> pages, decodages;
    for (std::size_t i = 0; i < nombre; ++i) {
        bench::laisseFinir();
        const double duree = affiche.dureeDe([&] {
            QKeyEvent touche(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
            QApplication::sendEvent(&barre, &touche);
        });
        const QByteArray octets = afficheCourante(dossier);
        if (octets.size() < kAfficheLourde) continue;
        pages.push_back(duree);
        decodages.push_back(decode(octets));
    }
    if (pages.empty()) throw std::runtime_error("no heavy poster was met");
    bench::declareSerie("page", std::move(pages));
    bench::declareSerie("decodage", std::move(decodages));
}

void mesureChoix(const QWidget& fenetre, bench::Guetteur& arbre) {
    auto& tri = controle<QComboBox>(fenetre, "ChoixTri");
    auto& zone = controle<QComboBox>(fenetre, "ChoixZone");
    for (int i : bench::kTris)
        bench::declare("tri" + std::to_string(i), choisit(tri, i, arbre));
    for (int i : bench::kZones)
        bench::declare("zone" + std::to_string(i), choisit(zone, i, arbre));
}

constexpr std::array<const char*, 6> kSaisies{"coeur de l'horloger", "zoé lamlet", "drame 1979", "l ete",
                                              "Agnès Ber k",         "introuvable"};
constexpr int kToutesLesFiches = 1;  // of the zones
// Idle, after which the filter has read what it needs.
constexpr std::chrono::seconds kPreparation{3};
constexpr double kPreparationParTitre = 0.03;  // milliseconds

// From each key to the end of the tree's repaint: texts are typed, and taken back letter by letter.
void mesureFiltre(const QWidget& fenetre, bench::Guetteur& arbre, double titres) {
    auto& champ = controle<QWidget>(fenetre, "Filtre");
    champ.setFocus();
    const double preparation = kPreparation / 1.0ms + kPreparationParTitre * titres;
    for (const double depart = bench::maintenant(); bench::maintenant() - depart < preparation;)
        QApplication::processEvents();
    std::vector<double> durees;
    const auto frappe = [&](int touche, const QString& texte) {
        bench::laisseFinir();
        durees.push_back(arbre.dureeDe([&] {
            QKeyEvent evenement(QEvent::KeyPress, touche, Qt::NoModifier, texte);
            QApplication::sendEvent(&champ, &evenement);
        }));
    };
    for (const QString saisie : kSaisies) {
        for (const QChar lettre : saisie)
            frappe(Qt::Key_A, lettre);
        for (qsizetype i = 0; i < saisie.size(); ++i)
            frappe(Qt::Key_Backspace, {});
    }
    bench::declareSerie("frappe", std::move(durees));
}

void mesure(const std::string& dossier, std::size_t clics, bool filtre) {
    ui::habille(dossier);
    ui::Programme programme(dossier);
    QWidget& fenetre = programme.fenetre();
    auto& arbre = controle<QTreeView>(fenetre, "TreeView1");
    bench::Guetteur guetteur(*arbre.viewport());
    if (!programme.demarre()) throw std::runtime_error("the program ended at its start");
    guetteur.attend();
    bench::declare("peint", bench::depuisLeDepart());
    if (arbre.model()->rowCount() == 0) throw std::runtime_error("the tree shows no film");
    bench::laisseFinir();
    if (filtre) {
        choisit(controle<QComboBox>(fenetre, "ChoixZone"), kToutesLesFiches, guetteur);
        mesureFiltre(fenetre, guetteur, static_cast<double>(films(*arbre.model()).size()));
        bench::declare("memoire", bench::memoireDePointe());
        return;
    }
    bench::Veille veille;
    mesureChoix(fenetre, guetteur);
    bench::declare("sourde", veille.pire());
    if (clics > 0) mesureClics(fenetre, arbre, clics);
    if (clics > 0) mesureVisionneuse(fenetre, arbre, dossier, clics);
    bench::declare("memoire", bench::memoireDePointe());
}

}  // namespace

int main(int nombre, char** mots) try {
    systeme::gardeLesGrandsBlocsAPart();  // as the program does
    QApplication application(nombre, mots);
    QApplication::setApplicationName(QStringLiteral("Ambrelis"));
    if (nombre < 2) throw std::invalid_argument("usage: mesure_fenetre DOSSIER [CLICS | filtre]");
    const std::string quoi = nombre > 2 ? mots[2] : "0";
    const bool filtre = quoi == "filtre";
    mesure(std::string(mots[1]) + "/", filtre ? 0 : std::stoul(quoi), filtre);
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_fenetre: " << e.what() << '\n';
    return 1;
}
