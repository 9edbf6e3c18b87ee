#include "pannes/Etat.h"

#include "pannes/Scenarios.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <stdexcept>

#include <sqlite3.h>

namespace pannes {

namespace {

namespace fs = std::filesystem;

std::string lis(const fs::path& chemin) {
    std::ifstream fichier(chemin, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichier), {}};
}

using Base = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

Base ouvre(const std::string& chemin) {
    sqlite3* base = nullptr;
    sqlite3_open_v2(chemin.c_str(), &base, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_busy_timeout(base, 1000);
    return {base, &sqlite3_close};
}

// Hands each row's columns; false when the statement fails.
bool parcourt(const Base& base, const char* sql, const std::function<void(const std::vector<std::string>&)>& recoit) {
    sqlite3_stmt* brute = nullptr;
    if (sqlite3_prepare_v2(base.get(), sql, -1, &brute, nullptr) != SQLITE_OK) return false;
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> requete(brute, &sqlite3_finalize);
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(brute)) == SQLITE_ROW) {
        std::vector<std::string> colonnes;
        for (int i = 0; i < sqlite3_column_count(brute); ++i) {
            const void* octets = sqlite3_column_blob(brute, i);
            colonnes.emplace_back(octets ? static_cast<const char*>(octets) : "",
                                  static_cast<std::size_t>(sqlite3_column_bytes(brute, i)));
        }
        recoit(colonnes);
    }
    return code == SQLITE_DONE;
}

std::string octetsDeLAffiche(const std::string& affiche, const fs::path& images) {
    if (!affiche.starts_with("JPG")) return affiche.substr(std::min<std::size_t>(affiche.size(), 3));
    const fs::path fichier = images / affiche.substr(3);
    return fs::exists(fichier) ? lis(fichier) : "no file " + affiche;
}

void releve(Etat& etat, const std::string& nom, const fs::path& chemin, const fs::path& images) {
    const bool estCopie = nom.find("Sauvegardes/") != std::string::npos;
    Lignes copiees;
    Lignes& lignes = estCopie ? copiees : etat.bases[nom];
    std::set<std::string>& fiches = estCopie ? etat.fichesCopiees : etat.fiches;
    const std::string octets = lis(chemin);
    if (!octets.starts_with("SQLite format 3")) {
        lignes["!"] = octets;
        return;
    }
    lignes["!"] = "base";
    const Base base = ouvre(chemin);
    bool lue = parcourt(base, "PRAGMA integrity_check", [&](const auto& c) {
        if (c[0] != "ok") etat.dommage += nom + ": " + c[0] + "\n";
    });
    for (const std::string table : {"Films", "Personnel"})
        lue = lue && parcourt(base, ("SELECT * FROM " + table).c_str(), [&](auto colonnes) {
                  if (colonnes[1] == kTemoin || colonnes[1] == kAilleurs) return;
                  const std::string affiche = table == "Films" ? octetsDeLAffiche(colonnes.back(), images) : "";
                  if (table == "Films") colonnes.pop_back();
                  std::string& ligne = lignes[table + " " + colonnes[0] + " " + colonnes[1]];
                  for (const std::string& valeur : colonnes)
                      ligne += valeur + '\x1f';
                  fiches.insert(ligne);
                  ligne += affiche;
              });
    if (!lue) etat.dommage += nom + ": " + sqlite3_errmsg(base.get()) + "\n";
}

// Of work that was cut off, in a file that no film names yet: the next attempt goes on with it.
bool estUneAfficheCommencee(const std::string& nom, const std::string& octets, const Etat& avant, const Etat& apres) {
    const auto entiere = apres.fichiers.find(nom);
    return nom.starts_with("Images/") && !avant.fichiers.contains(nom) && entiere != apres.fichiers.end() &&
           entiere->second.starts_with(octets);
}

std::string sansNumero(const std::string& ligne) {
    return ligne.substr(ligne.find('\x1f') + 1);
}

// A row that came: one before it may have been refused, which leaves it another row id.
bool estAjoutee(const std::string& ligne, const Lignes& apres) {
    return std::ranges::any_of(apres, [&](const auto& autre) { return sansNumero(autre.second) == sansNumero(ligne); });
}

