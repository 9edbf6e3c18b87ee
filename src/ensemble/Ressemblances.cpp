#include "ensemble/Ressemblances.h"

#include "db/Requete.h"
#include "edit/LettresAbregees.h"
#include "edit/TitreDejaExistant_TestRessemblance.h"
#include "ensemble/Avancement.h"
#include "util/Nombres.h"
#include "util/Similarite.h"

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace ensemble {

namespace {

using edit::LettresAbregees;

struct Titre {
    LettresAbregees lettres;
    std::uint32_t film;
};

struct Realisateur {
    LettresAbregees lettres;
    util::CompteLettres compte;
    std::vector<Titre> titres;  // by their letters
};

struct Candidate {
    std::uint32_t gauche, droite;  // ranks of films in the order of their titles
    std::uint8_t titre, realisateur;
    [[nodiscard]] auto ordre() const { return std::tuple(-(titre + realisateur), -titre, gauche, droite); }
};

class Recherche {
  public:
    Recherche(const Contexte& c, std::size_t auPlus) : m_c(c), m_auPlus(auPlus) {}

    Ressemblances execute() {
        lit();
        Ressemblances resultat;
        resultat.complet = compareTout();
        garde(m_auPlus);
        for (const Candidate& paire : m_paires)
            resultat.paires.push_back({m_films[paire.gauche], m_films[paire.droite], paire.titre, paire.realisateur});
        resultat.trouvees = m_trouvees;
        return resultat;
    }

  private:
    void lit() {
        std::unordered_map<std::string, std::size_t> rangs;
        dao::Recordset films = edit::ouvreFilmsParTitre(m_c);
        const dao::Colonne titre = films.colonne("Titre"), realisateur = films.colonne("Realisateur");
        const dao::Souffle souffle = db::souffle(m_c);
        dao::Cadence cadence(souffle);
        for (; !films.Eof(); films.MoveNext()) {
            cadence();
            std::string leTitre(films.vue(titre));
            std::string sien(films.vue(realisateur));
            const auto [place, nouveau] = rangs.try_emplace(sien, m_realisateurs.size());
            if (nouveau) {
                const util::CompteLettres compte = util::compteLettres(sien);
                m_realisateurs.push_back({edit::abrege(compte), compte, {}});
            }
            m_realisateurs[place->second].titres.push_back(
                {edit::abrege(util::compteLettres(leTitre)), static_cast<std::uint32_t>(m_films.size())});
            m_films.push_back({std::move(leTitre), std::move(sien)});
        }
        const auto parLettres = [](const auto& a, const auto& b) { return a.lettres.total < b.lettres.total; };
        for (Realisateur& sien : m_realisateurs) {
            std::stable_sort(sien.titres.begin(), sien.titres.end(), parLettres);
            souffle();
        }
        std::stable_sort(m_realisateurs.begin(), m_realisateurs.end(), parLettres);
    }

    bool compareTout() {
        Avancement avancement(m_c, static_cast<long>(m_realisateurs.size()), "Recherche de doublons");
        for (std::size_t i = 0; i < m_realisateurs.size(); ++i) {
            const std::uint64_t limite = edit::totalAuPlus(m_realisateurs[i].lettres.total);
            for (std::size_t j = i; j < m_realisateurs.size() && m_realisateurs[j].lettres.total <= limite; ++j)
                if (edit::peutRessembler(m_realisateurs[i].lettres, m_realisateurs[j].lettres) &&
                    !compare(i, j, avancement))
                    return false;
            if (!avancement.avance()) return false;
        }
        return true;
    }

    // False when the user asked to stop.
    bool compare(std::size_t i, std::size_t j, Avancement& avancement) {
        const int score = util::similarite(m_realisateurs[i].compte, m_realisateurs[j].compte);
        if (score <= edit::kSeuilRessemblance) return true;
        const std::vector<Titre>&gauche = m_realisateurs[i].titres, &droite = m_realisateurs[j].titres;
        auto debut = droite.begin();
        for (std::size_t rang = 0; rang < gauche.size(); ++rang) {
            const Titre& titre = gauche[rang];
            debut = i == j ? droite.begin() + static_cast<std::ptrdiff_t>(rang) + 1
                           : std::find_if(debut, droite.end(), [&](const Titre& autre) {
                                 return edit::totalAuPlus(autre.lettres.total) >= titre.lettres.total;
                             });
            const std::uint64_t limite = edit::totalAuPlus(titre.lettres.total);
            for (auto autre = debut; autre != droite.end() && autre->lettres.total <= limite; ++autre)
                if (edit::peutRessembler(titre.lettres, autre->lettres)) ajoute(titre.film, autre->film, score);
            if (gauche.size() > kBeaucoup && !avancement.avance(0)) return false;
        }
        return true;
    }

    void ajoute(std::uint32_t un, std::uint32_t autre, int realisateur) {
        const int titre = util::similarite(m_films[un].titre, m_films[autre].titre);
        if (titre <= edit::kSeuilRessemblance) return;
        ++m_trouvees;
        m_paires.push_back({std::min(un, autre), std::max(un, autre), static_cast<std::uint8_t>(titre),
                            static_cast<std::uint8_t>(realisateur)});
        if (m_paires.size() >= 2 * m_auPlus + kBeaucoup) garde(m_auPlus);
    }

    void garde(std::size_t auPlus) {
        std::sort(m_paires.begin(), m_paires.end(),
                  [](const Candidate& a, const Candidate& b) { return a.ordre() < b.ordre(); });
        if (m_paires.size() > auPlus) m_paires.resize(auPlus);
    }

    static constexpr std::size_t kBeaucoup = 1000;

    const Contexte& m_c;
    std::size_t m_auPlus;
    std::vector<db::CleFilm> m_films;
    std::vector<Realisateur> m_realisateurs;
    std::vector<Candidate> m_paires;
    long m_trouvees = 0;
};

}  // namespace

Ressemblances ressemblances(const Contexte& c, std::size_t auPlus) {
    return Recherche(c, auPlus).execute();
}

std::string texteRessemblanceTitre(const Paire& paire) {
    return "Ressemblance titre : " + std::to_string(paire.titre) + " %";
}

std::string texteRessemblanceReali(const Paire& paire) {
    return "Ressemblance réali : " + std::to_string(paire.realisateur) + " %";
}

std::string bilan(const Ressemblances& ressemblances) {
    std::string texte = ressemblances.trouvees == 0
                            ? "Aucun film ne ressemble à un autre."
                            : util::phraseCompte(ressemblances.trouvees, "# paire de films se ressemble.",
                                                 "# paires de films se ressemblent.");
    if (const auto montrees = static_cast<long>(ressemblances.paires.size()); montrees < ressemblances.trouvees)
        texte += util::phraseCompte(montrees, " La plus proche est montrée.", " Les # plus proches sont montrées.");
    if (!ressemblances.complet) texte += " La recherche a été arrêtée avant la fin.";
    return texte;
}

}  // namespace ensemble
