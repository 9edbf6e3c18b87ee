#include "db/ConversionJet.h"

#include "db/Affiches.h"
#include "db/ChampsPublies.h"
#include "db/DommagesJet.h"
#include "db/Schema.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/systeme/ACote.h"
#include "util/Texte.h"

#include <algorithm>
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

// Of one transaction.
constexpr long kLignesParLot = 2000;
constexpr std::size_t kOctetsParLot = 16 << 20;

// The reading takes most of the time, the reading back the rest.
constexpr long kAvancementMax = 1000;
constexpr long kAvancementLecture = 700;

struct Echec {
    std::string texte;
    bool abimee = false;
};
struct Arret {};

// One of the two tables: where its fields are in the rows of the Jet base, and what was read of it.
struct Reprise {
    std::string_view nom;
    std::span<const std::string_view> champs;
    const jet::Table* source = nullptr;  // none when a damaged base has lost it
    std::vector<std::size_t> places{};   // of each field in the source's rows
    long lignes = 0;
    std::uint64_t empreinte = 0;  // of every value, in order
    DommagesJet dommages{.table = std::string(nom)};
    std::string dernierTitre{};  // of the last row that could be read
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
    Passage(const std::string& source, const std::string& destination, const jet::Ouverture& ouverture,
            ecran::Progression& progression, ecran::Ecran& ecran)
        : m_destination(destination),
          m_abimee(ouverture.abimee),
          m_lecteur(source, ouverture),
          m_progression(progression),
          m_ecran(ecran) {}

    RapportJet convertit();

  private:
    void reconnait(Reprise& reprise);
    const jet::Table* retrouve(Reprise& reprise);
    void notePertes(Reprise& reprise, std::span<const jet::Perte> pertes, jet::Ligne ligne);
    jet::Bilan parcourt(Reprise& reprise, const std::function<void(jet::Ligne)>& reprend);
    void copie(Reprise& reprise, dao::Database& base);
    std::size_t ajoute(Reprise& reprise, dao::Recordset& cible, jet::Ligne ligne);
    void compteAffiche(const dao::Valeur& affiche);
    void relit(const Reprise& reprise, dao::Database& base, long faites, long lignes);
    void releveLeReste();
    void releveLesDommages();
    void avance(long valeur);

    const std::string& m_destination;
    bool m_abimee;
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
    if (m_abimee) releveLesDommages();
    bool surLeDisque = false;
    systeme::aCote([&] { surLeDisque = fichiers::synchronise({m_destination}); }, [this] { m_ecran.patiente(); });
    if (!surLeDisque) throw Echec{"Le fichier " + util::entreChevrons(m_destination) + " n'a pas pu être enregistré."};
    dao::Database base = dao::DBEngine::OpenDatabase(m_destination, true);
    relit(m_films, base, 0, m_films.lignes + m_personnel.lignes);
    relit(m_personnel, base, m_films.lignes, m_films.lignes + m_personnel.lignes);
    m_rapport.films = m_films.lignes;
    m_rapport.possessions = m_personnel.lignes;
    return m_rapport;
}

std::size_t placeDuChamp(const jet::Table& table, std::string_view nom) {
    const auto champ =
        std::ranges::find_if(table.champs, [nom](const auto& c) { return util::egalSansCasse(c.nom, nom); });
    return static_cast<std::size_t>(champ - table.champs.begin());
}

bool aTousLesChamps(const jet::Table& table, const Reprise& reprise) {
    return std::ranges::all_of(reprise.champs,
                               [&](auto nom) { return placeDuChamp(table, nom) < table.champs.size(); });
}

void Passage::reconnait(Reprise& reprise) {
    reprise.source = m_abimee ? retrouve(reprise) : m_lecteur.table(reprise.nom);
    if (reprise.source == nullptr) {
        if (!m_abimee) throw Echec{"La table " + util::entreChevrons(reprise.nom) + " manque.", true};
        return reprise.dommages.note("La table est illisible");
    }
    for (const std::string_view nom : reprise.champs) {
        reprise.places.push_back(placeDuChamp(*reprise.source, nom));
        if (reprise.places.back() == reprise.source->champs.size() && !reprise.source->champs.empty())
            throw Echec{"Le champ " + util::entreChevrons(nom) + " manque dans la table " +
                        util::entreChevrons(reprise.nom) + "."};
    }
    reprise.dommages.annoncees = reprise.source->lignesDeclarees;
}

