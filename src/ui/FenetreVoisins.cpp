#include "ui/FenetreVoisins.h"

#include "platform/fichiers/Fichiers.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/DelegueLignes.h"
#include "ui/FenetreGuide.h"
#include "ui/FenetreTableau.h"
#include "ui/ModeleVoisins.h"
#include "voisins/ImporteCollection.h"

#include <QHeaderView>
#include <QShortcut>
#include <QTreeView>
#include <functional>
#include <memory>

namespace ui {

namespace {

constexpr QSize kTaille{900, 580};

QTreeView* liste(ModeleVoisins* modele) {
    QTreeView* vue = vueDeLignes("lstVoisins", FenetreVoisins::tr("Les films de la collection"), modele);
    vue->setUniformRowHeights(true);
    vue->header()->setStretchLastSection(false);
    vue->header()->setSectionResizeMode(QHeaderView::Stretch);
    vue->header()->setSectionResizeMode(ModeleVoisins::Annee, QHeaderView::ResizeToContents);
    if (modele->rowCount() > 0) vue->setCurrentIndex(modele->index(0, 0));
    return vue;
}

QCheckBox* option(const char* nom, const QString& texte, const QString& infobulle, bool oui) {
    auto* resultat = nomme(new QCheckBox(texte), nom);
    resultat->setToolTip(infobulle);
    resultat->setChecked(oui);
    return resultat;
}

// What the choice leads to: the columns of a table first, else the films.
void ouvreExamen(const Atelier& atelier, QWidget* widget,
                 const std::function<std::optional<voisins::CollectionChoisie>(const acquire::Contexte&)>& choisit) {
    std::optional<voisins::CollectionChoisie> choisie;
    std::optional<voisins::Examen> examen;
    std::optional<voisins::Tableau> tableau;
    atelier.execute([&](const app::Contexte& c) {
        choisie = choisit(c);
        if (!choisie) return;
        if (choisie->programme == voisins::Programme::Csv)
            tableau = voisins::litTableauChoisi(c, choisie->chemin);
        else
            examen = voisins::examineCollection(c, choisie->chemin);
    });
    if (tableau) (new FenetreTableau(atelier, std::move(*tableau), widget->window()))->open();
    if (examen) (new FenetreVoisins(atelier, std::move(*examen), widget->window()))->open();
}

}  // namespace

FenetreVoisins::FenetreVoisins(const Atelier& atelier, voisins::Examen examen, QWidget* parent)
    : QDialog(parent),
      m_atelier(atelier),
      m_modele(new ModeleVoisins(std::move(examen))),
      m_possedes(option("chkVoisinsPossedes", tr("Ce sont des films que je &possède"),
                        tr("Chaque film ajouté reçoit un exemplaire, même si la collection n'en dit rien"),
                        m_modele->examen().possedes)),
      m_complete(
          option("chkVoisinsCompletes", tr("&Compléter les films déjà là"),
                 tr("Leur donner ce qui leur manque : champs vides, exemplaire, affiche ; le reste ne change pas"),
                 m_modele->examen().complete)),
      m_importer(bouton<BoutonAccent>("cmdImporterVoisins", tr("&Importer"))) {
    nomme(this, "frmVoisins");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Importer une autre collection"));
    donneUnePage(atelier, this, "autres.html");
    auto* tout = bouton("cmdVoisinsTout", tr("&Tout cocher"), tr("Ajouter aussi les films qui ressemblent à un autre"));
    auto* rien = bouton("cmdVoisinsRien", tr("Tout &décocher"));
    auto* fermer = bouton("cmdFermerVoisins", tr("Fermer"), tr("Ne rien importer (Échap)"));
    connect(tout, &QAbstractButton::clicked, m_modele, [this] { m_modele->cocheTout(true); });
    connect(rien, &QAbstractButton::clicked, m_modele, [this] { m_modele->cocheTout(false); });
    connect(fermer, &QAbstractButton::clicked, this, &QDialog::reject);
    connect(m_importer, &QAbstractButton::clicked, this, &FenetreVoisins::importe);
    for (QCheckBox* celle : {m_possedes, m_complete})
        connect(celle, &QCheckBox::toggled, m_modele,
                [this] { m_modele->metOptions(m_possedes->isChecked(), m_complete->isChecked()); });
    connect(m_modele, &ModeleVoisins::change, this, &FenetreVoisins::suis);
    m_importer->setDefault(true);
    QTreeView* vue = liste(m_modele);
    auto* espace = new QShortcut(Qt::Key_Space, vue, nullptr, nullptr, Qt::WidgetShortcut);
    connect(espace, &QShortcut::activated, m_modele, [this, vue] { m_modele->bascule(vue->currentIndex()); });
    auto* texte =
        nomme((new Etiquette(QString::fromStdString(m_modele->examen().texte())))->avecLignes(6), "lblVoisins");
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kMoyen);
    boite->addWidget(texte);
    boite->addWidget(vue, 1);
    auto* choix = rangee({m_possedes, m_complete}, kGrand);
    choix->addStretch();
    boite->addLayout(choix);
    auto* boutons = rangee({tout, rien});
    boutons->addStretch();
    boutons->addWidget(fermer);
    boutons->addWidget(m_importer);
    boite->addLayout(boutons);
    m_complete->setEnabled(m_modele->examen().nombre(edit::SortDuFilm::DejaLa) > 0);
    metTaille(this, kTaille);
    suis();
}

void FenetreVoisins::suis() {
    const long films = m_modele->examen().aAjouter();
    m_importer->setEnabled(m_modele->examen().aDeQuoiFaire());
    m_importer->setText(films == 0   ? tr("&Importer")
                        : films == 1 ? tr("&Importer 1 film")
                                     : tr("&Importer %1 films").arg(films));
}

// The window makes room for the command's progress and report.
void FenetreVoisins::importe() {
    const voisins::Examen examen = m_modele->examen();
    const Atelier atelier = m_atelier;
    accept();
    atelier.execute([&examen](const app::Contexte& c) { voisins::importeCollection(c, examen); });
}

void ouvreImportDeCollection(const Atelier& atelier, QWidget* widget, bool unDossier, std::string& depart) {
    ouvreExamen(atelier, widget, [&](const acquire::Contexte& c) {
        const auto choisie = voisins::choisitCollection(c, unDossier, depart);
        if (choisie) depart = unDossier ? choisie->chemin : fichiers::dossierDe(choisie->chemin);
        return choisie;
    });
}

void ouvreImportDeposee(const Atelier& atelier, QWidget* widget, const std::string& chemin) {
    ouvreExamen(atelier, widget, [&](const acquire::Contexte& c) { return voisins::reconnaitCollection(c, chemin); });
}

}  // namespace ui
