// plancher_commandes recherche DOSSIER TEXTE | conversion DOSSIER
// The floors of mesure_commandes: bare SQLite's own instr over the same columns, a plain copy of each poster's file and
// bare updates of the same bytes, SQLite's own copy of the base. Files are not flushed to the disk; the base's one
// transaction is.

#include "Mesure.h"
#include "Sqlite.h"

#include <filesystem>
#include <fstream>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

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

std::string nomDuFichier(long long film) {
    return "film" + std::to_string(film) + ".jpg";
}

std::string lit(const fs::path& fichier) {
    std::string octets(fs::file_size(fichier), '\0');
    std::ifstream(fichier, std::ios::binary).read(octets.data(), static_cast<std::streamsize>(octets.size()));
    return octets;
}

// Each film's poster becomes what `travail` gives, in one transaction.
template <typename Travail>
void remplace(bench::Sqlite& base, Travail travail) {
    bench::Enonce ecriture(base, "UPDATE Films SET Affiche = ? WHERE id = ?");
    const auto films = identifiants(base);
    base.execute("BEGIN");
    for (const long long film : films) {
        const std::string affiche = travail(nomDuFichier(film));
        ecriture.lieOctets(1, affiche);
        ecriture.lie(2, film);
        ecriture.ligne();
        ecriture.recommence();
    }
    base.execute("COMMIT");
}

// A plain copy of each poster's file, and the film's row brought to the other storage: the bytes of the file pass once.
template <typename Valeur>
void copieEtRemplace(bench::Sqlite& base, const fs::path& de, const fs::path& vers, Valeur valeur) {
    fs::create_directories(vers);
    remplace(base, [&](const std::string& nom) {
        const std::string octets = lit(de / nom);
        std::ofstream(vers / nom, std::ios::binary) << octets;
        return valeur(nom, octets);
    });
}

// The posters of the base as files: what the copies begin with, and not measured.
void extrait(const bench::Sqlite& base, const fs::path& images) {
    fs::create_directories(images);
    bench::Enonce films(base, "SELECT id, Affiche FROM Films WHERE Affiche IS NOT NULL");
    while (films.ligne())
        std::ofstream(images / nomDuFichier(films.entier(0)), std::ios::binary) << films.colonne(1).substr(3);
}

void versDossier(const std::string& chemin, const fs::path& originaux, const fs::path& images) {
    bench::Sqlite base(chemin);
    base.execute("PRAGMA synchronous = FULL");
    copieEtRemplace(base, originaux, images, [](const std::string& nom, const std::string&) { return "JPG" + nom; });
    base.execute(("VACUUM INTO '" + chemin + "-copie'").c_str());
}

void versBase(const std::string& chemin, const fs::path& images, const fs::path& copies) {
    bench::Sqlite base(chemin);
    base.execute("PRAGMA synchronous = FULL");
    copieEtRemplace(base, images, copies, [](const std::string&, const std::string& octets) { return "STO" + octets; });
}

// Nothing but the files read, the rows written, the files removed.
void versBaseSansCopie(const std::string& chemin, const fs::path& images) {
    bench::Sqlite base(chemin);
    base.execute("PRAGMA synchronous = FULL");
    remplace(base, [&](const std::string& nom) { return "STO" + lit(images / nom); });
    fs::remove_all(images);
}

// What was written before is not part of it.
template <typename Travail>
double dureeSeule(Travail travail) {
    sync();
    return bench::meilleureDuree(1, travail);
}

// The base without its posters is kept aside for the second of the two ways back.
void mesureConversion(const fs::path& dossier) {
    const std::string chemin = dossier / "Films.mdb", sansAffiches = chemin + "-copie";
    const fs::path originaux = dossier / "Originaux", images = dossier / "Images", copies = dossier / "Copies";
    extrait(bench::Sqlite(chemin), originaux);
    bench::declare("vers_dossier", dureeSeule([&] { versDossier(chemin, originaux, images); }));
    fs::copy_file(sansAffiches, chemin, fs::copy_options::overwrite_existing);
    bench::declare("vers_base", dureeSeule([&] { versBase(chemin, images, copies); }));
    fs::rename(sansAffiches, chemin);
    bench::declare("vers_base_sans_copie", dureeSeule([&] { versBaseSansCopie(chemin, images); }));
    bench::Sqlite base(chemin);
    bench::declare("compactage", dureeSeule([&] { base.execute(("VACUUM INTO '" + sansAffiches + "'").c_str()); }));
}

// The bytes of the base in another file, on the disk.
void mesureCopie(const fs::path& dossier) {
    const std::string chemin = dossier / "Films.mdb", copie = chemin + "-copie";
    sync();
    bench::declare("sauvegarde", bench::meilleureDuree(3, [&] {
                       fs::remove(copie);
                       fs::copy_file(chemin, copie);
                       const int fichier = open(copie.c_str(), O_RDONLY);
                       if (fichier < 0 || fsync(fichier) != 0) throw std::runtime_error("no copy");
                       close(fichier);
                   }));
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre > 2 ? mots[1] : "";
    if (genre == "recherche" && nombre > 3)
        mesureRecherche(mots[2], mots[3]);
    else if (genre == "conversion")
        mesureConversion(mots[2]);
    else if (genre == "sauvegarde")
        mesureCopie(mots[2]);
    else
        throw std::invalid_argument("usage: plancher_commandes recherche|conversion|sauvegarde DOSSIER [TEXTE]");
    return 0;
} catch (const std::exception& e) {
    std::cerr << "plancher_commandes: " << e.what() << '\n';
    return 1;
}
