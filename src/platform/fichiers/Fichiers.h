#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Files and folders of the machine. A path is the bytes the system uses, with "/" between folders. Nothing here throws:
// each call says whether it did its work.
namespace fichiers {

// Why the last call failed, for a message's parentheses: "Disque plein", "Accès refusé"… Asked at once, before any other.
[[nodiscard]] std::string raisonDeLEchec();

// Where a file really lies: the name as it stands; else with "\" taken as a separator; else ignoring letter case in each
// of its parts (names copied from Windows). Empty when there is none. Names that mean many things are tried up to a bound.
[[nodiscard]] std::optional<std::string> trouve(const std::string& chemin);

[[nodiscard]] bool existe(const std::string& chemin);      // a file that trouve finds; a folder is none
[[nodiscard]] bool executable(const std::string& chemin);  // a file that may be run
[[nodiscard]] bool dossierExiste(const std::string& chemin);
[[nodiscard]] bool dossierModifiable(const std::string& chemin);  // files can be made and deleted in it
// Which file or folder a path leads to, the same for all of its names; empty when there is none.
using Identite = std::pair<std::uint64_t, std::uint64_t>;
[[nodiscard]] std::optional<Identite> identite(const std::string& chemin);
// Where a file that trouve finds lies, and which one it is. Empty when there is none; a folder is none.
struct Place {
    std::string chemin;
    Identite identite;
};
[[nodiscard]] std::optional<Place> situe(const std::string& chemin);
[[nodiscard]] std::int64_t longueur(const std::string& chemin);  // in bytes, -1 when there is no such file

// Names that come from outside the program lead nowhere but into one folder: the ordinary file that stands there itself
// under this name, or under it in other letters. Links, pipes, devices and folders are none; neither is what a separator,
// "." or ".." would lead to. An empty folder has no files.
[[nodiscard]] std::optional<Place> situeDans(const std::string& dossier, const std::string& nom);
// A whole file as lit gives it; a link at its end is not followed.
[[nodiscard]] std::optional<std::string> litSansLien(const std::string& chemin, std::int64_t limite = INT64_MAX);

// A whole file; empty when it cannot be read (a folder included) or is longer than `limite` bytes.
[[nodiscard]] std::optional<std::string> lit(const std::string& chemin, std::int64_t limite = INT64_MAX);
// The lines of a text of the outside world, decoded to UTF-8, ended by CR LF, LF or CR; at most `maximum` of them.
// NULs are carried. Of a file of more than 16 MiB only the lines of its beginning count. Empty when it cannot be read.
[[nodiscard]] std::optional<std::vector<std::string>> litLignes(const std::string& chemin,
                                                                std::size_t maximum = SIZE_MAX);

// Writes in place: for working files, which need not survive. A link that stands there goes, and what it leads to stays as
// it is; a folder that is reached by a link is not written in.
bool ecrit(const std::string& chemin, std::string_view octets);
// Replaces a whole file safely: written beside it, synced, renamed over it. On failure what stood there still stands. Not
// g_file_set_contents_full: it replaces a link, gives the file other rights, writes over one that the user may not write,
// fails for names near the longest, and what a killed run of it leaves bears no name of ours and no lock.
bool remplace(const std::string& chemin, std::string_view octets);
// Makes a file that was not there. What stood there, were it a folder, stays; a file that could not be written whole goes.
enum class Creation { Faite, ExisteDeja, Echouee };
[[nodiscard]] Creation cree(const std::string& chemin, std::string_view octets);

// Takes the files and their folders to the disk, many of them with all that waits for the same disk: what they hold
// survives a power cut from then on. False when one of the files could not be.
[[nodiscard]] bool synchronise(const std::vector<std::string>& chemins);
// Renames over what stands at `vers` (where a link leads), on the same file system, and takes the folder to the disk.
[[nodiscard]] bool renomme(const std::string& de, const std::string& vers);

// Gives a file another name, which nothing bears yet, in the same folder. It keeps the one it has; where the file system
// knows no file of two names the other one is given to a copy, as old as the file. The name is on the disk then.
[[nodiscard]] Creation donneAutreNom(const std::string& chemin, const std::string& autre);

// Copies over what stands at `vers`; a copy onto itself is recognised and does nothing, successfully. `avance` is told
// how many bytes are copied, again and again, and stops it by false: what stood at `vers` then stays.
bool copie(const std::string& de, const std::string& vers, const std::function<bool(std::int64_t)>& avance = {});
bool supprime(const std::string& chemin);     // true when the file is gone, also when there was none
bool creeDossier(const std::string& chemin);  // with its parents; true when it stands there in the end
// A folder of the program's own: a real one in the end, made private where the file system knows what that is. A link
// that stands there goes, and what it leads to stays as it is. False when it could not be made.
bool assureDossierPrive(const std::string& chemin);
// Deletes the folder's files (not its folders) that match: "*.*" and "*" mean every file, "*.jpg" an ending in any case.
// Nothing goes where `dossier` is a link. Returns how many went.
int supprimeSelonMotif(const std::string& dossier, std::string_view motif);

// The names of all that stands in the folder, in no order. Empty when it cannot be read.
[[nodiscard]] std::vector<std::string> listeNoms(const std::string& dossier);
// The names of the folder's files, in name order, folders left out. Empty when it cannot be read.
[[nodiscard]] std::vector<std::string> listeFichiers(const std::string& dossier);

// Whether a path leads into that folder, or to the folder itself, by whatever links. Neither needs to exist.
[[nodiscard]] bool estDans(const std::string& chemin, const std::string& dossier);
// A path of another machine, found again by its end: the longest one that `convient` takes in the folder `racine`, which
// ends with a separator. A drive and what leads out of the folder count for nothing.
[[nodiscard]] std::optional<std::string> trouveParLaFin(const std::string& racine, std::string_view chemin,
                                                        bool (*convient)(const std::string&));
// The whole path, from the root, of a name that the current folder may complete.
[[nodiscard]] std::string absolu(const std::string& chemin);
// Pieces of a path, both separators understood.
[[nodiscard]] std::string nomDeFichier(std::string_view chemin);   // "a/b.txt" -> "b.txt"
[[nodiscard]] std::string dossierDe(std::string_view chemin);      // "a/b.txt" -> "a/"; "" without a folder
[[nodiscard]] std::string extension(std::string_view chemin);      // "a/b.tar.GZ" -> "GZ"; "" without one
[[nodiscard]] std::string sansExtension(std::string_view chemin);  // "a/b.FILM" -> "a/b"

}  // namespace fichiers
