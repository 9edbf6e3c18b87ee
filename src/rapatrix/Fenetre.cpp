#include "rapatrix/Fenetre.h"

#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Icones.h"
#include "util/Nombres.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QHeaderView>
#include <QVBoxLayout>

namespace rapatrix {

namespace {

constexpr QSize kTaille{760, 560};

QString compte(int nombre, const char* singulier, const char* pluriel) {
    return QString::fromStdString(util::phraseCompte(nombre, singulier, pluriel));
}

}  // namespace

Fenetre::Fenetre(const Reglages& reglages, const Collecte::Delais& delais)
    : m_reglages(reglages),
      m_collecte(reglages, delais),
      m_liste(reglages.colonneAffichee, reglages.colonneTelechargee),
      m_etat(ui::nomme(new QLabel, "lblEtat")),
      m_mots(ui::nomme(new QLineEdit, "txtFiltre", tr("Filtrer les films trouvés"))),
      m_vue(ui::nomme(new QTreeView, "lstFilms", tr("Films trouvés"))),
      m_barre(ui::nomme(new QProgressBar, "barre", tr("Avancement"))),
      m_tout(ui::bouton("cmdTout", tr("&Tout cocher"))),
      m_aucun(ui::bouton("cmdAucun", tr("Tout &décocher"))),
      m_rechercher(ui::bouton("cmdRechercher", tr("&Rechercher"))),
      m_telecharger(ui::bouton<ui::BoutonAccent>("cmdTelecharger", tr("Té&lécharger"))),
      m_arreter(ui::bouton("cmdArreter", tr("&Arrêter"))),
      m_terminer(ui::bouton("cmdTerminer", tr("T&erminer"),
                            tr("Fermer : Ambrelis ajoute les fiches reçues à la collection"))) {
    setWindowTitle(tr("Le Rapatrix - Recherche sur Internet"));
    setWindowIcon(ui::icone(ui::Pictogramme::Clap));
    m_filtre.setSourceModel(&m_liste);
    compose();
    suis();
    resize(kTaille);
    actualise();
}

void Fenetre::compose() {
    auto* titre = ui::nomme(new QLabel(QString::fromStdString(m_reglages.titre)), "lblTitre");
    titre->setWordWrap(true);
    titre->setTextFormat(Qt::PlainText);
    m_mots->setPlaceholderText(tr("Filtrer les films trouvés"));
    m_mots->setClearButtonEnabled(true);
    m_vue->setModel(&m_filtre);
    m_vue->setRootIsDecorated(false);
    m_vue->setUniformRowHeights(true);
    m_vue->setAlternatingRowColors(true);
    m_vue->setSortingEnabled(true);
    m_vue->sortByColumn(-1, Qt::AscendingOrder);  // as the site gives them
    m_vue->header()->setStretchLastSection(true);
    m_vue->header()->resizeSection(ListeFiches::Film, kTaille.width() * 3 / 5);
    m_etat->setWordWrap(true);
    m_etat->setTextFormat(Qt::PlainText);
    m_barre->setVisible(false);

    auto* boite = ui::colonne(ui::kMoyen);
    boite->setContentsMargins(ui::kGrand, ui::kGrand, ui::kGrand, ui::kGrand);
    boite->addWidget(titre);
    auto* choix = ui::rangee({m_mots, m_tout, m_aucun});
    choix->setStretch(0, 1);
    boite->addLayout(choix);
    boite->addWidget(m_vue, 1);
    boite->addWidget(m_barre);
    boite->addWidget(m_etat);
    auto* actions = ui::rangee({m_rechercher, m_arreter, m_telecharger, m_terminer});
    actions->insertStretch(0, 1);
    boite->addLayout(actions);
    setLayout(boite);
}

void Fenetre::suis() {
    connect(m_mots, &QLineEdit::textChanged, &m_filtre, &FiltreFiches::filtre);
    connect(m_tout, &QPushButton::clicked, &m_filtre, [this] { m_filtre.coche(true); });
    connect(m_aucun, &QPushButton::clicked, &m_filtre, [this] { m_filtre.coche(false); });
    connect(m_rechercher, &QPushButton::clicked, this, &Fenetre::cherche);
    connect(m_telecharger, &QPushButton::clicked, this, &Fenetre::telecharge);
    connect(m_arreter, &QPushButton::clicked, this, &Fenetre::arrete);
    connect(m_terminer, &QPushButton::clicked, this, &QWidget::close);
    connect(&m_liste, &QStandardItemModel::itemChanged, this, &Fenetre::actualise);
    connect(&m_collecte, &Collecte::trouvees, this, [this](const std::vector<Lien>& fiches) {
        m_liste.ajoute(fiches);
        dit(compte(m_liste.rowCount(), "# film trouvé…", "# films trouvés…"));
    });
    connect(&m_collecte, &Collecte::rechercheFinie, this, &Fenetre::rechercheFinie);
    connect(&m_collecte, &Collecte::ficheCommencee, this, [this](const QString& adresse) {
        m_liste.note(adresse, tr("En cours…"));
        dit(tr("Téléchargement de la fiche %1 sur %2…").arg(m_faites + 1).arg(m_demandees));
    });
    connect(&m_collecte, &Collecte::ficheFinie, this, &Fenetre::ficheFinie);
    connect(&m_collecte, &Collecte::attend, this, [this](int secondes, const QString& pourquoi) {
        if (secondes > 0) dit(compte(secondes, "# seconde", "# secondes").prepend(pourquoi + tr(" : encore ")) + ".");
    });
    connect(&m_collecte, &Collecte::telechargementFini, this, [this](const QString& probleme) {
        const int manquees = m_faites - m_recues;
        const QString rate =
            manquees == 0 ? QString()
                          : compte(manquees, "# film n'a pas pu être reçu. ", "# films n'ont pas pu être reçus. ");
        dit((compte(m_recues, "# fiche reçue. ", "# fiches reçues. ") + rate + probleme).trimmed());
        actualise();
        if (!m_reglages.afficheResultat) close();
    });
}

void Fenetre::demarre() {
    if (m_reglages.rechercheAuDemarrage || !m_reglages.afficheResultat)
        cherche();
    else
        dit(tr("Cliquez sur \"Rechercher\" pour commencer."));
    m_rechercher->setFocus();
}

void Fenetre::cherche() {
    m_liste.vide();
    m_collecte.cherche();
    dit(tr("Recherche en cours…"));
    m_barre->setRange(0, 0);
    actualise();
}

void Fenetre::rechercheFinie(const QString& probleme) {
    const int trouvees = m_liste.rowCount();
    const QString resume = trouvees == 0
                               ? (probleme.isEmpty() ? tr("Aucun film trouvé pour cette recherche.") : QString())
                               : compte(trouvees, "# film trouvé. ", "# films trouvés. ") +
                                     tr("Cochez ceux à télécharger, puis cliquez sur \"Télécharger\". ");
    dit((resume + probleme).trimmed());
    actualise();
    if (trouvees > 0) m_vue->setCurrentIndex(m_filtre.index(0, 0));
    if (trouvees > 0) m_vue->setFocus();
    if (m_reglages.afficheResultat) return;
    m_filtre.coche(true);
    telecharge();
}

void Fenetre::telecharge() {
    const QStringList fiches = m_liste.cochees();
    m_demandees = static_cast<int>(fiches.size());
    m_faites = m_recues = 0;
    m_collecte.telecharge(fiches);
    m_barre->setRange(0, m_demandees);
    m_barre->setValue(0);
    actualise();
}

void Fenetre::ficheFinie(const QString& adresse, Collecte::Issue issue, const QString& probleme) {
    const bool recue = issue == Collecte::Issue::Recue;
    m_barre->setValue(++m_faites);
    if (recue) ++m_recues;
    m_liste.note(adresse, recue ? tr("Reçue") : probleme);
    if (recue) m_liste.decoche(adresse);
    if (recue && !m_reglages.gardeLiensTelecharges) m_liste.retire(adresse);
}

void Fenetre::arrete() {
    m_collecte.arrete();
    dit(tr("Arrêté. ") + (m_recues > 0 ? compte(m_recues, "# fiche reçue.", "# fiches reçues.") : QString()));
    actualise();
}

void Fenetre::dit(const QString& texte) {
    m_etat->setText(texte);
    QAccessibleEvent evenement(m_etat, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&evenement);
}

void Fenetre::actualise() {
    const bool occupee = m_collecte.occupee();
    const auto cochees = m_liste.cochees().size();
    m_rechercher->setVisible(!occupee && m_liste.rowCount() == 0);
    m_arreter->setVisible(occupee);
    m_barre->setVisible(occupee);
    m_telecharger->setEnabled(!occupee && cochees > 0);
    for (QWidget* choix : {static_cast<QWidget*>(m_tout), static_cast<QWidget*>(m_aucun)})
        choix->setEnabled(!occupee && m_liste.rowCount() > 0);
}

void Fenetre::closeEvent(QCloseEvent* evenement) {
    m_collecte.arrete();
    evenement->accept();
}

}  // namespace rapatrix
