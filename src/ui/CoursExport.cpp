#include "ui/CoursExport.h"

#include "db/Requete.h"
#include "export/DernierExport.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/fichiers/Remplacement.h"
#include "ui/ImagesQt.h"
#include "util/Nombres.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#include <limits>

namespace ui {

namespace {

using exportation::Bilan;
using exportation::Champ;

constexpr int kResolutionPdf = 600;
constexpr qreal kMarge = 15;  // millimetres
constexpr int kToutesLesPages = std::numeric_limits<int>::max();

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

QImage enImage(const std::string& octets, QSize auPlus) {
    return afficheReduite(QByteArray::fromRawData(octets.data(), static_cast<qsizetype>(octets.size())), auPlus);
}

exportation::Vignette reduit(const std::string& octets, int largeur) {
    constexpr int kQualite = 78;
    const QImage image = enImage(octets, {largeur, 2 * largeur});
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

CatalogueSurPapier::Sujet sujet(const app::Contexte& c, const ExportVoulu& voulu,
                                const exportation::FilmsAExporter& films) {
    return {.titre = films.nom,
            .date = c.horloge.dateDuJour(),
            .films = static_cast<long>(films.lignes.size()),
            .groupes = films.groupes,
            .champs = voulu.champs,
            .miseEnPage = voulu.miseEnPage};
}

// Stopped by the user, or at the last page that is wanted: the rest is not drawn.
Bilan dessine(const app::Contexte& c, const ExportVoulu& voulu, app::FilmsChoisis& choix, QPagedPaintDevice& papier,
              int resolution, int pagesAuPlus) {
    CatalogueSurPapier catalogue(papier, resolution, sujet(c, voulu, choix.films));
    const bool affiches = voulu.miseEnPage == MiseEnPage::Fiches && voulu.champs.contient(Champ::Affiche);
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
            const auto octets = affiches ? lecteur.affiche(film) : std::nullopt;
            refus = !catalogue.ajoute(film, octets ? enImage(*octets, pixels) : QImage());
            return !refus;
        },
        bilan);
    const bool finie = catalogue.termine() && !refus;
    if (!finie) bilan.issue = Bilan::Issue::Echouee;
    if (finie && !complet && catalogue.pages() <= pagesAuPlus) bilan.issue = Bilan::Issue::Arretee;
    return bilan;
}

Bilan dessine(const app::Contexte& c, const ExportVoulu& voulu, QPrinter& imprimante, int pagesAuPlus) {
    app::FilmsChoisis choix = app::filmsAExporter(c, voulu.etendue);
    const Bilan bilan = dessine(c, voulu, choix, imprimante, imprimante.resolution(), pagesAuPlus);
    if (bilan.issue == Bilan::Issue::Arretee) imprimante.abort();
    return bilan;
}

bool exportePdf(const app::Contexte& c, const ExportVoulu& voulu, const std::string& chemin) {
    app::FilmsChoisis choix = app::filmsAExporter(c, voulu.etendue);
    fichiers::Remplacement fichier(chemin);
    Flot flot(fichier);
    QPdfWriter pdf(&flot);
    pdf.setResolution(kResolutionPdf);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    metMarges(pdf);
    pdf.setTitle(QString::fromStdString(choix.films.nom));
    pdf.setCreator(QStringLiteral("Ambrelis"));
    Bilan bilan = dessine(c, voulu, choix, pdf, kResolutionPdf, kToutesLesPages);
    bool finie = false;
    if (bilan.issue == Bilan::Issue::Faite) db::attente(c)([&] { finie = fichier.termine(); });
    if (bilan.issue == Bilan::Issue::Faite && !finie) bilan.issue = Bilan::Issue::Echouee;
    if (bilan.issue == Bilan::Issue::Arretee && !fichier.raison().empty()) bilan.issue = Bilan::Issue::Echouee;
    bilan.raison = fichier.raison();
    if (voulu.etendue == app::Etendue::Base) app::noteLesPossessionsSansFiche(c, bilan);
    exportation::annonceBilan(c, bilan, chemin);
    return bilan.issue == Bilan::Issue::Faite;
}

}  // namespace

bool exporteVers(const app::Contexte& c, const ExportVoulu& voulu, const std::string& chemin) {
    using Format = app::DemandeDExport::Format;
    const auto enFormat = [&](Format format) {
        return app::exporte(c, {format, voulu.etendue, voulu.champs, chemin}, reduit);
    };
    switch (voulu.sortie) {
        case Sortie::Tableau:
            return enFormat(Format::Tableau);
        case Sortie::Page:
            return enFormat(Format::Page);
        case Sortie::Fiches:
            return enFormat(Format::Fiches);
        case Sortie::Pdf:
            return exportePdf(c, voulu, chemin);
        case Sortie::Papier:
            break;
    }
    return false;
}

bool imprimeExport(const app::Contexte& c, const ExportVoulu& voulu, QPrinter& imprimante) {
    const Bilan bilan = dessine(c, voulu, imprimante, kToutesLesPages);
    const std::string fichier = imprimante.outputFileName().toStdString();
    if (bilan.issue == Bilan::Issue::Arretee)
        c.avis.montre("Impression arrêtée.");
    else if (bilan.issue == Bilan::Issue::Echouee)
        c.avis.montre("L'impression n'a pas pu se faire : l'imprimante ou le fichier ne peut pas être écrit.");
    else if (fichier.empty())
        c.avis.montre(util::phraseCompte(bilan.films, "# film est", "# films sont") + " à l'impression.");
    else
        exportation::annonceBilan(c, bilan, fichiers::absolu(fichier));
    return bilan.issue == Bilan::Issue::Faite;
}

void dessineApercu(const app::Contexte& c, const ExportVoulu& voulu, QPrinter& imprimante) {
    static_cast<void>(dessine(c, voulu, imprimante, kPagesDApercu - 1));
}

void metMarges(QPagedPaintDevice& papier) {
    papier.setPageMargins({kMarge, kMarge, kMarge, kMarge}, QPageLayout::Millimeter);
}

}  // namespace ui
