#include "util/Nombres.h"
#include "util/Texte.h"
#include "voisins/Lecteurs.h"
#include "voisins/Valeurs.h"

#include <algorithm>
#include <unordered_map>

namespace voisins {

namespace {

constexpr std::string_view kCollectionDeFilms = "3", kCollectionLibre = "1";

struct Champ {
    std::string titre, sorte;
    double maximum = 5;
};
using Champs = std::unordered_map<std::string, Champ>;

struct Nom {
    std::string_view champ;
    const char* ligne;
};
// The fields of films that have none here, as their lines are named; others bear the title that their collection gives.
constexpr Nom kLignes[] = {{"certification", "Classification"},
                           {"region", "Zone"},
                           {"format", "Format vidéo"},
                           {"producer", "Producteurs"},
                           {"writer", "Scénario"},
                           {"composer", "Musique"},
                           {"audio-track", "Pistes audio"},
                           {"aspect-ratio", "Format d'image"},
                           {"widescreen", "Écran large"},
                           {"color", "Couleur"},
                           {"directors-cut", "Version du réalisateur"},
                           {"gift", "Cadeau"},
                           {"pur_price", "Prix d'achat"},
                           {"keyword", "Mots-clés"},
                           {"alttitle", "Autre titre"},
                           {"imdb", "Lien"},
                           {"url", "Lien"},
                           {"seen", kVu},
                           {"language", "Langues"},
                           {"subtitle", "Sous-titres"}};

// Those whose values are chosen from a list of the program, in its words.
constexpr std::string_view kDeTermes[] = {"certification", "region",     "format", "audio-track",
                                          "aspect-ratio",  "widescreen", "color"};

std::string nomDeLaLigne(const std::string& champ, const Champs& champs) {
    const auto connu = std::ranges::find(kLignes, std::string_view(champ), &Nom::champ);
    if (connu != std::end(kLignes)) return connu->ligne;
    const auto propre = champs.find(champ);
    return propre == champs.end() || propre->second.titre.empty() ? champ : propre->second.titre;
}

// A field of several values stands in an element that bears its name with an "s".
std::vector<const xml::Element*> valeursDe(const xml::Element& element) {
    std::vector<const xml::Element*> valeurs;
    for (const xml::Element& enfant : element.enfants)
        if (element.nom == enfant.nom + "s") valeurs.push_back(&enfant);
    if (valeurs.empty()) valeurs.push_back(&element);
    return valeurs;
}

std::string dateDeLElement(const xml::Element& element) {
    const auto nombre = [&](const char* nom) { return util::valEntier(element.texteDe(nom)); };
    return dateDe(nombre("year"), nombre("month"), nombre("day"));
}

// A cell of a table, a day, a yes, or a text.
std::string texteDeLaValeur(const xml::Element& valeur) {
    if (valeur.enfant("year")) return dateDeLElement(valeur);
    std::vector<std::string> cellules;
    for (const xml::Element& colonne : valeur.enfants)
        if (colonne.nom == "column" && !sansBlancs(colonne.texte).empty())
            cellules.push_back(sansBlancs(colonne.texte));
    if (!cellules.empty()) return assemble(cellules, " – ");
    const std::string texte = sansBlancs(sansBalises(valeur.texte));
    return texte == "true" ? "oui" : texte;
}

std::vector<std::string> textesDe(const xml::Element& element) {
    std::vector<std::string> textes;
    for (const xml::Element* valeur : valeursDe(element))
        if (std::string texte = texteDeLaValeur(*valeur); !texte.empty()) textes.push_back(std::move(texte));
    return textes;
}

void ajouteActeurs(const xml::Element& element, FicheBrute& fiche) {
    for (const xml::Element* valeur : valeursDe(element)) {
        std::vector<std::string> colonnes;
        for (const xml::Element& colonne : valeur->enfants)
            if (colonne.nom == "column") colonnes.push_back(colonne.texte);
        if (colonnes.empty()) colonnes.push_back(valeur->texte);
        fiche.acteurs.push_back({colonnes[0], colonnes.size() > 1 ? colonnes[1] : ""});
    }
}

class Lecteur {
  public:
    Lecteur(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films)
        : m_document(document), m_affiches(affiches), m_suivi(suivi), m_films(films) {}

    void lis() {
        long images = 0;
        while (const xml::Element* element = m_document.suivant()) {
            if (element->nom == "collection")
                exigeDesFilms(*element);
            else if (element->nom == "field")
                ajouteChamp(m_document.prends());
            else if (element->nom == "entry")
                ajouteFiche(m_document.prends());
            else if (element->nom == "image")
                ajouteImage(std::string(element->attribut("id")), images++);
            else if (element->nom == "borrower")
                ajoutePrets(m_document.prends());
            else if (element->nom == "filters")
                m_document.saute();
        }
        for (auto& [affiche, fiche] : m_fiches) {
            if (!affiche.empty()) fiche.affiche = m_affiches.trouve(affiche);
            m_films.ajoute(std::move(fiche), true);
        }
    }

