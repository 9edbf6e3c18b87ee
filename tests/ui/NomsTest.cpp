#include "Lecture.h"
#include "ProgrammeDEssai.h"
#include "ui/Boutons.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QHash>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSet>
#include <algorithm>

namespace {

using essais::ProgrammeDEssai;

// Control arrays are written with their size.
constexpr const char* kControles =
    "lblNom1 lblNom2 Label13 cmdFonctionRecherche cmdAfficherFonctions cmdConfigurer Image3 cmdAide cmdStop "
    "ChoixZone ChoixTri AffStats Frame1 TreeView1 Label9:2 framePresentation frameFiche frameRecherche "
    "frameListeFonctions frameMultiSuppression Label1:7 lblRealisateur lblInfosActeurs Text1 lblNote Image1 "
    "Label12 frameGeneralites:2 frameAutresInfos:2 cmdGeneralites cmdAutresInfos cmdFichiersFilm "
    "cmdModifieNote cmdModifierTitre cmdSupprimerTitre cmdCreeFichierTxt Option1:2 framePossession Text10:7 "
    "Combo7:3 Command2:3 cmdValiderInfosPossessions cmdRaffraichirListe Text2 ZoneRecherche:4 TypeFilm:3 "
    "cmdRecherche Option3:2 Text4 cmdParcourir Command13:3 Label5 frameAjoutAuto Frame13 txtCheminAjoutAuto "
    "cmdParcourir2 cmdAjoutAuto lblNbFilms lblProgression ProgressBar1 txtRechInternet OptionTelecharge:4 "
    "cmdTelecharge lblRapatrix frameImportBase cmdImporterBase Text3:5 Combo2 Combo3 Combo4 txtResume "
    "lblImage cmdAjoutFilm frameDivers frameOutils frameConfig cmdConfig:2 Label14:10 Label7:10 "
    "cmdChargeOuvreBase cmdCompacter cmdInfosBase cmdSupprInfosPerso cmdPonctuation cmdMultiSuppress "
    "cmdCreerListe cmdMajBase ProgressBar2 ProgressBar3 chkLancerConnexion Combo6:2 cmdParcourirLogiciel "
    "cmdSupprExtension cmdAjoutExtension txtNouvelleExtension Label4 Option4:2 cmdSupprTitresSelect "
    "MenuClicDroitFilm MenuClicDroitSupport MenuClicDroitGenre frmAffiche frmFichiersFilm Command1:4";

TEST(Noms, EveryControlIsFoundOnceByItsPublishedName) {
    ProgrammeDEssai essai;
    essai.demarre();
    EXPECT_EQ(essai.fenetre().objectName(), "frmPrincipal");
    for (const QString& controle : QString(kControles).split(' ')) {
        const QStringList parties = controle.split(':');
        const int taille = parties.value(1).toInt();
        for (int i = 0; i < std::max(taille, 1); ++i) {
            const QString complet = taille ? QStringLiteral("%1_%2").arg(parties[0]).arg(i) : controle;
            EXPECT_EQ(essai.fenetre().findChildren<QWidget*>(complet).size(), 1) << complet.toStdString();
        }
    }
    for (const char* entree :
         {"ModifieFilm", "SupprFilm", "GenereFichierTxt", "RenommeSupportFilms", "RenommerGenreFilms"})
        EXPECT_EQ(essai.fenetre().findChildren<QAction*>(entree).size(), 1) << entree;
}

// The letters after "&" of all that can be seen at once.
QStringList mnemoniques(QWidget& fenetre) {
    QStringList lettres;
    const auto ajoute = [&](const QString& texte) {
        const QKeySequence touche = QKeySequence::mnemonic(texte);
        if (!touche.isEmpty()) lettres << touche.toString();
    };
    for (const auto* bouton : fenetre.findChildren<QAbstractButton*>())
        if (bouton->isVisible()) ajoute(bouton->text());
    for (const auto* etiquette : fenetre.findChildren<QLabel*>())
        if (etiquette->isVisible() && etiquette->buddy()) ajoute(etiquette->text());
    return lettres;
}

bool aUnMnemonique(QWidget& fenetre, const QWidget& champ) {
    if (const auto* bouton = qobject_cast<const QAbstractButton*>(&champ))
        return !QKeySequence::mnemonic(bouton->text()).isEmpty();
    const auto etiquettes = fenetre.findChildren<QLabel*>();
    return std::ranges::any_of(etiquettes, [&](const QLabel* etiquette) {
        return etiquette->buddy() == &champ && etiquette->isVisible() &&
               !QKeySequence::mnemonic(etiquette->text()).isEmpty();
    });
}

// What is typed or chosen in.
bool estUnChamp(const QWidget& widget) {
    if (qobject_cast<const QComboBox*>(widget.parent()) || qobject_cast<const QAbstractSpinBox*>(widget.parent()))
        return false;                                                  // the list, the number is the field
    if (widget.objectName() == QLatin1String("Filtre")) return false;  // Ctrl+K goes there
    return qobject_cast<const QAbstractSpinBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget) ||
           qobject_cast<const QCheckBox*>(&widget) || qobject_cast<const QRadioButton*>(&widget);
}

