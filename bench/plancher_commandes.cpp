// plancher_commandes recherche DOSSIER TEXTE | conversion DOSSIER
// The floors of mesure_commandes: bare SQLite's own instr over the same columns, plain files and bare updates of the same
// bytes, SQLite's own copy of the base. Files are not flushed to the disk; the base's transactions are.

#include "Mesure.h"
#include "Sqlite.h"

#include <filesystem>
#include <fstream>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr int kPassages = 5;

void mesureRecherche(const std::string& dossier, const std::string& texte) {
    const bench::Sqlite base(dossier + "/Films.mdb");
    bench::Enonce films(base,
                        "SELECT id FROM Films WHERE "
                        "instr(Titre, ?1) + instr(Realisateur, ?1) + instr(Annee, ?1) + instr(Acteurs, ?1) > 0");
    films.lie(1, texte);
    const double duree = bench::meilleureDuree(kPassages, [&] {
        while (films.ligne()) {
        }
        films.recommence();
    });
    bench::declare("recherche", duree);
}

std::vector<long long> identifiants(const bench::Sqlite& base) {
    std::vector<long long> resultat;
    bench::Enonce films(base, "SELECT id FROM Films WHERE Affiche IS NOT NULL");
    while (films.ligne())
        resultat.push_back(films.entier(0));
    return resultat;
}

// The bytes of each film's poster, taken by `travail` and replaced by what it gives, in one transaction.
template <typename Travail>
void remplace(bench::Sqlite& base, Travail travail) {
    bench::Enonce lecture(base, "SELECT Affiche FROM Films WHERE id = ?");
    bench::Enonce ecriture(base, "UPDATE Films SET Affiche = ? WHERE id = ?");
    const auto films = identifiants(base);
    base.execute("BEGIN");
    for (const long long film : films) {
        lecture.lie(1, film);
        lecture.ligne();
        const std::string affiche = travail(film, lecture.colonne(0));
        lecture.recommence();
        ecriture.lieOctets(1, affiche);
        ecriture.lie(2, film);
        ecriture.ligne();
        ecriture.recommence();
    }
    base.execute("COMMIT");
}

void versDossier(const std::string& chemin, const fs::path& images) {
    bench::Sqlite base(chemin);
    base.execute("PRAGMA synchronous = FULL");
    fs::create_directories(images);
    remplace(base, [&](long long film, std::string_view affiche) {
        const std::string nom = "film" + std::to_string(film) + ".jpg";
        std::ofstream(images / nom, std::ios::binary) << affiche.substr(3);
        return "JPG" + nom;
    });
    base.execute(("VACUUM INTO '" + chemin + "-copie'").c_str());
}

void versBase(const std::string& chemin, const fs::path& images) {
    bench::Sqlite base(chemin);
    base.execute("PRAGMA synchronous = FULL");
    remplace(base, [&](long long, std::string_view affiche) {
        const fs::path fichier = images / affiche.substr(3);
        std::string octets(3 + fs::file_size(fichier), '\0');
        octets.replace(0, 3, "STO");
        std::ifstream(fichier, std::ios::binary)
            .read(octets.data() + 3, static_cast<std::streamsize>(octets.size()) - 3);
        return octets;
    });
    fs::remove_all(images);
}

void mesureConversion(const fs::path& dossier) {
    const std::string chemin = dossier / "Films.mdb";
    bench::declare("vers_dossier", bench::meilleureDuree(1, [&] { versDossier(chemin, dossier / "Images"); }));
    fs::rename(chemin + "-copie", chemin);
    bench::declare("vers_base", bench::meilleureDuree(1, [&] { versBase(chemin, dossier / "Images"); }));
    bench::Sqlite base(chemin);
    bench::declare("compactage",
                   bench::meilleureDuree(1, [&] { base.execute(("VACUUM INTO '" + chemin + "-copie'").c_str()); }));
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre > 2 ? mots[1] : "";
    if (genre == "recherche" && nombre > 3)
        mesureRecherche(mots[2], mots[3]);
    else if (genre == "conversion")
        mesureConversion(mots[2]);
    else
        throw std::invalid_argument("usage: plancher_commandes recherche|conversion DOSSIER [TEXTE]");
    return 0;
} catch (const std::exception& e) {
    std::cerr << "plancher_commandes: " << e.what() << '\n';
    return 1;
}
