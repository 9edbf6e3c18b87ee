#include "app/APropos.h"

namespace app {

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

}  // namespace app
