#include "voisins/Tableau.h"

#include "acquire/FicheFilm.h"
#include "export/TableauCsv.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Csv.h"
#include "util/Nombres.h"
#include "util/Tables.h"
#include "util/Texte.h"
#include "voisins/Lecteurs.h"
#include "voisins/Valeurs.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace voisins {

namespace {

constexpr std::int64_t kFichierAuPlus = 256 << 20;  // bytes
constexpr std::size_t kColonnesAuPlus = 200;
constexpr std::size_t kLignesJugees = 50;  // by which the separator is told
constexpr std::array kSeparateurs = {';', ',', '\t', '|'};

struct Nom {
    Colonne colonne;
    const char* nom;        // for the user
    const char* synonymes;  // as `forme` leaves them, between blanks
};
constexpr std::array<Nom, kColonnes> kNoms = {{
    {Colonne::Ignoree, "(ne pas importer)", ""},
    {Colonne::Ligne, "Ligne du résumé", ""},
    {Colonne::Titre, "Titre",
     " titre title film movie nom name titrefrancais titrefilm titredufilm translatedtitle movietitle "},
    {Colonne::TitreOriginal, "Titre original", " titreoriginal originaltitle original titrevo origtitle "},
    {Colonne::Realisateur, "Réalisateur",
     " realisateur realisateurs realisatrice realisation director directors directedby metteurenscene "},
    {Colonne::Annee, "Année", " annee an year date datedesortie sortie release releasedate releaseyear anneedesortie "},
    {Colonne::Pays, "Pays", " pays origine nationalite country countries nationality origin "},
    {Colonne::Genre, "Genre", " genre genres categorie categories category "},
    {Colonne::Duree, "Durée", " duree dureemin dureemn length runtime runningtime duration time runtimemins minutes "},
    {Colonne::Acteurs, "Acteurs",
     " acteurs acteur actrices distribution casting actors actor cast stars avec interpretes "},
    {Colonne::Resume, "Résumé", " resume synopsis histoire description plot summary overview "},
    {Colonne::Production, "Production", " production studio studios producteur producer editeur publisher "},
    {Colonne::Note, "Note", " note notation etoiles manote rating myrating yourrating userrating score stars5 "},
    {Colonne::DateAjout, "Ajouté le", " ajoutele dateajout datedajout ajout added dateadded created datecreated "},
    {Colonne::Affiche, "Affiche", " affiche image jaquette poster cover picture pochette couverture "},
    {Colonne::Possede, "Possédé", " possede owned possession own jelai "},
    {Colonne::Support, "Support", " support supports media mediatype medium format typedesupport "},
    {Colonne::Rangement, "Rangement", " rangement place emplacement location lieu etagere shelf "},
    {Colonne::Fichier, "Fichier",
     " fichier fichiers file files chemin path filepath filename fichier1 fichier2 fichier3 "},
    {Colonne::Pret, "Prêté à", " pretea pret emprunteur prete borrower loanedto lentto borrowedby loan "},
    {Colonne::DatePret, "Prêté le",
     " pretele datepret datedepret datedupret preteedepuis pretedepuis depuis loandate lenddate loaneddate "
     "datedepossession "},
    {Colonne::Reserve, "Réservé à", " reservea reserve reservepour reserved reservedfor "},
    {Colonne::Divers, "Divers", " divers remarque numero number misc "},
}};
static_assert(util::dansLOrdre(kNoms, &Nom::colonne, Colonne::Divers));

// Letters and figures alone, without accents and without what the values are counted in.
std::string forme(std::string_view entete) {
    std::string lettres;
    std::string_view nu = entete.substr(0, entete.find_first_of("(/"));
    nu = nu.substr(0, nu.find(" sur "));
    for (const char c : util::sansAccents(util::minuscules(nu)))
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) lettres += c;
    return lettres;
}

// Lines of nothing are none; false where a quote was never closed.
bool decoupe(std::string_view texte, char separateur, bool guillemets, std::vector<std::vector<std::string>>& lignes) {
    std::vector<std::string> ligne(1);
    bool dedans = false;
    const auto termine = [&] {
        if (ligne.size() > 1 || !sansBlancs(ligne[0]).empty()) lignes.push_back(std::move(ligne));
        ligne.assign(1, "");
    };
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const char c = texte[i];
        if (dedans && c == '"' && texte.substr(i + 1, 1) == "\"") {
            ligne.back() += c;
            ++i;
        } else if (dedans) {
            if (c == '"')
                dedans = false;
            else
                ligne.back() += c;
        } else if (guillemets && c == '"' && sansBlancs(ligne.back()).empty()) {
            ligne.back().clear();
            dedans = true;
        } else if (c == separateur) {
            if (ligne.size() < kColonnesAuPlus) ligne.emplace_back();
        } else if (c == '\n' || c == '\r') {
            termine();
        } else {
            ligne.back() += c;
        }
    }
    if (dedans) return false;
    termine();
    return true;
}

