#pragma once

#include <string_view>

// clang-format off

// The words that titles, names and summaries are made of.
namespace bench {

struct Nom {
    std::string_view singulier, pluriel;
    bool feminin;
};
inline constexpr Nom kNoms[] = {
    {"Voyage", "Voyages", false}, {"Nuit", "Nuits", true}, {"Été", "Étés", false}, {"Île", "Îles", true},
    {"Cœur", "Cœurs", false}, {"Sœur", "Sœurs", true}, {"Œuvre", "Œuvres", true}, {"Armée", "Armées", true},
    {"Ombre", "Ombres", true}, {"Maison", "Maisons", true}, {"Jardin", "Jardins", false}, {"Gare", "Gares", true},
    {"Horloger", "Horlogers", false}, {"Rivière", "Rivières", true}, {"Château", "Châteaux", false},
    {"Métro", "Métros", false}, {"Fenêtre", "Fenêtres", true}, {"Enfant", "Enfants", false},
    {"Secret", "Secrets", false}, {"Promesse", "Promesses", true}, {"Tempête", "Tempêtes", true},
    {"Boulanger", "Boulangers", false}, {"Cérémonie", "Cérémonies", true}, {"Cercle", "Cercles", false},
    {"Chambre", "Chambres", true}, {"Chasse", "Chasses", true}, {"Chemin", "Chemins", false},
    {"Colline", "Collines", true}, {"Dîner", "Dîners", false}, {"Disparition", "Disparitions", true},
    {"Écluse", "Écluses", true}, {"Élève", "Élèves", false}, {"Équipage", "Équipages", false},
    {"Étranger", "Étrangers", false}, {"Évasion", "Évasions", true}, {"Famille", "Familles", true},
    {"Fantôme", "Fantômes", false}, {"Femme", "Femmes", true}, {"Fête", "Fêtes", true}, {"Fille", "Filles", true},
    {"Forêt", "Forêts", true}, {"Frère", "Frères", false}, {"Frontière", "Frontières", true},
    {"Garçon", "Garçons", false}, {"Gloire", "Gloires", true}, {"Guerre", "Guerres", true},
    {"Héritage", "Héritages", false}, {"Héros", "Héros", false}, {"Histoire", "Histoires", true},
    {"Homme", "Hommes", false}, {"Honneur", "Honneurs", false}, {"Hôtel", "Hôtels", false},
    {"Inconnue", "Inconnues", true}, {"Innocent", "Innocents", false}, {"Jour", "Jours", false},
    {"Jeu", "Jeux", false}, {"Jugement", "Jugements", false}, {"Lettre", "Lettres", true}, {"Loi", "Lois", true},
    {"Lune", "Lunes", true}, {"Maître", "Maîtres", false}, {"Mariage", "Mariages", false}, {"Marin", "Marins", false},
    {"Médecin", "Médecins", false}, {"Mémoire", "Mémoires", true}, {"Mensonge", "Mensonges", false},
    {"Mer", "Mers", true}, {"Miroir", "Miroirs", false}, {"Monde", "Mondes", false}, {"Montagne", "Montagnes", true},
    {"Mort", "Morts", true}, {"Musicien", "Musiciens", false}, {"Neige", "Neiges", true},
    {"Oiseau", "Oiseaux", false}, {"Orage", "Orages", false}, {"Oubli", "Oublis", false},
    {"Parfum", "Parfums", false}, {"Passager", "Passagers", false}, {"Père", "Pères", false},
    {"Piège", "Pièges", false}, {"Pluie", "Pluies", true}, {"Pont", "Ponts", false}, {"Port", "Ports", false},
    {"Procès", "Procès", false}, {"Quai", "Quais", false}, {"Reine", "Reines", true}, {"Rêve", "Rêves", false},
    {"Roi", "Rois", false}, {"Rue", "Rues", true}, {"Saison", "Saisons", true}, {"Silence", "Silences", false},
    {"Soleil", "Soleils", false}, {"Théâtre", "Théâtres", false}, {"Train", "Trains", false},
    {"Vengeance", "Vengeances", true}, {"Voleur", "Voleurs", false},
};

inline constexpr std::string_view kComplements[] = {
    "de minuit", "d'hiver", "à Paris", "du bout du monde", "sans retour", "de la dernière chance", "en sursis",
    "d'août", "du dimanche", "sous la neige", "à l'italienne", "de l'après-midi", "entre deux eaux", "de verre",
    "de papier", "en noir et blanc", "d'à côté", "de trop", "d'outre-mer", "au clair de lune", "à contre-jour",
    "de mon père", "en fuite", "de l'aube", "des Carpates", "d'Orient", "de Marseille", "à la mer", "en Provence",
    "d'un autre temps", "pour mémoire", "qui n'existait pas", "qui venait du froid", "qu'on oublie", "sans visage",
    "aux yeux clairs", "au long cours", "à l'envers", "de la rue Lepic", "du fleuve", "et le Chien",
    "contre la montre", "de septembre", "aux mille fleurs", "à tout prix", "de sang-froid", "hors la loi",
    "en héritage",
};

inline constexpr std::string_view kPrenoms[] = {
    "Adèle", "Agnès", "Alain", "Amélie", "André", "Antoine", "Bertrand", "Camille", "Cécile", "Céline", "Charles",
    "Chloé", "Claire", "Claude", "Denis", "Édouard", "Éléonore", "Élise", "Émile", "Étienne", "Ève", "Fabien",
    "Félix", "Franck", "François", "Geneviève", "Gérard", "Hélène", "Henri", "Inès", "Jacques", "Jean", "Jérôme",
    "Joëlle", "Julien", "Laure", "Léa", "Louis", "Lucie", "Marc", "Marion", "Michel", "Noël", "Odile", "Pascal",
    "Patrice", "Paul", "Pierre", "Raphaël", "Rémi", "Sébastien", "Simone", "Sophie", "Thérèse", "Thomas", "Valérie",
    "Victor", "Xavier", "Yves", "Zoé",
};
inline constexpr std::string_view kDebutsDeNom[] = {
    "Beau", "Bel", "Ber", "Bou", "Bro", "Car", "Cha", "Cor", "Cou", "Dar", "Del", "Des", "Du", "Fa", "Fer", "Fon",
    "Gau", "Gi", "Gran", "Hau", "Jou", "La", "Le", "Lam", "Lan", "Mar", "Mau", "Mon", "Nor", "Pel", "Ré", "Rou",
    "Sau", "Té", "Val", "Ver",
};
inline constexpr std::string_view kFinsDeNom[] = {
    "champ", "tier", "mont", "let", "rand", "ville", "reau", "nard", "sier", "gnac", "lain", "bert", "don", "rieux",
    "quet", "ton", "vin", "nier", "court", "tré", "chère", "blanc", "doux", "guy", "lier", "noît", "pin", "roux",
    "sac", "veau",
};

inline constexpr std::string_view kSujets[] = {
    "Un instituteur à la retraite", "Une jeune avocate", "Le fils d'un pêcheur breton",
    "Une sœur que tout oppose à son aînée", "Un commissaire désabusé", "Une famille sans histoire",
    "Un pianiste de bar", "La patronne du café de la gare", "Un couple d'ouvriers", "Une comédienne oubliée",
    "Un médecin de campagne", "Un ami d'enfance", "Le gardien de nuit d'un musée", "Une étudiante étrangère",
    "Un ancien boxeur", "La veuve d'un colonel",
};
inline constexpr std::string_view kActions[] = {
    "découvre", "retrouve", "tente de sauver", "refuse d'abandonner", "rêve de quitter", "croit reconnaître",
    "doit protéger", "cherche à oublier", "abandonne, contre toute attente,", "se met à soupçonner",
    "aime sans le dire", "poursuit jusqu'à l'épuisement",
};
inline constexpr std::string_view kObjets[] = {
    "la maison de son enfance", "un étrange manuscrit", "l'homme qui l'a trahi",
    "une lettre restée fermée pendant vingt ans", "le seul témoin du drame", "une œuvre que l'on disait perdue",
    "le village où personne ne l'attend plus", "un trésor dont \"personne\" ne veut parler",
    "l'enfant qu'on lui a confié", "la femme du train de nuit", "le secret de l'île", "une fortune mal acquise",
};
inline constexpr std::string_view kSuites[] = {
    ", au risque de tout perdre", " pendant l'été le plus chaud du siècle", ", tandis que la guerre approche",
    " sans se douter que d'autres l'ont précédé", ", et rien ne sera plus jamais comme avant",
    " à quelques jours de Noël", ", là-bas, de l'autre côté de la frontière", " avec l'aide d'un complice inattendu",
    "",
};
inline constexpr std::string_view kLiaisons[] = {
    "", "Bientôt, ", "Le lendemain, ", "Malgré les mises en garde, ", "Dix ans après, ", "Peu à peu, ",
};

struct Pese {
    std::string_view texte;
    int poids;  // the weights of a list add up to 100
};
inline constexpr Pese kGenres[] = {
    {"Drame", 26}, {"Comédie", 22}, {"Comédie dramatique", 9}, {"Policier", 8}, {"Thriller", 7}, {"Action", 6},
    {"Science-fiction", 5}, {"Aventure", 4}, {"Animation", 4}, {"Fantastique", 3}, {"Documentaire", 2},
    {"Western", 1}, {"Guerre", 1}, {"Film noir", 1}, {"", 1},
};
inline constexpr Pese kOrigines[] = {
    {"France", 38}, {"États-Unis", 35}, {"Royaume-Uni", 6}, {"Italie", 5}, {"Japon", 4}, {"Allemagne", 3},
    {"Espagne", 2}, {"France/Italie", 2}, {"Belgique", 1}, {"Suède", 1}, {"Corée du Sud", 1}, {"Québec", 1}, {"", 1},
};
inline constexpr Pese kProductions[] = {
    {"Les Films du Quai", 25}, {"Studio Bellevue", 22}, {"Étoile Productions", 18}, {"L'Atelier d'images", 15},
    {"Cinéma du Port", 10}, {"", 10},
};
inline constexpr Pese kSupports[] = {
    {"DVD", 58}, {"Blu-ray", 27}, {"K7", 9}, {"Fichier", 6},
};

}  // namespace bench
