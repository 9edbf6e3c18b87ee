#include "ui/Comparaison.h"

#include "ui/Composition.h"
#include "ui/DelegueLignes.h"
#include "ui/Vignette.h"

#include <QHeaderView>
#include <QShortcut>
#include <QTreeView>
#include <algorithm>

namespace ui {

namespace {

constexpr int kLargeurMin = 56, kLargeurMax = 200;  // of a poster
constexpr int kReposDeLaTaille = 150;               // milliseconds after which posters are decoded at a new size

}  // namespace

Comparaison::Comparaison(QWidget* parent)
    : QWidget(parent),
      m_modele(new ModeleComparaison),
      m_champs(vueDeLignes("lstComparaison", tr("Les deux fiches, champ par champ"), m_modele)) {
    m_champs->header()->setStretchLastSection(false);
    m_champs->header()->setSectionResizeMode(ModeleComparaison::Champ, QHeaderView::ResizeToContents);
    for (const int valeur : {ModeleComparaison::Gauche, ModeleComparaison::Droite})
        m_champs->header()->setSectionResizeMode(valeur, QHeaderView::Stretch);
    connect(m_champs, &QAbstractItemView::clicked, m_modele, [this](const QModelIndex& index) {
        if (index.column() != ModeleComparaison::Champ)
            m_modele->choisit(index.row(), index.column() == ModeleComparaison::Droite);
    });
    auto* espace = new QShortcut(Qt::Key_Space, m_champs, nullptr, nullptr, Qt::WidgetShortcut);
    connect(espace, &QShortcut::activated, m_modele, [this] { m_modele->bascule(m_champs->currentIndex().row()); });
    auto* ligne = rangee({}, kMoyen);
    for (const bool droite : {false, true}) {
        auto* vignette = m_vignettes[droite] = nomme(new Vignette(this), "AfficheComparee", droite ? 1U : 0U);
        vignette->setFocusPolicy(Qt::ClickFocus);  // the buttons below do the same
        connect(vignette, &QAbstractButton::clicked, this, [this, droite] { emit demandee(droite); });
        ligne->addWidget(vignette, 0, Qt::AlignTop);
        if (!droite) ligne->addWidget(m_champs, 1);
    }
    setLayout(ligne);
    m_repos.setSingleShot(true);
    connect(&m_repos, &QTimer::timeout, this, &Comparaison::decode);
}

void Comparaison::metEnLecture(const QString& gauche, const QString& droite) {
    m_modele->metEnLecture(gauche, droite);
    m_champs->setAccessibleName(gauche.isEmpty() ? droite : tr("%1 et %2, champ par champ").arg(gauche, droite));
    m_champs->setColumnHidden(ModeleComparaison::Gauche, gauche.isEmpty());
    m_vignettes[0]->setVisible(!gauche.isEmpty());
    for (Vignette* vignette : m_vignettes)
        vignette->setFocusPolicy(Qt::NoFocus);
}

void Comparaison::montre(ensemble::PlanDeFusion plan, std::array<QByteArray, 2> affiches) {
    const int rang = m_champs->currentIndex().row();
    m_affiches = std::move(affiches);
    m_vignettes[0]->metTitre(QString::fromStdString(plan.gauche.titre));
    m_vignettes[1]->metTitre(QString::fromStdString(plan.droite.titre));
    m_modele->met(std::move(plan));
    m_champs->setCurrentIndex(m_modele->index(std::max(rang, 0), 0));
    decode();
}

void Comparaison::decode() {
    for (std::size_t i = 0; i < m_vignettes.size(); ++i)
        m_vignettes[i]->chargeAffiche(m_affiches[i]);
}

// The posters are as large as the place allows, the fields stay readable.
void Comparaison::resizeEvent(QResizeEvent*) {
    const int sousLAffiche = Vignette::hauteurPour(0, fontMetrics());
    const int largeur = std::clamp(std::min((height() - sousLAffiche) * 2 / 3, width() / 6), kLargeurMin, kLargeurMax);
    if (m_vignettes[0]->width() == largeur) return;
    for (Vignette* vignette : m_vignettes)
        vignette->setFixedSize(largeur, Vignette::hauteurPour(largeur, fontMetrics()));
    m_repos.start(kReposDeLaTaille);
}

}  // namespace ui