// The one by which most of the first lines have as many cells as the first of them.
char separateurDe(std::string_view texte) {
    std::string_view debut = texte;
    std::size_t place = 0;
    for (std::size_t i = 0; i < kLignesJugees && place < texte.size(); ++i)
        static_cast<void>(util::ligneSuivante(texte, place));
    debut = texte.substr(0, place);
    char meilleur = ';';
    std::size_t mieux = 0;
    for (const char separateur : kSeparateurs) {
        const auto lignes = cellules(debut, separateur);
        if (lignes.empty() || lignes[0].size() < 2) continue;
        const auto egales = static_cast<std::size_t>(
            std::ranges::count(lignes, lignes[0].size(), [](const auto& ligne) { return ligne.size(); }));
        if (const std::size_t valeur = egales * 1000 + lignes[0].size(); valeur > mieux) {
            mieux = valeur;
            meilleur = separateur;
        }
    }
    return meilleur;
}

std::string texteDe(std::string_view octets, std::string& codage) {
    if (auto large = util::decodeTexteLarge(octets)) {
        codage = "Unicode";
        return *large;
    }
    std::string texte = util::decodeTexteExterne(octets);
    codage = util::estUtf8(octets) ? "UTF-8" : "Windows-1252";
    std::erase(texte, '\0');
    return texte;
}

// Of what a heading says ("Note /20"), else of the largest note.
double surCombien(const Tableau& tableau, std::size_t colonne) {
    const std::string& entete = tableau.entetes[colonne];
    const std::size_t barre = std::min(entete.find('/'), entete.find("sur "));
    if (barre != std::string::npos)
        if (const double sur = util::Val(std::string_view(entete).substr(barre + (entete[barre] == '/' ? 1 : 4)));
            sur > 0)
            return sur;
    double maximum = 0;
    for (const auto& ligne : tableau.lignes)
        if (colonne < ligne.size()) maximum = std::max(maximum, util::Val(util::remplace(ligne[colonne], ",", ".")));
    for (const double sur : {5.0, 10.0, 20.0})
        if (maximum <= sur) return sur;
    return 100;
}

void met(Colonne colonne, const std::string& texte, double sur, const std::string& entete, FicheBrute& fiche,
         std::optional<bool>& possede) {
    switch (colonne) {
        case Colonne::Ignoree:
            return;
        case Colonne::Ligne:
            return fiche.ligne(entete, texte);
        case Colonne::Titre:
            fiche.titre = texte;
            return;
        case Colonne::TitreOriginal:
            fiche.titreOriginal = texte;
            return;
        case Colonne::Realisateur:
            fiche.realisateurs = {texte};
            return;
        case Colonne::Annee:
            fiche.annee = texte;
            return;
        case Colonne::Pays:
            fiche.pays = listeDe(texte);
            return;
        case Colonne::Genre:
            fiche.genres = listeDe(texte);
            return;
        case Colonne::Duree:
            fiche.duree = texte;
            return;
        case Colonne::Acteurs:
            fiche.acteurs = acteursDuTexte(texte);
            return;
        case Colonne::Resume:
            fiche.resume += (fiche.resume.empty() ? "" : "\n") + texte;
            return;
        case Colonne::Production:
            fiche.productions = listeDe(texte);
            return;
        case Colonne::Note:
            fiche.note = noteDe(texte, sur);
            return;
        case Colonne::DateAjout:
            fiche.dateAjout = dateDe(texte);
            return;
        case Colonne::Affiche:
            fiche.affiche.nom = texte;
            return;
        case Colonne::Possede:
            possede = ouiOuNon(texte);
            return;
        case Colonne::Support:
            fiche.possession.support = texte;
            return;
        case Colonne::Rangement:
            fiche.possession.rangement = texte;
            return;
        case Colonne::Fichier:
            fiche.fichiers.push_back(texte);
            return;
        case Colonne::Pret:
            fiche.possession.pret = texte;
            return;
        case Colonne::DatePret:
            fiche.possession.date = dateDe(texte).empty() ? texte : dateDe(texte);
            return;
        case Colonne::Reserve:
            fiche.possession.reserve = texte;
            return;
        case Colonne::Divers:
            fiche.possession.divers = texte;
            return;
    }
}

const exportation::Champ* champIntitule(const std::string& entete) {
    static constexpr auto kTous = [] {
        std::array<exportation::Champ, exportation::kNombreDeChamps> tous{};
        for (std::size_t i = 0; i < tous.size(); ++i)
            tous[i] = static_cast<exportation::Champ>(i);
        return tous;
    }();
    const auto trouve = std::ranges::find(kTous, entete, exportation::intitule);
    return trouve == kTous.end() ? nullptr : &*trouve;
}

