// mesures PROGRAMME DOSSIER [--vite] [--garde] [--commandes] [--million]: makes collections in DOSSIER, each beside a copy of the program folder
// PROGRAMME, runs every measured program and its floor on them in turn, and prints the table.

#include "Programmes.h"
#include "Tableau.h"

#include <cstring>
#include <iostream>
#include <map>
#include <stdexcept>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using bench::Figures;

struct Options {
    fs::path programme, dossier;
    bool vite = false, garde = false, commandes = false, million = false;
    // Enough for the shortest times to be the program's own on a machine that does other things.
    [[nodiscard]] int passages(int films) const { return vite ? 5 : films > 100000 ? 3 : films > 10000 ? 9 : 15; }
};

struct Collection {
    int films = 0;
    bool affiches = false;
    double demarrageMax = 0, memoireMax = 0;  // targets; 0: none
    bool possedes = false;                    // all of them
    bool enFichiers = false;                  // the posters
    double triMax = 2.0;                      // against the floor
    double sourdeMax = 0;                     // milliseconds without an event let through
    [[nodiscard]] std::string nom() const {
        return std::to_string(films) + (affiches ? "-affiches" : "") + (enFichiers ? "-fichiers" : "") +
               (possedes ? "-possedes" : "");
    }
};

constexpr int kFiches = 1000, kPremiereFiche = 200000;
constexpr int kClics = 200;

double megaoctets(const fs::path& chemin) {
    return static_cast<double>(fs::file_size(chemin)) / 1e6;
}

// An empty program folder, as the user has one before the first start.
void installe(const Options& options, const fs::path& dossier) {
    fs::remove_all(dossier);
    fs::create_directories(dossier);
    for (const char* nom : {"Modele.dat", "Extensions.txt", "traductions"})
        fs::copy(options.programme / nom, dossier / nom, fs::copy_options::recursive);
}

fs::path dossierDe(const Options& options, const Collection& c) {
    return options.dossier / c.nom();
}

// A program folder and its base.
void installe(const Options& options, const Collection& c) {
    installe(options, dossierDe(options, c));
    std::vector<std::string> mots{"base", std::to_string(c.films), (dossierDe(options, c) / "Films.mdb").string()};
    if (c.affiches) mots.emplace_back("--affiches");
    if (c.enFichiers) mots.emplace_back("--en-fichiers");
    if (c.possedes) mots.emplace_back("--possedes");
    static_cast<void>(bench::lance("generateur", mots));
}

// Its folder, made where it is missing.
fs::path collection(const Options& options, const Collection& c) {
    if (!fs::exists(dossierDe(options, c))) installe(options, c);
    return dossierDe(options, c);
}

std::pair<Figures, Figures> enAlternance(int passages, const auto& plancher, const auto& programme) {
    std::vector<Figures> planchers, programmes;
    for (int i = 0; i < passages; ++i) {
        planchers.push_back(plancher());
        programmes.push_back(programme());
    }
    return {bench::retenues(planchers), bench::retenues(programmes)};
}

// The mean of the figures whose names begin so, and the one farthest from its floor.
void compareSerie(bench::Tableau& tableau, const std::string& prefixe, const std::string& texte,
                  const Figures& plancher, const Figures& programme, std::optional<double> cible) {
    double somme = 0, sommePlancher = 0, pire = 0;
    int nombre = 0;
    std::string laPire;
    for (const auto& [nom, valeur] : programme) {
        if (!nom.starts_with(prefixe)) continue;
        somme += valeur;
        sommePlancher += plancher.at(nom);
        ++nombre;
        if (valeur / plancher.at(nom) > pire) pire = valeur / plancher.at(nom), laPire = nom;
    }
    tableau.ajoute(
        {texte + ", mean of " + std::to_string(nombre), "ms", somme / nombre, sommePlancher / nombre, cible, true});
    tableau.ajoute(
        {"  farthest from its floor: " + laPire, "ms", programme.at(laPire), plancher.at(laPire), cible, true});
}

