#include "ui/Liaison.h"

#include "ui/TexteLong.h"
#include "ui/Typographie.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTextBlockFormat>
#include <QTextEdit>
#include <QTextOption>
#include <algorithm>

namespace ui {

namespace {

QString qt(const std::string& texte) {
    return QString::fromStdString(texte);
}

// What the widget holds after a writing: as long as it still does, the user changed nothing.
struct Temoin {
    QString texte;
    int indice = -1;
};

void montreEtat(const ecran::Controle& etat, const ecran::Controle& ancien, QWidget& widget) {
    if (etat.Visible != ancien.Visible) widget.setVisible(etat.Visible);
    if (etat.Enabled != ancien.Enabled) widget.setEnabled(etat.Enabled);
}

// --- state into widget -------------------------------------------------------------------------------------------

void montre(const ecran::Etiquette& etat, const ecran::Etiquette& ancien, QLabel& widget, Temoin&) {
    if (etat.Caption != ancien.Caption) widget.setText(qt(etat.Caption).remove(QLatin1Char('\r')));
}

QString sansMnemonique(const std::string& texte) {
    return qt(texte).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void montre(const ecran::Etiquette& etat, const ecran::Etiquette& ancien, QAbstractButton& widget, Temoin&) {
    if (etat.Caption == ancien.Caption) return;
    widget.setText(sansMnemonique(etat.Caption));
    widget.updateGeometry();
}

void montre(const ecran::Cadre& etat, const ecran::Cadre& ancien, QWidget& widget, Temoin&) {
    if (etat.Caption != ancien.Caption) widget.setWindowTitle(qt(etat.Caption));
}

void montre(const ecran::Bouton& etat, const ecran::Bouton& ancien, QAbstractButton& widget, Temoin&) {
    if (etat.Caption != ancien.Caption && !etat.Caption.empty()) widget.setText(sansMnemonique(etat.Caption));
    if (etat.FontBold == ancien.FontBold) return;
    QFont police = widget.font();
    police.setBold(etat.FontBold);
    widget.setFont(police);
}

template <typename Zone>
void montreTexte(const ecran::ZoneTexte& etat, const ecran::ZoneTexte& ancien, Zone& widget,
                 QString (Zone::*lu)() const, void (Zone::*ecris)(const QString&), Temoin& temoin) {
    if (etat.Text == ancien.Text) return;
    (widget.*ecris)(qt(etat.Text));
    temoin.texte = (widget.*lu)();
}

void montre(const ecran::ZoneTexte& etat, const ecran::ZoneTexte& ancien, QLineEdit& widget, Temoin& temoin) {
    montreTexte(etat, ancien, widget, &QLineEdit::text, &QLineEdit::setText, temoin);
    if (!widget.hasFocus()) widget.setCursorPosition(0);  // a long text shows its beginning
}

void montre(const ecran::ZoneTexte& etat, const ecran::ZoneTexte& ancien, TexteLong& widget, Temoin& temoin) {
    montreTexte(etat, ancien, widget, &TexteLong::texte, &TexteLong::metTexte, temoin);
}

// A word that fills many lines is looked through again for each of them, unless it may break anywhere.
QTextOption::WrapMode coupurePour(const std::string& texte) {
    constexpr std::size_t kMotSansFin = 2000;  // bytes
    for (std::size_t debut = 0, fin = 0; fin < texte.size(); debut = fin + 1) {
        fin = std::min(texte.find_first_of(" \n\t", debut), texte.size());
        if (fin - debut > kMotSansFin) return QTextOption::WrapAnywhere;
    }
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

void montre(const ecran::ZoneTexte& etat, const ecran::ZoneTexte& ancien, QTextEdit& widget, Temoin&) {
    if (etat.Text == ancien.Text) return;
    widget.clear();
    widget.setWordWrapMode(coupurePour(etat.Text));
    widget.setPlainText(sansSigneIsole(qt(etat.Text)));  // which gives the blanks back as they were
    QTextCursor curseur(widget.document());
    curseur.select(QTextCursor::Document);
    QTextBlockFormat aere;
    aere.setLineHeight(135, QTextBlockFormat::ProportionalHeight);
    curseur.mergeBlockFormat(aere);
}

void montre(const ecran::CaseACocher& etat, const ecran::CaseACocher&, QCheckBox& widget, Temoin&) {
    widget.setChecked(etat.Value != 0);
}

void montre(const ecran::BoutonOption& etat, const ecran::BoutonOption&, QRadioButton& widget, Temoin&) {
    widget.setAutoExclusive(etat.Value);  // else the last one on could not be put off
    widget.setChecked(etat.Value);
    widget.setAutoExclusive(true);
}

void montre(const ecran::Liste& etat, const ecran::Liste& ancien, QComboBox& widget, Temoin& temoin) {
    if (etat.Items != ancien.Items) {
        QStringList textes;
        for (const std::string& texte : etat.Items)
            textes << qt(texte);
        widget.clear();
        widget.addItems(textes);
    }
    widget.setCurrentIndex(etat.ListIndex);
    if (widget.isEditable()) {
        widget.setEditText(qt(etat.Text));
        if (!widget.hasFocus()) widget.lineEdit()->setCursorPosition(0);
    }
    temoin = {widget.currentText(), widget.currentIndex()};
}

void montre(const ecran::Progression& etat, const ecran::Progression&, QProgressBar& widget, Temoin&) {
    widget.setRange(0, static_cast<int>(etat.Max));
    widget.setValue(static_cast<int>(etat.Value));
}

// --- widget into state -------------------------------------------------------------------------------------------

// True when the user changed the value. Most controls only show.
template <typename Widget, typename Etat>
bool lis(const Widget&, Etat&, Temoin&) {
    return false;
}

bool lisTexte(const QString& texte, ecran::ZoneTexte& etat, Temoin& temoin) {
    if (texte == temoin.texte) return false;
    etat.Text = texte.toStdString();
    temoin.texte = texte;
    return true;
}

bool lis(const QLineEdit& widget, ecran::ZoneTexte& etat, Temoin& temoin) {
    return lisTexte(widget.text(), etat, temoin);
}

bool lis(const TexteLong& widget, ecran::ZoneTexte& etat, Temoin& temoin) {
    return lisTexte(widget.texte(), etat, temoin);
}

bool lis(const QCheckBox& widget, ecran::CaseACocher& etat, Temoin&) {
    if (widget.isChecked() == (etat.Value != 0)) return false;
    etat.Value = widget.isChecked() ? 1 : 0;
    return true;
}

bool lis(const QRadioButton& widget, ecran::BoutonOption& etat, Temoin&) {
    if (widget.isChecked() == etat.Value) return false;
    etat.Value = widget.isChecked();
    return true;
}

bool lis(const QComboBox& widget, ecran::Liste& etat, Temoin& temoin) {
    const QString texte = widget.currentText();
    const int indice = widget.currentIndex();
    if (texte == temoin.texte && indice == temoin.indice) return false;
    const bool deLaListe = indice >= 0 && widget.itemText(indice) == texte;
    etat.ListIndex = deLaListe ? indice : -1;
    etat.Text = deLaListe ? etat.Items[static_cast<std::size_t>(indice)] : texte.toStdString();
    temoin = {texte, indice};
    return true;
}

// -----------------------------------------------------------------------------------------------------------------

template <typename Etat, typename Widget>
class LienSimple final : public Lien {
  public:
    LienSimple(Etat& etat, Widget& widget) : m_etat(etat), m_widget(widget) {}

    void lit() override {
        if (lis(m_widget, m_etat, m_temoin)) m_montre = m_etat;
    }
    void ecrit() override {
        if (m_etat == m_montre) return;
        const QSignalBlocker silence(std::is_same_v<Etat, ecran::Cadre> ? nullptr
                                                                        : &m_widget);  // frames have no gesture
        montre(m_etat, m_montre, m_widget, m_temoin);
        montreEtat(m_etat, m_montre, m_widget);
        m_montre = m_etat;
    }

  private:
    Etat& m_etat;
    Widget& m_widget;
    Etat m_montre;  // what the widget shows; a fresh widget shows a fresh value
    Temoin m_temoin;
};

template <typename Etat, typename Widget>
std::unique_ptr<Lien> lienEntre(Etat& etat, Widget* widget) {
    return std::make_unique<LienSimple<Etat, Widget>>(etat, *widget);
}

}  // namespace

void Liaison::lie(ecran::Etiquette& etat, QLabel* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::Etiquette& etat, QAbstractButton* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::Cadre& etat, QWidget* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::Bouton& etat, QAbstractButton* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::ZoneTexte& etat, QLineEdit* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::ZoneTexte& etat, TexteLong* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::ZoneTexte& etat, QTextEdit* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::CaseACocher& etat, QCheckBox* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::BoutonOption& etat, QRadioButton* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::Liste& etat, QComboBox* widget) {
    ajoute(lienEntre(etat, widget));
}
void Liaison::lie(ecran::Progression& etat, QProgressBar* widget) {
    ajoute(lienEntre(etat, widget));
}

void Liaison::ajoute(std::unique_ptr<Lien> lien) {
    lien->ecrit();
    m_liens.push_back(std::move(lien));
}

void Liaison::lit() {
    for (const auto& lien : m_liens)
        lien->lit();
}

void Liaison::ecrit() {
    for (std::size_t i = 0; i < m_liens.size(); ++i)
        m_liens[i]->ecrit();
    for (std::size_t i = 0; i < m_suites.size(); ++i)
        m_suites[i]();
}

}  // namespace ui
