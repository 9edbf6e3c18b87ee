#include "platform/dao/Ecriture.h"

#include "platform/dao/Erreurs.h"

#include <algorithm>
#include <optional>

#include <sqlite3.h>

namespace dao::interne {

namespace {

std::string clauseDeLigne(const Table& table) {
    return " FROM " + table.nomSql + " WHERE " + table.ligneSql + "=?1";
}

// Of the key that stands in these two columns of a requete's row; Null stands where "" does.
std::uint64_t hachageDeColonnes(const Requete& requete, int premiere) {
    std::string tampon, autreTampon;
    return hacheCle(texteDe(requete.vue(premiere), tampon), texteDe(requete.vue(premiere + 1), autreTampon));
}

std::optional<std::uint64_t> hachageDeLigne(Connexion& connexion, const Table& table, long long ligne) {
    Requete lecture = connexion.prepare("SELECT " + table.clesSql() + clauseDeLigne(table));
    lecture.lie(1, ligne);
    return lecture.avance() ? std::optional(hachageDeColonnes(lecture, 0)) : std::nullopt;
}

// Aside: what throws leaves none.
void construitIndex(Connexion& connexion, Table& table) {
    Requete lecture = connexion.prepare("SELECT " + table.ligneSql + "," + table.clesSql() + " FROM " + table.nomSql);
    table.suivi.index.oublie();
    IndexDeCles index;
    for (Cadence cadence(connexion.souffle()); lecture.avance(); cadence())
        index.range(hachageDeColonnes(lecture, 1), lecture.entier(0));
    index.acheve(connexion.souffle());
    table.suivi.index = std::move(index);
}

std::string listeSql(const Table& table, const Assignees& assignees, std::string_view apres) {
    std::string liste;
    int rang = 1;
    for (const auto& [colonne, valeur] : assignees) {
        liste += ',';
        liste += table.colonneSql(colonne);
        if (apres == "=") liste.append("=?").append(std::to_string(++rang));
    }
    return liste;
}

void lieTout(Requete& requete, const Assignees& assignees) {
    int rang = 1;
    for (const auto& [colonne, valeur] : assignees)
        requete.lie(++rang, valeur);
}

// The change is in the file already: an index that cannot follow it is built again at its next use.
void indexe(Connexion& connexion, Table& table, long long ligne) {
    try {
        if (const auto hachage = hachageDeLigne(connexion, table, ligne)) table.suivi.index.ajoute(*hachage, ligne);
    } catch (...) {
        table.suivi.index.oublie();
    }
}

bool toucheLaCle(const Table& table, const Assignees& assignees) {
    return std::any_of(assignees.begin(), assignees.end(),
                       [&](const auto& assignee) { return table.estCle(assignee.first); });
}

}  // namespace

void jetteSupprime() {
    jette(kErreurEnregistrementSupprime, "L'enregistrement est supprimé.");
}

long long ajouteLigne(Connexion& connexion, Table& table, const Assignees& assignees) {
    Suivi& suivi = table.suivi;
    const std::string& ligneSql = table.ligneSql;
    std::string places;
    for (std::size_t i = 0; i < assignees.size(); ++i)
        places.append(",?").append(std::to_string(i + 2));
    {
        Requete ajout = connexion.prepare("INSERT INTO " + table.nomSql + "(" + ligneSql +
                                          listeSql(table, assignees, "") + ") VALUES (max(?1,coalesce((SELECT max(" +
                                          ligneSql + ") FROM " + table.nomSql + "),0)+1)" + places + ")");
        ajout.lie(1, suivi.plusHaute + 1);
        lieTout(ajout, assignees);
        ajout.execute();
    }
    const long long ligne = sqlite3_last_insert_rowid(connexion.brute());
    suivi.plusHaute = std::max(suivi.plusHaute, ligne);
    if (suivi.compte) ++*suivi.compte;
    if (suivi.index.estConstruit()) indexe(connexion, table, ligne);
    suivi.derniereEcriture = connexion.nouvelleVersion();
    return ligne;
}

void modifieLigne(Connexion& connexion, Table& table, long long ligne, const Assignees& assignees) {
    const bool aSuivre = table.suivi.index.estConstruit() && toucheLaCle(table, assignees);
    const auto ancien = aSuivre ? hachageDeLigne(connexion, table, ligne) : std::nullopt;
    connexion.noteModification();
    std::uint64_t& ecrite = table.suivi.ecrites[ligne];  // before the change: memory may lack
    {
        Requete modification =
            connexion.prepare("UPDATE " + table.nomSql + " SET " + listeSql(table, assignees, "=").substr(1) +
                              " WHERE " + table.ligneSql + "=?1");
        modification.lie(1, ligne);
        lieTout(modification, assignees);
        modification.execute();
    }
    if (sqlite3_changes(connexion.brute()) == 0) jetteSupprime();
    ecrite = table.suivi.derniereEcriture = connexion.nouvelleVersion();
    if (ancien) table.suivi.index.retire(*ancien, ligne);
    if (aSuivre) indexe(connexion, table, ligne);
}

void supprimeLigne(Connexion& connexion, Table& table, long long ligne) {
    Suivi& suivi = table.suivi;
    const auto ancien = suivi.index.estConstruit() ? hachageDeLigne(connexion, table, ligne) : std::nullopt;
    // Noted before the change, since memory may lack: what is noted and did not come to pass is taken back.
    const bool enCours = connexion.enTransaction();
    if (enCours) suivi.supprimeesEnCours.push_back(ligne);
    const bool nouvelle = suivi.supprimees.insert(ligne).second;
    try {
        connexion.prepare("DELETE" + clauseDeLigne(table)).lie(1, ligne).execute();
        if (sqlite3_changes(connexion.brute()) == 0) jetteSupprime();
    } catch (...) {
        if (nouvelle) suivi.supprimees.erase(ligne);
        if (enCours && !suivi.supprimeesEnCours.empty()) suivi.supprimeesEnCours.pop_back();
        throw;
    }
    if (ancien) suivi.index.retire(*ancien, ligne);
    suivi.plusHaute = std::max(suivi.plusHaute, ligne);
    if (suivi.compte) --*suivi.compte;
    suivi.derniereEcriture = connexion.nouvelleVersion();
}

Valeur litChamp(Connexion& connexion, const Table& table, RangColonne colonne, long long ligne) {
    Requete lecture = connexion.prepare("SELECT " + table.colonneSql(colonne) + clauseDeLigne(table));
    lecture.lie(1, ligne);
    if (!lecture.avance()) jetteSupprime();
    return lecture.valeur(0);
}

void prepareIndex(Connexion& connexion, Table& table) {
    if (table.cle && !table.suivi.index.estConstruit()) construitIndex(connexion, table);
}

std::vector<long long> candidats(Connexion& connexion, Table& table, std::string_view premiere,
                                 std::string_view seconde) {
    prepareIndex(connexion, table);
    return table.suivi.index.candidats(hacheCle(premiere, seconde));
}

}  // namespace dao::interne
