#include "platform/dao/DBEngine.h"
#include "platform/dao/Erreurs.h"
#include "platform/dao/Poignee.h"
#include "util/Sql.h"

#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace dao::DBEngine {

namespace {

namespace fs = std::filesystem;
using interne::jette;
using interne::Poignee;

constexpr const char* kTables =
    "SELECT name FROM sqlite_schema WHERE type='table' AND rootpage<>0 AND name NOT LIKE 'sqlite~_%' ESCAPE '~'";

constexpr const char* kVersion = "PRAGMA data_version";  // another one once another handle changed the base

// The copy can be read through, and has every row.
void verifie(Poignee& source, const std::string& destination) {
    Poignee copie(destination, SQLITE_OPEN_READONLY);
    const auto memes = [&](const std::string& sql) { return source.entier(sql) == copie.entier(sql); };
    bool bonne = memes("PRAGMA application_id") && memes("PRAGMA user_version") &&
                 source.textes(kTables) == copie.textes(kTables) &&
                 copie.textes("PRAGMA quick_check(1)") == std::vector<std::string>{"ok"};
    for (const std::string& table : source.textes(kTables))
        bonne = bonne && memes("SELECT count(*) FROM " + util::entreGuillemets(table));
    if (!bonne) jette(kErreurFormat, "La copie de la base n'est pas identique à l'originale.");
}

// SQLite makes its copies without waiting for the disk.
void synchronise(const std::string& chemin) {
    const int fichier = open(chemin.c_str(), O_RDONLY | O_CLOEXEC);
    const bool surLeDisque = fichier >= 0 && fsync(fichier) == 0;
    if (fichier >= 0) close(fichier);
    if (!surLeDisque) jette(kErreurDisque, "Erreur de disque : la copie de la base n'a pas pu être enregistrée.");
}

void efface(const std::string& destination) {
    std::error_code ignoree;
    for (const char* suite : {"-journal", ""})
        fs::remove(destination + suite, ignoree);
}

void copie(Poignee& base, const std::string& source, const std::string& destination) {
    base.prepare("VACUUM INTO ?1").lie(1, destination).execute();
    verifie(base, destination);
    std::error_code ignoree;
    fs::permissions(destination, fs::status(source).permissions(), ignoree);
    synchronise(destination);
}

// Until the handle goes. Not before: the window, which lives on during the copy, reads the base by a handle of its own.
void prendsPourSoi(Poignee& base) {
    base.execute("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; ROLLBACK");
}

}  // namespace

void CompactDatabase(const std::string& source, const std::string& destination, const std::function<void()>& ensuite,
                     const Attente& attente) {
    Poignee base = interne::ouvreBase(source, false);
    std::error_code erreur;
    if (fs::exists(destination, erreur)) jette(kErreurFichierExiste, "Le fichier « " + destination + " » existe déjà.");
    try {
        base.execute("PRAGMA journal_mode=DELETE");  // else the old log would be taken for the copy's
        const long long version = base.entier(kVersion);
        attends(attente, [&] { copie(base, source, destination); });
        prendsPourSoi(base);
        if (base.entier(kVersion) != version)
            jette(kErreurVerrouille, "La base a été modifiée par un autre programme pendant qu'elle était copiée.");
        if (ensuite) ensuite();
    } catch (...) {
        efface(destination);
        throw;
    }
}

}  // namespace dao::DBEngine