  private:
    static void exigeDesFilms(const xml::Element& collection) {
        const std::string_view sorte = collection.attribut("type");
        if (sorte != kCollectionDeFilms && sorte != kCollectionLibre)
            throw Refus{"Cette collection de Tellico n'est pas une collection de films."};
    }

    void ajouteChamp(const xml::Element& element) {
        Champ champ{std::string(element.attribut("title")), std::string(element.attribut("type"))};
        for (const xml::Element& propriete : element.enfants)
            if (propriete.attribut("name") == "maximum") champ.maximum = util::Val(propriete.texte);
        m_champs[std::string(element.attribut("name"))] = std::move(champ);
    }

    void ajouteFiche(const xml::Element& entree) {
        if (m_fiches.size() >= kFilmsAuPlus) throw Refus{"Cette collection est trop grande."};
        auto& [affiche, fiche] = m_fiches.emplace_back();
        m_rangs[std::string(entree.attribut("id"))] = m_fiches.size() - 1;
        for (const xml::Element& element : entree.enfants)
            ajouteValeur(element, valeursDe(element).front()->nom, fiche, affiche);
        if (m_suivi && !m_suivi(static_cast<long>(m_fiches.size()))) throw LectureArretee{};
    }

    void ajouteValeur(const xml::Element& element, const std::string& champ, FicheBrute& fiche, std::string& affiche) {
        const std::vector<std::string> textes = textesDe(element);
        const std::string texte = assemble(textes, ", ");
        if (champ == "title")
            fiche.titre = texte;
        else if (champ == "origtitle")
            fiche.titreOriginal = texte;
        else if (champ == "year")
            fiche.annee = texte;
        else if (champ == "running-time")
            fiche.duree = texte;
        else if (champ == "director")
            fiche.realisateurs = textes;
        else if (champ == "genre")
            fiche.genres = textes;
        else if (champ == "nationality")
            fiche.pays = textes;
        else if (champ == "studio")
            fiche.productions = textes;
        else if (champ == "cast")
            ajouteActeurs(element, fiche);
        else if (champ == "plot")
            fiche.resume = sansBalises(element.texte);
        else if (champ == "comments")
            fiche.commentaires.push_back(sansBalises(element.texte));
        else if (champ == "medium")
            fiche.possession.support = texte;
        else if (champ == "location")
            fiche.possession.rangement = texte;
        else if (champ == "rating")
            fiche.note = noteDe(texte, m_champs.contains(champ) ? m_champs[champ].maximum : 5);
        else if (champ == "cover")
            affiche = texte;
        else if (champ == "pur_date")
            fiche.ligne("Acheté le", dateDe(texte).empty() ? texte : dateDe(texte));
        else if (champ == "cdate")
            fiche.dateAjout = dateDeLElement(element);
        else if (champ != "mdate" && champ != "loaned" && champ != "id" && champ != "track")
            ajouteLigne(champ, textes, fiche);
    }

    void ajouteLigne(const std::string& champ, const std::vector<std::string>& textes, FicheBrute& fiche) const {
        const auto connu = m_champs.find(champ);
        if (connu != m_champs.end() && connu->second.sorte == "10") return;  // another picture
        std::vector<std::string> dits = textes;
        const bool langues = champ == "language" || champ == "subtitle";
        const bool termes = std::ranges::find(kDeTermes, champ) != std::end(kDeTermes);
        if (langues || termes)
            for (std::string& dit : dits)
                dit = enFrancais(langues ? Lexique::Langue : Lexique::Terme, dit);
        fiche.ligne(nomDeLaLigne(champ, m_champs), assemble(dits, ", "));
    }

    // The picture itself may stand elsewhere: in the archive, beside the document, or where a link leads.
    void ajouteImage(const std::string& nom, long rang) {
        if (!sansBlancs(m_document.prends().texte).empty()) m_affiches.connaisImage(nom, rang);
    }

    void ajoutePrets(const xml::Element& emprunteur) {
        for (const xml::Element& pret : emprunteur.enfants) {
            const auto rang = m_rangs.find(std::string(pret.attribut("entryRef")));
            if (pret.nom != "loan" || rang == m_rangs.end()) continue;
            FicheBrute& fiche = m_fiches[rang->second].second;
            fiche.possession.pret = emprunteur.attribut("name");
            fiche.possession.date = dateDe(pret.attribut("loanDate"));
            fiche.ligne("Retour prévu le", dateDe(pret.attribut("dueDate")));
            fiche.ligne("Note du prêt", pret.texte);
        }
    }

    xml::Lecture& m_document;
    Affiches& m_affiches;
    const Suivi& m_suivi;
    Films& m_films;
    Champs m_champs;
    std::vector<std::pair<std::string, FicheBrute>> m_fiches;  // with the names of their posters
    std::unordered_map<std::string, std::size_t> m_rangs;      // of the entries, by id
};

}  // namespace

void litTellico(xml::Lecture& document, Affiches& affiches, const Suivi& suivi, Films& films) {
    Lecteur(document, affiches, suivi, films).lis();
}

}  // namespace voisins
