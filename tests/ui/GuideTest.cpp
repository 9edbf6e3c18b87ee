#include "ProgrammeDEssai.h"
#include "app/RaccourcisClavier.h"
#include "ui/Boutons.h"
#include "ui/VueGuide.h"

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QTreeWidget>
#include <QWindow>
#include <filesystem>
#include <set>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;

const fs::path kGuide = fs::path(AMBRELIS_DOSSIER) / "Guide";

QString lit(const fs::path& fichier) {
    QFile flux(QString::fromStdString(fichier.string()));
    return flux.open(QIODevice::ReadOnly) ? QString::fromUtf8(flux.readAll()) : QString();
}
QString lit(const QString& page) {
    return lit(kGuide / page.toStdString());
}

// What the expression's parentheses take, wherever it is found.
QList<QStringList> toutes(const QString& texte, const char* expression) {
    QList<QStringList> resultat;
    const QRegularExpression regle(QString::fromUtf8(expression));
    for (auto trouve = regle.globalMatch(texte); trouve.hasNext();)
        resultat << trouve.next().capturedTexts().mid(1);
    return resultat;
}

QString sansBalises(QString html) {
    return html.remove(QRegularExpression("<[^>]*>")).simplified();
}

// The pages in the order of the contents, each with its title; the contents come first.
QList<QStringList> pagesDuSommaire() {
    return QList<QStringList>{{"index.html", "Guide d'Ambrelis"}} +
           toutes(lit(QString("index.html")), "<li><a href=\"([^\"]*)\">([^<]*)</a>");
}

void verifieLaPage(const QList<QStringList>& pages, qsizetype i) {
    const QString nom = pages[i][0], titre = pages[i][1], page = lit(nom);
    SCOPED_TRACE(nom.toStdString());
    EXPECT_EQ(toutes(page, "<h1>([^<]*)</h1>"), (QList<QStringList>{{titre}}));
    EXPECT_EQ(toutes(page, "<title>([^<]*)</title>"),
              (QList<QStringList>{{i ? titre + QString::fromUtf8(" – ") + pages[0][1] : titre}}));
    EXPECT_EQ(toutes(page, "<a rel=\"prev\" href=\"([^\"]*)\">([^<]*)</a>"), pages.mid(i - 1, i ? 1 : 0));
    EXPECT_EQ(toutes(page, "<a rel=\"next\" href=\"([^\"]*)\">([^<]*)</a>"), pages.mid(i + 1, 1));
    for (const QStringList& lien : toutes(page, "(?:href|src)=\"([^\"#]*)#?([^\"]*)\"")) {
        const QString cible = lien[0].isEmpty() ? nom : lien[0];
        EXPECT_TRUE(fs::is_regular_file(kGuide / cible.toStdString())) << cible.toStdString();
        EXPECT_TRUE(lien[1].isEmpty() || lit(cible).contains("id=\"" + lien[1] + "\"")) << lien[1].toStdString();
    }
    EXPECT_FALSE(page.contains("http") || page.contains("<script")) << "it is read without a connection";
    EXPECT_EQ(page.count("<img "), toutes(page, "<img [^>]*alt=\"[^\"]+\"").size());
}

TEST(Guide, LeadsFromItsContentsThroughEachOfItsPagesAndNowhereElse) {
    const QList<QStringList> pages = pagesDuSommaire();
    ASSERT_GT(pages.size(), 20);
    std::set<fs::path> noms;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        verifieLaPage(pages, i);
        noms.insert(pages[i][0].toStdString());
    }
    EXPECT_EQ(noms.size(), static_cast<std::size_t>(pages.size()));
    for (const auto& page : fs::directory_iterator(fs::path(AMBRELIS_SOURCE_DIR) / "docs/guide"))
        EXPECT_TRUE(page.path().extension() != ".html" || noms.contains(page.path().filename())) << page.path();
}

