#include "platform/dao/Enregistreur.h"

#include "platform/dao/Erreurs.h"
#include "platform/dao/IndexDeCles.h"

#include <algorithm>
#include <memory>

#define SQLITE_ENABLE_SESSION 1
#define SQLITE_ENABLE_PREUPDATE_HOOK 1
#include <sqlite3.h>

namespace dao::interne {

namespace {

// A session keeps the whole of each row that is changed or deleted, its poster included, and reads the rows again when it
// is handed over: while they are few, their pages are still in SQLite's cache.
constexpr sqlite3_int64 kEnMemoire = 512 << 10;
constexpr int kBloc = 64 << 10;  // that is read or written at a time

// --- the depot as SQLite reads and writes it ---------------------------------------------------------------------

int verseAuDepot(void* depot, const void* octets, int nombre) {
    const bool prises =
        static_cast<Depot*>(depot)->ajoute({static_cast<const char*>(octets), static_cast<std::size_t>(nombre)});
    return prises ? SQLITE_OK : SQLITE_FULL;
}

struct Lecture {
    const Depot& depot;
    std::int64_t place;
    std::int64_t reste;

    Lecture(const Depot& source, const Morceau& morceau) : depot(source), place(morceau.debut), reste(morceau.octets) {}
};

int litAuDepot(void* lecture, void* tampon, int* nombre) {
    auto& suite = *static_cast<Lecture*>(lecture);
    const auto voulus = static_cast<std::size_t>(std::min<std::int64_t>(*nombre, suite.reste));
    const std::size_t lus = voulus == 0 ? 0 : suite.depot.lit(suite.place, static_cast<char*>(tampon), voulus);
    if (lus < voulus) return SQLITE_IOERR_READ;
    suite.place += static_cast<std::int64_t>(lus);
    suite.reste -= static_cast<std::int64_t>(lus);
    *nombre = static_cast<int>(lus);
    return SQLITE_OK;
}

// --- what a piece speaks of --------------------------------------------------------------------------------------

struct LigneChangee {
    Table* table;
    long long id;
    int operation;  // SQLITE_INSERT, SQLITE_UPDATE, SQLITE_DELETE
};

struct Releve {
    std::uint64_t empreinte = 0;  // of the modified rows as they are now; whatever their order
    std::vector<LigneChangee> ajoutsEtRetraits{};
    long lignes = 0;
};

LigneChangee ligneDe(Connexion& connexion, sqlite3_changeset_iter* changement) {
    const char* nom = nullptr;
    int colonnes = 0, operation = 0;
    unsigned char* cles = nullptr;
    sqlite3changeset_op(changement, &nom, &colonnes, &operation, nullptr);
    sqlite3changeset_pk(changement, &cles, nullptr);
    const int cle = static_cast<int>(std::find(cles, cles + colonnes, 1) - cles);
    sqlite3_value* id = nullptr;
    const auto lit = operation == SQLITE_INSERT ? sqlite3changeset_new : sqlite3changeset_old;
    if (cle == colonnes || lit(changement, cle, &id) != SQLITE_OK || id == nullptr)
        jette(kErreurFormat, "Ce qui a été noté des modifications est illisible.");
    return {&connexion.table(nom), sqlite3_value_int64(id), operation};
}

// Which films the rows of one table are, by what its key says to the letter.
class Identites {
  public:
    Identites(Connexion& connexion, const Table& table) : m_table(&table) {
        if (!table.cle) return;
        const std::string sql =
            "SELECT " + table.clesSql() + " FROM " + table.nomSql + " WHERE " + table.ligneSql + "=?1";
        sqlite3_stmt* lecture = nullptr;
        const int code = sqlite3_prepare_v2(connexion.brute(), sql.c_str(), -1, &lecture, nullptr);
        m_lecture.reset(lecture);
        if (code != SQLITE_OK) jetteSqlite(connexion.brute(), code, Acces::Lecture);
    }

    [[nodiscard]] const Table* table() const { return m_table; }
    // Added up, in whatever order the rows come; 0 for a table without a key.
    [[nodiscard]] std::uint64_t de(long long id) const {
        if (!m_lecture) return 0;
        sqlite3_bind_int64(m_lecture.get(), 1, id);
        auto melange = static_cast<std::uint64_t>(id);
        const int code = sqlite3_step(m_lecture.get());
        if (code == SQLITE_ROW)
            for (const int colonne : {0, 1})
                melange = hache(texte(colonne), melange);
        sqlite3_reset(m_lecture.get());
        if (code != SQLITE_ROW && code != SQLITE_DONE)  // the transaction may be gone with it
            jetteSqlite(sqlite3_db_handle(m_lecture.get()), code, Acces::Lecture);
        return melange * 0x9e3779b97f4a7c15ULL;
    }

  private:
    [[nodiscard]] std::string_view texte(int colonne) const {
        const auto* octets = static_cast<const char*>(sqlite3_column_blob(m_lecture.get(), colonne));
        return {octets == nullptr ? "" : octets,
                static_cast<std::size_t>(sqlite3_column_bytes(m_lecture.get(), colonne))};
    }

