#include "ui/FenetreApercu.h"

#include "edit/ModifieGroupe.h"
#include "edit/cmdPonctuation_Click.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/DelegueLignes.h"
#include "ui/FenetreGuide.h"
#include "ui/Lecteur.h"
#include "ui/ModeleApercu.h"

#include <QHeaderView>
#include <QTreeView>
#include <exception>

namespace ui {

namespace {

constexpr QSize kTaille{760, 520};
constexpr int kReposDeLaFrappe = 250;  // milliseconds after which what is typed is looked at

// Of titles, what is before is the film.
QTreeView* liste(ModeleApercu* modele, bool desTitres) {
    QTreeView* vue = vueDeLignes("lstApercu", FenetreApercu::tr("Ce qui changera, avant et après"), modele);
    vue->setUniformRowHeights(true);
    vue->header()->setSectionResizeMode(QHeaderView::Stretch);
    vue->setColumnHidden(ModeleApercu::Film, desTitres);
    if (desTitres) vue->header()->moveSection(ModeleApercu::Realisateur, ModeleApercu::Apres);
    return vue;
}

}  // namespace

FenetreApercu::FenetreApercu(const Atelier& atelier, Sujet sujet, QWidget* parent)
    : QDialog(parent),
      m_atelier(atelier),
      m_sujet(std::move(sujet)),
      m_modele(new ModeleApercu),
      m_liste(liste(m_modele, !m_sujet.apercuDe)),
      m_texte(nomme((new Etiquette)->avecLignes(4), "lblApercu")),
      m_executer(bouton<BoutonAccent>("cmdExecuterApercu", m_sujet.executer)) {
    nomme(this, "frmApercu");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(m_sujet.titre);
    donneUnePage(atelier, this, "ordre.html#apercus");
    auto* fermer = bouton("cmdFermerApercu", tr("Fermer"), tr("Ne rien changer (Échap)"));
    connect(fermer, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(m_executer, &QAbstractButton::clicked, this, &FenetreApercu::execute);
    m_executer->setDefault(true);
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kMoyen);
    if (m_sujet.apercuDe) boite->addLayout(saisie());
    boite->addWidget(m_texte);
    boite->addWidget(m_liste, 1);
    auto* boutons = rangee({});
    boutons->addStretch();
    boutons->addWidget(fermer);
    boutons->addWidget(m_executer);
    boite->addLayout(boutons);
    metTaille(this, kTaille);
    montre(m_sujet.apercu);
}

QLayout* FenetreApercu::saisie() {
    m_nom = nomme(new QLineEdit(QString::fromStdString(m_sujet.nom)), "txtApercu");
    m_nom->selectAll();
    m_repos.setSingleShot(true);
    m_repos.setInterval(kReposDeLaFrappe);
    connect(m_nom, &QLineEdit::textEdited, this, [this] {
        m_executer->setEnabled(false);
        m_repos.start();
    });
    connect(&m_repos, &QTimer::timeout, this, &FenetreApercu::regarde);
    return champ(tr("Nouveau &nom"), m_nom);
}

void FenetreApercu::regarde() {
    if (m_atelier.commande.enCours()) return m_repos.start();
    const std::string nom = m_nom->text().toStdString();
    try {
        montre(m_atelier.session.regarde([&](const app::Contexte& c) { return m_sujet.apercuDe(c, nom); }));
    } catch (const std::exception&) {
        montre({.texte = tr("La base ne peut pas être lue pour le moment.").toStdString()});
    }
}

void FenetreApercu::montre(ensemble::Apercu apercu) {
    m_texte->setText(QString::fromStdString(apercu.texte));
    annonce(m_texte);
    m_executer->setEnabled(!apercu.changements.empty());
    m_modele->met(std::move(apercu.changements));
    m_liste->setCurrentIndex(m_modele->index(0, 0));
}

// The window makes room for the command's own questions.
void FenetreApercu::execute() {
    const auto commande = m_sujet.commande;
    const std::string nom = m_nom ? m_nom->text().toStdString() : std::string();
    accept();
    commande(nom);
}

void ouvreApercuDesTitres(const Atelier& atelier, QWidget* widget) {
    std::optional<ensemble::Apercu> apercu;
    atelier.execute([&](const app::Contexte& c) { apercu = ensemble::apercuDesTitres(c); });
    if (!apercu) return;
    (new FenetreApercu(atelier,
                       {.titre = FenetreApercu::tr("Aperçu de la correction des titres"),
                        .executer = FenetreApercu::tr("Corriger les titres…"),
                        .apercu = std::move(*apercu),
                        .commande = [atelier](const std::string&) { atelier.execute(edit::cmdPonctuation_Click); }},
                       widget->window()))
        ->open();
}

void ouvreApercuDuRenommage(const Atelier& atelier, QWidget* widget, bool personnel) {
    std::string genre, support;
    atelier.execute([&](const app::Contexte& c) { edit::RecupereInfosGroupeSelectionne(c, genre, support); });
    FenetreApercu::Sujet sujet{.titre = FenetreApercu::tr("Aperçu du renommage"),
                               .executer = FenetreApercu::tr("Renommer…"),
                               .commande = [atelier, personnel](const std::string& nom) {
                                   atelier.execute(edit::RenommeEnProposant, personnel, nom);
                               }};
    sujet.apercu.texte =
        FenetreApercu::tr("Entrez un nom : ce qui changera s'affiche ici, et rien ne change encore.").toStdString();
    sujet.nom = personnel ? support : genre;
    sujet.apercuDe = [personnel](const app::Contexte& c, const std::string& nom) {
        return ensemble::apercuDuGroupe(c, personnel ? "Support" : "Genre", nom, personnel);
    };
    (new FenetreApercu(atelier, std::move(sujet), widget->window()))->open();
}

}  // namespace ui