// The page of keys is the program's own list, word for word.
TEST(Guide, TellsTheKeysThatTheProgramTells) {
    QStringList dites;
    for (const QString& ligne : QString::fromStdString(app::texteTouches()).split('\n').mid(2))
        if (!ligne.isEmpty()) dites << (ligne.endsWith(" :") ? ligne.chopped(2) : ligne);
    QStringList ecrites;
    for (const QStringList& ligne :
         toutes(lit(QString("touches.html")), "<h2>([^<]*)</h2>|<tr><td>(.*?)</td><td>(.*?)</td></tr>"))
        ecrites << (ligne.size() == 1 ? ligne[0] : sansBalises(ligne[1]) + " : " + sansBalises(ligne[2]));
    ASSERT_FALSE(ecrites.isEmpty());
    EXPECT_EQ(ecrites.takeFirst(), "Dans la fenêtre");
    EXPECT_EQ(ecrites, dites);
}

QString enFrancais(const QKeySequence& touche) {
    QString texte = touche.toString(QKeySequence::PortableText);
    for (const auto& [anglais, francais] : {std::pair("Shift", "Maj"),
                                            {"Return", "Entrée"},
                                            {"Enter", "Entrée"},
                                            {"Left", "Gauche"},
                                            {"Right", "Droite"},
                                            {"Home", "Origine"},
                                            {"Space", "Espace"},
                                            {"PgDown", "Page suivante"},
                                            {"PgUp", "Page précédente"},
                                            {"Ctrl+=", "Ctrl++"}})
        texte.replace(anglais, QString::fromUtf8(francais));
    return texte;
}

// The window with the guide beside it, every page of it built.
struct FenetreDuGuide : testing::Test {
    essais::ProgrammeDEssai essai;
    const std::string rouge = essais::octetsDImage(Qt::red);

    FenetreDuGuide() { fs::copy(kGuide, essai.dossier.chemin("Guide"), fs::copy_options::recursive); }

    void touche(QWidget& widget, Qt::Key code, Qt::KeyboardModifiers avec = {}) {
        QTest::keyClick(&widget, code, avec);
    }
    QWidget& guide() { return essai.trouve("frmGuide"); }
    ui::VueGuide& vue() { return essai.trouve<ui::VueGuide>("pageDuGuide"); }
    QString pageApresF1() {
        touche(essai.fenetre(), Qt::Key_F1);
        return guide().isVisible() ? vue().page() : QString();
    }
    void ouvreTout() {
        essai.importe({{"L'Été", "Agnès Varda", "Drame", ""}, {"Avatar", "James Cameron", "Drame", rouge}});
        essai.cliqueTitre("Avatar");
        essai.clique("Image1");
        touche(essai.trouve("frmAffiche"), Qt::Key_Escape);
        essai.cliqueTitre("L'Été");
        essai.clique("cmdCollection");
        for (auto* onglet : essai.trouve("frameCollection").findChildren<ui::BoutonOnglet*>())
            onglet->click();
        touche(essai.fenetre(), Qt::Key_F1);
        essai.clique("cmdConfigurer");
        essai.clique("cmdConfig_1");
        essai.clique("cmdSauvegardes");
        ouvre("cmdExporter");
        ouvre("cmdApercuFiches");
        ouvre("cmdCollectionFichier", "c.gcs");
    }
    // A window that waits for an answer, and the file that is chosen for it.
    void ouvre(const char* bouton, const char* fichier = "") {
        essai.dossier.ecrit("c.gcs", "<collection type=\"GCfilms\"><item title=\"Playtime\"/></collection>");
        essai.dossier.ecrit("t.csv", "Titre;Par\nPlaytime;T\n");
        essai.boites.fichier = essai.dossier.chemin(fichier);
        essai.trouve<QAbstractButton>(bouton).click();
    }
    void cliqueDansLeGuide(const char* nom) {
        const QWidget& bouton = essai.trouve(nom);
        QTest::mouseClick(guide().windowHandle(), Qt::LeftButton, {}, bouton.mapTo(&guide(), bouton.rect().center()));
    }
};

