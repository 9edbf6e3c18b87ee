#include "browse/AffichageApresModification.h"
#include "browse/TexteRequete.h"
#include "browse/TreeView1.h"
#include "browse/cmdRecherche_Click.h"
#include "db/ConversionJet.h"
#include "db/EnonceFilm.h"
#include "db/OuvertureBase.h"
#include "db/Requete.h"
#include "db/Schema.h"
#include "doubles/CollectionJet.h"
#include "doubles/Lignes.h"
#include "doubles/MachineDEssai.h"
#include "hostile/Cibles.h"
#include "platform/dao/DBEngine.h"
#include "platform/jet/LecteurJet.h"
#include "platform/systeme/FinDuProgramme.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <memory>

#include <sqlite3.h>

namespace hostile {

namespace {

constexpr const char* kNom = "Films.mdb";  // of the program's own base

using doubles::BaseJet;
using std::literals::operator""s;

// Closes every box as a user who reads none of them.
struct BoitesFermees final : dialogues::Dialogues {
    int MsgBox(const std::string&, int style, const std::string&) override {
        return style == dialogues::kQuestion ? dialogues::kNon : dialogues::kOk;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return {}; }
    std::string choisitDossier(const std::string&, const std::string&) override { return {}; }
};

// A user with a base that came from elsewhere.
class Curieux : public doubles::MachineDEssai {
  public:
    Curieux() {
        std::filesystem::create_directory(chemins.dossierTmp);
        for (const browse::Zone& zone : browse::kZones)
            m_liste.ChoixZone.AddItem(zone.legende);
        for (const browse::Tri& tri : browse::kTris)
            m_liste.ChoixTri.AddItem(tri.legende);
    }

    // Opens it, looks at it from all sides, then changes it a little: what cannot be done is told, and that is all.
    void regarde() {
        if (!db::sOuvre(m_c, chemins.base)) return;
        try {
            db::ouvreLaBase(m_c);
        } catch (const systeme::FinDuProgramme&) {
            return;
        }
        for (int tri = 0; tri < static_cast<int>(browse::kTris.size()); ++tri)
            tente([&] { montre(tri % static_cast<int>(browse::kZones.size()), tri); });
        tente([&] { cherche("l'\"été"); });
        tente([&] { montre(browse::kZoneTous, browse::kTriTitre2); });
        for (int noeud = 1; noeud <= std::min(m_liste.TreeView1.Nodes.Count(), 6); ++noeud)
            tente([&] { browse::TreeView1_NodeClick(m_c, noeud); });
        tente([&] { modifie(); });
        base.ferme();
        tente([&] { dao::DBEngine::CompactDatabase(chemins.base, dossier.chemin("compacte.mdb")); });
    }

  private:
    template <typename Geste>
    static void tente(Geste geste) {
        try {
            geste();
        } catch (const dao::ErreurDao& erreur) {
            exige(!erreur.description.empty(), "an error says what it is");
        } catch (const db::RequeteEchouee&) {  // told already
        }
    }
    void montre(int zone, int tri) {
        m_liste.ChoixZone.selectionne(zone);
        m_liste.ChoixTri.selectionne(tri);
        AffichageApresModification(m_c);
    }
    void cherche(const std::string& texte) {
        m_recherche.Text2.Text = texte;
        browse::cmdRecherche_Click(m_c);
    }
    void modifie() {
        dao::Recordset films = base.base.OpenRecordset("Films");
        const long avant = films.RecordCount();
        doubles::ajoute(films, {{"Titre", "Zardoz"}, {"Realisateur", "John Boorman"}});
        exige(films.RecordCount() == avant + 1, "an addition adds one row");
        dao::Recordset neuf = base.base.OpenRecordset(db::enonceFilm({"Zardoz", "John Boorman"}));
        if (neuf.Eof()) return;  // its columns may be anything
        neuf.Edit();
        neuf.assigne("Genre", "SF");
        neuf.Update();
        exige(films.RecordCount() == avant + 1, "a change adds no row and removes none");
        neuf.Delete();
        exige(films.RecordCount() == avant, "a deletion takes one row");
    }

