#include "platform/dao/Enonce.h"

#include "platform/dao/Analyse.h"
#include "platform/dao/Erreurs.h"

#include <array>
#include <utility>

namespace dao::interne {

namespace {

using Genre = Expression::Genre;

class Analyseur {
  public:
    explicit Analyseur(std::string_view texte) : m_mots(coupeEnMots(texte)) {}

    Enonce enonce() {
        Enonce enonce;
        attendMotCle("SELECT");
        if (mangeMotCle("DISTINCT")) {
            enonce.distinct = true;
        } else {
            mangeMotCle("DISTINCTROW");
        }
        if (!mangeSigne("*")) enonce.colonnes = liste(&Analyseur::colonne);
        attendMotCle("FROM");
        enonce.table = nom();
        enonce.jointure = jointure();
        if (mangeMotCle("WHERE")) enonce.condition = expression();
        if (mangeMotCle("ORDER")) {
            attendMotCle("BY");
            enonce.tris = liste(&Analyseur::tri);
        }
        mangeSigne(";");
        if (mot().genre != Mot::Genre::Fin) inattendu();
        return enonce;
    }

  private:
    const Mot& mot() const { return m_mots[m_rang]; }

    [[noreturn]] void inattendu() const {
        const bool fin = mot().genre == Mot::Genre::Fin;
        jette(kErreurSyntaxe, "Erreur de syntaxe dans la requête, " +
                                  (fin ? std::string("à la fin.") : "près de « " + mot().texte + " »."));
    }

    bool estMotCle(std::string_view motCle) const {
        return mot().genre == Mot::Genre::Nom && egalSansCasseAscii(mot().texte, motCle);
    }
    bool estSigne(std::string_view signe) const { return mot().genre == Mot::Genre::Signe && mot().texte == signe; }
    bool mangeMotCle(std::string_view motCle) { return estMotCle(motCle) && ++m_rang != 0; }
    bool mangeSigne(std::string_view signe) { return estSigne(signe) && ++m_rang != 0; }
    void attendMotCle(std::string_view motCle) {
        if (!mangeMotCle(motCle)) inattendu();
    }
    void attendSigne(std::string_view signe) {
        if (!mangeSigne(signe)) inattendu();
    }

    bool estReserve() const {
        static constexpr std::array<std::string_view, 14> kReserves{
            "SELECT", "FROM", "WHERE", "ORDER", "BY", "INNER", "LEFT", "JOIN", "ON", "AND", "OR", "NOT", "IS", "LIKE"};
        for (const auto reserve : kReserves) {
            if (estMotCle(reserve)) return true;
        }
        return false;
    }

    std::string nom() {
        const bool convient =
            mot().genre == Mot::Genre::NomEntreCrochets || (mot().genre == Mot::Genre::Nom && !estReserve());
        if (!convient) inattendu();
        return m_mots[m_rang++].texte;
    }

    NomDeColonne colonne() {
        NomDeColonne resultat{{}, nom()};
        if (mangeSigne(".")) {
            resultat.table = std::move(resultat.nom);
            resultat.nom = nom();
        }
        return resultat;
    }

    Tri tri() {
        Tri resultat{colonne()};
        resultat.decroissant = mangeMotCle("DESC");
        if (!resultat.decroissant) mangeMotCle("ASC");
        return resultat;
    }

    template <typename Element>
    std::vector<Element> liste(Element (Analyseur::*element)()) {
        std::vector<Element> resultat;
        do
            resultat.push_back((this->*element)());
        while (mangeSigne(","));
        return resultat;
    }

    std::optional<Jointure> jointure() {
        Jointure resultat;
        if (mangeMotCle("LEFT")) {
            resultat.gauche = true;
        } else if (!mangeMotCle("INNER")) {
            return std::nullopt;
        }
        attendMotCle("JOIN");
        resultat.table = nom();
        attendMotCle("ON");
        resultat.condition = expression();
        return resultat;
    }

    static Expression noeud(Genre genre, std::vector<Expression> termes) {
        Expression resultat;
        resultat.genre = genre;
        resultat.termes = std::move(termes);
        return resultat;
    }

