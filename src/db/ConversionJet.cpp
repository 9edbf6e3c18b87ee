#include "db/ConversionJet.h"

#include "db/Affiches.h"
#include "db/Schema.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/jet/LecteurJet.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <functional>
#include <new>
#include <span>
#include <string_view>
#include <system_error>
#include <vector>

namespace db {

namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 12> kChampsFilms{"Titre",      "Realisateur", "Annee",     "Origine",
                                                        "Genre",      "Duree",       "Acteurs",   "Resume",
                                                        "Production", "Note",        "DateAjout", "Affiche"};
constexpr std::array<std::string_view, 11> kChampsPersonnel{"Titre2",   "Realisateur2", "Rangement", "Fichier1",
                                                            "Fichier2", "Fichier3",     "Pret",      "Reserve",
                                                            "Date",     "Divers",       "Support"};
constexpr std::string_view kAffiche = "Affiche";
constexpr std::string_view kNote = "Note";

// Of one transaction.
constexpr long kLignesParLot = 2000;
constexpr std::size_t kOctetsParLot = 16 << 20;

// The reading takes most of the time, the reading back the rest.
constexpr long kAvancementMax = 1000;
constexpr long kAvancementLecture = 700;

struct Echec {
    std::string texte;
};
struct Arret {};

// One of the two tables: where its fields are in the rows of the Jet base, and what was read of it.
struct Reprise {
    std::string_view nom;
    std::span<const std::string_view> champs;
    const jet::Table* source = nullptr;
    std::vector<std::size_t> rangs{};  // of each field in the source's rows
    long lignes = 0;
    std::uint64_t empreinte = 0;  // of every value, in order
};

void melange(std::uint64_t& empreinte, const dao::Valeur& valeur) {
    static constexpr std::uint64_t kFacteur = 0x9e3779b97f4a7c15;
    const std::uint64_t genre = valeur.estNull() ? 1 : valeur.estOctets() ? 2 : valeur.estNombre() ? 3 : 4;
    const std::uint64_t contenu = std::hash<std::string>{}(valeur.texte());
    empreinte = (empreinte ^ (contenu + genre * kFacteur)) * kFacteur;
    empreinte ^= empreinte >> 29;
}

// A number is kept as one; what is none stays the text it is.
dao::Valeur nombre(const std::string& texte) {
    const char* const fin = texte.data() + texte.size();
    long long entier = 0;
    if (const auto lu = std::from_chars(texte.data(), fin, entier); lu.ec == std::errc() && lu.ptr == fin)
        return entier;
    double reel = 0;
    if (const auto lu = std::from_chars(texte.data(), fin, reel); lu.ec == std::errc() && lu.ptr == fin) return reel;
    return texte;
}

// A whole number is one, whatever the type of its field was.
dao::Valeur valeurDe(std::string_view champ, jet::Nature nature, const std::optional<std::string>& lue) {
    if (!lue) return {};
    if (champ == kAffiche && estDansLaBase(*lue)) return dao::Valeur::octets(*lue);
    if (champ == kNote && (nature == jet::Nature::Nombre || nature == jet::Nature::Booleen)) return nombre(*lue);
    return nature == jet::Nature::Octets ? dao::Valeur::octets(*lue) : dao::Valeur(*lue);
}

// One conversion under way. Throws Echec, Arret, and what the bases throw.
class Passage {
  public:
    Passage(const std::string& source, const std::string& destination, ecran::Progression& progression,
            ecran::Ecran& ecran)
        : m_destination(destination), m_lecteur(source), m_progression(progression), m_ecran(ecran) {}

    RapportJet convertit();

  private:
    void reconnait(Reprise& reprise);
    void copie(Reprise& reprise, dao::Database& base);
    std::size_t ajoute(Reprise& reprise, dao::Recordset& cible, jet::Ligne ligne);
    void relit(const Reprise& reprise, dao::Database& base, long faites, long lignes);
    void releveLeReste();
    void avance(long valeur);