void mesureFenetre(bench::Tableau& tableau, const Options& options, const Collection& c) {
    installe(options, c);
    const fs::path dossier = dossierDe(options, c);
    const std::string base = (dossier / "Films.mdb").string();
    const std::string clics = c.affiches ? std::to_string(kClics) : "0";
    const auto [plancher, programme] = enAlternance(
        options.passages(c.films),
        [&] {
            return bench::lance("plancher_arbre", {base, clics});
        },
        [&] {
            return bench::lance("mesure_fenetre", {dossier.string(), clics});
        });
    const auto cible = [](double valeur) { return valeur > 0 ? std::optional(valeur) : std::nullopt; };
    tableau.titre(std::to_string(c.films) + " films, " + (c.affiches ? "posters in the base" : "no posters"));
    tableau.ajoute(
        {"start to the tree painted", "ms", programme.at("peint"), plancher.at("peint"), cible(c.demarrageMax), true});
    compareSerie(tableau, "tri", "change of sort", plancher, programme, c.triMax);
    compareSerie(tableau, "zone", "change of zone", plancher, programme, {});
    if (c.affiches) {
        tableau.ajoute(
            {"click to sheet shown, median", "ms", programme.at("clic_median"), plancher.at("clic_median"), 16.0});
        tableau.ajoute(
            {"click to sheet shown, worst of 200", "ms", programme.at("clic_pire"), plancher.at("clic_pire"), {}});
        tableau.ajoute({"Page Down to poster painted, median; one decode", "ms", programme.at("page_median"),
                        programme.at("decodage_median"), 50.0});
        tableau.ajoute(
            {"Page Down to poster painted, worst", "ms", programme.at("page_pire"), programme.at("decodage_pire"), {}});
        const Figures listes = bench::lance("mesure_session", {"listes", dossier.string()});
        const fs::path sansAffiches = dossierDe(options, {c.films, false}) / "Films.mdb";
        tableau.ajoute({"read by the costliest listing", "MB", listes.at("lu_au_plus"), {}, megaoctets(sansAffiches)});
    }
    tableau.ajoute(
        {"longest stretch without an event let through", "ms", programme.at("sourde"), {}, cible(c.sourdeMax)});
    tableau.ajoute({"peak memory", "MB", programme.at("memoire"), plancher.at("memoire"), cible(c.memoireMax)});
    tableau.ajoute({"size of the base", "MB", megaoctets(base), {}, {}});
}

// What changes its base starts again from a copy of it at each pass.
fs::path copieDe(const Options& options, const fs::path& modele) {
    const fs::path copie = options.dossier / "copie";
    installe(options, copie);
    fs::copy_file(modele / "Films.mdb", copie / "Films.mdb");
    sync();  // what was just copied is no part of what is measured
    return copie;
}

Figures importe(const Options& options, const std::string& programme, const fs::path& modele,
                const char* dossier = "fiches") {
    const fs::path copie = copieDe(options, modele);
    const std::string fiches = (options.dossier / dossier).string();
    if (programme == "plancher_import") return bench::lance(programme, {(copie / "Films.mdb").string(), fiches});
    return bench::lance("mesure_session", {programme, copie.string(), fiches});
}

// Made where they are missing.
std::string fichesAImporter(const Options& options, bool singulieres = false) {
    const fs::path fiches = options.dossier / (singulieres ? "singulieres" : "fiches");
    std::vector<std::string> mots{"fiches",   std::to_string(kFiches),       fiches.string(), "--affiches",
                                  "--depuis", std::to_string(kPremiereFiche)};
    if (singulieres) mots.emplace_back("--singuliers");
    if (!fs::exists(fiches)) static_cast<void>(bench::lance("generateur", mots));
    return fiches.string();
}

void mesureImport(bench::Tableau& tableau, const Options& options, const std::vector<int>& tailles) {
    for (const bool singulieres : {false, true})
        static_cast<void>(fichesAImporter(options, singulieres));
    tableau.titre("import of " + std::to_string(kFiches) + " sheets with their posters, into the base");
    std::map<int, double> durees;
    for (int films : tailles) {
        const fs::path modele = collection(options, {films, false});
        const auto [plancher, programme] = enAlternance(
            options.vite ? 3 : 5, [&] { return importe(options, "plancher_import", modele); },
            [&] { return importe(options, "import", modele); });
        durees[films] = programme.at("import");
        tableau.ajoute(
            {"into " + std::to_string(films) + " films", "ms", durees[films], plancher.at("import"), 3.0, true});
        tableau.ajoute(
            {"  and the day's films listed", "ms", programme.at("import_liste"), plancher.at("import"), 3.0, true});
        const auto [sans, avec] = enAlternance(
            options.vite ? 3 : 5, [&] { return importe(options, "import", modele, "singulieres"); },
            [&] { return importe(options, "ressemblance", modele, "singulieres"); });
        tableau.ajoute({"  with the resemblance test, none found; without", "ms", avec.at("import"), sans.at("import"),
                        1.2, true});
        // Nearly each of the other sheets resembles a film: a commit before each question comes beside.
        tableau.ajoute({"  with it and a question for nearly each; without",
                        "ms",
                        importe(options, "ressemblance", modele).at("import"),
                        durees[films],
                        {}});
        tableau.ajoute({"  its preview", "ms", importe(options, "apercu", modele).at("apercu"), {}, {}});
        tableau.ajoute({"  peak memory", "MB", programme.at("memoire"), plancher.at("memoire"), {}});
    }
    const int petite = tailles[1], grande = tailles.back();
    tableau.ajoute({"into " + std::to_string(grande) + " against into " + std::to_string(petite), "ms", durees[grande],
                    durees[petite], 1.3, true});
}

