#include "ProgrammeDEssai.h"

#include <QAccessible>
#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSet>
#include <algorithm>

namespace {

using essais::ProgrammeDEssai;

// Control arrays are written with their size.
const std::vector<std::pair<const char*, int>> kControles = {{"lblNom1", 0},
                                                             {"lblNom2", 0},
                                                             {"Label13", 0},
                                                             {"cmdFonctionRecherche", 0},
                                                             {"cmdAfficherFonctions", 0},
                                                             {"cmdConfigurer", 0},
                                                             {"Image3", 0},
                                                             {"cmdAide", 0},
                                                             {"cmdStop", 0},
                                                             {"ChoixZone", 0},
                                                             {"ChoixTri", 0},
                                                             {"AffStats", 0},
                                                             {"Frame1", 0},
                                                             {"TreeView1", 0},
                                                             {"Label9", 2},
                                                             {"framePresentation", 0},
                                                             {"frameFiche", 0},
                                                             {"frameRecherche", 0},
                                                             {"frameListeFonctions", 0},
                                                             {"frameMultiSuppression", 0},
                                                             {"Label1", 7},
                                                             {"lblRealisateur", 0},
                                                             {"lblInfosActeurs", 0},
                                                             {"Text1", 0},
                                                             {"lblNote", 0},
                                                             {"Image1", 0},
                                                             {"Label12", 0},
                                                             {"frameGeneralites", 2},
                                                             {"frameAutresInfos", 2},
                                                             {"cmdGeneralites", 0},
                                                             {"cmdAutresInfos", 0},
                                                             {"cmdFichiersFilm", 0},
                                                             {"cmdModifieNote", 0},
                                                             {"cmdModifierTitre", 0},
                                                             {"cmdSupprimerTitre", 0},
                                                             {"cmdCreeFichierTxt", 0},
                                                             {"Option1", 2},
                                                             {"framePossession", 0},
                                                             {"Text10", 7},
                                                             {"Combo7", 3},
                                                             {"Command2", 3},
                                                             {"cmdValiderInfosPossessions", 0},
                                                             {"cmdRaffraichirListe", 0},
                                                             {"Text2", 0},
                                                             {"ZoneRecherche", 4},
                                                             {"TypeFilm", 3},
                                                             {"cmdRecherche", 0},
                                                             {"Option3", 2},
                                                             {"Text4", 0},
                                                             {"cmdParcourir", 0},
                                                             {"Command13", 3},
                                                             {"Label5", 0},
                                                             {"frameAjoutAuto", 0},
                                                             {"Frame13", 0},
                                                             {"txtCheminAjoutAuto", 0},
                                                             {"cmdParcourir2", 0},
                                                             {"cmdAjoutAuto", 0},
                                                             {"lblNbFilms", 0},
                                                             {"lblProgression", 0},
                                                             {"ProgressBar1", 0},
                                                             {"txtRechInternet", 0},
                                                             {"OptionTelecharge", 4},
                                                             {"cmdTelecharge", 0},
                                                             {"lblRapatrix", 0},
                                                             {"frameImportBase", 0},
                                                             {"cmdImporterBase", 0},
                                                             {"Text3", 5},
                                                             {"Combo2", 0},
                                                             {"Combo3", 0},
                                                             {"Combo4", 0},
                                                             {"txtResume", 0},
                                                             {"lblImage", 0},
                                                             {"cmdAjoutFilm", 0},
                                                             {"frameDivers", 0},
                                                             {"frameOutils", 0},
                                                             {"frameConfig", 0},
                                                             {"cmdConfig", 2},
                                                             {"Label14", 10},
                                                             {"Label7", 10},
                                                             {"cmdChargeOuvreBase", 0},
                                                             {"cmdCompacter", 0},
                                                             {"cmdInfosBase", 0},
                                                             {"cmdSupprInfosPerso", 0},
                                                             {"cmdPonctuation", 0},
                                                             {"cmdMultiSuppress", 0},
                                                             {"cmdCreerListe", 0},
                                                             {"cmdMajBase", 0},
                                                             {"ProgressBar2", 0},
                                                             {"ProgressBar3", 0},
                                                             {"chkLancerConnexion", 0},
                                                             {"Combo6", 2},
                                                             {"cmdParcourirLogiciel", 0},
                                                             {"cmdSupprExtension", 0},
                                                             {"cmdAjoutExtension", 0},
                                                             {"txtNouvelleExtension", 0},
                                                             {"Label4", 0},
                                                             {"Option4", 2},
                                                             {"cmdSupprTitresSelect", 0},
                                                             {"MenuClicDroitFilm", 0},
                                                             {"MenuClicDroitSupport", 0},
                                                             {"MenuClicDroitGenre", 0},
                                                             {"frmAffiche", 0},
                                                             {"frmFichiersFilm", 0},
                                                             {"Command1", 4}};

TEST(Noms, EveryControlIsFoundOnceByItsPublishedName) {
    ProgrammeDEssai essai;
    essai.demarre();
    EXPECT_EQ(essai.fenetre().objectName(), "frmPrincipal");
    for (const auto& [nom, taille] : kControles)
        for (int i = 0; i < std::max(taille, 1); ++i) {
            const QString complet =
                taille ? QStringLiteral("%1_%2").arg(QLatin1String(nom)).arg(i) : QLatin1String(nom);
            EXPECT_EQ(essai.fenetre().findChildren<QWidget*>(complet).size(), 1) << complet.toStdString();
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
    if (qobject_cast<const QComboBox*>(widget.parent())) return false;  // the list is the field
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QPlainTextEdit*>(&widget) || qobject_cast<const QCheckBox*>(&widget) ||
           qobject_cast<const QRadioButton*>(&widget);
}

void verifiePage(QWidget& fenetre, const char* page) {
    for (const QWidget* widget : fenetre.findChildren<QWidget*>())
        EXPECT_TRUE(!widget->isVisible() || !estUnChamp(*widget) || aUnMnemonique(fenetre, *widget))
            << page << " " << widget->objectName().toStdString();
    const QStringList lettres = mnemoniques(fenetre);
    EXPECT_GT(lettres.size(), 6) << page;
    EXPECT_EQ(QSet<QString>(lettres.begin(), lettres.end()).size(), lettres.size())
        << page << " " << lettres.join(' ').toStdString();
    for (QWidget* widget : fenetre.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy()) continue;
        if (qobject_cast<QLineEdit*>(widget) && qobject_cast<QComboBox*>(widget->parent()))
            continue;  // the list speaks for it
        QAccessibleInterface* lu = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(lu, nullptr);
        EXPECT_FALSE(lu->text(QAccessible::Name).isEmpty()) << page << " " << widget->objectName().toStdString();
    }
}

// Tabbing must go as one reads: the bar, then the list, then the panel, each from its top.
void verifieOrdre(QWidget& fenetre, const char* page) {
    QWidget* precedent = nullptr;
    for (QWidget* w = fenetre.nextInFocusChain(); w != &fenetre; w = w->nextInFocusChain()) {
        if (!w->isVisible() || !w->isEnabled() || !(w->focusPolicy() & Qt::TabFocus) || w->objectName().isEmpty())
            continue;
        if (precedent && precedent->parentWidget() == w->parentWidget()) {
            const QPoint avant = precedent->pos(), apres = w->pos();
            EXPECT_TRUE(apres.y() > avant.y() || (apres.x() > avant.x() && apres.y() + w->height() > avant.y()))
                << page << ": " << w->objectName().toStdString() << " after " << precedent->objectName().toStdString();
        }
        precedent = w;
    }
}

TEST(Noms, EachPageHasItsOwnMnemonicsAndNamesForScreenReaders) {
    ProgrammeDEssai essai;
    essai.demarre();
    const auto verifie = [&](const char* page) {
        verifiePage(essai.fenetre(), page);
        verifieOrdre(essai.fenetre(), page);
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
    essai.cliqueTitre("L'Été");
    verifie("cmdGeneralites");
    essai.clique("cmdAutresInfos");
    verifie("cmdAutresInfos");
    essai.fenetre().resize(1366, 740);
    ASSERT_TRUE(essais::attends([&] { return !essai.trouve("cmdGeneralites").isVisible(); }));
    EXPECT_TRUE(essai.trouve("Text1").isVisible() && essai.trouve("framePossession").isVisible());
    verifie("both pages");
}

}  // namespace
