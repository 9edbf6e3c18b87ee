#pragma once

#include "util/Texte.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <numeric>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace doubles {

// A small genuine Jet 4 base, made in memory: what Access writes of tables and rows, and no more (no index, no
// properties). Long values stand in their row, on one page or on several, as their length asks.
class BaseJet {
  public:
    enum Type : std::uint8_t {
        Booleen = 1,
        Octet,
        Entier16,
        Entier32,
        Monetaire,
        Reel32,
        Reel64,
        Date,
        Binaire,
        Texte,
        Ole,
        Memo,
        Identifiant = 15,
        Decimal
    };
    struct Champ {
        std::string nom;
        Type type = Texte;
    };
    // Texts are UTF-8, a boolean is Null for false, all else its bytes in the file (see `petit`).
    using Valeurs = std::vector<std::optional<std::string>>;
    enum class Place { Normale, Deplacee, Supprimee };  // a moved row leaves a pointer where it was

    bool comprime = false;                         // texts of Latin letters take a byte a character
    bool cartesSurDesPages = false;                // maps as large bases have them
    std::uint32_t cle = 0;                         // encodes the pages
    std::string motDePasse;                        // UTF-8; as Access stores it, hidden by the day
    double jourDeCreation = 0;                     // since 30 December 1899
    bool jet3 = false;                             // of the head alone: its version, and its password
    std::optional<std::uint32_t> lignesDeclarees;  // what every table says in place of its number of rows

    BaseJet() : m_pages(3, std::string(kPage, '\0')) {}  // head, maps, definition of the catalogue

    // An integer's bytes.
    static std::string petit(std::uint64_t valeur, std::size_t octets) {
        std::string texte;
        for (; texte.size() < octets; valeur >>= 8)
            texte += static_cast<char>(valeur & 0xFF);
        return texte;
    }

    // The number of the new table; `drapeaux` is 0 for the user's own.
    std::size_t table(const std::string& nom, std::vector<Champ> champs, std::uint32_t drapeaux = 0) {
        m_tables.push_back({nom, drapeaux, nouvellePage(), std::move(champs), {}, 0});
        return m_tables.size() - 1;
    }
    void ligne(std::size_t table, const Valeurs& valeurs, Place place = Place::Normale) {
        Table& rangee = m_tables[table];
        const std::uint32_t ou = range(rangee, assemble(rangee.champs, valeurs), place == Place::Normale ? 0 : 0x8000);
        if (place == Place::Deplacee) range(rangee, petit(ou, 4), 0x4000);
        if (place != Place::Supprimee) ++rangee.lignes;
    }

    // The whole file.
    [[nodiscard]] std::string octets() const {
        BaseJet copie = *this;
        return copie.acheve();
    }

  private:
    static constexpr std::size_t kPage = 4096;
    struct Table {
        std::string nom;
        std::uint32_t drapeaux, page;
        std::vector<Champ> champs;
        std::vector<std::uint32_t> donnees;
        std::uint32_t lignes;
    };

    static void pose(std::string& page, std::size_t place, std::uint64_t valeur, std::size_t octets) {
        page.replace(place, octets, petit(valeur, octets));
    }
    static std::size_t lu16(const std::string& page, std::size_t place) {
        return static_cast<unsigned char>(page[place]) | static_cast<unsigned char>(page[place + 1]) << 8;
    }
    static std::size_t tailleFixe(Type type) {
        static constexpr std::array<std::size_t, 17> tailles{0, 0, 1, 2, 4, 8, 4, 8, 8, 0, 0, 0, 0, 0, 0, 16, 17};
        return tailles[type];
    }
    static bool estFixe(Type type) { return type == Booleen || tailleFixe(type) > 0; }

    std::uint32_t nouvellePage() {
        m_pages.emplace_back(kPage, '\0');
        return static_cast<std::uint32_t>(m_pages.size() - 1);
    }
    // Adds a row to a data page; its pointer, or 0 when there is no room.
    std::uint32_t ajoute(std::uint32_t numero, std::string_view octets, unsigned drapeaux) {
        std::string& page = m_pages[numero];
        const std::size_t nombre = lu16(page, 12), debut = nombre == 0 ? kPage : lu16(page, 12 + 2 * nombre) & 0x1FFF;
        if (nombre == 255 || debut < 14 + 2 * (nombre + 1) + octets.size()) return 0;
        const std::size_t place = debut - octets.size();
        page.replace(place, octets.size(), octets);
        pose(page, 12, nombre + 1, 2);
        pose(page, 14 + 2 * nombre, place | drapeaux, 2);
        return static_cast<std::uint32_t>(numero << 8 | nombre);
    }
    std::uint32_t nouvellePageDonnees(std::uint32_t proprietaire) {
        const std::uint32_t page = nouvellePage();
        m_pages[page].replace(0, 8, petit(0x0101, 4) + petit(proprietaire, 4));
        return page;
    }
    std::uint32_t range(Table& table, std::string_view octets, unsigned drapeaux) {
        const std::uint32_t pointeur = table.donnees.empty() ? 0 : ajoute(table.donnees.back(), octets, drapeaux);
        if (pointeur != 0) return pointeur;
        table.donnees.push_back(nouvellePageDonnees(table.page));
        return ajoute(table.donnees.back(), octets, drapeaux);
    }

