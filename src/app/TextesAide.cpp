#include "app/TextesAide.h"

#include "app/EtatFonctions.h"

namespace app {

namespace {

struct Aide {
    const char* titre;
    const char* description;
};

constexpr std::array<Aide, 10> kAides{{
    {" - Ajouter des titres depuis des fichiers .FILM : ",
     "Les fichiers seront copiés dans Ambrelis et vous pourrez les effacer ensuite.\n"
     "Indiquez le répertoire où se trouvent les fichiers .FILM et .JPG que le site de MovieCovers propose."},
    {" - Corriger la ponctuation : ",
     "Corrige les majuscules/minuscules des titres pour qu'ils soient de la forme : \"Le Grand Chemin\"."},
    {" - Ajouter des titres depuis Internet : ",
     "Ambrelis télécharge les informations d'un ou plusieurs films directement depuis le site de MovieCovers."},
    {" - Effacer les titres personnels : ",
     "Permet d'enlever toutes les informations personnelles sur les titres possédés."},
    {" - Compacter la base : ", "Minimise la taille de la base de données en effectuant un compactage de celle-ci."},
    {" - Images de la base : ", "Spécifie si les images sont stockées dans la base ou laissées comme fichier image."},
    {" - Logiciels externes : ",
     "Vous pouvez spécifier un logiciel particulier à lancer selon l'extension des fichiers."},
    {" - Rechercher : ", "Effectue une recherche dans toute la base selon les critères spécifiés."},
    {" - Créer un fichier texte : ",
     "Génère un fichier TXT (ou un fichier RTF) regroupant les informations sur tous les titres personnels."},
    {" - Multi-supressions :",
     "Vous permet de supprimer plusieurs films d'un seul coup.\n"
     "Activez la fonction, cochez les titres à supprimer et cliquez sur 'suppression'."},
}};

}  // namespace

void metTextesAide(EtatFonctions& etat) {
    for (std::size_t i = 0; i < kAides.size(); ++i) {
        etat.Label14[i].Caption = kAides[i].titre;
        etat.Label7[i].Caption = kAides[i].description;
    }
}

}  // namespace app