    const std::string& m_destination;
    jet::Lecteur m_lecteur;
    ecran::Progression& m_progression;
    ecran::Ecran& m_ecran;
    Reprise m_films{.nom = "Films", .champs = kChampsFilms};
    Reprise m_personnel{.nom = "Personnel", .champs = kChampsPersonnel};
    RapportJet m_rapport;
};

// The new file is taken to the disk lot by lot, so that the last wait for it is short. It needs no journal there: what
// is not whole is thrown away.
RapportJet Passage::convertit() {
    reconnait(m_films);
    reconnait(m_personnel);
    releveLeReste();
    {
        dao::DBEngine::CreateDatabase(m_destination, schema());
        dao::Database base = dao::DBEngine::OpenDatabase(m_destination, true);
        base.Execute("PRAGMA journal_mode=MEMORY; PRAGMA synchronous=NORMAL");
        copie(m_films, base);
        copie(m_personnel, base);
    }
    if (!fichiers::synchronise({m_destination}))
        throw Echec{"Le fichier " + entreChevrons(m_destination) + " n'a pas pu être enregistré."};
    dao::Database base = dao::DBEngine::OpenDatabase(m_destination, true);
    relit(m_films, base, 0, m_films.lignes + m_personnel.lignes);
    relit(m_personnel, base, m_films.lignes, m_films.lignes + m_personnel.lignes);
    m_rapport.films = m_films.lignes;
    m_rapport.possessions = m_personnel.lignes;
    return m_rapport;
}

void Passage::reconnait(Reprise& reprise) {
    reprise.source = m_lecteur.table(reprise.nom);
    if (reprise.source == nullptr) throw Echec{"La table " + entreChevrons(reprise.nom) + " manque."};
    const auto& champs = reprise.source->champs;
    for (const std::string_view nom : reprise.champs) {
        const auto champ = std::ranges::find_if(champs, [&](const auto& c) { return util::egalSansCasse(c.nom, nom); });
        if (champ == champs.end())
            throw Echec{"Le champ " + entreChevrons(nom) + " manque dans la table " + entreChevrons(reprise.nom) + "."};
        reprise.rangs.push_back(static_cast<std::size_t>(champ - champs.begin()));
    }
}

void Passage::releveLeReste() {
    for (const jet::Table& table : m_lecteur.tables())
        if (&table != m_films.source && &table != m_personnel.source) m_rapport.tables.push_back(table.nom);
    for (const Reprise* reprise : {&m_films, &m_personnel})
        for (std::size_t rang = 0; rang < reprise->source->champs.size(); ++rang)
            if (std::ranges::find(reprise->rangs, rang) == reprise->rangs.end())
                m_rapport.champs.push_back(std::string(reprise->nom) + "." + reprise->source->champs[rang].nom);
}

void Passage::copie(Reprise& reprise, dao::Database& base) {
    dao::Recordset cible = base.OpenRecordset(reprise.nom);
    std::optional<dao::Transaction> lot;
    long lignes = 0;
    std::size_t octets = 0;
    const auto termine = [&] {
        if (lot) lot->confirme();
        lot.reset();
        lignes = 0, octets = 0;
    };
    const jet::Bilan bilan = m_lecteur.parcourt(
        *reprise.source,
        [&](jet::Ligne ligne) {
            if (!lot) lot.emplace(base);
            octets += ajoute(reprise, cible, ligne);
            if (++lignes >= kLignesParLot || octets >= kOctetsParLot) termine();
            const jet::Avancement lu = m_lecteur.avancement();
            const std::uint64_t pages = std::max<std::uint64_t>(lu.pages, 1);
            avance(static_cast<long>(lu.pagesLues * kAvancementLecture / pages));
            return true;
        },
        kAffiche);
    termine();
    m_rapport.affichesAlterees += bilan.affichesAlterees;
    if (static_cast<std::uint64_t>(reprise.lignes) != reprise.source->lignesDeclarees)
        throw Echec{"La table " + entreChevrons(reprise.nom) + " est incomplète : " + std::to_string(reprise.lignes) +
                    " lignes lues sur " + std::to_string(reprise.source->lignesDeclarees) + " annoncées."};
}

// Answers about how many bytes the row takes.
std::size_t Passage::ajoute(Reprise& reprise, dao::Recordset& cible, jet::Ligne ligne) {
    std::size_t octets = 0;
    cible.AddNew();
    for (std::size_t i = 0; i < reprise.champs.size(); ++i) {
        const std::size_t rang = reprise.rangs[i];
        const dao::Valeur valeur = valeurDe(reprise.champs[i], reprise.source->champs[rang].nature, ligne[rang]);
        if (reprise.champs[i] == kAffiche && valeur.estOctets()) ++m_rapport.affiches;
        melange(reprise.empreinte, valeur);
        cible.assigne(reprise.champs[i], valeur);
        octets += ligne[rang] ? ligne[rang]->size() : 0;
    }
    cible.Update();
    ++reprise.lignes;
    return octets;
}

// What the new file holds is what was read, value by value.
void Passage::relit(const Reprise& reprise, dao::Database& base, long faites, long lignes) {
    std::uint64_t empreinte = 0;
    dao::Recordset relue = base.OpenRecordset(reprise.nom);
    bool entiere = relue.RecordCount() == reprise.lignes;
    for (; entiere && !relue.Eof(); relue.MoveNext()) {
        for (const std::string_view champ : reprise.champs)
            melange(empreinte, relue.valeur(champ));
        avance(kAvancementLecture + (kAvancementMax - kAvancementLecture) * ++faites / lignes);
    }
    if (!entiere || empreinte != reprise.empreinte)
        throw Echec{"La nouvelle base n'est pas identique à l'originale (table " + entreChevrons(reprise.nom) + ")."};
}

// Between two rows.
void Passage::avance(long valeur) {
    m_progression.Value = valeur;
    if (!m_ecran.respire()) throw Arret{};
}

void efface(const std::string& destination) {
    for (const char* suite : {"", "-journal"})
        fichiers::supprime(destination + suite);
}

// A file that someone writes to meanwhile is not what was read.
class Temoin {
  public:
    explicit Temoin(const std::string& chemin) : m_chemin(chemin), m_avant(releve()) {}
    [[nodiscard]] bool aChange() const { return releve() != m_avant; }

