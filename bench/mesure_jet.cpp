// mesure_jet genere FICHIER FILMS | lit FICHIER | convertit FICHIER
// A genuine Jet base whose films have a poster of 230,000 bytes each; its bytes read as they lie; its conversion into a
// base of ours, checked and on the disk.

#include "Mesure.h"
#include "db/ConversionJet.h"
#include "doubles/CollectionJet.h"
#include "doubles/EcranMuet.h"

#include <filesystem>
#include <stdexcept>
#include <vector>

namespace {

constexpr int kPassages = 3;
constexpr std::size_t kTailleImage = 230000;
constexpr std::size_t kBloc = 1 << 16;

void genere(const std::string& chemin, int films) {
    const std::string octets = doubles::collectionJet(films, kTailleImage).octets();
    std::ofstream(chemin, std::ios::binary).write(octets.data(), static_cast<std::streamsize>(octets.size()));
}

void mesureLecture(const std::string& chemin) {
    std::vector<char> bloc(kBloc);
    std::uint64_t lus = 0;
    bench::declare("lecture", bench::meilleureDuree(kPassages, [&] {
                       std::ifstream fichier(chemin, std::ios::binary);
                       while (fichier.read(bloc.data(), kBloc) || fichier.gcount() > 0)
                           lus += static_cast<std::uint64_t>(fichier.gcount());
                   }));
    if (lus != kPassages * std::filesystem::file_size(chemin)) throw std::runtime_error("not read: " + chemin);
}

void mesureConversion(const std::string& chemin) {
    const std::string neuve = chemin + "-neuve";
    ecran::Progression progression;
    doubles::EcranMuet ecran;
    db::ConversionJet convertit(progression, ecran);
    bench::declare("conversion", bench::meilleureDuree(kPassages, [&] {
                       std::filesystem::remove(neuve);
                       if (const db::IssueJet issue = convertit(chemin, neuve); !issue.estFaite())
                           throw std::runtime_error(issue.echec.value_or("stopped"));
                   }));
    bench::declare("taille", static_cast<double>(std::filesystem::file_size(neuve)) / 1e6);
    std::filesystem::remove(neuve);
    bench::declare("memoire", bench::memoireDePointe());
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre > 2 ? mots[1] : "";
    if (genre == "genere" && nombre > 3)
        genere(mots[2], std::stoi(mots[3]));
    else if (genre == "lit")
        mesureLecture(mots[2]);
    else if (genre == "convertit")
        mesureConversion(mots[2]);
    else
        throw std::invalid_argument("usage: mesure_jet genere|lit|convertit FICHIER [FILMS]");
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_jet: " << e.what() << '\n';
    return 1;
}
