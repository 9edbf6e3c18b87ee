#include "pannes/Scenarios.h"

#include "acquire/ImporterAncienneBase.h"
#include "acquire/cmdAjoutAuto_Click.h"
#include "app/Annulation.h"
#include "app/ChoixFonction.h"
#include "app/Commandes.h"
#include "app/LogicielsExternes.h"
#include "app/RaccourcisClavier.h"
#include "app/Sauvegardes.h"
#include "browse/ChoixTri.h"
#include "db/NomsSauvegardes.h"
#include "db/Option3_Click.h"
#include "db/Schema.h"
#include "db/cmdCompacter_Click.h"
#include "db/cmdMajBase_Click.h"
#include "db/cmdSupprInfosPerso_Click.h"
#include "doubles/CollectionJet.h"
#include "edit/ModifieGroupe.h"
#include "edit/SaisiePossession.h"
#include "edit/cmdAjoutFilm_Click.h"
#include "edit/cmdModifieNote_Click.h"
#include "edit/cmdPonctuation_Click.h"
#include "edit/cmdSupprTitresSelect_Click.h"
#include "edit/cmdSupprimerTitre_Click.h"
#include "edit/cmdValiderInfosPossessions_Click.h"
#include "export/cmdCreeFichierTxt_Click.h"
#include "export/cmdCreerListe_Click.h"
#include "platform/dao/DBEngine.h"
#include "view/cmdRemplacerImage_Click.h"

#include <fstream>

