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
void protege(sqlite3* base) {
    sqlite3_db_config(base, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    for (const int reglage : {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER,
                              SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_DQS_DML})
        sqlite3_db_config(base, reglage, 0, nullptr);
}

// Reads the first page and the schema: SQLite then undoes what a killed program left half written, and refuses a file
// that lacks whole pages.
void verifieLeContenu(Poignee& base) {
    static_cast<void>(base.entier("SELECT count(*) FROM sqlite_schema"));
    const long long identifiant = base.entier("PRAGMA application_id");
    if (identifiant != 0 && identifiant != DBEngine::kIdentifiantApplication)
        jette(kErreurFormat, "La base appartient à un autre programme.");
    std::error_code erreur;
    const auto taille = std::filesystem::file_size(sqlite3_db_filename(base.brute(), "main"), erreur);
    const long long page = base.entier("PRAGMA page_size");
    if (erreur || page <= 0 || static_cast<long long>(taille) % page != 0)
        jette(kErreurFormat, "La base est tronquée.");
}

// The only sure way to know that a change will be possible is to begin one: it takes the lock and makes the journal.
void essaieDEcrire(Poignee& base, bool exclusif) {
    if (sqlite3_db_readonly(base.brute(), "main") != 0) jetteSqlite(base.brute(), SQLITE_READONLY, Acces::Ecriture);
    base.execute(exclusif ? "BEGIN EXCLUSIVE" : "BEGIN IMMEDIATE");
    const std::string version = std::to_string(base.entier("PRAGMA user_version"));
    const int code = base.essaie("PRAGMA user_version=" + version);
    static_cast<void>(base.essaie("ROLLBACK"));
    if (code != SQLITE_OK) jetteSqlite(base.brute(), code, Acces::Ecriture);
}

// The room of a poster that leaves the base is not overwritten with zeros, which Debian's library would do: that writes
// it twice, once to the journal.
void ouvre(Poignee& base, bool exclusif) {
    protege(base.brute());
    base.execute("PRAGMA cell_size_check=ON; PRAGMA secure_delete=FAST");
    base.execute("PRAGMA synchronous=FULL; PRAGMA cache_size=-8000; PRAGMA temp_store=MEMORY");
    if (exclusif) base.execute("PRAGMA locking_mode=EXCLUSIVE");
    verifieLeContenu(base);
    essaieDEcrire(base, exclusif);
}

}  // namespace

void exigeJournauxSimples(const std::string& chemin) {
    constexpr std::string_view kMarque = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";
    std::error_code erreur;
    const std::string base = std::filesystem::canonical(chemin, erreur).string();
    for (const char* suite : {"-journal", "-wal", "-shm"}) {
        const auto etat = std::filesystem::symlink_status(base + suite, erreur);
        if (std::filesystem::exists(etat) && !std::filesystem::is_regular_file(etat))
            jette(kErreurFormat, "« " + base + suite + " » n'est pas un fichier.");
    }
    std::ifstream journal(base + "-journal", std::ios::binary | std::ios::ate);
    std::array<char, kMarque.size()> fin{};
    journal.seekg(-static_cast<std::streamoff>(fin.size()), std::ios::cur).read(fin.data(), fin.size());
    if (journal && kMarque == std::string_view(fin.data(), fin.size()))
        jette(kErreurFormat, "Le journal de la base « " + chemin + " » nomme un autre fichier.");
}

Requete::~Requete() {
    sqlite3_reset(m_brute);
    sqlite3_clear_bindings(m_brute);
}

Requete& Requete::lie(int rang, long long entier) {
    sqlite3_bind_int64(m_brute, rang, entier);
    return *this;
}

Requete& Requete::lie(int rang, const Valeur& valeur) {
    AccesValeur::lie(m_brute, rang, valeur);
    return *this;
}

bool Requete::avance() {
    const int code = sqlite3_step(m_brute);
    if (code == SQLITE_ROW) return true;
    if (code == SQLITE_DONE) return false;
    // BEGIN IMMEDIATE counts as writing; what ends a transaction that wrote does not, and its state tells.
    const bool lit = sqlite3_stmt_readonly(m_brute) != 0 && sqlite3_txn_state(m_base, "main") != SQLITE_TXN_WRITE;
    jetteSqlite(m_base, code, lit ? Acces::Lecture : Acces::Ecriture);
}

void Requete::execute() {
    while (avance()) {
    }
}

long long Requete::entier(int colonne) const {
    return sqlite3_column_int64(m_brute, colonne);
}
Valeur Requete::valeur(int colonne) const {
    switch (const ValeurVue lue = vue(colonne); lue.type) {
        case ValeurVue::Type::Nul:
            return {};
        case ValeurVue::Type::Nombre:
            if (sqlite3_column_type(m_brute, colonne) == SQLITE_FLOAT) return lue.nombre;
            return entier(colonne);
        case ValeurVue::Type::Octets:
            return Valeur::octets(std::string(lue.texte));
        default:
            return lue.texte;
    }
}

ValeurVue Requete::vue(int colonne) const {
    return vueDe(sqlite3_column_value(m_brute, colonne));
}

void Poignee::Ferme::operator()(sqlite3* base) const {
    sqlite3_close(base);
}
void Poignee::Ferme::operator()(sqlite3_stmt* requete) const {
    sqlite3_finalize(requete);
}

Poignee::Poignee(const std::string& chemin, int options) {
    sqlite3* base = nullptr;
    const int code =
        sqlite3_open_v2(chemin.c_str(), &base, options | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    m_base.reset(base);
    if (code != SQLITE_OK) jetteSqlite(nullptr, code, Acces::Ecriture);
    sqlite3_busy_timeout(base, kAttenteDuVerrou);
}

Requete Poignee::prepare(const std::string& sql) {
    auto& requete = m_requetes[sql];
    if (requete == nullptr) {
        sqlite3_stmt* neuve = nullptr;
        const int code = sqlite3_prepare_v3(brute(), sql.data(), static_cast<int>(sql.size()),
                                            SQLITE_PREPARE_PERSISTENT, &neuve, nullptr);
        if (code != SQLITE_OK) jetteSqlite(brute(), code, Acces::Lecture);  // only the schema was looked at
        requete.reset(neuve);
    }
    return {brute(), requete.get()};
}

int Poignee::essaie(const std::string& sql) {
    return sqlite3_exec(brute(), sql.c_str(), nullptr, nullptr, nullptr);
}

void Poignee::execute(const std::string& sql) {
    if (const int code = essaie(sql); code != SQLITE_OK) jetteSqlite(brute(), code, Acces::Ecriture);
}

long long Poignee::entier(const std::string& sql) {
    Requete requete = prepare(sql);
    return requete.avance() ? requete.entier(0) : 0;
}

std::vector<std::string> Poignee::textes(const std::string& sql) {
    std::vector<std::string> resultat;
    for (Requete requete = prepare(sql); requete.avance();)
        resultat.push_back(requete.valeur(0).texte());
    return resultat;
}

Poignee ouvreBase(const std::string& chemin, bool exclusif) {
    exigeFichier(chemin);
    exigeSignature(chemin);
    exigeJournauxSimples(chemin);
    try {
        Poignee base(chemin, SQLITE_OPEN_READWRITE);
        ouvre(base, exclusif);
        return base;
    } catch (const ErreurDao& erreur) {
        if (erreur.numero != kErreurVerrouille && erreur.numero != kErreurLectureVerrouillee) throw;
        jette(kErreurFichierDejaUtilise, "Impossible d'utiliser « " + chemin + " » : le fichier est déjà utilisé.");
    }
}

}  // namespace dao::interne
