// plancher_import BASE DOSSIER: the floor of the import. The same sheets and posters read, the same rows inserted by
// bare SQLite in one transaction, as durable as the program's.

#include "Mesure.h"
#include "Sqlite.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string lit(const fs::path& chemin) {
    std::ifstream flux(chemin, std::ios::binary);
    std::string octets(fs::file_size(chemin), '\0');
    flux.read(octets.data(), static_cast<std::streamsize>(octets.size()));
    return octets;
}

std::array<std::string, 9> lignes(const std::string& fiche) {
    std::array<std::string, 9> resultat;
    std::size_t debut = 0;
    for (std::string& ligne : resultat) {
        const std::size_t fin = fiche.find("\r\n", debut);
        if (fin == std::string::npos) break;
        ligne = util::depuis1252(std::string_view(fiche).substr(debut, fin - debut));
        debut = fin + 2;
    }
    return resultat;
}

std::vector<fs::path> fiches(const fs::path& dossier) {
    std::vector<fs::path> resultat;
    for (const auto& entree : fs::directory_iterator(dossier))
        if (entree.path().extension() == ".FILM") resultat.push_back(entree.path());
    std::sort(resultat.begin(), resultat.end());
    return resultat;
}

void insere(bench::Enonce& film, bench::Enonce& possession, const fs::path& fiche) {
    const auto champs = lignes(lit(fiche));
    for (int i = 0; i < 9; ++i)
        film.lie(i + 1, champs[static_cast<std::size_t>(i)]);
    const fs::path image = fs::path(fiche).replace_extension(".jpg");
    std::string affiche;
    if (fs::exists(image)) {
        affiche = "STO" + lit(image);
        film.lieOctets(10, affiche);
    } else {
        film.lieNull(10);
    }
    film.ligne();
    film.recommence();
    possession.lie(1, champs[0]);
    possession.lie(2, champs[1]);
    possession.ligne();
    possession.recommence();
}

}  // namespace

int main(int nombre, char** mots) try {
    if (nombre < 3) throw std::invalid_argument("usage: plancher_import BASE DOSSIER");
    bench::Sqlite base(mots[1]);
    base.execute("PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL");
    const double depart = bench::maintenant();
    base.execute("BEGIN");
    {
        bench::Enonce film(base,
                           "INSERT INTO Films (Titre, Realisateur, Annee, Origine, Genre, Duree, Acteurs, Resume, "
                           "Production, Affiche, DateAjout) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, '21/11/2026')");
        bench::Enonce possession(
            base,
            "INSERT INTO Personnel (Titre2, Realisateur2, Rangement, Fichier1, Fichier2, Fichier3, "
            "Pret, Reserve, Date, Divers, Support) "
            "VALUES (?, ?, '', '', '', '', '', '', '', '', 'DVD')");
        for (const fs::path& fiche : fiches(mots[2]))
            insere(film, possession, fiche);
    }
    base.execute("COMMIT");
    bench::declare("import", bench::maintenant() - depart);
    bench::declare("memoire", bench::memoireDePointe());
    return 0;
} catch (const std::exception& e) {
    std::cerr << "plancher_import: " << e.what() << '\n';
    return 1;
}
