#include "db/Requete.h"
#include "export/Exporter.h"
#include "platform/fichiers/Fichiers.h"
#include "util/Nombres.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"
#include "util/Unicode.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <unordered_set>

namespace exportation {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kOctetsDuNom = 200;  // leaves room for a number and an ending on any file system
constexpr const char* kSuffixe = "-export.tmp";

// A name that any file system takes and any file manager shows.
std::string nomDeFiche(const FilmExporte& film) {
    const std::string texte =
        util::nettoieNomFichier(film.valeur(Champ::Titre) + " - " + film.valeur(Champ::Realisateur));
    std::string nom;
    for (const std::string_view caractere : util::caracteres(texte)) {
        const UChar32 point = util::litPoint(caractere, 0).valeur;
        if (nom.size() + caractere.size() > kOctetsDuNom) break;
        if (!util::estUtf8(caractere))
            nom += '_';
        else if (point >= 0x20 && point != 0x7F)
            nom += caractere;
    }
    nom.erase(nom.find_last_not_of(". ") + 1);
    nom.erase(0, nom.find_first_not_of(". "));
    return nom.empty() ? "Sans titre" : nom;
}

// The folder that is being filled: it takes its name in the end, or goes with all that is in it.
class DossierNeuf {
  public:
    explicit DossierNeuf(const std::string& dossier) : m_dossier(dossier), m_provisoire(dossier + kSuffixe + "/") {
        vide();  // what a killed run left
        std::error_code erreur;
        fs::create_directories(fichiers::dossierDe(dossier), erreur);
        m_cree = fs::create_directory(m_provisoire, erreur);
        if (!m_cree) m_raison = fichiers::raisonDeLEchec();
    }
    DossierNeuf(const DossierNeuf&) = delete;
    DossierNeuf& operator=(const DossierNeuf&) = delete;
    ~DossierNeuf() {
        if (m_cree) vide();
    }

    [[nodiscard]] bool ecrit(const std::string& nom, std::string_view octets) {
        if (!m_cree) return false;
        m_chemins.push_back(m_provisoire + nom);
        return note(fichiers::cree(m_chemins.back(), octets) == fichiers::Creation::Faite);
    }
    [[nodiscard]] bool prendSonNom(const dao::Attente& attente) {
        bool surLeDisque = false;
        if (m_raison.empty())
            attente([&] {
                surLeDisque = note(fichiers::synchronise(m_chemins));
                m_chemins = {};
            });
        if (!surLeDisque) return false;
        m_cree = !note(fichiers::renomme(m_dossier + kSuffixe, m_dossier));
        return !m_cree;
    }
    [[nodiscard]] const std::string& raison() const { return m_raison; }

  private:
    bool note(bool reussi) {
        if (!reussi && m_raison.empty()) m_raison = fichiers::raisonDeLEchec();
        return reussi;
    }
    void vide() {
        for (const char* motif : {"*.FILM", "*.jpg", kFichierRemarques})
            fichiers::supprimeSelonMotif(m_provisoire, motif);
        std::error_code erreur;
        if (fs::is_directory(fs::symlink_status(m_dossier + kSuffixe, erreur)))
            fs::remove(m_dossier + kSuffixe, erreur);
    }

    std::string m_dossier, m_provisoire, m_raison;
    std::vector<std::string> m_chemins;
    bool m_cree = false;
};

class EcritFiches {
  public:
    EcritFiches(DossierNeuf& dossier, const LecteurDesFilms& lecteur, const RedigeFiche& redige)
        : m_dossier(dossier), m_lecteur(lecteur), m_redige(redige) {}

