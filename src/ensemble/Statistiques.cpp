#include "ensemble/Statistiques.h"

#include "db/Requete.h"
#include "ensemble/Valeurs.h"
#include "platform/dao/Comparaison.h"
#include "platform/dao/LigneSupprimee.h"
#include "platform/systeme/Horloge.h"
#include "util/Ascii.h"
#include "util/Durees.h"
#include "util/Nombres.h"

#include <algorithm>
#include <array>
#include <climits>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace ensemble {

namespace {

constexpr std::array kMois{"janvier", "février", "mars",      "avril",   "mai",      "juin",
                           "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};

// Bars by the values of a column, which the base's comparison holds together; each bears the value met first.
class ParValeur {
  public:
    void compte(std::string_view valeur, std::uint32_t ligne) {
        while (valeur.starts_with(' '))
            valeur.remove_prefix(1);
        while (valeur.ends_with(' '))
            valeur.remove_suffix(1);
        if (valeur.empty()) return;
        const auto [place, nouvelle] = m_rangs.try_emplace(std::string(valeur), m_barres.size());
        if (nouvelle) place->second = rangDe(valeur);
        std::vector<std::uint32_t>& lignes = m_barres[place->second].lignes;
        if (lignes.empty() || lignes.back() != ligne) lignes.push_back(ligne);
    }
    [[nodiscard]] std::vector<Barre> barres() && {
        std::stable_sort(m_barres.begin(), m_barres.end(), [](const Barre& a, const Barre& b) {
            return a.nombre() != b.nombre() ? a.nombre() > b.nombre()
                                            : dao::cleDeComparaison(a.libelle) < dao::cleDeComparaison(b.libelle);
        });
        return std::move(m_barres);
    }

  private:
    std::size_t rangDe(std::string_view valeur) {
        const auto [place, nouvelle] = m_cles.try_emplace(dao::cleDeComparaison(valeur), m_barres.size());
        if (nouvelle) m_barres.push_back({std::string(valeur)});
        return place->second;
    }

    std::unordered_map<std::string, std::size_t> m_rangs;  // by the very text: most values come again and again
    std::unordered_map<std::string, std::size_t> m_cles;
    std::vector<Barre> m_barres;
};

// Bars by a number that stands for their order.
class ParRang {
  public:
    template <typename Libelle>
    void compte(int rang, Libelle libelle, std::uint32_t ligne) {
        auto place = m_barres.find(rang);
        if (place == m_barres.end()) place = m_barres.emplace(rang, Barre{libelle()}).first;
        place->second.lignes.push_back(ligne);
    }
    [[nodiscard]] std::vector<Barre> barres() && {
        std::vector<Barre> barres;
        for (auto& [rang, barre] : m_barres)
            barres.push_back(std::move(barre));
        return barres;
    }

  private:
    std::map<int, Barre> m_barres;
};

// The year's first four figures in a row; 0 without any.
int anneeDe(std::string_view texte) {
    int chiffres = 0;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        chiffres = util::estUnChiffre(texte[i]) ? chiffres + 1 : 0;
        if (chiffres == 4) return util::valEntier(texte.substr(i - 3, 4));
    }
    return 0;
}

struct Classe {
    int sous;  // minutes
    const char* libelle;
};
constexpr std::array kClasses{Classe{60, "Moins de 1 h"},     Classe{90, "1 h à 1 h 29"},
                              Classe{120, "1 h 30 à 1 h 59"}, Classe{150, "2 h à 2 h 29"},
                              Classe{180, "2 h 30 à 2 h 59"}, Classe{INT_MAX, "3 h et plus"}};

// The supports of the holdings, where the listing does not have them.
class SupportsPossedes {
  public:
    explicit SupportsPossedes(const Contexte& c)
        : m_lignes(db::ouvreRequete(c, "SELECT Titre2, Realisateur2, Support FROM personnel",
                                    db::NumeroErreur::Statistiques)),
          m_titre(m_lignes.colonne("Titre2")),
          m_realisateur(m_lignes.colonne("Realisateur2")),
          m_support(m_lignes.colonne("Support")) {}
    // Reads so many more; false when there are none.
    bool lit(int lignes) {
        for (; lignes > 0 && !m_lignes.Eof(); --lignes, m_lignes.MoveNext())
            dao::siPresente([&] {
                std::string cle = cleDe(m_lignes.vue(m_titre));
                cle += cleDe(m_lignes.vue(m_realisateur));
                m_supports.try_emplace(std::move(cle), m_lignes.vue(m_support));
            });
        return !m_lignes.Eof();
    }
    [[nodiscard]] const std::string* support(std::string_view titre, std::string_view realisateur) const {
        const auto place = m_supports.find(cleDe(titre) + cleDe(realisateur));
        return place == m_supports.end() ? nullptr : &place->second;
    }

  private:
    static std::string cleDe(std::string_view texte) { return dao::cleDeComparaison(texte) + '\0'; }