    BoitesFermees m_boites;
    browse::EtatListe m_liste;
    browse::EtatRecherche m_recherche;
    browse::EtatFiche m_fiche;
    browse::EtatPanneaux m_panneaux;
    browse::FilmCourant m_film;
    browse::Contexte m_c{avec(m_boites), m_liste, m_recherche, m_fiche, m_panneaux, m_film};
};

void remplit(dao::Database& base) {
    dao::Transaction transaction(base);
    dao::Recordset films = base.OpenRecordset("Films"), personnel = base.OpenRecordset("Personnel");
    for (int i = 0; i < 8; ++i) {
        const std::string titre = "L'Été \"" + std::to_string(i) + '"';
        doubles::ajoute(films, {{"Titre", titre},
                                {"Realisateur", "Varda"},
                                {"Annee", "196" + std::to_string(i)},
                                {"Acteurs", "Jean, Été"},
                                {"Note", i},
                                {"Resume", std::string(700U * i, 'r')},
                                {"Affiche", dao::Valeur::octets("STO" + std::string(1500U * i, '\xd8'))}});
        doubles::ajoute(personnel,
                        {{"Titre2", titre}, {"Realisateur2", "Varda"}, {"Support", "DVD"}, {"Fichier1", "/dev/zero"}});
    }
    transaction.confirme();
}

// The bytes of a base of ours, made once.
const std::string& baseSaine() {
    static const std::string octets = [] {
        const doubles::DossierTemporaire dossier;
        const std::string chemin = dossier.chemin("b.mdb");
        dao::DBEngine::CreateDatabase(chemin, db::schema());
        dao::Database base = dao::DBEngine::OpenDatabase(chemin);
        remplit(base);
        base.Close();
        return dossier.lit("b.mdb");
    }();
    return octets;
}

// Damage is said in records of 7 bytes: a page, a place in it with how many bytes, and these. What is left of the last
// record cuts the file off.
std::string abime(std::string fichier, std::string_view dommages) {
    constexpr std::size_t kPage = 4096, kMesure = 7;
    const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(dommages[i]); };
    std::size_t i = 0;
    for (; i + kMesure <= dommages.size(); i += kMesure) {
        const std::size_t place =
            octet(i) % (fichier.size() / kPage) * kPage + (octet(i + 2) % 16U << 8 | octet(i + 1));
        const std::size_t nombre = std::min<std::size_t>(1 + octet(i + 2) / 16 % 4, fichier.size() - place);
        fichier.replace(place, nombre, dommages.substr(i + 3, nombre));
    }
    if (dommages.size() - i == 2) fichier.resize(fichier.size() * octet(i) / 256 + octet(i + 1));
    return fichier;
}

void baseAbimee(std::string_view octets) {
    Curieux curieux;
    curieux.dossier.ecrit(kNom, abime(baseSaine(), octets));
    curieux.regarde();
}

// SQLite itself, as another program uses it: with all that a file can hold, and no way out of it.
class Etranger {
  public:
    explicit Etranger(const std::string& chemin) {
        sqlite3_open(chemin.c_str(), &m_base);
        sqlite3_limit(m_base, SQLITE_LIMIT_LENGTH, 1 << 20);
        execute("PRAGMA synchronous=OFF");
        sqlite3_db_config(m_base, SQLITE_DBCONFIG_WRITABLE_SCHEMA, 1, nullptr);
        const auto dedans = [](void*, int quoi, const char*, const char*, const char*, const char*) {
            return quoi == SQLITE_ATTACH ? SQLITE_DENY : SQLITE_OK;
        };
        sqlite3_set_authorizer(m_base, dedans, nullptr);
        sqlite3_progress_handler(
            m_base, 100'000, [](void*) { return 1; }, nullptr);
    }
    Etranger(const Etranger&) = delete;
    Etranger& operator=(const Etranger&) = delete;
    ~Etranger() { sqlite3_close(m_base); }

    void execute(const std::string& sql) { sqlite3_exec(m_base, sql.c_str(), nullptr, nullptr, nullptr); }
    // What the table that is none of the program's holds; "" where it cannot be read, or may share its pages.
    std::string temoin() {
        std::string lu;
        const auto note = [](void* ou, int, char** valeurs, char**) {
            return *static_cast<std::string*>(ou) += valeurs[0] ? valeurs[0] : "", 0;
        };
        sqlite3_exec(m_base, "PRAGMA quick_check(1)", note, &lu, nullptr);
        if (std::exchange(lu, {}) == "ok") sqlite3_exec(m_base, "SELECT quote(a) FROM Autre", note, &lu, nullptr);
        return lu;
    }

  private:
    sqlite3* m_base = nullptr;
};

// A base that another program made or changed: nothing in it acts by itself, and no file appears but the program's.
void baseEtrangere(std::string_view sql) {
    Curieux curieux;
    curieux.dossier.ecrit(kNom, baseSaine());
    Etranger(curieux.chemins.base).execute("CREATE TABLE Autre (a); INSERT INTO Autre VALUES (1); " + std::string(sql));
    const std::string avant = Etranger(curieux.chemins.base).temoin();
    curieux.regarde();
    exige(Etranger(curieux.chemins.base).temoin() == avant, "what is none of the program's stays as it was");
    for (const auto& [nom, octets] : curieux.dossier.contenu())
        exige(nom.starts_with(kNom) || nom.starts_with("Tmp/") || nom == "compacte.mdb", "no other file is made");
}

// A text is typed, and a film bears it: the statements that hold it find that film, and are never another statement.
void enonce(std::string_view octets) {
    static doubles::DossierTemporaire dossier;
    static dao::Database base = [] {
        dao::DBEngine::CreateDatabase(dossier.chemin("b.mdb"), db::schema());
        return dao::DBEngine::OpenDatabase(dossier.chemin("b.mdb"));
    }();
    const auto lit = [](dao::Recordset lignes) {
        long nombre = 0;
        for (; !lignes.Eof() && nombre < 1000; lignes.MoveNext(), ++nombre)
            static_cast<void>(lignes.texte("Titre"));
        return nombre;
    };
    try {
        lit(base.OpenRecordset(octets));
    } catch (const dao::ErreurDao& erreur) {
        exige(!erreur.description.empty(), "an error says what it is");
    }
    const std::string texte(octets);
    dao::Transaction annulee(base);
    dao::Recordset films = base.OpenRecordset("Films");
    doubles::ajoute(films, {{"Titre", texte}, {"Realisateur", texte}, {"Annee", ""}, {"Acteurs", ""}});
    doubles::ajoute(films, {{"Titre", "Alien"}, {"Realisateur", "Ridley Scott"}});
    for (const std::string& un :
         {db::enonceFilm({texte, texte}), db::enonceFilmNote({texte, texte}), db::enonceFilmModifie({texte, texte})})
        exige(lit(base.OpenRecordset(un)) == 1, "one film bears this title");
    lit(base.OpenRecordset(db::enoncePossession({texte, texte})));
    const std::string condition = browse::construitConditionRecherche(texte, {true, true, true, true});
    for (int zone = 0; zone < static_cast<int>(browse::kZones.size()); ++zone)
        lit(base.OpenRecordset(browse::construitRequete(zone, zone, condition)));
    exige(lit(base.OpenRecordset(browse::construitRequete(browse::kZoneTous, 0, condition))) >= 1,
          "a search finds what it is for");
}

// Small ones of each form, one with rows that moved, and the real ones where they are at hand.
std::vector<std::string> basesJet() {
    std::vector<std::string> toutes;
    for (int i = 0; i < 4; ++i) {
        BaseJet base = doubles::collectionJet(5, 1000);
        base.cartesSurDesPages = i == 1;
        base.cle = i == 2 ? 0x12345678 : 0;
        for (std::size_t film = 0; i == 3 && film < 24; ++film)
            base.ligne(0, BaseJet::Valeurs(13, std::string(film, 'r')),
                       film % 5 == 0 ? BaseJet::Place::Deplacee : BaseJet::Place::Normale);
        toutes.push_back(base.octets());
    }
    for (const char* nom : {"Films-2003-remaniee.mdb", "Films-97.mdb", "Vide-2000.mdb"})
        if (std::ifstream flux(doubles::donneesReelles("bases-jet") / nom, std::ios::binary); flux)
            toutes.emplace_back(std::istreambuf_iterator<char>(flux), std::istreambuf_iterator<char>());
    return toutes;
}

// What a strict reading gives whole, the other gives as well; more only where the declared rows fell short.
void compareLesLectures(jet::Lecteur& lecteur, jet::Lecteur& acharne, const jet::Table& table) {
    std::vector<std::vector<std::optional<std::string>>> lues;
    const jet::Bilan bilan =
        lecteur.parcourt(table, [&](jet::Ligne ligne) { return lues.emplace_back(ligne.begin(), ligne.end()), true; });
    const auto meme = std::ranges::find(acharne.tables(), table.page, &jet::Table::page);
    exige(meme != acharne.tables().end(), "both readings know the table");
    std::size_t rang = 0;
    acharne.parcourtCeQuiEstLisible(*meme, [&](jet::Ligne ligne, std::span<const jet::Perte> pertes) {
        if (rang >= lues.size()) return true;
        exige(pertes.empty() || (ligne.empty() && bilan.pagesEcartees > 0), "nothing is lost of a whole table");
        exige(ligne.empty() || std::ranges::equal(ligne, lues[rang++]), "both readings give the same rows");
        return true;
    });
    exige(rang == lues.size(), "both readings give all rows");
}

void litBaseJet(const std::string& chemin, std::size_t taille) {
    try {
        jet::Lecteur lecteur(chemin), acharne(chemin, {.abimee = true});
        for (const jet::Table& table : lecteur.tables())
            compareLesLectures(lecteur, acharne, table);
    } catch (const jet::ErreurJet& erreur) {
        exige(*erreur.what() != '\0', "an error says what it is");
    }
    std::size_t rendus = 0;
    const auto compte = [&](jet::Ligne ligne, std::span<const jet::Perte> pertes) {
        for (const auto& valeur : ligne)
            rendus += valeur ? valeur->size() : 0;
        exige(std::ranges::none_of(pertes, [](const jet::Perte& perte) { return perte.raison.empty(); }),
              "a loss has a reason");
        return true;
    };
    try {
        jet::Lecteur acharne(chemin, {.abimee = true});
        for (const jet::Table& table : acharne.tables())
            acharne.parcourtCeQuiEstLisible(table, compte, "Affiche");
    } catch (const jet::ErreurJet&) {  // the head is lost
    }
    exige(rendus <= 2000 * taille, "what comes out is bounded by the file");
}

// The first byte says which base, and whether what is readable is taken; the others are its damage.
void baseJet(std::string_view octets) {
    static const std::vector<std::string> bases = basesJet();
    if (octets.empty()) return;
    const auto choix = static_cast<unsigned char>(octets[0]);
    const std::string fichier = abime(bases[choix % 8 % bases.size()], octets.substr(1));
    doubles::MachineDEssai machine;
    const std::string chemin = machine.dossier.ecrit(kNom, fichier), nouvelle = machine.dossier.chemin("nouvelle.mdb");
    litBaseJet(chemin, fichier.size());
    ecran::Progression barre;
    const db::IssueJet issue =
        db::ConversionJet(barre, machine.ecranMuet)(chemin, nouvelle, {.motDePasse = {}, .abimee = choix % 16 >= 8});
    exige(issue.estFaite() == machine.dossier.existe("nouvelle.mdb"), "a base is made, or none");
    exige(issue.estFaite() || issue.echec, "a failure is told");
    exige(machine.dossier.lit(kNom) == fichier, "the original stays as it was");
}

constexpr std::array kCibles{Cible{"enonce", enonce, 300, 300}, Cible{"base_abimee", baseAbimee, 140, 20},
                             Cible{"base_etrangere", baseEtrangere, 500, 15}, Cible{"jet", baseJet, 141, 60}};

}  // namespace

std::span<const Cible> ciblesDesBases() {
    return kCibles;
}

}  // namespace hostile
