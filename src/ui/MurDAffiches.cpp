#include "ui/MurDAffiches.h"

#include "ui/Interface.h"
#include "ui/ModeleMur.h"
#include "ui/PlaceDuMur.h"

#include <QCryptographicHash>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>
#include <utility>

namespace ui {

namespace {

constexpr int kPendantUneCommande = 50;  // milliseconds until the next try
constexpr qint64 kLectureDAffilee = 4;   // milliseconds that reading may take between two events
constexpr qsizetype kCaracteresMontres = 200;
constexpr qsizetype kOctetsDAvance = ChargeurAffiches::kOctetsMax / 4 * 3;  // of what is wanted all together

QString texteDe(std::string_view texte) {
    constexpr std::size_t kOctetsMontres = 4 * kCaracteresMontres;  // laying out megabytes would hold the window
    return QString::fromUtf8(texte.data(), static_cast<qsizetype>(std::min(texte.size(), kOctetsMontres)))
        .left(kCaracteresMontres)
        .trimmed();
}

}  // namespace

MurDAffiches::MurDAffiches(const Atelier& atelier, QWidget* parent)
    : QListView(parent), m_atelier(atelier), m_modele(new ModeleMur(*this)), m_niveau(-1) {
    setModel(m_modele);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setAutoScroll(false);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setBackgroundRole(QPalette::Window);
    m_suite.setSingleShot(true);
    connect(&m_suite, &QTimer::timeout, this, &MurDAffiches::avance);
    connect(&m_chargeur, &ChargeurAffiches::arrivee, this, [this](const QByteArray& film) {
        repeins(film);
        if (!m_suite.isActive()) m_suite.start(0);
    });
    for (const auto& [touches, pas] : {std::pair(QKeySequence::ZoomIn, 1), std::pair(QKeySequence::ZoomOut, -1)})
        connect(new QShortcut(touches, this), &QShortcut::activated, this, [this, pas = pas] { changeTaille(pas); });
    connect(new QShortcut(Qt::CTRL | Qt::Key_Equal, this), &QShortcut::activated, this, [this] { changeTaille(1); });
    connect(new QShortcut(Qt::CTRL | Qt::Key_0, this), &QShortcut::activated, this, &MurDAffiches::tailleParDefaut);
}

MurDAffiches::~MurDAffiches() = default;

Interface& MurDAffiches::interface() {
    if (!m_interface)
        m_interface = std::make_unique<Interface>(
            m_atelier.session.regarde([](const app::Contexte& c) { return c.chemins.dossier; }));
    return *m_interface;
}

void MurDAffiches::montre(ensemble::Mur mur, bool gardeSaPlace) {
    const int courante = currentIndex().row(), defilement = verticalOffset();
    m_modele->commence();
    m_mur = std::move(mur);
    m_generation = arbre().generation();
    m_legendes.clear();
    m_entetes.clear();
    m_modele->finis();
    pose();
    if (gardeSaPlace && courante >= 0)
        setCurrentIndex(m_modele->index(std::min(courante, m_modele->rowCount() - 1), 0));
    verticalScrollBar()->setValue(gardeSaPlace ? defilement : 0);
    lisLaPage();
    reprends();
}

void MurDAffiches::perime() {
    m_chargeur.perime();
    m_legendes.clear();
    lisLaPage();
    viewport()->update();
    reprends();
}

const browse::Arbre& MurDAffiches::arbre() const {
    return m_atelier.etats().liste.TreeView1.Nodes;
}

bool MurDAffiches::estDeLArbre() const {
    return m_generation == arbre().generation();
}

int MurDAffiches::noeud(int tuile) const {
    return m_mur.noeud(arbre(), tuile);
}

// One that was seen stays known while the tree is another already.
const MurDAffiches::Entete& MurDAffiches::entete(std::size_t section) {
    const auto connue = m_entetes.find(section);
    if (connue != m_entetes.end() || !estDeLArbre()) return connue != m_entetes.end() ? connue->second : m_sansEntete;
    return m_entetes[section] = {texteDe(m_mur.titre(arbre(), section)), texteDe(m_mur.precision(section))};
}

QString MurDAffiches::titre(int tuile) const {
    if (const Legende* connue = legende(tuile)) return connue->titre;
    if (const ensemble::FilmDuMur* film = m_mur.film(tuile)) return texteDe(film->film.titre);
    return estDeLArbre() ? texteDe(arbre().Text(noeud(tuile))) : QString();
}

// Asked for tiles that were not in sight too.
QString MurDAffiches::nom(int tuile) const {
    const Legende* connue = legende(tuile);
    if (!connue && peutLire()) connue = &const_cast<MurDAffiches*>(this)->legendeLue(tuile);
    if (!connue) return titre(tuile);
    const std::string film = ensemble::nomDuFilm(connue->titre.toStdString(), connue->realisateur.toStdString(),
                                                 connue->annee.toStdString());
    const std::string marquee = browse::texteDesMarques(marques(tuile));
    return QString::fromStdString(marquee.empty() ? film : film + ", " + marquee);
}

// Those of the listing's rows; of a film above it its line tells.
browse::MarquesFilm MurDAffiches::marques(int tuile) const {
    if (m_mur.film(tuile) || !peutLire()) return {};
    return m_atelier.session.regarde(browse::marquesDuNoeud, noeud(tuile));
}

// While a command runs the base is its own, and a tree that was filled anew has other nodes.
bool MurDAffiches::peutLire() const {
    return !m_atelier.commande.enCours() && !m_atelier.commande.finie() && estDeLArbre();
}

const MurDAffiches::Legende* MurDAffiches::legende(int tuile) const {
    const auto trouvee = m_legendes.find(tuile);
    return trouvee == m_legendes.end() ? nullptr : &trouvee->second;
}

const MurDAffiches::Legende& MurDAffiches::legendeLue(int tuile) {
    if (const Legende* connue = legende(tuile)) return *connue;
    std::string titre, realisateur, annee;
    if (const ensemble::FilmDuMur* duDessus = m_mur.film(tuile)) {
        titre = duDessus->film.titre, realisateur = duDessus->film.realisateur, annee = duDessus->annee;
    } else {
        titre = arbre().Text(noeud(tuile));
        auto lue = m_atelier.session.regarde(browse::legendeDuNoeud, noeud(tuile));
        realisateur = std::move(lue.realisateur), annee = std::move(lue.annee);
    }
    const QByteArray film = QByteArray::fromStdString(titre + '\0' + realisateur);
    return m_legendes[tuile] = {texteDe(titre), texteDe(realisateur), texteDe(annee),
                                QCryptographicHash::hash(film, QCryptographicHash::Sha1)};
}

bool MurDAffiches::aUneAffiche(int tuile) const {
    const Legende* connue = legende(tuile);
    const QPixmap* image = connue ? m_chargeur.affiche(connue->film) : nullptr;
    return image && !image->isNull();
}

// ---- what is wanted, and read

QSize MurDAffiches::tailleDesAffiches() const {
    return QSize(m_plan.largeurDeTuile(), m_plan.largeurDeTuile() * 3 / 2) * devicePixelRatio();
}

void MurDAffiches::reprends(int apres) {
    const int haut = verticalOffset(), bas = haut + viewport()->height();
    m_voulues = m_plan.voulues(haut, bas, m_versLeBas);
    m_enVue = m_plan.enVue(haut, bas);
    const QSize taille = tailleDesAffiches();
    const auto auPlus = static_cast<std::size_t>(kOctetsDAvance / std::max(1, 4 * taille.width() * taille.height()));
    m_voulues.resize(std::min(m_voulues.size(), std::max(m_enVue, auPlus)));
    m_rang = 0;
    if (isVisible() && !m_suite.isActive()) m_suite.start(apres);
}

bool MurDAffiches::estComplet() const {
    const auto enVue = m_voulues.begin() + static_cast<std::ptrdiff_t>(m_enVue);
    return std::all_of(m_voulues.begin(), enVue, [&](int tuile) {
        const Legende* connue = legende(tuile);
        return connue && m_chargeur.estAJour(connue->film, tailleDesAffiches());
    });
}

// The captions of the tiles in sight, so that they are painted with the posters that are known.
void MurDAffiches::lisLaPage() {
    if (!isVisible() || !peutLire()) return;
    const int haut = verticalOffset();
    m_plan.parcours(
        haut, haut + viewport()->height(), [](std::size_t) {}, [this](int tuile) { legendeLue(tuile); });
}

void MurDAffiches::avance() {
    if (!isVisible()) return;
    if (!peutLire()) return m_suite.start(kPendantUneCommande);
    QElapsedTimer duree;
    duree.start();
    while (m_chargeur.peutPrendre() && duree.elapsed() < kLectureDAffilee)
        if (!lisProchaine()) return;
    if (m_chargeur.peutPrendre()) m_suite.start(0);  // else an arrival goes on
}

// False once nothing is wanted any more.
bool MurDAffiches::lisProchaine() {
    if (m_rang >= m_voulues.size()) return false;
    const int tuile = m_voulues[m_rang++];
    const QByteArray film = legendeLue(tuile).film;
    if (m_chargeur.estAJour(film, tailleDesAffiches()) || m_chargeur.prendDeja(film)) return true;
    const ensemble::FilmDuMur* duDessus = m_mur.film(tuile);
    // The first one that is looked for makes the index of all films.
    m_atelier.commande.lis([&] {
        auto source = m_atelier.session.regarde([&](const app::Contexte& c) {
            return duDessus ? browse::sourceDuFilm(c, duDessus->film) : browse::sourceDuNoeud(c, noeud(tuile));
        });
        m_chargeur.prends(film, std::move(source), tailleDesAffiches());
    });
    return true;
}

void MurDAffiches::repeins(const QByteArray& film) {
    const int haut = verticalOffset();
    m_plan.parcours(
        haut, haut + viewport()->height(), [](std::size_t) {},
        [&](int tuile) {
            const Legende* connue = legende(tuile);
            if (connue && connue->film == film) viewport()->update(rectDuMur(m_plan.place(tuile), haut));
        });
}

}  // namespace ui
