#include "ui/Apparence.h"

#include "platform/systeme/TeinteDuBureau.h"
#include "ui/Mouvement.h"
#include "ui/Palettes.h"
#include "ui/StyleAmbrelis.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace ui {

namespace {

using systeme::Teinte;

// A portal that runs answers in a few milliseconds; waiting for it spares a window that turns dark under the eyes.
constexpr std::chrono::milliseconds kAttenteDeLaTeinte{50};

// The colours of the application: the desktop's own palette where there is one, else the program's.
class Habillage final : public QObject {
  public:
    explicit Habillage(QObject* parent) : QObject(parent) {
        applique();
        qApp->installEventFilter(this);
    }
    void souhaite(Teinte teinte) {
        m_souhait = teinte;
        if (!m_duBureau) applique();
    }
    void suisLeBureau() {
        m_teinte.emplace([this](Teinte teinte) { souhaite(teinte); }, metMouvement);
        m_teinte->attends(kAttenteDeLaTeinte);
    }
    // The desktop may bring its palette late, or another one.
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (objet == qApp && evenement->type() == QEvent::ApplicationPaletteChange && !m_enCours &&
            QApplication::palette() != m_mise)
            applique();
        return false;
    }

  private:
    static bool memesCouleurs(const QPalette& a, const QPalette& b) {
        using P = QPalette;
        return std::ranges::all_of(
            std::initializer_list<P::ColorRole>{P::Window, P::WindowText, P::Base, P::Highlight},
            [&](P::ColorRole role) { return a.color(P::Active, role) == b.color(P::Active, role); });
    }
    void applique() {
        const QPalette courante = QApplication::palette();
        const bool mienne = m_mise && memesCouleurs(courante, *m_mise);
        if (!mienne) {
            m_duBureau = !memesCouleurs(courante, QApplication::style()->standardPalette());
            m_dernierBureau = courante;
        }
        const QPalette voulue = m_duBureau                    ? m_dernierBureau
                                : m_souhait == Teinte::Sombre ? paletteSombre()
                                                              : paletteClaire();
        m_enCours = true;
        QApplication::setPalette(rendueLisible(voulue));
        m_enCours = false;
        m_mise = QApplication::palette();
    }

    Teinte m_souhait = Teinte::SansSouhait;
    bool m_duBureau = false;  // the desktop brought a palette
    bool m_enCours = false;
    QPalette m_dernierBureau;
    std::optional<QPalette> m_mise;
    std::optional<systeme::TeinteDuBureau> m_teinte;
};

void parleFrancais(const std::string& dossierProgramme) {
    if (QLocale::system().language() != QLocale::French) QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    auto* textes = new QTranslator(qApp);
    const QString nom = QStringLiteral("qtbase_fr");
    if (textes->load(nom, QString::fromStdString(dossierProgramme) + QLatin1String("traductions")) ||
        textes->load(nom, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(textes);
}

}  // namespace

void habille(const std::string& dossierProgramme) {
    if (qEnvironmentVariableIsEmpty("QT_STYLE_OVERRIDE")) QApplication::setStyle(new StyleAmbrelis);
    new Habillage(qApp);
    parleFrancais(dossierProgramme);
}

void suisLaTeinteDuBureau() {
    for (QObject* enfant : qApp->children())
        if (auto* habillage = dynamic_cast<Habillage*>(enfant)) habillage->suisLeBureau();
}

}  // namespace ui
