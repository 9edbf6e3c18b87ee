#include "platform/dao/Connexion.h"

#include "platform/dao/AccesValeur.h"
#include "platform/dao/Erreurs.h"
#include "platform/dao/Jeu.h"

#include <algorithm>

#include <sqlite3.h>
#include <sys/stat.h>

namespace dao::interne {

namespace {

std::optional<std::pair<dev_t, ino_t>> fichierNomme(const std::string& chemin) {
    struct stat etat {};
    if (stat(chemin.c_str(), &etat) != 0) return std::nullopt;
    return std::pair(etat.st_dev, etat.st_ino);
}

}  // namespace

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
    return AccesValeur::lit(m_brute, colonne);
}

Connexion::Connexion(sqlite3* base, std::string nom)
    : m_base(base), m_nom(std::move(nom)), m_fichier(fichierNomme(m_nom)) {
    try {
        m_versionDuFichier = versionDuFichier();
    } catch (...) {
        for (const auto& [sql, requete] : m_requetes)
            sqlite3_finalize(requete);
        sqlite3_close(m_base);
        throw;
    }
}

Connexion::~Connexion() {
    for (Jeu* jeu : m_jeux)
        jeu->perdLaBase();
    for (const auto& [sql, requete] : m_requetes)
        sqlite3_finalize(requete);
    sqlite3_close(m_base);  // rolls back what was not confirmed
}

Requete Connexion::prepare(const std::string& sql) {
    auto& requete = m_requetes[sql];
    if (requete == nullptr) {
        const int code = sqlite3_prepare_v3(m_base, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                            &requete, nullptr);
        if (code != SQLITE_OK) {
            m_requetes.erase(sql);
            jetteSqlite(m_base, code, Acces::Lecture);  // only the schema was looked at
        }
    }
    return {m_base, requete};
}

void Connexion::execute(std::string_view sql) {
    const int code = sqlite3_exec(m_base, std::string(sql).c_str(), nullptr, nullptr, nullptr);
    relitLesTables();  // the statements may have changed any of them
    oublieLesLignes();
    if (code != SQLITE_OK) jetteSqlite(m_base, code, Acces::Ecriture);
}

Table& Connexion::table(std::string_view nom) {
    std::string cle(nom);
    std::transform(cle.begin(), cle.end(), cle.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    auto trouvee = m_tables.find(cle);
    if (trouvee == m_tables.end()) {
        auto lue = litTable(*this, cle);
        if (lue == nullptr)
            jette(kErreurTableIntrouvable, "La table « " + std::string(nom) + " » n'existe pas dans la base.");
        trouvee = m_tables.emplace(std::move(cle), std::move(lue)).first;
    }
    return *trouvee->second;
}

bool Connexion::enTransaction() const {
    return sqlite3_get_autocommit(m_base) == 0;
}

void Connexion::commence() {
    if (m_commencee) jette(kErreurTransaction, "Une transaction est déjà ouverte.");
    exigeEnPlace();
    prepare("BEGIN IMMEDIATE").execute();
    m_commencee = true;
    suitLeFichier();
}

void Connexion::confirme() {
    if (!m_commencee) jette(kErreurTransaction, "Aucune transaction n'est ouverte.");
    if (!enTransaction()) jette(kErreurDisque, "Erreur de disque : les modifications ont été annulées.");
    prepare("COMMIT").execute();
    m_commencee = false;
    for (const auto& [nom, table] : m_tables)
        table->suivi.supprimeesEnCours.clear();
}

void Connexion::annule() {
    if (enTransaction()) prepare("ROLLBACK").execute();
    m_commencee = false;
    for (const auto& [nom, table] : m_tables) {
        for (const long long ligne : table->suivi.supprimeesEnCours)
            table->suivi.supprimees.erase(ligne);
        table->suivi.supprimeesEnCours.clear();
    }
    oublieLesLignes();
}

void Connexion::veille() {
    if (enTransaction()) return;  // nobody else can write
    exigeEnPlace();
    suitLeFichier();
}

Emplacement Connexion::emplacement() const {
    const auto fichier = fichierNomme(m_nom);
    if (!fichier) return Emplacement::Absente;
    return fichier == m_fichier ? Emplacement::EnPlace : Emplacement::Remplacee;
}

// The engine would go on reading the file it holds, which nobody else sees any more, and call it read-only.
void Connexion::exigeEnPlace() const {
    if (emplacement() != Emplacement::EnPlace) jetteDeplacee(m_nom);
}

void Connexion::suitLeFichier() {
    const long long version = versionDuFichier();
    if (version == m_versionDuFichier) return;
    m_versionDuFichier = version;
    relitLesTables();
    oublieLesLignes();
}

// Recordsets hold ranks of columns: where a table no longer has the same ones, they are lost.
void Connexion::relitLesTables() {
    for (auto position = m_tables.begin(); position != m_tables.end();) {
        const auto nouvelle = litTable(*this, position->first);
        if (nouvelle != nullptr && nouvelle->memeForme(*position->second)) {
            ++position;
            continue;
        }
        for (Jeu* jeu : m_jeux)
            jeu->perdLaBase();
        m_jeux.clear();
        position = m_tables.erase(position);
    }
}

void Connexion::oublieLesLignes() {
    ++m_epoque;
    for (const auto& [nom, table] : m_tables) {
        table->suivi.compte.reset();
        table->suivi.index.oublie();
        table->suivi.ecrites.clear();  // recordsets of an earlier epoch read every value again
    }
}

long long Connexion::versionDuFichier() {
    Requete version = prepare("PRAGMA data_version");
    return version.avance() ? version.entier(0) : 0;
}

}  // namespace dao::interne
