#include "ui/PageStatistiques.h"

#include "app/Filtre.h"
#include "export/DernierExport.h"
#include "platform/fichiers/Fichiers.h"
#include "ui/Boutons.h"
#include "ui/Composition.h"
#include "ui/VueBarres.h"
#include "util/Nombres.h"
#include "util/Tables.h"
#include "util/Texte.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTimer>
#include <array>
#include <chrono>

namespace ui {

namespace {

constexpr int kLargeurImage = 900;
constexpr std::chrono::milliseconds kTranche{12};             // of counting, between two frames
constexpr std::size_t kBarresAuPlus = 60, kMoisAuPlus = 400;  // of a picture or on paper

struct NomDeSujet {
    ensemble::Sujet sujet;
    const char* nom;
    const char* plusieurs = nullptr;  // where one film may have several of it
};
using enum ensemble::Sujet;
constexpr std::array kSujets{
    NomDeSujet{Genre, QT_TRANSLATE_NOOP("ui::PageStatistiques", "Genre"), "genres"},
    NomDeSujet{Decennie, QT_TRANSLATE_NOOP("ui::PageStatistiques", "Décennie")},
    NomDeSujet{Pays, QT_TRANSLATE_NOOP("ui::PageStatistiques", "Pays"), "pays"},
    NomDeSujet{Realisateur, QT_TRANSLATE_NOOP("ui::PageStatistiques", "Réalisateur"), "réalisateurs"},
    NomDeSujet{Support, QT_TRANSLATE_NOOP("ui::PageStatistiques", "Support")},
    NomDeSujet{Note, QT_TRANSLATE_NOOP("ui::PageStatistiques", "Note")},
    NomDeSujet{Duree, QT_TRANSLATE_NOOP("ui::PageStatistiques", "Durée")},
    NomDeSujet{Ajouts, QT_TRANSLATE_NOOP("ui::PageStatistiques", "Mois d'ajout")}};
static_assert(util::dansLOrdre(kSujets, &NomDeSujet::sujet, Ajouts));

ensemble::Diagramme pourLePapier(const ensemble::Diagramme& diagramme) {
    return ensemble::abrege(diagramme, diagramme.sujet == ensemble::Sujet::Ajouts ? kMoisAuPlus : kBarresAuPlus);
}

std::string octetsPng(const ensemble::Diagramme& diagramme) {
    QByteArray octets;
    QBuffer tampon(&octets);
    imageDuDiagramme(diagramme, kLargeurImage).save(&tampon, "PNG");
    return octets.toStdString();
}

void enregistreDiagramme(const app::Contexte& c, const ensemble::Diagramme& diagramme, std::string& dossier) {
    const std::string fichier = c.dialogues.choisitFichier({.titre = "Enregistrer le diagramme",
                                                            .filtre = "Image PNG ou dessin SVG|*.png;*.svg",
                                                            .dossier = dossier,
                                                            .peutCreer = true,
                                                            .nom = diagramme.titre + ".png"});
    if (fichier.empty()) return;
    dossier = fichiers::dossierDe(fichier);
    const std::string extension = util::minuscules(fichiers::extension(fichier));
    if (extension != "png" && extension != "svg")
        return c.avis.montre("Rien n'a été enregistré : le nom doit finir par « .png » ou « .svg ».");
    const std::string octets = extension == "svg" ? ensemble::svg(diagramme, kLargeurImage) : octetsPng(diagramme);
    if (octets.empty()) return c.avis.montre("La mémoire manque pour dessiner cette image.");
    exportation::ecritExport(c, fichier, octets);
}

}  // namespace

PageStatistiques::PageStatistiques(const Atelier& atelier)
    : PageCollection(atelier, "PageStatistiques", tr("Statistiques"),
                     tr("Les films de la liste, comptés. Un clic sur une barre, ou Entrée, montre ses films.")) {
    contenu()->addLayout(choix());
    contenu()->addWidget(m_compte = nomme((new Etiquette)->avecTon(Ton::Discret)->avecLignes(2), "lblCompteDesBarres"));
    contenu()->addWidget(m_vide = nomme((new Etiquette)->avecLignes(4), "lblAucuneStatistique"));
    contenu()->addWidget(m_barres = new VueBarres("Barres"), 1);
    contenu()->addStretch(0);
    m_vide->setText(
        tr("La liste des titres est vide : il n'y a rien à compter. Ajoutez des films par « Ajouter », ou "
           "choisissez une autre zone au-dessus de la liste."));
    connect(m_barres, &VueBarres::barreChoisie, this, &PageStatistiques::demandeLesFilms);
    montre();
}

QLayout* PageStatistiques::choix() {
    m_sujet = nomme(new ListeDeroulante, "SujetDesStatistiques");
    for (const NomDeSujet& sujet : kSujets)
        m_sujet->addItem(tr(sujet.nom));
    connect(m_sujet, &QComboBox::currentIndexChanged, this, &PageStatistiques::montre);
    auto* copier =
        bouton("cmdCopierStatistiques", tr("Co&pier"), tr("Copier les nombres, une ligne pour chaque barre"));
    auto* imprimer = bouton("cmdImprimerStatistiques", tr("&Imprimer…"), tr("Imprimer ce diagramme"));
    auto* enregistrer = bouton("cmdEnregistrerStatistiques", tr("&Enregistrer…"),
                               tr("Enregistrer ce diagramme comme image PNG ou dessin SVG"));
    connect(copier, &QPushButton::clicked, this, &PageStatistiques::copie);
    connect(imprimer, &QPushButton::clicked, this, &PageStatistiques::imprime);
    connect(enregistrer, &QPushButton::clicked, this, &PageStatistiques::enregistre);
    m_sorties = {copier, imprimer, enregistrer};
    auto* ligne = rangee({legende(tr("&Compter par"), m_sujet), m_sujet}, kPetit);
    ligne->addStretch();
    for (QWidget* sortie : m_sorties)
        ligne->addWidget(sortie);
    return ligne;
}

// A part at a time, so that the window answers meanwhile however many films there are.
void PageStatistiques::relis(const app::Contexte& c) {
    m_barres->montre(nullptr);
    m_diagrammes.clear();
    m_comptee = Lecture::de(c);
    m_comptage.emplace(c);
    QTimer::singleShot(0, this, &PageStatistiques::compteLaSuite);  // once this reading is over
}

void PageStatistiques::compteLaSuite() {
    if (!m_comptage) return;
    if (!isVisible() || atelier().commande.enCours() || atelier().commande.finie()) return recommence();
    atelier().session.regarde([this](const app::Contexte& c) {
        if (Lecture::de(c) != m_comptee) return recommence();
        try {
            const bool attendu = diagramme() == nullptr;
            const bool tout = m_comptage->avance(c, kTranche);
            for (ensemble::Diagramme& compte : m_comptage->prend())
                m_diagrammes.insert_or_assign(compte.sujet, std::move(compte));
            if (tout) m_comptage.reset();
            if (attendu) montre();
        } catch (const std::exception&) {
            m_comptage.reset();
            ditPourquoi(tr("La base ne peut pas être lue pour le moment."));
        }
    });
    if (m_comptage) QTimer::singleShot(0, this, &PageStatistiques::compteLaSuite);
}

// What runs comes first; after it the page counts what is there then.
void PageStatistiques::recommence() {
    m_comptage.reset();
    perime();
    suis();
}

const ensemble::Diagramme* PageStatistiques::diagramme() const {
    const auto place = m_diagrammes.find(static_cast<ensemble::Sujet>(std::max(0, m_sujet->currentIndex())));
    return place == m_diagrammes.end() ? nullptr : &place->second;
}

void PageStatistiques::montre() {
    const ensemble::Diagramme* montre = diagramme();
    const bool vide = montre && montre->films == 0;
    m_barres->montre(vide ? nullptr : montre);
    m_barres->setVisible(!vide);
    m_vide->setVisible(vide);
    for (QWidget* sortie : m_sorties)
        sortie->setEnabled(montre && !vide);
    m_compte->setVisible(!vide);
    if (!montre) return m_compte->setText(m_comptage ? tr("Comptage des films…") : QString());
    m_barres->setAccessibleName(QString::fromStdString(montre->titre));
    QString texte = QString::fromStdString(util::phraseCompte(montre->films, "# film.", "# films."));
    if (const char* plusieurs = kSujets.at(static_cast<std::size_t>(montre->sujet)).plusieurs)
        texte += tr(" Un film de plusieurs %1 compte pour chacun.").arg(QString::fromUtf8(plusieurs));
    m_compte->setText(texte);
}

void PageStatistiques::demandeLesFilms(int rang) {
    const ensemble::Barre& barre = diagramme()->barres.at(static_cast<std::size_t>(rang));
    const QString libelle = m_sujet->currentText() + QStringLiteral(" : ") + QString::fromStdString(barre.libelle);
    atelier().execute(app::montreSeulement, barre.lignes, libelle.toStdString());
}

void PageStatistiques::copie() {
    QGuiApplication::clipboard()->setText(QString::fromStdString(ensemble::texte(*diagramme())));
    atelier().execute(
        [](const ensemble::Contexte& c) { c.avis.montre("Nombres copiés : collez-les où vous voulez."); });
}

void PageStatistiques::enregistre() {
    const ensemble::Diagramme dessine = pourLePapier(*diagramme());
    atelier().execute([&](const app::Contexte& c) { enregistreDiagramme(c, dessine, m_dossier); });
}

void PageStatistiques::imprime() {
    const ensemble::Diagramme dessine = pourLePapier(*diagramme());
    QPrinter imprimante;
    imprimante.setDocName(QString::fromStdString(dessine.titre));
    QPrintDialog boite(&imprimante, this);
    boite.setWindowTitle(tr("Imprimer"));
    if (boite.exec() != QDialog::Accepted) return;
    const bool faite = imprimeDiagramme(imprimante, dessine);
    const std::string fichier = imprimante.outputFileName().toStdString();
    atelier().execute([&](const ensemble::Contexte& c) {
        if (!faite)
            c.avis.montre("L'impression n'a pas pu se faire : l'imprimante ou le fichier ne peut pas être écrit.");
        else if (fichier.empty())
            c.avis.montre("« " + dessine.titre + " » est à l'impression.");
        else
            exportation::annonceExport(c, "Fichier créé : ", fichiers::absolu(fichier));
    });
}

}  // namespace ui
