#include "pannes/Enfant.h"
#include "pannes/Epreuve.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <map>
#include <random>
#include <thread>

// Steps through the points where a command can fail, and kills sessions at random; says what did not hold.
namespace {

using namespace pannes;
namespace fs = std::filesystem;

const std::map<std::string, Faute> kFautes{{"refus", Faute::Refus},
                                           {"plein", Faute::DisquePlein},
                                           {"panne", Faute::DisqueMort},
                                           {"mort", Faute::Mort},
                                           {"mémoire", Faute::Memoire}};

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
