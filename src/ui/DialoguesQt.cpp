#include "ui/DialoguesQt.h"

#include "platform/fichiers/CheminTape.h"
#include "platform/fichiers/Fichiers.h"
#include "ui/Composition.h"
#include "ui/UneSeuleLigne.h"
#include "util/Texte.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <algorithm>
#include <filesystem>

namespace ui {

namespace {

constexpr int kLongTexte = 900;  // characters beyond which a message scrolls

QString qt(const std::string& texte) {
    return QString::fromStdString(texte);
}

QMessageBox::Icon icone(int style) {
    switch (style) {
        case dialogues::kCritique:
            return QMessageBox::Critical;
        case dialogues::kQuestion:
            return QMessageBox::Question;
        case dialogues::kExclamation:
            return QMessageBox::Warning;
        case dialogues::kInformation:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

QString joint(const std::vector<std::string>& lignes) {
    QString texte;
    for (const std::string& ligne : lignes)
        texte += qt(ligne) + QLatin1Char('\n');
    texte.chop(1);
    return texte;
}

QLabel* texteDe(const QMessageBox& boite) {
    return boite.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
}

// A report may list thousands of titles: it scrolls, so that the buttons stay on the screen. The box keeps its text.
QPlainTextEdit* faitDefiler(QMessageBox& boite, const QString& liste) {
    auto* texte = texteDe(boite);
    auto* grille = qobject_cast<QGridLayout*>(boite.layout());
    if (!texte || !grille) return nullptr;
    auto* vue = nomme(new QPlainTextEdit(&boite), "lstRapport", QObject::tr("Rapport"));
    delete grille->replaceWidget(texte, vue);
    texte->hide();
    vue->setReadOnly(true);
    vue->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    vue->setFrameShape(QFrame::NoFrame);
    vue->setTabChangesFocus(true);
    vue->setPlainText(liste);
    const int hauteur = QFontMetrics(vue->font()).lineSpacing() * (vue->blockCount() + 2);
    vue->setMinimumSize(520, std::min(340, hauteur));
    return vue;
}

// Where neither the text nor a part of it has the keyboard.
void copieParCtrlC(QDialog& boite, const QString& texte, QLabel* etiquette) {
    auto* copier = new QShortcut(QKeySequence::Copy, &boite);
    QObject::connect(copier, &QShortcut::activated, &boite, [texte, etiquette] {
        const bool choisi = etiquette && etiquette->hasSelectedText();
        QGuiApplication::clipboard()->setText(choisi ? etiquette->selectedText() : texte);
    });
}

// Qt's French catalogue lacks the names of the kinds of files that its box shows.
class NaturesEnFrancais final : public QFileIconProvider {
  public:
    [[nodiscard]] QString type(const QFileInfo& fichier) const override {
        if (fichier.isDir()) return QObject::tr("Dossier");
        return fichier.suffix().isEmpty() ? QObject::tr("Fichier") : QObject::tr("Fichier %1").arg(fichier.suffix());
    }
};

// The box would show sizes and days in the words of the desktop, in columns too narrow for them.
class LignesEnFrancais final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto* fichiers = qobject_cast<const QFileSystemModel*>(index.model());
        constexpr int kTaille = 1, kDate = 3;
        if (fichiers && index.column() == kTaille && !fichiers->isDir(index))
            option->text = QLocale().formattedDataSize(fichiers->size(index));
        if (fichiers && index.column() == kDate)
            option->text = QLocale().toString(fichiers->lastModified(index), QLocale::ShortFormat);
    }
};

void ecritEnFrancais(QFileDialog& boite) {
    boite.setItemDelegate(new LignesEnFrancais(&boite));
    auto* liste = boite.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!liste) return;
    QHeaderView& entete = *liste->header();
    for (int colonne = 0; colonne < entete.count(); ++colonne)
        entete.setSectionResizeMode(colonne, colonne == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

void compose(QInputDialog& boite, const std::string& invite, const std::string& titre, const std::string& defaut) {
    boite.setWindowTitle(qt(titre));
    boite.setLabelText(qt(invite));
    boite.setTextValue(qt(defaut));
    if (auto* texte = boite.findChild<QLabel*>()) {
        texte->setTextFormat(Qt::PlainText);
        texte->setWordWrap(true);
        texte->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    for (QLineEdit* zone : boite.findChildren<QLineEdit*>())
        new UneSeuleLigne(zone);
    boite.resize(460, boite.sizeHint().height());
}

std::string saisie(QInputDialog& boite) {
    return boite.exec() == QDialog::Accepted ? boite.textValue().toStdString() : std::string();
}

// Qt leaves out what is named in another encoding. Files of the last century often are: whoever looks for one is told.
QString nomsIllisibles(const QString& dossier) {
    std::error_code faute;
    int nombre = 0;
    const std::filesystem::path chemin(QFile::encodeName(dossier).toStdString());
    for (std::filesystem::directory_iterator entree(chemin, faute), fin; !faute && entree != fin;
         entree.increment(faute))
        nombre += !util::estUtf8(entree->path().filename().native());
    if (nombre == 0) return {};
    if (nombre == 1)
        return QObject::tr(
            "Un fichier ou un dossier n'est pas montré : son nom n'est pas écrit en UTF-8. Renommez-le pour "
            "pouvoir le choisir.");
    return QObject::tr(
               "%1 fichiers ou dossiers ne sont pas montrés : leurs noms ne sont pas écrits en UTF-8. Renommez-les "
               "pour pouvoir les choisir.")
        .arg(nombre);
}

void annonceNomsIllisibles(QFileDialog& boite) {
    auto* grille = qobject_cast<QGridLayout*>(boite.layout());
    if (!grille) return;
    auto* texte = new QLabel(&boite);
    texte->setObjectName(QStringLiteral("lblNomsIllisibles"));
    texte->setTextFormat(Qt::PlainText);
    texte->setWordWrap(true);
    grille->addWidget(texte, grille->rowCount(), 0, 1, -1);
    const auto suis = [texte](const QString& dossier) {
        texte->setText(nomsIllisibles(dossier));
        texte->setVisible(!texte->text().isEmpty());
    };
    if (auto* modele = boite.findChild<QFileSystemModel*>())
        QObject::connect(modele, &QFileSystemModel::rootPathChanged, texte, suis);
    suis(boite.directory().absolutePath());
}

// A typed path passes through the folder that is shown, which Qt then takes for chosen and keeps so: the button would stay
// dead whatever follows.
void oublieLeDossierTraverse(QFileDialog& boite) {
    const auto* nom = boite.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    auto* liste = boite.findChild<QListView*>(QStringLiteral("listView"));
    if (!nom || !liste) return;
    QObject::connect(nom, &QLineEdit::textChanged, liste, [liste] {
        liste->selectionModel()->select(liste->rootIndex(), QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    });
}

std::string choisit(QFileDialog& boite, const std::string& dossier) {
    boite.setOption(QFileDialog::DontUseNativeDialog);  // a desktop's own would speak the desktop's language
    boite.resize(780, 500);
    const QString ouverture = qt(fichiers::cheminTape(dossier, ""));
    boite.setDirectory(QDir(ouverture).exists() && !ouverture.isEmpty() ? ouverture : QDir::homePath());
    annonceNomsIllisibles(boite);
    oublieLeDossierTraverse(boite);
    ecritEnFrancais(boite);
    if (boite.exec() != QDialog::Accepted || boite.selectedFiles().isEmpty()) return {};
    return boite.selectedFiles().first().toStdString();
}

void proposeDEnregistrer(QFileDialog& boite, const QString& nom) {
    boite.setAcceptMode(QFileDialog::AcceptSave);
    boite.setFileMode(QFileDialog::AnyFile);
    boite.setDefaultSuffix(QFileInfo(nom).suffix());
    boite.selectFile(nom);
}

// A path for the text typed so far, which names the file and the folder where the choice begins.
QString cheminAEcrire(QInputDialog& saisie, const dialogues::DemandeChemin& demande) {
    const std::string texte = saisie.textValue().toStdString();
    const QFileInfo tape(qt(fichiers::cheminTape(texte, "")));
    const QString nom = fichiers::estCheminWindows(texte) ? qt(fichiers::nomDeFichier(texte)) : tape.fileName();
    const QString extension = qt(demande.extension).remove(0, 1);
    NaturesEnFrancais natures;
    QFileDialog boite(&saisie, saisie.windowTitle());
    boite.setIconProvider(&natures);
    boite.setNameFilter(QObject::tr("Fichiers %1 (*.%2)").arg(extension.toUpper(), extension));
    proposeDEnregistrer(boite, nom);
    boite.setDefaultSuffix(extension);
    std::string choisi = choisit(boite, tape.isAbsolute() ? tape.path().toStdString() : std::string());
    if (demande.extensionAjoutee && choisi.ends_with(demande.extension))
        choisi.resize(choisi.size() - demande.extension.size());
    return qt(choisi);
}

}  // namespace

// A box over another window than the one in use would leave that one behind when it closes. When a box follows another,
// the desktop may not have given the window its place back yet.
QWidget* DialoguesQt::parent() {
    if (QWidget* active = QApplication::activeWindow()) m_enUsage = active;
    if (m_enUsage && m_enUsage->isVisible()) return m_enUsage.data();
    return m_fenetre && m_fenetre->isVisible() ? m_fenetre.data() : nullptr;
}

void DialoguesQt::refuse() {
    m_refuse = true;
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    for (QWidget* fenetre : QApplication::topLevelWidgets())
        if (auto* boite = qobject_cast<QDialog*>(fenetre); boite && boite->isModal()) boite->reject();
}

void DialoguesQt::exigeReponse() const {
    if (m_refuse) throw dialogues::SansReponse{};
}

int DialoguesQt::MsgBox(const std::string& texte, int style, const std::string& titre) {
    return montre(texte, {}, style, titre);
}

void DialoguesQt::montre(const dialogues::Rapport& rapport) {
    const bool liste = joint(rapport.lignes) != qt(rapport.texte);
    montre(rapport.texte, liste ? rapport.lignes : std::vector<std::string>(), dialogues::kInformation,
           dialogues::kTitre);
}

int DialoguesQt::montre(const std::string& texte, const std::vector<std::string>& lignes, int style,
                        const std::string& titre) {
    if (style == dialogues::kQuestion) exigeReponse();
    if (m_refuse) return dialogues::kOk;
    m_liaison.ecrit();
    QMessageBox boite(icone(style), qt(titre), {}, QMessageBox::NoButton, parent());
    boite.setTextFormat(Qt::PlainText);
    boite.setText(qt(texte));
    boite.setStandardButtons(style == dialogues::kQuestion ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    if (style == dialogues::kQuestion) boite.setEscapeButton(QMessageBox::No);
    const QString liste = lignes.empty() ? qt(texte) : joint(lignes);
    if (!lignes.empty() || texte.size() > kLongTexte)
        faitDefiler(boite, liste);
    else
        boite.setTextInteractionFlags(Qt::TextSelectableByMouse);
    copieParCtrlC(boite, liste, texteDe(boite));
    const int reponse = boite.exec();
    if (style == dialogues::kQuestion) exigeReponse();
    switch (reponse) {
        case QMessageBox::Yes:
            return dialogues::kOui;
        case QMessageBox::No:
            return dialogues::kNon;
        default:
            return style == dialogues::kQuestion ? dialogues::kNon : dialogues::kOk;
    }
}

std::string DialoguesQt::InputBox(const std::string& invite, const std::string& titre, const std::string& defaut) {
    exigeReponse();
    m_liaison.ecrit();
    QInputDialog boite(parent());
    compose(boite, invite, titre, defaut);
    std::string reponse = saisie(boite);
    exigeReponse();
    return reponse;
}

std::optional<std::string> DialoguesQt::demandeMotDePasse(const std::string& invite) {
    exigeReponse();
    m_liaison.ecrit();
    QInputDialog boite(parent());
    boite.setTextEchoMode(QLineEdit::Password);
    compose(boite, invite, dialogues::kTitre, {});
    const bool donne = boite.exec() == QDialog::Accepted;
    exigeReponse();
    return donne ? std::optional(boite.textValue().toStdString()) : std::nullopt;
}

std::string DialoguesQt::demandeChemin(const dialogues::DemandeChemin& demande) {
    exigeReponse();
    m_liaison.ecrit();
    QInputDialog boite(parent());
    compose(boite, demande.invite, demande.titre, demande.defaut);
    auto* boutons = boite.findChild<QDialogButtonBox*>();
    auto* parcourir =
        boutons->addButton(QObject::tr("Parcourir…"), QDialogButtonBox::ResetRole);  // set apart from the answers
    parcourir->setObjectName(QStringLiteral("cmdParcourirChemin"));
    parcourir->setAutoDefault(false);  // Enter accepts what was typed
    QObject::connect(parcourir, &QPushButton::clicked, &boite, [&] {
        const QString choisi = cheminAEcrire(boite, demande);
        if (!choisi.isEmpty()) boite.setTextValue(choisi);
    });
    std::string reponse = saisie(boite);
    exigeReponse();
    return reponse;
}

std::string DialoguesQt::choisitFichier(const dialogues::DemandeFichier& demande) {
    exigeReponse();
    m_liaison.ecrit();
    NaturesEnFrancais natures;  // outlives the box that asks it
    QFileDialog boite(parent(), qt(demande.titre));
    boite.setIconProvider(&natures);
    boite.setNameFilter(filtreQt(demande.filtre));
    boite.setFileMode(QFileDialog::AnyFile);  // who asks says what is wrong with a name that leads nowhere
    if (!demande.nom.empty()) proposeDEnregistrer(boite, qt(demande.nom));
    std::string reponse = choisit(boite, demande.dossier);
    exigeReponse();
    return reponse;
}

std::string DialoguesQt::choisitDossier(const std::string& titre, const std::string& dossierInitial) {
    exigeReponse();
    m_liaison.ecrit();
    NaturesEnFrancais natures;
    QFileDialog boite(parent(), qt(titre));
    boite.setIconProvider(&natures);
    boite.setFileMode(QFileDialog::Directory);
    boite.setOption(QFileDialog::ShowDirsOnly);
    std::string reponse = choisit(boite, dossierInitial);
    exigeReponse();
    return reponse;
}

QString filtreQt(const std::string& filtre) {
    const QStringList parties = qt(filtre).split(QLatin1Char('|'));
    QStringList motifs;
    for (const QString& motif : parties.value(1).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString propre = motif.trimmed();
        motifs << (propre == QLatin1String("*.*") ? QStringLiteral("*") : propre);
        if (propre.toUpper() != propre) motifs << propre.toUpper();
    }
    if (motifs.isEmpty()) motifs << QStringLiteral("*");
    return parties.value(0) + QLatin1String(" (") + motifs.join(QLatin1Char(' ')) + QLatin1Char(')');
}

}  // namespace ui