    const Table* m_table;
    std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> m_lecture{nullptr, &sqlite3_finalize};
};

// Then the changeset itself says which film the row must be: SQLite compares what it changes with what is there.
bool changeLeTitre(sqlite3_changeset_iter* changement, const Table& table) {
    const char* nom = nullptr;
    int colonnes = 0, operation = 0;
    sqlite3changeset_op(changement, &nom, &colonnes, &operation, nullptr);
    if (!table.cle || colonnes != std::ssize(table.colonnes)) return false;
    sqlite3_value* titre = nullptr;
    return sqlite3changeset_new(changement, static_cast<int>(table.cle->premiere), &titre) == SQLITE_OK &&
           titre != nullptr;
}

Releve releve(Connexion& connexion, const Depot& depot, const Morceau& morceau) {
    Lecture lecture(depot, morceau);
    sqlite3_changeset_iter* brut = nullptr;
    int code = sqlite3changeset_start_strm(&brut, litAuDepot, &lecture);
    const std::unique_ptr<sqlite3_changeset_iter, decltype(&sqlite3changeset_finalize)> parcours(
        brut, &sqlite3changeset_finalize);
    Releve resultat;
    std::optional<Identites> identites;  // changes come table by table
    while (code == SQLITE_OK && (code = sqlite3changeset_next(brut)) == SQLITE_ROW) {
        code = SQLITE_OK;
        connexion.respire();
        const LigneChangee ligne = ligneDe(connexion, brut);
        ++resultat.lignes;
        if (ligne.operation != SQLITE_UPDATE) {
            resultat.ajoutsEtRetraits.push_back(ligne);
            continue;
        }
        if (changeLeTitre(brut, *ligne.table)) continue;
        if (!identites || identites->table() != ligne.table) identites.emplace(connexion, *ligne.table);
        resultat.empreinte += identites->de(ligne.id);
    }
    if (code != SQLITE_DONE) jetteSqlite(nullptr, code, Acces::Lecture);
    return resultat;
}

// --- taking back, making again -----------------------------------------------------------------------------------

int surConflit(void* changees, int, sqlite3_changeset_iter*) {
    *static_cast<bool*>(changees) = true;
    return SQLITE_CHANGESET_ABORT;
}

// False when the rows are not those that the piece speaks of. A table that is gone, or has other columns, is passed
// over by SQLite without a word: the count tells.
bool appliqueMorceau(Connexion& connexion, const Depot& depot, Morceau& morceau, Sens sens,
                     std::vector<LigneChangee>& ajoutsEtRetraits) {
    const bool defaire = sens == Sens::Defaire;
    const Releve present = releve(connexion, depot, morceau);
    if (present.empreinte != (defaire ? morceau.apres : morceau.avant)) return false;
    Lecture lecture(depot, morceau);
    bool changees = false;
    sqlite3* base = connexion.brute();
    const sqlite3_int64 avant = sqlite3_total_changes64(base);
    const int code = sqlite3changeset_apply_v2_strm(base, litAuDepot, &lecture, nullptr, surConflit, &changees, nullptr,
                                                    nullptr, defaire ? SQLITE_CHANGESETAPPLY_INVERT : 0);
    if (changees) return false;
    if (code != SQLITE_OK) jetteSqlite(base, code, Acces::Ecriture);
    if (sqlite3_total_changes64(base) - avant != present.lignes) return false;
    if (morceau.modifie) (defaire ? morceau.avant : morceau.apres) = releve(connexion, depot, morceau).empreinte;
    ajoutsEtRetraits.insert(ajoutsEtRetraits.end(), present.ajoutsEtRetraits.begin(), present.ajoutsEtRetraits.end());
    return true;
}

Application appliqueTout(Connexion& connexion, Enregistrement& changements, Sens sens, const Avance& avance,
                         std::vector<LigneChangee>& ajoutsEtRetraits) {
    std::vector<Morceau> morceaux = changements.morceaux;
    std::int64_t faits = 0, total = 0;
    for (const Morceau& morceau : morceaux)
        total += morceau.octets;
    bool arretee = false;
    const auto applique = [&](Morceau& morceau) {
        if (!appliqueMorceau(connexion, changements.depot, morceau, sens, ajoutsEtRetraits)) return false;
        faits += morceau.octets;
        arretee = faits < total && avance && !avance(faits, total);
        return !arretee;
    };
    const bool faite = sens == Sens::Defaire ? std::all_of(morceaux.rbegin(), morceaux.rend(), applique)
                                             : std::all_of(morceaux.begin(), morceaux.end(), applique);
    if (!faite) return arretee ? Application::Arretee : Application::Changees;
    changements.morceaux = std::move(morceaux);
    return Application::Faite;
}

// A row that comes back under its id is the one that the recordsets knew.
void suisLesLignes(const std::vector<LigneChangee>& lignes, Sens sens) {
    const int presente = sens == Sens::Defaire ? SQLITE_DELETE : SQLITE_INSERT;
    for (const LigneChangee& ligne : lignes) {
        Suivi& suivi = ligne.table->suivi;
        suivi.plusHaute = std::max(suivi.plusHaute, ligne.id);
        if (ligne.operation == presente)
            suivi.supprimees.erase(ligne.id);
        else
            suivi.supprimees.insert(ligne.id);
    }
}

}  // namespace

template <typename Geste>
void Enregistreur::essaie(Geste geste) noexcept {
    try {
        geste();
    } catch (const ErreurDao& erreur) {
        m_empeche = erreur.description;
        ferme();
    } catch (...) {
        m_empeche = "la mémoire manque";
        ferme();
    }
}

void Enregistreur::commence() noexcept {
    m_premier = m_suite.morceaux.size();
    m_version = m_connexion.version();
    m_empeche.clear();
    essaie([this] {
        m_manqueAvant = m_suite.manque;
        if (!m_suite.manque.empty()) return;
        for (const std::string& nom : m_suite.tables) {
            Table& table = m_connexion.table(nom);
            if (!table.aCleEntiere) table.aCleEntiere = cleEntiere(m_connexion, table.nom).has_value();
            if (!*table.aCleEntiere) jette(kErreurFormat, "la table « " + nom + " » n'a pas de clé primaire entière");
        }
        ouvre();
    });
}

void Enregistreur::ouvre() {
    static const bool parGrandsBlocs = [octets = kBloc]() mutable {
        return sqlite3session_config(SQLITE_SESSION_CONFIG_STRMSIZE, &octets) == SQLITE_OK;
    }();
    static_cast<void>(parGrandsBlocs);
    int code = sqlite3session_create(m_connexion.brute(), "main", &m_session);
    for (const std::string& nom : m_suite.tables)
        if (code == SQLITE_OK) code = sqlite3session_attach(m_session, m_connexion.table(nom).nom.c_str());
    if (code != SQLITE_OK) jetteSqlite(m_connexion.brute(), code, Acces::Lecture);
}

void Enregistreur::ferme() {
    if (m_session != nullptr) sqlite3session_delete(std::exchange(m_session, nullptr));
}

void Enregistreur::soulage() noexcept {
    if (m_session == nullptr || sqlite3session_memory_used(m_session) < kEnMemoire) return;
    essaie([this] {
        verse();
        ferme();
        ouvre();
    });
}

void Enregistreur::avantValidation() noexcept {
    essaie([this] { verse(); });
    ferme();
    if (m_empeche.empty() || m_connexion.version() == m_version) return;
    m_suite.manque = std::move(m_empeche);
    m_empeche.clear();
}

// One net change for each row: what was undone meanwhile leaves nothing.
void Enregistreur::verse() {
    if (m_session == nullptr || sqlite3session_isempty(m_session) != 0) return;
    Morceau morceau{.debut = m_suite.depot.taille()};
    const int code = sqlite3session_changeset_strm(m_session, verseAuDepot, &m_suite.depot);
    if (code == SQLITE_FULL) jette(kErreurDisque, "la place manque");
    if (code != SQLITE_OK) jetteSqlite(m_connexion.brute(), code, Acces::Lecture);
    morceau.octets = m_suite.depot.taille() - morceau.debut;
    if (morceau.octets == 0) return;
    if (std::exchange(m_modifie, false)) {
        morceau.modifie = true;
        morceau.apres = releve(m_connexion, m_suite.depot, morceau).empreinte;
    }
    m_suite.morceaux.push_back(morceau);
}

void Enregistreur::annule() noexcept {
    ferme();
    m_empeche.clear();
    m_suite.manque.swap(m_manqueAvant);
    m_suite.morceaux.resize(std::min(m_suite.morceaux.size(), m_premier));
}

Application applique(Connexion& connexion, Enregistrement& changements, Sens sens, const Avance& avance) {
    std::vector<LigneChangee> ajoutsEtRetraits;
    std::vector<AncienSuivi> anciens;
    connexion.commence();
    try {
        const std::vector<Morceau> avant = changements.morceaux;
        anciens.resize(connexion.nombreDeTables());  // memory may lack once it is stored
        const Application issue = appliqueTout(connexion, changements, sens, avance, ajoutsEtRetraits);
        if (issue != Application::Faite) {
            connexion.annule();
            return issue;
        }
        try {
            connexion.confirme();
        } catch (...) {
            changements.morceaux = avant;
            throw;
        }
    } catch (...) {
        connexion.annule();
        throw;
    }
    suisLesLignes(ajoutsEtRetraits, sens);
    connexion.relisToutesLesLignes(anciens);
    Cadence cadence(connexion.souffle(), Cadence::kEnMemoire);
    for (AncienSuivi& ancien : anciens) {
        ancien.index.rends(cadence);
        for (; !ancien.ecrites.empty(); cadence())
            ancien.ecrites.erase(ancien.ecrites.begin());
    }
    return Application::Faite;
}

}  // namespace dao::interne
