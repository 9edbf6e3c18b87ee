#include "ui/FenetreExport.h"

#include "export/DernierExport.h"
#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Remplacement.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/EcranQt.h"
#include "ui/FenetreGuide.h"
#include "ui/ImagesQt.h"
#include "ui/Interface.h"
#include "util/Nombres.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <QBuffer>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QDir>
#include <QListWidget>
#include <QPaintEngine>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QRadioButton>
#include <QStandardPaths>

namespace ui {

namespace {

using exportation::Bilan;
using exportation::Champ;
using exportation::Champs;

constexpr QSize kTaille{800, 560};
const QString kCleDossier = QStringLiteral("Export/dossier");
constexpr int kPagesDApercu = 40, kResolutionPdf = 600;
constexpr qreal kMarge = 15;  // millimetres
constexpr int kToutesLesPages = std::numeric_limits<int>::max();

struct Format {
    const char *legende, *infobulle, *extension, *explication;
};
constexpr std::array<Format, FenetreExport::kSorties> kFormats{{
    {QT_TRANSLATE_NOOP("ui::FenetreExport", "&Tableau (CSV)"),
     QT_TRANSLATE_NOOP("ui::FenetreExport", "Pour un tableur, ou un autre programme"), ".csv",
     QT_TRANSLATE_NOOP("ui::FenetreExport",
                       "Une ligne par film et par exemplaire, pour LibreOffice ou un autre tableur. Ambrelis sait la "
                       "relire.")},
    {QT_TRANSLATE_NOOP("ui::FenetreExport", "Page &web (HTML)"),
     QT_TRANSLATE_NOOP("ui::FenetreExport", "Un seul fichier, à montrer ou à envoyer"), ".html",
     QT_TRANSLATE_NOOP("ui::FenetreExport",
                       "Une page d'un seul fichier, avec les affiches, où l'on cherche et que l'on imprime.")},
    {QT_TRANSLATE_NOOP("ui::FenetreExport", "Document &PDF"),
     QT_TRANSLATE_NOOP("ui::FenetreExport", "Un catalogue en pages"), ".pdf",
     QT_TRANSLATE_NOOP("ui::FenetreExport", "Un catalogue en pages A4.")},
    {QT_TRANSLATE_NOOP("ui::FenetreExport", "&Imprimante"),
     QT_TRANSLATE_NOOP("ui::FenetreExport", "Un catalogue sur papier"), "",
     QT_TRANSLATE_NOOP("ui::FenetreExport", "Un catalogue sur papier.")},
    {QT_TRANSLATE_NOOP("ui::FenetreExport", "&Fiches .FILM"),
     QT_TRANSLATE_NOOP("ui::FenetreExport", "Un dossier de fiches et d'affiches, à importer ailleurs"), "",
     QT_TRANSLATE_NOOP(
         "ui::FenetreExport",
         "Un nouveau dossier de fiches et d'affiches, que l'on importe ailleurs. La note, la date d'ajout "
         "et ce qui touche aux exemplaires n'y ont pas de place.")},
}};

constexpr std::size_t rang(FenetreExport::Sortie sortie) {
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

// A stream that Qt writes to and that a file is made of in the end.
class Flot final : public QIODevice {
  public:
    explicit Flot(fichiers::Remplacement& fichier) : m_fichier(fichier) { open(QIODevice::WriteOnly); }
    bool isSequential() const override { return true; }

  protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* octets, qint64 nombre) override {
        return m_fichier.ecrit({octets, static_cast<std::size_t>(nombre)}) ? nombre : -1;
    }

  private:
    fichiers::Remplacement& m_fichier;
};

exportation::Vignette reduit(const std::string& octets, int largeur) {
    constexpr int kQualite = 78;
    const QImage image = afficheReduite(QByteArray::fromRawData(octets.data(), static_cast<qsizetype>(octets.size())),
                                        {largeur, 2 * largeur});
    exportation::Vignette vignette;
    if (image.isNull()) return vignette;
    QByteArray jpeg;
    QBuffer tampon(&jpeg);
    tampon.open(QIODevice::WriteOnly);
    if (!image.save(&tampon, "JPG", kQualite)) return vignette;
    vignette.jpeg = jpeg.toStdString();
    vignette.largeur = image.width();
    vignette.hauteur = image.height();
    return vignette;
}

// Whether it only wants pages to look at: Qt gives the slot that paints them no other sign.
bool estUnApercu(const QPrinter& imprimante) {
    const QPaintEngine* moteur = imprimante.paintEngine();
    return moteur && moteur->type() == QPaintEngine::Picture;
}

void metMarges(QPagedPaintDevice& papier) {
    papier.setPageMargins({kMarge, kMarge, kMarge, kMarge}, QPageLayout::Millimeter);
}

}  // namespace

FenetreExport::FenetreExport(const Atelier& atelier, QWidget* parent)
    : QDialog(parent),
      m_atelier(atelier),
      m_champs(nomme(new QListWidget, "lstChampsExport", tr("Ce que l'on écrit de chaque film"))),
      m_miseEnPage(nomme(new ListeDeroulante, "cboMiseEnPage")),
      m_explication((new Etiquette)->avecTon(Ton::Discret)->avecLignes(5)),
      m_chemin(nomme(new QLineEdit, "txtCheminExport")),
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
    choisisLeDossier();
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
    contenu->addLayout(ou());
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
    const char* const noms[] = {"optCsv", "optHtml", "optPdf", "optPapier", "optFiches"};
    for (std::size_t i = 0; i < kSorties; ++i) {
        m_sorties[i] = nomme(new QRadioButton(tr(kFormats[i].legende)), noms[i]);
        m_sorties[i]->setToolTip(tr(kFormats[i].infobulle));
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

QLayout* FenetreExport::ou() {
    auto* parcourir = bouton("cmdParcourirExport", tr("Pa&rcourir…"), tr("Choisir où écrire"));
    connect(parcourir, &QAbstractButton::clicked, this, &FenetreExport::parcourt);
    connect(m_chemin, &QLineEdit::textEdited, this, [this] { m_remplacable.clear(); });
    m_cadreOu = new QWidget;
    auto* saisie = rangee({m_chemin, parcourir});
    auto* boite = colonne(kSerre);
    boite->setContentsMargins(0, 0, 0, 0);
    boite->addWidget(legende(tr("&Où ?"), m_chemin));
    boite->addLayout(saisie);
    m_cadreOu->setLayout(boite);
    auto* cadre = colonne(0);
    cadre->addWidget(m_cadreOu);
    return cadre;
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

void FenetreExport::choisisLeDossier() {
    const std::string programme = m_atelier.session.regarde([](const app::Contexte& c) { return c.chemins.dossier; });
    for (const QString& dossier :
         {Interface(programme).texte(kCleDossier), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
          QDir::homePath()}) {
        m_dossier = dossier;
        if (!dossier.isEmpty() && QDir(dossier).exists()) return;
    }
}

void FenetreExport::retiensLeDossier(const std::string& chemin) {
    m_dossier = QFileInfo(QString::fromStdString(chemin)).absolutePath();
    Interface(m_atelier.session.regarde([](const app::Contexte& c) {
        return c.chemins.dossier;
    })).note(kCleDossier, m_dossier);
}

FenetreExport::Sortie FenetreExport::sortie() const {
    for (std::size_t i = 0; i < kSorties; ++i)
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
    m_remplacable.clear();
    m_chemin->setModified(false);
    suisLaSortie();
    open();
}

void FenetreExport::suisLaSortie() {
    m_montree = sortie();
    const bool papier = m_montree == Sortie::Papier, pages = papier || m_montree == Sortie::Pdf;
    const auto unFilm = [](const QRadioButton* etendue) { return etendue && etendue->isEnabled(); };
    m_explication->setText(tr(kFormats[rang(m_montree)].explication));
    m_cadrePapier->setVisible(pages);
    m_cadreOu->setVisible(!papier);
    m_apercu->setVisible(pages);
    m_exporter->setText(papier ? tr("Imp&rimer…") : tr("E&xporter"));
    m_exporter->setEnabled(std::any_of(m_etendues.begin(), m_etendues.end(), unFilm));
    m_apercu->setEnabled(m_exporter->isEnabled());
    proposeLesChamps();
    const QString extension = QString::fromLatin1(kFormats[rang(m_montree)].extension);
    if (!m_chemin->isModified()) {
        static const std::array<QString, 3> noms{tr("Liste de films"), tr("Films choisis"), tr("Tous les films")};
        const QString nom =
            m_montree == Sortie::Fiches ? tr("Fiches d'Ambrelis") : noms[static_cast<std::size_t>(etendue())];
        m_chemin->setText(m_dossier + QLatin1Char('/') + nom + extension);
    } else if (!extension.isEmpty()) {
        const std::string sans = fichiers::sansExtension(m_chemin->text().toStdString());
        m_chemin->setText(QString::fromStdString(sans) + extension);
        m_chemin->setModified(true);
    }
    m_remplacable.clear();
}

// Those that the output has a place for.
void FenetreExport::proposeLesChamps() {
    const QSignalBlocker muet(m_champs);
    const bool pages = m_montree == Sortie::Papier || m_montree == Sortie::Pdf;
    const auto miseEnPage = m_miseEnPage->currentIndex() == 0 ? MiseEnPage::Fiches : MiseEnPage::Liste;
    const Champs& voulus = m_champsDe[rang(m_montree)];
    for (int i = 0; i < m_champs->count(); ++i) {
        const auto champ = static_cast<Champ>(i);
        QListWidgetItem& ligne = *m_champs->item(i);
        ligne.setHidden(pages && !CatalogueSurPapier::montre(miseEnPage, champ));
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

exportation::Champs FenetreExport::champsCoches() const {
    Champs champs = m_champsDe[rang(m_montree)];
    if (champs == Champs()) champs.met(Champ::Titre);  // a film is something at least
    return champs;
}

void FenetreExport::parcourt() {
    const std::string ici = cheminVoulu(), extension = kFormats[rang(m_montree)].extension;
    std::string choisi;
    m_atelier.execute([&](const app::Contexte& c) {
        const std::string dossier = fichiers::dossierDe(ici), nom = fichiers::nomDeFichier(ici);
        if (m_montree == Sortie::Fiches) {
            choisi = c.dialogues.choisitDossier(tr("Où faire le nouveau dossier de fiches").toStdString(), dossier);
            if (!choisi.empty()) choisi = util::avecSeparateur(choisi) + nom;
            return;
        }
        choisi = c.dialogues.choisitFichier(
            {.titre = tr("Exporter").toStdString(),
             .filtre = "Fichiers " + util::majuscules(extension.substr(1)) + "|*" + extension,
             .dossier = dossier,
             .peutCreer = true,
             .nom = nom});
        m_remplacable = choisi;  // the box asked
    });
    if (choisi.empty()) return;
    m_chemin->setText(QString::fromStdString(choisi));
    m_chemin->setModified(true);
    m_dossier = QFileInfo(m_chemin->text()).absolutePath();
}

std::string FenetreExport::cheminVoulu() const {
    std::string chemin =
        fichiers::cheminTape(m_chemin->text().trimmed().toStdString(), util::avecSeparateur(m_dossier.toStdString()));
    const std::string extension = kFormats[rang(m_montree)].extension;
    const bool nomme = !chemin.empty() && !chemin.ends_with('/') && !fichiers::estCheminWindows(chemin);
    if (nomme && !util::finitPar(util::minuscules(chemin), extension)) chemin += extension;
    return chemin;
}

// The questions before anything is written; never over a file that nobody agreed to replace.
bool FenetreExport::peutEcrire(const std::string& chemin) {
    std::string refus;
    if (chemin.empty() || (chemin.ends_with('/') && m_montree != Sortie::Fiches))
        refus = "Donnez un nom à ce que vous exportez.";
    else if (fichiers::estCheminWindows(chemin))
        refus = "« " + chemin + " » est un chemin de Windows : choisissez une place sur cet ordinateur.";
    else if (m_montree == Sortie::Fiches)
        refus = exportation::refusDossierFiches(chemin).value_or("");
    else if (fichiers::dossierExiste(chemin))
        refus = chemin + " est un dossier : donnez le nom d'un fichier.";
    bool accord = refus.empty();
    m_atelier.execute([&](const app::Contexte& c) {
        if (!accord) {
            c.dialogues.MsgBox(refus, dialogues::kExclamation);
        } else if (m_montree != Sortie::Fiches && chemin != m_remplacable && fichiers::existe(chemin)) {
            accord = c.dialogues.MsgBox("Le fichier " + chemin + " existe déjà. Voulez-vous le remplacer ?",
                                        dialogues::kQuestion) == dialogues::kOui;
        }
    });
    return accord;
}

void FenetreExport::exporte() {
    if (m_montree == Sortie::Papier) return imprime();
    const std::string chemin = cheminVoulu();
    if (peutEcrire(chemin)) exporteVers(chemin);
}

void FenetreExport::exporteVers(const std::string& chemin) {
    bool faite = false;
    m_auTravail = true;
    m_atelier.execute([&](const app::Contexte& c) {
        if (m_montree != Sortie::Pdf) {
            const auto format = m_montree == Sortie::Tableau ? app::DemandeDExport::Format::Tableau
                                : m_montree == Sortie::Page  ? app::DemandeDExport::Format::Page
                                                             : app::DemandeDExport::Format::Fiches;
            faite = app::exporte(c, {format, etendue(), champsCoches(), chemin}, reduit);
            return;
        }
        app::FilmsChoisis choix = app::filmsAExporter(c, etendue());
        fichiers::Remplacement fichier(chemin);
        Flot flot(fichier);
        QPdfWriter pdf(&flot);
        pdf.setResolution(kResolutionPdf);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        metMarges(pdf);
        pdf.setTitle(QString::fromStdString(choix.films.nom));
        pdf.setCreator(QStringLiteral("Ambrelis"));
        Bilan bilan = dessine(c, choix, pdf, kResolutionPdf, kToutesLesPages);
        if (bilan.issue == Bilan::Issue::Faite && !fichier.termine()) bilan.issue = Bilan::Issue::Echouee;
        if (bilan.issue == Bilan::Issue::Arretee && !fichier.raison().empty()) bilan.issue = Bilan::Issue::Echouee;
        bilan.raison = fichier.raison();
        if (etendue() == app::Etendue::Base) app::noteLesPossessionsSansFiche(c, bilan);
        exportation::annonceBilan(c, bilan, chemin);
        faite = bilan.issue == Bilan::Issue::Faite;
    });
    m_auTravail = false;
    suisLeTravail();
    if (!faite) return;
    retiensLeDossier(chemin);
    accept();
}

CatalogueSurPapier::Sujet FenetreExport::sujet(const app::Contexte& c, const exportation::FilmsAExporter& films) const {
    return {.titre = films.nom,
            .date = c.horloge.dateDuJour(),
            .films = static_cast<long>(films.lignes.size()),
            .groupes = films.groupes,
            .champs = champsCoches(),
            .miseEnPage = m_miseEnPage->currentIndex() == 0 ? MiseEnPage::Fiches : MiseEnPage::Liste};
}

// Stopped by the user, or at the last page that is wanted: the rest is not drawn.
Bilan FenetreExport::dessine(const app::Contexte& c, app::FilmsChoisis& choix, QPagedPaintDevice& papier,
                             int resolution, int pagesAuPlus) const {
    CatalogueSurPapier catalogue(papier, resolution, sujet(c, choix.films));
    const bool affiches = m_miseEnPage->currentIndex() == 0 && champsCoches().contient(Champ::Affiche);
    const QSize pixels = CatalogueSurPapier::pixelsDAffiche(std::ssize(choix.films.lignes));
    exportation::LecteurDesFilms lecteur(c, choix.liste(c), choix.films, affiches);
    Bilan bilan;
    if (!catalogue.commence()) {
        bilan.issue = Bilan::Issue::Echouee;
        return bilan;
    }
    bool refus = false;
    const bool complet = exportation::parcourt(
        c, lecteur, choix.films,
        [&](const exportation::FilmExporte& film) {
            if (catalogue.pages() > pagesAuPlus) return false;
            QImage affiche;
            if (affiches)
                if (const auto octets = lecteur.affiche(film))
                    affiche = afficheReduite(
                        QByteArray::fromRawData(octets->data(), static_cast<qsizetype>(octets->size())), pixels);
            refus = !catalogue.ajoute(film, affiche);
            return !refus;
        },
        bilan);
    const bool finie = catalogue.termine() && !refus;
    if (!finie) bilan.issue = Bilan::Issue::Echouee;
    if (finie && !complet && catalogue.pages() <= pagesAuPlus) bilan.issue = Bilan::Issue::Arretee;
    return bilan;
}

bool FenetreExport::surImprimante(QPrinter& imprimante, int pagesAuPlus) {
    Bilan bilan;
    m_auTravail = pagesAuPlus == kToutesLesPages;
    m_atelier.execute([&](const app::Contexte& c) {
        app::FilmsChoisis choix = app::filmsAExporter(c, etendue());
        bilan = dessine(c, choix, imprimante, imprimante.resolution(), pagesAuPlus);
        if (bilan.issue == Bilan::Issue::Arretee) imprimante.abort();
        if (!std::exchange(m_auTravail, false)) return;
        const std::string fichier = imprimante.outputFileName().toStdString();
        if (bilan.issue == Bilan::Issue::Arretee)
            c.avis.montre("Impression arrêtée.");
        else if (bilan.issue == Bilan::Issue::Echouee)
            c.avis.montre("L'impression n'a pas pu se faire : l'imprimante ou le fichier ne peut pas être écrit.");
        else if (fichier.empty())
            c.avis.montre(util::phraseCompte(bilan.films, "# film est", "# films sont") + " à l'impression.");
        else
            exportation::annonceBilan(c, bilan, fichiers::absolu(fichier));
    });
    m_auTravail = false;
    suisLeTravail();
    return bilan.issue == Bilan::Issue::Faite;
}

void FenetreExport::imprime() {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setDocName(tr("Films"));
    metMarges(imprimante);
    QPrintDialog boite(&imprimante, this);
    boite.setWindowTitle(tr("Imprimer"));
    if (boite.exec() != QDialog::Accepted) return;
    if (surImprimante(imprimante, kToutesLesPages)) accept();
}

// The first pages: all those of a large catalogue would be kept in memory.
void FenetreExport::apercu() {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setPageSize(QPageSize(QPageSize::A4));
    metMarges(imprimante);
    QPrintPreviewDialog boite(&imprimante, this);
    boite.setObjectName(QStringLiteral("frmApercuExport"));
    boite.setWindowTitle(tr("Aperçu avant impression (%1 premières pages au plus)").arg(kPagesDApercu));
    boite.resize(size().expandedTo({760, 560}));
    connect(&boite, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* demandee) {
        static_cast<void>(surImprimante(*demandee, estUnApercu(*demandee) ? kPagesDApercu - 1 : kToutesLesPages));
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