void mesureRecherche(bench::Tableau& tableau, const Options& options, const std::string& dossier,
                     const std::string& texte) {
    const auto [plancher, programme] = enAlternance(
        options.vite ? 3 : 5,
        [&] {
            return bench::lance("plancher_commandes", {"recherche", dossier, texte});
        },
        [&] {
            return bench::lance("mesure_commandes", {"recherche", dossier, texte});
        });
    const auto trouves = static_cast<long>(programme.at("trouves"));
    tableau.ajoute({"search in four fields, " + std::to_string(trouves) + " found", "ms", programme.at("recherche"),
                    plancher.at("recherche"), 1.5, true});
}

void mesureCommandes(bench::Tableau& tableau, const Options& options, int films) {
    const fs::path dossier = collection(options, {films, false});
    tableau.titre("commands among " + std::to_string(films) + " films");
    for (const char* texte : {"introuvable", "Zoé Lamlet"})
        mesureRecherche(tableau, options, dossier.string(), texte);
    std::vector<Figures> ajouts;
    for (int i = 0; i < 3; ++i)
        ajouts.push_back(bench::lance("mesure_commandes", {"ajout", copieDe(options, dossier).string()}));
    const Figures ajout = bench::retenues(ajouts);
    tableau.ajoute({"adding a film; listing the day's films", "ms", ajout.at("ajout"), ajout.at("listage"), 2.0, true});
}

// One edit, beside what nothing can do without and beside what the file engine takes itself.
void mesureModification(bench::Tableau& tableau, const Options& options, int films) {
    const fs::path copie = copieDe(options, collection(options, {films, true}));
    const Figures note = bench::lance("mesure_commandes", {"modification", copie.string()});
    const std::string texte = "a rating stored among " + std::to_string(films) + " posters";
    tableau.ajoute({texte + "; its bytes", "ms", note.at("note"), note.at("note_ajoutee"), {}});
    tableau.ajoute({"  against bare SQLite's own update", "ms", note.at("note"), note.at("note_sqlite"), 1.25, true});
}

// Where the films are few, beside each compared with each.
void mesureDoublons(bench::Tableau& tableau, const Options& options, int films, std::optional<double> auPlus) {
    const Figures doublons =
        bench::lance("mesure_ensemble", {"doublons", collection(options, {films, false}).string()});
    const auto simple = doublons.find("une_a_une");
    tableau.ajoute({"resemblances of " + std::to_string(films) + " films, " +
                        std::to_string(static_cast<long>(doublons.at("paires"))) + " pairs",
                    "ms", doublons.at("doublons"), simple == doublons.end() ? std::optional<double>() : simple->second,
                    auPlus});
}

// What can be taken back, against the same commands that are not recorded, in one run.
void mesureAnnulations(bench::Tableau& tableau, const Options& options, int films) {
    const fs::path modele = collection(options, {films, false});
    const std::string fiches = fichesAImporter(options), nombre = std::to_string(films);
    std::vector<Figures> passages;
    for (int i = 0; i < (options.vite ? 1 : 3); ++i)
        passages.push_back(bench::lance("mesure_commandes", {"annulation", copieDe(options, modele).string(), fiches}));
    const Figures figures = bench::retenues(passages);
    tableau.titre("commands recorded so that they can be taken back, among " + nombre + " films");
    const auto compare = [&](const std::string& texte, const std::string& nom) {
        tableau.ajoute({texte, "ms", figures.at(nom + "_avec"), figures.at(nom + "_sans"), 1.25, true});
        tableau.ajoute({"  taken back", "ms", figures.at(nom + "_annulee"), {}, {}});
    };
    compare("a deletion", "suppression");
    compare("correction of " + nombre + " titles", "correction");
    compare("import of " + std::to_string(kFiches) + " sheets", "import");
    tableau.ajoute({"peak memory", "MB", figures.at("memoire"), {}, {}});
}

