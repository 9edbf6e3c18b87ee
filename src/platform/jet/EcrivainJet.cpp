#include "platform/jet/EcrivainJet.h"

#include "platform/jet/CleIndex.h"
#include "platform/jet/OctetsEcrits.h"
#include "platform/jet/Rangement.h"
#include "platform/jet/TableEnCours.h"
#include "platform/jet/TextesEcrits.h"
#include "util/Texte.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <deque>
#include <numeric>
#include <optional>
#include <stdexcept>
#include <utility>

#include <unicode/utf16.h>

namespace jet {

namespace {

using namespace interne;

using Valeurs = std::vector<std::optional<std::string>>;

// The system's own tables stand on the pages 2 to 5.
constexpr std::uint32_t kEntete = 0, kCarteGenerale = 1;
enum Systeme : std::size_t { Objets, Droits, Requetes, Relations };
constexpr std::uint32_t kPremiereTable = 2;

constexpr std::uint32_t kBoites = 0x0F000000;  // of the objects by their kinds: their own parent, then each of them
constexpr std::uint32_t kBoiteTables = kBoites + 1, kBoiteBases = kBoites + 2, kBoiteRelations = kBoites + 3;
constexpr std::uint32_t kBaseElleMeme = 0x10000000;
constexpr std::uint32_t kDuSysteme = 0x80000000;

constexpr const char *kMoteur = "\xa7\x31", *kAdministrateur = "\xa6\x33", *kUtilisateurs = "\xa7\x33",
                     *kProprietaire = "\xa7\x36";

constexpr std::uint8_t kUnique = 0x81, kRequis = 0x88, kSansNull = 0x82;  // marks of indexes

ColonneEcrite champ(const char* nom, Type type, std::uint8_t marques = 0x12) {
    return {nom, type, marques, 0};
}

struct TableDuSysteme {
    const char* nom;
    std::vector<ColonneEcrite> colonnes;
    std::vector<IndexDeTable> index;
};

// In the order of `Systeme`.
std::vector<TableDuSysteme> tablesDuSysteme() {
    using enum Type;
    return {{"MSysObjects",
             {champ("Id", Entier32), champ("ParentId", Entier32), champ("Name", Texte), champ("Type", Entier16),
              champ("DateCreate", Date), champ("DateUpdate", Date), champ("Owner", Binaire, 0x32),
              champ("Flags", Entier32), champ("Database", Memo), champ("Connect", Memo), champ("ForeignName", Texte),
              champ("RmtInfoShort", Binaire), champ("RmtInfoLong", Ole), champ("Lv", Ole), champ("LvProp", Ole),
              champ("LvModule", Ole), champ("LvExtra", Ole)},
             {{"ParentIdName", {1, 2}, kUnique, false}, {"Id", {0}, kUnique, true}}},
            {"MSysACEs",
             {champ("ObjectId", Entier32), champ("SID", Binaire, 0x32), champ("ACM", Entier32),
              champ("FInheritable", Booleen)},
             {{"ObjectId", {0}, kRequis, false}}},
            {"MSysQueries",
             {champ("ObjectId", Entier32), champ("Attribute", Octet), champ("Order", Binaire), champ("Name1", Texte),
              champ("Name2", Texte), champ("Expression", Memo), champ("Flag", Entier16), champ("LvExtra", Entier32)},
             {{"ObjectIdAttribute", {0, 1, 2}, kUnique, true}}},
            {"MSysRelationships",
             {champ("szRelationship", Texte), champ("grbit", Entier32), champ("ccolumn", Entier32),
              champ("icolumn", Entier32), champ("szObject", Texte), champ("szColumn", Texte),
              champ("szReferencedObject", Texte), champ("szReferencedColumn", Texte)},
             {{"szRelationship", {0}, kSansNull, false},
              {"szObject", {4}, kSansNull, false},
              {"szReferencedObject", {6}, kSansNull, false}}}};
}

// The cipher of a file's head.
void chiffre(std::string& octets, std::size_t place, std::size_t longueur) {
    constexpr std::uint32_t kCle = 0x6B39DAC7;
    std::array<std::uint8_t, 256> boite{};
    std::iota(boite.begin(), boite.end(), std::uint8_t{0});
    for (std::size_t i = 0, j = 0; i < boite.size(); ++i) {
        j = (j + boite[i] + (kCle >> 8 * (i % 4) & 0xFF)) % boite.size();
        std::swap(boite[i], boite[j]);
    }
    for (std::size_t n = 0, i = 0, j = 0; n < longueur; ++n) {
        i = (i + 1) % boite.size();
        j = (j + boite[i]) % boite.size();
        std::swap(boite[i], boite[j]);
        octets[place + n] = static_cast<char>(octets[place + n] ^ boite[(boite[i] + boite[j]) % boite.size()]);
    }
}

std::string reel(double valeur) {
    return petit(std::bit_cast<std::uint64_t>(valeur), 8);
}

std::string entete(double jour) {
    constexpr std::size_t kDebutChiffre = 0x18, kChiffres = 0x80;
    std::string page(kTaillePage, '\0');
    pose(page, 0x00, std::string("\0\1\0\0Standard Jet DB", 19));
    pose(page, 0x14, 1, 4);  // Jet 4
    pose(page, 0x19, std::string("\1\0\0\1\1", 5));
    for (std::uint32_t i = 0; i < 4; ++i)
        pose(page, 0x20 + 4 * i, kPremiereTable + i, 4);
    pose(page, 0x3c, 1252, 4);
    // No password, hidden by the day.
    for (std::size_t i = 0; i < 10; ++i)
        pose(page, 0x42 + 4 * i, static_cast<std::uint32_t>(jour), 4);
    pose(page, 0x6a, 0x21aa, 4);
    pose(page, 0x6e, 0x0409, 4);  // the "General" order
    pose(page, 0x72, reel(jour));
    chiffre(page, kDebutChiffre, kChiffres);
    pose(page, 0x98, 1620, 4);
    pose(page, 0x9c, "4.0");
    for (std::size_t place = 0xe01; place < kTaillePage; place += 2)  // nobody has the file open
        page[place] = 1;
    return page;
}

// The properties of a table: that its texts may be empty, which the engine would refuse to whom writes one.
std::string proprietes(const TableEcrite& table) {
    constexpr std::uint64_t kNoms = 0x80, kDunChamp = 0x01, kBooleen = 0x01, kVrai = 0xFF;
    const auto nom = [](const std::string& texte) {
        const std::string octets = texteJet(enUnites(texte).unites, false);
        return petit(octets.size(), 2) + octets;
    };
    const auto bloc = [](std::uint64_t genre, const std::string& contenu) {
        return petit(contenu.size() + 6, 4) + petit(genre, 2) + contenu;
    };
    std::string octets = std::string("MR2\0", 4) + bloc(kNoms, nom("AllowZeroLength"));
    for (const ChampEcrit& champ : table.champs) {
        if (champ.type == TypeEcrit::Nombre) continue;
        const std::string du = nom(champ.nom);
        const std::string valeur = petit(1, 1) + petit(kBooleen, 1) + petit(0, 2) + petit(1, 2) + petit(kVrai, 1);
        octets += bloc(kDunChamp, petit(du.size() + 4, 4) + du + petit(valeur.size() + 2, 2) + valeur);
    }
    return octets;
}

Type typeDe(TypeEcrit type) {
    return type == TypeEcrit::Nombre ? Type::Reel64 : type == TypeEcrit::Memo ? Type::Memo : Type::Texte;
}

double nombre(const std::string& texte) {
    double valeur = 0;
    const char* const fin = texte.data() + texte.size();
    const auto lu = std::from_chars(texte.data(), fin, valeur);
    if (lu.ec != std::errc() || lu.ptr != fin || !std::isfinite(valeur)) throw std::length_error("nombre");
    return valeur;
}

std::string enOctetsDuChamp(TypeEcrit type, const std::string& valeur) {
    if (type == TypeEcrit::Nombre) return reel(nombre(valeur));
    const std::u16string unites = enUnites(valeur).unites;
    if (type == TypeEcrit::Texte && unites.size() > kCaracteresMax) throw std::length_error("texte");
    return texteJet(unites, true);
}

}  // namespace

TexteDit dit(std::string_view texte, std::size_t maximum) {
    Unites lu = enUnites(texte);
    TexteDit resultat{{}, lu.fidele, lu.unites.size()};
    if (lu.unites.size() > maximum) {
        lu.unites.resize(maximum);
        if (maximum > 0 && U16_IS_LEAD(lu.unites.back())) lu.unites.pop_back();
    } else if (lu.fidele) {
        resultat.texte = texte;
        return resultat;
    }
    resultat.texte = util::depuisUtf16(lu.unites);
    return resultat;
}

std::uint64_t octetsDUneImage(std::size_t octets) {
    return ValeursLongues::ailleurs(2 * octets);
}

std::size_t octetsDansLaLigne(TypeEcrit type, std::string_view texte) {
    if (type == TypeEcrit::Nombre) return 8;
    const std::size_t octets = texteJet(enUnites(texte).unites, true).size();
    return 2 + (type == TypeEcrit::Memo ? ValeursLongues::dansLaLigne(octets) : octets);
}

std::uint64_t octetsAilleurs(TypeEcrit type, std::string_view texte) {
    if (type != TypeEcrit::Memo) return 0;
    return ValeursLongues::ailleurs(texteJet(enUnites(texte).unites, true).size());
}

class Ecrivain::Interieur {
  public:
    Interieur(const std::string& chemin, double jour, std::function<void()> souffle)
        : m_fichier(chemin, std::move(souffle)), m_jour(jour) {
        const std::vector<TableDuSysteme> tables = tablesDuSysteme();
        while (m_fichier.nombre() < kPremiereTable + tables.size())
            (void)m_fichier.nouvelle();
        for (const TableDuSysteme& table : tables)
            m_systeme.emplace_back(m_fichier, kPremiereTable + static_cast<std::uint32_t>(m_systeme.size()),
                                   Usage::Systeme, table.colonnes, table.index);
    }

