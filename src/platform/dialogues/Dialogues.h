#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace dialogues {

// Style numbers of a message box, and its answers.
enum Style : int { kSimple = 0, kCritique = 16, kQuestion = 36, kExclamation = 48, kInformation = 64 };
enum Reponse : int { kOk = 1, kOui = 6, kNon = 7 };

inline constexpr const char* kTitre = "Ambrelis";

struct DemandeFichier {
    std::string titre;
    std::string filtre;      // "Fichiers JPEG|*.jpg"
    std::string dossier;     // where the box opens
    bool peutCreer = false;  // accepts the name of a file that does not exist yet
    std::string nom = {};    // of the file to write, as proposed: the box asks where to save it
};

struct DemandeChemin {
    std::string invite, titre, defaut;
    std::string extension;          // of the file to write: ".txt"
    bool extensionAjoutee = false;  // who asks appends it to the answer
};

// A report, its lists in two forms: within the text, and one line for each of their elements.
struct Rapport {
    std::string texte;
    std::vector<std::string> lignes;
};

// What a question throws when the program is ended from outside: nobody is there to answer it, and no answer may be made
// up. The command that asks ends there.
struct SansReponse {};

// Every box the program shows. The window opens Qt's own; tests answer from a script.
// A box is never shown inside a transaction; the panels' state is on the screen before it opens.
class Dialogues {
  public:
    virtual ~Dialogues() = default;

    // kOk for a box with one button, kOui or kNon for style 36 (closing it answers No).
    virtual int MsgBox(const std::string& texte, int style = kSimple, const std::string& titre = kTitre) = 0;
    // A message with the report's text, style 64; the window's lists the lines, to scroll through, select and copy.
    virtual void montre(const Rapport& rapport) { MsgBox(rapport.texte, kInformation); }
    // The text typed; empty also when cancelled.
    virtual std::string InputBox(const std::string& invite, const std::string& titre = kTitre,
                                 const std::string& defaut = "") = 0;
    // InputBox for the path of a file to write, as it was typed; the window's also lets the user browse for it.
    virtual std::string demandeChemin(const DemandeChemin& demande) {
        return InputBox(demande.invite, demande.titre, demande.defaut);
    }
    // A password, whose characters the window does not show; nothing when cancelled.
    virtual std::optional<std::string> demandeMotDePasse(const std::string& invite) {
        std::string saisi = InputBox(invite);
        return saisi.empty() ? std::nullopt : std::optional(std::move(saisi));
    }
    // The path chosen, empty when cancelled.
    virtual std::string choisitFichier(const DemandeFichier& demande) = 0;
    virtual std::string choisitDossier(const std::string& titre, const std::string& dossierInitial) = 0;
};

}  // namespace dialogues
