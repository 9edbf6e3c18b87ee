#include "platform/dao/Enonce.h"

#include "platform/dao/Erreurs.h"
#include "util/Ascii.h"

namespace dao::interne {

namespace {

// One word of a statement. A quoted text stands without its quotes, its doubled quotes made single.
struct Mot {
    enum class Nature { Nom, Texte, Signe, Fin };

    Nature nature = Nature::Fin;
    std::string texte{};
};

bool estChiffre(char c) {
    return c >= '0' && c <= '9';
}
bool estLettre(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}
bool estBlanc(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Where the text that opens at `debut` ends, past its closing quote; its content goes to `contenu`.
std::size_t litTexte(std::string_view enonce, std::size_t debut, std::string& contenu) {
    const char guillemet = enonce[debut];
    for (std::size_t i = debut + 1; i < enonce.size(); ++i) {
        if (enonce[i] != guillemet) {
            contenu += enonce[i];
        } else if (i + 1 < enonce.size() && enonce[i + 1] == guillemet) {
            contenu += enonce[i++];
        } else {
            return i + 1;
        }
    }
    jette(kErreurSyntaxe, "Erreur de syntaxe : un texte n'est pas fermé dans la requête.");
}

template <typename Predicat>
std::size_t finDeSuite(std::string_view enonce, std::size_t debut, Predicat appartient) {
    while (debut < enonce.size() && appartient(enonce[debut]))
        ++debut;
    return debut;
}

std::size_t litMot(std::string_view enonce, std::size_t debut, Mot& mot) {
    const char premier = enonce[debut];
    if (premier == '"' || premier == '\'') {
        mot.nature = Mot::Nature::Texte;
        return litTexte(enonce, debut, mot.texte);
    }
    std::size_t fin = debut + 1;
    if (estLettre(premier)) {
        mot.nature = Mot::Nature::Nom;
        fin = finDeSuite(enonce, debut, [](char c) { return estLettre(c) || estChiffre(c); });
    } else {
        mot.nature = Mot::Nature::Signe;
        if (enonce.substr(debut, 2) == "<>") ++fin;
        if (!estChiffre(premier) && std::string_view("=<>+(),.;*").find(premier) == std::string_view::npos)
            jette(kErreurSyntaxe,
                  std::string("Erreur de syntaxe : caractère inattendu dans la requête (") + premier + ").");
    }
    mot.texte = enonce.substr(debut, fin - debut);
    return fin;
}

// The last is Fin. Throws ErreurDao 3075 at what is no word.
std::vector<Mot> coupeEnMots(std::string_view enonce) {
    std::vector<Mot> mots;
    for (std::size_t i = finDeSuite(enonce, 0, estBlanc); i < enonce.size(); i = finDeSuite(enonce, i, estBlanc)) {
        i = litMot(enonce, i, mots.emplace_back());
    }
    mots.emplace_back();
    return mots;
}

class Analyseur {
  public:
    explicit Analyseur(std::string_view texte) : m_mots(coupeEnMots(texte)) {}

    Enonce enonce() {
        Enonce enonce;
        attend("SELECT");
        enonce.distinct = mange("DISTINCT");
        if (!enonce.distinct) mange("DISTINCTROW");
        if (!mange("*")) enonce.colonnes = liste(&Analyseur::colonne, ",");
        attend("FROM");
        enonce.table = nom();
        enonce.jointure = jointure();
        if (mange("WHERE")) enonce.termes = liste(&Analyseur::terme, "AND");
        if (mange("ORDER")) {
            attend("BY");
            enonce.tris = liste(&Analyseur::tri, ",");
        }
        mange(";");
        if (mot().nature != Mot::Nature::Fin) inattendu();
        return enonce;
    }

  private:
    const Mot& mot() const { return m_mots[m_rang]; }

    [[noreturn]] void inattendu() const {
        const bool fin = mot().nature == Mot::Nature::Fin;
        jette(kErreurSyntaxe, "Erreur de syntaxe dans la requête, " +
                                  (fin ? std::string("à la fin.") : "près de « " + mot().texte + " »."));
    }

    // A keyword or a sign.
    bool mange(std::string_view attendu) {
        const bool present = mot().nature != Mot::Nature::Texte && util::egalSansCasseAscii(mot().texte, attendu);
        if (present) ++m_rang;
        return present;
    }
    void attend(std::string_view attendu) {
        if (!mange(attendu)) inattendu();
    }

    std::string contenu(Mot::Nature nature) {
        if (mot().nature != nature) inattendu();
        return m_mots[m_rang++].texte;
    }
    std::string nom() { return contenu(Mot::Nature::Nom); }
    std::string texte() { return contenu(Mot::Nature::Texte); }

    NomDeColonne colonne() {
        NomDeColonne resultat{{}, nom()};
        if (mange(".")) {
            resultat.table = std::move(resultat.nom);
            resultat.nom = nom();
        }
        return resultat;
    }

    NomDeColonne tri() {
        NomDeColonne resultat = colonne();
        mange("ASC");
        return resultat;
    }

    template <typename Element>
    std::vector<Element> liste(Element (Analyseur::*element)(), std::string_view separateur) {
        std::vector<Element> resultat;
        do
            resultat.push_back((this->*element)());
        while (mange(separateur));
        if (m_ouvertes != 0) inattendu();
        return resultat;
    }

    // Where AND alone connects, parentheses say nothing: they only have to be closed.
    void ouvre() {
        while (mange("("))
            ++m_ouvertes;
    }
    void ferme() {
        while (m_ouvertes > 0 && mange(")"))
            --m_ouvertes;
    }

    std::optional<Jointure> jointure() {
        Jointure resultat;
        resultat.gauche = mange("LEFT");
        if (!resultat.gauche && !mange("INNER")) return std::nullopt;
        attend("JOIN");
        resultat.table = nom();
        attend("ON");
        resultat.egalites = liste(&Analyseur::egalite, "AND");
        return resultat;
    }

    std::pair<NomDeColonne, NomDeColonne> egalite() {
        ouvre();
        NomDeColonne gauche = colonne();
        attend("=");
        NomDeColonne droite = colonne();
        ferme();
        return {std::move(gauche), std::move(droite)};
    }

    Terme terme() {
        ouvre();
        Terme resultat = mange("INSTR") ? contient() : compare();
        ferme();
        return resultat;
    }

    // The first INSTR is read already; all of them look for the same text.
    Terme contient() {
        Terme resultat{Terme::Epreuve::Contient};
        do {
            if (!resultat.colonnes.empty()) attend("INSTR");
            attend("(");
            resultat.colonnes.push_back(colonne());
            attend(",");
            if (resultat.colonnes.size() > 1 && mot().texte != resultat.texte) inattendu();
            resultat.texte = texte();
            attend(")");
        } while (mange("+"));
        attend(">");
        attend("0");
        return resultat;
    }

    Terme compare() {
        Terme resultat{Terme::Epreuve::Egal, {colonne()}};
        ferme();
        if (mange("IS")) {
            attend("NULL");
            resultat.epreuve = Terme::Epreuve::EstNul;
            return resultat;
        }
        if (mange("LIKE")) {
            resultat.epreuve = Terme::Epreuve::CommencePar;
            resultat.texte = texte();
            const std::size_t fin = resultat.texte.find_first_of("*?#[");
            if (fin == 0 || fin + 1 != resultat.texte.size() || resultat.texte.back() != '*') inattendu();
            resultat.texte.pop_back();
            return resultat;
        }
        if (mange("<>"))
            resultat.epreuve = Terme::Epreuve::Different;
        else
            attend("=");
        resultat.texte = texte();
        return resultat;
    }

    std::vector<Mot> m_mots;
    std::size_t m_rang = 0;
    int m_ouvertes = 0;
};

}  // namespace

Enonce analyseEnonce(std::string_view texte) {
    return Analyseur(texte).enonce();
}

}  // namespace dao::interne