    static std::string texte(const std::string& utf8, bool comprime) {
        const std::u16string unites = std::filesystem::path(std::u8string(utf8.begin(), utf8.end())).u16string();
        const auto estLatine = [](char16_t unite) { return unite > 0 && unite < 256; };
        const bool court = comprime && std::ranges::all_of(unites, estLatine);
        std::string octets = court ? "\xFF\xFE" : "";
        for (const char16_t unite : unites)
            octets += petit(unite, court ? 1 : 2);
        return octets;
    }
    std::string longue(const std::string& octets) {
        constexpr std::size_t kDansLaLigne = 64, kParPage = 4000;
        if (octets.size() <= kDansLaLigne) return petit(0x80000000 | octets.size(), 4) + petit(0, 8) + octets;
        std::uint32_t pointeur = 0, forme = octets.size() <= kParPage ? 0x40000000 : 0;
        // A chain is laid from its end: each piece names the next.
        for (std::size_t place = (octets.size() - 1) / kParPage * kParPage;; place -= kParPage) {
            const std::string suite = forme != 0 ? "" : petit(pointeur, 4);
            pointeur = ajoute(nouvellePageDonnees(0x4C41564C), suite + octets.substr(place, kParPage), 0);
            if (place == 0) return petit(forme | octets.size(), 4) + petit(pointeur, 4) + petit(0, 4);
        }
    }

    std::string assemble(const std::vector<Champ>& champs, const Valeurs& valeurs) {
        std::string fixes, variables, masque((champs.size() + 7) / 8, '\0');
        std::vector<std::size_t> places;
        for (std::size_t i = 0; i < champs.size(); ++i) {
            const Type type = champs[i].type;
            std::string valeur = valeurs[i].value_or("");
            if (valeurs[i]) masque[i / 8] = static_cast<char>(masque[i / 8] | 1 << i % 8);
            if (estFixe(type)) {
                valeur.resize(tailleFixe(type));
                fixes += valeur;
                continue;
            }
            places.push_back(variables.size());
            if (valeurs[i]) {
                const std::string octets = type == Texte || type == Memo ? texte(valeur, comprime) : valeur;
                variables += type == Memo || type == Ole ? longue(octets) : octets;
            }
        }
        const std::size_t debut = 2 + fixes.size();
        std::string fin = petit(debut + variables.size(), 2);
        for (std::size_t i = places.size(); i-- > 0;)
            fin += petit(debut + places[i], 2);
        if (places.empty()) return petit(champs.size(), 2) + fixes + masque;
        return petit(champs.size(), 2) + fixes + variables + fin + petit(places.size(), 2) + masque;
    }

