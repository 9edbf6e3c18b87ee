#include "ui/PanneauCollection.h"

#include "app/Collection.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"
#include "ui/PageCeSoir.h"
#include "ui/PageDoublons.h"
#include "ui/PagePrets.h"
#include "ui/PageSante.h"
#include "ui/PageStatistiques.h"
#include "ui/SuiviDuFocus.h"
#include "util/Tables.h"

#include <QStackedWidget>
#include <array>

namespace ui {

namespace {

template <typename Page>
PageCollection* construit(const Atelier& atelier) {
    return new Page(atelier);
}

struct Onglet {
    app::PageDeCollection page;
    const char *nom, *texte, *infobulle;
    PageCollection* (*construit)(const Atelier&) = nullptr;  // nullptr: shown below, by the posters' own widget
};
using enum app::PageDeCollection;
constexpr std::array<Onglet, app::kPagesDeCollection> kOnglets{
    {{Affiches, "OngletAffiches", QT_TRANSLATE_NOOP("ui::PanneauCollection", "Affiches"),
      QT_TRANSLATE_NOOP("ui::PanneauCollection", "Les affiches des films de la liste")},
     {Prets, "OngletPrets", QT_TRANSLATE_NOOP("ui::PanneauCollection", "Prêts"),
      QT_TRANSLATE_NOOP("ui::PanneauCollection", "Qui a quel film, et qui attend quoi"), &construit<PagePrets>},
     {Statistiques, "OngletStatistiques", QT_TRANSLATE_NOOP("ui::PanneauCollection", "Statistiques"),
      QT_TRANSLATE_NOOP("ui::PanneauCollection", "Les films de la liste par genre, décennie, pays…"),
      &construit<PageStatistiques>},
     {Sante, "OngletSante", QT_TRANSLATE_NOOP("ui::PanneauCollection", "Santé"),
      QT_TRANSLATE_NOOP("ui::PanneauCollection", "Ce qui manque aux fiches, ce qui ne mène nulle part"),
      &construit<PageSante>},
     {Doublons, "OngletDoublons", QT_TRANSLATE_NOOP("ui::PanneauCollection", "Doublons"),
      QT_TRANSLATE_NOOP("ui::PanneauCollection", "Les films qui se ressemblent"), &construit<PageDoublons>},
     {CeSoir, "OngletCeSoir", QT_TRANSLATE_NOOP("ui::PanneauCollection", "Ce soir ?"),
      QT_TRANSLATE_NOOP("ui::PanneauCollection", "Un film à regarder parmi ceux que vous possédez"),
      &construit<PageCeSoir>}}};
static_assert(util::dansLOrdre(kOnglets, &Onglet::page, CeSoir));

}  // namespace

PanneauCollection::PanneauCollection(const Atelier& atelier, QWidget* parent)
    : QWidget(parent), m_atelier(atelier), m_pages(new QStackedWidget) {
    nomme(this, "frameCollection");
    seLitCommeGroupe(this, tr("Collection"));
    auto* barre = rangee({}, kSerre);
    for (const Onglet& onglet : kOnglets) {
        auto* boutonOnglet = bouton<BoutonOnglet>(onglet.nom, tr(onglet.texte), tr(onglet.infobulle));
        m_atelier.auClic(boutonOnglet, app::OngletCollection_Click, onglet.page);
        m_atelier.liaison.apresEcriture([boutonOnglet, page = onglet.page, &etat = m_atelier.etats().collection] {
            QFont police = boutonOnglet->font();
            police.setBold(etat.page == page);
            boutonOnglet->setFont(police);
        });
        barre->addWidget(m_dernierOnglet = boutonOnglet);
    }
    barre->addStretch();
    auto* boite = colonne(kSerre);
    boite->setContentsMargins(0, kPetit, 0, 0);
    boite->addWidget(listeDOnglets(barre, tr("Pages de la collection")));
    boite->addWidget(m_pages, 1);
    setLayout(boite);
    atelier.liaison.lie(atelier.etats().panneaux.frameCollection, this);
    atelier.liaison.apresEcriture([this] { suis(); });
    connect(&atelier.commande, &Commande::terminee, this, [this] {
        if (PageCollection* montree = page(); montree && isVisible()) montree->suis();
    });
}

void PanneauCollection::suis() {
    if (!m_atelier.etats().panneaux.frameCollection.Visible) return;
    PageCollection* montree = page();
    if (montree) m_pages->setCurrentWidget(montree);
    m_pages->setVisible(montree != nullptr);
    setSizePolicy(QSizePolicy::Preferred, montree ? QSizePolicy::Expanding : QSizePolicy::Fixed);
}

PageCollection* PanneauCollection::page() {
    const app::PageDeCollection voulue = m_atelier.etats().collection.page;
    PageCollection*& place = m_construites.at(static_cast<std::size_t>(voulue));
    const Onglet& onglet = kOnglets.at(static_cast<std::size_t>(voulue));
    if (place || !onglet.construit) return place;
    place = onglet.construit(m_atelier);
    m_pages->addWidget(place);
    suisAuClavier(m_dernierOnglet, *place);
    return place;
}

}  // namespace ui
