#include "ui/PageDoublons.h"

#include "app/Collection.h"
#include "app/Doublons.h"
#include "browse/PageDuGroupe.h"
#include "ui/Boutons.h"
#include "ui/Cartes.h"
#include "ui/Comparaison.h"
#include "ui/Composition.h"
#include "ui/DelegueLignes.h"
#include "ui/ModelePaires.h"

#include <QHeaderView>
#include <QSplitter>
#include <QTreeView>
#include <algorithm>

namespace ui {

namespace {

constexpr int kLignesMesurees = 100;  // for the width of the scores, beside those in sight
constexpr int kSurUneLigne = 700;     // the page's width from which all its buttons stand side by side

QByteArray octets(const std::optional<std::string>& affiche) {
    return affiche ? QByteArray::fromStdString(*affiche) : QByteArray();
}

}  // namespace

PageDoublons::PageDoublons(const Atelier& atelier)
    : PageCollection(atelier, "PageDoublons", tr("Doublons possibles"),
                     tr("Les films dont titre et réalisateur se ressemblent, les plus proches d'abord. Rien ne change "
                        "sans vous, et Ctrl+Z annule une fusion ou une suppression.")) {
    m_ligne = new LigneDExamen("ChercherDoublons", {tr("&Chercher les ressemblances"), tr("&Chercher de nouveau"),
                                                    tr("Comparer tous les films de la base entre eux"),
                                                    tr("La base a changé depuis cette recherche.")});
    m_invite = nomme((new Etiquette(tr("Chaque film est comparé à tous les autres, comme à l'import : une paire est "
                                       "retenue quand les deux titres, et les deux réalisateurs, se ressemblent à plus "
                                       "de 80 %.\n\nVous verrez ensuite les deux fiches côte à côte, pour laisser la "
                                       "paire, supprimer l'une des deux, ou les fusionner : la fiche qui reste reçoit "
                                       "ce que l'autre était seule à dire, possession comprise.")))
                         ->avecTon(Ton::Discret)
                         ->avecLignes(12),
                     "lblInviteDoublons");
    m_modele = new ModelePaires(m_paires);
    m_vue = vueDeLignes("lstDoublons", tr("Paires de films qui se ressemblent"), m_modele);
    m_vue->setUniformRowHeights(true);
    m_vue->header()->setStretchLastSection(false);
    m_vue->header()->setResizeContentsPrecision(kLignesMesurees);
    for (const int film : {ModelePaires::Gauche, ModelePaires::Droite})
        m_vue->header()->setSectionResizeMode(film, QHeaderView::Stretch);
    for (const int score : {ModelePaires::Titre, ModelePaires::Realisateur})
        m_vue->header()->setSectionResizeMode(score, QHeaderView::ResizeToContents);
    m_dessous = comparaison();
    m_partage = new QSplitter(Qt::Vertical);
    m_partage->setChildrenCollapsible(false);
    m_partage->addWidget(m_vue);
    m_partage->addWidget(m_dessous);
    m_partage->setStretchFactor(0, 2);
    m_partage->setStretchFactor(1, 5);
    contenu()->addWidget(m_ligne);
    contenu()->addWidget(m_invite);
    contenu()->addWidget(m_partage, 1);
    contenu()->addStretch();
    connect(m_ligne, &LigneDExamen::demande, this, &PageDoublons::cherche);
    connect(m_vue->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        m_tournee = false;
        change();
    });
    connect(m_vue, &QAbstractItemView::activated, this, [this] { voit(false); });
    montre(false);
}

QWidget* PageDoublons::comparaison() {
    m_scores = nomme(new Etiquette, "lblRessemblances");
    m_comparaison = new Comparaison;
    connect(m_comparaison, &Comparaison::demandee, this, &PageDoublons::voit);
    auto* boite = colonne(kPetit);
    boite->setContentsMargins(0, kSerre, 0, 0);
    boite->addWidget(m_scores);
    boite->addWidget(m_comparaison, 1);
    boite->addLayout(boutons());
    auto* resultat = new QWidget;
    resultat->setLayout(boite);
    return resultat;
}

QLayout* PageDoublons::boutons() {
    const auto nouveau = [this](const char* nom, const QString& texte, const QString& infobulle, auto geste) {
        auto* resultat = bouton(nom, texte, infobulle);
        connect(resultat, &QAbstractButton::clicked, this, geste);
        return resultat;
    };
    auto* laisser = nouveau("cmdLaisser", tr("Laisser"), tr("Ne plus montrer cette paire pendant cette séance"),
                            [this] { laisse(); });
    m_tourner = nouveau("cmdIntervertir", tr("Intervertir"),
                        tr("Mettre l'autre fiche à gauche : celle de gauche reste"), [this] {
                            m_tournee = !m_tournee;
                            change();
                        });
    auto* fusionner = bouton<BoutonAccent>("cmdFusionner", tr("Fusionner…"),
                                           tr("Ne garder que la fiche de gauche, complétée par celle de droite"));
    connect(fusionner, &QAbstractButton::clicked, this, &PageDoublons::fusionne);
    auto* voirGauche = nouveau("cmdVoirGauche", tr("Voir à gauche"),
                               tr("Montrer la fiche de gauche (Entrée dans la liste)"), [this] { voit(false); });
    m_voirDroite =
        nouveau("cmdVoirDroite", tr("Voir à droite"), tr("Montrer la fiche de droite"), [this] { voit(true); });
    m_supprimerGauche = nouveau("cmdSupprimerGauche", tr("Supprimer à gauche…"), {}, [this] { supprime(false); });
    m_supprimerDroite = nouveau("cmdSupprimerDroite", tr("Supprimer à droite…"), {}, [this] { supprime(true); });

    const auto groupe = [](std::initializer_list<QWidget*> widgets) {
        auto* place = new QWidget;
        auto* ligne = rangee(widgets, kPetit);
        ligne->addStretch();
        place->setLayout(ligne);
        return place;
    };
    auto* ligne = colonne(0);
    ligne->addWidget(new CoteACote({groupe({voirGauche, m_supprimerGauche, m_voirDroite, m_supprimerDroite}),
                                    groupe({laisser, m_tourner, fusionner})},
                                   kSurUneLigne, kPetit));
    return ligne;
}

