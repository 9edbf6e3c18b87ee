#include "Film.h"

#include "Hasard.h"
#include "Lexique.h"

#include <array>
#include <string_view>

namespace bench {

namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t kFormes = 48;
constexpr std::uint64_t kNombreComplements = std::size(kComplements) + std::size(kPrenoms);
constexpr std::uint64_t kTitres = std::size(kNoms) * kNombreComplements * kFormes;
// Beyond these, a title comes again as the next part of its film, and a name as the next generation's.
constexpr std::array kParties = {"", ", deuxième époque", ", troisième époque", ", quatrième époque"};
static_assert(kTitres * kParties.size() > kNombreMaxFilms);
constexpr std::uint64_t kNombreNoms = std::size(kDebutsDeNom) * std::size(kFinsDeNom);
constexpr std::uint64_t kPersonnes = kNombreNoms * std::size(kPrenoms);
constexpr std::array kGenerations = {"", " fils", " petit-fils", " III"};
static_assert(kPersonnes * kGenerations.size() > kNombreMaxFilms / 6);

template <std::size_t N>
std::string_view tire(Hasard& hasard, const Pese (&liste)[N]) {
    int reste = static_cast<int>(hasard.sous(100));
    for (const Pese& p : liste)
        if ((reste -= p.poids) < 0) return p.texte;
    return liste[0].texte;
}

bool elide(std::string_view mot) {
    for (std::string_view voyelle : {"A"sv, "E"sv, "H"sv, "I"sv, "O"sv, "U"sv, "Y"sv, "É"sv, "È"sv, "Î"sv, "Œ"sv})
        if (mot.starts_with(voyelle) && mot != "Héros") return true;
    return false;
}

std::string avecArticle(const Nom& nom, bool majuscule) {
    const std::string article = elide(nom.singulier) ? "l'" : nom.feminin ? "la " : "le ";
    std::string texte = article + std::string(nom.singulier);
    if (majuscule) texte[0] = 'L';
    return texte;
}

std::string complement(std::uint64_t rang) {
    if (rang < std::size(kComplements)) return std::string(kComplements[rang]);
    const std::string_view prenom = kPrenoms[rang - std::size(kComplements)];
    return (elide(prenom) ? "d'" : "de ") + std::string(prenom);
}

std::string avecNom(std::string_view avant, std::string_view nom) {
    return std::string(avant).append(nom);
}

// Nearly half of the forms begin with "L"; no two of them give the same text.
std::string debutDeTitre(const Nom& nom, std::uint64_t forme) {
    static constexpr std::array kEpithetes = {
        "invisible"sv, "ordinaire"sv, "tranquille"sv, "fidèle"sv,    "sauvage"sv,  "immobile"sv, "fragile"sv,
        "célèbre"sv,   "étrange"sv,   "magnifique"sv, "solitaire"sv, "rouge"sv,    "terrible"sv, "fantastique"sv,
        "éphémère"sv,  "triste"sv,    "jeune"sv,      "unique"sv,    "illustre"sv, "moderne"sv,  "infidèle"sv};
    static constexpr std::array kAvants = {"Sous "sv,  "Dans "sv,   "Après "sv,    "Vers "sv,
                                           "Avant "sv, "Contre "sv, "À travers "sv};
    static constexpr std::array kNombres = {"Les "sv,   "Deux "sv, "Trois "sv, "Sept "sv,    "12 "sv,
                                            "(500) "sv, "Mes "sv,  "Des "sv,   "Quelques "sv};
    if (forme < kEpithetes.size()) return avecNom(avecArticle(nom, true) + " ", kEpithetes[forme]);
    forme -= kEpithetes.size();
    if (forme < kAvants.size()) return avecNom(kAvants[forme], avecArticle(nom, false));
    forme -= kAvants.size();
    if (forme < kNombres.size()) return avecNom(kNombres[forme], nom.pluriel);
    forme -= kNombres.size();
    if (forme == 0) return avecArticle(nom, true);
    if (forme == 1) return avecNom("\"", nom.singulier) + '"';
    if (forme == 2) return std::string(nom.singulier);
    if (forme == 3) return avecNom(nom.feminin ? "Une " : "Un ", nom.singulier);
    return avecNom(kPrenoms[forme * 7 % std::size(kPrenoms)], " et ") + avecArticle(nom, false);
}

std::string titreOriginal(std::uint64_t numero) {
    // A prime that does not divide kTitres, so that each number has a title of its own.
    const std::uint64_t rang = numero * 1000003 % kTitres;
    const Nom& nom = kNoms[rang % std::size(kNoms)];
    const std::uint64_t forme = rang / (std::size(kNoms) * kNombreComplements);
    std::string titre = debutDeTitre(nom, forme);
    titre += ' ';
    titre += complement(rang / std::size(kNoms) % kNombreComplements);
    return titre += kParties[numero / kTitres];
}

std::string personne(std::uint64_t numero) {
    const std::uint64_t rang = numero * 7919 % kPersonnes;
    const std::uint64_t nom = rang / std::size(kPrenoms);
    return std::string(kPrenoms[rang % std::size(kPrenoms)]) + " " +
           std::string(kDebutsDeNom[nom % std::size(kDebutsDeNom)]) +
           std::string(kFinsDeNom[nom / std::size(kDebutsDeNom)]) + kGenerations[numero / kPersonnes];
}

// One film in six brings a new director, so those have one film each at first and the oldest ones the most.
std::string realisateur(std::uint64_t numero, Hasard& hasard) {
    return personne(numero % 6 == 0 ? numero / 6 : hasard.sous(numero / 6 + 1));
}

std::string deuxChiffres(std::uint64_t nombre) {
    return std::string(nombre < 10 ? "0" : "") + std::to_string(nombre);
}

std::string date(Hasard& hasard) {
    return deuxChiffres(1 + hasard.sous(28)) + "/" + deuxChiffres(1 + hasard.sous(12)) + "/" +
           std::to_string(2003 + hasard.sous(22));
}

std::string duree(Hasard& hasard) {
    const std::uint64_t minutes = 70 + hasard.sous(40) + hasard.sous(40);
    return std::to_string(minutes / 60) + "H" + deuxChiffres(minutes % 60);
}

std::string acteurs(Hasard& hasard) {
    std::string liste;
    for (std::uint64_t reste = 3 + hasard.sous(5); reste > 0; --reste) {
        if (!liste.empty()) liste += ';';
        liste += personne(hasard.sous(20000));
    }
    return liste;
}

std::string resume(Hasard& hasard) {
    const std::size_t voulu = 320 + hasard.sous(225);
    std::string texte;
    while (texte.size() < voulu) {
        std::string phrase(hasard.choix(kLiaisons));
        std::string sujet(hasard.choix(kSujets));
        if (!phrase.empty()) sujet[0] = static_cast<char>(sujet[0] + ('a' - 'A'));
        phrase += sujet;
        phrase += ' ';
        phrase += hasard.choix(kActions);
        phrase += ' ';
        phrase += hasard.choix(kObjets);
        phrase += hasard.choix(kSuites);
        phrase += '.';
        texte += texte.empty() ? phrase : " " + phrase;
    }
    return texte;
}

Possession possession(Hasard& hasard) {
    Possession p;
    p.support = tire(hasard, kSupports);
    p.rangement = (hasard.chance(70) ? "Étagère " : "Carton ") + std::to_string(1 + hasard.sous(40));
    if (hasard.chance(4)) p.pret = hasard.choix(kPrenoms);
    if (hasard.chance(2)) p.reserve = hasard.choix(kPrenoms);
    if (hasard.chance(5)) p.fichier1 = "Videos/film" + std::to_string(hasard.sous(100000)) + ".mkv";
    p.date = date(hasard);
    if (hasard.chance(10)) p.divers = "Version longue, coffret offert par " + std::string(hasard.choix(kPrenoms)) + ".";
    return p;
}

}  // namespace

Film film(std::uint64_t numero) {
    Hasard hasard(numero);
    Film f;
    f.realisateur = realisateur(numero, hasard);
    // A remake is by a new director: the pair stays distinct.
    f.titre = titreOriginal(numero % 240 == 120 ? numero / 2 : numero);
    const double age = static_cast<double>(hasard.sous(1000)) / 1000;
    f.annee = std::to_string(2025 - static_cast<int>(95 * age * age));
    f.origine = tire(hasard, kOrigines);
    f.genre = tire(hasard, kGenres);
    f.duree = duree(hasard);
    f.acteurs = acteurs(hasard);
    f.resume = resume(hasard);
    f.production = tire(hasard, kProductions);
    f.dateAjout = date(hasard);
    if (hasard.chance(55)) f.note = static_cast<int>(1 + hasard.sous(10));
    if (hasard.chance(70)) f.possession = possession(hasard);
    return f;
}

}  // namespace bench