    dao::Recordset m_lignes;
    dao::Colonne m_titre, m_realisateur, m_support;
    std::unordered_map<std::string, std::string> m_supports;
};

constexpr int kLignesParPas = 256;

enum Champ { kTitre, kRealisateur, kGenre, kAnnee, kOrigine, kNote, kDuree, kAjout, kSupport };
constexpr std::array<const char*, 9> kChamps{"Titre", "Realisateur", "Genre",     "Annee",  "Origine",
                                             "Note",  "Duree",       "DateAjout", "Support"};

}  // namespace

// The listing is walked for all subjects but the supports of holdings; then these are read, and the listing is walked for
// them.
class Comptage::Interieur {
  public:
    explicit Interieur(const Contexte& c)
        : m_ordre(systeme::ordreDesDates()),
          m_lignes(c.base.liste.estOuvert() ? static_cast<std::uint32_t>(c.base.liste.RecordCount()) : 0) {
        for (std::size_t i = 0; m_lignes > 0 && i < kChamps.size(); ++i)
            m_colonnes[i] = c.base.liste.colonne(kChamps[i]);
        m_supportsAPart = m_lignes > 0 && m_colonnes[kSupport].rang < 0;
    }

    // False at the end.
    bool pas(const Contexte& c) {
        if (m_etape == Etape::Liste) {
            if (parcours(c, &Interieur::compteLaLigne)) return true;
            donne();
            m_etape = m_supportsAPart ? Etape::Possessions : Etape::Finie;
        } else if (m_etape == Etape::Possessions) {
            if (!m_possedes) m_possedes.emplace(c);
            if (!m_possedes->lit(kLignesParPas)) m_etape = Etape::Supports;
        } else if (m_etape == Etape::Supports && !parcours(c, &Interieur::compteLeSupportPossede)) {
            donneLesSupports();
            m_etape = Etape::Finie;
        }
        return m_etape != Etape::Finie;
    }
    std::vector<Diagramme> prend() { return std::exchange(m_prets, {}); }

  private:
    enum class Etape { Liste, Possessions, Supports, Finie };

    // Some more rows of the listing; false at its end, where the next walk begins anew.
    bool parcours(const Contexte& c, void (Interieur::*compte)(dao::Recordset&)) {
        dao::Recordset& liste = c.base.liste;
        const std::uint32_t fin = std::min(m_lignes, m_ligne + kLignesParPas);
        if (m_ligne < fin) {
            liste.MoveFirst();
            liste.Move(static_cast<long>(m_ligne));
        }
        for (; m_ligne < fin; liste.MoveNext()) {
            ++m_ligne;
            dao::siPresente([&] { (this->*compte)(liste); });
        }
        if (m_ligne < m_lignes) return true;
        m_ligne = 0;
        return false;
    }

    void compteLaLigne(dao::Recordset& liste) {
        for (std::size_t i = 0; i < kChamps.size(); ++i)
            m_champs[i].assign(liste.vue(m_colonnes[i]));
        ++m_films;
        for (const std::string_view genre : valeursDe(m_champs[kGenre]))
            m_genres.compte(genre, m_ligne);
        for (const std::string_view pays : valeursDe(m_champs[kOrigine]))
            m_pays.compte(pays, m_ligne);
        for (const std::string_view realisateur : personnesDe(m_champs[kRealisateur]))
            m_realisateurs.compte(realisateur, m_ligne);
        if (const int annee = anneeDe(m_champs[kAnnee]); annee > 0)
            m_decennies.compte(
                annee / 10, [&] { return "Années " + std::to_string(annee / 10 * 10); }, m_ligne);
        if (const int note = util::arrondiPair(util::Val(m_champs[kNote])); note >= 1 && note <= 10)
            m_notes.compte(
                -note, [&] { return std::to_string(note) + "/10"; }, m_ligne);
        if (!m_supportsAPart) m_supports.compte(m_champs[kSupport], m_ligne);
        compteLaDuree();
        compteLAjout();
    }

    void compteLeSupportPossede(dao::Recordset& liste) {
        const std::string titre(liste.vue(m_colonnes[kTitre]));
        if (const std::string* support = m_possedes->support(titre, liste.vue(m_colonnes[kRealisateur])))
            m_supports.compte(*support, m_ligne);
    }

    void compteLaDuree() {
        const auto minutes = util::minutesDe(m_champs[kDuree]);
        if (!minutes) return;
        const auto classe =
            std::find_if(kClasses.begin(), kClasses.end(), [&](const Classe& c) { return *minutes < c.sous; });
        m_durees.compte(
            static_cast<int>(classe - kClasses.begin()), [&] { return std::string(classe->libelle); }, m_ligne);
    }

    void compteLAjout() {
        const auto date = systeme::dateLue(m_champs[kAjout], m_ordre);
        if (!date) return;
        const int annee = static_cast<int>(date->year());
        const auto mois = static_cast<unsigned>(date->month()) - 1;
        m_ajouts.compte(
            12 * annee + static_cast<int>(mois), [&] { return std::string(kMois[mois]) + " " + std::to_string(annee); },
            m_ligne);
    }