namespace pannes {

namespace {

constexpr int kFilms = 9;
constexpr int kToutesLesFiches = 1;  // the zone of all films

void ecris(const std::filesystem::path& chemin, const std::string& octets) {
    std::filesystem::create_directories(chemin.parent_path());
    std::ofstream(chemin, std::ios::binary) << octets;
}

void ajouteFilm(dao::Database& base, const std::string& titre, const std::string& affiche) {
    dao::Recordset films = base.OpenRecordset("Films"), possessions = base.OpenRecordset("Personnel");
    films.AddNew();
    films.assigne("Titre", titre);
    films.assigne("Realisateur", "Agnès Varda");
    films.assigne("Genre", "Drame");
    films.assigne("Resume", std::string(3000, 'r'));
    if (!affiche.empty()) films.assigne("Affiche", dao::Valeur::octets(affiche));
    films.Update();
    possessions.AddNew();
    possessions.assigne("Titre2", titre);
    possessions.assigne("Realisateur2", "Agnès Varda");
    possessions.assigne("Support", "DVD");
    possessions.Update();
}

void montre(Seance& s, const std::string& titre) {
    s.zone(kToutesLesFiches);
    s.commande(app::TreeView1_NodeClick, s.noeud(titre));
}
void saisis(Seance& s, const std::string& dossier) {
    s.commande(app::cmdAfficherFonctions_Click);
    s.commande(app::Command13_Click, 1);
    s.etats.ajout.Text3[0].Text = "Cléo de 5 à 7";
    s.etats.ajout.Text3[1].Text = "Agnès Varda";
    s.etats.ajout.txtResume.Text = std::string(5000, 'x');
    s.boites.fichier = dossier + "nouvelle.jpg";
}
void parGenre(Seance& s) {
    s.zone(kToutesLesFiches);
    s.etats.liste.ChoixTri.selectionne(4);
    s.commande(browse::ChoixTri_Click);
}
void indiqueLesFiches(Seance& s, const std::string& dossier) {
    s.commande(app::cmdAfficherFonctions_Click);
    s.etats.ajout.txtCheminAjoutAuto.Text = dossier + "Fiches/";
    s.boites.saisie = "DVD";
}
void choisitLeStockage(Seance& s, std::size_t option) {
    ecran::choisit(s.etats.stockage.Option3, option);
    s.commande(db::Option3_Click);
}

// Its head overwritten, a safety copy beside it.
void abime(const std::string& dossier) {
    const std::string base = dossier + "Films.mdb";
    std::filesystem::create_directory(dossier + "Sauvegardes");
    std::filesystem::copy_file(base, dossier + "Sauvegardes/" + db::nomDeSauvegarde("Films.mdb", {1, 1795262407}));
    std::fstream(base, std::ios::in | std::ios::out | std::ios::binary) << std::string(4096, 'x');
}

template <typename... Arguments>
std::function<void(Seance&)> fait(Arguments... arguments) {
    return [=](Seance& s) { s.commande(arguments...); };
}

std::vector<Scenario> tous() {
    using Dossier = const std::string&;
    const auto saisie = [](Seance& s, Dossier d) { saisis(s, d); };
    const auto import = [](Seance& s, Dossier d) { indiqueLesFiches(s, d); };
    const auto affiche = [](const char* titre) {
        return [titre](Seance& s, Dossier d) {
            montre(s, titre);
            s.boites.fichier = d + "nouvelle.jpg";
        };
    };
    const auto export_ = [](Seance& s, Dossier d) {
        montre(s, "FILM 1");
        s.boites.saisie = d + "Export";
    };
    // What follows each: the command before is taken back.
    const auto puis = [](auto prepare, auto commande) {
        return [=](Seance& s, Dossier d) {
            prepare(s, d);
            s.commande(commande);
        };
    };
    const auto rien = [](Seance&, Dossier) {};
    return {
        {"saisie", saisie, fait(edit::cmdAjoutFilm_Click)},
        {"saisie, affiche en fichier", saisie, fait(edit::cmdAjoutFilm_Click), true, true},
        {"correction",
         [](Seance& s, Dossier) {
             montre(s, "FILM 2");
             s.commande(app::cmdModifierTitre_Click);
             s.etats.ajout.Text3[0].Text = "Film deux";
             s.etats.ajout.Combo2.Text = "Policier";
         },
         fait(edit::cmdAjoutFilm_Click)},
        {"note",
         [](Seance& s, Dossier) {
             montre(s, "FILM 1");
             s.boites.saisie = "3";
         },
         fait(edit::cmdModifieNote_Click)},
        {"possession",
         [](Seance& s, Dossier) {
             montre(s, "FILM 1");
             s.etats.fiche.Combo7[0].Text = "Chloé";
             s.commande(edit::Combo7_Change, 0);
         },
         fait(edit::cmdValiderInfosPossessions_Click)},
        {"suppression", [](Seance& s, Dossier) { montre(s, "FILM 3"); }, fait(edit::cmdSupprimerTitre_Click), true,
         true},
        {"suppressions",
         [](Seance& s, Dossier) {
             montre(s, "FILM 1");
             s.commande(app::ChoixFonction2_Outils);
             s.commande(edit::cmdMultiSuppress_Click);
             ecran::choisit(s.etats.multiSuppression.Option4, 1);
             s.commande(edit::Option4_Click);
             for (const char* titre : {"FILM 1", "FILM 3", "FILM 4"})
                 s.commande(app::TreeView1_NodeCheck, s.noeud(titre), true);
         },
         fait(edit::cmdSupprTitresSelect_Click), false},
        {"genre",
         [](Seance& s, Dossier) {
             parGenre(s);
             s.commande(app::TreeView1_MouseUpDroit, s.noeud("Drame"));
             s.boites.saisie = "Mélodrame";
         },
         fait(edit::RenommerGenreFilms_Click), false},
        {"titres", rien, fait(edit::cmdPonctuation_Click), false},
        {"effacement", rien, fait(db::cmdSupprInfosPerso_Click)},
        {"affiche attachée", affiche("FILM 0"), fait(app::Label12_Click), true, true},
        {"affiche remplacée", affiche("FILM 1"), fait(view::cmdRemplacerImage_Click), true, true},
        {"affiche remplacée, en base", affiche("FILM 1"), fait(view::cmdRemplacerImage_Click)},
        {"import", import, fait(acquire::cmdAjoutAuto_Click), false},
        {"import, affiches en fichiers", import, fait(acquire::cmdAjoutAuto_Click), false, true},
        {"vers la base", [](Seance& s, Dossier) { choisitLeStockage(s, 0); }, fait(db::cmdMajBase_Click), false, true},
        {"vers le dossier", [](Seance& s, Dossier) { choisitLeStockage(s, 1); }, fait(db::cmdMajBase_Click), false},
        {"compactage", rien, fait(db::cmdCompacter_Click), false},
        {"conversion Jet", [](Seance& s, Dossier d) { s.boites.fichier = d + "Jet.mdb"; },
         fait(app::cmdChargeOuvreBase_Click), true, false, false},
        {"nouvelle base", [](Seance& s, Dossier d) { s.boites.fichier = d + "Séries.mdb"; },
         fait(app::cmdChargeOuvreBase_Click), true, false, false},
        {"ancienne installation", [](Seance& s, Dossier d) { s.boites.dossier = d + "Vieux/"; },
         fait(acquire::ImporterAncienneBase), false},
        {"export de la fiche", export_, fait(exportation::cmdCreeFichierTxt_Click)},
        {"export de la liste", export_, fait(exportation::cmdCreerListe_Click)},
        {"affiche sauvée", export_, fait(app::cmdSauverImage_Click), true, true},
        {"extensions", [](Seance& s, Dossier) { s.etats.fonctions.txtNouvelleExtension.Text = "ogm"; },
         fait(app::cmdAjoutExtension_Click)},
        {"annulation d'une suppression",
         puis([](Seance& s, Dossier) { montre(s, "FILM 3"); }, edit::cmdSupprimerTitre_Click),
         fait(app::cmdAnnuler_Click), true, true, false},
        {"annulation d'un import", puis(import, acquire::cmdAjoutAuto_Click), fait(app::cmdAnnuler_Click), true, true,
         false},
        {"annulation d'une affiche", puis(affiche("FILM 1"), view::cmdRemplacerImage_Click),
         fait(app::cmdAnnuler_Click), true, true, false},
        {"annulation des titres", puis(rien, edit::cmdPonctuation_Click), fait(app::cmdAnnuler_Click), true, false,
         false},
        {"rétablissement des titres", puis(puis(rien, edit::cmdPonctuation_Click), app::cmdAnnuler_Click),
         fait(app::cmdRetablir_Click), true, false, false},
        {"retour à une sauvegarde",
         [](Seance& s, Dossier) {
             s.commande(db::cmdCompacter_Click);
             montre(s, "FILM 3");
             s.commande(edit::cmdSupprimerTitre_Click);
             s.commande(app::cmdSauvegardes_Click);
         },
         fait(app::cmdRevenirSauvegarde_Click, 0), true, false, false},
        {"base endommagée", [](Seance&, Dossier d) { abime(d); }, [](Seance& s) { s.demarre(); }, true, true, true,
         true, true},
        {"arrêt",
         [](Seance& s, Dossier) {
             montre(s, "FILM 1");
             s.etats.liste.AffStats.Value = 1;
         },
         [](Seance& s) {
             s.fais([&] { s.session.Form_Unload(); });
             s.finie = true;
         }},
        {"démarrage", rien, [](Seance& s) { s.demarre(); }, true, true, true, true},
    };
}

}  // namespace

const std::vector<Scenario>& scenarios() {
    static const std::vector<Scenario> liste = tous();
    return liste;
}

void construit(const std::filesystem::path& dossier, bool dansLeDossier) {
    std::filesystem::create_directories(dossier / "Images");
    dao::DBEngine::CreateDatabase(dossier / "Modele.dat", db::schema());
    std::filesystem::copy_file(dossier / "Modele.dat", dossier / "Films.mdb");
    dao::Database base = dao::DBEngine::OpenDatabase(dossier / "Films.mdb");
    ajouteFilm(base, kTemoin, "");
    ajouteFilm(base, "FILM 0", "");
    for (int i = 1; i < kFilms; ++i) {
        const std::string nom = "FILM " + std::to_string(i), octets = doubles::imageJet(i, 9000);
        const bool fichier = dansLeDossier || i % 4 == 0;
        if (fichier) ecris(dossier / "Images" / (nom + " - Agnès Varda.jpg"), octets);
        ajouteFilm(base, nom, fichier ? "JPG" + nom + " - Agnès Varda.jpg" : "STO" + octets);
    }
    base.Execute("INSERT INTO Personnel (Titre2, Realisateur2, Support) VALUES ('" + std::string(kSansFilm) +
                 "', 'X', 'K7')");
    base.Close();
    ecris(dossier / "Extensions.txt", "avi\n/usr/bin/mpv\n");
    ecris(dossier / "Ambrelis.ini", std::string(dansLeDossier ? "1" : "0") + "\nImages/\n0\n0\n0\nFilms.mdb\n0\n0\n");
    ecris(dossier / "nouvelle.jpg", doubles::imageJet(70, 8000));
    for (const char* nom : {"Export", "Export.txt", "Export.jpg", "Export.rtf"})
        ecris(dossier / nom, "ce qui y était");
    for (int i = 0; i < 4; ++i) {
        const std::string numero = std::to_string(i);
        ecris(dossier / "Fiches" / (numero + ".FILM"), "Importé " + numero +
                                                           "\r\nDemy\r\n1964\r\nFrance\r\nDrame\r\n91\r\nDeneuve\r\n" +
                                                           std::string(2000, 'f') + "\r\nParc\r\n");
        if (i % 2 == 0) ecris(dossier / "Fiches" / (numero + ".jpg"), doubles::imageJet(50 + i, 7000));
    }
    for (const char* nom : {"Jet.mdb", "Vieux/Jet.mdb"})
        ecris(dossier / nom, doubles::collectionJet(3).octets());
    ecris(dossier / "Vieux" / "Ambrelis.ini", "0\n\n0\n0\n0\nJet.mdb\n0\n0\n");
}

}  // namespace pannes
