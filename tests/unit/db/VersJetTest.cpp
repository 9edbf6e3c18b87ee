#include "Installation.h"
#include "db/ConversionJet.h"
#include "db/VersJet.h"
#include "db/cmdEnregistreJet_Click.h"
#include "doubles/CollectionJet.h"
#include "doubles/DisquePlein.h"
#include "platform/jet/LecteurJet.h"

#include <cstdlib>
#include <filesystem>
#include <random>

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double kJour = 45000.5;

// A table of any base of ours or Jet's, as texts: Null is "N", a value is "=" and what it is.
using Tableau = std::vector<std::vector<std::string>>;
const std::vector<std::string> kFilms{"Titre",   "Realisateur", "Annee",      "Origine", "Genre", "Duree",
                                      "Acteurs", "Resume",      "Production", "Affiche", "Note",  "DateAjout"};
const std::vector<std::string> kPersonnel{"Titre2", "Realisateur2", "Rangement", "Fichier1", "Fichier2", "Fichier3",
                                          "Pret",   "Reserve",      "Date",      "Divers",   "Support"};

Tableau litJet(const std::string& chemin, const std::string& nom, const std::vector<std::string>& champs) {
    jet::Lecteur lecteur(chemin);
    const jet::Table& table = *lecteur.table(nom);
    Tableau lignes;
    (void)lecteur.parcourt(
        table,
        [&](jet::Ligne lue) {
            auto& ligne = lignes.emplace_back();
            for (const std::string& champ : champs) {
                const auto meme = [&](const jet::Champ& c) { return util::egalSansCasse(c.nom, champ); };
                const auto& valeur =
                    lue[static_cast<std::size_t>(std::ranges::find_if(table.champs, meme) - table.champs.begin())];
                ligne.push_back(valeur ? "=" + *valeur : "N");
            }
            return true;
        },
        "Affiche");
    return lignes;
}

class VersJetTest : public testing::Test, protected Installation {
  protected:
    db::IssueVersJet ecrit(const std::string& source, const std::string& destination) {
        std::ofstream(destination, std::ios::trunc).close();
        return db::VersJet(progression, ecranMuet)(source, destination, kJour);
    }
    // What the file box of the command asks.
    const dialogues::DemandeFichier demande{"Enregistrer au format Jet", "Bases Access (Jet)|*.mdb",
                                            fs::path(chemin("x")).parent_path().string(), true, "Films (Jet).mdb"};
    void enregistreSous(const std::string& reponse) {
        dialogues.attendFichier(demande, reponse);
        db::cmdEnregistreJet_Click(c);
        dialogues.verifie();
    }
    void ouvre() {
        creeBase("Films.mdb");
        ajouteFilm("Films.mdb", "L'Été meurtrier");
        db::ouvreLaBase(c);
    }
    [[nodiscard]] std::vector<std::string> restes() const {
        std::vector<std::string> noms = dossier.noms();
        std::erase_if(noms, [](const std::string& nom) { return !nom.ends_with(".tmp"); });
        return noms;
    }
    ecran::Progression progression;
};

// Genuine bases, converted and written again, say what they said.
TEST_F(VersJetTest, EveryRealBaseComesBackAsItWas) {
    const auto bases = doubles::basesJetReelles();
    if (bases.empty()) GTEST_SKIP() << "no real data";
    for (const fs::path& reelle : bases) {
        SCOPED_TRACE(reelle.filename().string());
        const std::string nous = chemin("nous " + reelle.filename().string());
        const std::string neuve = chemin("neuve " + reelle.filename().string());
        ASSERT_TRUE(db::ConversionJet(progression, ecranMuet)(reelle, nous).estFaite());
        const db::IssueVersJet issue = ecrit(nous, neuve);
        ASSERT_TRUE(issue.estFaite()) << issue.echec.value_or("");
        EXPECT_THAT(issue.rapport.ecarts, IsEmpty());
        EXPECT_EQ(litJet(neuve, "Films", kFilms), litJet(reelle, "Films", kFilms));
        EXPECT_EQ(litJet(neuve, "Personnel", kPersonnel), litJet(reelle, "Personnel", kPersonnel));
    }
    EXPECT_EQ(bases.size(), 8U);
    EXPECT_EQ(ecranMuet.soufflesHorsTravail, 0);
}