void ajoute(QSet<QString>& noms, QString texte) {
    noms << texte.remove('&').section('\t', 0, 0).section(" : ", 0, 0).trimmed();
}

// What buttons, captions, lists and menus of the window are called.
QSet<QString> nomsDeLaFenetre(QWidget& fenetre) {
    QSet<QString> noms;
    for (const QWidget* widget : fenetre.findChildren<QWidget*>()) {
        for (const char* propriete : {"text", "title", "accessibleName"})
            ajoute(noms, widget->property(propriete).toString());
    }
    for (const QAction* action : fenetre.findChildren<QAction*>())
        ajoute(noms, action->text());
    return noms;
}

// Texts of the downloader's window, and of notices that only come in need, are looked for where they are written.
QSet<QString> textesDesSources() {
    QSet<QString> textes;
    for (const char* piece : {"rapatrix", "app"})
        for (const auto& fichier : fs::directory_iterator(fs::path(AMBRELIS_SOURCE_DIR) / "src" / piece))
            for (const QStringList& texte : toutes(lit(fichier.path()), "\"([^\"\\n]+)\""))
                ajoute(textes, texte[0]);
    return textes;
}

TEST_F(FenetreDuGuide, NamesNothingThatTheWindowDoesNotShow) {
    essai.demarre();
    ouvreTout();
    const QSet<QString> connus = nomsDeLaFenetre(essai.fenetre()) | textesDesSources();
    int nommes = 0;
    for (const QStringList& page : pagesDuSommaire())
        for (const QStringList& nom : toutes(lit(page[0]), "<b>([^<]*)</b>")) {
            EXPECT_TRUE(connus.contains(nom[0].simplified())) << page[0].toStdString() << " " << nom[0].toStdString();
            ++nommes;
        }
    EXPECT_GT(nommes, 80);
    const QString touches = sansBalises(lit(QString("touches.html")));
    for (const QShortcut* raccourci : essai.fenetre().findChildren<QShortcut*>())
        EXPECT_TRUE(raccourci->context() == Qt::WidgetShortcut || touches.contains(enFrancais(raccourci->key())))
            << raccourci->key().toString().toStdString();
}

