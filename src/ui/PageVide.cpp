#include "ui/PageVide.h"

#include "browse/ListeVide.h"
#include "ui/Composition.h"
#include "ui/Icones.h"

#include <QPainter>

namespace ui {

PageVide::PageVide(const Atelier& atelier, QWidget* parent)
    : QWidget(parent),
      m_atelier(atelier),
      m_signe(new QWidget),
      m_raison((new Etiquette)->avecTon(Ton::Discret)->avecPolice(1.15)->avecLignes(3)) {
    nomme(this, "framePageVide");
    m_signe->setFixedSize(96, 96);
    m_raison->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* boite = colonne(kGrand);
    boite->setContentsMargins(kLarge, kLarge, kLarge, kLarge);
    boite->addStretch(2);
    boite->addWidget(m_signe, 0, Qt::AlignHCenter);
    boite->addWidget(m_raison);
    boite->addStretch(3);
    setLayout(boite);
    hide();
}

void PageVide::suis(bool pageDesFilms) {
    const auto vide = browse::listeVide(m_atelier.etats().liste);
    if (vide) m_raison->setText(QString::fromStdString(vide->raison));
    setVisible(pageDesFilms && vide);
}

void PageVide::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintSigne(peintre, QRectF(m_signe->mapTo(this, QPoint()), m_signe->size()), palette());
}

}  // namespace ui