    static Expression paire(Genre genre, Expression gauche, Expression droite) {
        std::vector<Expression> termes;
        termes.push_back(std::move(gauche));
        termes.push_back(std::move(droite));
        return noeud(genre, std::move(termes));
    }

    static Expression seul(Genre genre, Expression terme) {
        std::vector<Expression> termes;
        termes.push_back(std::move(terme));
        return noeud(genre, std::move(termes));
    }

    // Or, and, not, comparison, sum, leaf: from the loosest to the tightest. OR and AND hold any number of terms.
    Expression expression() {
        constexpr int kProfondeurMax = 200;
        if (++m_profondeur > kProfondeurMax) jette(kErreurSyntaxe, "Erreur de syntaxe : la requête est trop complexe.");
        Expression resultat =
            suite(Genre::Ou, "OR", [this] { return suite(Genre::Et, "AND", [this] { return negation(); }); });
        --m_profondeur;
        return resultat;
    }

    template <typename Terme>
    Expression suite(Genre genre, std::string_view motCle, Terme terme) {
        Expression premier = terme();
        if (!estMotCle(motCle)) return premier;
        Expression resultat = seul(genre, std::move(premier));
        while (mangeMotCle(motCle))
            resultat.termes.push_back(terme());
        return resultat;
    }

    Expression negation() {
        bool nie = false;
        while (mangeMotCle("NOT"))
            nie = !nie;
        Expression resultat = comparaison();
        return nie ? seul(Genre::Non, std::move(resultat)) : resultat;
    }

    Expression comparaison() {
        Expression gauche = somme();
        if (mangeMotCle("IS")) {
            const bool non = mangeMotCle("NOT");
            attendMotCle("NULL");
            return seul(non ? Genre::EstNonNul : Genre::EstNul, std::move(gauche));
        }
        if (mangeMotCle("LIKE")) return paire(Genre::Comme, std::move(gauche), somme());
        static const std::array<std::pair<std::string_view, Genre>, 6> kSignes{{{"=", Genre::Egal},
                                                                                {"<>", Genre::Different},
                                                                                {"<", Genre::Inferieur},
                                                                                {"<=", Genre::InferieurOuEgal},
                                                                                {">", Genre::Superieur},
                                                                                {">=", Genre::SuperieurOuEgal}}};
        for (const auto& [signe, genre] : kSignes) {
            if (mangeSigne(signe)) return paire(genre, std::move(gauche), somme());
        }
        return gauche;
    }

    Expression somme() {
        Expression resultat = feuille();
        while (estSigne("+") || estSigne("-")) {
            const Genre genre = estSigne("+") ? Genre::Plus : Genre::Moins;
            ++m_rang;
            resultat = paire(genre, std::move(resultat), feuille());
        }
        return resultat;
    }

    Expression feuille() {
        if (mangeSigne("(")) {
            Expression resultat = expression();
            attendSigne(")");
            return resultat;
        }
        Expression resultat;
        if (mot().genre == Mot::Genre::Texte || mot().genre == Mot::Genre::Nombre) {
            resultat.genre = mot().genre == Mot::Genre::Texte ? Genre::Texte : Genre::Nombre;
            resultat.texte = mot().texte;
            resultat.nombre = mot().nombre;
            ++m_rang;
            return resultat;
        }
        if (mangeMotCle("NULL")) return resultat;
        if (estMotCle("INSTR")) return appelInstr();
        resultat.genre = Genre::Colonne;
        resultat.colonne = colonne();
        return resultat;
    }

    Expression appelInstr() {
        ++m_rang;
        attendSigne("(");
        Expression texte = expression();
        attendSigne(",");
        Expression cherche = expression();
        attendSigne(")");
        return paire(Genre::Instr, std::move(texte), std::move(cherche));
    }

    std::vector<Mot> m_mots;
    std::size_t m_rang = 0;
    int m_profondeur = 0;
};

}  // namespace

Enonce analyseEnonce(std::string_view texte) {
    return Analyseur(texte).enonce();
}

}  // namespace dao::interne
