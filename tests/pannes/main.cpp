#include "app/Commandes.h"
#include "doubles/DossierTemporaire.h"
#include "edit/cmdModifieNote_Click.h"
#include "pannes/Cale.h"
#include "pannes/Etat.h"
#include "pannes/Scenarios.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <map>
#include <optional>
#include <random>
#include <thread>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

// Steps through the points where a command can fail, and kills sessions at random; says what did not hold.
namespace {

using namespace pannes;
namespace fs = std::filesystem;

constexpr unsigned kPatience = 120;  // seconds: only a program that hangs takes so long

const std::map<std::string, Faute> kFautes{{"refus", Faute::Refus},
                                           {"plein", Faute::DisquePlein},
                                           {"panne", Faute::DisqueMort},
                                           {"mort", Faute::Mort},
                                           {"mémoire", Faute::Memoire}};

// What befalls a session from outside while it does a command. `sansEffet`: the command does its work all the same.
struct Circonstance {
    std::string nom;
    bool sansEffet;
};
const std::vector<Circonstance> kCirconstances{{"verrou d'une seconde", true},
                                               {"verrou", false},
                                               {"base changée", true},
                                               {"dossier parti", false},
                                               {"horloge", true}};
constexpr long kUnAn = 365L * 24 * 3600;

// From its making to its end.
class Dehors {
  public:
    Dehors(const std::string& nom, const std::string& dossier)
        : m_nom(nom), m_dossier(dossier.substr(0, dossier.size() - 1)) {
        if (nom == "dossier parti") fs::rename(m_dossier, ailleurs());
        if (nom == "horloge") cale_recule(kUnAn);
        if (!nom.starts_with("verrou") && nom != "base changée") return;
        m_autre.emplace(dossier + "Films.mdb");
        m_autre->execute(nom == "base changée" ? "INSERT INTO Films (Titre, Realisateur) VALUES ('Ailleurs', 'X')"
                                               : "BEGIN EXCLUSIVE");
        if (nom == "verrou d'une seconde")
            m_attente = std::thread([this] {
                std::this_thread::sleep_for(std::chrono::seconds(1));
                m_autre->execute("COMMIT");
            });
    }
    Dehors(const Dehors&) = delete;
    Dehors& operator=(const Dehors&) = delete;
    ~Dehors() {
        if (m_attente.joinable()) m_attente.join();
        if (m_nom != "dossier parti") return;
        fs::remove_all(m_dossier);
        fs::rename(ailleurs(), m_dossier);
    }

  private:
    [[nodiscard]] std::string ailleurs() const { return m_dossier + " parti"; }
    const std::string m_nom, m_dossier;
    std::optional<AutreProgramme> m_autre;
    std::thread m_attente;
};

// A process of its own does the work; what it wrote, and how it ended when that was not by itself.
struct Issue {
    std::string texte;
    int signal = 0;
};
class Enfant {
  public:
    explicit Enfant(const std::function<void(std::FILE*)>& travail) {
        int bouts[2];
        if (pipe(bouts) != 0) throw std::runtime_error("no pipe");
        std::fflush(nullptr);
        m_processus = fork();
        if (m_processus == 0) {
            close(bouts[0]);
            alarm(kPatience);
            std::FILE* sortie = fdopen(bouts[1], "w");
            try {
                travail(sortie);
            } catch (const std::exception& erreur) {
                std::fprintf(sortie, "thrown: %s\n", erreur.what());
            }
            std::fflush(sortie);
            _exit(0);
        }
        close(bouts[1]);
        m_sortie = bouts[0];
    }
    void tue() const { kill(m_processus, SIGKILL); }
    Issue attends() {
        Issue issue;
        char tampon[4096];
        for (ssize_t lus = 0; (lus = read(m_sortie, tampon, sizeof tampon)) > 0;)
            issue.texte.append(tampon, static_cast<std::size_t>(lus));
        close(m_sortie);
        int etat = 0;
        waitpid(m_processus, &etat, 0);
        if (WIFSIGNALED(etat)) issue.signal = WTERMSIG(etat);
        return issue;
    }

