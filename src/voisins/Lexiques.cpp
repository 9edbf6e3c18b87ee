#include "util/Texte.h"
#include "voisins/Valeurs.h"

#include <span>
#include <utility>

namespace voisins {

namespace {

using Mot = std::pair<std::string_view, std::string_view>;  // in lower-case English, in French

constexpr Mot kGenres[] = {{"adventure", "Aventure"},
                           {"animated", "Animation"},
                           {"anime", "Animation"},
                           {"biography", "Biographie"},
                           {"comedy", "Comédie"},
                           {"crime", "Policier"},
                           {"documentary", "Documentaire"},
                           {"drama", "Drame"},
                           {"family", "Famille"},
                           {"fantasy", "Fantastique"},
                           {"film noir", "Film noir"},
                           {"film-noir", "Film noir"},
                           {"history", "Historique"},
                           {"horror", "Horreur"},
                           {"martial arts", "Arts martiaux"},
                           {"music", "Musique"},
                           {"musical", "Comédie musicale"},
                           {"mystery", "Mystère"},
                           {"romance", "Romance"},
                           {"sci-fi", "Science-fiction"},
                           {"science fiction", "Science-fiction"},
                           {"short", "Court métrage"},
                           {"sport", "Sport"},
                           {"sports", "Sport"},
                           {"suspense/thriller", "Thriller"},
                           {"tv movie", "Téléfilm"},
                           {"war", "Guerre"}};

constexpr Mot kPays[] = {{"algeria", "Algérie"},
                         {"argentina", "Argentine"},
                         {"australia", "Australie"},
                         {"austria", "Autriche"},
                         {"belgium", "Belgique"},
                         {"brazil", "Brésil"},
                         {"china", "Chine"},
                         {"czechoslovakia", "Tchécoslovaquie"},
                         {"czech republic", "République tchèque"},
                         {"denmark", "Danemark"},
                         {"finland", "Finlande"},
                         {"germany", "Allemagne"},
                         {"greece", "Grèce"},
                         {"hong kong", "Hong Kong"},
                         {"hungary", "Hongrie"},
                         {"iceland", "Islande"},
                         {"india", "Inde"},
                         {"ireland", "Irlande"},
                         {"israel", "Israël"},
                         {"italy", "Italie"},
                         {"japan", "Japon"},
                         {"mexico", "Mexique"},
                         {"morocco", "Maroc"},
                         {"netherlands", "Pays-Bas"},
                         {"new zealand", "Nouvelle-Zélande"},
                         {"norway", "Norvège"},
                         {"poland", "Pologne"},
                         {"romania", "Roumanie"},
                         {"russia", "Russie"},
                         {"south africa", "Afrique du Sud"},
                         {"south korea", "Corée du Sud"},
                         {"soviet union", "URSS"},
                         {"spain", "Espagne"},
                         {"sweden", "Suède"},
                         {"switzerland", "Suisse"},
                         {"taiwan", "Taïwan"},
                         {"thailand", "Thaïlande"},
                         {"tunisia", "Tunisie"},
                         {"turkey", "Turquie"},
                         {"uk", "Royaume-Uni"},
                         {"united kingdom", "Royaume-Uni"},
                         {"united states", "États-Unis"},
                         {"united states of america", "États-Unis"},
                         {"us", "États-Unis"},
                         {"usa", "États-Unis"},
                         {"west germany", "Allemagne de l'Ouest"}};

constexpr Mot kLangues[] = {
    {"arabic", "arabe"},        {"chinese", "chinois"},   {"danish", "danois"},        {"dutch", "néerlandais"},
    {"english", "anglais"},     {"finnish", "finnois"},   {"french", "français"},      {"german", "allemand"},
    {"greek", "grec"},          {"hebrew", "hébreu"},     {"hindi", "hindi"},          {"hungarian", "hongrois"},
    {"italian", "italien"},     {"japanese", "japonais"}, {"korean", "coréen"},        {"mandarin", "mandarin"},
    {"norwegian", "norvégien"}, {"polish", "polonais"},   {"portuguese", "portugais"}, {"russian", "russe"},
    {"spanish", "espagnol"},    {"swedish", "suédois"}};

constexpr Mot kSupports[] = {{"bluray", "Blu-ray"},
                             {"blu ray", "Blu-ray"},
                             {"blu-ray disc", "Blu-ray"},
                             {"bd", "Blu-ray"},
                             {"dvds", "DVD"},
                             {"file", "Fichier"},
                             {"files", "Fichier"},
                             {"fichiers", "Fichier"},
                             {"hard disk", "Disque dur"},
                             {"hard drive", "Disque dur"},
                             {"hdd", "Disque dur"},
                             {"k7", "VHS"},
                             {"laserdisc", "LaserDisc"},
                             {"paper", "Papier"},
                             {"streaming", "En ligne"},
                             {"uhd blu-ray", "Blu-ray 4K"},
                             {"ultra hd blu-ray", "Blu-ray 4K"},
                             {"4k ultra hd", "Blu-ray 4K"},
                             {"vcr", "VHS"},
                             {"vhs tape", "VHS"}};

constexpr Mot kTermes[] = {{"anamorphic", "anamorphique"},
                           {"b&w", "en noir et blanc"},
                           {"black & white", "en noir et blanc"},
                           {"black and white", "en noir et blanc"},
                           {"color", "en couleurs"},
                           {"colour", "en couleurs"},
                           {"colorized", "colorisé"},
                           {"director's cut", "version du réalisateur"},
                           {"fullscreen", "plein écran"},
                           {"full screen", "plein écran"},
                           {"not rated", "non classé"},
                           {"other", "autre"},
                           {"region 0", "0"},
                           {"region 1", "1"},
                           {"region 2", "2"},
                           {"region 3", "3"},
                           {"region 4", "4"},
                           {"region 5", "5"},
                           {"region 6", "6"},
                           {"region 7", "7"},
                           {"region 8", "8"},
                           {"region a", "A"},
                           {"region b", "B"},
                           {"region c", "C"},
                           {"region free", "toutes"},
                           {"all regions", "toutes"},
                           {"silent", "muet"},
                           {"stereo", "stéréo"},
                           {"unrated", "non classé"},
                           {"widescreen", "écran large"}};

std::span<const Mot> mots(Lexique lexique) {
    switch (lexique) {
        case Lexique::Genre:
            return kGenres;
        case Lexique::Pays:
            return kPays;
        case Lexique::Langue:
            return kLangues;
        case Lexique::Terme:
            return kTermes;
        case Lexique::Support:
            break;
    }
    return kSupports;
}

}  // namespace

std::string enFrancais(Lexique lexique, std::string_view texte) {
    const std::string propre = sansBlancs(texte), cherche = util::minuscules(propre);
    for (const auto& [anglais, francais] : mots(lexique))
        if (anglais == cherche) return std::string(francais);
    return propre;
}

}  // namespace voisins
