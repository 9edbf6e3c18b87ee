#include "ProgrammeDEssai.h"
#include "ui/Apparence.h"
#include "ui/Boutons.h"
#include "ui/EtoilesNote.h"
#include "ui/Mouvement.h"
#include "ui/VueBarres.h"

#include <QApplication>
#include <QImageWriter>
#include <QLineEdit>
#include <QScrollBar>
#include <QSplitter>
#include <filesystem>
#include <iostream>

// Takes the pictures of the guide and of the README: starts the real window over the samples, goes where a user would go
// by the controls' published names, and writes what is seen. The screen, the day and the letters are fixed, so that a
// picture changes when what it shows does.
namespace {

namespace fs = std::filesystem;

constexpr QSize kFenetre{1180, 758}, kPourUnePage{1000, 700};
constexpr const char* kChezElle = "/home/claire/Ambrelis/";  // where a reader's own folder could be

class Photographe {
  public:
    explicit Photographe(QString images) : m_images(std::move(images)) {
        fs::copy(AMBRELIS_SOURCE_DIR "/samples", m_essai.dossier.chemin("samples"));
        m_essai.demarre();
    }

    void prendTout() {
        premierDemarrage();
        importe();
        remplis();
        laFenetre();
        lesPages();
        laCollection();
        ceQuiChange();
        lesRessemblances();
        avantDImporter();
        lesFormats();
    }

  private:
    using Champs = std::vector<std::pair<const char*, const char*>>;

    // What is seen of that control, or of a part of it, once nothing moves there any more.
    void photo(const char* nom, QWidget& widget, QRect partie = {}) {
        QImage avant, image;
        do {
            avant = image;
            QTest::qWait(250);
            image =
                widget.grab(partie.isNull() ? widget.rect() : partie).toImage().convertToFormat(QImage::Format_RGB32);
        } while (image != avant);
        QImageWriter fichier(m_images + "/" + nom + ".png", "png");
        fichier.setCompression(100);
        if (!fichier.write(image)) throw std::runtime_error(fichier.errorString().toStdString());
        std::cout << nom << " " << image.width() << " x " << image.height() << "\n";
    }
    // The right side of the window, down to that control.
    void photoDuPanneau(const char* nom, const char* panneau, int hauteur = 0) {
        QWidget& widget = m_essai.trouve(panneau);
        const QPoint coin = widget.mapTo(&m_essai.fenetre(), QPoint(0, 0));
        photo(nom, m_essai.fenetre(), {coin, QSize(widget.width(), hauteur ? hauteur : widget.height())});
    }
    void photoDeLaListe(const char* nom, int hauteur) {
        const QWidget& partage = *m_essai.fenetre().findChild<QSplitter*>()->widget(0);
        const QPoint coin = partage.mapTo(&m_essai.fenetre(), QPoint(0, 0));
        photo(nom, m_essai.fenetre(), {coin, QSize(partage.width(), hauteur)});
    }
    void taille(const QSize& voulue) {
        m_essai.fenetre().resize(voulue);
        QTest::qWait(0);
    }
    void tape(const char* nom, const char* texte) {
        if (auto* liste = m_essai.fenetre().findChild<QComboBox*>(nom)) return liste->setEditText(texte);
        m_essai.trouve<QLineEdit>(nom).setText(texte);
    }
    // The program's folder as it would be named on a reader's machine; the window itself is not told.
    void ditChezElle(const char* nom) {
        QWidget& widget = m_essai.trouve(nom);
        const QSignalBlocker sansSignal(&widget);
        const QString dossier = QString::fromStdString(m_essai.dossier.chemin());
        widget.setProperty("text", widget.property("text").toString().replace(dossier, kChezElle));
    }
    void ongletDeLaCollection(const char* nom) {
        m_essai.clique("cmdCollection");
        m_essai.clique(nom);
    }

    void premierDemarrage() {
        taille(kPourUnePage);
        photo("premier", m_essai.fenetre(), {0, 0, kPourUnePage.width(), 560});
    }

    void importe() {
        m_essai.boites.dossier = m_essai.dossier.chemin("samples");
        m_essai.clique("cmdAfficherFonctions");
        m_essai.clique("cmdParcourir2");
        ditChezElle("txtCheminAjoutAuto");
        photoDuPanneau("importer", "frameListeFonctions", 330);
        tape("txtCheminAjoutAuto", m_essai.dossier.chemin("samples").c_str());
        m_essai.clique("cmdAjoutAuto");
    }