  private:
    [[nodiscard]] std::pair<std::uintmax_t, fs::file_time_type> releve() const {
        std::error_code ignoree;
        return {fs::file_size(m_chemin, ignoree), fs::last_write_time(m_chemin, ignoree)};
    }
    std::string m_chemin;
    std::pair<std::uintmax_t, fs::file_time_type> m_avant;
};

}  // namespace

IssueJet ConversionJet::operator()(const std::string& source, const std::string& destination) {
    std::error_code ignoree;
    if (fs::exists(fs::symlink_status(destination, ignoree)))
        return {.rapport = {}, .echec = "Le fichier " + entreChevrons(destination) + " existe déjà."};
    const ecran::Travail travail(m_ecran);
    m_progression.Max = kAvancementMax;
    m_progression.Value = 0;
    const Temoin temoin(source);
    IssueJet issue;
    try {
        issue.rapport = Passage(source, destination, m_progression, m_ecran).convertit();
        m_progression.Value = kAvancementMax;
        if (temoin.aChange()) issue.echec = "Un autre programme a modifié la base pendant sa lecture.";
    } catch (const Arret&) {
        issue.interrompu = true;
    } catch (const Echec& echec) {
        issue.echec = echec.texte;
    } catch (const jet::ErreurJet& erreur) {
        issue.echec = erreur.what();
    } catch (const dao::ErreurDao& erreur) {
        issue.echec = erreur.description;
    } catch (const std::bad_alloc&) {
        issue.echec = "La mémoire ne suffit pas.";
    }
    if (!issue.estFaite()) efface(destination);
    return issue;
}

}  // namespace db
