#include "ui/PanneauPossession.h"

#include "app/RaccourcisClavier.h"
#include "browse/RaffraichitBoitesDeroulantes.h"
#include "edit/SaisiePossession.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "export/cmdCreeFichierTxt_Click.h"
#include "ui/BoutonActualiser.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"
#include "ui/ListeDeSaisie.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QRadioButton>
#include <QScrollArea>
#include <QTimer>

namespace ui {

namespace {

// A heading over one row of fields.
QGridLayout* grilleSous(const QString& titre) {
    auto* grille = new QGridLayout;
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(kPetit);
    grille->setVerticalSpacing(kSerre);
    grille->addWidget((new Etiquette(titre))->avecPolice(1.0, QFont::DemiBold), 0, 0, 1, -1);
    return grille;
}

// Brings the field that takes the focus into sight, from wherever it takes it.
class ZoneDesGroupes final : public QScrollArea {
  public:
    explicit ZoneDesGroupes(QWidget* contenu) {
        setWidget(contenu);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        viewport()->setAutoFillBackground(false);
        contenu->setAutoFillBackground(false);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* champ) {
            if (!champ || !widget()->isAncestorOf(champ)) return;
            const QPointer<QWidget> lui(champ);  // its page may be shown only now
            QTimer::singleShot(0, this, [this, lui] {
                if (lui && widget()->isAncestorOf(lui)) ensureWidgetVisible(lui, 0, kLarge);
            });
        });
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        const int barre = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        return {widget()->minimumSizeHint().width() + barre, QScrollArea::minimumSizeHint().height()};
    }
};

}  // namespace

PanneauPossession::PanneauPossession(const Atelier& atelier, QWidget* parent) : QWidget(parent), m_atelier(atelier) {
    nomme(this, "frameAutresInfos", 0);
    seLitCommeGroupe(this, tr("Votre exemplaire"));
    auto* boite = colonne(kPetit);
    boite->addLayout(choix());
    boite->addWidget(suite(), 1);
    setLayout(boite);
    m_atelier.liaison.lie(m_atelier.etats().fiche.frameAutresInfos[0], this);
}

// What is below the choice scrolls where the window is low; the choice and "Valider" do not.
QWidget* PanneauPossession::suite() {
    auto* resultat = nomme(new QWidget, "frameAutresInfos", 1);
    auto* contenu = new QWidget;
    auto* dedans = colonne(0);
    dedans->addWidget(exemplaire());
    dedans->addStretch(1);
    contenu->setLayout(dedans);
    auto* boite = colonne(0);
    boite->addWidget(new ZoneDesGroupes(contenu));
    resultat->setLayout(boite);
    m_atelier.liaison.lie(m_atelier.etats().fiche.frameAutresInfos[1], resultat);
    return resultat;
}

// Enter stores what was typed, as on the page of entry; with nothing typed it is the window's.
void PanneauPossession::keyPressEvent(QKeyEvent* evenement) {
    const bool valide = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (!valide || !m_valider->isVisible()) return QWidget::keyPressEvent(evenement);
    m_valider->click();
}

QLayout* PanneauPossession::choix() {
    auto& fiche = m_atelier.etats().fiche;
    auto* nonPossede = nomme(new QRadioButton(tr("Non possé&dé")), "Option1", 0);
    auto* possede = nomme(new QRadioButton(tr("&Possédé")), "Option1", 1);
    nonPossede->setToolTip(tr("Ce film n'est pas dans votre vidéothèque"));
    possede->setToolTip(tr("Ce film est dans votre vidéothèque"));
    auto* valider = m_valider =
        bouton<BoutonAccent>("cmdValiderInfosPossessions", tr("Val&ider"),
                             tr("Enregistrer ce qui concerne votre exemplaire (Entrée, ou Ctrl+Entrée)"));
    m_atelier.liaison.lie(fiche.Option1[0], nonPossede);
    m_atelier.liaison.lie(fiche.Option1[1], possede);
    m_atelier.liaison.lie(fiche.cmdValiderInfosPossessions, valider);
    m_atelier.auClic(nonPossede, edit::Option1_Click);
    m_atelier.auClic(possede, edit::Option1_Click);
    m_atelier.auClic(valider, edit::cmdValiderInfosPossessions_Click);
    QSizePolicy politique = valider->sizePolicy();
    politique.setRetainSizeWhenHidden(true);  // what is below stays in its place while the user types
    valider->setSizePolicy(politique);
    auto* boite = rangee({nonPossede, possede}, kGrand);
    boite->addStretch();
    boite->addWidget(valider);
    return boite;
}

QWidget* PanneauPossession::exemplaire() {
    auto* cadre = nomme(new QWidget, "framePossession");
    auto* boite = colonne(kMoyen);
    boite->addLayout(ou());
    boite->addLayout(qui());
    boite->addLayout(fichiers());
    boite->addLayout(champ(tr("Not&es"), texte(4, {})));
    auto* inutilise = texte(5, tr("Inutilisé"));
    inutilise->setParent(this);
    inutilise->hide();
    cadre->setLayout(boite);
    m_atelier.liaison.lie(m_atelier.etats().fiche.framePossession, cadre);
    return cadre;
}