// By its fields when its name is lost: among several, which once were tables too, the one with the most rows.
const jet::Table* Passage::retrouve(Reprise& reprise) {
    const jet::Table* const nommee = m_lecteur.table(reprise.nom);
    if (nommee != nullptr && !nommee->champs.empty()) return nommee;
    const jet::Table* trouvee = nullptr;
    for (const jet::Table& table : m_lecteur.tables())
        if (aTousLesChamps(table, reprise) && (!trouvee || table.lignesDeclarees > trouvee->lignesDeclarees))
            trouvee = &table;
    if (trouvee) reprise.dommages.note("La table a perdu son nom : elle a été reconnue à ses champs");
    return trouvee;
}

void Passage::releveLeReste() {
    for (const jet::Table& table : m_lecteur.tables())
        if (&table != m_films.source && &table != m_personnel.source && !table.nom.empty())
            m_rapport.tables.push_back(table.nom);
    for (const Reprise* reprise : {&m_films, &m_personnel}) {
        if (reprise->source == nullptr) continue;
        for (std::size_t i = 0; i < reprise->source->champs.size(); ++i)
            if (std::ranges::find(reprise->places, i) == reprise->places.end())
                m_rapport.champs.push_back(std::string(reprise->nom) + "." + reprise->source->champs[i].nom);
    }
}

void Passage::releveLesDommages() {
    if (m_films.lignes + m_personnel.lignes == 0) throw Echec{"Rien n'y est lisible.", true};
    for (const Reprise* reprise : {&m_films, &m_personnel})
        if (!reprise->dommages.estEntiere()) m_rapport.dommages.push_back(reprise->dommages);
}

// Which row that is, as far as it can be told.
std::string designe(const Reprise& reprise, std::uint32_t numero, jet::Ligne ligne) {
    std::string texte = "Ligne " + std::to_string(numero);
    if (ligne.empty())
        return reprise.dernierTitre.empty() ? texte
                                            : texte + " (après " + util::entreChevrons(reprise.dernierTitre) + ")";
    const auto &titre = ligne[reprise.places[0]], &realisateur = ligne[reprise.places[1]];
    texte += " (" + util::entreChevrons(titre.value_or(""));
    return texte + (realisateur && !realisateur->empty() ? ", " + *realisateur + ")" : ")");
}

void Passage::notePertes(Reprise& reprise, std::span<const jet::Perte> pertes, jet::Ligne ligne) {
    DommagesJet& dommages = reprise.dommages;
    for (const jet::Perte& perte : pertes) {
        if (perte.quoi == jet::Perte::Quoi::UneLigne) {
            ++dommages.lignes;
            dommages.note(designe(reprise, perte.ligne, {}) + " : " + perte.raison);
        } else if (perte.quoi == jet::Perte::Quoi::UnChamp) {
            const auto champ = std::ranges::find(reprise.places, perte.champ);
            if (champ == reprise.places.end()) continue;  // it has no place in a base of ours
            const std::string_view nom = reprise.champs[static_cast<std::size_t>(champ - reprise.places.begin())];
            ++(nom == kAffiche ? dommages.affiches : dommages.champs);
            dommages.note(designe(reprise, perte.ligne, ligne) + ", champ " + util::entreChevrons(nom) + " : " +
                          perte.raison);
        } else {
            dommages.note((perte.quoi == jet::Perte::Quoi::UnePage ? "Lignes d'une page : " : "") + perte.raison);
        }
    }
}

jet::Bilan Passage::parcourt(Reprise& reprise, const std::function<void(jet::Ligne)>& reprend) {
    const auto sansCle = [&](const jet::Perte& perte) {
        const auto cles = std::span(reprise.places).first(kChampsCle);
        return perte.quoi == jet::Perte::Quoi::UnChamp && std::ranges::find(cles, perte.champ) != cles.end();
    };
    const auto partiel = [&](jet::Ligne ligne, std::span<const jet::Perte> pertes) {
        const auto cle = std::ranges::find_if(pertes, sansCle);
        if (cle == pertes.end()) {
            notePertes(reprise, pertes, ligne);
        } else {
            const jet::Perte perdue{jet::Perte::Quoi::UneLigne, cle->ligne, 0, cle->raison};
            notePertes(reprise, {&perdue, 1}, ligne);
        }
        if (ligne.empty() || cle != pertes.end()) return avance(m_progression.Value), true;
        reprend(ligne);
        reprise.dernierTitre = ligne[reprise.places[0]].value_or("");
        return true;
    };
    const auto entier = [&](jet::Ligne ligne) { return reprend(ligne), true; };
    return m_abimee ? m_lecteur.parcourtCeQuiEstLisible(*reprise.source, partiel, kAffiche)
                    : m_lecteur.parcourt(*reprise.source, entier, kAffiche);
}

