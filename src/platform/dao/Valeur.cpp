#include "platform/dao/Valeur.h"

#include "platform/dao/AccesValeur.h"
#include "platform/dao/Erreurs.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <new>

#include <sqlite3.h>

namespace dao {

namespace interne {

std::string texteDeNombre(double nombre) {
    std::array<char, 400> tampon{};
    const bool simple = std::isfinite(nombre) && std::fabs(nombre) < 1e15;
    const auto fin = simple
                         ? std::to_chars(tampon.data(), tampon.data() + tampon.size(), nombre, std::chars_format::fixed)
                         : std::to_chars(tampon.data(), tampon.data() + tampon.size(), nombre);
    std::string texte(tampon.data(), fin.ptr);
    return texte == "-0" ? "0" : texte;
}

double nombreDeTexte(std::string_view texte) {
    const auto debut = texte.find_first_not_of(" \t\r\n");
    if (debut == std::string_view::npos) return 0;
    texte.remove_prefix(debut);
    if (texte.starts_with('+')) texte.remove_prefix(1);
    const std::size_t apresSigne = texte.starts_with('-') ? 1 : 0;
    const bool chiffre = texte.size() > apresSigne &&
                         (texte[apresSigne] == '.' || (texte[apresSigne] >= '0' && texte[apresSigne] <= '9'));
    if (!chiffre) return 0;  // "inf" and "nan" are words here
    double nombre = 0;
    const auto lu = std::from_chars(texte.data(), texte.data() + texte.size(), nombre);
    return lu.ec == std::errc{} ? nombre : 0;
}

ValeurVue vueDe(sqlite3_value* valeur) {
    const auto vue = [&](ValeurVue::Type type, const void* octets) -> ValeurVue {
        const auto taille = static_cast<std::size_t>(sqlite3_value_bytes(valeur));
        return {type, taille == 0 ? std::string_view("") : std::string_view(static_cast<const char*>(octets), taille),
                0};
    };
    switch (sqlite3_value_type(valeur)) {
        case SQLITE_NULL:
            return {};
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
            return {ValeurVue::Type::Nombre, {}, sqlite3_value_double(valeur)};
        case SQLITE_BLOB:
            return vue(ValeurVue::Type::Octets, sqlite3_value_blob(valeur));
        default:
            if (const auto* texte = sqlite3_value_text(valeur)) return vue(ValeurVue::Type::Texte, texte);
            throw std::bad_alloc();
    }
}

double ValeurVue::enNombre() const {
    return type == Type::Nombre ? nombre : nombreDeTexte(texte);
}

std::string_view texteDe(const ValeurVue& valeur, std::string& tampon) {
    if (valeur.type != ValeurVue::Type::Nombre) return valeur.texte;
    // A listing keeps a rating of each film: the general way takes longer than reading it.
    if (const int chiffre = valeur.nombre >= 1 && valeur.nombre <= 9 ? static_cast<int>(valeur.nombre) : 0;
        chiffre != 0 && chiffre == valeur.nombre)
        return tampon.assign(1, static_cast<char>('0' + chiffre));
    return tampon = texteDeNombre(valeur.nombre);
}

}  // namespace interne

Valeur Valeur::octets(std::string octets) {
    Valeur valeur;
    valeur.m_valeur = Octets{std::move(octets)};
    return valeur;
}

std::string Valeur::texte() const {
    if (const auto* texte = std::get_if<Texte>(&m_valeur)) return texte->contenu;
    if (const auto* octets = std::get_if<Octets>(&m_valeur)) return octets->contenu;
    if (const auto* entier = std::get_if<long long>(&m_valeur)) return std::to_string(*entier);
    if (const auto* reel = std::get_if<double>(&m_valeur)) return interne::texteDeNombre(*reel);
    return {};
}

double Valeur::nombre() const {
    if (const auto* entier = std::get_if<long long>(&m_valeur)) return static_cast<double>(*entier);
    if (const auto* reel = std::get_if<double>(&m_valeur)) return *reel;
    return interne::nombreDeTexte(texte());
}

void AccesValeur::lie(sqlite3_stmt* requete, int rang, const Valeur& valeur) {
    int code = SQLITE_OK;
    if (const auto* texte = std::get_if<Valeur::Texte>(&valeur.m_valeur)) {
        code = sqlite3_bind_text64(requete, rang, texte->contenu.data(), texte->contenu.size(), SQLITE_TRANSIENT,
                                   SQLITE_UTF8);
    } else if (const auto* octets = std::get_if<Valeur::Octets>(&valeur.m_valeur)) {
        code = sqlite3_bind_blob64(requete, rang, octets->contenu.data(), octets->contenu.size(), SQLITE_TRANSIENT);
    } else if (const auto* entier = std::get_if<long long>(&valeur.m_valeur)) {
        code = sqlite3_bind_int64(requete, rang, *entier);
    } else if (const auto* reel = std::get_if<double>(&valeur.m_valeur)) {
        code = sqlite3_bind_double(requete, rang, *reel);
    } else {
        code = sqlite3_bind_null(requete, rang);
    }
    // What is not bound would be stored as Null.
    if (code != SQLITE_OK) interne::jetteSqlite(sqlite3_db_handle(requete), code, interne::Acces::Ecriture);
}

}  // namespace dao
