#include "ui/PageCeSoir.h"

#include "app/Collection.h"
#include "browse/PageDuGroupe.h"
#include "ui/Boutons.h"
#include "ui/Cartes.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"
#include "ui/Vignette.h"

#include <QRandomGenerator>
#include <QSignalBlocker>

namespace ui {

namespace {

constexpr int kLargeurMin = 90, kLargeurMax = 260;  // of the poster

std::size_t auHasard(std::size_t combien) {
    return static_cast<std::size_t>(QRandomGenerator::global()->bounded(static_cast<quint64>(combien)));
}

QComboBox* choix(const char* nom, const QString& pourLecteur, std::initializer_list<std::pair<QString, int>> entrees) {
    auto* liste = nomme(new ListeDeroulante, nom, pourLecteur);
    liste->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const auto& [texte, valeur] : entrees)
        liste->addItem(texte, valeur);
    return liste;
}

}  // namespace

PageCeSoir::PageCeSoir(const Atelier& atelier)
    : PageCollection(atelier, "PageCeSoir", tr("Que regarder ce soir ?"),
                     tr("Un film au hasard parmi ceux que vous possédez et qui ne sont pas prêtés. Bornez le choix "
                        "si vous voulez ; « Un autre » en propose un autre.")) {
    contenu()->addLayout(envies());
    contenu()->addWidget(m_nombre = nomme((new Etiquette)->avecTon(Ton::Discret)->avecLignes(2), "lblNombreCeSoir"));
    contenu()->addLayout(proposition());
    contenu()->addStretch(1);
}

QLayout* PageCeSoir::envies() {
    m_duree = choix("DureeCeSoir", tr("Durée"),
                    {{tr("Peu importe"), 0},
                     {tr("1 h 30 au plus"), 90},
                     {tr("2 h au plus"), 120},
                     {tr("2 h 30 au plus"), 150},
                     {tr("3 h au plus"), 180}});
    m_genre = choix("GenreCeSoir", tr("Genre"), {{tr("Peu importe"), 0}});
    m_note = choix("NoteCeSoir", tr("Note"), {{tr("Peu importe"), 0}});
    for (const int note : {9, 8, 7, 6, 5})
        m_note->addItem(tr("%1/10 au moins").arg(note), note);
    auto* ligne = rangee({}, kGrand);
    ligne->addLayout(champ(tr("D&urée"), m_duree));
    ligne->addLayout(champ(tr("&Genre"), m_genre));
    ligne->addLayout(champ(tr("&Note"), m_note));
    ligne->addStretch();
    for (QComboBox* liste : {m_duree, m_genre, m_note})
        connect(liste, &QComboBox::currentIndexChanged, this, [this] {
            perime();
            suis();
        });
    return ligne;
}

QLayout* PageCeSoir::proposition() {
    m_titre = nomme((new Etiquette)->avecPolice(1.6, QFont::DemiBold)->avecLignes(3), "lblFilmCeSoir");
    m_texte = nomme((new Etiquette)->avecLignes(6), "lblTexteCeSoir");
    m_autre = bouton<BoutonAccent>("cmdUnAutre", tr("Un &autre"), tr("Proposer un autre film"));
    m_fiche = bouton("cmdFicheCeSoir", tr("Voir la &fiche"), tr("Montrer la fiche de ce film"));
    m_affiche = nomme(new Vignette(this), "AfficheCeSoir", tr("Affiche"));
    m_affiche->setFixedSize(kLargeurMax, Vignette::hauteurPour(kLargeurMax, fontMetrics()));
    const auto montre = [this] {
        if (m_film) atelier().execute(app::montreLeFilm, m_film->film);
    };
    connect(m_fiche, &QPushButton::clicked, this, montre);
    connect(m_affiche, &QAbstractButton::clicked, this, montre);
    connect(m_autre, &QPushButton::clicked, this,
            [this] { atelier().session.regarde([this](const app::Contexte& c) { propose(c); }); });

    auto* droite = colonne(kMoyen);
    droite->addWidget(m_titre);
    droite->addWidget(m_texte);
    auto* boutons = rangee({m_autre, m_fiche}, kPetit);
    boutons->addStretch();
    droite->addLayout(boutons);
    droite->addStretch();
    auto* ligne = rangee({}, kLarge);
    ligne->addWidget(m_affiche, 0, Qt::AlignTop);
    ligne->addLayout(droite, 1);
    return ligne;
}

// The poster takes what the page has left below its questions.
void PageCeSoir::resizeEvent(QResizeEvent* evenement) {
    PageCollection::resizeEvent(evenement);
    layout()->activate();
    const int place = height() - m_affiche->y() - kMoyen - Vignette::hauteurPour(0, fontMetrics());
    const int largeur = std::clamp(place * 2 / 3, kLargeurMin, kLargeurMax);
    m_affiche->setFixedSize(largeur, Vignette::hauteurPour(largeur, fontMetrics()));
}

void PageCeSoir::relis(const app::Contexte& c) {
    const QSignalBlocker muette(m_genre);
    const QString voulu = m_genre->currentIndex() > 0 ? m_genre->currentText() : QString();
    while (m_genre->count() > 1)
        m_genre->removeItem(1);
    for (const std::string& genre : ensemble::genresPossedes(c))
        m_genre->addItem(QString::fromStdString(genre));
    m_genre->setCurrentIndex(std::max(0, voulu.isEmpty() ? 0 : m_genre->findText(voulu, Qt::MatchExactly)));
    tire(c);
}

void PageCeSoir::tire(const app::Contexte& c) {
    ensemble::Envies envies;
    envies.minutesAuPlus = m_duree->currentData().toInt();
    envies.noteAuMoins = m_note->currentData().toInt();
    if (m_genre->currentIndex() > 0) envies.genre = m_genre->currentText().toStdString();
    m_tirage.emplace(c, envies, auHasard);
    m_nombre->setText(QString::fromStdString(m_tirage->texteDuNombre()));
    propose(c);
}

void PageCeSoir::propose(const app::Contexte& c) {
    m_film = m_tirage ? m_tirage->prochain() : std::nullopt;
    for (QWidget* widget :
         {static_cast<QWidget*>(m_titre), static_cast<QWidget*>(m_texte), static_cast<QWidget*>(m_affiche),
          static_cast<QWidget*>(m_autre), static_cast<QWidget*>(m_fiche)})
        widget->setVisible(m_film.has_value());
    if (!m_film) return;
    m_autre->setEnabled(m_tirage->nombre() > 1);
    m_titre->setText(QString::fromStdString(m_film->film.titre));
    m_texte->setText(QString::fromStdString(m_film->texte()));
    annonce(m_titre);
    m_affiche->metTitre(QString::fromStdString(m_film->film.titre));
    const auto octets = browse::afficheDuFilm(c, m_film->film);
    m_affiche->chargeAffiche(octets ? QByteArray::fromStdString(*octets) : QByteArray());
}

}  // namespace ui