// The lists that the button reads again are those of this group and the next.
QLayout* PanneauPossession::ou() {
    auto& fiche = m_atelier.etats().fiche;
    auto* actualiser = nomme(new BoutonActualiser, "cmdRaffraichirListe", tr("Actualiser les listes"));
    actualiser->setToolTip(tr("Actualiser les listes : relire les supports et les personnes déjà notés"));
    auto* grille = grilleSous(tr("Où"));
    auto* support = liste(2);
    grille->addLayout(champ(tr("S&upport"), support), 1, 0);
    grille->addWidget(actualiser, 1, 1, Qt::AlignBottom);
    grille->addLayout(champ(tr("&Lieu de rangement"), texte(3, {})), 1, 2);
    grille->setColumnStretch(0, 4);
    grille->setColumnStretch(2, 5);
    m_atelier.liaison.lie(fiche.cmdRaffraichirListe, actualiser);
    m_atelier.auClic(actualiser, browse::RaffraichitBoitesDeroulantes);
    return grille;
}

QLayout* PanneauPossession::qui() {
    auto* grille = grilleSous(tr("Qui"));
    grille->addLayout(champ(tr("P&rêté à"), liste(0)), 1, 0);
    grille->addLayout(champ(tr("Réser&vé pour"), liste(1)), 1, 1);
    auto* date = texte(6, {});
    date->setMinimumWidth(date->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 2 * kMoyen);
    grille->addLayout(champ(tr("D&ate"), date), 1, 2);
    for (const int colonne : {0, 1})
        grille->setColumnStretch(colonne, 4);
    grille->setColumnStretch(2, 3);
    return grille;
}

QLayout* PanneauPossession::fichiers() {
    auto* grille = grilleSous(tr("Fichiers"));
    auto* lignes = colonne(kSerre);
    for (std::size_t i = 0; i < 3; ++i)
        lignes->addLayout(fichier(i));
    grille->addLayout(lignes, 1, 0);
    return grille;
}

QWidget* PanneauPossession::texte(std::size_t indice, const QString& nom) {
    auto* zone = nomme(new QLineEdit, "Text10", indice, nom);
    m_atelier.liaison.lie(m_atelier.etats().fiche.Text10[indice], zone);
    m_atelier.aLaFrappe(zone, edit::Text10_Change, static_cast<int>(indice));
    return zone;
}

QWidget* PanneauPossession::liste(std::size_t indice) {
    auto* choix = nomme(listeDeSaisie(), "Combo7", indice);
    m_atelier.liaison.lie(m_atelier.etats().fiche.Combo7[indice], choix);
    const int numero = static_cast<int>(indice);
    m_atelier.aLaFrappe(choix->lineEdit(), edit::Combo7_Change, numero);
    connect(choix, &QComboBox::activated, this, m_atelier.reponse(edit::Combo7_Change, numero));
    return choix;
}

QLayout* PanneauPossession::fichier(std::size_t indice) {
    const QString nom = tr("Fichier %1").arg(indice + 1);
    auto* choisir = nomme(new QPushButton(tr("…")), "Command2", indice, tr("Choisir le fichier %1").arg(indice + 1));
    choisir->setToolTip(choisir->accessibleName());
    choisir->setAutoDefault(true);
    choisir->setMaximumWidth(44);
    m_atelier.liaison.lie(m_atelier.etats().fiche.Command2[indice], choisir);
    m_atelier.auClic(choisir, edit::Command2_Click, static_cast<int>(indice));
    QWidget* chemin = texte(indice, nom);
    return rangee({legende(QStringLiteral("&%1").arg(indice + 1), chemin), chemin, choisir});
}

PanneauActions::PanneauActions(const Atelier& atelier, QWidget* parent) : QWidget(parent) {
    auto& fiche = atelier.etats().fiche;
    auto* modifier = bouton("cmdModifierTitre", tr("Modifier…"), tr("Corriger la fiche du film (F2)"));
    auto* supprimer = bouton("cmdSupprimerTitre", tr("Supprimer…"), tr("Supprimer le film de la base (Suppr)"));
    auto* texte = bouton("cmdCreeFichierTxt", tr("Fiche te&xte…"), tr("Écrire la fiche dans un fichier texte"));
    atelier.liaison.lie(fiche.cmdModifierTitre, modifier);
    atelier.liaison.lie(fiche.cmdSupprimerTitre, supprimer);
    atelier.liaison.lie(fiche.cmdCreeFichierTxt, texte);
    atelier.auClic(modifier, app::cmdModifierTitre_Click);
    atelier.auClic(supprimer, edit::cmdSupprimerTitre_Click);
    atelier.auClic(texte, exportation::cmdCreeFichierTxt_Click);
    auto* boite = colonne(kPetit);
    boite->addWidget(filetHorizontal());
    auto* boutons = rangee({modifier, supprimer, texte});
    boutons->addStretch();
    boite->addLayout(boutons);
    setLayout(boite);
}

}  // namespace ui
