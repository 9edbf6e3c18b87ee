#include "ui/Pied.h"

#include "ui/BandeAvis.h"
#include "ui/BandeTravail.h"
#include "ui/Composition.h"

#include <algorithm>

namespace ui {

Pied::Pied(const Atelier& atelier, QWidget* comptes, QWidget* parent) : QWidget(parent) {
    auto* avis = new BandeAvis(atelier);
    auto* travail = new BandeTravail(atelier);
    travail->setAutoFillBackground(true);  // it covers the notice, which comes back after it
    auto* place = new QWidget;
    auto* dessus = new QGridLayout(place);
    dessus->setContentsMargins(0, 0, 0, 0);
    dessus->addWidget(avis, 0, 0);
    dessus->addWidget(travail, 0, 0);
    auto* ligne = rangee({comptes, place}, 0);
    ligne->setContentsMargins(kGrand, 0, 0, 0);
    ligne->setStretch(1, 1);
    auto* boite = colonne(0);
    boite->addWidget(filetHorizontal());
    boite->addLayout(ligne, 1);
    setLayout(boite);
    setFixedHeight(1 + std::max(avis->sizeHint().height(), travail->sizeHint().height()));
}

}  // namespace ui