// Any collection at all goes there and back. AMBRELIS_BASES=1000 makes it long; the seed is the base's number.
TEST_F(VersJetTest, AnyBaseComesBackAsItWas) {
    const char* const demandees = std::getenv("AMBRELIS_BASES");
    const int bases = demandees ? std::atoi(demandees) : 30;
    const std::vector<std::string> morceaux{
        "é", "Œ", "'", "-", " ",       "a",    "Z", "\"", "ß",  "\t", "7",
        "’", "€", "Ж", "Ω", "e\u0301", "\r\n", "ł", "…",  "日", "🎬",  std::string(1, '\0')};
    for (int numero = 1; numero <= bases; ++numero) {
        SCOPED_TRACE(numero);
        std::mt19937 hasard(static_cast<std::mt19937::result_type>(numero));
        const auto tire = [&](std::size_t borne) { return static_cast<std::size_t>(hasard()) % borne; };
        const auto texte = [&](std::size_t max) {
            std::string resultat;
            // One base in three holds what Jet's order is not known of.
            for (std::size_t n = tire(10) < 9 ? tire(max / 8 + 1) : max; n > 0; --n)
                resultat += morceaux[tire(numero % 3 == 0 ? morceaux.size() : morceaux.size() - 3)];
            return resultat;
        };
        const auto valeur = [&](const std::string& champ) -> dao::Valeur {
            if (tire(7) == 0) return {};
            if (champ == "Note") return tire(3) == 0 ? dao::Valeur(7.5) : dao::Valeur(static_cast<int>(tire(101)));
            if (champ == "Affiche")
                return tire(3) == 0 ? dao::Valeur("JPG" + texte(20))
                                    : dao::Valeur::octets("STO" + doubles::imageJet(numero, tire(20000)));
            if (champ == "Resume") return texte(tire(20) == 0 ? 9000 : 400);
            return texte(champ.starts_with("Titre") || champ.starts_with("Realisateur") ? 80
                         : tire(30) == 0                                                ? 600
                                                                                        : 100);
        };
        const std::string nous = creeBase("n.mdb"), neuve = chemin("j.mdb");
        Tableau attendus[2];
        {
            dao::Database ecrite = dao::DBEngine::OpenDatabase(nous);
            for (const int table : {0, 1}) {
                dao::Transaction lot(ecrite);
                const auto& champs = table == 0 ? kFilms : kPersonnel;
                dao::Recordset lignes = ecrite.OpenRecordset(table == 0 ? "Films" : "Personnel");
                for (std::size_t n = tire(60); n > 0; --n) {
                    auto& ligne = attendus[table].emplace_back();
                    lignes.AddNew();
                    for (const std::string& champ : champs) {
                        const dao::Valeur v = valeur(champ);
                        lignes.assigne(champ, v);
                        ligne.push_back(v.estNull() ? "N" : "=" + v.texte());
                    }
                    lignes.Update();
                }
                lot.confirme();
            }
        }
        const db::IssueVersJet issue = ecrit(nous, neuve);
        ASSERT_TRUE(issue.estFaite()) << issue.echec.value_or("");
        EXPECT_EQ(litJet(neuve, "Films", kFilms), attendus[0]);
        EXPECT_EQ(litJet(neuve, "Personnel", kPersonnel), attendus[1]);
        for (const std::string& ecart : issue.rapport.ecarts)
            EXPECT_THAT(ecart, HasSubstr("L'index de la table"));
        fs::remove(nous);
    }
}

// What Jet cannot say is told, film by film; what would be too large is refused with its size.
TEST_F(VersJetTest, WhatJetCannotSayIsTold) {
    const std::string nous = creeBase("n.mdb");
    {
        dao::Database ecrite = dao::DBEngine::OpenDatabase(nous);
        dao::Recordset films = ecrite.OpenRecordset("Films");
        doubles::ajoute(films, {{"Titre", std::string(300, 'x')}, {"Acteurs", std::string(5000, 'a')}});
        doubles::ajoute(films, {{"Titre", "Été"}, {"Realisateur", "a\xE9"}, {"Note", "dix"}});
    }
    const db::IssueVersJet issue = ecrit(nous, chemin("j.mdb"));
    ASSERT_TRUE(issue.estFaite()) << issue.echec.value_or("");
    EXPECT_THAT(issue.rapport.ecarts,
                ElementsAre(HasSubstr("champ « Titre » : ses 300 caractères sont coupés à 255."),
                            HasSubstr("champ « Realisateur » : certains octets ne sont pas de l'Unicode"),
                            HasSubstr("champ « Note » : la note « dix » n'est pas un nombre")));
    const Tableau films = litJet(chemin("j.mdb"), "Films", {"Titre", "Realisateur", "Acteurs", "Note"});
    EXPECT_EQ(films[0][0], "=" + std::string(255, 'x'));
    EXPECT_EQ(films[0][2], "=" + std::string(5000, 'a'));
    EXPECT_EQ(films[1][1], "=aé");
    EXPECT_EQ(films[1][3], "N");
}

