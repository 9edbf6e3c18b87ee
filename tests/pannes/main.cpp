#include "pannes/Cale.h"
#include "pannes/Etat.h"
#include "app/Commandes.h"
#include "edit/cmdModifieNote_Click.h"
#include "pannes/Scenarios.h"

#include "doubles/DossierTemporaire.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <map>
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
    if (noteDuTemoin(base) < 0) return "";
    s.boites.saisie = "7";
    s.zone(1);
    s.commande(app::TreeView1_NodeClick, s.noeud(kTemoin));
    s.commande(edit::cmdModifieNote_Click);
    return noteDuTemoin(base) == 7 ? "" : "a further command does not work: " + s.boites.dits;
}

// Of a base that is not opened: what undoes the work that was cut off, once it is.
bool estLeJournalDUneAutre(const std::string& nom) {
    return nom.ends_with(".mdb-journal") && nom != "Films.mdb-journal";
}

// What a next start finds, after its own cleaning.
std::string demarreEnsuite(const std::string& dossier, const Etat& avant, const Etat& apres, bool entiere) {
    return Enfant([&](std::FILE* sortie) {
               Seance s(dossier);
               s.demarre();
               const Etat trouve = Etat::de(dossier);
               std::string texte = trouve.ecart(avant, apres, entiere);
               if (s.finie) texte += "the next start ends\n";
               if (!s.finie && !s.boites.dits.empty()) texte += "the next start says " + s.boites.dits;
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
        construit(fs::path(m_lieu.chemin("modele")), scenario.dansLeDossier);
        m_avant = Etat::de(m_lieu.chemin("modele"));
        cale_dossier(m_dossier.c_str());
        for (const Faute faute : {Faute::Aucune, Faute::Memoire}) {
            copie(m_lieu.chemin("modele"), m_dossier);
            const Issue issue = Enfant([&](std::FILE* sortie) {
                                    Seance s(m_dossier);
                                    const auto [points, dits] = execute(s, faute, 0);
                                    copie(m_dossier, m_lieu.chemin("apres"));
                                    std::fprintf(sortie, "%ld %s", points, dits.c_str());
                                }).attends();
            if (issue.signal != 0 || issue.texte.empty()) throw std::runtime_error("no run without a fault: " + issue.texte);
            const std::size_t blanc = issue.texte.find(' ');
            (faute == Faute::Aucune ? m_points : m_allocations) = std::stol(issue.texte);
            m_dits = issue.texte.substr(blanc + 1);
        }
        m_apres = Etat::de(m_lieu.chemin("apres"));
        if (m_avant == m_apres && m_points == 0) throw std::runtime_error("nothing done: " + m_dits);
    }
    [[nodiscard]] const std::string& dits() const { return m_dits; }
    [[nodiscard]] long points(Faute faute) const { return faute == Faute::Memoire ? m_allocations : m_points; }

    // What did not hold; "" when all did.
    std::string passe(Faute faute, long point) {
        copie(m_lieu.chemin("modele"), m_dossier);
        const Issue issue = Enfant([&](std::FILE* sortie) { std::fputs(vis(faute, point).c_str(), sortie); }).attends();
        std::string texte = issue.texte;
        if (issue.signal != (faute == Faute::Mort ? SIGKILL : 0))
            texte += "ended by signal " + std::to_string(issue.signal) + "\n";
        if (issue.signal != 0) return texte + demarreEnsuite(m_dossier, m_avant, m_apres, m_scenario.entiere);
        const Etat laisse = Etat::de(m_dossier);
        return texte + demarreEnsuite(m_dossier, laisse, laisse, true);
    }

  private:
    struct Fait {
        long points;
        std::string dits;  // from the command on
    };
    Fait execute(Seance& s, Faute faute, long point) {
        if (!m_scenario.auDemarrage) s.demarre();
        m_scenario.prepare(s, m_dossier);
        const std::size_t avant = s.boites.dits.size();
        cale_arme(faute, point);
        m_scenario.commande(s);
        const long points = cale_desarme();
        return {points, s.boites.dits.substr(avant)};
    }

    // In a process of its own: the command with its fault, what it leaves, and the same session afterwards.
    std::string vis(Faute faute, long point) {
        Seance s(m_dossier);
        const std::string dits = execute(s, faute, point).dits;
        Etat fait = Etat::de(m_dossier);
        std::string texte = fait.ecart(m_avant, m_apres, m_scenario.entiere);
        if (dits == m_dits && !estComplet(fait)) texte += "nothing was told\n";
        if (dits.find("ANGLAIS") != std::string::npos) texte += "told " + dits;
        if (s.finie && dits.empty() && m_scenario.nom != "arrêt") texte += "ended without a word\n";
        if (s.finie) return texte;
        texte += utilisable(s);
        if (m_scenario.rejouable && !fait.memesFilms(m_apres)) texte += rejoue(s);
        s.session.Form_Unload();
        return texte;
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
        const std::size_t avant = s.boites.dits.size();
        m_scenario.commande(s);
        const Etat fait = Etat::de(m_dossier);
        return fait.memesFilms(m_apres) ? "" : "done again, the command does not end what it began: " + s.boites.dits.substr(avant) + fait.ecart(m_apres, m_apres, false);
    }

    const Scenario& m_scenario;
    doubles::DossierTemporaire m_lieu;
    const std::string m_dossier = m_lieu.chemin("Ambrelis/");
    Etat m_avant, m_apres;
    std::string m_dits;
    long m_points = 0, m_allocations = 0;
};

// At most `maximum` of 1 to `nombre`, evenly spread.
std::vector<long> choisis(long nombre, long maximum) {
    std::vector<long> points;
    const long retenus = std::min(nombre, maximum);
    for (long i = 0; i < retenus; ++i)
        points.push_back(1 + (2 * i + 1) * nombre / (2 * retenus));
    return points;
}

int etape(const Scenario& scenario, const std::string& fauteVoulue, long maximum) {
    Epreuve epreuve(scenario);
    std::cout << scenario.nom << ": " << epreuve.points(Faute::Refus) << " points, " << epreuve.points(Faute::Memoire)
              << " allocations\n";
    int echecs = 0;
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

}  // namespace

// essais_pannes POINTS [SCENARIO [FAULT]]: at most so many points for each fault of each scenario.
int main(int nombre, char** arguments) {
    const std::vector<std::string> mots(arguments + 1, arguments + nombre);
    const auto mot = [&](std::size_t i) { return i < mots.size() ? mots[i] : std::string(); };
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
