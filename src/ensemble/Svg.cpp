#include "ensemble/Statistiques.h"
#include "util/Texte.h"
#include "util/Unicode.h"

#include <algorithm>

namespace ensemble {

namespace {

constexpr int kMarge = 16, kTitre = 28, kLigne = 24, kBarre = 16, kLibelle = 190, kNombre = 110;
constexpr std::size_t kLettresDuLibelle = 28;

// What XML can hold of a text.
std::string echappe(std::string_view texte) {
    std::string resultat;
    for (std::size_t i = 0; i < texte.size();) {
        const util::PointDeCode lu = util::litPoint(texte, i);
        const bool interdit = lu.valeur < 0x20 || lu.valeur == 0xfffe || lu.valeur == 0xffff;
        if (lu.valeur == '&')
            resultat += "&amp;";
        else if (lu.valeur == '<')
            resultat += "&lt;";
        else if (lu.valeur == '>')
            resultat += "&gt;";
        else if (lu.valeur == '"')
            resultat += "&quot;";
        else if (interdit)
            resultat += lu.valeur == '\t' || lu.valeur == '\n' ? " " : "\uFFFD";
        else
            resultat.append(texte.substr(i, lu.taille));
        i += lu.taille;
    }
    return resultat;
}

std::string court(const std::string& libelle) {
    return util::longueur(libelle) <= kLettresDuLibelle ? libelle : util::coupe(libelle, kLettresDuLibelle - 1) + "…";
}

std::string nombre(int valeur) {
    return '"' + std::to_string(valeur) + '"';
}

struct Texte {
    int x, y;
    const std::string& contenu;
    const std::string& couleur;
    const char* attributs = "";
};

std::string element(const Texte& texte) {
    return "<text x=" + nombre(texte.x) + " y=" + nombre(texte.y) + " fill=\"" + echappe(texte.couleur) + '"' +
           texte.attributs + ">" + echappe(texte.contenu) + "</text>\n";
}

}  // namespace

std::string svg(const Diagramme& diagramme, int largeur, const Couleurs& couleurs) {
    const int lignes = static_cast<int>(diagramme.barres.size());
    const int hauteur = 2 * kMarge + kTitre + lignes * kLigne, debut = kMarge + kLibelle + 8;
    const int place = std::max(20, largeur - debut - kNombre - kMarge);
    long laPlusLongue = 1;
    for (const Barre& barre : diagramme.barres)
        laPlusLongue = std::max(laPlusLongue, barre.nombre());
    const std::string taille = " width=" + nombre(largeur) + " height=" + nombre(hauteur);
    std::string document =
        "<svg xmlns=\"http://www.w3.org/2000/svg\"" + taille + " viewBox=\"0 0 " + std::to_string(largeur) + " " +
        std::to_string(hauteur) + "\" font-family=\"sans-serif\" font-size=\"13\">\n<title>" +
        echappe(diagramme.titre) + "</title>\n<rect" + taille + " fill=\"" + echappe(couleurs.fond) + "\"/>\n" +
        element({kMarge, kMarge + 14, diagramme.titre, couleurs.texte, " font-size=\"16\" font-weight=\"bold\""});
    int haut = kMarge + kTitre;
    for (const Barre& barre : diagramme.barres) {
        const int longueur = static_cast<int>(std::max<long>(1, barre.nombre() * place / laPlusLongue));
        const std::string& couleur = barre.manquante ? couleurs.discret : couleurs.barre;
        document +=
            element({kMarge + kLibelle, haut + 13, court(barre.libelle), couleurs.texte, " text-anchor=\"end\""});
        document += "<rect x=" + nombre(debut) + " y=" + nombre(haut) + " width=" + nombre(longueur) +
                    " height=" + nombre(kBarre) + " rx=\"2\" fill=\"" + echappe(couleur) + "\"/>\n";
        document += element({debut + longueur + 6, haut + 13, texteDuNombre(diagramme, barre), couleurs.discret});
        haut += kLigne;
    }
    return document + "</svg>\n";
}

}  // namespace ensemble