    std::size_t table(const TableEcrite& table);
    void ligne(std::size_t rang, Ligne champs);
    std::vector<IndexOmis> acheve();

  private:
    struct Table {
        TableEcrite description;
        TableEnCours enCours;
    };
    std::vector<std::string> cles(Table& table, const std::vector<std::u16string>& textes, Ligne champs);
    void objet(std::uint32_t id, std::uint32_t parent, const std::string& nom, std::int16_t genre,
               const char* proprietaire, std::uint32_t drapeaux, const std::optional<std::string>& proprietes = {});
    void droit(std::uint32_t id, const char* qui, std::uint32_t quoi, bool herite = false);
    void ecritLeCatalogue();

    FichierDePages m_fichier;
    double m_jour;
    std::deque<TableEnCours> m_systeme;
    std::deque<Table> m_tables;
    std::vector<IndexOmis> m_omis;
};

std::size_t Ecrivain::Interieur::table(const TableEcrite& table) {
    std::vector<ColonneEcrite> colonnes;
    for (const ChampEcrit& c : table.champs)
        colonnes.push_back(
            {c.nom, typeDe(c.type), 0x02, c.type == TypeEcrit::Nombre ? std::uint8_t{0} : std::uint8_t{1}});
    std::vector<IndexDeTable> index;
    for (const IndexEcrit& i : table.index)
        index.push_back({i.nom, i.champs, 0x80, false});
    m_tables.push_back({table, TableEnCours(m_fichier, m_fichier.nouvelle(), Usage::Utilisateur, std::move(colonnes),
                                            std::move(index))});
    return m_tables.size() - 1;
}

std::vector<std::string> Ecrivain::Interieur::cles(Table& table, const std::vector<std::u16string>& textes,
                                                   Ligne champs) {
    std::vector<std::string> cles(table.description.index.size());
    for (std::size_t i = 0; i < cles.size(); ++i) {
        if (!table.enCours.tient(i)) continue;
        const IndexEcrit& index = table.description.index[i];
        for (const std::size_t rang : index.champs) {
            if (!champs[rang]) {
                ajouteCleNulle(cles[i]);
            } else if (!ajouteCleTexte(textes[rang], cles[i]) || cles[i].size() > kCleMax) {
                table.enCours.omet(i);
                m_omis.push_back({table.description.nom, index.nom, *champs[rang]});
                break;
            }
        }
    }
    return cles;
}

void Ecrivain::Interieur::ligne(std::size_t rang, Ligne champs) {
    Table& table = m_tables.at(rang);
    Valeurs valeurs(champs.size());
    std::vector<std::u16string> textes(champs.size());
    for (std::size_t i = 0; i < champs.size(); ++i)
        if (champs[i]) valeurs[i] = enOctetsDuChamp(table.description.champs[i].type, *champs[i]);
    for (const IndexEcrit& index : table.description.index)
        for (const std::size_t i : index.champs)
            if (champs[i]) textes[i] = enUnites(*champs[i]).unites;
    table.enCours.ligne(valeurs, cles(table, textes, champs));
}

void Ecrivain::Interieur::objet(std::uint32_t id, std::uint32_t parent, const std::string& nom, std::int16_t genre,
                                const char* proprietaire, std::uint32_t drapeaux,
                                const std::optional<std::string>& proprietes) {
    const std::u16string unites = enUnites(nom).unites;
    Valeurs valeurs(m_systeme[Objets].colonnes().size());
    valeurs[0] = petit(id, 4);
    valeurs[1] = petit(parent, 4);
    valeurs[2] = texteJet(unites, false);
    valeurs[3] = petit(static_cast<std::uint16_t>(genre), 2);
    valeurs[4] = valeurs[5] = reel(m_jour);
    valeurs[6] = proprietaire;
    valeurs[7] = petit(drapeaux, 4);
    valeurs[14] = proprietes;
    std::string parNom, parId;
    ajouteCleEntiere(static_cast<std::int32_t>(parent), parNom);
    if (!ajouteCleTexte(unites, parNom)) throw std::length_error("nom");
    ajouteCleEntiere(static_cast<std::int32_t>(id), parId);
    m_systeme[Objets].ligne(valeurs, {parNom, parId});
}

void Ecrivain::Interieur::droit(std::uint32_t id, const char* qui, std::uint32_t quoi, bool herite) {
    std::string cle;
    ajouteCleEntiere(static_cast<std::int32_t>(id), cle);
    m_systeme[Droits].ligne(
        Valeurs{petit(id, 4), qui, petit(quoi, 4), herite ? std::optional<std::string>("") : std::nullopt}, {cle});
}

// What stands there is what the engine makes of a new base: everybody may do everything with the user's tables.
void Ecrivain::Interieur::ecritLeCatalogue() {
    constexpr std::int16_t kTable = 1, kBase = 2, kBoite = 3;
    constexpr std::uint32_t kTout = 0xFFFFF, kToutSaufCreer = 0xFFEFF, kGerer = 0x60000, kLire = 0x14;
    objet(kBoiteTables, kBoites, "Tables", kBoite, kMoteur, kDuSysteme);
    objet(kBoiteBases, kBoites, "Databases", kBoite, kMoteur, kDuSysteme);
    objet(kBoiteRelations, kBoites, "Relationships", kBoite, kMoteur, kDuSysteme);
    objet(kBaseElleMeme, kBoiteBases, "MSysDb", kBase, kAdministrateur, kDuSysteme);
    std::uint32_t page = kPremiereTable;
    for (const TableDuSysteme& table : tablesDuSysteme())
        objet(page++, kBoiteTables, table.nom, kTable, kMoteur, kDuSysteme);
    for (const Table& table : m_tables)
        objet(table.enCours.page(), kBoiteTables, table.description.nom, kTable, kAdministrateur, 0,
              proprietes(table.description));

    droit(kBoiteBases, kAdministrateur, kGerer);
    droit(kBoiteTables, kProprietaire, 0xF00FE, true);
    droit(kBoiteTables, kAdministrateur, kToutSaufCreer, true);
    droit(kBoiteTables, kUtilisateurs, kToutSaufCreer, true);
    droit(kBoiteRelations, kProprietaire, 0xF00FE, true);
    droit(kBoiteRelations, kAdministrateur, 0x60001);
    droit(kBoiteRelations, kUtilisateurs, kTout, true);
    droit(kBaseElleMeme, kAdministrateur, 0x6000E);
    droit(kBaseElleMeme, kUtilisateurs, 0xE);
    droit(kPremiereTable + Droits, kAdministrateur, kGerer);
    for (const Systeme lue : {Objets, Requetes, Relations}) {
        droit(kPremiereTable + static_cast<std::uint32_t>(lue), kAdministrateur, lue == Relations ? 0xE0000 : kGerer);
        droit(kPremiereTable + static_cast<std::uint32_t>(lue), kUtilisateurs, kLire);
    }
    for (const Table& table : m_tables)
        for (const char* qui : {kProprietaire, kAdministrateur, kUtilisateurs})
            droit(table.enCours.page(), qui, kTout);
}

std::vector<IndexOmis> Ecrivain::Interieur::acheve() {
    for (Table& table : m_tables)
        table.enCours.acheve();
    ecritLeCatalogue();
    for (TableEnCours& table : m_systeme)
        table.acheve();
    // The map of the free pages is the first row of its page; the second one is empty in a new base.
    const std::string libres = carteDesPagesLibres(m_fichier);
    std::string cartes(kTaillePage, '\0');
    pose(cartes, 0, 0x0101, 2);
    pose(cartes, 4, 1, 4);
    pose(cartes, 12, 2, 2);
    pose(cartes, 14, kTaillePage - libres.size(), 2);
    pose(cartes, 16, kTaillePage - 2 * libres.size(), 2);
    pose(cartes, 2, kTaillePage - 2 * libres.size() - 18, 2);
    pose(cartes, kTaillePage - libres.size(), libres);
    m_fichier.ecrit(kCarteGenerale, cartes);
    m_fichier.ecrit(kEntete, entete(m_jour));
    m_fichier.ferme();
    return std::move(m_omis);
}

Ecrivain::Ecrivain(const std::string& chemin, double jour, std::function<void()> souffle)
    : m_interieur(std::make_unique<Interieur>(chemin, jour, std::move(souffle))) {}
Ecrivain::~Ecrivain() = default;

std::size_t Ecrivain::table(const TableEcrite& table) {
    return m_interieur->table(table);
}
void Ecrivain::ligne(std::size_t table, Ligne champs) {
    m_interieur->ligne(table, champs);
}
std::vector<IndexOmis> Ecrivain::acheve() {
    return m_interieur->acheve();
}

}  // namespace jet