    void definit(const Table& table) {
        std::string colonnes, noms;
        std::size_t fixe = 0, variable = 0;
        for (std::size_t i = 0; i < table.champs.size(); ++i) {
            const Type type = table.champs[i].type;
            colonnes += petit(type, 5) + petit(i, 2) + petit(variable, 2) + petit(i, 2) + petit(0, 1) +
                        petit(type == Decimal ? 3 : 0, 3) + petit(estFixe(type) ? 3 : 2, 6) + petit(fixe, 2) +
                        petit(estFixe(type) ? tailleFixe(type) : 510, 2);
            estFixe(type) ? fixe += tailleFixe(type) : ++variable;
            const std::string nom = texte(table.champs[i].nom, false);
            noms += petit(nom.size(), 2) + nom;
        }
        std::string tete(63, '\0');
        pose(tete, 0, 0x0102, 2);
        pose(tete, 16, lignesDeclarees.value_or(table.lignes), 4);
        pose(tete, 41, table.champs.size(), 2);
        pose(tete, 43, variable, 2);
        pose(tete, 45, table.champs.size(), 2);
        pose(tete, 55, carte(table), 4);
        std::string reste = tete + colonnes + noms;
        for (std::uint32_t page = table.page;;) {
            m_pages[page].replace(0, std::min(reste.size(), kPage), reste, 0, kPage);
            if (reste.size() <= kPage) return;
            reste = petit(0x0102, 8) + reste.substr(kPage);
            const std::uint32_t avant = std::exchange(page, nouvellePage());
            pose(m_pages[avant], 4, page, 4);
        }
    }
    // The map of a table's data pages; the pointer to it.
    std::uint32_t carte(const Table& table) {
        constexpr std::size_t kEnLigne = 64 * 8, kParPage = (kPage - 4) * 8;
        const std::size_t premiere = table.donnees.empty() ? 0 : table.donnees.front();
        if (!cartesSurDesPages && (table.donnees.empty() || table.donnees.back() < premiere + kEnLigne))
            return ajoute(1, petit(0, 1) + petit(premiere, 4) + bits(table, premiere, 64), 0);
        std::string pages;
        for (std::size_t debut = 0; !table.donnees.empty() && debut <= table.donnees.back(); debut += kParPage) {
            pages += petit(nouvellePage(), 4);
            m_pages.back() = petit(0x0105, 4) + bits(table, debut, kPage - 4);
        }
        pages.resize(64);
        return ajoute(1, petit(1, 1) + pages, 0);
    }
    static std::string bits(const Table& table, std::size_t debut, std::size_t octets) {
        std::string bits(octets, '\0');
        for (const std::uint32_t page : table.donnees)
            if (page >= debut && page < debut + octets * 8)
                bits[(page - debut) / 8] = static_cast<char>(bits[(page - debut) / 8] | 1 << (page - debut) % 8);
        return bits;
    }

    // The cipher of encoded bases, its own inverse.
    static void chiffre(std::string& octets, std::size_t place, std::size_t longueur, std::uint32_t cle) {
        std::array<std::uint8_t, 256> boite{};
        std::iota(boite.begin(), boite.end(), std::uint8_t{0});
        for (std::size_t i = 0, j = 0; i < boite.size(); ++i) {
            j = (j + boite[i] + (cle >> 8 * (i % 4) & 0xFF)) % 256;
            std::swap(boite[i], boite[j]);
        }
        for (std::size_t n = 0, i = 0, j = 0; n < longueur; ++n) {
            i = (i + 1) % 256, j = (j + boite[i]) % 256;
            std::swap(boite[i], boite[j]);
            octets[place + n] = static_cast<char>(octets[place + n] ^ boite[(boite[i] + boite[j]) % 256]);
        }
    }

    std::string acheve() {
        pose(m_pages[1], 0, 0x0101, 2);
        const std::vector<Champ> champs{{"Id", Entier32}, {"Name"}, {"Type", Entier16}, {"Flags", Entier32}};
        Table catalogue{"MSysObjects", 0, 2, champs, {}, 0};
        for (const Table& table : m_tables) {
            const Valeurs objet{petit(table.page, 4), table.nom, petit(1, 2), petit(table.drapeaux, 4)};
            range(catalogue, assemble(champs, objet), 0);
            definit(table);
        }
        definit(catalogue);
        std::string& tete = m_pages[0];
        tete.replace(0, 19, petit(0x0100, 4) + "Standard Jet DB");
        pose(tete, 0x14, jet3 ? 0 : 1, 4);
        pose(tete, 0x3C, 1252, 2);
        pose(tete, 0x3E, cle, 4);
        const std::string cache = petit(static_cast<std::uint32_t>(jourDeCreation), 4);
        tete.replace(0x72, 8, petit(std::bit_cast<std::uint64_t>(jourDeCreation), 8));
        std::string secret = jet3 ? util::vers1252(motDePasse) : texte(motDePasse, false);
        secret.resize(jet3 ? 20 : 40);
        for (std::size_t i = 0; i < secret.size(); ++i)
            tete[0x42 + i] = static_cast<char>(secret[i] ^ (jet3 ? 0 : cache[i % 4]));
        chiffre(tete, 0x18, jet3 ? 126 : 128, 0x6B39DAC7);
        std::string fichier;
        for (std::size_t i = 0; i < m_pages.size(); ++i) {
            if (i > 0 && cle != 0) chiffre(m_pages[i], 0, kPage, cle ^ static_cast<std::uint32_t>(i));
            fichier += m_pages[i];
        }
        return fichier;
    }

    std::vector<std::string> m_pages;
    std::vector<Table> m_tables;
};

}  // namespace doubles
