// mesure_listes rtf DOSSIER
// The lists of the owned titles of a program folder's base, made on the disk, against a floor taken in turn in the same run:
// the text of the list built from its rows, and the finished bytes written as safely.

#include "Mesure.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/EcranMuet.h"
#include "doubles/ProgrammesSimules.h"
#include "export/CreeFichierRTF.h"
#include "export/LecteurDeFilms.h"
#include "export/ListeDesTitres.h"
#include "export/MiseEnForme.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "view/LanceFichier.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

constexpr int kPassages = 9;
constexpr const char* kClause = "genre asc, titre asc";

// Gives the list's path without its extension; is told that it was made.
class DialoguesDeListe final : public dialogues::Dialogues {
  public:
    explicit DialoguesDeListe(std::string chemin) : m_chemin(std::move(chemin)) {}

    int MsgBox(const std::string& texte, int style, const std::string&) override {
        if (style != dialogues::kInformation) throw std::runtime_error(texte);
        return dialogues::kOk;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return m_chemin; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return ""; }
    std::string choisitDossier(const std::string&, const std::string&) override { return ""; }

  private:
    std::string m_chemin;
};

struct Machine {
    explicit Machine(const std::string& dossier) : boites(dossier + "/Liste"), chemins(db::Chemins::depuis(dossier)) {
        base.base = dao::DBEngine::OpenDatabase(dossier + "/Films.mdb");
    }
    db::Base base;
    DialoguesDeListe boites;
    db::Chemins chemins;
    doubles::EcranMuet ecran;
    doubles::ProgrammesSimules programmes;
    doubles::DocumentsEnregistres documents;
    view::LanceFichier lance{programmes, documents, boites, ecran};
    ecran::Progression progression;
    exportation::EtatExport etatExport;
    exportation::DernierExport dernier{etatExport, lance, documents, boites};
};

std::string texteDeLaListe(Machine& machine) {
    exportation::TexteBalise texte(true);
    dao::Recordset titres = machine.base.base.OpenRecordset(exportation::requeteListe(kClause));
    exportation::LecteurDeFilms lecteur(titres);
    for (; !titres.Eof(); titres.MoveNext())
        texte.ajoute(*lecteur.lit());
    return std::move(texte).texte();
}

// The best of several runs of the two, one after the other.
template <typename Plancher, typename Programme>
void compare(const std::string& nom, Plancher plancher, Programme programme) {
    double meilleurPlancher = 1e9, meilleure = 1e9;
    for (int i = 0; i < kPassages; ++i) {
        meilleurPlancher = std::min(meilleurPlancher, bench::meilleureDuree(1, plancher));
        meilleure = std::min(meilleure, bench::meilleureDuree(1, programme));
    }
    bench::declare(nom, meilleure);
    bench::declare(nom + "_plancher", meilleurPlancher);
}

void mesureFormatage(const std::string& texteBalise) {
    double meilleure = 1e9;
    for (int i = 0; i < kPassages; ++i) {
        exportation::MiseEnForme miseEnForme(texteBalise);
        meilleure = std::min(meilleure, bench::meilleureDuree(1, [&] {
                                 for (const exportation::Balise& balise : exportation::kBalises)
                                     miseEnForme.applique(balise);
                             }));
        if (std::move(miseEnForme).resultat().texte.size() >= texteBalise.size())
            throw std::runtime_error("the tags are still there");
    }
    bench::declare("formatage_par_mo", meilleure / (static_cast<double>(texteBalise.size()) / 1e6));
}

void mesureRtf(Machine& machine) {
    exportation::EtatNom nom;
    exportation::CreeFichierRTF creeFichierRTF(machine.base, machine.chemins, nom, machine.progression, machine.ecran,
                                               machine.boites, machine.dernier, machine.lance);
    const std::string fichier = creeFichierRTF(kClause, dialogues::kOui);
    const std::string octets = fichiers::lit(fichier).value();
    const std::string texteBalise = texteDeLaListe(machine);
    bench::declare("mo", static_cast<double>(texteBalise.size()) / 1e6);
    mesureFormatage(texteBalise);
    compare(
        "rtf",
        [&] {
            if (texteDeLaListe(machine).size() != texteBalise.size() || !fichiers::remplace(fichier, octets))
                throw std::runtime_error("the floor failed");
        },
        [&] {
            if (creeFichierRTF(kClause, dialogues::kOui) != fichier) throw std::runtime_error("no list was made");
        });
    if (fichiers::lit(fichier).value() != octets) throw std::runtime_error("another list was made");
}

}  // namespace

int main(int nombre, char** mots) try {
    if (nombre != 3 || std::string(mots[1]) != "rtf") throw std::invalid_argument("usage: mesure_listes rtf DOSSIER");
    Machine machine(mots[2]);
    mesureRtf(machine);
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_listes: " << e.what() << '\n';
    return 1;
}