void PageDoublons::relis(const app::Contexte& c) {
    const BaseLue base = BaseLue::de(c);
    if (m_cherchee && m_cherchee->chemin != base.chemin) {
        m_paires.oublie();
        m_cherchee.reset();
        m_modele->change();
    }
    if (m_cherchee && std::exchange(m_lue, base) != base) {
        const int rang = m_vue->currentIndex().row();
        if (m_paires.actualise(c)) {
            m_modele->change();
            m_vue->setCurrentIndex(m_modele->index(std::clamp(rang, 0, std::max(0, m_modele->rowCount() - 1)), 0));
        }
    }
    relisLaPaire(c);
    montre(m_cherchee != base);
}

const ensemble::Paire* PageDoublons::choisie() const {
    const int rang = m_vue->currentIndex().row();
    return rang < 0 ? nullptr : &m_paires.paire(static_cast<std::size_t>(rang));
}

void PageDoublons::relisLaPaire(const app::Contexte& c) {
    const ensemble::Paire* paire = choisie();
    if (!paire) return m_montree.reset();
    Montree voulue{*paire, m_tournee, BaseLue::de(c)};
    if (m_montree == voulue) return;
    const db::CleFilm &gauche = m_tournee ? paire->droite : paire->gauche,
                      &droite = m_tournee ? paire->gauche : paire->droite;
    auto plan = ensemble::planDeFusion(c, gauche, droite);
    if (!plan) return m_montree.reset();
    const bool unSeulNom = db::memeFilm(gauche, droite);
    m_comparaison->montre(std::move(*plan), {octets(browse::afficheDuFilm(c, gauche)),
                                             octets(browse::afficheDuFilm(c, droite, unSeulNom ? 1 : 0))});
    m_scores->setText(QString::fromStdString(ensemble::texteRessemblanceTitre(*paire) + "   " +
                                             ensemble::texteRessemblanceReali(*paire)));
    // A name alone cannot tell two films of one name apart: the list leads to the first, which stays.
    m_voirDroite->setEnabled(gauche != droite);
    m_tourner->setEnabled(!unSeulNom);
    for (auto* supprimer : {m_supprimerGauche, m_supprimerDroite}) {
        supprimer->setEnabled(!unSeulNom);
        supprimer->setToolTip(unSeulNom ? tr("Ces deux fiches portent le même nom pour la base : fusionnez-les")
                                        : tr("Supprimer cette fiche, après une question"));
    }
    m_montree = std::move(voulue);
}

void PageDoublons::montre(bool perime) {
    m_invite->setVisible(!m_cherchee);
    m_partage->setVisible(m_cherchee && m_paires.nombre() > 0);
    m_dessous->setVisible(m_montree.has_value());
    if (m_cherchee)
        m_ligne->lu(m_paires.texte(), perime);
    else
        m_ligne->rienDeLu();
}

void PageDoublons::change() {
    perime();
    suis();
}

void PageDoublons::cherche() {
    bool trouvees = false;
    atelier().execute([&](const app::Contexte& c) {
        m_paires.met(c, ensemble::ressemblances(c));
        m_cherchee = m_lue = BaseLue::de(c);
        trouvees = true;
    });
    if (!trouvees) return;
    m_modele->change();
    m_vue->setCurrentIndex(m_modele->index(0, 0));
    change();
    montre(false);
    if (m_paires.nombre() > 0) m_vue->setFocus(Qt::OtherFocusReason);
}

void PageDoublons::laisse() {
    const int rang = m_vue->currentIndex().row();
    if (rang < 0) return;
    m_paires.laisse(static_cast<std::size_t>(rang));
    m_modele->change();
    m_vue->setCurrentIndex(m_modele->index(std::min(rang, m_modele->rowCount() - 1), 0));
    change();
}

void PageDoublons::voit(bool droite) {
    if (!m_montree) return;
    const ensemble::PlanDeFusion& plan = m_comparaison->plan();
    if (droite && !m_voirDroite->isEnabled()) return;
    atelier().execute(app::montreLeFilm, droite ? plan.droite : plan.gauche);
}

void PageDoublons::supprime(bool droite) {
    if (!m_montree) return;
    const ensemble::PlanDeFusion& plan = m_comparaison->plan();
    atelier().execute(app::supprimeDepuisLaCollection, droite ? plan.droite : plan.gauche);
}

void PageDoublons::fusionne() {
    if (m_montree) atelier().execute(app::cmdFusionner_Click, m_comparaison->plan());
}

}  // namespace ui