TEST_F(VersJetTest, TheUserNamesACopyThatReplacesAFileWholeOrNotAtAll) {
    ouvre();
    enregistreSous("");
    EXPECT_FALSE(etatAvis.frameAvis.Visible);

    dossier.ecrit("Copie.mdb", "ce qui y était");
    fs::permissions(chemin("Copie.mdb"), fs::perms::owner_read | fs::perms::owner_write);
    ecranMuet.arretApres = 1;
    enregistreSous(chemin("Copie.mdb"));
    EXPECT_EQ(etatAvis.lblAvis.Caption, "L'enregistrement au format Jet a été arrêté : aucun fichier n'a été écrit.");
    EXPECT_EQ(dossier.lit("Copie.mdb"), "ce qui y était");
    EXPECT_THAT(restes(), IsEmpty());

    ecranMuet.arretApres = 0;
    dialogues.attendFichier(demande, chemin("Copie.mdb"));
    dialogues.attendMsgBox("La base n'a pas pu être enregistrée au format Jet.\nLe fichier \"" +
                               chemin("Copie.mdb-jet.tmp") +
                               "\" ne peut pas être écrit (Disque plein/Lecture seule ?).",
                           dialogues::kCritique);
    {
        const doubles::DisquePlein plein(40000);
        db::cmdEnregistreJet_Click(c);
    }
    dialogues.verifie();
    EXPECT_EQ(dossier.lit("Copie.mdb"), "ce qui y était");
    EXPECT_THAT(restes(), IsEmpty());

    dossier.ecrit("Copie.mdb-jet.tmp", std::string(9000, '\0'));  // of a run that was killed
    enregistreSous(chemin("Copie.mdb"));
    EXPECT_EQ(litJet(chemin("Copie.mdb"), "Films", {"Titre", "Note"}), (Tableau{{"=L'Été meurtrier", "N"}}));
    EXPECT_EQ(etatAvis.lblAvis.Caption,
              "Base enregistrée au format Jet (1 film, 0 possession) : " + chemin("Copie.mdb"));
    EXPECT_EQ(fs::status(chemin("Copie.mdb")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    avis.cmdAvis_Click(0);
    EXPECT_THAT(documents.fichiers, ElementsAre(demande.dossier + "/"));
    EXPECT_THAT(restes(), IsEmpty());
    EXPECT_EQ(premierTitre(), "L'Été meurtrier");
}

TEST_F(VersJetTest, TheOpenBaseAndFilesOfOthersAreLeftAlone) {
    ouvre();
    const std::string debut = "La base n'a pas pu être enregistrée au format Jet.\n";
    const auto refuse = [&](const std::string& choisi, const std::string& raison) {
        dialogues.attendFichier(demande, choisi);
        dialogues.attendMsgBox(debut + raison, dialogues::kCritique);
        db::cmdEnregistreJet_Click(c);
        dialogues.verifie();
    };
    fs::create_symlink(chemin("Films.mdb"), chemin("lien.mdb"));
    for (const char* nom : {"Films.mdb", "Films", "lien.mdb"})
        refuse(chemin(nom), "Ce fichier est la base ouverte : choisissez un autre nom.");
    fs::create_directory(chemin("dossier.mdb"));
    refuse(chemin("dossier.mdb"), "Un dossier porte déjà ce nom.");
    fs::create_symlink("/dev/zero", chemin("zero.mdb"));
    refuse(chemin("zero.mdb"), "Le fichier " + chemin("zero.mdb") + " ne peut pas être remplacé.");
    dossier.ecrit("x.mdb-jet.tmp", "la lettre de quelqu'un");
    refuse(chemin("x.mdb"),
           "Le fichier " + chemin("x.mdb-jet.tmp") + " gêne l'enregistrement. Déplacez-le, puis recommencez.");
    EXPECT_EQ(dossier.lit("x.mdb-jet.tmp"), "la lettre de quelqu'un");
    EXPECT_EQ(premierTitre(), "L'Été meurtrier");
}

}  // namespace
