#include "ui/FenetreFichiers.h"

#include "ui/Composition.h"

#include <QLabel>
#include <QPushButton>

namespace ui {

namespace {

constexpr std::size_t kFermer = 3;  // after the three files

}  // namespace

FenetreFichiers::FenetreFichiers(const Atelier& atelier, QWidget* parent) : QWidget(parent, Qt::Window) {
    nomme(this, "frmFichiersFilm");
    auto* texte = new QLabel(
        tr("  Cette fonction permet de lancer un des fichiers associés à un titre. Elle le recherchera sur tous les "
           "lecteurs de la machine et exécutera l'application associée."));
    texte->setWordWrap(true);
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kPetit);
    boite->addWidget(texte);
    for (std::size_t i = 0; i < kFermer; ++i) {
        auto* fichier = nomme(new QPushButton(tr("Fichier %1").arg(i + 1)), "Command1", i);
        fichier->setEnabled(false);
        boite->addWidget(fichier);
    }
    auto* fermer = nomme(new QPushButton(tr("Fermer")), "Command1", kFermer);
    connect(fermer, &QPushButton::clicked, this, &QWidget::hide);
    boite->addWidget(fermer);
    atelier.liaison.apresEcriture(
        [this, fiche = &atelier.etats().fiche] { setWindowTitle(QString::fromStdString(fiche->captionFichiers)); });
}

}  // namespace ui