void mesureFiltre(bench::Tableau& tableau, const Options& options, int films) {
    const std::string dossier = collection(options, {films, false}).string();
    const Figures filtre = bench::lance("mesure_ensemble", {"filtre", dossier});
    const Figures fenetre = bench::lance("mesure_fenetre", {dossier, "filtre"});
    tableau.titre("a collection of " + std::to_string(films) + " films at a glance");
    const double grep = filtre.at("grep");
    tableau.ajoute(
        {"filter of the tree, key to repaint, median; grep -i", "ms", fenetre.at("frappe_median"), grep, 16.0});
    tableau.ajoute({"filter of the tree, key to repaint, worst; grep -i", "ms", fenetre.at("frappe_pire"), grep, 33.0});
    tableau.ajoute({"  without the window, median", "ms", filtre.at("frappe_mediane"), grep, {}});
    tableau.ajoute({"  without the window, worst", "ms", filtre.at("frappe_pire"), grep, {}});
    tableau.ajoute({"  peak memory of the window with it", "MB", fenetre.at("memoire"), {}, {}});
    tableau.ajoute({"  its index, in slices of idle time", "ms", filtre.at("index"), {}, {}});
    tableau.ajoute({"  its index", "MB", filtre.at("memoire_index"), {}, {}});
}

// What looks at a whole collection: the filter of the tree, and resemblances.
void mesureEnsemble(bench::Tableau& tableau, const Options& options, int films, double doublonsMax) {
    mesureFiltre(tableau, options, films);
    mesureDoublons(tableau, options, films, doublonsMax);
}

// The wall of posters, beside the bare decoding of those of one page.
void mesureMur(bench::Tableau& tableau, const Options& options, int films) {
    for (const bool enFichiers : {false, true}) {
        const std::string dossier = collection(options, {films, true, 0, 0, false, enFichiers}).string();
        std::vector<Figures> passages;
        for (int i = 0; i < (options.vite ? 3 : 5); ++i)
            passages.push_back(bench::lance("mesure_mur", {dossier}));
        const Figures mur = bench::retenues(passages);
        const auto affiches = std::to_string(static_cast<long>(mur.at("affiches")));
        tableau.titre("wall of " + std::to_string(films) + " posters, " + (enFichiers ? "in files" : "in the base"));
        tableau.ajoute({"choice of a sort to the wall painted", "ms", mur.at("mur"), {}, 150.0});
        tableau.ajoute(
            {"page of " + affiches + " new posters; one decode each", "ms", mur.at("page"), mur.at("plancher"), 150.0});
        tableau.ajoute({"start to all of its posters in sight", "ms", mur.at("demarrage"), {}, {}});
        tableau.ajoute({"frame, top to bottom, median", "ms", mur.at("image_median"), {}, {}});
        tableau.ajoute({"frame, top to bottom, worst of 600", "ms", mur.at("image_pire"), {}, 16.0});
        tableau.ajoute({"memory beside the tree's", "MB", mur.at("memoire"), {}, 90.0});
    }
}

// A million films: more than anyone has, so that what grows faster than the collection shows.
void mesureMillion(bench::Tableau& tableau, const Options& options) {
    constexpr int kMillion = 1000000;
    Collection million{kMillion, false, 1.2, 300};
    million.triMax = 1.2;
    million.sourdeMax = 200;
    mesureFenetre(tableau, options, million);
    const std::string dossier = dossierDe(options, million).string();
    for (const char* texte : {"introuvable", "Zoé Lamlet"})
        mesureRecherche(tableau, options, dossier, texte);
    mesureFiltre(tableau, options, kMillion);
}