// Whoever else writes tables writes their headings otherwise.
bool estDuProgramme(std::string_view octets, const Tableau& tableau) {
    exportation::Champs champs;
    for (const std::string& entete : tableau.entetes)
        if (const exportation::Champ* champ = champIntitule(entete)) champs.met(*champ);
    return octets.starts_with(exportation::enteteDuTableau(champs));
}

bool estLuALaLettre(const Tableau& tableau) {
    if (!tableau.duProgramme) return false;
    for (std::size_t i = 0; i < tableau.colonnes.size(); ++i)
        if (tableau.colonnes[i] != Colonne::Ignoree && tableau.colonnes[i] != colonneNommee(tableau.entetes[i]))
            return false;
    return true;
}

void metALaLettre(exportation::Champ champ, const std::string& valeur, FilmVoisin& film, PossessionVoisine& possession,
                  bool& possede) {
    using exportation::Champ;
    static constexpr std::pair<Champ, std::string FilmVoisin::*> kDuFilm[] = {
        {Champ::Titre, &FilmVoisin::titre},           {Champ::Realisateur, &FilmVoisin::realisateur},
        {Champ::Annee, &FilmVoisin::annee},           {Champ::Origine, &FilmVoisin::origine},
        {Champ::Genre, &FilmVoisin::genre},           {Champ::Duree, &FilmVoisin::duree},
        {Champ::Acteurs, &FilmVoisin::acteurs},       {Champ::Resume, &FilmVoisin::resume},
        {Champ::Production, &FilmVoisin::production}, {Champ::DateAjout, &FilmVoisin::dateAjout}};
    static constexpr std::pair<Champ, std::string PossessionVoisine::*> kDeLaPossession[] = {
        {Champ::Support, &PossessionVoisine::support}, {Champ::Rangement, &PossessionVoisine::rangement},
        {Champ::Pret, &PossessionVoisine::pret},       {Champ::Reserve, &PossessionVoisine::reserve},
        {Champ::Date, &PossessionVoisine::date},       {Champ::Divers, &PossessionVoisine::divers}};
    static constexpr std::size_t kAutrement = 6;  // the poster, the rating, whether there is a holding, its files
    static_assert(std::size(kDuFilm) + std::size(kDeLaPossession) + kAutrement == exportation::kNombreDeChamps);
    for (const auto& [celui, place] : kDuFilm)
        if (celui == champ) film.*place = valeur;
    for (const auto& [celui, place] : kDeLaPossession)
        if (celui == champ) possession.*place = valeur;
    if (champ >= Champ::Fichier1)
        possession.fichiers[static_cast<std::size_t>(champ) - static_cast<std::size_t>(Champ::Fichier1)] = valeur;
    if (champ == Champ::Possede) possede = !valeur.empty();
    if (champ == Champ::DateAjout) film.sansAjout = valeur.empty();
    if (const long note = champ == Champ::Note ? util::valEntier(valeur) : 0; note >= 1 && note <= 10)
        film.note = static_cast<int>(note);
}

FilmVoisin filmALaLettre(const Tableau& tableau, const std::vector<std::string>& ligne, const Affiches& affiches) {
    FilmVoisin film;
    PossessionVoisine possession;
    bool possede = true;
    for (std::size_t i = 0; i < std::min(ligne.size(), tableau.colonnes.size()); ++i) {
        const exportation::Champ* champ = champIntitule(tableau.entetes[i]);
        if (!champ || tableau.colonnes[i] == Colonne::Ignoree) continue;
        if (*champ == exportation::Champ::Affiche && !ligne[i].empty()) film.affiche = affiches.trouve(ligne[i]);
        metALaLettre(*champ, ligne[i], film, possession, possede);
    }
    if (film.realisateur.empty()) film.realisateur = acquire::kNonDefini;
    if (possede) film.possession = std::move(possession);
    return film;
}

}  // namespace

std::string nomDe(Colonne colonne) {
    return kNoms[static_cast<std::size_t>(colonne)].nom;
}

bool Tableau::aUnTitre() const {
    return std::ranges::any_of(colonnes, [](Colonne c) { return c == Colonne::Titre || c == Colonne::TitreOriginal; });
}

// A quote that nothing closes is no quote.
std::vector<std::vector<std::string>> cellules(std::string_view texte, char separateur) {
    std::vector<std::vector<std::string>> lignes;
    if (!decoupe(texte, separateur, true, lignes)) {
        lignes.clear();
        static_cast<void>(decoupe(texte, separateur, false, lignes));
    }
    return lignes;
}

Colonne colonneNommee(std::string_view entete) {
    const std::string cherche = " " + forme(entete) + " ";
    if (cherche.size() > 2)
        for (const Nom& nom : kNoms)
            if (std::string_view(nom.synonymes).find(cherche) != std::string_view::npos) return nom.colonne;
    return Colonne::Ligne;
}

