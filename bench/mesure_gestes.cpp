// mesure_gestes DOSSIER FICHES [essentiel] [piles]: one session of the program in its window, driven by its published control names; for
// each gesture the longest stretch in which no event was let through. It changes the base.

#include "Guetteur.h"
#include "SansFenetre.h"
#include "Surdite.h"
#include "platform/systeme/Memoire.h"
#include "ui/Apparence.h"
#include "ui/ModeleArbre.h"
#include "ui/Palettes.h"
#include "ui/Programme.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTreeView>
#include <cstring>
#include <functional>
#include <set>

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kSupprimes = 10000;
constexpr int kToutesLesFiches = 1;  // of the zones

// The user who accepts everything, and answers what is asked for in writing, or by a path.
class Dociles final : public dialogues::Dialogues {
  public:
    std::string ecrit = "DVD", fichier, dossier, dernier;
    int MsgBox(const std::string& texte, int style, const std::string&) override {
        dernier = texte;
        if (style == dialogues::kCritique) throw std::runtime_error(texte);
        const bool surLaRessemblance = texte.find("le logiciel vérifie") != std::string::npos;
        return style != dialogues::kQuestion ? dialogues::kOk : surLaRessemblance ? dialogues::kNon : dialogues::kOui;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string&) override { return ecrit; }
    std::string choisitFichier(const dialogues::DemandeFichier&) override { return fichier; }
    std::string choisitDossier(const std::string&, const std::string&) override { return dossier; }
};

class Seance {
  public:
    Seance(std::string dossier, std::string fiches, bool piles)
        : m_dossier(std::move(dossier)), m_fiches(std::move(fiches)), m_surdite(piles), m_piles(piles) {}

    void joue(bool essentiel) {
        m_programme.emplace(m_dossier,
                            ui::Programme::Services{&m_boites, nullptr, &m_documents, &m_programmes, nullptr});
        if (!m_programme->demarre()) throw std::runtime_error("the program ended at its start");
        geste("start", [] {});
        listes();
        filtre();
        if (essentiel) return;
        films();
        pages();
        exports();
        entretien();
        fenetre();
        suppressions();
        geste("close", [&] { m_programme->fenetre().close(); });
    }

  private:
    template <typename Type = QWidget>
    Type& trouve(const char* nom) {
        for (QWidget* fenetre : QApplication::topLevelWidgets()) {
            if (fenetre->objectName() == QLatin1String(nom))
                if (auto* lui = dynamic_cast<Type*>(fenetre)) return *lui;
            if (auto* trouve = fenetre->findChild<Type*>(QString::fromLatin1(nom))) return *trouve;
        }
        throw std::runtime_error(std::string("no control named ") + nom);
    }
    app::Etats& etats() { return m_programme->session().etats; }
    const browse::VueArbre& arbre() { return etats().liste.TreeView1; }

