#include "ui/PlaceDuMur.h"

#include "ui/Interface.h"
#include "ui/ModeleMur.h"

#include <QScrollBar>
#include <algorithm>
#include <array>

// Where the wall's tiles stand, how large they are, and how it is scrolled.
namespace ui {

namespace {

constexpr std::array kLargeurs{84, 104, 128, 156, 190, 230, 280, 340};  // that tiles are wished to have
constexpr int kNiveauParDefaut = 2;
constexpr int kSousLAffiche = 6;
constexpr int kReposDeLaTaille = 150;  // milliseconds after which posters are decoded at a new size

}  // namespace

ensemble::PlanDuMur::Mesures MurDAffiches::mesures(int niveau) const {
    const int barre = verticalScrollBar()->sizeHint().width();
    return {.largeur = width() - barre - 2 * kAuBord,
            .tuile = kLargeurs.at(static_cast<std::size_t>(std::max(0, niveau))),
            .sousLAffiche = kSousLAffiche + fontMetrics().height(),
            .espace = kEspaceDuMur,
            .entete = QFontMetrics(policeDEntete(font())).height() + kEspaceDuMur};
}

void MurDAffiches::pose() {
    std::vector<ensemble::PlanDuMur::Section> sections;
    sections.reserve(m_mur.sections.size());
    for (const auto& section : m_mur.sections)
        sections.push_back({section.nombre, section.entete, section.uneLigne});
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
    return index.isValid() ? rectDuMur(m_plan.place(index.row()), verticalOffset()) : QRect();
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
    const int dessus = place.y - kEspaceDuMur - QFontMetrics(policeDEntete(font())).height();
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

}  // namespace ui