void Passage::copie(Reprise& reprise, dao::Database& base) {
    if (reprise.source == nullptr) return;
    dao::Recordset cible = base.OpenRecordset(reprise.nom);
    std::optional<dao::Transaction> lot;
    long lignes = 0;
    std::size_t octets = 0;
    const auto termine = [&] {
        if (lot) lot->confirme();
        lot.reset();
        lignes = 0, octets = 0;
    };
    const jet::Bilan bilan = parcourt(reprise, [&](jet::Ligne ligne) {
        if (!lot) lot.emplace(base);
        octets += ajoute(reprise, cible, ligne);
        if (++lignes >= kLignesParLot || octets >= kOctetsParLot) termine();
        const jet::Avancement lu = m_lecteur.avancement();
        const std::uint64_t pages = std::max<std::uint64_t>(lu.pages, 1);
        avance(static_cast<long>(lu.pagesLues * kAvancementLecture / pages));
    });
    termine();
    m_rapport.affichesAlterees += bilan.affichesAlterees;
    reprise.dommages.lues = reprise.lignes;
    reprise.dommages.retrouvees = bilan.lignesRetrouvees;
    if (!m_abimee && static_cast<std::uint64_t>(reprise.lignes) != reprise.source->lignesDeclarees)
        throw Echec{"La table " + util::entreChevrons(reprise.nom) +
                        " est incomplète : " + std::to_string(reprise.lignes) + " lignes lues sur " +
                        std::to_string(reprise.source->lignesDeclarees) + " annoncées.",
                    true};
}

// Answers about how many bytes the row takes.
std::size_t Passage::ajoute(Reprise& reprise, dao::Recordset& cible, jet::Ligne ligne) {
    std::size_t octets = 0;
    cible.AddNew();
    for (std::size_t i = 0; i < reprise.champs.size(); ++i) {
        const std::size_t place = reprise.places[i];
        const dao::Valeur valeur = valeurDe(reprise.champs[i], reprise.source->champs[place].nature, ligne[place]);
        if (reprise.champs[i] == kAffiche) compteAffiche(valeur);
        melange(reprise.empreinte, valeur);
        cible.assigne(reprise.champs[i], valeur);
        octets += ligne[place] ? ligne[place]->size() : 0;
    }
    cible.Update();
    ++reprise.lignes;
    return octets;
}

void Passage::compteAffiche(const dao::Valeur& affiche) {
    if (affiche.estOctets())
        ++m_rapport.affiches;
    else if (const std::string nom = affiche.texte();
             nom.starts_with(kDansUnFichier) && nom.size() > kDansUnFichier.size())
        m_rapport.fichiers.push_back(nom.substr(kDansUnFichier.size()));
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
        throw Echec{"La nouvelle base n'est pas identique à l'originale (table " + util::entreChevrons(reprise.nom) +
                    ")."};
}

// Between two rows.
void Passage::avance(long valeur) {
    m_progression.Value = valeur;
    if (!m_ecran.respire()) throw Arret{};
}

void efface(const std::string& destination) {
    for (const char* suite : {"-journal", ""})
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

IssueJet ConversionJet::operator()(const std::string& source, const std::string& destination,
                                   const jet::Ouverture& ouverture) {
    std::error_code ignoree;
    if (fs::exists(fs::symlink_status(destination, ignoree)))
        return {.rapport = {}, .echec = "Le fichier " + util::entreChevrons(destination) + " existe déjà."};
    const ecran::Travail travail(m_ecran);
    m_progression.Max = kAvancementMax;
    m_progression.Value = 0;
    const Temoin temoin(source);
    IssueJet issue;
    try {
        issue.rapport = Passage(source, destination, ouverture, m_progression, m_ecran).convertit();
        m_progression.Value = kAvancementMax;
        if (temoin.aChange()) issue.echec = "Un autre programme a modifié la base pendant sa lecture.";
    } catch (const Arret&) {
        issue.interrompu = true;
    } catch (const Echec& echec) {
        issue.echec = echec.texte;
        issue.abimee = echec.abimee;
    } catch (const jet::BaseEndommagee& erreur) {
        issue.echec = erreur.what();
        issue.abimee = true;
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
