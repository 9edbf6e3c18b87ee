#include "ui/Sections.h"

#include "ui/Composition.h"

#include <QScrollArea>

namespace ui {

namespace {

constexpr int kPlusLarge = 1500;         // of a page: two columns that still read well
constexpr int kLargeurDeLecture = 1000;  // of one column

Etiquette* description(const QString& texte) {
    return (new Etiquette(texte))->avecTon(Ton::Discret)->avecLignes(4);
}

}  // namespace

QVBoxLayout* section(const Atelier& atelier, Aide aide, double grandeur) {
    const auto indice = static_cast<std::size_t>(aide);
    auto& fonctions = atelier.etats().fonctions;
    auto* titre = nomme(new TitreDeSection(grandeur), "Label14", indice);
    auto* texte = nomme(description({}), "Label7", indice);
    atelier.liaison.lie(fonctions.Label14[indice], titre);
    atelier.liaison.lie(fonctions.Label7[indice], texte);
    auto* boite = colonne(kPetit);
    boite->addWidget(titre);
    boite->addWidget(texte);
    return boite;
}

QVBoxLayout* section(const QString& titre, const QString& texte) {
    auto* boite = colonne(kPetit);
    boite->addWidget((new Etiquette(titre))->avecPolice(1.08, QFont::DemiBold));
    boite->addWidget(description(texte));
    return boite;
}

QVBoxLayout* groupe(const QString& nom) {
    auto* boite = colonne(kMoyen);
    boite->addWidget((new Etiquette(nom))->avecPolice(1.2, QFont::DemiBold));
    return boite;
}

QHBoxLayout* aGauche(std::initializer_list<QWidget*> widgets) {
    auto* boite = rangee(widgets);
    boite->addStretch();
    return boite;
}

QWidget* pile(std::initializer_list<QWidget*> widgets) {
    auto* boite = colonne(kGrand);
    for (QWidget* widget : widgets)
        boite->addWidget(widget);
    boite->addStretch();
    auto* resultat = new QWidget;
    resultat->setMaximumWidth(kLargeurDeLecture);
    resultat->setLayout(boite);
    return resultat;
}

QScrollArea* defilant(QLayout* contenu) {
    auto* page = new QWidget;
    contenu->setContentsMargins(0, 0, 0, 0);
    auto* dedans = new QWidget;
    dedans->setLayout(contenu);
    dedans->setMaximumWidth(kPlusLarge);
    auto* boite = new QHBoxLayout(page);
    boite->setContentsMargins(kPetit, kMoyen, kGrand, kGrand);
    boite->addWidget(dedans, 1);
    boite->addStretch(0);
    auto* zone = new QScrollArea;
    zone->setWidget(page);
    zone->setWidgetResizable(true);
    zone->setFrameShape(QFrame::NoFrame);
    zone->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    zone->setFocusPolicy(Qt::NoFocus);
    zone->viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
    return zone;
}

}  // namespace ui
