#include "db/VersJet.h"

#include "db/Affiches.h"
#include "db/ChampsPublies.h"
#include "platform/dao/DBEngine.h"
#include "platform/fichiers/Fichiers.h"
#include "platform/jet/EcrivainJet.h"
#include "platform/systeme/ACote.h"
#include "util/Nombres.h"
#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <new>
#include <numeric>
#include <span>
#include <stdexcept>
#include <string_view>

namespace db {

namespace {

constexpr std::string_view kResume = "Resume";
constexpr std::size_t kEcartsDits = 200;

// Measuring, writing, reading back.
constexpr long kAvancementMesure = 200, kAvancementEcriture = 700, kAvancementMax = 1000;

struct Echec {
    std::string texte;
};
struct Arret {};

using Valeurs = std::vector<std::optional<std::string>>;

// One of the two tables, and what its fields hold at most.
struct Envoi {
    std::string_view nom, index;
    std::span<const std::string_view> champs;
    std::vector<std::size_t> caracteres{}, octets{};  // of the longest text of each field
    std::uint64_t ailleurs = 0, dansLesLignes = 0;    // bytes of all rows
    long lignes = 0;
    jet::TableEcrite ecrite{};
    std::uint64_t empreinte = 0;  // of every value, in order
};

void melange(std::uint64_t& empreinte, const std::optional<std::string>& valeur) {
    static constexpr std::uint64_t kFacteur = 0x9e3779b97f4a7c15;
    empreinte = (empreinte ^ (valeur ? std::hash<std::string>{}(*valeur) : 1)) * kFacteur + (valeur ? 2 : 1);
    empreinte ^= empreinte >> 29;
}

bool estCle(std::size_t champ) {
    return champ < kChampsCle;
}

std::string ecrit(double nombre) {
    std::array<char, 40> tampon{};
    return {tampon.data(), std::to_chars(tampon.data(), tampon.data() + tampon.size(), nombre).ptr};
}

// The number that a rating is, if a double says the same.
std::optional<std::string> noteEcrite(const dao::Valeur& note) {
    const std::string texte = note.texte();
    const char* const fin = texte.data() + texte.size();
    double reel = 0;
    const auto lu = std::from_chars(texte.data(), fin, reel);
    if (lu.ec != std::errc() || lu.ptr != fin || !std::isfinite(reel)) return std::nullopt;
    long long entier = 0;
    constexpr long long kExact = 1LL << 53;
    if (const auto compte = std::from_chars(texte.data(), fin, entier);
        compte.ec == std::errc() && compte.ptr == fin && (entier > kExact || entier < -kExact))
        return std::nullopt;
    return ecrit(reel);
}

std::string enGigaoctets(std::uint64_t octets) {
    constexpr double kGiga = 1024.0 * 1024 * 1024;
    const auto dixiemes = static_cast<std::uint64_t>(static_cast<double>(octets) / kGiga * 10 + 0.5);
    return std::to_string(dixiemes / 10) + "," + std::to_string(dixiemes % 10) + " Go";
}

// One writing under way. Throws Echec, Arret, and what the bases throw.
class Envois {
  public:
    Envois(const std::string& source, const std::string& destination, ecran::Progression& progression,
           ecran::Ecran& ecran)
        : m_destination(destination),
          m_base(dao::DBEngine::OpenDatabase(source)),
          m_progression(progression),
          m_ecran(ecran) {}

    RapportVersJet execute(double jour);

  private:
    void parcourt(Envoi& envoi, long debut, long fin, const std::function<void(dao::Recordset&)>& ligne);
    void mesure(Envoi& envoi, dao::Recordset& ligne);
    void decide(Envoi& envoi);
    void refuseCeQuiNeTientPas() const;
    void ecrit(Envoi& envoi, jet::Ecrivain& ecrivain, std::size_t table);
    Valeurs dites(const Envoi& envoi, const dao::Recordset& ligne);
    std::optional<std::string> dite(const Envoi& envoi, std::size_t champ, const dao::Recordset& ligne);
    void relit(const Envoi& envoi, jet::Lecteur& lecteur, long debut, long fin);
    void noteEcart(const std::string& texte);
    void avance(long valeur);