    [[nodiscard]] bool ecrit(const FilmExporte& film) {
        const std::string nom = nomLibre(nomDeFiche(film));
        const FicheRedigee fiche = m_redige(film);
        noteLesEcarts(nom, film, fiche.ecarts);
        if (!m_dossier.ecrit(nom + ".FILM", fiche.octets)) return false;
        const auto affiche = m_lecteur.affiche(film);
        if (!affiche && !film.affiche.empty()) remarque(nom, "affiche introuvable ou illisible");
        return !affiche || affiche->empty() || m_dossier.ecrit(nom + ".jpg", *affiche);
    }
    [[nodiscard]] bool ecritLesRemarques(Bilan& bilan) {
        std::string texte;
        const auto ajoute = [&](long nombre, const char* un, const char* plusieurs) {
            if (nombre != 0) texte += util::phraseCompte(nombre, un, plusieurs) + "\r\n";
        };
        ajoute(m_possedes, "La possession de # film n'y est pas : une fiche n'a pas de place pour elle.",
               "Les possessions de # films n'y sont pas : une fiche n'a pas de place pour elles.");
        ajoute(m_notes, "La note de # film n'y est pas.", "Les notes de # films n'y sont pas.");
        if (m_lignes.empty() && texte.empty()) return true;
        if (!m_lignes.empty()) {
            texte += "\r\nCe que ces fiches ne disent pas tout à fait comme la base :\r\n" + m_lignes;
            bilan.remarque = util::phraseCompte(m_remarques, "# fiche ne dit pas tout", "# fiches ne disent pas tout") +
                             " : voir « " + kFichierRemarques + " ».";
        }
        return m_dossier.ecrit(kFichierRemarques, "\uFEFF" + texte);
    }
    // To give so many names back one by one takes long.
    void rendsLesNoms(const dao::Attente& attente) {
        attente([this] { m_noms = {}; });
    }

  private:
    // Without regard to case: so do the file systems of sticks.
    std::string nomLibre(const std::string& nom) {
        std::string libre = nom;
        for (int numero = 2; !m_noms.insert(util::cleSansCasse(libre)).second; ++numero)
            libre = nom + " (" + std::to_string(numero) + ")";
        return libre;
    }
    void remarque(const std::string& nom, const std::string& texte) {
        ++m_remarques;
        m_lignes += nom + " : " + texte + "\r\n";
    }
    void noteLesEcarts(const std::string& nom, const FilmExporte& film, const std::vector<std::string>& ecarts) {
        m_possedes += film.possessions.empty() ? 0 : 1;
        m_notes += util::valEntier(film.valeur(Champ::Note)) == 0 ? 0 : 1;
        std::string liste;
        for (const std::string& ecart : ecarts)
            liste += (liste.empty() ? "" : ", ") + ecart;
        if (!liste.empty()) remarque(nom, liste);
    }

    DossierNeuf& m_dossier;
    const LecteurDesFilms& m_lecteur;
    const RedigeFiche& m_redige;
    std::unordered_set<std::string> m_noms;
    std::string m_lignes;
    long m_remarques = 0, m_possedes = 0, m_notes = 0;
};

std::string sansSeparateurFinal(std::string dossier) {
    while (dossier.size() > 1 && dossier.ends_with('/'))
        dossier.pop_back();
    return dossier;
}

}  // namespace

std::optional<std::string> refusDossierFiches(const std::string& dossier) {
    std::error_code erreur;
    const fs::file_status etat = fs::status(dossier, erreur);
    if (!fs::exists(etat)) return std::nullopt;
    if (!fs::is_directory(etat)) return dossier + " est un fichier : donnez le nom d'un nouveau dossier.";
    if (fs::is_empty(dossier, erreur) && !erreur) return std::nullopt;
    return "Le dossier " + dossier + " n'est pas vide : donnez le nom d'un nouveau dossier.";
}

Bilan exporteFiches(const db::Contexte& c, dao::Recordset& liste, const FilmsAExporter& films,
                    const std::string& dossierVoulu, const RedigeFiche& redige) {
    const std::string dossier = sansSeparateurFinal(dossierVoulu);
    Bilan bilan;
    if (const auto refus = refusDossierFiches(dossier)) {
        bilan.issue = Bilan::Issue::Echouee;
        bilan.raison = "le dossier n'est pas vide";
        return bilan;
    }
    DossierNeuf neuf(dossier);
    LecteurDesFilms lecteur(c, liste, films, true);
    EcritFiches fiches(neuf, lecteur, redige);
    const bool complet = parcourt(
        c, lecteur, films, [&](const FilmExporte& film) { return fiches.ecrit(film); }, bilan);
    fiches.rendsLesNoms(db::attente(c));
    if (complet && fiches.ecritLesRemarques(bilan) && neuf.prendSonNom(db::attente(c))) return bilan;
    bilan.raison = neuf.raison();
    bilan.issue = bilan.raison.empty() ? Bilan::Issue::Arretee : Bilan::Issue::Echouee;
    return bilan;
}

}  // namespace exportation