void mesureConversion(bench::Tableau& tableau, const Options& options, int films) {
    const fs::path modele = collection(options, {films, true});
    const std::string nombre = std::to_string(films);
    const auto [plancher, programme] = enAlternance(
        2,
        [&] {
            return bench::lance("plancher_commandes", {"conversion", copieDe(options, modele).string()});
        },
        [&] {
            return bench::lance("mesure_commandes", {"conversion", copieDe(options, modele).string(), nombre});
        });
    tableau.titre(nombre + " posters converted");
    const auto compare = [&, &p = plancher, &q = programme](const char* texte, const char* nom) {
        tableau.ajoute({texte, "ms", q.at(nom), p.at(nom), 2.0, true});
    };
    compare("from the base to a folder", "vers_dossier");
    compare("from the folder to the base", "vers_base");
    tableau.ajoute({"  against no copy: files read, rows written, files removed",
                    "ms",
                    programme.at("vers_base"),
                    plancher.at("vers_base_sans_copie"),
                    {}});
    compare("compaction with the posters", "compactage");
    if (fs::file_size(modele / "Films.mdb") < (100 << 20)) return;  // a small base is copied each time
    std::vector<Figures> passages;
    for (int i = 0; i < 2; ++i)
        passages.push_back(
            bench::lance("mesure_commandes", {"conversion_copiee", copieDe(options, modele).string(), nombre}));
    const Figures sansCopie = bench::retenues(passages);
    for (const auto& [texte, nom] : {std::pair("  to a folder, against no safety copy", "vers_dossier"),
                                     std::pair("  compaction, against no safety copy", "compactage")})
        tableau.ajoute({texte, "ms", programme.at(nom), sansCopie.at(nom), {}});
}

void mesureSauvegardes(bench::Tableau& tableau, const Options& options, int films) {
    const fs::path modele = collection(options, {films, true});
    const auto [plancher, programme] = enAlternance(
        2,
        [&] {
            return bench::lance("plancher_commandes", {"sauvegarde", copieDe(options, modele).string()});
        },
        [&] {
            return bench::lance("mesure_commandes", {"sauvegarde", copieDe(options, modele).string()});
        });
    tableau.titre("safety copies of " + std::to_string(films) + " films with their posters");
    tableau.ajoute({"a copy", "ms", programme.at("sauvegarde"), plancher.at("sauvegarde"), 2.0, true});
    tableau.ajoute({"their list", "ms", programme.at("fenetre"), {}, {}});
    tableau.ajoute({"one compared with today", "ms", programme.at("comparaison"), {}, {}});
    tableau.ajoute({"the way back, today saved", "ms", programme.at("retour"), plancher.at("sauvegarde"), {}, true});
}

Figures listeDe(const Options& options, const char* genre, const Collection& c) {
    const std::string dossier = collection(options, c).string();
    std::vector<Figures> passages;
    for (int i = 0; i < (options.vite ? 1 : 3); ++i)
        passages.push_back(bench::lance("mesure_listes", {genre, dossier}));
    return bench::retenues(passages);
}

void mesureListesTexte(bench::Tableau& tableau, const Options& options) {
    std::map<int, double> durees;
    for (const int films : {1000, 10000}) {
        const Figures figures = listeDe(options, "texte", {films, false, 0, 0, true});
        durees[films] = figures.at("texte");
        tableau.ajoute({"text of " + std::to_string(films) + " titles", "ms", durees[films],
                        figures.at("texte_plancher"), 2.5, true});
        tableau.ajoute(
            {"  against bare SQLite", "ms", figures.at("texte_sqlite"), figures.at("texte_sqlite_plancher"), {}});
    }
    tableau.ajoute({"text of 10000 titles against 1000", "ms", durees[10000], durees[1000], 11.0, true});
}

void mesureListes(bench::Tableau& tableau, const Options& options) {
    tableau.titre("lists of the owned titles");
    mesureListesTexte(tableau, options);
    std::map<int, double> durees;
    for (const int films : {1000, 10000}) {
        const Figures figures = listeDe(options, "rtf", {films, false, 0, 0, true});
        durees[films] = figures.at("rtf");
        tableau.ajoute({"RTF of " + std::to_string(films) + " titles", "ms", durees[films], figures.at("rtf_plancher"),
                        2.5, true});
        tableau.ajoute({"  formatting a megabyte", "ms", figures.at("formatage_par_mo"), {}, 10.0});
    }
    tableau.ajoute({"RTF of 10000 titles against 1000", "ms", durees[10000], durees[1000], 11.0, true});
    const Figures figures = listeDe(options, "rtf", {10000, true, 0, 0, true});
    tableau.ajoute(
        {"RTF of 10000 titles, posters in the base", "ms", figures.at("rtf"), figures.at("rtf_plancher"), 2.5, true});
}

