#include "platform/dao/Poignee.h"

#include "platform/dao/DBEngine.h"
#include "platform/dao/Erreurs.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include <sqlite3.h>

namespace dao::interne {

namespace {

constexpr int kAttenteDuVerrou = 2000;  // ms

// A statement, finalised when it goes.
using Brute = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

void exigeFichier(const std::string& chemin) {
    std::error_code erreur;
    if (!std::filesystem::exists(chemin, erreur))
        jette(kErreurFichierIntrouvable, "Fichier introuvable : « " + chemin + " ».");
    if (!std::filesystem::is_regular_file(chemin, erreur))
        jette(kErreurFormat, "« " + chemin + " » n'est pas une base.");
}

// SQLite would take an empty file for a new base.
void exigeSignature(const std::string& chemin) {
    constexpr std::string_view kSignature("SQLite format 3\0", 16);
    std::ifstream fichier(chemin, std::ios::binary);
    std::array<char, 16> debut{};
    if (!fichier) jette(kErreurLectureSeule, "Le fichier « " + chemin + " » ne peut pas être lu.");
    fichier.read(debut.data(), debut.size());
    const std::string_view lu(debut.data(), static_cast<std::size_t>(fichier.gcount()));
    if (lu != kSignature) jette(kErreurFormat, "« " + chemin + " » n'est pas une base, ou elle est endommagée.");
}

// What a file made elsewhere may hold must not act by itself.
void protege(Poignee& base) {
    base.regle(SQLITE_DBCONFIG_DEFENSIVE, 1);
    base.regle(SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0);
    base.regle(SQLITE_DBCONFIG_ENABLE_TRIGGER, 0);
    base.regle(SQLITE_DBCONFIG_ENABLE_VIEW, 0);
    base.regle(SQLITE_DBCONFIG_DQS_DML, 0);
}

// Reads the first page and the schema: SQLite then undoes what a killed program left half written, and refuses a file
// that lacks whole pages.
void verifieLeContenu(Poignee& base) {
    base.entier("SELECT count(*) FROM sqlite_schema");
    const long long identifiant = base.entier("PRAGMA application_id");
    if (identifiant != 0 && identifiant != DBEngine::kIdentifiantApplication)
        jette(kErreurFormat, "La base appartient à un autre programme.");
    std::error_code erreur;
    const auto taille = std::filesystem::file_size(sqlite3_db_filename(base.brute(), "main"), erreur);
    if (erreur || static_cast<long long>(taille) % base.entier("PRAGMA page_size") != 0)
        jette(kErreurFormat, "La base est tronquée.");
}

// The only sure way to know that a change will be possible is to begin one: it takes the lock and makes the journal.
void essaieDEcrire(Poignee& base, bool exclusif) {
    if (sqlite3_db_readonly(base.brute(), "main") != 0) jetteSqlite(base.brute(), SQLITE_READONLY, Acces::Ecriture);
    base.execute(exclusif ? "BEGIN EXCLUSIVE" : "BEGIN IMMEDIATE");
    const std::string version = std::to_string(base.entier("PRAGMA user_version"));
    const int code = base.essaie("PRAGMA user_version=" + version);
    base.essaie("ROLLBACK");
    if (code != SQLITE_OK) jetteSqlite(base.brute(), code, Acces::Ecriture);
}

// The room of a poster that leaves the base is not overwritten with zeros, which Debian's library would do: that writes
// it twice, once to the journal.
void ouvre(Poignee& base, bool exclusif) {
    protege(base);
    base.execute("PRAGMA secure_delete=FAST");
    base.execute("PRAGMA synchronous=FULL; PRAGMA cache_size=-8000; PRAGMA temp_store=MEMORY");
    if (exclusif) base.execute("PRAGMA locking_mode=EXCLUSIVE");
    verifieLeContenu(base);
    essaieDEcrire(base, exclusif);
}

}  // namespace

Poignee::Poignee(const std::string& chemin, int options) {
    const int code =
        sqlite3_open_v2(chemin.c_str(), &m_base, options | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    if (code != SQLITE_OK) {
        sqlite3_close(std::exchange(m_base, nullptr));
        jetteSqlite(nullptr, code, Acces::Ecriture);
    }
    sqlite3_busy_timeout(m_base, kAttenteDuVerrou);
}

Poignee::~Poignee() {
    sqlite3_close(m_base);
}

void Poignee::regle(int reglage, int valeur) {
    sqlite3_db_config(m_base, reglage, valeur, nullptr);
}

int Poignee::essaie(const std::string& sql) {
    return sqlite3_exec(m_base, sql.c_str(), nullptr, nullptr, nullptr);
}

void Poignee::execute(const std::string& sql) {
    if (const int code = essaie(sql); code != SQLITE_OK) jetteSqlite(m_base, code, Acces::Ecriture);
}

void Poignee::execute(const std::string& sql, const std::string& parametre) {
    const Brute requete(prepare(sql), &sqlite3_finalize);
    sqlite3_bind_text(requete.get(), 1, parametre.data(), static_cast<int>(parametre.size()), SQLITE_STATIC);
    if (const int code = sqlite3_step(requete.get()); code != SQLITE_DONE) jetteSqlite(m_base, code, Acces::Ecriture);
}

long long Poignee::entier(const std::string& sql) {
    const Brute requete(prepare(sql), &sqlite3_finalize);
    if (const int code = sqlite3_step(requete.get()); code != SQLITE_ROW) jetteSqlite(m_base, code, Acces::Ecriture);
    return sqlite3_column_int64(requete.get(), 0);
}

std::vector<std::string> Poignee::textes(const std::string& sql) {
    const Brute requete(prepare(sql), &sqlite3_finalize);
    std::vector<std::string> resultat;
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(requete.get())) == SQLITE_ROW) {
        const unsigned char* texte = sqlite3_column_text(requete.get(), 0);
        resultat.emplace_back(texte != nullptr ? reinterpret_cast<const char*>(texte) : "");
    }
    if (code != SQLITE_DONE) jetteSqlite(m_base, code, Acces::Ecriture);
    return resultat;
}

sqlite3_stmt* Poignee::prepare(const std::string& sql) {
    sqlite3_stmt* requete = nullptr;
    const int code = sqlite3_prepare_v2(m_base, sql.c_str(), -1, &requete, nullptr);
    if (code != SQLITE_OK) jetteSqlite(m_base, code, Acces::Ecriture);
    return requete;
}

std::unique_ptr<Poignee> ouvreBase(const std::string& chemin, bool exclusif) {
    exigeFichier(chemin);
    exigeSignature(chemin);
    try {
        auto base = std::make_unique<Poignee>(chemin, SQLITE_OPEN_READWRITE);
        ouvre(*base, exclusif);
        return base;
    } catch (const ErreurDao& erreur) {
        if (erreur.numero != kErreurVerrouille) throw;
        jette(kErreurFichierDejaUtilise, "Impossible d'utiliser « " + chemin + " » : le fichier est déjà utilisé.");
    }
}

}  // namespace dao::interne
