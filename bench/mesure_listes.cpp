// mesure_listes rtf|texte DOSSIER
// The lists of the owned titles of a program folder's base, made on the disk, against a floor taken in turn in the same run:
// the text of the list built from its rows, and the finished bytes written as safely. The text list has a second one, whose
// rows bare SQLite reads and orders.

#include "Mesure.h"
#include "Sqlite.h"
#include "db/Schema.h"
#include "doubles/DocumentsEnregistres.h"
#include "doubles/EcranMuet.h"
#include "doubles/HorlogeFixe.h"
#include "doubles/ImagesSimulees.h"
#include "doubles/ProgrammesSimules.h"
#include "doubles/RafraichissementNote.h"
#include "doubles/VolumesSimules.h"
#include "export/CreeFichierRTF.h"
#include "export/LecteurDeFilms.h"
#include "export/ListeDesTitres.h"
#include "export/MiseEnForme.h"
#include "export/TexteListe.h"
#include "export/cmdCreerListe_Click.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"

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
        if (style == dialogues::kQuestion) return dialogues::kNon;  // a text in the order of the titles
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
        base.base.declareCles(db::clesDesTables());
    }
    DialoguesDeListe boites;
    doubles::EcranMuet ecranMuet;
    doubles::ImagesSimulees images;
    doubles::HorlogeFixe horloge;
    doubles::DocumentsEnregistres documents;
    doubles::ProgrammesSimules programmes;
    doubles::VolumesSimules volumes;
    ecran::EtatAvis etatAvis;
    ecran::Avis avis{etatAvis};
    ecran::Demandes demandes;
    db::EtatTravaux travaux;
    db::Base base;
    db::Chemins chemins;
    db::Annulations annulations{base, chemins};
    db::EtatStockage stockage;
    doubles::RafraichissementNote rafraichissement;
    browse::EtatListe liste;
    browse::EtatRecherche recherche;
    browse::EtatFiche fiche;
    browse::EtatPanneaux panneaux;
    browse::FilmCourant film;
    exportation::EtatNom nom;
    exportation::Contexte c{{{boites, ecranMuet, images, horloge, documents, programmes, volumes, avis, demandes,
                              travaux, base, chemins, stockage, rafraichissement, annulations},
                             liste,
                             recherche,
                             fiche,
                             panneaux,
                             film},
                            nom};
};

template <typename Texte>
std::string texteDeLaListe(Machine& machine, bool parGenre) {
    Texte texte(parGenre);
    dao::Recordset titres =
        machine.base.base.OpenRecordset(exportation::requeteListe(parGenre ? kClause : "titre2 asc"));
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
    const std::string fichier = CreeFichierRTF(machine.c, kClause, dialogues::kOui);
    const std::string octets = fichiers::lit(fichier).value();
    const std::string texteBalise = texteDeLaListe<exportation::TexteBalise>(machine, true);
    bench::declare("mo", static_cast<double>(texteBalise.size()) / 1e6);
    mesureFormatage(texteBalise);
    compare(
        "rtf",
        [&] {
            if (texteDeLaListe<exportation::TexteBalise>(machine, true).size() != texteBalise.size() ||
                !fichiers::remplace(fichier, octets))
                throw std::runtime_error("the floor failed");
        },
        [&] {
            if (CreeFichierRTF(machine.c, kClause, dialogues::kOui) != fichier)
                throw std::runtime_error("no list was made");
        });
    if (fichiers::lit(fichier).value() != octets) throw std::runtime_error("another list was made");
}

std::string texteParSqlite(const bench::Sqlite& base) {
    bench::Enonce titres(
        base,
        "SELECT Titre, Realisateur, Genre, Annee, Rangement, Divers, Support FROM Films JOIN Personnel ON "
        "Titre2 = Titre AND Realisateur2 = Realisateur ORDER BY Titre2");
    std::string texte;
    for (long numero = 1; titres.ligne(); ++numero) {
        texte.append(" ").append(std::to_string(numero)).append(". ");
        for (int i = 0; i < 7; ++i)
            (texte += '\t').append(titres.colonne(i));
        texte += "\r\n";
    }
    return "Il y a des titres personnels\r\n\r\n" + texte;
}

void mesureTexte(Machine& machine, const std::string& dossier) {
    cmdCreerListe_Click(machine.c);
    const std::string fichier = dossier + "/Liste.txt", octets = fichiers::lit(fichier).value();
    compare(
        "texte",
        [&] {
            if (texteDeLaListe<exportation::TexteListe>(machine, false) != octets ||
                !fichiers::remplace(fichier, octets))
                throw std::runtime_error("the floor failed");
        },
        [&] { cmdCreerListe_Click(machine.c); });
    const bench::Sqlite base(dossier + "/Films.mdb");
    compare(
        "texte_sqlite",
        [&] {
            const std::size_t taille = texteParSqlite(base).size();
            if (taille + 100 < octets.size() || taille > octets.size() + 100 || !fichiers::remplace(fichier, octets))
                throw std::runtime_error("the floor failed");
        },
        [&] { cmdCreerListe_Click(machine.c); });
    if (fichiers::lit(fichier).value() != octets) throw std::runtime_error("another list was made");
}

}  // namespace

int main(int nombre, char** mots) try {
    const std::string genre = nombre == 3 ? mots[1] : "";
    if (genre != "rtf" && genre != "texte") throw std::invalid_argument("usage: mesure_listes rtf|texte DOSSIER");
    Machine machine(mots[2]);
    if (genre == "rtf")
        mesureRtf(machine);
    else
        mesureTexte(machine, mots[2]);
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_listes: " << e.what() << '\n';
    return 1;
}
