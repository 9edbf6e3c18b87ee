#include "ui/PageCollection.h"

#include "ui/Composition.h"
#include "ui/Lecteur.h"

#include <QTimer>
#include <exception>
#include <utility>

namespace ui {

PageCollection::PageCollection(const Atelier& atelier, const char* nom, const QString& titre, const QString& aide)
    : m_atelier(atelier), m_contenu(colonne(kMoyen)), m_raison((new Etiquette)->avecLignes(3)) {
    nomme(this, nom, titre);
    auto* textes = colonne(2);
    textes->addWidget((new Etiquette(titre))->avecPolice(1.6, QFont::DemiBold));
    textes->addWidget((new Etiquette(aide))->avecTon(Ton::Discret)->avecLignes(2));
    auto* boite = colonne(kMoyen);
    boite->setContentsMargins(kPetit, kPetit, kGrand, kMoyen);
    boite->addLayout(textes);
    boite->addWidget(m_raison);
    boite->addLayout(m_contenu, 1);
    setLayout(boite);
    m_raison->hide();
    seLitCommeGroupe(this, titre);
}

void PageCollection::suis() {
    QTimer::singleShot(0, this, [this] { relisSiPerimee(); });  // what the command changed is painted first
}

// A command that began meanwhile has the base for itself; its end asks again.
void PageCollection::relisSiPerimee() {
    if (m_atelier.commande.enCours())
        connect(&m_atelier.commande, &Commande::lectureFinie, this, &PageCollection::suis,
                static_cast<Qt::ConnectionType>(Qt::UniqueConnection));
    if (!isVisible() || m_atelier.commande.enCours() || m_atelier.commande.finie()) return;
    m_atelier.session.regarde([this](const app::Contexte& c) {
        const Lecture lecture = Lecture::de(c);
        if (std::exchange(m_lu, lecture) == lecture) return;
        m_atelier.commande.lis([&] {
            try {
                ditPourquoi({});
                relis(c);
            } catch (const std::exception&) {
                ditPourquoi(tr("La base ne peut pas être lue pour le moment."));
            }
        });
    });
}

void PageCollection::ditPourquoi(const QString& raison) {
    m_raison->setText(raison);
    m_raison->setVisible(!raison.isEmpty());
    annonce(m_raison);
}

}  // namespace ui
