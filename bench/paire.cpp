// paire PROGRAMME DOSSIER [--vite | --seul N [--affiches]]: the same films in this program and in Tellico, each started on the screen that
// DISPLAY names, which nothing else uses, and the session bus. Prints their table; the pictures of both stay in DOSSIER.

#include "Mesure.h"
#include "Programmes.h"

#include <QDBusInterface>
#include <QDBusReply>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>
#include <QUrl>
#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <stdexcept>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using bench::Figures;

constexpr double kCalme = 2000, kPatience = 120000;  // milliseconds
constexpr double kRegard = 10;                       // between two looks at the screen
constexpr int kAjoutes = 1000, kPremierAjoute = 200000;
constexpr int kAttenteReponse = 150000;  // milliseconds, on the bus
constexpr int kFiches = 5;               // shown one after the other
constexpr double kAssez = 420000;        // milliseconds after which nothing is measured more than once
constexpr double kLimite = 560000;       // after which nothing long is begun

const double g_depart = bench::maintenant();

double ecoule() {
    return bench::maintenant() - g_depart;
}

// What is being done, with the seconds since the start: a run takes minutes.
void dit(const std::string& quoi) {
    std::fprintf(stderr, "%4.0f s  %s\n", ecoule() / 1000, quoi.c_str());
}

struct Options {
    fs::path programme, dossier;
    bool vite = false;
    int seul = 0;  // that number of films
    bool affiches = false;
};

void exige(bool vrai, const std::string& quoi) {
    if (!vrai) throw std::runtime_error(quoi);
}

std::string motDe(qint64 processus, const char* fichier) {
    QFile flux(QString("/proc/%1/%2").arg(processus).arg(fichier));
    return flux.open(QIODevice::ReadOnly) ? flux.readAll().toStdString() : "";
}

