#include "app/Aide.h"

#include "acquire/AdresseRecherche.h"
#include "app/RaccourcisClavier.h"
#include "browse/ListeVide.h"
#include "platform/fichiers/Fichiers.h"

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

void ouvre(const Contexte& c, const std::string& adresse) {
    if (!c.documents.ouvre(adresse))
        c.dialogues.MsgBox("Le navigateur n'a pas pu être ouvert (" + adresse + ").", dialogues::kExclamation);
}

const char* pageDeLaCollection(PageDeCollection page) {
    switch (page) {
        case PageDeCollection::Prets:
            return "prets.html";
        case PageDeCollection::Statistiques:
            return "statistiques.html";
        case PageDeCollection::Sante:
            return "ordre.html#sante";
        case PageDeCollection::Doublons:
            return "ordre.html#doublons";
        case PageDeCollection::CeSoir:
            return "collection.html#cesoir";
        case PageDeCollection::Affiches:
            break;
    }
    return "collection.html";
}

const char* pageDeLaFonction(const Etats& etats) {
    if (etats.fonctions.frameConfig.Visible) return "outils.html#configuration";
    if (etats.fonctions.frameOutils.Visible) return "outils.html";
    if (etats.ajout.Frame13.Visible) return "saisir.html";
    return etats.ajout.frameImportBase.Visible ? "venir.html#installation" : "importer.html";
}

}  // namespace

void cmdAide_Click(const Contexte& c) {
    c.dialogues.MsgBox(texteAPropos(), dialogues::kInformation);
}

void Image3_Click(const Contexte& c) {
    ouvre(c, acquire::kSiteMovieCovers);
}

void Label4_Click(const Contexte& c) {
    montreLeGuide(c, kSommaireDuGuide);
}

void AideDuPanneau(const Contexte& c) {
    montreLeGuide(c, pageDuPanneau(c.etats));
}

void montreLeGuide(const Contexte& c, std::string page) {
    if (!fichiers::existe(c.chemins.dansDossier(kDossierDuGuide) + kSommaireDuGuide)) return MontreTouches(c);
    c.etats.guide.page = std::move(page);
    ++c.etats.guide.presentations;
}

std::string pageDuPanneau(const Etats& etats) {
    const browse::EtatPanneaux& panneaux = etats.panneaux;
    if (panneaux.frameMultiSuppression.Visible) return "supprimer.html#plusieurs";
    if (panneaux.frameCollection.Visible) return pageDeLaCollection(etats.collection.page);
    if (panneaux.frameRecherche.Visible) return "chercher.html";
    if (panneaux.frameListeFonctions.Visible) return pageDeLaFonction(etats);
    if (panneaux.frameFiche.Visible) return etats.fiche.frameGeneralites[0].Visible ? "fiche.html" : "exemplaire.html";
    return browse::catalogueVide(etats.liste) ? "premier.html" : "parcourir.html";
}

void cmdPageAuNavigateur_Click(const Contexte& c, std::string page) {
    ouvre(c, c.chemins.dansDossier(kDossierDuGuide) + page);
}

void LienDuGuide_Click(const Contexte& c, std::string adresse) {
    ouvre(c, adresse);
}

std::string texteAPropos() {
    return "Ambrelis\n"
           "\n"
           "Freeware permettant de gérer sa vidéothèque personnelle.  L'ajout des titres peut être automatisé\n"
           "car ils se téléchargent depuis le site de MovieCovers (un clic sur le logo ouvre le site).\n"
           "\n"
           "Notes : pour agrandir la fenêtre du logiciel, cliquez sur les bords : \n"
           "Ambrelis s'adaptera à la taille que vous lui donnez ! ";
}

std::string texteVersion() {
    return "v. " AMBRELIS_VERSION;
}

void metTextesAide(EtatFonctions& etat) {
    for (std::size_t i = 0; i < kAides.size(); ++i) {
        etat.Label14[i].Caption = kAides[i].titre;
        etat.Label7[i].Caption = kAides[i].description;
    }
}

}  // namespace app