    // Until nothing has been left to do for a while: nothing tells that from outside.
    void repose(double duree = 250) {
        for (const double depart = bench::maintenant();
             bench::maintenant() - depart < duree || m_programme->commande().enCours();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    void geste(const std::string& nom, const std::function<void()>& fait, double repos = 250) {
        const double pire = m_surdite.pireDe(fait, [&] { repose(repos); });
        bench::declare(nom, pire);
        if (!m_piles || pire < 90) return;
        std::cerr << "=== " << nom << ' ' << pire << '\n';
        m_surdite.ecritLesPiles();
    }
    void clique(const char* nom) {
        auto& bouton = trouve<QAbstractButton>(nom);
        if (!bouton.isEnabled() || !bouton.isVisible()) throw std::runtime_error(std::string("cannot be used: ") + nom);
        bouton.click();
    }
    void geste(const std::string& nom, const char* bouton) {
        geste(nom, [&] { clique(bouton); });
    }
    void choisit(const char* nom, int indice) {
        auto& liste = trouve<QComboBox>(nom);
        liste.setCurrentIndex(indice);
        emit liste.activated(indice);
    }
    void ecrit(const char* nom, const QString& texte) {
        auto& champ = trouve<QLineEdit>(nom);
        champ.setText(texte);
        champ.setModified(true);
    }
    void frappe(const char* nom, int touche, const QString& texte = {}) {
        QKeyEvent evenement(QEvent::KeyPress, touche, Qt::NoModifier, texte);
        QApplication::sendEvent(&trouve(nom), &evenement);
    }
    int unFilm(std::size_t rang) {
        const auto& noeuds = arbre().Nodes;
        for (int i = 1; i <= noeuds.Count(); ++i)
            if (!noeuds.estGroupe(i) && rang-- == 0) return i;
        throw std::runtime_error("the list is too short");
    }
    void montreUnFilm(std::size_t rang) {
        auto& vue = trouve<QTreeView>("TreeView1");
        const int noeud = unFilm(rang);
        auto& modele = static_cast<ui::ModeleArbre&>(*vue.model());
        const QModelIndex film = modele.indexDuNoeud(noeud);
        vue.expand(film.parent());
        vue.scrollTo(film);
        emit vue.clicked(film);
    }

    void listes() {
        for (const int i : bench::kTris)
            geste("sort" + std::to_string(i), [&] { choisit("ChoixTri", i); });
        for (const int i : bench::kZones)
            geste("zone" + std::to_string(i), [&] { choisit("ChoixZone", i); });
        geste("percentages", "AffStats");
        geste("percentages_off", "AffStats");
        geste("zones_opened", [&] { trouve<QComboBox>("ChoixZone").showPopup(); });
        geste("zones_closed", [&] { trouve<QComboBox>("ChoixZone").hidePopup(); });
        geste("search_panel", "cmdFonctionRecherche");
        for (const char* texte : {"e", "introuvable", "horloger"}) {
            ecrit("Text2", QString::fromLatin1(texte));
            geste(std::string("search_") + texte, "cmdRecherche");
        }
        geste("all_films", [&] { choisit("ChoixZone", kToutesLesFiches); });
    }

    void filtre() {
        geste("filter_entered", [&] { trouve("Filtre").setFocus(); });
        int rang = 0;
        for (const QChar lettre : QStringLiteral("horl"))
            geste("filter_key" + std::to_string(++rang), [&] {
                frappe("Filtre", Qt::Key_A, lettre);
                attendsLeFiltre();
            });
        geste("filter_back", [&] { frappe("Filtre", Qt::Key_Backspace); });
        geste("filter_cleared", [&] { frappe("Filtre", Qt::Key_Escape); });
        geste("filter_a", [&] { frappe("Filtre", Qt::Key_A, QStringLiteral("a")); });
        geste("filter_sort", [&] { choisit("ChoixTri", 4); });
        geste("filter_cleared_grouped", [&] { frappe("Filtre", Qt::Key_Escape); });
    }
    void attendsLeFiltre() {
        const auto& compte = trouve<QLabel>("lblCompteFiltre");
        while (compte.text().startsWith(QLatin1String("Lecture")))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }

    void films() {
        geste("film_shown", [&] { montreUnFilm(5000); });
        geste("film_page", "cmdAutresInfos");
        geste("holding_page", "Option1_1");
        for (const char* nom : {"Combo6_0", "Combo6_1", "Combo7_0", "Combo7_1", "Combo7_2"}) {
            geste(std::string("opened_") + nom, [&] { trouve<QComboBox>(nom).showPopup(); });
            geste(std::string("closed_") + nom, [&] { trouve<QComboBox>(nom).hidePopup(); });
        }
        geste("holding_stored", "cmdValiderInfosPossessions");
        m_boites.ecrit = "7";
        geste("rating", "cmdModifieNote");
        geste("rating_undone", "cmdDefaire");
        geste("rating_redone", "cmdRetablir");
        geste("film_shown_again", [&] { montreUnFilm(6000); });
        geste("correction", "cmdModifierTitre");
        ecrit("Text3_0", QStringLiteral("Un titre qui n'existait pas"));
        geste("correction_stored", "cmdAjoutFilm");
        geste("entry", "cmdAfficherFonctions");
        geste("entry_page", "Command13_1");
        ecrit("Text3_0", QStringLiteral("Tout nouveau"));
        ecrit("Text3_1", QStringLiteral("Une Inconnue"));
        geste("film_added", "cmdAjoutFilm");
        geste("import_page", [&] {
            clique("cmdAfficherFonctions");
            clique("Command13_0");
        });
        m_boites.dossier = m_fiches;
        m_boites.ecrit = "DVD";
        geste("import_folder", "cmdParcourir2");
        geste("import", "cmdAjoutAuto");
        geste("import_undone", "cmdDefaire");
        geste("import_redone", "cmdRetablir");
        geste("zone_after_import", [&] { choisit("ChoixZone", kToutesLesFiches); });
    }

    void pages() {
        geste("collection", "cmdCollection");
        for (const char* onglet :
             {"OngletAffiches", "OngletPrets", "OngletStatistiques", "OngletSante", "OngletDoublons", "OngletCeSoir"})
            geste(
                onglet, [&] { clique(onglet); }, 1500);
        geste("tonight_another", "cmdUnAutre");
        clique("OngletSante");
        geste("health", "cmdExaminer");
        clique("OngletDoublons");
        geste("pairs", "cmdChercherDoublons");
        auto& paires = trouve<QTreeView>("lstDoublons");
        geste("pair_chosen", [&] { paires.setCurrentIndex(paires.model()->index(1, 0)); });
        clique("OngletStatistiques");
        auto& sujets = trouve<QComboBox>("SujetDesStatistiques");
        for (int i = 0; i < sujets.count(); ++i)
            geste("statistics" + std::to_string(i), [&] { choisit("SujetDesStatistiques", i); });
        clique("OngletAffiches");
        auto& barre = *trouve<QAbstractItemView>("MurDAffiches").verticalScrollBar();
        geste("wall_scrolled", [&] {
            for (int pas = 0; pas <= 40; ++pas) {
                barre.setValue(static_cast<int>(static_cast<long>(barre.maximum()) * pas / 40));
                repose(20);
            }
        });
    }

    void exports() {
        geste("tools", "cmdConfigurer");
        geste("export_window", "cmdExporter");
        const std::pair<const char*, const char*> formats[] = {
            {"optCsv", "e.csv"}, {"optHtml", "e.html"}, {"optFiches", "fiches exportees"}, {"optPdf", "e.pdf"}};
        for (const auto& [format, nom] : formats) {
            if (!trouve("frmExport").isVisible()) clique("cmdExporter");
            geste(std::string("choice_") + format, [&] { trouve<QAbstractButton>(format).click(); });
            // What takes long only because it is much to write is written for fewer.
            ecrit("txtCheminExport", QString::fromStdString(m_dossier) + QString::fromLatin1(nom));
            geste(std::string("export_") + format, "cmdFaireExport");
        }
        m_boites.ecrit = m_dossier + "liste";
        geste("list", "cmdCreerListe");
        geste("titles_preview", "cmdApercuTitres");
        geste("titles_preview_closed", "cmdFermerApercu");
    }

    void entretien() {
        geste("titles_corrected", "cmdPonctuation");
        geste("titles_undone", "cmdDefaire");
        geste("compaction", "cmdCompacter");
        geste("information", "cmdInfosBase");
        m_boites.fichier = m_dossier + "Copie jet.mdb";
        geste("jet", "cmdEnregistreJet");
        clique("cmdConfig_1");
        m_boites.dossier = m_dossier + "Affiches";
        geste("posters_in_files", "Option3_1");
        if (trouve("cmdMajBase").isVisible()) geste("conversion", "cmdMajBase");
        geste("copies_window", "cmdSauvegardes");
        geste("copies_compared", "cmdComparerSauvegarde");
        geste("copies_back", "cmdRevenirSauvegarde");
        geste("copies_closed", "cmdFermerSauvegardes");
    }

    void fenetre() {
        QWidget& principale = m_programme->fenetre();
        const QSize taille = principale.size();
        for (const QSize& autre : {QSize(1000, 600), QSize(1500, 900), taille})
            geste("resized_" + std::to_string(autre.width()), [&] { principale.resize(autre); });
        geste("dark", [] { QApplication::setPalette(ui::paletteSombre()); });
        geste("light", [] { QApplication::setPalette(ui::paletteClaire()); });
    }

    void suppressions() {
        clique("cmdConfigurer");
        clique("cmdConfig_0");
        geste("deletion_panel", "cmdMultiSuppress");
        geste("ticks_shown", "Option4_1");
        geste("ticked", [&] { coche(kSupprimes); });
        geste("unticked_one", [&] { bascule(Qt::Unchecked); });
        geste("ticked_one", [&] { bascule(Qt::Checked); });
        geste("ticks_filtered", [&] { frappe("Filtre", Qt::Key_A, QStringLiteral("o")); });
        geste("ticks_unfiltered", [&] { frappe("Filtre", Qt::Key_Escape); });
        geste("deleted", "cmdSupprTitresSelect");
        geste("deletion_undone", "cmdDefaire");
        geste("ticks_hidden", "Option4_0");
        geste("one_film", [&] { montreUnFilm(3000); });
        geste("deleted_one", "cmdSupprimerTitre");
    }
    // As a user does it one by one, but for what each tick takes.
    void coche(std::size_t films) {
        auto& vue = etats().liste.TreeView1;
        for (int i = 1; i <= vue.Nodes.Count() && vue.coches.size() + 1 < films; ++i)
            if (!vue.Nodes.estGroupe(i)) vue.coches.insert(i);
        bascule(Qt::Checked);
    }
    void bascule(Qt::CheckState etat) {
        auto& modele = static_cast<ui::ModeleArbre&>(*trouve<QTreeView>("TreeView1").model());
        modele.setData(modele.indexDuNoeud(unFilm(kSupprimes - 1)), etat, Qt::CheckStateRole);
    }

    std::string m_dossier, m_fiches;
    bench::Surdite m_surdite;
    bool m_piles;
    Dociles m_boites;
    doubles::DocumentsEnregistres m_documents;
    doubles::ProgrammesSimules m_programmes;
    std::optional<ui::Programme> m_programme;
};

}  // namespace

int main(int nombre, char** mots) try {
    systeme::gardeLesGrandsBlocsAPart();  // as the program does
    QApplication application(nombre, mots);
    QApplication::setApplicationName(QStringLiteral("Ambrelis"));
    if (nombre < 3) throw std::invalid_argument("usage: mesure_gestes DOSSIER FICHES [essentiel] [piles]");
    const std::set<std::string> options(mots + 3, mots + nombre);
    ui::habille(std::string(mots[1]) + "/");
    Seance(std::string(mots[1]) + "/", mots[2], options.contains("piles")).joue(options.contains("essentiel"));
    return 0;
} catch (const std::exception& e) {
    std::cerr << "mesure_gestes: " << e.what() << '\n';
    return 1;
}
