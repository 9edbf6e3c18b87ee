#include "ui/PagePrets.h"

#include "app/Collection.h"
#include "edit/LongueursChamps.h"
#include "ensemble/GestesDesPrets.h"
#include "platform/dao/Comparaison.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/Lecteur.h"
#include "ui/ListeDeSaisie.h"
#include "ui/TablePrets.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QCompleter>
#include <QGuiApplication>
#include <QSignalBlocker>
#include <QSpinBox>
#include <algorithm>

namespace ui {

namespace {

constexpr int kJoursAuPlus = 3650;

QString cleDuRetard() {
    return QStringLiteral("Prets/JoursDeRetard");
}

std::vector<db::CleFilm> filmsDe(const std::vector<ensemble::Pret>& prets) {
    std::vector<db::CleFilm> films;
    for (const ensemble::Pret& pret : prets)
        films.push_back(pret.film);
    return films;
}

QWidget* part(const QString& titre, QWidget* table, std::initializer_list<QWidget*> boutons) {
    auto* resultat = new QWidget;
    auto* tete = rangee({}, kPetit);
    tete->addWidget((new Etiquette(titre))->avecPolice(1.1, QFont::DemiBold), 1, Qt::AlignBottom);
    for (QWidget* bouton : boutons)
        tete->addWidget(bouton);
    auto* boite = colonne(kSerre);
    boite->setContentsMargins(0, 0, 0, 0);
    boite->addLayout(tete);
    boite->addWidget(table, 1);
    resultat->setLayout(boite);
    return resultat;
}

}  // namespace

PagePrets::PagePrets(const Atelier& atelier)
    : PageCollection(atelier, "PagePrets", tr("Prêts"),
                     tr("Qui a quel film et depuis quand, et qui attend quoi. Entrée ouvre la fiche.")) {
    contenu()->addLayout(entete());
    contenu()->addLayout(depart());
    contenu()->addWidget(m_vide = nomme((new Etiquette)->avecLignes(6), "lblAucunPret"));
    contenu()->addWidget(m_partPrets = prets(), 3);
    contenu()->addWidget(m_partReservations = reservations(), 2);
    contenu()->addStretch(0);
    m_vide->setText(
        tr("Pour prêter un film que vous possédez, choisissez-le dans la liste des titres (ou choisissez un groupe "
           "entier), "
           "revenez ici par Ctrl+L, tapez le nom de la personne et appuyez sur « Prêter ».\n"
           "Pour retenir un film au nom de quelqu'un, remplissez « Réservé pour » sur sa fiche."));
    atelier.liaison.apresEcriture([this] { suisLeChoix(); });
    suisLeChoix();
}

QLayout* PagePrets::entete() {
    m_bilan = nomme((new Etiquette)->avecLignes(2), "lblBilanPrets");
    m_retard = nomme(new QSpinBox, "JoursDeRetard");
    m_retard->setRange(1, kJoursAuPlus);
    m_retard->setSuffix(tr(" jours"));
    m_retard->setToolTip(tr("Au-delà de ce nombre de jours, un film prêté est marqué en retard"));
    m_retard->setValue(ensemble::kJoursDeRetard);
    connect(m_retard, &QSpinBox::valueChanged, this, [this](int jours) {
        if (m_interface) m_interface->note(cleDuRetard(), jours);
        m_prets->modele().metRetard(jours);
        montreLeBilan();
    });
    auto* ligne = rangee({}, kPetit);
    ligne->addWidget(m_bilan, 1, Qt::AlignVCenter);
    ligne->addWidget(legende(tr("En reta&rd après"), m_retard));
    ligne->addWidget(m_retard);
    return ligne;
}

QLayout* PagePrets::depart() {
    m_choix = nomme(new Etiquette, "lblAPreter");
    m_aQui = nomme(listeDeSaisie(), "PreterA");
    m_aQui->lineEdit()->setMaxLength(static_cast<int>(edit::kLongueurDivers));
    m_aQui->lineEdit()->setPlaceholderText(tr("nom de la personne"));
    m_aQui->setMinimumContentsLength(15);
    m_preter = bouton<BoutonAccent>("cmdPreter", tr("&Prêter"), tr("Prêter à cette personne, à partir d'aujourd'hui"));
    connect(m_preter, &QPushButton::clicked, this, &PagePrets::prete);
    connect(m_aQui->lineEdit(), &QLineEdit::returnPressed, this, [this] {
        QAbstractItemView* suggestions = m_aQui->completer()->popup();
        if (suggestions->isVisible() && suggestions->currentIndex().isValid()) return;  // Enter takes that one
        suggestions->hide();
        prete();
    });
    auto* ligne = rangee({}, kPetit);
    ligne->addWidget(m_choix);
    m_aQui->setAccessibleName(tr("Prêter à qui"));
    ligne->addWidget(legende(tr("à q&ui"), m_aQui));
    ligne->addWidget(m_aQui);
    ligne->addWidget(m_preter);
    ligne->addStretch();
    return ligne;
}

QWidget* PagePrets::prets() {
    m_prets = new TablePrets(ModelePrets::Sorte::Prets, "lstPrets", tr("Films prêtés"));
    m_rendu = bouton("cmdRendu", tr("Re&ndu"), tr("Les films choisis sont revenus"));
    m_rappel = bouton("cmdRappel", tr("&Copier un rappel"),
                      tr("Copier un petit mot pour les personnes choisies, avec tous les films qu'elles ont, à coller "
                         "dans un message"));
    connect(m_rendu, &QPushButton::clicked, this, &PagePrets::rend);
    connect(m_rappel, &QPushButton::clicked, this, &PagePrets::copieUnRappel);
    connect(m_prets, &TablePrets::ficheDemandee, this, &PagePrets::montreLaFiche);
    connect(m_prets, &TablePrets::choixChange, this, &PagePrets::activeLesBoutons);
    return part(tr("Prêtés"), m_prets, {m_rappel, m_rendu});
}

QWidget* PagePrets::reservations() {
    m_reservations = new TablePrets(ModelePrets::Sorte::Reservations, "lstReservations", tr("Films réservés"));
    m_servir = bouton("cmdPreterAQuiAttend", tr("Prêter à qui l'att&end"),
                      tr("Les films choisis, qui sont à leur place, partent chez ceux qui les ont réservés"));
    connect(m_servir, &QPushButton::clicked, this, &PagePrets::preteAQuiAttend);
    connect(m_reservations, &TablePrets::ficheDemandee, this, &PagePrets::montreLaFiche);
    connect(m_reservations, &TablePrets::choixChange, this, &PagePrets::activeLesBoutons);
    return part(tr("Réservés"), m_reservations, {m_servir});
}

void PagePrets::relis(const app::Contexte& c) {
    if (!m_interface) {
        m_interface.emplace(c.chemins.dossier);
        const QSignalBlocker muet(m_retard);
        m_retard->setValue(m_interface->nombre(cleDuRetard(), ensemble::kJoursDeRetard, 1, kJoursAuPlus));
    }
    m_bureau = ensemble::bureauDesPrets(c);
    m_prets->modele().remplit(m_bureau.prets, m_retard->value());
    m_reservations->modele().remplit(m_bureau.reservations, m_retard->value());
    const QString tape = m_aQui->currentText();
    m_aQui->clear();
    for (const std::string& personne : ensemble::personnes(m_bureau))
        m_aQui->addItem(QString::fromStdString(personne));
    m_aQui->setCurrentIndex(-1);
    m_aQui->setEditText(tape);
    m_vide->setVisible(m_bureau.prets.empty());
    m_partPrets->setVisible(!m_bureau.prets.empty());
    m_partReservations->setVisible(!m_bureau.reservations.empty());
    montreLeBilan();
}

void PagePrets::montreLeBilan() {
    const QString bilan = QString::fromStdString(ensemble::bilan(m_bureau, m_retard->value()));
    if (bilan == m_bilan->text()) return;
    m_bilan->setText(bilan);
    annonce(m_bilan);
}

// What "Prêter" would lend. The tree is beside the page: another choice there is told here.
void PagePrets::suisLeChoix() {
    const std::string choix =
        ensemble::texteDuChoix(atelier().etats().liste.TreeView1, atelier().etats().filtre.titres);
    m_choix->setText(choix.empty() ? tr("Choisissez un film de la liste")
                                   : tr("Prêter %1").arg(QString::fromStdString(choix)));
    m_aQui->setEnabled(!choix.empty());
    m_preter->setEnabled(!choix.empty());
}

void PagePrets::activeLesBoutons() {
    const auto active = [](QPushButton* bouton, bool actif, QWidget* sinon) {
        if (!actif && bouton->hasFocus()) sinon->setFocus(Qt::OtherFocusReason);
        bouton->setEnabled(actif);
    };
    const bool prets = m_prets->selectionModel()->hasSelection();
    active(m_rendu, prets, m_prets);
    active(m_rappel, prets, m_prets);
    active(m_servir, m_reservations->selectionModel()->hasSelection(), m_reservations);
}

void PagePrets::prete() {
    const QString nom = m_aQui->currentText();
    if (nom.trimmed().isEmpty()) return m_aQui->setFocus(Qt::OtherFocusReason);
    const auto prete = [&](const app::Contexte& c) {
        ensemble::cmdPreter_Click(c, c.etats.filtre.titres, nom.toStdString());
    };
    if (atelier().execute(prete) == Commande::Issue::Faite) m_aQui->setEditText({});
}

void PagePrets::rend() {
    atelier().execute(ensemble::cmdRendu_Click, filmsDe(m_prets->choisis()));
}

void PagePrets::preteAQuiAttend() {
    atelier().execute(ensemble::cmdPreterAQuiAttend_Click, filmsDe(m_reservations->choisis()));
}

void PagePrets::copieUnRappel() {
    std::vector<std::string> noms;
    for (const ensemble::Pret& pret : m_prets->choisis())
        if (std::ranges::none_of(noms, [&](const std::string& nom) { return dao::egalJet(nom, pret.aQui); }))
            noms.push_back(pret.aQui);
    if (noms.empty()) return;
    std::string texte;
    for (const std::string& nom : noms)
        texte += (texte.empty() ? "" : "\n") + ensemble::texteDuRappel(m_bureau.prets, nom);
    QGuiApplication::clipboard()->setText(QString::fromStdString(texte));
    const std::string pour = noms.size() == 1 ? noms.front() : std::to_string(noms.size()) + " personnes";
    atelier().execute([pour](const ensemble::Contexte& c) {
        c.avis.montre("Rappel pour " + pour + " copié : collez-le dans un message.");
    });
}

void PagePrets::montreLaFiche(const db::CleFilm& film) {
    atelier().execute(app::montreLeFilm, film);
}

}  // namespace ui