void mesureBaseJet(bench::Tableau& tableau, const Options& options) {
    const int films = options.vite ? 100 : 300;
    fs::create_directories(options.dossier);
    const std::string base = (options.dossier / "jet.mdb").string();
    static_cast<void>(bench::lance("mesure_jet", {"genere", base, std::to_string(films)}));
    const auto [plancher, programme] = enAlternance(
        2,
        [&] {
            return bench::lance("mesure_jet", {"lit", base});
        },
        [&] {
            return bench::lance("mesure_jet", {"convertit", base});
        });
    tableau.titre("a Jet base of " + std::to_string(films) + " posters of 230 KB");
    tableau.ajoute({"converted and checked", "ms", programme.at("conversion"), plancher.at("lecture"), {}, true});
    tableau.ajoute({"  converted a second", "MB", megaoctets(base) / programme.at("conversion") * 1000, {}, {}});
    tableau.ajoute({"  peak memory", "MB", programme.at("memoire"), {}, 60.0});
    fs::remove(base);
}

// Gesture by gesture; those that stay below half of the target are one line.
void mesureGestes(bench::Tableau& tableau, const Options& options, int films, double cible) {
    const fs::path copie = copieDe(options, collection(options, {films, false}));
    fs::create_directories(copie / "Affiches");
    std::vector<std::string> mots{copie.string(), fichesAImporter(options)};
    if (films > 100000) mots.emplace_back("essentiel");
    const Figures gestes = bench::lance("mesure_gestes", mots);
    tableau.titre("longest stretch without an event let through, among " + std::to_string(films) + " films");
    double autres = 0;
    for (const auto& [geste, duree] : gestes) {
        if (duree < cible / 2)
            autres = std::max(autres, duree);
        else
            tableau.ajoute({geste, "ms", duree, {}, cible});
    }
    tableau.ajoute({"each of the other gestures, at most", "ms", autres, {}, cible});
}

Options litOptions(int nombre, char** mots) {
    if (nombre < 3)
        throw std::invalid_argument("usage: mesures PROGRAMME DOSSIER [--vite] [--garde] [--commandes] [--million]");
    Options options{mots[1], mots[2]};
    for (int i = 3; i < nombre; ++i) {
        options.vite |= std::strcmp(mots[i], "--vite") == 0;
        options.garde |= std::strcmp(mots[i], "--garde") == 0;
        options.commandes |= std::strcmp(mots[i], "--commandes") == 0;
        options.million |= std::strcmp(mots[i], "--million") == 0;
    }
    return options;
}

void mesureFenetresEtImports(bench::Tableau& tableau, const Options& options) {
    std::vector<Collection> collections{{1000, false}, {1000, true}, {10000, false, 1.7, 60}};
    if (!options.vite) {
        collections.push_back({10000, true, 1.7, 60});
        collections.push_back({100000, false, 1.5, 110});
    }
    for (const Collection& c : collections)
        mesureFenetre(tableau, options, c);
    mesureImport(tableau, options, {0, 1000, options.vite ? 10000 : 100000});
}

int conclut(const bench::Tableau& tableau, const Options& options) {
    if (!options.garde) fs::remove_all(options.dossier);
    std::cout << '\n'
              << (tableau.depassements() == 0 ? "every target is held"
                                              : std::to_string(tableau.depassements()) + " over target")
              << '\n';
    return 0;
}

}  // namespace

int main(int nombre, char** mots) try {
    const Options options = litOptions(nombre, mots);
    bench::Tableau tableau;
    if (options.million) {
        mesureMillion(tableau, options);
        mesureGestes(tableau, options, 1000000, 200);
        return conclut(tableau, options);
    }
    if (!options.commandes) mesureFenetresEtImports(tableau, options);
    mesureCommandes(tableau, options, options.vite ? 10000 : 100000);
    mesureModification(tableau, options, 10000);
    mesureAnnulations(tableau, options, options.vite ? 10000 : 100000);
    mesureEnsemble(tableau, options, 10000, 2000);
    mesureDoublons(tableau, options, 3000, {});
    if (!options.vite) mesureEnsemble(tableau, options, 100000, 60000);
    mesureGestes(tableau, options, options.vite ? 10000 : 100000, 100);
    mesureMur(tableau, options, 10000);
    mesureListes(tableau, options);
    mesureConversion(tableau, options, options.vite ? 2000 : 10000);
    mesureSauvegardes(tableau, options, options.vite ? 2000 : 10000);
    mesureBaseJet(tableau, options);
    return conclut(tableau, options);
} catch (const std::exception& e) {
    std::cerr << "mesures: " << e.what() << '\n';
    return 1;
}
