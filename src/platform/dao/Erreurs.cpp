#include "platform/dao/Erreurs.h"

#include <new>
#include <stdexcept>

#include <sqlite3.h>

namespace dao::interne {

void jette(int numero, std::string description) {
    throw ErreurDao(numero, std::move(description));
}

void jetteFerme() {
    jette(kErreurObjetFerme, "L'objet n'est pas valide ou n'est plus défini.");
}

void exigeSucces(UErrorCode etat) {
    if (etat == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
    if (U_FAILURE(etat)) throw std::runtime_error(u_errorName(etat));
}

void jetteDeplacee(const std::string& chemin) {
    jette(kErreurFichierIntrouvable, "La base « " + chemin +
                                         " » n'est plus à sa place : son disque est débranché, ou le fichier a été "
                                         "déplacé, renommé, supprimé ou remplacé.");
}

void jetteSqlite(sqlite3* base, int code, Acces acces) {
    const std::string detail = base != nullptr ? sqlite3_errmsg(base) : sqlite3_errstr(code);
    if (code == SQLITE_READONLY_DBMOVED) jetteDeplacee(sqlite3_db_filename(base, "main"));
    if (code == SQLITE_READONLY_ROLLBACK)
        jette(kErreurFormat,
              "La base « " + std::string(sqlite3_db_filename(base, "main")) +
                  " » a été laissée au milieu d'une modification, et ne peut pas être lue telle quelle.");
    switch (code & 0xff) {
        case SQLITE_NOMEM:
            throw std::bad_alloc();
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            if (acces == Acces::Lecture)
                jette(kErreurLectureVerrouillee,
                      "Lecture impossible : la base est verrouillée par un autre programme.");
            jette(kErreurVerrouille, "Mise à jour impossible : la base est verrouillée par un autre programme.");
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_AUTH:
        case SQLITE_CANTOPEN:
            jette(kErreurLectureSeule, "Mise à jour impossible : la base ou son dossier est en lecture seule.");
        case SQLITE_FULL:
            jette(kErreurDisque, "Erreur de disque : le disque est plein.");
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            jette(kErreurFormat, "La base est endommagée ou d'un format inconnu (" + detail + ").");
        case SQLITE_CONSTRAINT:
            jette(kErreurDoublon, "La modification contredit une règle de la base (" + detail + ").");
        case SQLITE_IOERR:
            jette(kErreurDisque, "Erreur de disque ou de réseau (" + detail + ").");
        default:
            jette(kErreurDisque, "Erreur de la base (" + detail + ").");
    }
}

}  // namespace dao::interne