TEST_F(FenetreDuGuide, OpensWhereOneIsAndIsReadFromPageToPage) {
    essai.demarre();
    EXPECT_EQ(pageApresF1(), "premier.html");
    EXPECT_EQ(guide().windowTitle().toStdString(), "Le premier démarrage – Guide d'Ambrelis");
    EXPECT_EQ(essai.trouve<QTreeWidget>("lstPagesGuide").currentItem()->text(0).toStdString(), "Le premier démarrage");
    touche(vue(), Qt::Key_Escape);
    EXPECT_FALSE(guide().isVisible());

    essai.importe({{"L'Été", "Agnès Varda", "Drame", ""}, {"Playtime", "Jacques Tati", "Humour", ""}});
    essai.cliqueTitre("L'Été");
    EXPECT_EQ(pageApresF1(), "fiche.html");
    essai.trouve("Filtre").setFocus();
    touche(essai.trouve("Filtre"), Qt::Key_F1);
    EXPECT_EQ(vue().page(), "filtrer.html");
    ASSERT_TRUE(essais::attends([&] { return QApplication::activeWindow() == &guide(); }));
    touche(guide(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(vue().page(), "fiche.html");
    EXPECT_FALSE(vue().toPlainText().isEmpty());

    emit vue().anchorClicked(QUrl("outils.html"));
    guide().resize(700, 500);
    EXPECT_TRUE(essais::attends([&] { return vue().horizontalScrollBar()->maximum() == 0; })) << "its picture fits";
    emit vue().anchorClicked(QUrl("ordre.html#doublons"));
    EXPECT_EQ(vue().page(), "ordre.html");
    emit vue().anchorClicked(QUrl("../Films.mdb"));
    EXPECT_FALSE(vue().toPlainText().contains("SQLite")) << "only the guide's own files are read";
    emit vue().anchorClicked(QUrl("https://example.org/"));
    EXPECT_THAT(essai.documents.ouverts, testing::ElementsAre("https://example.org/"));
    essai.fenetre().close();
    EXPECT_FALSE(essai.fenetre().isVisible());
}

// They keep the main window waiting, but not the guide.
TEST_F(FenetreDuGuide, IsReadBesideAWindowThatWaitsForAnAnswer) {
    essai.demarre();
    essai.importe({{"l'été", "Agnès Varda", "Drame", ""}});
    const std::array<const char*, 4> fenetres[] = {{"cmdExporter", "", "frmExport", "formats.html"},
                                                   {"cmdApercuFiches", "", "frmExamen", "apercu.html"},
                                                   {"cmdApercuTitres", "", "frmApercu", "ordre.html"},
                                                   {"cmdCollectionFichier", "c.gcs", "frmVoisins", "autres.html"},
                                                   {"cmdCollectionFichier", "t.csv", "frmTableau", "autres.html"}};
    for (const auto& [bouton, fichier, nom, page] : fenetres) {
        SCOPED_TRACE(nom);
        ouvre(bouton, fichier);
        auto& fenetre = essai.trouve<QDialog>(nom);
        ASSERT_TRUE(essais::attends([&] { return QApplication::activeWindow() == &fenetre; }));
        touche(fenetre, Qt::Key_F1);
        ASSERT_TRUE(guide().isVisible());
        EXPECT_EQ(vue().page(), page);
        EXPECT_TRUE(fenetre.isVisible());
        cliqueDansLeGuide("cmdGuideTouches");
        EXPECT_EQ(vue().page(), "touches.html");
        touche(guide(), Qt::Key_Escape);
        fenetre.reject();
        ASSERT_TRUE(essais::attends([&] {
            const auto* encore = essai.fenetre().findChild<QWidget*>(nom);
            return !encore || !encore->isVisible();
        }));
    }
}

TEST_F(FenetreDuGuide, FindsWordsWithoutTheirAccentsInThePagesThatHoldThemAll) {
    essai.demarre();
    touche(essai.fenetre(), Qt::Key_F1);
    ASSERT_TRUE(essais::attends([&] { return QApplication::activeWindow() == &guide(); }));
    touche(guide(), Qt::Key_F, Qt::ControlModifier);
    auto& liste = essai.trouve<QTreeWidget>("lstPagesGuide");
    auto& champ = essai.trouve<QLineEdit>("txtChercheGuide");
    ASSERT_TRUE(champ.hasFocus());
    const auto trouvees = [&] { return liste.findItems("*", Qt::MatchWildcard | Qt::MatchRecursive).size(); };
    const auto toutesLesPages = trouvees();
    QTest::keyClicks(&champ, "EMPRUNTEUR prete");
    EXPECT_GT(trouvees(), 2);
    EXPECT_LT(trouvees(), toutesLesPages / 2);
    touche(champ, Qt::Key_Return);
    const QString premiere = vue().page();
    EXPECT_TRUE(vue().textCursor().hasSelection());
    const std::string vu = ui::plieePourChercher(vue().textCursor().selectedText()).toStdString();
    EXPECT_THAT(vu, testing::AnyOf("emprunteur", "prete"));
    for (int i = 0; i < 200 && vue().page() == premiere; ++i)
        touche(guide(), Qt::Key_F3);
    EXPECT_NE(vue().page(), premiere) << "past the last passage comes the next page";
    touche(guide(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(vue().page(), premiere);
    QTest::keyClicks(&champ, "zzz");
    EXPECT_EQ(essai.texte("lblPassages"), "Aucune page ne contient ces mots.");
    champ.clear();
    EXPECT_EQ(trouvees(), toutesLesPages);
}

}  // namespace
