#include "ui/FenetreExport.h"

#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/CoursExport.h"
#include "ui/DestinationExport.h"
#include "ui/EcranQt.h"
#include "ui/FenetreGuide.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QListWidget>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QRadioButton>

namespace ui {

namespace {

using exportation::Champ;
using exportation::Champs;

constexpr QSize kTaille{800, 560};

constexpr std::size_t rang(Sortie sortie) {
    return static_cast<std::size_t>(sortie);
}

Champs ceux(std::initializer_list<Champ> voulus) {
    Champs champs;
    for (const Champ champ : voulus)
        champs.met(champ);
    return champs;
}

// Who borrowed a film and where files lie is for the owner alone: a page and a catalogue are shown to others.
const Champs kPourMontrer =
    ceux({Champ::Titre, Champ::Realisateur, Champ::Annee, Champ::Origine, Champ::Genre, Champ::Duree, Champ::Acteurs,
          Champ::Resume, Champ::Note, Champ::Affiche, Champ::Support});

// Whether it only wants pages to look at: Qt gives the slot that paints them no other sign.
bool estUnApercu(const QPrinter& imprimante) {
    const QPaintEngine* moteur = imprimante.paintEngine();
    return moteur && moteur->type() == QPaintEngine::Picture;
}

}  // namespace

FenetreExport::FenetreExport(const Atelier& atelier, QWidget* parent)
    : QDialog(parent),
      m_atelier(atelier),
      m_champs(nomme(new QListWidget, "lstChampsExport", tr("Ce que l'on écrit de chaque film"))),
      m_miseEnPage(nomme(new ListeDeroulante, "cboMiseEnPage")),
      m_explication((new Etiquette)->avecTon(Ton::Discret)->avecLignes(5)),
      m_destination(new DestinationExport(atelier)),
      m_progression(nomme(new QProgressBar, "barreExport", tr("Avancement"))),
      m_arreter(bouton("cmdArreterExport", tr("&Arrêter"), tr("Arrêter ; rien n'est écrit (Échap)"))),
      m_apercu(bouton("cmdApercuExport", tr("Aperç&u…"), tr("Voir les premières pages"))),
      m_fermer(bouton("cmdFermerExport", tr("Fermer"), tr("Ne rien exporter (Échap)"))),
      m_exporter(bouton<BoutonAccent>("cmdFaireExport", tr("E&xporter"))) {
    nomme(this, "frmExport");
    setWindowTitle(tr("Exporter"));
    donneUnePage(atelier, this, "formats.html");
    setModal(true);
    m_champsDe.fill(kPourMontrer);
    m_champsDe[rang(Sortie::Tableau)] = Champs::tous();
    m_champsDe[rang(Sortie::Page)].met(Champ::Possede);
    m_contenu = new QWidget;
    auto* gauche = colonne(kMoyen);
    gauche->addLayout(quoi());
    gauche->addLayout(enQuoi());
    gauche->addStretch();
    auto* cotes = rangee({}, kLarge);
    cotes->addLayout(gauche, 1);
    cotes->addLayout(champs(), 1);
    auto* contenu = colonne(kMoyen);
    contenu->setContentsMargins(0, 0, 0, 0);
    contenu->addLayout(cotes, 1);
    contenu->addWidget(m_destination);
    m_contenu->setLayout(contenu);
    auto* boite = new QVBoxLayout(this);
    boite->setContentsMargins(kGrand, kGrand, kGrand, kGrand);
    boite->setSpacing(kMoyen);
    boite->addWidget(m_contenu, 1);
    boite->addLayout(pied());
    metTaille(this, kTaille);
    m_sorties[0]->setChecked(true);
    suisLaSortie();
    m_atelier.liaison.apresEcriture([this] { suisLeTravail(); });
}

QLayout* FenetreExport::quoi() {
    auto* boite = colonne(kSerre);
    auto* groupe = new QButtonGroup(this);
    boite->addWidget((new Etiquette(tr("Quels films ?")))->avecPolice(1.08, QFont::DemiBold));
    const char* const noms[] = {"optListe", "optChoisis", "optBase"};
    for (std::size_t i = 0; i < m_etendues.size(); ++i) {
        m_etendues[i] = nomme(new QRadioButton, noms[i]);
        groupe->addButton(m_etendues[i]);
        boite->addWidget(m_etendues[i]);
        connect(m_etendues[i], &QRadioButton::toggled, this, [this](bool choisie) {
            if (choisie) suisLaSortie();
        });
    }
    return boite;
}

QLayout* FenetreExport::enQuoi() {
    auto* boite = colonne(kSerre);
    auto* groupe = new QButtonGroup(this);
    boite->addWidget((new Etiquette(tr("En quoi ?")))->avecPolice(1.08, QFont::DemiBold));
    for (std::size_t i = 0; i < kSorties.size(); ++i) {
        m_sorties[i] = nomme(new QRadioButton(tr(kSorties[i].legende)), kSorties[i].nom);
        m_sorties[i]->setToolTip(tr(kSorties[i].infobulle));
        groupe->addButton(m_sorties[i]);
        boite->addWidget(m_sorties[i]);
        connect(m_sorties[i], &QRadioButton::toggled, this, [this](bool choisie) {
            if (choisie) suisLaSortie();
        });
    }
    boite->addWidget(m_explication);
    m_miseEnPage->addItems({tr("Fiches avec affiche"), tr("Liste en colonnes")});
    connect(m_miseEnPage, &QComboBox::currentIndexChanged, this, [this] { proposeLesChamps(); });
    m_cadrePapier = new QWidget;
    m_cadrePapier->setLayout(champ(tr("&Mise en page"), m_miseEnPage));
    m_cadrePapier->layout()->setContentsMargins(0, kPetit, 0, 0);
    boite->addWidget(m_cadrePapier);
    return boite;
}

QLayout* FenetreExport::champs() {
    for (std::size_t i = 0; i < exportation::kNombreDeChamps; ++i) {
        auto* ligne = new QListWidgetItem(QString::fromUtf8(exportation::kChamps[i].intitule), m_champs);
        ligne->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        ligne->setCheckState(Qt::Unchecked);
    }
    m_champs->setSpacing(1);
    connect(m_champs, &QListWidget::itemChanged, this, [this] { noteLesChamps(); });
    auto* boite = colonne(kSerre);
    boite->addWidget((new Etiquette(tr("Que dire de chaque film ?")))->avecPolice(1.08, QFont::DemiBold));
    boite->addWidget(m_champs, 1);
    return boite;
}

QLayout* FenetreExport::pied() {
    m_progression->setTextVisible(false);
    m_progression->setFixedHeight(8);
    m_progression->hide();
    m_arreter->hide();
    m_exporter->setDefault(true);
    m_atelier.ecran.laissePasser(m_arreter);
    connect(m_arreter, &QAbstractButton::clicked, &m_atelier.ecran, &EcranQt::demandeArret);
    connect(m_apercu, &QAbstractButton::clicked, this, &FenetreExport::apercu);
    connect(m_fermer, &QAbstractButton::clicked, this, &FenetreExport::reject);
    connect(m_exporter, &QAbstractButton::clicked, this, &FenetreExport::exporte);
    auto* boutons = rangee({m_progression, m_arreter});
    boutons->setStretch(0, 1);
    boutons->addStretch();
    boutons->addWidget(m_apercu);
    boutons->addWidget(m_fermer);
    boutons->addWidget(m_exporter);
    return boutons;
}

Sortie FenetreExport::sortie() const {
    for (std::size_t i = 0; i < kSorties.size(); ++i)
        if (m_sorties[i]->isChecked()) return static_cast<Sortie>(i);
    return Sortie::Tableau;
}

app::Etendue FenetreExport::etendue() const {
    return m_etendues[1]->isChecked()   ? app::Etendue::Choisis
           : m_etendues[2]->isChecked() ? app::Etendue::Base
                                        : app::Etendue::Liste;
}

// Extents without a film cannot be chosen; one that is chosen stays as long as it has some.
void FenetreExport::presente() {
    app::OffreDExport offre;
    m_atelier.execute([&](const app::Contexte& c) { offre = app::offreDExport(c); });
    const std::array<std::pair<QString, const std::string*>, 3> textes{{{tr("La &liste montrée"), &offre.liste},
                                                                        {tr("Les films &choisis"), &offre.choisis},
                                                                        {tr("Toute la &base"), &offre.base}}};
    for (std::size_t i = 0; i < textes.size(); ++i) {
        const auto& [debut, suite] = textes[i];
        const QString nom = QString::fromStdString(*suite).replace(QLatin1Char('&'), QLatin1String("&&"));
        m_etendues[i]->setText(suite->empty()
                                   ? debut
                                   : fontMetrics().elidedText(debut + QStringLiteral(" : ") + nom, Qt::ElideMiddle,
                                                              kTaille.width() / 2 - kLarge));
        m_etendues[i]->setEnabled(!suite->empty());
    }
    const auto coche = [&](const QRadioButton* etendue) { return etendue->isEnabled() && etendue->isChecked(); };
    if (std::none_of(m_etendues.begin(), m_etendues.end(), coche))
        for (QRadioButton* etendue : m_etendues)
            if (etendue->isEnabled()) {
                etendue->setChecked(true);
                break;
            }
    m_destination->oublieLaSaisie();
    suisLaSortie();
    open();
}

void FenetreExport::suisLaSortie() {
    m_montree = sortie();
    const SortieExport& celle = description(m_montree);
    const bool papier = celle.forme == SortieExport::Forme::Imprimante;
    const auto unFilm = [](const QRadioButton* etendue) { return etendue && etendue->isEnabled(); };
    m_explication->setText(tr(celle.explication));
    m_cadrePapier->setVisible(celle.enPages);
    m_destination->setVisible(!papier);
    m_apercu->setVisible(celle.enPages);
    m_exporter->setText(papier ? tr("Imp&rimer…") : tr("E&xporter"));
    m_exporter->setEnabled(std::any_of(m_etendues.begin(), m_etendues.end(), unFilm));
    m_apercu->setEnabled(m_exporter->isEnabled());
    proposeLesChamps();
    static const std::array<QString, 3> noms{tr("Liste de films"), tr("Films choisis"), tr("Tous les films")};
    m_destination->propose(
        m_montree, m_montree == Sortie::Fiches ? tr("Fiches d'Ambrelis") : noms[static_cast<std::size_t>(etendue())]);
}

// Those that the output has a place for.
void FenetreExport::proposeLesChamps() {
    const QSignalBlocker muet(m_champs);
    const Champs& voulus = m_champsDe[rang(m_montree)];
    for (int i = 0; i < m_champs->count(); ++i) {
        const auto champ = static_cast<Champ>(i);
        QListWidgetItem& ligne = *m_champs->item(i);
        ligne.setHidden(description(m_montree).enPages && !CatalogueSurPapier::montre(miseEnPage(), champ));
        ligne.setCheckState(m_montree == Sortie::Fiches
                                ? (champ <= Champ::Production || champ == Champ::Affiche ? Qt::Checked : Qt::Unchecked)
                            : voulus.contient(champ) ? Qt::Checked
                                                     : Qt::Unchecked);
    }
    m_champs->setEnabled(m_montree != Sortie::Fiches);
}

void FenetreExport::noteLesChamps() {
    Champs& champs = m_champsDe[rang(m_montree)];
    for (int i = 0; i < m_champs->count(); ++i)
        champs.met(static_cast<Champ>(i), m_champs->item(i)->checkState() == Qt::Checked);
}

MiseEnPage FenetreExport::miseEnPage() const {
    return m_miseEnPage->currentIndex() == 0 ? MiseEnPage::Fiches : MiseEnPage::Liste;
}

ExportVoulu FenetreExport::voulu() const {
    Champs champs = m_champsDe[rang(m_montree)];
    if (champs == Champs()) champs.met(Champ::Titre);  // a film is something at least
    return {m_montree, etendue(), champs, miseEnPage()};
}

void FenetreExport::exporte() {
    if (m_montree == Sortie::Papier) return imprime();
    const auto chemin = m_destination->cheminAccorde();
    if (!chemin || !travaille([&](const app::Contexte& c) { return exporteVers(c, voulu(), *chemin); })) return;
    m_destination->retiens(*chemin);
    accept();
}

// What it shows meanwhile is how far it is, and how to stop it.
bool FenetreExport::travaille(const std::function<bool(const app::Contexte&)>& travail) {
    bool fait = false;
    m_auTravail = true;
    m_atelier.execute([&](const app::Contexte& c) { fait = travail(c); });
    m_auTravail = false;
    suisLeTravail();
    return fait;
}

bool FenetreExport::surImprimante(QPrinter& imprimante) {
    return travaille([&](const app::Contexte& c) { return imprimeExport(c, voulu(), imprimante); });
}

void FenetreExport::imprime() {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setDocName(tr("Films"));
    metMarges(imprimante);
    QPrintDialog boite(&imprimante, this);
    boite.setWindowTitle(tr("Imprimer"));
    if (boite.exec() != QDialog::Accepted) return;
    if (surImprimante(imprimante)) accept();
}

// From the preview the whole catalogue can be printed.
void FenetreExport::apercu() {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setPageSize(QPageSize(QPageSize::A4));
    metMarges(imprimante);
    QPrintPreviewDialog boite(&imprimante, this);
    boite.setObjectName(QStringLiteral("frmApercuExport"));
    boite.setWindowTitle(tr("Aperçu avant impression (%1 premières pages au plus)").arg(kPagesDApercu));
    boite.resize(size().expandedTo({760, 560}));
    connect(&boite, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* demandee) {
        if (estUnApercu(*demandee))
            m_atelier.execute([&](const app::Contexte& c) { dessineApercu(c, voulu(), *demandee); });
        else
            static_cast<void>(surImprimante(*demandee));
    });
    boite.exec();
}