  private:
    pid_t m_processus = -1;
    int m_sortie = -1;
};

void copie(const fs::path& de, const fs::path& vers) {
    fs::remove_all(vers);
    fs::copy(de, vers, fs::copy_options::recursive);
}

// A further command, once the fault is over.
std::string utilisable(Seance& s) {
    std::string base;
    s.fais([&] { s.session.execute([&](const app::Contexte& c) { base = c.base.base.nom(); }); });
    if (noteDe(kTemoin, base) < 0) return "";
    s.boites.saisie = "7";
    s.zone(1);
    try {
        s.commande(app::TreeView1_NodeClick, s.noeud(kTemoin));
    } catch (const std::runtime_error&) {
        return "the list cannot be shown: " + s.boites.dits;
    }
    s.commande(edit::cmdModifieNote_Click);
    return noteDe(kTemoin, base) == 7 ? "" : "a further command does not work: " + s.boites.dits;
}

// Of a base that is not opened: what undoes the work that was cut off, once it is.
bool estLeJournalDUneAutre(const std::string& nom) {
    return nom.ends_with(".mdb-journal") && nom != "Films.mdb-journal";
}

// What a next start finds, after its own cleaning.
std::string demarreEnsuite(const std::string& dossier, const Etat& avant, const Etat& apres, bool entiere,
                           bool reprend = false) {
    return Enfant([&](std::FILE* sortie) {
               Seance s(dossier);
               s.demarre();
               const Etat trouve = Etat::de(dossier);
               std::string texte = trouve.ecart(avant, apres, entiere);
               if (s.finie) texte += "the next start ends\n";
               if (!s.finie && !reprend && !s.boites.dits.empty()) texte += "the next start says " + s.boites.dits;
               if (!s.finie) texte += utilisable(s);
               s.session.Form_Unload();
               for (const auto& [nom, octets] : Etat::de(dossier).fichiers)
                   if (estDeTravail(nom) && !estLeJournalDUneAutre(nom)) texte += nom + " is left over\n";
               std::fputs(texte.c_str(), sortie);
           })
        .attends()
        .texte;
}

class Epreuve {
  public:
    explicit Epreuve(const Scenario& scenario) : m_scenario(scenario) {
        cale_dossier(m_lieu.chemin().c_str());
        construit(fs::path(m_lieu.chemin("modele")), scenario.dansLeDossier);
        for (const Faute faute : {Faute::Aucune, Faute::Memoire}) {
            copie(m_lieu.chemin("modele"), m_dossier);
            const Issue issue = Enfant([&](std::FILE* sortie) {
                                    Seance s(m_dossier);
                                    const auto [points, dits] = execute(s, faute, 0);
                                    copie(m_dossier, m_lieu.chemin("apres"));
                                    std::fprintf(sortie, "%ld %s", points, dits.c_str());
                                }).attends();
            if (issue.signal != 0 || issue.texte.empty())
                throw std::runtime_error("no run without a fault: " + issue.texte);
            const std::size_t blanc = issue.texte.find(' ');
            (faute == Faute::Aucune ? m_points : m_allocations) = std::stol(issue.texte);
            m_dits = issue.texte.substr(blanc + 1);
        }
        m_avant = Etat::de(m_lieu.chemin("avant"));
        m_apres = Etat::de(m_lieu.chemin("apres"));
        if (m_avant == m_apres && m_points == 0) throw std::runtime_error("nothing done: " + m_dits);
    }
    [[nodiscard]] const std::string& dits() const { return m_dits; }
    [[nodiscard]] long points(Faute faute) const { return faute == Faute::Memoire ? m_allocations : m_points; }

    // What did not hold; "" when all did.
    std::string passe(Faute faute, long point, const Circonstance& circonstance = {}) {
        copie(m_lieu.chemin("modele"), m_dossier);
        const Issue issue =
            Enfant([&](std::FILE* sortie) { std::fputs(vis(faute, point, circonstance).c_str(), sortie); }).attends();
        std::string texte = issue.texte;
        if (issue.signal != (faute == Faute::Mort ? SIGKILL : 0))
            texte += "ended by signal " + std::to_string(issue.signal) + "\n";
        if (issue.signal != 0 || m_scenario.reprise)
            return texte + demarreEnsuite(m_dossier, m_avant, m_apres, m_scenario.entiere, m_scenario.reprise);
        const Etat laisse = Etat::de(m_dossier);
        return texte + demarreEnsuite(m_dossier, laisse, laisse, true);
    }

  private:
    struct Fait {
        long points;
        std::string dits;  // from the command on
    };
    Fait execute(Seance& s, Faute faute, long point, const std::string& circonstance = "") {
        if (!m_scenario.auDemarrage) s.demarre();
        m_scenario.prepare(s, m_dossier);
        if (point == 0) copie(m_dossier, m_lieu.chemin("avant"));
        const std::size_t avant = s.boites.dits.size();
        const Dehors dehors(circonstance, m_dossier);
        cale_arme(faute, point);
        m_scenario.commande(s);
        const long points = cale_desarme();
        return {points, s.boites.dits.substr(avant)};
    }