    // What a collector would have told of his films after a while.
    void possession(const char* titre, const Champs& champs) {
        m_essai.cliqueTitre(titre);
        m_essai.clique("cmdAutresInfos");
        for (const auto& [nom, texte] : champs)
            tape(nom, texte);
        m_essai.clique("cmdValiderInfosPossessions");
        m_essai.clique("cmdGeneralites");
    }
    void remplis() {
        possession("Citizen Kane", {{"Text10_3", "Salon, étagère 2"}});
        possession("Alien, Le Huitième Passager",
                   {{"Combo7_0", "Nadia"}, {"Combo7_1", "Hugo"}, {"Text10_6", "03/09/2026"}});
        possession("Metropolis", {{"Combo7_0", "Hugo"}, {"Combo7_2", "Blu-ray"}, {"Text10_6", "15/11/2026"}});
        possession("Jules Et Jim", {{"Combo7_1", "Nadia"}});
        possession("La Grande Illusion", {{"Combo7_2", "K7"}, {"Text10_3", "Grenier"}});
        const std::pair<const char*, int> notes[] = {
            {"Andreï Roublev", 9},    {"Casque D'Or", 8}, {"Citizen Kane", 8},    {"Delicatessen", 7},
            {"La Leçon De Piano", 7}, {"Mon Oncle", 9},   {"La Cité De Dieu", 8}, {"Metropolis", 10}};
        for (const auto& [titre, note] : notes) {
            m_essai.cliqueTitre(titre);
            emit m_essai.trouve<ui::EtoilesNote>("etoilesNote").etoileCliquee(note);
        }
    }

    void laFenetre() {
        taille(kFenetre);
        m_essai.choisit("ChoixZone", 0);
        m_essai.choisit("ChoixTri", 1);
        m_essai.cliqueTitre("Citizen Kane");
        photo("fenetre", m_essai.fenetre());
    }

    void lesPages() {
        taille(kPourUnePage);
        m_essai.choisit("ChoixZone", 0);
        m_essai.choisit("ChoixTri", 4);
        m_essai.clique("AffStats");
        m_essai.place("Mon Oncle");
        photoDeLaListe("parcourir", 470);
        m_essai.clique("AffStats");
        m_essai.choisit("ChoixTri", 1);
        QTest::keyClicks(&m_essai.trouve("Filtre"), "mon");
        photoDeLaListe("filtrer", 330);
        m_essai.trouve<QLineEdit>("Filtre").clear();
        m_essai.clique("cmdFonctionRecherche");
        QTest::keyClicks(&m_essai.trouve("Text2"), "varda");
        m_essai.clique("ZoneRecherche_1");
        m_essai.clique("cmdRecherche");
        photo("chercher", m_essai.fenetre(), {0, 0, kPourUnePage.width(), 330});
        m_essai.choisit("ChoixZone", 0);
        m_essai.cliqueTitre("Alien, Le Huitième Passager");
        m_essai.clique("cmdAutresInfos");
        taille(kFenetre);
        photoDuPanneau("exemplaire", "frameFiche");
        m_essai.clique("cmdGeneralites");
        saisie();
        m_essai.clique("cmdConfigurer");
        ditChezElle("lblCheminBase");
        photoDuPanneau("outils", "frameListeFonctions", 654);
    }

    void saisis(const Champs& champs) {
        QTest::keyClick(&m_essai.fenetre(), Qt::Key_N, Qt::ControlModifier);
        for (const auto& [nom, texte] : champs)
            tape(nom, texte);
    }
    void saisie() {
        taille({kPourUnePage.width(), 900});
        saisis({{"Text3_0", "L'Été aux fenêtres"},
                {"Text3_1", "Claire Morel"},
                {"Text3_2", "2019"},
                {"Text3_3", "1H38"},
                {"Combo2", "Comédie dramatique"},
                {"Combo3", "France"},
                {"Text3_4", "Lise Arnaud;Paul Vidal"}});
        photo("saisir", m_essai.trouve("Frame13"));
        QTest::keyClick(&m_essai.fenetre(), Qt::Key_Escape);
        m_essai.clique("cmdFermerAvis");
    }

    void laCollection() {
        taille(kFenetre);
        ongletDeLaCollection("OngletAffiches");
        photo("mur", m_essai.fenetre());
        ongletDeLaCollection("OngletStatistiques");
        auto& barres = *m_essai.trouve("PageStatistiques").findChild<ui::VueBarres*>();
        if (!essais::attends([&] { return barres.model()->rowCount() > 2; })) throw std::runtime_error("no bars");
        emit barres.barreChoisie(2);
        photo("statistiques", m_essai.fenetre());
        m_essai.clique("cmdLeverLimite");
        taille(kPourUnePage);
        ongletDeLaCollection("OngletPrets");
        photoDuPanneau("prets", "frameCollection");
    }

    void ceQuiChange() {
        m_essai.cliqueTitre("Mon Oncle");
        emit m_essai.trouve<ui::EtoilesNote>("etoilesNote").etoileCliquee(10);
        photo("annuler", m_essai.fenetre(), {0, kPourUnePage.height() - 40, 700, 40});
        m_essai.clique("cmdConfigurer");
        m_essai.clique("cmdMultiSuppress");
        m_essai.clique("Option4_1");
        for (const char* titre : {"La Vie Des Autres", "L'Atalante"})
            QTest::mouseClick(m_essai.arbre().viewport(), Qt::LeftButton, {}, {18, m_essai.place(titre).y()});
        photo("supprimer", m_essai.fenetre(), {0, 0, kPourUnePage.width(), 420});
        m_essai.clique("Option4_0");
        m_essai.clique("cmdConfigurer");
        m_essai.horloge.instant += 90'000;
        m_essai.clique("cmdCompacter");
        m_essai.clique("cmdConfig_1");
        m_essai.clique("cmdSauvegardes");
        ditChezElle("lblSauvegardes");
        m_essai.clique("cmdComparerSauvegarde");
        photo("sauvegardes", m_essai.trouve("frmSauvegardes"));
        m_essai.clique("cmdFermerSauvegardes");
    }