Tableau analyseTableau(std::string_view octets) {
    Tableau tableau;
    const std::string texte = texteDe(octets, tableau.codage);
    std::string_view utile = texte;
    if (util::minuscules(utile.substr(0, 4)) == "sep=" && utile.size() > 4) {  // told by a spreadsheet
        tableau.separateur = utile[4];
        std::size_t place = 0;
        static_cast<void>(util::ligneSuivante(utile, place));
        utile.remove_prefix(place);
    } else {
        tableau.separateur = separateurDe(utile);
    }
    tableau.lignes = cellules(utile, tableau.separateur);
    if (tableau.lignes.empty()) return tableau;
    std::size_t largeur = 0;
    for (auto& ligne : tableau.lignes) {
        largeur = std::max(largeur, ligne.size());
        for (std::string& cellule : ligne)
            cellule = util::sansProtection(cellule);
    }
    const bool entetes = std::ranges::any_of(
        tableau.lignes[0], [](const std::string& cellule) { return colonneNommee(cellule) != Colonne::Ligne; });
    if (entetes) {
        tableau.entetes = std::move(tableau.lignes[0]);
        tableau.lignes.erase(tableau.lignes.begin());
    }
    std::map<Colonne, bool> prises;
    for (std::size_t i = 0; i < largeur; ++i) {
        if (i >= tableau.entetes.size()) tableau.entetes.emplace_back();
        std::string& entete = tableau.entetes[i];
        entete = sansBlancs(entete);
        Colonne colonne = colonneNommee(entete);
        const bool plusieurs = colonne == Colonne::Ligne || colonne == Colonne::Fichier || colonne == Colonne::Resume;
        if (!plusieurs && std::exchange(prises[colonne], true)) colonne = Colonne::Ligne;  // the first one counts
        tableau.colonnes.push_back(!entetes && i == 0 ? Colonne::Titre : colonne);
        if (entete.empty()) entete = "Colonne " + std::to_string(i + 1);
    }
    tableau.duProgramme = estDuProgramme(octets, tableau);
    return tableau;
}

Tableau litTableau(const std::string& chemin) {
    if (fichiers::longueur(chemin) > kFichierAuPlus)
        throw Refus{"Le fichier " + chemin + " est trop grand pour être un tableau de films."};
    const auto octets = fichiers::lit(chemin, kFichierAuPlus);
    if (!octets) throw Refus{"Le fichier " + chemin + " ne peut pas être lu."};
    Tableau tableau = analyseTableau(*octets);
    tableau.chemin = chemin;
    if (tableau.lignes.empty()) throw Refus{"Le tableau " + chemin + " ne contient aucune ligne."};
    return tableau;
}

Collection collectionDe(const Tableau& tableau, const std::function<bool(long)>& suivi) {
    if (!tableau.aUnTitre()) throw Refus{"Indiquez la colonne qui contient le titre des films."};
    Collection collection{Programme::Csv, tableau.chemin};
    collection.affiches = std::make_shared<Affiches>();
    collection.affiches->ajouteDossier(fichiers::dossierDe(tableau.chemin));
    std::vector<double> sur(tableau.colonnes.size(), 10);
    const bool aLaLettre = estLuALaLettre(tableau);
    for (std::size_t i = 0; i < sur.size(); ++i)
        if (tableau.colonnes[i] == Colonne::Note && !aLaLettre) {
            sur[i] = surCombien(tableau, i);
            collection.remarques.push_back("Notes lues sur " + util::texteDuNombre(sur[i], ",") + ".");
        }
    // Where a column says what is owned, an empty cell says no.
    const bool ditPossede = std::ranges::find(tableau.colonnes, Colonne::Possede) != tableau.colonnes.end();
    Films films(aLaLettre ? Exemplaires::Tous : Exemplaires::SiAutres);
    for (const auto& ligne : tableau.lignes) {
        if (aLaLettre) {
            films.ajoute(filmALaLettre(tableau, ligne, *collection.affiches));
            avance(suivi, films);
            continue;
        }
        FicheBrute fiche;
        std::optional<bool> possede;
        for (std::size_t i = 0; i < std::min(ligne.size(), tableau.colonnes.size()); ++i)
            if (const std::string texte = sansBlancs(ligne[i]); !texte.empty())
                met(tableau.colonnes[i], texte, sur[i], tableau.entetes[i], fiche, possede);
        if (!fiche.affiche.nom.empty()) fiche.affiche = collection.affiches->trouve(fiche.affiche.nom);
        films.ajoute(std::move(fiche), possede.value_or(!ditPossede));
        avance(suivi, films);
    }
    films.verse(collection);
    if (collection.films.empty()) throw Refus{"Aucune ligne de ce tableau n'a de titre."};
    return collection;
}

}  // namespace voisins
