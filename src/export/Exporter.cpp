#include "export/Exporter.h"

#include "db/Requete.h"
#include "export/DernierExport.h"
#include "export/ListeDesTitres.h"
#include "export/TableauCsv.h"
#include "platform/fichiers/Remplacement.h"
#include "util/Nombres.h"

#include <random>

namespace exportation {

namespace {

// What the strip says while it lasts.
class Intitule {
  public:
    explicit Intitule(const db::Contexte& c) : m_c(c) { m_c.travaux.lblTravail.Caption = "Export des films"; }
    Intitule(const Intitule&) = delete;
    Intitule& operator=(const Intitule&) = delete;
    ~Intitule() { m_c.travaux.lblTravail.Caption.clear(); }

  private:
    const db::Contexte& m_c;
};

std::string cleAuHasard() {
    static constexpr char kChiffres[] = "0123456789abcdef";
    std::random_device hasard;
    std::string cle;
    for (int i = 0; i < 32; ++i)
        cle += kChiffres[hasard() & 15];
    return cle;
}

Bilan termine(const db::Contexte& c, fichiers::Remplacement& fichier, Bilan bilan, bool complet) {
    bool finie = false;
    if (complet) db::attente(c)([&] { finie = fichier.termine(); });
    if (finie) return bilan;
    if (!complet && fichier.raison().empty()) {
        bilan.issue = Bilan::Issue::Arretee;
        return bilan;
    }
    bilan.issue = Bilan::Issue::Echouee;
    bilan.raison = fichier.raison();
    return bilan;
}

// The posters of a page, as long as there is room.
class AffichesDeLaPage {
  public:
    AffichesDeLaPage(const LecteurDesFilms& lecteur, const ReduitAffiche& reduit, long films)
        : m_lecteur(lecteur),
          m_reduit(reduit),
          m_largeur(films > kPageDeBeaucoup ? kLargeurPetiteAffiche : kLargeurAffiche) {}

    [[nodiscard]] Vignette de(const FilmExporte& film) {
        const auto octets = m_lecteur.affiche(film);
        if (!octets || octets->empty()) return {};
        if (m_octets >= kOctetsDAffichesMax) {
            ++m_omises;
            return {};
        }
        Vignette vignette = m_reduit(*octets, m_largeur);
        m_octets += vignette.jpeg.size() / 3 * 4;
        return vignette;
    }
    [[nodiscard]] std::string remarque() const {
        return m_omises == 0
                   ? ""
                   : util::phraseCompte(m_omises, "# affiche n'y tenait plus.", "# affiches n'y tenaient plus.");
    }

  private:
    const LecteurDesFilms& m_lecteur;
    const ReduitAffiche& m_reduit;
    int m_largeur;
    std::size_t m_octets = 0;
    long m_omises = 0;
};

}  // namespace

bool parcourt(const db::Contexte& c, LecteurDesFilms& lecteur, const FilmsAExporter& films,
              const std::function<bool(const FilmExporte&)>& recoit, Bilan& bilan) {
    const Intitule intitule(c);
    Avancement avancement(c, static_cast<long>(films.lignes.size()));
    for (long lues = 0; auto film = lecteur.lit();) {
        if (!recoit(*film)) return false;
        ++bilan.films;
        for (; lues < lecteur.lues(); ++lues)
            if (!avancement.avance()) return false;
    }
    return true;
}

Bilan exporteTableau(const db::Contexte& c, dao::Recordset& liste, const FilmsAExporter& films, const Champs& champs,
                     const std::string& fichier) {
    fichiers::Remplacement sortie(fichier);
    LecteurDesFilms lecteur(c, liste, films, champs.contient(Champ::Affiche));
    Bilan bilan;
    sortie.ecrit(enteteDuTableau(champs));
    std::string lignes;
    const bool complet = parcourt(
        c, lecteur, films,
        [&](const FilmExporte& film) {
            lignes.clear();
            ajouteLignes(lignes, film, champs);
            return sortie.ecrit(lignes);
        },
        bilan);
    return termine(c, sortie, std::move(bilan), complet);
}

Bilan exportePage(const db::Contexte& c, dao::Recordset& liste, const FilmsAExporter& films, const Champs& champs,
                  const std::string& fichier, const ReduitAffiche& reduit) {
    const auto nombre = static_cast<long>(films.lignes.size());
    const bool avecAffiches = champs.contient(Champ::Affiche);
    fichiers::Remplacement sortie(fichier);
    LecteurDesFilms lecteur(c, liste, films, avecAffiches);
    PageHtml page({films.nom, c.horloge.dateDuJour(), nombre, films.groupes, cleAuHasard()}, champs);
    AffichesDeLaPage affiches(lecteur, reduit, nombre);
    Bilan bilan;
    sortie.ecrit(page.debut());
    const bool complet = parcourt(
        c, lecteur, films,
        [&](const FilmExporte& film) {
            const Vignette vignette = avecAffiches ? affiches.de(film) : Vignette();
            return sortie.ecrit(page.film(film, &vignette));
        },
        bilan);
    sortie.ecrit(page.fin());
    bilan.remarque = affiches.remarque();
    return termine(c, sortie, std::move(bilan), complet);
}

void annonceBilan(const db::Contexte& c, const Bilan& bilan, const std::string& chemin) {
    switch (bilan.issue) {
        case Bilan::Issue::Arretee:
            return c.avis.montre("Export arrêté : rien n'a été écrit.");
        case Bilan::Issue::Echouee:
            return c.avis.montre("L'export vers " + chemin + " n'a pas pu se faire (" + bilan.raison + ").");
        case Bilan::Issue::Faite:
            annonceExport(c, util::phraseCompte(bilan.films, "# film exporté : ", "# films exportés : "), chemin);
            if (!bilan.remarque.empty()) c.avis.remarque(bilan.remarque);
    }
}

}  // namespace exportation
