#include "platform/dao/Fonctions.h"

#include "platform/dao/AccesValeur.h"
#include "platform/dao/CleJet.h"
#include "platform/dao/Connexion.h"
#include "platform/dao/Erreurs.h"
#include "platform/dao/TexteJet.h"
#include "util/Ascii.h"

#include <algorithm>
#include <exception>
#include <new>
#include <string>

#include <sqlite3.h>

namespace dao::interne {

namespace {

// What is looked for, made ready at the first row.
struct TexteEgal {
    explicit TexteEgal(std::string_view cherche)
        : texte(cherche), cle(cleJet(cherche)), nombre(nombreDeTexte(cherche)) {}
    std::string texte, cle;
    double nombre;
};
struct TexteContenu {
    explicit TexteContenu(std::string_view cherche) { plie(cherche, plis); }
    std::string plis;
};
struct Debut {
    explicit Debut(std::string_view cherche) : texte(cherche), lu(cherche.size(), '\0') {}
    Debut(const Debut&) = delete;
    Debut& operator=(const Debut&) = delete;
    ~Debut() { sqlite3_blob_close(valeur); }
    std::string texte, lu;
    sqlite3_blob* valeur = nullptr;
};

template <typename Cherche>
Cherche& cherche(sqlite3_context* contexte, sqlite3_value* texte) {
    auto* connu = static_cast<Cherche*>(sqlite3_get_auxdata(contexte, 0));
    if (connu != nullptr) return *connu;
    sqlite3_set_auxdata(contexte, 0, new Cherche(vueDe(texte).texte), [](void* c) { delete static_cast<Cherche*>(c); });
    connu = static_cast<Cherche*>(sqlite3_get_auxdata(contexte, 0));
    if (connu == nullptr) throw std::bad_alloc();
    return *connu;
}

bool memeTexte(const ValeurVue& valeur, const TexteEgal& voulu) {
    if (valeur.type == ValeurVue::Type::Nombre) return valeur.nombre == voulu.nombre;
    if (valeur.texte == voulu.texte) return true;
    thread_local std::string cle;
    cle.clear();
    ajouteCleJet(valeur.texte, cle);
    return cle == voulu.cle;
}

void egal(sqlite3_context* contexte, int, sqlite3_value** arguments) {
    const ValeurVue valeur = vueDe(arguments[1]);
    if (!valeur.estNulle()) sqlite3_result_int(contexte, memeTexte(valeur, cherche<TexteEgal>(contexte, arguments[0])));
}

void contientUn(sqlite3_context* contexte, int nombre, sqlite3_value** arguments) {
    const std::string& plis = cherche<TexteContenu>(contexte, arguments[0]).plis;
    std::string tampon;
    bool trouve = false;
    for (int i = 1; i < nombre; ++i) {
        const ValeurVue valeur = vueDe(arguments[i]);
        if (valeur.estNulle()) return;
        trouve = trouve || contient(texteDe(valeur, tampon), plis);
    }
    sqlite3_result_int(contexte, trouve);
}

// Asking SQLite for a value's start reads the whole of it; its incremental reader does not.
void commence(sqlite3_context* contexte, int, sqlite3_value** arguments) {
    const std::string_view type = vueDe(arguments[1]).texte;
    if (type == "null") return;
    if (type != "text" && type != "blob") return sqlite3_result_int(contexte, 0);
    auto& debut = cherche<Debut>(contexte, arguments[0]);
    const std::string table(vueDe(arguments[2]).texte), colonne(vueDe(arguments[3]).texte);
    const long long ligne = sqlite3_value_int64(arguments[4]);
    sqlite3* base = sqlite3_context_db_handle(contexte);
    int code = debut.valeur != nullptr
                   ? sqlite3_blob_reopen(debut.valeur, ligne)
                   : sqlite3_blob_open(base, "main", table.c_str(), colonne.c_str(), ligne, 0, &debut.valeur);
    if (code == SQLITE_OK) {
        const std::size_t taille = static_cast<std::size_t>(sqlite3_blob_bytes(debut.valeur));
        if (taille < debut.lu.size()) return sqlite3_result_int(contexte, 0);
        code = sqlite3_blob_read(debut.valeur, debut.lu.data(), static_cast<int>(debut.lu.size()), 0);
    }
    if (code != SQLITE_OK) return sqlite3_result_error_code(contexte, code);
    sqlite3_result_int(contexte, util::egalSansCasseAscii(debut.lu, debut.texte));
}

using Fonction = void (*)(sqlite3_context*, int, sqlite3_value**);

// Nothing may be thrown through SQLite.
template <Fonction kFonction>
void gardee(sqlite3_context* contexte, int nombre, sqlite3_value** arguments) noexcept {
    try {
        static_cast<Connexion*>(sqlite3_user_data(contexte))->respireEntreDeuxLignes();
        kFonction(contexte, nombre, arguments);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(contexte);
    } catch (const std::exception& erreur) {
        sqlite3_result_error(contexte, erreur.what(), -1);
    }
}

void inscrit(Connexion& connexion, const char* nom, int arguments, Fonction fonction) {
    constexpr int kOptions = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;  // a file's schema cannot call it
    const int code = sqlite3_create_function_v2(connexion.brute(), nom, arguments, kOptions, &connexion, fonction,
                                                nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) jetteSqlite(connexion.brute(), code, Acces::Lecture);
}

}  // namespace

void inscritFonctions(Connexion& connexion) {
    inscrit(connexion, "egal_jet", 2, gardee<egal>);
    inscrit(connexion, "contient_jet", -1, gardee<contientUn>);
    inscrit(connexion, "commence_jet", 5, gardee<commence>);
}

}  // namespace dao::interne
