#include "ui/FenetreSauvegardes.h"

#include "app/Sauvegardes.h"
#include "ui/Composition.h"
#include "ui/DelegueLignes.h"
#include "ui/FenetreGuide.h"
#include "ui/Lecteur.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <QTextEdit>
#include <QTreeWidget>

namespace ui {

namespace {

constexpr QSize kTaille{760, 580};

// Rows as high, and columns as far apart, as the rest of the window.
class DelegueAere final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(kLarge, kMoyen);
    }
};

}  // namespace

FenetreSauvegardes::FenetreSauvegardes(const Atelier& atelier, QWidget* parent)
    : QWidget(parent, Qt::Dialog), m_atelier(atelier) {  // what window managers place over its owner
    nomme(this, "frmSauvegardes");
    seLit(this, {.role = QAccessible::Dialog});
    setWindowTitle(tr("Sauvegardes"));
    donneUnePage(this, "sauvegardes.html");
    m_atelier.liaison.apresEcriture([this] { suitLEtat(); });
}

void FenetreSauvegardes::compose() {
    app::EtatSauvegardes& etat = m_atelier.etats().sauvegardes;
    auto* explication = nomme(new Etiquette, "lblSauvegardes")->avecLignes(4);
    m_atelier.liaison.lie(etat.lblSauvegardes, static_cast<QLabel*>(explication));
    m_liste = liste();
    auto* comparaison = nomme(new QTextEdit, "txtComparaison");
    comparaison->setReadOnly(true);
    comparaison->setTabChangesFocus(true);
    comparaison->setPlaceholderText(tr("Choisissez une sauvegarde, puis « Comparer »."));
    m_atelier.liaison.lie(etat.txtComparaison, comparaison);
    m_comparer =
        bouton("cmdComparerSauvegarde", tr("&Comparer"), tr("Lire cette sauvegarde à côté de la base ouverte"));
    m_revenir = bouton("cmdRevenirSauvegarde", tr("&Revenir à celle-ci…"),
                       tr("Remettre la base comme elle était ; son état d'aujourd'hui est d'abord sauvegardé"));
    auto* fermer = bouton("cmdFermerSauvegardes", tr("&Fermer"), tr("Fermer cette fenêtre (Échap)"));
    connect(m_comparer, &QAbstractButton::clicked, this, &FenetreSauvegardes::compare);
    connect(m_revenir, &QAbstractButton::clicked, this, &FenetreSauvegardes::revient);
    connect(fermer, &QAbstractButton::clicked, this, &QWidget::close);
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kPetit);
    boite->addWidget(explication);
    boite->addWidget(legende(tr("Sauvegardes de la &base ouverte"), m_liste));
    boite->addWidget(m_liste, 1);
    boite->addWidget(legende(tr("À côté de la base d'&aujourd'hui"), comparaison));
    boite->addWidget(comparaison, 1);
    auto* boutons = rangee({m_comparer, m_revenir});
    boutons->addStretch();
    boutons->addWidget(fermer);
    boite->addLayout(boutons);
    metTaille(this, kTaille);
}

QTreeWidget* FenetreSauvegardes::liste() {
    auto* resultat = nomme(new QTreeWidget, "lstSauvegardes");
    resultat->setHeaderLabels({tr("Date"), tr("Films"), tr("Exemplaires"), tr("Taille"), tr("Prise avant")});
    resultat->setItemDelegate(new DelegueAere(resultat));
    resultat->setRootIsDecorated(false);
    resultat->setUniformRowHeights(true);
    resultat->setAllColumnsShowFocus(true);
    QHeaderView& entete = *resultat->header();
    entete.setSectionResizeMode(QHeaderView::ResizeToContents);
    entete.moveSection(4, 1);  // words first, then the numbers, which end in line
    entete.setStretchLastSection(false);
    entete.setSectionResizeMode(4, QHeaderView::Stretch);
    for (const int nombre : {1, 2, 3})
        resultat->headerItem()->setTextAlignment(nombre, Qt::AlignRight | Qt::AlignVCenter);
    connect(resultat, &QTreeWidget::itemSelectionChanged, this, &FenetreSauvegardes::activeLesBoutons);
    connect(resultat, &QTreeWidget::itemActivated, this, &FenetreSauvegardes::compare);
    return resultat;
}

void FenetreSauvegardes::suitLEtat() {
    const app::EtatSauvegardes& etat = m_atelier.etats().sauvegardes;
    if (m_presentation != etat.presentations) presente();
    if (m_liste && m_lignes != etat.lignes) remplit();
    if (!etat.frmSauvegardes.Visible && isVisible()) hide();
}

void FenetreSauvegardes::presente() {
    m_presentation = m_atelier.etats().sauvegardes.presentations;
    if (!m_liste) {
        compose();
        move(parentWidget()->window()->frameGeometry().center() - rect().center());
    }
    remplit();
    show();
    raise();
    activateWindow();
    m_liste->setFocus(Qt::OtherFocusReason);
}

void FenetreSauvegardes::remplit() {
    m_lignes = m_atelier.etats().sauvegardes.lignes;
    m_liste->clear();
    for (const app::EtatSauvegardes::Ligne& ligne : m_lignes) {
        auto* rangee = new QTreeWidgetItem(m_liste);
        int colonne = 0;
        for (const std::string* texte : {&ligne.date, &ligne.films, &ligne.possessions, &ligne.taille, &ligne.avant})
            rangee->setText(colonne++, QString::fromStdString(*texte));
        rangee->setData(0, Qt::AccessibleTextRole, ligneLue(m_liste->indexFromItem(rangee)));
        for (const int nombre : {1, 2, 3})
            rangee->setTextAlignment(nombre, Qt::AlignRight | Qt::AlignVCenter);
    }
    m_liste->setCurrentItem(m_liste->topLevelItem(0));
    activeLesBoutons();
}

void FenetreSauvegardes::activeLesBoutons() {
    const bool choisie = !m_liste->selectedItems().isEmpty();
    m_comparer->setEnabled(choisie);
    m_revenir->setEnabled(choisie);
}

void FenetreSauvegardes::compare() {
    m_atelier.execute(app::cmdComparerSauvegarde_Click, m_liste->indexOfTopLevelItem(m_liste->currentItem()));
}

void FenetreSauvegardes::revient() {
    m_atelier.execute(app::cmdRevenirSauvegarde_Click, m_liste->indexOfTopLevelItem(m_liste->currentItem()));
}

// Closed, it is only hidden; the program ends with its main window.
void FenetreSauvegardes::closeEvent(QCloseEvent* evenement) {
    if (m_atelier.commande.enCours()) return evenement->ignore();
    m_atelier.execute(app::cmdFermerSauvegardes_Click);
    evenement->accept();
}

void FenetreSauvegardes::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Escape)
        close();
    else if (evenement->key() == Qt::Key_F1)
        demandeLeGuide(m_atelier, this);
    else
        QWidget::keyPressEvent(evenement);
}

}  // namespace ui