void verifiePage(QWidget& fenetre, const char* page) {
    for (const QWidget* widget : fenetre.findChildren<QWidget*>())
        EXPECT_TRUE(!widget->isVisible() || !estUnChamp(*widget) || aUnMnemonique(fenetre, *widget))
            << page << " " << widget->objectName().toStdString();
    const QStringList lettres = mnemoniques(fenetre);
    EXPECT_GT(lettres.size(), 6) << page;
    EXPECT_EQ(QSet<QString>(lettres.begin(), lettres.end()).size(), lettres.size())
        << page << " " << lettres.join(' ').toStdString();
}

// A stop of the Tab key. A group of option buttons, and a list of pages, have one at what is chosen.
bool estUnArret(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy();
}

// What a screen reader finds on the page: each control under its name and a role of its own, none named as another of its
// group; Tab comes to all of them in the order in which they are read, and round, and back.
void verifieLecture(QWidget& fenetre, const char* page) {
    QAccessibleInterface* lue = QAccessible::queryAccessibleInterface(&fenetre);
    EXPECT_EQ(lue->role(), QAccessible::Window);
    QHash<QString, int> noms;
    QList<QWidget*> lus;
    essais::parcours(lue, [&](QAccessibleInterface& objet) {
        const auto* widget = qobject_cast<QWidget*>(objet.object());
        const QAccessible::State etat = objet.state();
        if (!widget || !etat.focusable) return;
        const QString dit = essais::phrase(objet), nom = essais::nomLu(objet);
        EXPECT_NE(nom, "") << page << " " << widget->objectName().toStdString();
        EXPECT_FALSE(objet.role() == QAccessible::Client || objet.role() == QAccessible::NoRole)
            << page << ": " << dit.toStdString();
        const QAccessible::Role role = objet.role();
        if (role == QAccessible::StaticText || qobject_cast<const QComboBox*>(widget->parentWidget())) return;
        const QAccessibleInterface* groupe = objet.parent();
        while (groupe->role() != QAccessible::Grouping && groupe->role() != QAccessible::Window &&
               groupe->role() != QAccessible::ToolBar && groupe->role() != QAccessible::PageTabList)
            groupe = groupe->parent();
        EXPECT_EQ(noms[QString::number(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(groupe))) + nom]++, 0)
            << page << ": twice " << dit.toStdString() << " in "
            << essais::phrase(*const_cast<QAccessibleInterface*>(groupe)).toStdString();
        if (estUnArret(*widget)) lus << const_cast<QWidget*>(widget);
    });
    ASSERT_FALSE(lus.isEmpty());
    lus.first()->setFocus();
    for (const int touche : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QList<QWidget*> parTab;
        do {
            parTab << fenetre.focusWidget();
            QTest::keyClick(fenetre.focusWidget(), static_cast<Qt::Key>(touche));
        } while (fenetre.focusWidget() != lus.first() && parTab.size() <= lus.size());
        if (touche == Qt::Key_Backtab) std::reverse(parTab.begin() + 1, parTab.end());
        const auto nomme = [](const QList<QWidget*>& widgets) {
            QStringList textes;
            for (QWidget* widget : widgets)
                textes << essais::phrase(*QAccessible::queryAccessibleInterface(widget));
            return textes.join('\n').toStdString();
        };
        EXPECT_EQ(nomme(parTab), nomme(lus)) << page;
    }
}