    void lesRessemblances() {
        saisis({{"Text3_0", "Les Temps modèrnes"},
                {"Text3_1", "Charlie Chaplin"},
                {"Text3_2", "1936"},
                {"Text3_3", "1H27"},
                {"Combo2", "Comédie"}});
        m_essai.clique("cmdAjoutFilm");
        ongletDeLaCollection("OngletDoublons");
        m_essai.clique("cmdChercherDoublons");
        auto& paires = m_essai.trouve<QAbstractItemView>("lstDoublons");
        if (!essais::attends([&] { return paires.model()->rowCount() > 0; })) throw std::runtime_error("no pair");
        photoDuPanneau("doublons", "frameCollection");
    }

    void avantDImporter() {
        const fs::path ici = m_essai.dossier.chemin("fiches"), livrees = AMBRELIS_SOURCE_DIR "/samples";
        fs::create_directory(ici);
        for (const char* nom : {"Alien, le huitieme passager", "Citizen Kane", "Delicatessen", "Jules et Jim"})
            fs::copy(livrees / (std::string(nom) + ".FILM"), ici);
        for (const char* nom : {"Alien, le huitieme passager.jpg", "Citizen Kane.jpg", "Delicatessen.jpg"})
            fs::copy(livrees / nom, ici);
        fs::copy(livrees / "Les Temps modernes.jpg", ici);
        m_essai.dossier.ecrit("fiches/Les Temps modernes.FILM",
                              "Les Temps modèrnes\nCharlie Chaplin\n1936\n\nComédie\n1H27\nCharlie Chaplin");
        m_essai.dossier.ecrit("fiches/L'ete aux fenetres.FILM", "L'été aux fenêtres\nClaire Morel\n2019");
        m_essai.dossier.ecrit("fiches/Metropolys.FILM", "Métropolys\nFritz Lang\n1927");
        m_essai.dossier.ecrit("fiches/Rue des Lilas.FILM", "Rue des Lilas\nPaul Vidal\n2008");
        m_essai.dossier.ecrit("fiches/Vacances.FILM", std::string(40, '\1'));
        m_essai.clique("cmdAfficherFonctions");
        m_essai.boites.dossier = ici;
        m_essai.clique("cmdParcourir2");
        m_essai.clique("cmdApercuFiches");
        photo("apercu", m_essai.trouve("frmExamen"));
        m_essai.clique("cmdFermerExamen");

        m_essai.dossier.ecrit("Ma collection.gcs", R"(<collection type="GCfilms">
<item title="La Rue des Lilas" director="Paul Vidal" date="2008" format="DVD"/>
<item title="Le Jardin d'hiver" director="Claire Morel" date="2014" format="Blu-ray"/>
<item title="Metropolis" director="Fritz Lang" date="1927" format="DVD"/>
<item title="Mon Oncl" director="Jacques Tati" date="1958" format="DVD"/>
<item title="Une heure à tuer" director="Lise Arnaud" date="1999" format="DVD"/></collection>)");
        m_essai.boites.fichier = m_essai.dossier.chemin("Ma collection.gcs");
        m_essai.clique("cmdConfigurer");
        m_essai.clique("cmdConfig_0");
        m_essai.clique("cmdCollectionFichier");
        m_essai.trouve("frmVoisins").resize(900, 400);
        photo("autres", m_essai.trouve("frmVoisins"));
        m_essai.clique("cmdFermerVoisins");
    }

    void lesFormats() {
        m_essai.choisit("ChoixZone", 0);
        m_essai.cliqueTitre("Citizen Kane");
        m_essai.clique("cmdConfigurer");
        m_essai.clique("cmdExporter");
        m_essai.trouve<QAbstractButton>("optHtml").click();
        tape("txtCheminExport", "/home/claire/Documents/Liste de films.html");
        photo("formats", m_essai.trouve("frmExport"));
        m_essai.clique("cmdFermerExport");
    }

    QString m_images;
    essais::ProgrammeDEssai m_essai;
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" AMBRELIS_SOURCE_DIR "/tests/ui/ecran.json");
    qputenv("QT_QPA_PLATFORMTHEME", "none");
    qputenv("TZ", "UTC");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    ui::metMouvement(false);
    ui::habille("");
    try {
        Photographe(QString::fromLocal8Bit(argc > 1 ? argv[1] : ".")).prendTout();
    } catch (const std::exception& erreur) {
        std::cerr << erreur.what() << "\n";
        return 1;
    }
}
