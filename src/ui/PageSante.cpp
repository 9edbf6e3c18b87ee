#include "ui/PageSante.h"

#include "app/Collection.h"
#include "ui/Composition.h"
#include "ui/DelegueLignes.h"

#include <QHeaderView>
#include <QTreeView>

namespace ui {

PageSante::PageSante(const Atelier& atelier)
    : PageCollection(atelier, "PageSante", tr("Santé de la base"),
                     tr("Ce qui manque aux fiches et ce qui ne mène nulle part. Rien ne change sans vous ; ce qui peut "
                        "l'être est réparé d'un coup, et Ctrl+Z l'annule.")) {
    m_ligne = new LigneDExamen(
        "Examiner", {tr("E&xaminer"), tr("E&xaminer de nouveau"), tr("Lire toute la base, sans rien changer"),
                     tr("La base a changé depuis cet examen.")});
    m_invite = nomme((new Etiquette(tr("Rien n'est lu avant que vous le demandiez.\n\n« Examiner » cherche les fiches "
                                       "sans affiche, sans année, sans réalisateur ou sans résumé, les fichiers "
                                       "d'affiche et les fichiers joints qui manquent ou ne servent plus, les "
                                       "possessions sans fiche ou en double, et les titres à corriger.\n\nEntrée sur "
                                       "une ligne montre la fiche du film.")))
                         ->avecTon(Ton::Discret)
                         ->avecLignes(12),
                     "lblInviteSante");
    m_modele = new ModeleSante;
    m_vue = vueDeLignes("lstSante", tr("Constats de l'examen"), m_modele);
    m_vue->setRootIsDecorated(true);
    m_vue->header()->setStretchLastSection(false);
    for (const int colonne : {ModeleSante::Titre, ModeleSante::Detail})
        m_vue->header()->setSectionResizeMode(colonne, QHeaderView::Stretch);
    m_vue->header()->resizeSection(ModeleSante::Realisateur, 18 * m_vue->fontMetrics().averageCharWidth());
    contenu()->addWidget(m_ligne);
    contenu()->addWidget(m_invite);
    contenu()->addWidget(m_vue, 1);
    contenu()->addStretch();
    connect(m_ligne, &LigneDExamen::demande, this, &PageSante::examine);
    connect(m_vue, &QAbstractItemView::activated, this, &PageSante::active);
    montre(false);
}

// What another base was found to have leads nowhere in this one.
void PageSante::relis(const app::Contexte& c) {
    const BaseLue base = BaseLue::de(c);
    if (m_examinee && m_examinee->chemin != base.chemin) {
        m_modele->met(ensemble::Examen{});
        m_examinee.reset();
    }
    montre(m_examinee != base);
}

void PageSante::montre(bool perime) {
    m_invite->setVisible(!m_examinee);
    m_vue->setVisible(m_examinee.has_value());
    if (m_examinee)
        m_ligne->lu(m_modele->examen().bilan(), perime);
    else
        m_ligne->rienDeLu();
}

void PageSante::examine() {
    std::optional<ensemble::Examen> examen;
    atelier().execute([&](const app::Contexte& c) {
        examen = ensemble::examine(c);
        m_examinee = BaseLue::de(c);
    });
    if (!examen) return;
    m_modele->met(std::move(*examen));
    poseLesBoutons();
    montre(false);
    m_vue->setCurrentIndex(m_modele->index(0, 0));
}

// At the right of the kind's own row, and after the list for the Tab key.
void PageSante::poseLesBoutons() {
    QWidget* precedent = m_vue;
    for (int rang = 0; rang < m_modele->rowCount(); ++rang) {
        const QModelIndex genre = m_modele->index(rang, 0);
        const ensemble::Constat& constat = *m_modele->constat(genre);
        m_vue->setFirstColumnSpanned(rang, {}, true);
        m_vue->setIndexWidget(genre, nullptr);
        const QString texte = QString::fromStdString(constat.texteReparation());
        if (texte.isEmpty()) continue;
        auto* boutonReparer = nomme(new QPushButton(texte), "cmdReparer", static_cast<std::size_t>(constat.mal));
        boutonReparer->setAutoDefault(true);
        boutonReparer->setToolTip(tr("Réparer ce qui peut l'être (Ctrl+Z pour annuler)"));
        connect(boutonReparer, &QAbstractButton::clicked, this, [this, mal = constat.mal] { repare(mal); });
        auto* place = new QWidget;
        auto* boite = rangee({}, 0);
        boite->setContentsMargins(0, 2, kPetit, 2);
        boite->addStretch();
        boite->addWidget(boutonReparer);
        place->setLayout(boite);
        m_vue->setIndexWidget(genre, place);
        QWidget::setTabOrder(precedent, boutonReparer);
        precedent = boutonReparer;
    }
}

void PageSante::active(const QModelIndex& index) {
    const ensemble::LigneDeSante* ligne = m_modele->ligne(index);
    if (!ligne) return m_vue->setExpanded(index, !m_vue->isExpanded(index));
    atelier().execute([ligne = *ligne](const app::Contexte& c) {
        if (ligne.aUneFiche)
            app::montreLeFilm(c, ligne.film);
        else
            c.avis.montre(ligne.pourquoiSansFiche());
    });
}

void PageSante::repare(ensemble::Mal mal) {
    std::optional<ensemble::Constat> constat;
    atelier().execute([&](const app::Contexte& c) {
        ensemble::repare(c, mal);
        constat = ensemble::examine(c, mal);
    });
    if (!constat) return;
    m_vue->setFocus(Qt::OtherFocusReason);
    m_modele->met(std::move(*constat));
    poseLesBoutons();
    montre(true);  // what was mended may be missed elsewhere
    m_vue->setCurrentIndex(m_modele->index(static_cast<int>(mal), 0));
}

}  // namespace ui
