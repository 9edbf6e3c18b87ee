#include "platform/dao/Analyse.h"

#include "platform/dao/AccesValeur.h"
#include "platform/dao/Erreurs.h"

#include <algorithm>
#include <array>

namespace dao::interne {

namespace {

bool estChiffre(char c) {
    return c >= '0' && c <= '9';
}
bool estLettre(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}
bool estBlanc(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Where the text that opens at `debut` ends, past its closing quote; its content goes to `contenu`.
std::size_t litTexte(std::string_view enonce, std::size_t debut, std::string& contenu) {
    const char guillemet = enonce[debut];
    for (std::size_t i = debut + 1; i < enonce.size(); ++i) {
        if (enonce[i] != guillemet) {
            contenu += enonce[i];
        } else if (i + 1 < enonce.size() && enonce[i + 1] == guillemet) {
            contenu += enonce[i++];
        } else {
            return i + 1;
        }
    }
    jette(kErreurSyntaxe, "Erreur de syntaxe : un texte n'est pas fermé dans la requête.");
}

std::size_t litCrochets(std::string_view enonce, std::size_t debut, std::string& contenu) {
    const auto fin = enonce.find(']', debut);
    if (fin == std::string_view::npos)
        jette(kErreurSyntaxe, "Erreur de syntaxe : un crochet n'est pas fermé dans la requête.");
    contenu = enonce.substr(debut + 1, fin - debut - 1);
    return fin + 1;
}

template <typename Predicat>
std::size_t finDeSuite(std::string_view enonce, std::size_t debut, Predicat appartient) {
    while (debut < enonce.size() && appartient(enonce[debut]))
        ++debut;
    return debut;
}

std::size_t tailleDuSigne(std::string_view reste) {
    static constexpr std::array<std::string_view, 3> kDoubles{"<>", "<=", ">="};
    if (std::find(kDoubles.begin(), kDoubles.end(), reste.substr(0, 2)) != kDoubles.end()) return 2;
    return std::string_view("=<>+-(),.;*").find(reste[0]) != std::string_view::npos ? 1 : 0;
}

std::size_t litMot(std::string_view enonce, std::size_t debut, Mot& mot) {
    const char premier = enonce[debut];
    if (premier == '"' || premier == '\'') {
        mot.genre = Mot::Genre::Texte;
        return litTexte(enonce, debut, mot.texte);
    }
    if (premier == '[') {
        mot.genre = Mot::Genre::NomEntreCrochets;
        return litCrochets(enonce, debut, mot.texte);
    }
    std::size_t fin = 0;
    if (estLettre(premier)) {
        mot.genre = Mot::Genre::Nom;
        fin = finDeSuite(enonce, debut, [](char c) { return estLettre(c) || estChiffre(c); });
    } else if (estChiffre(premier)) {
        mot.genre = Mot::Genre::Nombre;
        fin = finDeSuite(enonce, debut, [](char c) { return estChiffre(c) || c == '.'; });
        mot.nombre = nombreDeTexte(enonce.substr(debut, fin - debut));
    } else {
        mot.genre = Mot::Genre::Signe;
        fin = debut + tailleDuSigne(enonce.substr(debut));
        if (fin == debut)
            jette(kErreurSyntaxe,
                  std::string("Erreur de syntaxe : caractère inattendu dans la requête (") + premier + ").");
    }
    mot.texte = enonce.substr(debut, fin - debut);
    return fin;
}

char minuscule(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

}  // namespace

std::vector<Mot> coupeEnMots(std::string_view enonce) {
    std::vector<Mot> mots;
    for (std::size_t i = finDeSuite(enonce, 0, estBlanc); i < enonce.size(); i = finDeSuite(enonce, i, estBlanc)) {
        i = litMot(enonce, i, mots.emplace_back());
    }
    mots.emplace_back();
    return mots;
}

bool egalSansCasseAscii(std::string_view gauche, std::string_view droite) {
    return std::equal(gauche.begin(), gauche.end(), droite.begin(), droite.end(),
                      [](char g, char d) { return minuscule(g) == minuscule(d); });
}

}  // namespace dao::interne