template <typename Table>
const auto& valeur(const Table& table, const std::string& cle) {
    static const typename Table::mapped_type aucune{};
    const auto place = table.find(cle);
    return place == table.end() ? aucune : place->second;
}

}  // namespace

bool estDeTravail(const std::string& nom) {
    return nom.starts_with("Tmp") || nom.find(".ambrelis-") != std::string::npos || nom.ends_with(".tmp") ||
           nom.ends_with("-journal");
}

Etat Etat::de(const std::string& dossier) {
    Etat etat;
    for (const auto& entree : fs::recursive_directory_iterator(dossier)) {
        const std::string nom = entree.path().lexically_relative(dossier).string();
        if (!entree.is_regular_file() || nom == "Ambrelis.ini" || nom == ".ambrelis.verrou") continue;
        if (nom.ends_with(".mdb") && !estDeTravail(nom))
            releve(etat, nom, entree.path(), fs::path(dossier) / "Images");
        else
            etat.fichiers[nom] = lis(entree.path());
    }
    return etat;
}

bool Etat::memesFilms(const Etat& autre) const {
    const auto films = [](const Etat& etat) {
        std::multiset<std::string> tous;
        for (const auto& [nom, lignes] : etat.bases)
            for (const auto& [cle, ligne] : lignes)
                if (cle.find(kSansFilm) == std::string::npos) tous.insert(nom + sansNumero(ligne));
        return tous;
    };
    return films(*this) == films(autre);
}

std::string Etat::ecart(const Etat& avant, const Etat& apres, bool entiere) const {
    std::string texte = dommage;
    const auto compare = [&](const std::string& ou, const auto& ici, const auto& alors, const auto& ensuite) {
        if (ici != alors && ici != ensuite) texte += ou + " is neither as before nor as after\n";
    };
    std::map<std::string, Lignes> noms = avant.bases;
    noms.insert(apres.bases.begin(), apres.bases.end());
    noms.insert(bases.begin(), bases.end());
    for (const auto& [nom, ignorees] : noms) {
        const Lignes &ici = valeur(bases, nom), &alors = valeur(avant.bases, nom), &ensuite = valeur(apres.bases, nom);
        if (entiere) {
            compare(nom, ici, alors, ensuite);
            continue;
        }
        Lignes cles = alors;
        cles.insert(ensuite.begin(), ensuite.end());
        cles.insert(ici.begin(), ici.end());
        for (const auto& [cle, ignoree] : cles)
            if (alors.contains(cle) || !estAjoutee(valeur(ici, cle), ensuite))
                compare(nom + ": " + cle, valeur(ici, cle), valeur(alors, cle), valeur(ensuite, cle));
    }
    for (const std::string& fiche : fichesCopiees)
        if (!avant.fiches.contains(fiche) && !apres.fiches.contains(fiche) && !avant.fichesCopiees.contains(fiche))
            texte += "a safety copy holds what never was: " + fiche + "\n";
    for (const auto& [nom, octets] : fichiers)
        if (!estDeTravail(nom) && !estUneAfficheCommencee(nom, octets, avant, apres))
            compare(nom, octets, valeur(avant.fichiers, nom), valeur(apres.fichiers, nom));
    for (const auto& [nom, octets] : avant.fichiers)
        if (!estDeTravail(nom) && apres.fichiers.contains(nom) && !fichiers.contains(nom)) texte += nom + " is gone\n";
    return texte;
}

long noteDe(const char* titre, const std::string& base) {
    long note = -1;
    parcourt(ouvre(base), ("SELECT coalesce(Note, 0) FROM Films WHERE Titre = '" + std::string(titre) + "'").c_str(),
             [&](const auto& c) { note = std::stol(c[0]); });
    return note;
}

AutreProgramme::AutreProgramme(const std::string& base) : m_base(ouvre(base).release()) {}
AutreProgramme::~AutreProgramme() {
    sqlite3_close(m_base);
}
void AutreProgramme::execute(const std::string& sql) {
    if (sqlite3_exec(m_base, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(m_base));
}

}  // namespace pannes
