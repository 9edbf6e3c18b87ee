#include "Lecture.h"
#include "ProgrammeDEssai.h"

#include <QElapsedTimer>
#include <QFile>
#include <QKeySequence>
#include <QRegularExpression>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <filesystem>
#include <thread>

namespace {

// One key, or one text typed, of the guide's page of keys, and what it says is heard then.
struct Geste {
    QString touche, tape, dit;
};
struct Tache {
    QString id;
    int promis = 0;  // gestures
    std::vector<Geste> gestes;
};

QString sansBalises(QString html) {
    return html.remove(QRegularExpression("<[^>]*>")).replace("&amp;", "&").replace("&nbsp;", "\u00a0").trimmed();
}

// The table of tasks first, then each with its gestures.
std::vector<Tache> tachesDuGuide() {
    QFile fichier(AMBRELIS_SOURCE_DIR "/docs/guide/clavier.html");
    if (!fichier.open(QIODevice::ReadOnly)) return {};
    const QString page = QString::fromUtf8(fichier.readAll());
    const auto tous = QRegularExpression::DotMatchesEverythingOption;
    static const QRegularExpression ligne(R"x(<tr><td><a href="#(\w+)">[^<]*</a></td><td>(\d+)</td></tr>)x");
    static const QRegularExpression geste(R"(<tr><td><(kbd|q)>(.*?)</\1></td><td>(.*?)</td></tr>)", tous);
    std::vector<Tache> taches;
    for (const QRegularExpressionMatch& une : ligne.globalMatch(page)) {
        Tache tache{une.captured(1), une.captured(2).toInt(), {}};
        const QRegularExpression partie("<section id=\"" + tache.id + "\">(.*?)</section>", tous);
        for (const QRegularExpressionMatch& un : geste.globalMatch(partie.match(page).captured(1))) {
            const bool touche = un.captured(1) == "kbd";
            const QString quoi = sansBalises(un.captured(2));
            tache.gestes.push_back({touche ? quoi : QString(), touche ? QString() : quoi, sansBalises(un.captured(3))});
        }
        taches.push_back(std::move(tache));
    }
    return taches;
}

QKeyCombination combinaison(QString touche) {
    static const std::pair<const char*, const char*> kNoms[] = {
        {"Maj", "Shift"}, {"Entrée", "Return"},        {"Échap", "Esc"},           {"Espace", "Space"},
        {"Bas", "Down"},  {"Page suivante", "PgDown"}, {"Page précédente", "PgUp"}};
    for (const auto& [ici, la] : kNoms)
        touche.replace(QString::fromUtf8(ici), la);
    return QKeySequence::fromString(touche)[0];
}

// The user and the reader, beside the program as they are in life: a thread that knows keys and words alone. Boxes run
// their own loops meanwhile.
class Aveugle {
  public:
    // Empty, or what went wrong.
    [[nodiscard]] QString accomplit(const Tache& tache) const {
        int numero = 0;
        for (const Geste& geste : tache.gestes) {
            fais(geste);
            if (!entend(geste.dit))
                return QString("%1, %2 (%3): \"%4\" is not heard, but\n%5")
                    .arg(tache.id)
                    .arg(numero + 1)
                    .arg(geste.touche + geste.tape, geste.dit, dansLeProgramme(tout));
            ++numero;
        }
        return {};
    }

  private:
    template <typename Question>
    static QString dansLeProgramme(Question question) {
        QString reponse;
        QMetaObject::invokeMethod(
            qApp, [&] { reponse = question(); }, Qt::BlockingQueuedConnection);
        return reponse;
    }
    static QString ou() {
        QAccessibleInterface* objet = essais::focusLu();
        return objet ? essais::phrase(*objet) : QString();
    }
    // What a desktop does, and the headless one does not: the keys come back to a window when another one closes.
    static void rendLesTouches() {
        if (QGuiApplication::focusWindow()) return;
        QWidget* fenetre = QApplication::activeModalWidget();
        for (QWidget* autre : QApplication::topLevelWidgets())
            if (!fenetre && autre->objectName() == QLatin1String("frmPrincipal")) fenetre = autre;
        if (fenetre) fenetre->activateWindow();
    }
    // Where the keys are, the box that is open, and what was announced since the gesture.
    static QString tout() {
        if (s_commande->enCours() && !QApplication::activeModalWidget()) return {};  // keys would be lost on it
        rendLesTouches();
        const QString annonce = essais::annonceLue();
        return ou() + '\n' + essais::boiteLue() + '\n' + (annonce == s_annonceAvant ? QString() : annonce);
    }
    // False while the program reads: a desktop's keys wait until it is done, those of a test would be refused.
    static bool envoie(const Geste& geste) {
        if (s_commande->enCours() && !QApplication::activeModalWidget()) return false;
        s_annonceAvant = essais::annonceLue();
        const QPointer<QWindow> fenetre = QGuiApplication::focusWindow();
        if (!fenetre) return true;
        if (!geste.touche.isEmpty()) {
            const QKeyCombination touche = combinaison(geste.touche);
            QTest::keyClick(fenetre, touche.key(), touche.keyboardModifiers());
        }
        for (const QChar lettre : geste.tape)
            if (fenetre) QTest::sendKeyEvent(QTest::Click, fenetre.data(), Qt::Key_unknown, lettre, Qt::NoModifier);
        return true;
    }
    static void renvoie(const Geste& geste) {
        if (!envoie(geste)) QTimer::singleShot(1, qApp, [geste] { renvoie(geste); });
    }
    // What a key does may run a box's loop, which is not waited for; a text is typed to its end.
    static void fais(const Geste& geste) {
        if (geste.tape.isEmpty()) {
            QMetaObject::invokeMethod(
                qApp, [geste] { renvoie(geste); }, Qt::QueuedConnection);
            return;
        }
        for (bool fait = false; !fait; QThread::msleep(1))
            QMetaObject::invokeMethod(
                qApp, [&] { fait = envoie(geste); }, Qt::BlockingQueuedConnection);
    }
    static bool entend(const QString& dit) {
        QElapsedTimer depuis;
        for (depuis.start(); depuis.elapsed() < essais::kPatience / 4; QThread::msleep(2)) {
            if (dansLeProgramme(tout).contains(dit)) return true;
        }
        return false;
    }

  public:
    static inline const ui::Commande* s_commande = nullptr;

  private:
    static inline QString s_annonceAvant;  // in the program's thread alone
};

TEST(TachesAuClavier, EachIsDoneByTheGesturesOfTheGuideAndHeard) {
    const std::vector<Tache> taches = tachesDuGuide();
    ASSERT_EQ(taches.size(), 12U);
    for (const Tache& tache : taches)
        EXPECT_EQ(static_cast<int>(tache.gestes.size()), tache.promis) << tache.id.toStdString();

    essais::ProgrammeDEssai essai;
    const std::string samples = essai.dossier.chemin("samples");
    std::filesystem::copy(AMBRELIS_SOURCE_DIR "/samples", samples);
    std::filesystem::remove(samples + "/Citizen Kane.jpg");  // the one that is given a poster
    qputenv("HOME", QByteArray::fromStdString(essai.dossier.chemin()));
    std::filesystem::create_directory(essai.dossier.chemin("Images"));
    essai.dossier.ecrit("Images/citizen.jpg", essais::octetsDImage(Qt::red));
    essai.vraiesBoites = true;
    essai.demarre();
    Aveugle::s_commande = &essai.programme->commande();

    QString echec;
    std::atomic<bool> fini = false;
    std::thread aveugle([&] {
        for (const Tache& tache : taches)
            if (echec.isEmpty()) echec = Aveugle().accomplit(tache);
        fini = true;
        QMetaObject::invokeMethod(qApp, [&] { essai.programme->termine(); });
    });
    while (!fini)
        QTest::qWait(10);
    aveugle.join();
    EXPECT_EQ(echec.toStdString(), "");
}

}  // namespace