// Milliseconds of processor that the process has taken.
double travail(qint64 processus) {
    const QByteArray texte = QByteArray::fromStdString(motDe(processus, "stat"));
    const QList<QByteArray> mots = texte.mid(texte.lastIndexOf(')') + 2).split(' ');
    exige(mots.size() > 12, "a measured program ended");
    return (mots[11].toDouble() + mots[12].toDouble()) * 1000 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double memoireDePointe(qint64 processus) {
    const std::string texte = motDe(processus, "status");
    return std::stod(texte.substr(texte.find("VmHWM:") + 6)) / 1024;
}

QImage regarde() {
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

// The moment at which the screen took the look that it keeps: another one than the empty screen's, unchanged for a while
// in which the program is idle too. A disk that keeps it waiting makes it look idle: `pret` says whether it is done.
double attendLeCalme(
    qint64 processus, double depuis, const QImage& vide, const std::function<bool()>& pret = [] { return true; }) {
    QImage vu = vide;
    double change = depuis, travaille = travail(processus), repos = depuis;
    for (;;) {
        QThread::msleep(static_cast<unsigned long>(kRegard));
        const double heure = bench::maintenant();
        if (QImage image = regarde(); image != vu) vu = image, change = heure;
        if (const double fait = travail(processus); fait > travaille + 0.2 * (heure - repos) && heure > repos + 200)
            travaille = fait, repos = heure;
        else if (change > depuis && vu != vide && heure > change + kCalme && heure > repos + kCalme) {
            if (pret() && regarde() == vu) return change;
            repos = bench::maintenant();
        }
        exige(heure < depuis + kPatience, "the screen does not come to rest");
    }
}

// A program on the screen; ended with it.
class Fenetre {
  public:
    Fenetre(
        const fs::path& programme, const QStringList& mots, const QProcessEnvironment& environnement,
        const std::function<bool()>& pret = [] { return true; }) {
        m_processus.setProcessEnvironment(environnement);
        m_processus.setStandardOutputFile(QProcess::nullDevice());
        m_processus.setStandardErrorFile(QProcess::nullDevice());
        const QImage vide = regarde();
        m_depart = bench::maintenant();
        m_processus.start(QString::fromStdString(programme.string()), mots);
        exige(m_processus.waitForStarted(), "cannot start " + programme.string());
        m_montre = attendLeCalme(numero(), m_depart, vide, pret) - m_depart;
        m_memoire = memoireDePointe(numero());
    }
    ~Fenetre() {
        m_processus.kill();
        m_processus.waitForFinished();
    }
    Fenetre(const Fenetre&) = delete;
    Fenetre& operator=(const Fenetre&) = delete;

    [[nodiscard]] qint64 numero() const { return m_processus.processId(); }
    [[nodiscard]] double montre() const { return m_montre; }
    [[nodiscard]] double memoire() const { return m_memoire; }

  private:
    QProcess m_processus;
    double m_depart = 0, m_montre = 0, m_memoire = 0;
};

QProcessEnvironment environnement(const fs::path& maison) {
    QProcessEnvironment resultat = QProcessEnvironment::systemEnvironment();
    resultat.insert("QT_QPA_PLATFORM", "xcb");
    resultat.insert("LC_ALL", "C.UTF-8");
    resultat.insert("HOME", QString::fromStdString(maison.string()));
    resultat.insert("QTWEBENGINE_DISABLE_SANDBOX", "1");  // as root it refuses to start in one
    return resultat;
}

// One call of Tellico's published interface; throws what it answers when it refuses.
template <typename Reponse, typename... Mots>
Reponse demande(const char* objet, const char* interface, const char* methode, const Mots&... mots) {
    QDBusInterface bus("org.kde.tellico", objet, interface);
    bus.setTimeout(kAttenteReponse);
    const QDBusReply<Reponse> reponse = bus.call(methode, mots...);
    exige(reponse.isValid(), std::string(methode) + ": " + reponse.error().message().toStdString());
    return reponse.value();
}

qsizetype entreesMontrees() {
    QDBusInterface bus("org.kde.tellico", "/Tellico", "org.kde.tellico");
    bus.setTimeout(kAttenteReponse);
    const QDBusReply<QList<int>> reponse = bus.call("filteredEntries");
    exige(reponse.isValid(), reponse.error().message().toStdString());
    return reponse.value().size();
}

void filtre(const QString& texte) {
    QDBusInterface bus("org.kde.tellico", "/Tellico", "org.kde.tellico");
    bus.setTimeout(kAttenteReponse);
    exige(bus.call("setFilter", texte).type() == QDBusMessage::ReplyMessage, "setFilter failed");
}

// Its command Save, which answers once the file is written.
void enregistre(const fs::path& fichier) {
    const auto avant = fs::last_write_time(fichier);
    exige(demande<bool>("/tellico/MainWindow_1", "org.kde.KMainWindow", "activateAction", QString("file_save")),
          "no Save");
    exige(fs::last_write_time(fichier) != avant, "the file was not written");
}

void execute(const fs::path& ou, const QString& programme, const QStringList& mots) {
    QProcess processus;
    processus.setWorkingDirectory(QString::fromStdString(ou.string()));
    processus.start(programme, mots);
    exige(processus.waitForFinished(-1) && processus.exitCode() == 0, programme.toStdString() + " failed");
}

void clique(int x, int y) {
    execute("/", "xdotool", {"mousemove", QString::number(x), QString::number(y), "click", "--delay", "0", "1"});
}

// From each click on another line of a list, which stand so far apart, to the last change of the screen, the film's sheet
// with its poster: the median.
double fichesMontrees(qint64 processus, int x, int premiereLigne, int ecart) {
    std::vector<double> durees;
    for (int i = 0; i < kFiches; ++i) {
        const QImage avant = regarde();
        const double depart = bench::maintenant();
        clique(x, premiereLigne + 2 * i * ecart);
        durees.push_back(attendLeCalme(processus, depart, avant) - depart);
    }
    std::ranges::sort(durees);
    return durees[durees.size() / 2];
}

double duree(const std::function<void()>& travailFait) {
    return bench::meilleureDuree(1, travailFait);
}

void photographie(const fs::path& fichier) {
    exige(regarde().save(QString::fromStdString(fichier.string())), "cannot write " + fichier.string());
}

struct Essai {
    int films = 0;
    bool affiches = false;
    [[nodiscard]] std::string nom() const { return std::to_string(films) + (affiches ? "-affiches" : ""); }
};

fs::path fichesAjoutees(const Options& o, bool affiches) {
    return o.dossier / (affiches ? "fiches-affiches" : "fiches");
}

fs::path ajoutTellico(const Options& o, bool affiches) {
    return o.dossier / (affiches ? "ajout-affiches.tc" : "ajout.tc");
}

// `f` has what was measured when something fails.
void mesureTellico(const Options& o, const Essai& e, Figures& f) {
    const fs::path fichier = o.dossier / "essai.tc", maison = o.dossier / "maison";
    fs::copy_file(o.dossier / ("tellico-" + e.nom() + ".tc"), fichier, fs::copy_options::overwrite_existing);
    fs::create_directories(maison / ".config");
    QFile reglages(QString::fromStdString((maison / ".config/tellicorc").string()));
    exige(reglages.open(QIODevice::WriteOnly), "no settings");
    // Else it asks whether so many images may stay in the file, which is where it keeps them.
    reglages.write("[TipOfDay]\nRunOnStart=false\n[General Options]\nAsk Write Images In File=false\n");
    reglages.close();
    sync();
    f["fichier"] = static_cast<double>(fs::file_size(fichier)) / 1e6;
    const auto tousMontres = [&e] {
        try {
            return entreesMontrees() == e.films;
        } catch (const std::exception&) {  // not on the bus yet
            return false;
        }
    };
    const Fenetre fenetre("tellico", {QString::fromStdString(fichier.string())}, environnement(maison), tousMontres);
    f["montre"] = fenetre.montre();
    f["memoire"] = fenetre.memoire();
    photographie(o.dossier / ("tellico-" + e.nom() + ".png"));
    if (e.affiches) {
        f["fiche"] = fichesMontrees(fenetre.numero(), 455, 108, 17);
        photographie(o.dossier / ("tellico-" + e.nom() + "-fiche.png"));
    }
    f["filtre"] = duree([] {
        filtre("horloger");
        exige(entreesMontrees() > 0, "nothing found");
    });
    filtre("");
    (void)entreesMontrees();
    const auto note = [] {
        exige(demande<bool>("/Collections", "org.kde.tellico", "setEntryValue", 7, QString("rating"), QString("5")) ||
                  demande<bool>("/Collections", "org.kde.tellico", "setEntryValue", 7, QString("rating"), QString("4")),
              "no entry 7");
    };
    f["note"] = duree([&] {
        note();
        enregistre(fichier);
    });
    exige(ecoule() < kLimite, "no time is left");
    const QUrl ajout = QUrl::fromLocalFile(QString::fromStdString(ajoutTellico(o, e.affiches).string()));
    f["ajout"] = duree([&] {
        exige(demande<bool>("/Tellico", "org.kde.tellico", "importTellico", ajout.toString(), QString("append")),
              "no import");
        enregistre(fichier);
    });
    exige(entreesMontrees() == e.films + kAjoutes, "Tellico does not show the films added");
}

// A copy of the program folder with that base.
fs::path installe(const Options& o, const Essai& e) {
    const fs::path copie = o.dossier / "copie";
    fs::remove_all(copie);
    fs::copy(o.programme, copie, fs::copy_options::recursive);
    fs::copy_file(o.dossier / (e.nom() + ".mdb"), copie / "Films.mdb", fs::copy_options::overwrite_existing);
    sync();
    return copie;
}

void mesureLeNotre(const Options& o, const Essai& e, Figures& f) {
    fs::path copie = installe(o, e);
    f["fichier"] = static_cast<double>(fs::file_size(copie / "Films.mdb")) / 1e6;
    {
        const Fenetre fenetre(copie / "Ambrelis", {}, environnement(o.dossier / "maison"));
        f["montre"] = fenetre.montre();
        f["memoire"] = fenetre.memoire();
        photographie(o.dossier / ("ambrelis-" + e.nom() + ".png"));
        if (e.affiches) {
            constexpr int kGroupe = 192, kLigne = 22;  // where the first heading and its films stand
            const QImage avant = regarde();
            const double depart = bench::maintenant();
            clique(27, kGroupe);
            (void)attendLeCalme(fenetre.numero(), depart, avant);
            f["fiche"] = fichesMontrees(fenetre.numero(), 120, kGroupe + kLigne, kLigne);
            photographie(o.dossier / ("ambrelis-" + e.nom() + "-fiche.png"));
        }
    }
    copie = installe(o, e);
    f["note"] = bench::lance("mesure_commandes", {"note", copie.string()}).at("note");
    f["filtre"] = bench::lance("mesure_fenetre", {copie.string(), "filtre"}).at("frappe_pire");
    f["ajout"] = bench::lance("mesure_session", {"import", copie.string(), fichesAjoutees(o, e.affiches).string()})
                     .at("import_liste");
}

// What Tellico opens, of so many films from that number on.
void ecritTellico(const Options& o, int films, int premier, bool affiches, const fs::path& fichier) {
    const fs::path dossier = o.dossier / "tellico";
    fs::remove_all(dossier);
    fs::remove(fichier);
    std::vector<std::string> mots{"tellico", std::to_string(films), dossier.string(), "--depuis",
                                  std::to_string(premier)};
    if (affiches) mots.emplace_back("--affiches");
    (void)bench::lance("generateur", mots);
    execute(dossier, "zip", {"-q", "-1", "-r", QString::fromStdString(fichier.string()), "tellico.xml", "images"});
    fs::remove_all(dossier);
}

// The films in both forms.
void prepare(const Options& o, const Essai& e) {
    std::vector<std::string> notre{"base", std::to_string(e.films), (o.dossier / (e.nom() + ".mdb")).string()};
    if (e.affiches) notre.emplace_back("--affiches");
    (void)bench::lance("generateur", notre);
    ecritTellico(o, e.films, 0, e.affiches, o.dossier / ("tellico-" + e.nom() + ".tc"));
}

// Those that are added.
void prepareAjouts(const Options& o) {
    const std::string ajoutes = std::to_string(kAjoutes), premier = std::to_string(kPremierAjoute);
    for (const bool affiches : {false, true}) {
        fs::remove_all(fichesAjoutees(o, affiches));
        std::vector<std::string> mots{"fiches", ajoutes, fichesAjoutees(o, affiches).string(), "--depuis", premier};
        if (affiches) mots.emplace_back("--affiches");
        (void)bench::lance("generateur", mots);
        ecritTellico(o, kAjoutes, kPremierAjoute, affiches, ajoutTellico(o, affiches));
    }
}

struct Resultat {
    Essai essai;
    Figures tellico{}, notre{};
};

// One more run of a program; what fails is told, and leaves its figures out.
void mesure(const std::string& quoi, Figures& figures, const std::function<void(Figures&)>& passage) {
    dit(quoi);
    Figures f;
    try {
        passage(f);
    } catch (const std::exception& echec) {
        dit(quoi + " ended early: " + echec.what());
    }
    for (const auto& [nom, valeur] : f) {
        const double connue = figures.try_emplace(nom, valeur).first->second;
        figures[nom] = nom == "memoire" ? std::max(connue, valeur) : std::min(connue, valeur);
    }
}

Resultat compare(const Options& o, const Essai& e) {
    dit(e.nom() + ": making the films");
    prepare(o, e);
    Resultat r{e};
    const int passages = o.vite || o.seul > 0 || e.films > 10000 ? 1
                         : e.films > 1000                        ? (e.affiches ? 1 : 2)
                         : e.affiches                            ? 2
                                                                 : 3;
    for (int i = 1; i <= passages && (i == 1 || ecoule() < kAssez); ++i) {
        const std::string suite = ", " + e.nom() + ", run " + std::to_string(i);
        mesure("Tellico" + suite, r.tellico, [&](Figures& f) { mesureTellico(o, e, f); });
        mesure("Ambrelis" + suite, r.notre, [&](Figures& f) { mesureLeNotre(o, e, f); });
    }
    fs::remove(o.dossier / ("tellico-" + e.nom() + ".tc"));
    fs::remove(o.dossier / (e.nom() + ".mdb"));
    return r;
}

std::string texte(const Figures& f, const std::string& nom) {
    const auto trouve = f.find(nom);
    if (trouve == f.end()) return "-";
    const double v = trouve->second;
    char resultat[32];
    std::snprintf(resultat, sizeof resultat, v < 10 ? "%.1f" : "%.0f", v);
    return resultat;
}

void ligne(const std::vector<Resultat>& tout, bool affiches, const char* titre, const char* nom) {
    std::printf("| %s |", titre);
    for (const Resultat& r : tout)
        if (r.essai.affiches == affiches)
            std::printf(" %s | %s |", texte(r.tellico, nom).c_str(), texte(r.notre, nom).c_str());
    std::printf("\n");
}

void imprime(const std::vector<Resultat>& tout, bool affiches) {
    std::printf("\n| %s |", affiches ? "With a poster each" : "Without posters");
    std::string trait = "|---|";
    for (const Resultat& r : tout) {
        if (r.essai.affiches != affiches) continue;
        std::printf(" Tellico %d | Ambrelis %d |", r.essai.films, r.essai.films);
        trait += "---:|---:|";
    }
    std::printf("\n%s\n", trait.c_str());
    ligne(tout, affiches, "start to the collection shown, ms", "montre");
    ligne(tout, affiches, "peak memory by then, MB", "memoire");
    ligne(tout, affiches, "size of the file, MB", "fichier");
    if (affiches) ligne(tout, affiches, "a film's sheet with its poster, ms", "fiche");
    ligne(tout, affiches, "a rating stored, ms", "note");
    ligne(tout, affiches, "1,000 films added and stored, ms", "ajout");
    ligne(tout, affiches, "quick filter, ms", "filtre");
}

}  // namespace

int main(int nombre, char** mots) try {
    QGuiApplication application(nombre, mots);
    if (nombre < 3) throw std::invalid_argument("usage: paire PROGRAMME DOSSIER [--vite | --seul N [--affiches]]");
    Options o{mots[1], mots[2], nombre > 3 && std::string(mots[3]) == "--vite"};
    if (nombre > 4 && std::string(mots[3]) == "--seul") o.seul = std::stoi(mots[4]);
    o.affiches = o.seul > 0 && nombre > 5 && std::string(mots[5]) == "--affiches";
    fs::create_directories(o.dossier);
    prepareAjouts(o);
    std::vector<Resultat> tout;
    std::vector<Essai> essais{{1000, false}, {1000, true}, {10000, false}};
    if (!o.vite) essais.insert(essais.end(), {{100000, false}, {10000, true}});
    if (o.seul > 0) essais = {{o.seul, o.affiches}};
    for (const Essai& e : essais)
        if (ecoule() < kLimite) tout.push_back(compare(o, e));
    for (const bool affiches : {false, true})
        if (std::ranges::any_of(tout, [affiches](const Resultat& r) { return r.essai.affiches == affiches; }))
            imprime(tout, affiches);
    return 0;
} catch (const std::exception& e) {
    std::cerr << "paire: " << e.what() << '\n';
    return 1;
}
