#include "architecture/Fleches.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <set>

namespace fs = std::filesystem;

namespace architecture {
namespace {

// A room may include itself and every room of a lower level.
const std::map<std::string, int> kNiveaux = {
    {"util", 0},
    {"platform/archives", 1},
    {"platform/dao", 1},
    {"platform/dialogues", 1},
    {"platform/ecran", 1},
    {"platform/fichiers", 1},
    {"platform/jet", 1},
    {"platform/systeme", 1},
    {"platform/texteriche", 1},
    {"platform/xml", 1},
    {"db", 2},
    {"browse", 3},
    {"edit", 4},
    {"view", 4},
    {"acquire", 5},
    {"export", 5},
    {"ensemble", 5},
    {"voisins", 6},
    {"app", 7},
    {"ui", 8},
    {"rapatrix", 9},
};

// What only one room may touch: a header, or a call of the C library (members and other classes may bear its name).
struct Reserve {
    std::regex motif;
    std::string piece;
    std::string aussi = {};  // a second room that may
    [[nodiscard]] bool permet(const std::string& qui) const { return qui == piece || qui == aussi; }
};
const std::vector<Reserve> kEntetesReserves = {
    {std::regex(R"(Q[A-Z].*|Qt.*)"), "ui", "rapatrix"},
    {std::regex(R"(libxml/.*)"), "platform/xml", "rapatrix"},
    {std::regex(R"(archive(_entry)?\.h)"), "platform/archives", "rapatrix"},
    {std::regex(R"(sqlite3\.h)"), "platform/dao"},
    {std::regex(R"(mdbtools\.h|glib\.h)"), "platform/jet"},
    {std::regex(R"(spawn\.h|sys/(wait|pidfd)\.h|gio/.*)"), "platform/systeme"},
};
const std::vector<Reserve> kAppelsReserves = {
    {std::regex(R"((?:^|[^\w:.>]|(?:^|\W)::|\bstd::)(v?fork|popen|system|posix_spawnp?|exec[lv]p?e?)\s*\()"),
     "platform/systeme"},
};

// The room a path written from src/ belongs to; nothing when it belongs to none.
std::optional<std::string> pieceDe(const std::string& chemin) {
    for (const auto& [piece, niveau] : kNiveaux) {
        if (chemin.starts_with(piece + "/")) return piece;
    }
    return std::nullopt;
}

std::string sansTextesNiCommentaires(const std::string& source) {
    static const std::regex motif(R"(//[^\n]*|/\*[^]*?\*/|"(\\.|[^"\\\n])*"|'(\\.|[^'\\\n])')");
    std::string reste;
    auto debut = source.cbegin();
    for (std::sregex_iterator it(source.begin(), source.end(), motif), fin; it != fin; ++it) {
        reste.append(debut, source.cbegin() + it->position());
        const std::string trouve = it->str();
        reste.append(static_cast<std::size_t>(std::count(trouve.begin(), trouve.end(), '\n')), '\n');
        debut = source.cbegin() + it->position() + it->length();
    }
    return reste.append(debut, source.cend());
}

std::string fauteInclusion(const std::string& piece, char ouvrant, const std::string& cible) {
    for (const Reserve& reserve : kEntetesReserves) {
        if (!reserve.permet(piece) && std::regex_match(cible, reserve.motif)) {
            return cible + " belongs to " + reserve.piece + " alone";
        }
    }
    if (ouvrant == '<' || (piece == "ui" && cible.ends_with(".moc"))) return {};
    const auto visee = pieceDe(cible);
    if (!visee || cible.find("..") != std::string::npos) return "\"" + cible + "\" is not written from a room of src/";
    if (*visee == piece || kNiveaux.at(*visee) < kNiveaux.at(piece)) return {};
    return piece + " may not look at " + *visee;
}

std::string fauteAppel(const std::string& piece, const std::string& ligne) {
    for (const Reserve& reserve : kAppelsReserves) {
        std::smatch appel;
        if (!reserve.permet(piece) && std::regex_search(ligne, appel, reserve.motif)) {
            return appel.str(1) + "() belongs to " + reserve.piece + " alone";
        }
    }
    return {};
}

std::vector<std::string> lignes(const std::string& texte) {
    std::vector<std::string> resultat;
    std::istringstream flux(texte);
    for (std::string ligne; std::getline(flux, ligne);)
        resultat.push_back(ligne);
    return resultat;
}

std::string contenu(const fs::path& fichier) {
    std::ifstream flux(fichier, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

// The commands that app declares: one that bears the name of a lower room's has more around it.
std::set<std::string> commandesDApp(const std::map<std::string, fs::path>& sources) {
    static const std::regex declaration(R"((?:^|\n)void (\w+)\(const Contexte& c\b)");
    std::set<std::string> noms;
    for (const auto& [nom, fichier] : sources) {
        if (!nom.starts_with("app/") || !nom.ends_with(".h")) continue;
        const std::string source = contenu(fichier);
        for (std::sregex_iterator it(source.begin(), source.end(), declaration), fin; it != fin; ++it)
            noms.insert(it->str(1));
    }
    return noms;
}

std::string fauteCommande(const std::set<std::string>& commandes, const std::string& ligne) {
    static const std::regex nom(R"(\b(db|browse|edit|view|acquire|exportation|ensemble|voisins)::(\w+))");
    for (std::sregex_iterator it(ligne.begin(), ligne.end(), nom), fin; it != fin; ++it)
        if (commandes.contains(it->str(2))) return it->str() + " has more around it in app";
    return {};
}

void examine(const fs::path& fichier, const std::string& nom, const std::set<std::string>& commandes,
             std::vector<std::string>& fautes) {
    const auto piece = pieceDe(nom);
    if (!piece) {
        fautes.push_back(nom + ":1: stands in no room");
        return;
    }
    static const std::regex inclusion(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"].*)");
    const std::string source = contenu(fichier);
    const auto brutes = lignes(source);
    const auto nues = lignes(sansTextesNiCommentaires(source));
    for (std::size_t i = 0; i < brutes.size(); ++i) {
        // In a comment spread over lines nothing is left of the line once comments are gone.
        const std::string nue = i < nues.size() ? nues[i] : "";
        std::smatch morceaux;
        const bool estInclusion =
            nue.find('#') != std::string::npos && std::regex_match(brutes[i], morceaux, inclusion);
        std::string faute =
            estInclusion ? fauteInclusion(*piece, morceaux.str(1)[0], morceaux.str(2)) : fauteAppel(*piece, nue);
        if (faute.empty() && *piece == "ui") faute = fauteCommande(commandes, nue);
        if (!faute.empty()) fautes.push_back(nom + ":" + std::to_string(i + 1) + ": " + faute);
    }
}

}  // namespace

std::vector<std::string> fautes(const fs::path& src) {
    std::map<std::string, fs::path> sources;
    for (const auto& entree : fs::recursive_directory_iterator(src)) {
        const auto extension = entree.path().extension();
        if (extension == ".h" || extension == ".cpp") {
            sources[fs::relative(entree.path(), src).generic_string()] = entree.path();
        }
    }
    const std::set<std::string> commandes = commandesDApp(sources);
    std::vector<std::string> trouvees;
    for (const auto& [nom, fichier] : sources)
        examine(fichier, nom, commandes, trouvees);
    return trouvees;
}

}  // namespace architecture