    // In a process of its own: the command with its fault, what it leaves, and the same session afterwards.
    std::string vis(Faute faute, long point, const Circonstance& circonstance) {
        Seance s(m_dossier);
        const std::string dits = execute(s, faute, point, circonstance.nom).dits;
        if (std::getenv("PANNES_DITS")) std::fputs(dits.c_str(), stderr);
        Etat fait = Etat::de(m_dossier);
        std::string texte = fait.dommage;
        if (circonstance.sansEffet && !fait.memesFilms(m_apres)) texte += "the work was not done: " + dits;
        if (circonstance.nom == "base changée" && !estQuelquePart(kAilleurs))
            texte += "what another program added is gone\n";
        if (!circonstance.sansEffet) texte += fait.ecart(m_avant, m_apres, m_scenario.entiere);
        if (!circonstance.sansEffet && dits == m_dits && !estComplet(fait)) texte += "nothing was told\n";
        if (dits.find("ANGLAIS") != std::string::npos) texte += "told " + dits;
        if (s.finie && dits.empty() && m_scenario.nom != "arrêt") texte += "ended without a word\n";
        if (s.finie) return texte;
        texte += utilisable(s);
        if (m_scenario.rejouable && !fait.memesFilms(m_apres)) texte += rejoue(s);
        s.session.Form_Unload();
        return texte;
    }
    // In the base, or in a safety copy of it.
    [[nodiscard]] bool estQuelquePart(const char* titre) const {
        return std::ranges::any_of(fs::recursive_directory_iterator(m_dossier), [&](const auto& entree) {
            const std::string nom = entree.path().lexically_relative(m_dossier).string();
            return (nom == "Films.mdb" || nom.starts_with("Sauvegardes/")) && entree.is_regular_file() &&
                   noteDe(titre, entree.path()) >= 0;
        });
    }
    [[nodiscard]] bool estComplet(const Etat& fait) const {
        const auto manque = [&](const auto& fichier) {
            const auto place = fait.fichiers.find(fichier.first);
            return !estDeTravail(fichier.first) && (place == fait.fichiers.end() || place->second != fichier.second);
        };
        return fait.bases == m_apres.bases && std::ranges::none_of(m_apres.fichiers, manque);
    }
    std::string rejoue(Seance& s) {
        try {
            m_scenario.prepare(s, m_dossier);
        } catch (const std::runtime_error&) {  // half of the films are done: there is no such node any more
            return "";
        }
        m_scenario.commande(s);
        const Etat fait = Etat::de(m_dossier);
        return fait.memesFilms(m_apres) ? ""
                                        : "done again, the command does not end what it began: " + s.boites.dits +
                                              fait.ecart(m_apres, m_apres, false);
    }

