#include "ui/MurDAffiches.h"

#include "ui/Couleurs.h"
#include "ui/DessinDeTuile.h"
#include "ui/Interface.h"
#include "ui/ModeleMur.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QCryptographicHash>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <array>
#include <utility>

namespace ui {

namespace {

constexpr std::array kLargeurs{84, 104, 128, 156, 190, 230, 280, 340};  // that tiles are wished to have
constexpr int kNiveauParDefaut = 2;
constexpr int kEspace = 14, kSousLAffiche = 6;
constexpr int kReposDeLaTaille = 150;    // milliseconds after which posters are decoded at a new size
constexpr int kPendantUneCommande = 50;  // milliseconds until the next try
constexpr qint64 kLectureDAffilee = 4;   // milliseconds that reading may take between two events
constexpr qint64 kEntreDeuxLettres = 1500;
constexpr qsizetype kCaracteresMontres = 200;
constexpr qsizetype kOctetsDAvance = ChargeurAffiches::kOctetsMax / 4 * 3;  // of what is wanted all together

QString texteDe(std::string_view texte) {
    constexpr std::size_t kOctetsMontres = 4 * kCaracteresMontres;  // laying out megabytes would hold the window
    return QString::fromUtf8(texte.data(), static_cast<qsizetype>(std::min(texte.size(), kOctetsMontres)))
        .left(kCaracteresMontres)
        .trimmed();
}

QRect rectDe(const ensemble::PlanDuMur::Place& place, int defilement) {
    return {place.x + MurDAffiches::kAuBord, place.y - defilement, place.largeur, place.hauteur};
}

QFont policeDEntete(const QFont& police) {
    QFont grasse = police;
    grasse.setPointSizeF(police.pointSizeF() * 1.15);
    grasse.setWeight(QFont::DemiBold);
    return grasse;
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

// ---- what it shows

void MurDAffiches::montre(ensemble::Mur mur, bool gardeSaPlace) {
    const int courante = currentIndex().row(), defilement = verticalOffset();
    m_modele->commence();
    m_mur = std::move(mur);
    m_generation = m_atelier.etats().liste.TreeView1.Nodes.generation();
    m_legendes.clear();
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

bool MurDAffiches::estDeLArbre() const {
    return m_generation == m_atelier.etats().liste.TreeView1.Nodes.generation();
}

QString MurDAffiches::titre(int tuile) const {
    if (const Legende* connue = legende(tuile)) return connue->titre;
    const auto& voulue = m_mur.tuiles[static_cast<std::size_t>(tuile)];
    if (voulue.film >= 0) return texteDe(m_mur.films[static_cast<std::size_t>(voulue.film)].film.titre);
    return estDeLArbre() ? texteDe(m_atelier.etats().liste.TreeView1.Nodes.Text(voulue.noeud)) : QString();
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
    const auto& voulue = m_mur.tuiles[static_cast<std::size_t>(tuile)];
    if (voulue.film >= 0 || !peutLire()) return {};
    return m_atelier.session.regarde(browse::marquesDuNoeud, voulue.noeud);
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
    const auto& voulue = m_mur.tuiles[static_cast<std::size_t>(tuile)];
    std::string titre, realisateur, annee;
    if (voulue.film >= 0) {
        const ensemble::FilmDuMur& film = m_mur.films[static_cast<std::size_t>(voulue.film)];
        titre = film.film.titre, realisateur = film.film.realisateur, annee = film.annee;
    } else {
        titre = m_atelier.etats().liste.TreeView1.Nodes.Text(voulue.noeud);
        auto lue = m_atelier.session.regarde(browse::legendeDuNoeud, voulue.noeud);
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
    const auto voulue = m_mur.tuiles[static_cast<std::size_t>(tuile)];
    // The first one that is looked for makes the index of all films.
    m_atelier.commande.lis([&] {
        auto source = m_atelier.session.regarde([&](const app::Contexte& c) {
            if (voulue.film < 0) return browse::sourceDuNoeud(c, voulue.noeud);
            return browse::sourceDuFilm(c, m_mur.films[static_cast<std::size_t>(voulue.film)].film);
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
            if (connue && connue->film == film) viewport()->update(rectDe(m_plan.place(tuile), haut));
        });
}

// ---- where it stands

ensemble::PlanDuMur::Mesures MurDAffiches::mesures(int niveau) const {
    const int barre = verticalScrollBar()->sizeHint().width();
    return {.largeur = width() - barre - 2 * kAuBord,
            .tuile = kLargeurs.at(static_cast<std::size_t>(std::max(0, niveau))),
            .sousLAffiche = kSousLAffiche + fontMetrics().height(),
            .espace = kEspace,
            .entete = QFontMetrics(policeDEntete(font())).height() + kEspace};
}

void MurDAffiches::pose() {
    std::vector<ensemble::PlanDuMur::Section> sections;
    sections.reserve(m_mur.sections.size());
    for (const auto& section : m_mur.sections)
        sections.push_back({section.nombre, !section.titre.empty(), section.uneLigne});
    m_plan = {sections, mesures(m_niveau)};
    updateGeometries();
    viewport()->update();
}

void MurDAffiches::updateGeometries() {
    verticalScrollBar()->setSingleStep(std::max(20, m_plan.hauteurDeLigne() / 3));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, m_plan.hauteur() - viewport()->height()));
}

void MurDAffiches::doItemsLayout() {
    QAbstractItemView::doItemsLayout();
}

int MurDAffiches::premiereEnVue() const {
    int premiere = -1;
    const int haut = verticalOffset();
    m_plan.parcours(
        haut, haut + viewport()->height(), [](std::size_t) {},
        [&](int tuile) {
            if (premiere < 0) premiere = tuile;
        });
    return premiere;
}

// The tile stays where it was, so that another width or size loses nobody's place.
void MurDAffiches::replace(int ancre, int hauteurDeLAncre) {
    pose();
    if (ancre >= 0) verticalScrollBar()->setValue(m_plan.place(ancre).y - hauteurDeLAncre);
    reprends(kReposDeLaTaille);
}

void MurDAffiches::resizeEvent(QResizeEvent* evenement) {
    const int ancre = verticalOffset() == 0 ? -1 : premiereEnVue();
    const int hauteur = m_plan.place(ancre).y - verticalOffset();
    QAbstractItemView::resizeEvent(evenement);
    replace(ancre, hauteur);
}

void MurDAffiches::showEvent(QShowEvent* evenement) {
    QListView::showEvent(evenement);
    if (m_niveau < 0) {
        m_niveau = kNiveauParDefaut;
        const int largeur = interface().nombre(QStringLiteral("Affiches/Largeur"), kLargeurs[kNiveauParDefaut],
                                               kLargeurs.front(), kLargeurs.back());
        while (m_niveau > 0 && kLargeurs.at(static_cast<std::size_t>(m_niveau)) > largeur)
            --m_niveau;
        while (m_niveau + 1 < static_cast<int>(kLargeurs.size()) &&
               kLargeurs.at(static_cast<std::size_t>(m_niveau + 1)) <= largeur)
            ++m_niveau;
        pose();
    }
    lisLaPage();
    reprends();
}

void MurDAffiches::changeEvent(QEvent* evenement) {
    QListView::changeEvent(evenement);
    if (evenement->type() == QEvent::FontChange || evenement->type() == QEvent::StyleChange) pose();
    if (evenement->type() == QEvent::PaletteChange) viewport()->update();
}

void MurDAffiches::metNiveau(int niveau, std::optional<QPoint> sous) {
    niveau = std::clamp(niveau, 0, static_cast<int>(kLargeurs.size()) - 1);
    if (niveau == m_niveau) return;
    int ancre = sous ? indexAt(*sous).row() : currentIndex().row();
    if (ancre < 0 || !visualRect(m_modele->index(ancre, 0)).intersects(viewport()->rect())) ancre = premiereEnVue();
    const int hauteur = verticalOffset() == 0 && !sous ? 0 : m_plan.place(ancre).y - verticalOffset();
    m_niveau = niveau;
    interface().note(QStringLiteral("Affiches/Largeur"), kLargeurs.at(static_cast<std::size_t>(niveau)));
    replace(verticalOffset() == 0 && !sous ? -1 : ancre, hauteur);
}

// Tiles fill their line: a size at which they would be as wide as they are is passed over.
void MurDAffiches::changeTaille(int pas, std::optional<QPoint> sous) {
    int niveau = m_niveau + pas;
    const auto memeLargeur = [this](int autre) {
        return ensemble::PlanDuMur({}, mesures(autre)).largeurDeTuile() == m_plan.largeurDeTuile();
    };
    while (niveau > 0 && niveau + 1 < static_cast<int>(kLargeurs.size()) && memeLargeur(niveau))
        niveau += pas;
    metNiveau(niveau, sous);
}

void MurDAffiches::tailleParDefaut() {
    metNiveau(kNiveauParDefaut);
}

int MurDAffiches::verticalOffset() const {
    return verticalScrollBar()->value();
}

bool MurDAffiches::isIndexHidden(const QModelIndex& index) const {
    return m_plan.place(index.row()).largeur == 0;
}

QRect MurDAffiches::visualRect(const QModelIndex& index) const {
    return index.isValid() ? rectDe(m_plan.place(index.row()), verticalOffset()) : QRect();
}

QRegion MurDAffiches::visualRegionForSelection(const QItemSelection& choix) const {
    QRegion region;
    for (const QModelIndex& index : choix.indexes())
        region += visualRect(index).adjusted(-kAuBord, -kAuBord, kAuBord, kAuBord);
    return region;
}

QModelIndex MurDAffiches::indexAt(const QPoint& point) const {
    const int tuile = m_plan.tuileA(point.x() - kAuBord, point.y() + verticalOffset());
    return tuile < 0 ? QModelIndex() : m_modele->index(tuile, 0);
}

// With the heading of a section's first line.
void MurDAffiches::scrollTo(const QModelIndex& index, ScrollHint hint) {
    const ensemble::PlanDuMur::Place place = m_plan.place(index.row());
    if (place.largeur == 0) return;
    const int page = viewport()->height(), haut = verticalOffset();
    const int dessus = place.y - kEspace - QFontMetrics(policeDEntete(font())).height();
    if (hint == PositionAtCenter)
        verticalScrollBar()->setValue(place.y + place.hauteur / 2 - page / 2);
    else if (dessus < haut || hint == PositionAtTop)
        verticalScrollBar()->setValue(dessus);
    else if (place.y + place.hauteur + kAuBord > haut + page)
        verticalScrollBar()->setValue(std::min(dessus, place.y + place.hauteur + kAuBord - page));
}

void MurDAffiches::scrollContentsBy(int, int dy) {
    m_versLeBas = dy <= 0;
    lisLaPage();
    viewport()->scroll(0, dy);
    reprends();
}

// ---- painting

void MurDAffiches::paintEvent(QPaintEvent* evenement) {
    QPainter peintre(viewport());
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect zone = evenement->rect().adjusted(0, -kAuBord, 0, kAuBord);
    m_plan.parcours(
        zone.top() + verticalOffset(), zone.bottom() + 1 + verticalOffset(),
        [&](std::size_t section) { peintEntete(peintre, section); }, [&](int tuile) { peintTuile(peintre, tuile); });
}

void MurDAffiches::peintEntete(QPainter& peintre, std::size_t section) const {
    const QRect place = rectDe(m_plan.placeDeLEntete(section), verticalOffset());
    const auto& voulue = m_mur.sections[section];
    const QFont police = policeDEntete(font());
    const QFontMetrics mesure(police);
    const QString titre = mesure.elidedText(texteDe(voulue.titre), Qt::ElideRight, place.width());
    peintre.setFont(police);
    peintre.setPen(palette().color(QPalette::WindowText));
    peintre.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, titre);
    const int apres = mesure.horizontalAdvance(titre) + kEspace;
    const int ligne = place.y() + (place.height() - mesure.height()) / 2 + mesure.ascent();
    peintre.setFont(font());
    peintre.setPen(texteDiscret(palette()));
    peintre.drawText(QPoint(place.x() + apres, ligne),
                     fontMetrics().elidedText(texteDe(voulue.precision), Qt::ElideRight, place.width() - apres));
}

void MurDAffiches::peintTuile(QPainter& peintre, int tuile) const {
    const QRect entiere = rectDe(m_plan.place(tuile), verticalOffset());
    TuileDessinee dessinee;
    dessinee.titre = titre(tuile);
    dessinee.marques = marques(tuile);
    if (const Legende* connue = legende(tuile)) {
        dessinee.image = m_chargeur.affiche(connue->film);
        dessinee.realisateur = connue->realisateur, dessinee.annee = connue->annee;
    }
    dessinee.courante = hasFocus() && currentIndex().row() == tuile;
    dessinee.survolee = viewport()->underMouse() && entiere.contains(viewport()->mapFromGlobal(QCursor::pos()));
    dessineTuile(peintre, entiere, dessinee, *this);
}

// ---- gestures

QModelIndex MurDAffiches::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    using enum ensemble::PlanDuMur::Pas;
    static constexpr std::array kPas{std::pair(MoveUp, Haut),         std::pair(MoveDown, Bas),
                                     std::pair(MoveLeft, Gauche),     std::pair(MoveRight, Droite),
                                     std::pair(MoveHome, Debut),      std::pair(MoveEnd, Fin),
                                     std::pair(MovePageUp, PageHaut), std::pair(MovePageDown, PageBas),
                                     std::pair(MoveNext, Droite),     std::pair(MovePrevious, Gauche)};
    const auto* pas = std::find_if(kPas.begin(), kPas.end(), [&](const auto& p) { return p.first == action; });
    const int la = m_plan.deplace(currentIndex().row(), pas->second, viewport()->height());
    return la < 0 ? QModelIndex() : m_modele->index(la, 0);
}

void MurDAffiches::currentChanged(const QModelIndex& courant, const QModelIndex& precedent) {
    QAbstractItemView::currentChanged(courant, precedent);
    for (const QModelIndex& index : {courant, precedent})
        viewport()->update(visualRect(index).adjusted(-kAuBord, -kAuBord, kAuBord, kAuBord));
    if (!courant.isValid() || !hasFocus() || !QAccessible::isActive()) return;
    QAccessibleEvent evenement(this, QAccessible::Focus);
    evenement.setChild(courant.row());
    QAccessible::updateAccessibility(&evenement);
}

bool MurDAffiches::frappeEnCours() const {
    return !m_frappe.isEmpty() && m_depuisLaFrappe.isValid() && m_depuisLaFrappe.elapsed() < kEntreDeuxLettres;
}

// As in the title list: the same letter again goes from one title to the next.
void MurDAffiches::keyboardSearch(const QString& texte) {
    if (!frappeEnCours()) m_frappe.clear();
    if (m_frappe.isEmpty() && texte.trimmed().isEmpty()) return;
    m_frappe += texte.toCaseFolded();
    m_depuisLaFrappe.start();
    if (!estDeLArbre()) return;
    const bool memeLettre = m_frappe.count(m_frappe.left(1)) == m_frappe.size();
    const QString frappe = memeLettre ? m_frappe.left(1) : m_frappe;
    const int depuis = currentIndex().row() + (frappe.size() == 1 ? 1 : 0);
    const int trouvee =
        ensemble::tuileQuiCommencePar(m_mur, m_atelier.etats().liste.TreeView1.Nodes, frappe.toStdString(), depuis);
    if (trouvee < 0) return;
    setCurrentIndex(m_modele->index(trouvee, 0));
    scrollTo(currentIndex());
}

void MurDAffiches::keyPressEvent(QKeyEvent* evenement) {
    const int touche = evenement->key();
    if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
        if (currentIndex().isValid()) emit choisie(currentIndex().row());
        return;
    }
    if (touche == Qt::Key_Space && !(evenement->modifiers() & ~Qt::ShiftModifier)) {
        if (frappeEnCours())
            keyboardSearch(QStringLiteral(" "));
        else if (currentIndex().isValid())
            emit choisie(currentIndex().row());
        return;
    }
    const QModelIndex avant = currentIndex();
    QAbstractItemView::keyPressEvent(evenement);
    if (currentIndex() == avant) return;
    if (evenement->text().isEmpty() || !evenement->text().front().isPrint()) m_frappe.clear();
    scrollTo(currentIndex());
}

void MurDAffiches::wheelEvent(QWheelEvent* evenement) {
    if (!(evenement->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(evenement);
    if (const int cran = evenement->angleDelta().y(); cran != 0)
        changeTaille(cran > 0 ? 1 : -1, evenement->position().toPoint());
    evenement->accept();
}

void MurDAffiches::mousePressEvent(QMouseEvent* evenement) {
    const QModelIndex index = indexAt(evenement->position().toPoint());
    m_pressee = index.row();
    if (index.isValid()) setCurrentIndex(index);
}

void MurDAffiches::mouseMoveEvent(QMouseEvent* evenement) {
    viewport()->setCursor(indexAt(evenement->position().toPoint()).isValid() ? Qt::PointingHandCursor
                                                                             : Qt::ArrowCursor);
}

void MurDAffiches::mouseReleaseEvent(QMouseEvent* evenement) {
    const int tuile = indexAt(evenement->position().toPoint()).row();
    if (tuile < 0 || std::exchange(m_pressee, -1) != tuile) return;
    if (evenement->button() == Qt::LeftButton) emit choisie(tuile);
    if (evenement->button() == Qt::RightButton) emit menuDemande(tuile, evenement->globalPosition().toPoint());
}

// The mouse asks for its menu when it is released; only the keyboard does it here.
void MurDAffiches::contextMenuEvent(QContextMenuEvent* evenement) {
    evenement->accept();
    if (evenement->reason() == QContextMenuEvent::Mouse || !currentIndex().isValid()) return;
    scrollTo(currentIndex());
    emit menuDemande(currentIndex().row(), viewport()->mapToGlobal(visualRect(currentIndex()).center()));
}

}  // namespace ui
