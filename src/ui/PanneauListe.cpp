#include "ui/PanneauListe.h"

#include "app/Commandes.h"
#include "browse/AfficheTitres.h"
#include "browse/ChoixTri.h"
#include "browse/ChoixZone.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"

#include <QVBoxLayout>

namespace ui {

PanneauListe::PanneauListe(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_atelier(atelier) {
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kMoyen, 0, kMoyen);
    boite->setSpacing(kMoyen);
    boite->addLayout(choix());
    boite->addWidget(cadreTitres(), 1);
    boite->addLayout(comptes());
    suisLesGestes();
}

QLayout* PanneauListe::choix() {
    auto& liste = m_atelier.etats().liste;
    auto* zone = nomme(new ListeDeroulante, "ChoixZone");
    auto* tri = nomme(new ListeDeroulante, "ChoixTri");
    auto* statistiques = nomme(new CaseRepliee(tr("Afficher des &statistiques lors du tri par catégorie")), "AffStats");
    zone->setToolTip(tr("Les films à montrer"));
    tri->setToolTip(tr("L'ordre des films et leur classement dans la liste"));
    statistiques->setToolTip(tr("Ajoute à chaque catégorie la part des films qu'elle contient"));
    for (QComboBox* choix : {zone, tri})
        choix->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_atelier.liaison.lie(liste.ChoixZone, zone);
    m_atelier.liaison.lie(liste.ChoixTri, tri);
    m_atelier.liaison.lie(liste.AffStats, statistiques);

    connect(zone, &ListeDeroulante::vaSOuvrir, this, m_atelier.reponse(browse::ChoixZone_DropDown));
    connect(zone, &ListeDeroulante::sEstFermee, this, [this] {
        const auto& etat = m_atelier.etats().liste;
        if (etat.ChoixZone.ListIndex != etat.zoneDeLArbre) m_atelier.execute(browse::ChoixZone_CloseUp);
    });
    connect(zone, &QComboBox::activated, this, m_atelier.reponse(browse::ChoixZone_Click));
    connect(tri, &QComboBox::activated, this, m_atelier.reponse(browse::ChoixTri_Click));
    m_atelier.auClic(statistiques, browse::AffStats_Click);

    auto* boite = colonne();
    boite->addLayout(champ(tr("&Zone"), zone));
    boite->addLayout(champ(tr("&Tri"), tri));
    boite->addSpacing(kSerre);
    boite->addWidget(statistiques);
    return boite;
}

QWidget* PanneauListe::cadreTitres() {
    auto& liste = m_atelier.etats().liste;
    auto* cadre = nomme(new QWidget, "Frame1");
    auto* titre = (new Etiquette)->avecPolice(1.08, QFont::DemiBold);
    connect(cadre, &QWidget::windowTitleChanged, titre, &QLabel::setText);
    m_titres = nomme(new VueTitres(liste.TreeView1), "TreeView1", tr("Liste des titres"));
    auto* boite = colonne();
    boite->addWidget(titre);
    boite->addWidget(m_titres, 1);
    cadre->setLayout(boite);
    m_atelier.liaison.lie(liste.Frame1, cadre);
    m_atelier.liaison.ajoute(m_titres->lien(liste));
    return cadre;
}

QLayout* PanneauListe::comptes() {
    auto& liste = m_atelier.etats().liste;
    auto* titres = nomme((new Etiquette)->avecTon(Ton::Discret), "Label9", 0);
    auto* personnels = nomme((new Etiquette)->avecTon(Ton::Discret), "Label9", 1);
    titres->setToolTip(tr("Nombre de films du catalogue"));
    personnels->setToolTip(tr("Nombre de films que vous possédez"));
    m_atelier.liaison.lie(liste.Label9[0], titres);
    m_atelier.liaison.lie(liste.Label9[1], personnels);
    auto* boite = rangee({titres}, kGrand);
    boite->addStretch();
    boite->addWidget(personnels);
    return boite;
}

void PanneauListe::suisLesGestes() {
    connect(m_titres, &VueTitres::noeudChoisi, this,
            [this](int indice) { m_atelier.execute(app::TreeView1_NodeClick, indice); });
    connect(&m_titres->modele(), &ModeleArbre::coche, this, [this](int indice, bool cochee) {
        m_atelier.commande.execute([=, this] {
            auto& coches = m_atelier.etats().liste.TreeView1.coches;
            cochee ? static_cast<void>(coches.insert(indice)) : static_cast<void>(coches.erase(indice));
            m_atelier.session.execute(app::TreeView1_NodeCheck, indice, cochee);
        });
    });
}

}  // namespace ui