    const Scenario& m_scenario;
    doubles::DossierTemporaire m_lieu;
    const std::string m_dossier = m_lieu.chemin("Ambrelis/");
    Etat m_avant, m_apres;
    std::string m_dits;
    long m_points = 0, m_allocations = 0;
};

// At most `maximum` of 1 to `nombre`, evenly spread; below zero that very one.
std::vector<long> choisis(long nombre, long maximum) {
    if (maximum < 0) return {-maximum};
    std::vector<long> points;
    const long retenus = std::min(nombre, maximum);
    for (long i = 0; i < retenus; ++i)
        points.push_back(1 + (2 * i + 1) * nombre / (2 * retenus));
    return points;
}

constexpr long kAussiDehors = 10;  // points from which on the circumstances are tried too: they take seconds

int etape(const Scenario& scenario, const std::string& fauteVoulue, long maximum) {
    Epreuve epreuve(scenario);
    std::cout << scenario.nom << ": " << epreuve.points(Faute::Refus) << " points, " << epreuve.points(Faute::Memoire)
              << " allocations\n";
    int echecs = 0;
    for (const Circonstance& circonstance : kCirconstances) {
        if (scenario.auDemarrage || (fauteVoulue.empty() ? maximum < kAussiDehors : fauteVoulue != circonstance.nom))
            continue;
        const std::string texte = epreuve.passe(Faute::Aucune, 0, circonstance);
        if (texte.empty()) continue;
        ++echecs;
        std::cout << "  " << circonstance.nom << ": " << texte << std::flush;
    }
    for (const auto& [nom, faute] : kFautes) {
        if (!fauteVoulue.empty() && nom != fauteVoulue) continue;
        for (const long point : choisis(epreuve.points(faute), maximum)) {
            const std::string texte = epreuve.passe(faute, point);
            if (texte.empty()) continue;
            ++echecs;
            std::cout << "  " << nom << " " << point << ": " << texte << std::flush;
        }
    }
    return echecs;
}

// A session of random commands, the same for the same seed. `suit` is told after each, and after the start.
constexpr int kCommandes = 12;
void vitAuHasard(const std::string& dossier, unsigned graine, const std::function<void()>& suit) {
    std::mt19937 hasard(graine);
    Seance s(dossier);
    s.demarre();
    suit();
    s.suit = suit;
    for (int i = 0; i < kCommandes && !s.finie; ++i) {
        const Scenario& scenario = scenarios()[hasard() % scenarios().size()];
        try {
            if (scenario.auDemarrage || scenario.nom == "arrêt") continue;
            s.boites.fichier = s.boites.dossier = "";
            scenario.prepare(s, dossier);
            scenario.commande(s);
        } catch (const std::runtime_error&) {  // the film that it is about is not there
        }
    }
    s.session.Form_Unload();
}

// Sessions killed at a random moment: nothing that was done before the command that ran is missing.
int tueAuHasard(int combien, unsigned graine) {
    constexpr int kParSeance = 10;
    std::mt19937 hasard(graine);
    int echecs = 0, faits = 0;
    for (; faits < combien; ++faits) {
        static doubles::DossierTemporaire lieu;
        static std::vector<Etat> etats;
        static std::chrono::microseconds duree;
        static unsigned seance;
        const std::string modele = lieu.chemin("modele"), dossier = lieu.chemin("Ambrelis/");
        if (faits % kParSeance == 0) {
            cale_dossier(lieu.chemin().c_str());
            seance = static_cast<unsigned>(hasard());
            fs::remove_all(modele);
            construit(modele, seance % 2 == 0);
            copie(modele, dossier);
            etats = {Etat::de(modele)};
            int etape = 0;
            const auto garde = [&] { copie(dossier, lieu.chemin("etat" + std::to_string(++etape))); };
            const std::string suivies = Enfant([&](std::FILE* sortie) {
                                            vitAuHasard(dossier, seance, [&] {
                                                garde();
                                                std::fputc('.', sortie);
                                            });
                                        })
                                            .attends()
                                            .texte;
            for (std::size_t i = 1; i <= suivies.size(); ++i)
                etats.push_back(Etat::de(lieu.chemin("etat" + std::to_string(i))));
            copie(modele, dossier);
            const auto debut = std::chrono::steady_clock::now();
            Enfant([&](std::FILE*) { vitAuHasard(dossier, seance, [] {}); }).attends();
            duree = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - debut);
        }
        copie(modele, dossier);
        const std::chrono::microseconds quand(hasard() % static_cast<unsigned long>(duree.count()));
        Enfant enfant([&](std::FILE* sortie) {
            vitAuHasard(dossier, seance, [&] {
                std::fputc('.', sortie);
                std::fflush(sortie);
            });
        });
        std::this_thread::sleep_for(quand);
        enfant.tue();
        const std::size_t faites = enfant.attends().texte.size();
        const Etat &avant = etats.at(faites), &apres = etats[std::min(faites + 1, etats.size() - 1)];
        const std::string texte = demarreEnsuite(dossier, avant, apres, false);
        if (texte.empty()) continue;
        ++echecs;
        std::cout << "  session " << seance << " killed after " << quand.count() << " us and " << faites
                  << " steps: " << texte << std::flush;
    }
    return echecs;
}

}  // namespace

// essais_pannes tue HOW_MANY [SEED]: so many sessions killed at random moments.
// essais_pannes POINTS [SCENARIO [FAULT]]: at most so many points for each fault of each scenario; -N is point N alone.
int main(int nombre, char** arguments) {
    const std::vector<std::string> mots(arguments + 1, arguments + nombre);
    const auto mot = [&](std::size_t i) { return i < mots.size() ? mots[i] : std::string(); };
    if (mot(0) == "tue") {
        const unsigned graine = mot(2).empty() ? std::random_device()() : static_cast<unsigned>(std::stoul(mot(2)));
        std::cout << "seed " << graine << "\n";
        const int tues = tueAuHasard(std::stoi(mot(1)), graine);
        std::cout << tues << " failures\n";
        return tues == 0 ? 0 : 1;
    }
    const long maximum = mot(0).empty() ? 1 : std::stol(mot(0));
    int echecs = 0;
    for (const Scenario& scenario : scenarios()) {
        if (!mot(1).empty() && scenario.nom != mot(1)) continue;
        try {
            echecs += etape(scenario, mot(2), maximum);
        } catch (const std::exception& erreur) {
            ++echecs;
            std::cout << scenario.nom << ": " << erreur.what() << "\n";
        }
    }
    std::cout << echecs << " failures\n";
    return echecs == 0 ? 0 : 1;
}