void FenetreExport::suisLeTravail() {
    const ecran::Progression& barre = m_atelier.etats().travaux.ProgressBar3;
    const bool travaille = m_auTravail;
    m_contenu->setEnabled(!travaille);
    for (QWidget* widget :
         {static_cast<QWidget*>(m_apercu), static_cast<QWidget*>(m_fermer), static_cast<QWidget*>(m_exporter)})
        widget->setEnabled(!travaille);
    m_progression->setVisible(travaille);
    m_arreter->setVisible(travaille);
    if (!travaille) return;
    m_progression->setRange(0, static_cast<int>(barre.Max));
    m_progression->setValue(static_cast<int>(barre.Value));
}

void FenetreExport::closeEvent(QCloseEvent* evenement) {
    if (m_auTravail) {
        m_atelier.ecran.demandeArret();
        return evenement->ignore();
    }
    QDialog::closeEvent(evenement);
}

void FenetreExport::reject() {
    if (m_auTravail)
        m_atelier.ecran.demandeArret();
    else
        QDialog::reject();
}

void ouvreExport(const Atelier& atelier, QWidget* widget) {
    QWidget* fenetre = widget->window();
    auto* boite = fenetre->findChild<FenetreExport*>();
    if (!boite) boite = new FenetreExport(atelier, fenetre);
    boite->presente();
}

}  // namespace ui
