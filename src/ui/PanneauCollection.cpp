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

#include <QStackedWidget>
#include <functional>

namespace ui {

namespace {

template <typename Page>
PageCollection* construit(const Atelier& atelier) {
    return new Page(atelier);
}

struct Onglet {
    app::PageDeCollection page;
    const char* nom;
    QString texte;
    QString infobulle;
    PageCollection* (*construit)(const Atelier&) = nullptr;  // nullptr: shown below, by the posters' own widget
};

std::vector<Onglet> onglets() {
    using enum app::PageDeCollection;
    return {{Affiches, "OngletAffiches", PanneauCollection::tr("Affiches"),
             PanneauCollection::tr("Les affiches des films de la liste")},
            {Prets, "OngletPrets", PanneauCollection::tr("Prêts"),
             PanneauCollection::tr("Qui a quel film, et qui attend quoi"), &construit<PagePrets>},
            {Statistiques, "OngletStatistiques", PanneauCollection::tr("Statistiques"),
             PanneauCollection::tr("Les films de la liste par genre, décennie, pays…"), &construit<PageStatistiques>},
            {Sante, "OngletSante", PanneauCollection::tr("Santé"),
             PanneauCollection::tr("Ce qui manque aux fiches, ce qui ne mène nulle part"), &construit<PageSante>},
            {Doublons, "OngletDoublons", PanneauCollection::tr("Doublons"),
             PanneauCollection::tr("Les films qui se ressemblent"), &construit<PageDoublons>},
            {CeSoir, "OngletCeSoir", PanneauCollection::tr("Ce soir ?"),
             PanneauCollection::tr("Un film à regarder parmi ceux que vous possédez"), &construit<PageCeSoir>}};
}

}  // namespace

PanneauCollection::PanneauCollection(const Atelier& atelier, QWidget* parent)
    : QWidget(parent), m_atelier(atelier), m_pages(new QStackedWidget) {
    nomme(this, "frameCollection");
    seLitCommeGroupe(this, tr("Collection"));
    auto* barre = rangee({}, kSerre);
    for (const Onglet& onglet : onglets()) {
        auto* boutonOnglet = bouton<BoutonOnglet>(onglet.nom, onglet.texte, onglet.infobulle);
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
    if (place) return place;
    for (const Onglet& onglet : onglets()) {
        if (onglet.page != voulue || !onglet.construit) continue;
        place = onglet.construit(m_atelier);
        m_pages->addWidget(place);
        suisAuClavier(m_dernierOnglet, *place);
    }
    return place;
}

}  // namespace ui
