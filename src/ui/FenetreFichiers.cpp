#include "ui/FenetreFichiers.h"

#include "ui/Composition.h"
#include "ui/FenetreGuide.h"
#include "ui/Lecteur.h"
#include "view/Command1_Click.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <utility>

namespace ui {

namespace {

constexpr int kFermer = 3;  // after the three files
constexpr int kLargeur = 380;
constexpr qsizetype kTitreMax = 500;  // characters; the system takes no title of megabytes

// The button keeps its width: a long name loses its middle there, and is whole in the tip.
QString abrege(QString nom, const QWidget& bouton) {
    constexpr int kPlace = kLargeur - 2 * kGrand - 2 * kMoyen;
    return bouton.fontMetrics().elidedText(nom.replace(QLatin1String("&"), QLatin1String("&&")), Qt::ElideMiddle,
                                           kPlace);
}

}  // namespace

FenetreFichiers::FenetreFichiers(const Atelier& atelier, QWidget* parent)
    : QWidget(parent, Qt::Dialog), m_atelier(atelier) {  // what window managers place over its owner
    nomme(this, "frmFichiersFilm");
    seLit(this, {.role = QAccessible::Dialog});
    donneUnePage(this, "fichiers.html");
    auto* texte = new QLabel(
        tr("  Cette fonction permet de lancer un des fichiers associés à un titre. Elle le recherchera sur tous les "
           "lecteurs de la machine et exécutera l'application associée."));
    texte->setWordWrap(true);
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kPetit);
    boite->addWidget(texte);
    for (std::size_t i = 0; i < m_fichiers.size(); ++i)
        boite->addWidget(m_fichiers[i] = boutonFichier(i));
    boite->addSpacing(kMoyen);
    auto* fermer = nomme(new QPushButton(tr("Fermer")), "Command1", kFermer);
    fermer->setAutoDefault(true);
    m_atelier.auClic(fermer, view::Command1_Click, kFermer);
    boite->addWidget(fermer, 0, Qt::AlignRight);
    setFixedWidth(kLargeur);
    m_atelier.liaison.apresEcriture([this] { suisLeFilm(); });
}

QPushButton* FenetreFichiers::boutonFichier(std::size_t indice) {
    auto* bouton = nomme(new QPushButton(tr("Fichier %1").arg(indice + 1)), "Command1", indice);
    bouton->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    bouton->setEnabled(false);
    bouton->setAutoDefault(true);  // Enter opens it
    m_atelier.liaison.lie(m_atelier.etats().fiche.Command1[indice], bouton);
    m_atelier.auClic(bouton, view::Command1_Click, static_cast<int>(indice));
    return bouton;
}

void FenetreFichiers::suisLeFilm() {
    const browse::EtatFiche& fiche = m_atelier.etats().fiche;
    setWindowTitle(QString::fromStdString(fiche.captionFichiers).left(kTitreMax));
    for (std::size_t i = 0; i < m_fichiers.size(); ++i) {
        m_fichiers[i]->setToolTip(QString::fromStdString(fiche.cheminsFichiers[i]).toHtmlEscaped());
        m_fichiers[i]->setText(abrege(QString::fromStdString(fiche.Command1[i].Caption), *m_fichiers[i]));
    }
    if (m_presentation != m_atelier.etats().fichiers.presentations) presente();
    if (!m_atelier.etats().fichiers.Visible && isVisible()) hide();
}

void FenetreFichiers::presente() {
    m_presentation = m_atelier.etats().fichiers.presentations;
    if (!std::exchange(m_placee, true)) {
        adjustSize();
        move(parentWidget()->window()->frameGeometry().center() - rect().center());
    }
    show();
    raise();
    activateWindow();
    const auto premier = std::find_if(m_fichiers.begin(), m_fichiers.end(), [](auto* b) { return b->isEnabled(); });
    (premier == m_fichiers.end() ? m_fichiers[0] : *premier)->setFocus(Qt::OtherFocusReason);
}

// Closed, it is only hidden; the program ends with its main window.
void FenetreFichiers::closeEvent(QCloseEvent* evenement) {
    if (m_atelier.commande.enCours()) return evenement->ignore();
    m_atelier.execute(view::Command1_Click, kFermer);
    evenement->accept();
}

void FenetreFichiers::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() == Qt::Key_Escape)
        close();
    else if (evenement->key() == Qt::Key_F1)
        demandeLeGuide(m_atelier, this);
    else
        QWidget::keyPressEvent(evenement);
}

}  // namespace ui