TEST(Noms, EachPageHasItsOwnMnemonicsAndNamesForScreenReaders) {
    ProgrammeDEssai essai;
    essai.demarre();
    const auto verifie = [&](const char* page) {
        verifiePage(essai.fenetre(), page);
        verifieLecture(essai.fenetre(), page);
    };
    verifie("welcome");
    essai.importe({{"L'Été", "Agnès Varda", "Drame", ""}});
    verifie("adding");
    ecran::Cadre &automatique = essai.etats().ajout.frameAjoutAuto, &manuelle = essai.etats().ajout.Frame13;
    essai.programme->commande().execute([&] { std::swap(automatique.Visible, manuelle.Visible); });
    verifie("manual entry");
    ecran::Cadre& ancienne = essai.etats().ajout.frameImportBase;
    essai.programme->commande().execute([&] { std::swap(ancienne.Visible, manuelle.Visible); });
    verifie("previous installation");
    for (const char* page : {"cmdFonctionRecherche", "cmdConfigurer", "cmdMultiSuppress"}) {
        essai.clique(page);
        verifie(page);
    }
    essai.clique("Option4_1");
    verifie("several deletions");
    essai.clique("Option4_0");
    essai.clique("cmdConfigurer");
    essai.clique("cmdConfig_1");
    verifie("settings");
    essai.clique("cmdCollection");
    for (auto* onglet : essai.trouve("frameCollection").findChildren<ui::BoutonOnglet*>()) {
        onglet->click();
        verifie(qPrintable(onglet->text()));
    }
    essai.cliqueTitre("L'Été");
    verifie("cmdGeneralites");
    essai.clique("cmdAutresInfos");
    verifie("cmdAutresInfos");
    essai.fenetre().resize(1366, 740);
    ASSERT_TRUE(essais::attends([&] { return !essai.trouve("cmdGeneralites").isVisible(); }));
    EXPECT_TRUE(essai.trouve("Text1").isVisible() && essai.trouve("framePossession").isVisible());
    verifie("both pages");
    essai.clique("cmdConfigurer");
    essai.clique("cmdConfig_0");
    const QWidget* page = &essai.trouve("frameOutils");
    while (page && !qobject_cast<const QAbstractScrollArea*>(page))
        page = page->parentWidget();
    ASSERT_TRUE(page);
    const QScrollBar* barre = qobject_cast<const QAbstractScrollArea*>(page)->verticalScrollBar();
    EXPECT_TRUE(essais::attends([&] { return barre->maximum() == 0; })) << "all tools at once: " << barre->maximum();
}

TEST(NomsPourLecteurs, TheKeysAreAnsweredWhereQtSaysNothing) {
    essais::ProgrammeDEssai essai;
    essai.demarre();
    essai.importe({{"Alpha", "Ann", "Drame", ""}, {"Beta", "Bob", "Drame", ""}, {"Gamma", "Ann", "Comédie", ""}});
    auto& tri = essai.trouve<QComboBox>("ChoixTri");
    essai.choisit("ChoixTri", 3);
    tri.setFocus();
    const QString avant = tri.currentText();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&tri)->text(QAccessible::Description), avant);
    QTest::keyClick(&tri, Qt::Key_Down);
    EXPECT_NE(tri.currentText(), avant);
    EXPECT_EQ(essai.texte("lblAnnonce"), tri.currentText().toStdString());
    essai.place("Alpha");
    essai.arbre().collapseAll();
    essai.arbre().setFocus();
    for (const Qt::Key touche : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Right})
        QTest::keyClick(&essai.arbre(), touche);
    EXPECT_EQ(essai.texte("lblAnnonce"), "Ouvert, 2 titres");
    QTest::keyClick(&essai.arbre(), Qt::Key_Left);
    EXPECT_EQ(essai.texte("lblAnnonce"), "Fermé");
}

}  // namespace
