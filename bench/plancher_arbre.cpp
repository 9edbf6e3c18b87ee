// plancher_arbre BASE [CLICS]: the floor of the window. Bare SQLite with its own comparison, the needed columns only, plain
// vectors, a QTreeView. Same gestures, same figures as mesure_fenetre.

#include "Guetteur.h"
#include "Sqlite.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QTreeView>
#include <vector>

namespace {

struct Groupe {
    std::string nom;
    std::vector<std::string> titres;
    std::vector<long long> films;  // row ids
};
using Groupes = std::vector<Groupe>;

class Modele : public QAbstractItemModel {
  public:
    void montre(Groupes groupes) {
        beginResetModel();
        m_groupes = std::move(groupes);
        endResetModel();
    }
    [[nodiscard]] long long film(std::size_t rang) const {
        for (const Groupe& g : m_groupes) {
            if (rang < g.films.size()) return g.films[rang];
            rang -= g.films.size();
        }
        return 0;
    }
    [[nodiscard]] std::size_t nombreDeFilms() const {
        std::size_t total = 0;
        for (const Groupe& g : m_groupes)
            total += g.films.size();
        return total;
    }

    QModelIndex index(int ligne, int colonne, const QModelIndex& parent) const override {
        return createIndex(ligne, colonne, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : 0);
    }
    QModelIndex parent(const QModelIndex& noeud) const override {
        return noeud.internalId() == 0 ? QModelIndex()
                                       : createIndex(static_cast<int>(noeud.internalId()) - 1, 0, quintptr{0});
    }
    int rowCount(const QModelIndex& parent) const override {
        if (!parent.isValid()) return static_cast<int>(m_groupes.size());
        return parent.internalId() == 0 ? static_cast<int>(m_groupes[parent.row()].titres.size()) : 0;
    }
    int columnCount(const QModelIndex&) const override { return 1; }
    Qt::ItemFlags flags(const QModelIndex& noeud) const override {
        const Qt::ItemFlags ordinaires = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        return noeud.internalId() == 0 ? ordinaires : ordinaires | Qt::ItemNeverHasChildren;
    }
    QVariant data(const QModelIndex& noeud, int role) const override {
        if (role != Qt::DisplayRole) return {};
        const std::string& texte = noeud.internalId() == 0 ? m_groupes[noeud.row()].nom
                                                           : m_groupes[noeud.internalId() - 1].titres[noeud.row()];
        return QString::fromStdString(texte);
    }

  private:
    Groupes m_groupes;
};

std::string enonce(int zone, int tri) {
    static const char* const cles[] = {"Titre",   "Titre", "Annee", "Realisateur", "Genre",
                                       "Origine", "Duree", "Note",  "Support"};
    static const char* const conditions[] = {
        "", "", " WHERE Pret = ''", " WHERE Pret <> ''", " WHERE Reserve <> ''", " WHERE Titre2 IS NULL"};
    std::string sql = std::string("SELECT Films.rowid, Titre, ") + cles[tri] + " FROM Films";
    if (zone != 1)
        sql +=
            std::string(zone == 5 ? " LEFT" : "") + " JOIN Personnel ON Titre = Titre2 AND Realisateur = Realisateur2";
    return sql + conditions[zone] + " ORDER BY " + cles[tri] + (zone == 1 ? "" : ", Titre2");
}

// Adjacent rows of one heading: the first letter, or the value sorted on.
Groupes groupes(const bench::Sqlite& base, int zone, int tri) {
    Groupes resultat;
    bench::Enonce lignes(base, enonce(zone, tri));
    while (lignes.ligne()) {
        const std::string_view titre = lignes.colonne(1);
        const std::string_view nom = tri == 0 ? titre.substr(0, 1) : lignes.colonne(2);
        if (resultat.empty() || resultat.back().nom != nom) resultat.push_back({std::string(nom), {}, {}});
        resultat.back().titres.emplace_back(titre);
        resultat.back().films.push_back(lignes.entier(0));
    }
    return resultat;
}

// The sheet's rows and its poster, decoded and fitted to its place.
void montreFiche(const bench::Sqlite& base, long long film, QLabel& image) {
    bench::Enonce fiche(base,
                        "SELECT Affiche, Films.*, Personnel.* FROM Films LEFT JOIN Personnel "
                        "ON Titre = Titre2 AND Realisateur = Realisateur2 WHERE Films.rowid = ?");
    fiche.lie(1, film);
    if (!fiche.ligne()) return;
    const std::string_view affiche = fiche.colonne(0);
    const QImage lue = QImage::fromData(reinterpret_cast<const uchar*>(affiche.data() + 3),
                                        static_cast<int>(affiche.size() - 3), "JPG");
    image.setPixmap(QPixmap::fromImage(lue.scaled(193, 297, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

void mesureClics(const bench::Sqlite& base, const Modele& modele, QLabel& image, std::size_t nombre) {
    std::vector<double> durees;
    bench::Guetteur guetteur(image);
    for (std::size_t i = 0; i < nombre; ++i) {
        const long long film = modele.film(i * modele.nombreDeFilms() / nombre);
        durees.push_back(guetteur.dureeDe([&] { montreFiche(base, film, image); }));
    }
    bench::declareSerie("clic", std::move(durees));
}

}  // namespace

int main(int nombre, char** mots) try {
    QApplication application(nombre, mots);
    if (nombre < 2) throw std::invalid_argument("usage: plancher_arbre BASE [CLICS]");
    const bench::Sqlite base(mots[1]);
    QWidget fenetre;
    QTreeView arbre;
    QLabel image;
    Modele modele;
    arbre.setHeaderHidden(true);
    arbre.setUniformRowHeights(true);
    arbre.setModel(&modele);
    QHBoxLayout disposition(&fenetre);
    disposition.addWidget(&arbre);
    disposition.addWidget(&image);
    fenetre.resize(1000, 700);

    bench::Guetteur guetteur(*arbre.viewport());
    modele.montre(groupes(base, 0, 0));
    fenetre.show();
    guetteur.attend();
    bench::declare("peint", bench::depuisLeDepart());

    const auto mesure = [&](const std::string& nom, int zone, int tri) {
        bench::declare(nom, guetteur.dureeDe([&] { modele.montre(groupes(base, zone, tri)); }));
    };
    for (int tri : bench::kTris)
        mesure("tri" + std::to_string(tri), 0, tri);
    for (int zone : bench::kZones)
        mesure("zone" + std::to_string(zone), zone, 0);
    if (nombre > 2) mesureClics(base, modele, image, std::stoul(mots[2]));
    bench::declare("memoire", bench::memoireDePointe());
    return 0;
} catch (const std::exception& e) {
    std::cerr << "plancher_arbre: " << e.what() << '\n';
    return 1;
}
