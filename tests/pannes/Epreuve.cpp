#include "pannes/Epreuve.h"

#include "app/Commandes.h"
#include "edit/cmdModifieNote_Click.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <thread>

namespace pannes {

namespace fs = std::filesystem;

namespace {

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

}  // namespace

void copie(const fs::path& de, const fs::path& vers) {
    fs::remove_all(vers);
    fs::copy(de, vers, fs::copy_options::recursive);
}

std::string demarreEnsuite(const std::string& dossier, const Etat& avant, const Etat& apres, bool entiere,
                           bool reprend) {
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

Epreuve::Epreuve(const Scenario& scenario) : m_scenario(scenario) {
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

std::string Epreuve::passe(Faute faute, long point, const Circonstance& circonstance) {
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

Epreuve::Fait Epreuve::execute(Seance& s, Faute faute, long point, const std::string& circonstance) {
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

std::string Epreuve::vis(Faute faute, long point, const Circonstance& circonstance) {
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

bool Epreuve::estQuelquePart(const char* titre) const {
    return std::ranges::any_of(fs::recursive_directory_iterator(m_dossier), [&](const auto& entree) {
        const std::string nom = entree.path().lexically_relative(m_dossier).string();
        return (nom == "Films.mdb" || nom.starts_with("Sauvegardes/")) && entree.is_regular_file() &&
               noteDe(titre, entree.path()) >= 0;
    });
}

bool Epreuve::estComplet(const Etat& fait) const {
    const auto manque = [&](const auto& fichier) {
        const auto place = fait.fichiers.find(fichier.first);
        return !estDeTravail(fichier.first) && (place == fait.fichiers.end() || place->second != fichier.second);
    };
    return fait.bases == m_apres.bases && std::ranges::none_of(m_apres.fichiers, manque);
}

std::string Epreuve::rejoue(Seance& s) {
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

}  // namespace pannes