    void donne() {
        ajoute(Sujet::Genre, "Films par genre", std::move(m_genres).barres(), "Sans genre");
        ajoute(Sujet::Decennie, "Films par décennie", std::move(m_decennies).barres(), "Sans année");
        ajoute(Sujet::Pays, "Films par pays", std::move(m_pays).barres(), "Sans origine");
        ajoute(Sujet::Realisateur, "Films par réalisateur", std::move(m_realisateurs).barres(), "Sans réalisateur");
        if (!m_supportsAPart) donneLesSupports();
        ajoute(Sujet::Note, "Films par note", std::move(m_notes).barres(), "Non notés");
        ajoute(Sujet::Duree, "Films par durée", std::move(m_durees).barres(), "Durée inconnue");
        ajoute(Sujet::Ajouts, "Ajouts par mois", std::move(m_ajouts).barres(), "Date inconnue");
    }

    void donneLesSupports() {
        ajoute(Sujet::Support, "Films par support", std::move(m_supports).barres(), "Sans support");
    }

    // With the films that do not say.
    void ajoute(Sujet sujet, const char* titre, std::vector<Barre> barres, const char* manquantes) {
        std::vector<bool> dits(m_lignes + 1);
        for (const Barre& barre : barres)
            for (const std::uint32_t ligne : barre.lignes)
                dits[ligne] = true;
        Barre muets{manquantes, {}, true};
        for (std::uint32_t ligne = 1; ligne <= m_lignes; ++ligne)
            if (!dits[ligne]) muets.lignes.push_back(ligne);
        if (!muets.lignes.empty()) barres.push_back(std::move(muets));
        m_prets.push_back({sujet, titre, std::move(barres), m_films});
    }

    systeme::OrdreDate m_ordre;
    std::uint32_t m_lignes, m_ligne = 0;
    Etape m_etape = Etape::Liste;
    bool m_supportsAPart = false;
    std::array<dao::Colonne, kChamps.size()> m_colonnes;
    std::optional<SupportsPossedes> m_possedes;
    std::array<std::string, kChamps.size()> m_champs;
    long m_films = 0;
    ParValeur m_genres, m_pays, m_realisateurs, m_supports;
    ParRang m_decennies, m_notes, m_durees, m_ajouts;
    std::vector<Diagramme> m_prets;
};

Comptage::Comptage(const Contexte& c) : m_interieur(std::make_unique<Interieur>(c)) {}
Comptage::Comptage(Comptage&&) noexcept = default;
Comptage& Comptage::operator=(Comptage&&) noexcept = default;
Comptage::~Comptage() = default;

bool Comptage::avance(const Contexte& c, std::chrono::milliseconds duree) {
    const auto fin = c.montre() + duree;
    do {
        if (!m_interieur->pas(c)) return true;
    } while (c.montre() < fin);
    return false;
}

std::vector<Diagramme> Comptage::prend() {
    return m_interieur->prend();
}

std::vector<Diagramme> statistiques(const Contexte& c) {
    Comptage comptage(c);
    while (!comptage.avance(c, std::chrono::seconds(1))) {
    }
    std::vector<Diagramme> tous = comptage.prend();
    std::sort(tous.begin(), tous.end(), [](const auto& a, const auto& b) { return a.sujet < b.sujet; });
    return tous;
}

Diagramme abrege(Diagramme diagramme, std::size_t auPlus) {
    std::vector<Barre>& barres = diagramme.barres;
    const bool muets = !barres.empty() && barres.back().manquante;
    const std::size_t dites = barres.size() - (muets ? 1 : 0),
                      gardees = auPlus - std::min<std::size_t>(auPlus, muets ? 2 : 1);
    if (barres.size() <= auPlus || gardees >= dites) return diagramme;
    Barre autres{"Autres (" + std::to_string(dites - gardees) + ")"};
    const auto debut = barres.begin() + static_cast<std::ptrdiff_t>(gardees),
               fin = barres.begin() + static_cast<std::ptrdiff_t>(dites);
    for (auto barre = debut; barre != fin; ++barre)
        autres.lignes.insert(autres.lignes.end(), barre->lignes.begin(), barre->lignes.end());
    std::sort(autres.lignes.begin(), autres.lignes.end());
    autres.lignes.erase(std::unique(autres.lignes.begin(), autres.lignes.end()), autres.lignes.end());
    barres.insert(barres.erase(debut, fin), std::move(autres));
    return diagramme;
}

std::string texteDuNombre(const Diagramme& diagramme, const Barre& barre) {
    const long dixiemes = diagramme.films == 0 ? 0 : barre.nombre() * 1000 / diagramme.films;
    return std::to_string(barre.nombre()) + " (" +
           util::texteDuNombre(static_cast<double>(dixiemes) / 10, systeme::separateurDecimal()) + " %)";
}

std::string texte(const Diagramme& diagramme) {
    std::string lignes = diagramme.titre + "\n";
    for (const Barre& barre : diagramme.barres)
        lignes += barre.libelle + "\t" + texteDuNombre(diagramme, barre) + "\n";
    return lignes;
}

}  // namespace ensemble