    const std::string& m_destination;
    dao::Database m_base;
    ecran::Progression& m_progression;
    ecran::Ecran& m_ecran;
    Envoi m_films{.nom = "Films", .index = "Film", .champs = kChampsFilms};
    Envoi m_personnel{.nom = "Personnel", .index = "Film2", .champs = kChampsPersonnel};
    RapportVersJet m_rapport;
};

// The transaction holds the base as it is: nothing is written in it.
RapportVersJet Envois::execute(double jour) {
    const dao::Transaction instantane(m_base);
    for (Envoi* envoi : {&m_films, &m_personnel}) {
        envoi->caracteres.resize(envoi->champs.size());
        envoi->octets.resize(envoi->champs.size());
        parcourt(*envoi, 0, kAvancementMesure, [&](dao::Recordset& ligne) { mesure(*envoi, ligne); });
        decide(*envoi);
    }
    refuseCeQuiNeTientPas();
    {
        jet::Ecrivain ecrivain(m_destination, jour, [this] { m_ecran.patiente(); });
        const std::size_t films = ecrivain.table(m_films.ecrite), personnel = ecrivain.table(m_personnel.ecrite);
        ecrit(m_films, ecrivain, films);
        ecrit(m_personnel, ecrivain, personnel);
        for (const jet::IndexOmis& omis : ecrivain.acheve())
            noteEcart("L'index de la table " + util::entreChevrons(omis.table) +
                      " n'a pas été écrit : l'ordre de Jet n'est pas connu pour " + util::entreChevrons(omis.texte) +
                      ". Les films y sont tous.");
    }
    bool surLeDisque = false;
    systeme::aCote([&] { surLeDisque = fichiers::synchronise({m_destination}); }, [this] { m_ecran.patiente(); });
    if (!surLeDisque) throw Echec{"Le fichier " + util::entreChevrons(m_destination) + " n'a pas pu être enregistré."};
    jet::Lecteur lecteur(m_destination);
    relit(m_films, lecteur, kAvancementEcriture, kAvancementMax);
    relit(m_personnel, lecteur, kAvancementEcriture, kAvancementMax);
    m_rapport.films = m_films.lignes;
    m_rapport.possessions = m_personnel.lignes;
    m_rapport.octets = static_cast<std::uint64_t>(std::max<std::int64_t>(0, fichiers::longueur(m_destination)));
    return m_rapport;
}

void Envois::parcourt(Envoi& envoi, long debut, long fin, const std::function<void(dao::Recordset&)>& ligne) {
    dao::Recordset lignes = m_base.OpenRecordset(envoi.nom);
    const long total = std::max(1L, lignes.RecordCount());
    for (long faites = 0; !lignes.Eof(); lignes.MoveNext()) {
        ligne(lignes);
        avance(debut + (fin - debut) * std::min(++faites, total) / total);
    }
}

void Envois::mesure(Envoi& envoi, dao::Recordset& ligne) {
    ++envoi.lignes;
    for (std::size_t i = 0; i < envoi.champs.size(); ++i) {
        const dao::Valeur valeur = ligne.valeur(envoi.champs[i]);
        if (valeur.estNull() || envoi.champs[i] == kNote) continue;
        const std::string texte = valeur.texte();
        if (envoi.champs[i] == kAffiche && estDansLaBase(texte)) {
            envoi.ailleurs += jet::octetsDUneImage(texte.size());
            continue;
        }
        envoi.caracteres[i] = std::max(envoi.caracteres[i], jet::dit(texte).caracteres);
        const std::size_t octets = jet::octetsDansLaLigne(jet::TypeEcrit::Texte, texte);
        envoi.octets[i] = std::max(envoi.octets[i], octets);
        envoi.dansLesLignes += octets;
        envoi.ailleurs += jet::octetsAilleurs(jet::TypeEcrit::Memo, texte);
    }
}

// A text of Jet has 255 characters at most, and a row 4 KB: fields that hold more are memos, as the summary always is.
void Envois::decide(Envoi& envoi) {
    constexpr std::size_t kOctetsDuReste = 64;  // what a row holds beside its fields, and a number
    constexpr std::size_t kOctetsDunMemo = 80;  // at most
    std::vector<jet::TypeEcrit> types(envoi.champs.size(), jet::TypeEcrit::Texte);
    const auto devientMemo = [&](std::size_t i) {
        types[i] = jet::TypeEcrit::Memo;
        envoi.octets[i] = kOctetsDunMemo;
    };
    for (std::size_t i = 0; i < types.size(); ++i) {
        const std::string_view nom = envoi.champs[i];
        if (nom == kNote) types[i] = jet::TypeEcrit::Nombre;
        if (nom == kAffiche || nom == kResume || (!estCle(i) && envoi.caracteres[i] > jet::kCaracteresMax))
            devientMemo(i);
        if (estCle(i)) envoi.octets[i] = std::min(envoi.octets[i], 2 * jet::kCaracteresMax + 2);
    }
    const auto total = [&] { return std::accumulate(envoi.octets.begin(), envoi.octets.end(), kOctetsDuReste); };
    while (total() > jet::kOctetsParLigneMax) {
        const auto plusLong = std::max_element(envoi.octets.begin() + kChampsCle, envoi.octets.end());
        devientMemo(static_cast<std::size_t>(plusLong - envoi.octets.begin()));
    }
    envoi.ecrite.nom = envoi.nom;
    for (std::size_t i = 0; i < types.size(); ++i)
        envoi.ecrite.champs.push_back({std::string(envoi.champs[i]), types[i]});
    envoi.ecrite.index.push_back({std::string(envoi.index), {0, 1}});
}

// About: rows leave the ends of their pages free, and indexes hold the keys once more.
void Envois::refuseCeQuiNeTientPas() const {
    constexpr std::uint64_t kParLigne = 128;
    std::uint64_t octets = 0;
    for (const Envoi* envoi : {&m_films, &m_personnel})
        octets +=
            envoi->ailleurs + (envoi->dansLesLignes + static_cast<std::uint64_t>(envoi->lignes) * kParLigne) * 11 / 10;
    if (octets < jet::kOctetsMax) return;
    throw Echec{
        "Elle ferait environ " + enGigaoctets(octets) +
        ", et un fichier Jet ne peut pas dépasser 2 Go : une affiche y prend deux fois sa taille.\nEnregistrez les "
        "affiches dans un répertoire, puis recommencez."};
}

void Envois::ecrit(Envoi& envoi, jet::Ecrivain& ecrivain, std::size_t table) {
    parcourt(envoi, kAvancementMesure, kAvancementEcriture, [&](dao::Recordset& ligne) {
        Valeurs valeurs = dites(envoi, ligne);
        for (std::size_t i = 0; i < valeurs.size(); ++i) {
            melange(envoi.empreinte, valeurs[i]);
            if (envoi.champs[i] == kAffiche && valeurs[i] && estDansLaBase(*valeurs[i]))
                valeurs[i] = util::depuis1252(*valeurs[i]);  // a character for each byte
        }
        ecrivain.ligne(table, valeurs);
    });
}

Valeurs Envois::dites(const Envoi& envoi, const dao::Recordset& ligne) {
    Valeurs valeurs(envoi.champs.size());
    for (std::size_t i = 0; i < valeurs.size(); ++i)
        valeurs[i] = dite(envoi, i, ligne);
    return valeurs;
}

std::optional<std::string> Envois::dite(const Envoi& envoi, std::size_t champ, const dao::Recordset& ligne) {
    const dao::Valeur valeur = ligne.valeur(envoi.champs[champ]);
    if (valeur.estNull()) return std::nullopt;
    const auto ecart = [&](const std::string& quoi) {
        noteEcart("Table " + util::entreChevrons(envoi.nom) + ", " + util::entreChevrons(ligne.texte(envoi.champs[0])) +
                  " (" + ligne.texte(envoi.champs[1]) + "), champ " + util::entreChevrons(envoi.champs[champ]) + " : " +
                  quoi);
    };
    const std::string texte = valeur.texte();
    if (envoi.champs[champ] == kNote) {
        auto note = noteEcrite(valeur);
        if (!note) ecart("la note " + util::entreChevrons(texte) + " n'est pas un nombre que Jet sait dire.");
        return note;
    }
    if (envoi.champs[champ] == kAffiche && estDansLaBase(texte)) return texte;
    jet::TexteDit lu = jet::dit(texte, estCle(champ) ? jet::kCaracteresMax : SIZE_MAX);
    if (estCle(champ) && lu.caracteres > jet::kCaracteresMax)
        ecart("ses " + std::to_string(lu.caracteres) + " caractères sont coupés à " +
              std::to_string(jet::kCaracteresMax) + ".");
    if (!lu.fidele) ecart("certains octets ne sont pas de l'Unicode ; ils sont lus comme du Windows-1252.");
    return std::move(lu.texte);
}

void Envois::relit(const Envoi& envoi, jet::Lecteur& lecteur, long debut, long fin) {
    std::uint64_t empreinte = 0;
    const jet::Table* const table = lecteur.table(envoi.nom);
    if (table == nullptr) throw Echec{"La table " + util::entreChevrons(envoi.nom) + " manque à la relecture."};
    const auto bilan = lecteur.parcourt(
        *table,
        [&](jet::Ligne ligne) {
            for (const auto& valeur : ligne)
                melange(empreinte, valeur);
            const jet::Avancement lu = lecteur.avancement();
            avance(debut + static_cast<long>(static_cast<std::uint64_t>(fin - debut) * lu.pagesLues /
                                             std::max<std::uint64_t>(lu.pages, 1)));
            return true;
        },
        kAffiche);
    if (static_cast<long>(bilan.lignesLues) != envoi.lignes || empreinte != envoi.empreinte)
        throw Echec{"Ce qui a été écrit n'est pas identique à la base (table " + util::entreChevrons(envoi.nom) + ")."};
}

void Envois::noteEcart(const std::string& texte) {
    if (m_rapport.ecarts.size() < kEcartsDits)
        m_rapport.ecarts.push_back(texte);
    else
        ++m_rapport.autresEcarts;
}

void Envois::avance(long valeur) {
    m_progression.Value = valeur;
    if (!m_ecran.respire()) throw Arret{};
}

}  // namespace

IssueVersJet VersJet::operator()(const std::string& source, const std::string& destination, double jour) {
    const ecran::Travail travail(m_ecran);
    m_progression.Max = kAvancementMax;
    m_progression.Value = 0;
    IssueVersJet issue;
    try {
        issue.rapport = Envois(source, destination, m_progression, m_ecran).execute(jour);
        m_progression.Value = kAvancementMax;
    } catch (const Arret&) {
        issue.interrompu = true;
    } catch (const Echec& echec) {
        issue.echec = echec.texte;
    } catch (const jet::ErreurJet& erreur) {
        issue.echec = erreur.what();
    } catch (const dao::ErreurDao& erreur) {
        issue.echec = erreur.description;
    } catch (const std::length_error&) {
        issue.echec = "Une valeur ne tient pas dans un fichier Jet.";
    } catch (const std::bad_alloc&) {
        issue.echec = "La mémoire ne suffit pas.";
    }
    return issue;
}

}  // namespace db
