#include "voisins/Affiches.h"

#include "platform/fichiers/Fichiers.h"
#include "util/NomsFichiers.h"
#include "util/Texte.h"

#include <array>
#include <fstream>

namespace voisins {

namespace {

using std::literals::operator""sv;

constexpr std::array kDebuts = {"\xFF\xD8\xFF"sv, "\x89PNG\r\n\x1A\n"sv, "GIF8"sv, "BM"sv};

constexpr int kDossiersAuPlus = 8;  // of the path of an entry

// Of "file:///home/a/%C3%A9t%C3%A9.jpg", the path.
std::string sansProtocole(std::string_view nom) {
    constexpr std::string_view kFichier = "file://";
    if (!nom.starts_with(kFichier)) return std::string(nom);
    std::string chemin;
    for (std::size_t i = kFichier.size(); i < nom.size(); ++i) {
        const auto hexa = [&](std::size_t place) {
            const std::size_t valeur = place < nom.size()
                                           ? "0123456789abcdef"sv.find(static_cast<char>(nom[place] | 0x20))
                                           : std::string_view::npos;
            return valeur == std::string_view::npos ? -1 : static_cast<int>(valeur);
        };
        const int haut = nom[i] == '%' ? hexa(i + 1) : -1, bas = nom[i] == '%' ? hexa(i + 2) : -1;
        if (haut >= 0 && bas >= 0) {
            chemin += static_cast<char>(haut * 16 + bas);
            i += 2;
        } else {
            chemin += nom[i];
        }
    }
    return chemin;
}

bool estUnFichier(const std::string& chemin) {
    return fichiers::longueur(chemin) >= 0;
}

Affiches::Lecture siImage(std::optional<std::string> octets) {
    if (!octets || !estUneImage(*octets)) return {};
    return {std::move(octets)};
}

}  // namespace

bool estUneImage(std::string_view octets) {
    for (const std::string_view debut : kDebuts)
        if (octets.starts_with(debut)) return true;
    return octets.starts_with("RIFF") && octets.substr(0, 16).find("WEBP") != std::string_view::npos;
}

std::optional<std::string> depuisBase64(std::string_view texte) {
    constexpr std::string_view kSignes = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string octets;
    octets.reserve(texte.size() / 4 * 3);
    unsigned bits = 0;
    int nombre = 0;
    for (const char c : texte) {
        if (c == '=') break;
        const std::size_t valeur = kSignes.find(c);
        if (valeur == std::string_view::npos) continue;
        bits = (bits << 6 | static_cast<unsigned>(valeur)) & 0xFFFFFFU;
        nombre += 6;
        if (nombre < 8) continue;
        nombre -= 8;
        octets += static_cast<char>(bits >> nombre & 0xFFU);
    }
    return nombre == 6 ? std::nullopt : std::optional(std::move(octets));
}

xml::Source sourceDuFichier(const std::string& chemin) {
    // A pipe or a device would be waited for without end.
    auto flux = std::make_shared<std::ifstream>();
    if (estUnFichier(chemin)) flux->open(chemin, std::ios::binary);
    return [flux](char* vers, std::size_t place) -> std::ptrdiff_t {
        if (!flux->is_open()) return -1;
        flux->read(vers, static_cast<std::streamsize>(place));
        return flux->bad() ? -1 : static_cast<std::ptrdiff_t>(flux->gcount());
    };
}

void Affiches::ajouteDossier(const std::string& dossier) {
    if (!dossier.empty() && fichiers::dossierExiste(dossier)) m_dossiers.push_back(util::avecSeparateur(dossier));
}

// Under each end of its path.
void Affiches::connaisEntree(const std::string& nom, long rang) {
    std::size_t debut = 0;
    for (int reste = kDossiersAuPlus; reste > 0 && debut < nom.size(); --reste) {
        m_entrees.emplace(nom.substr(debut), rang);
        const std::size_t barre = nom.find('/', debut);
        debut = barre == std::string::npos ? nom.size() : barre + 1;
    }
}

AfficheVoisine Affiches::trouve(std::string_view nom) const {
    using Ou = AfficheVoisine::Ou;
    AfficheVoisine affiche{.nom = std::string(nom), .nommee = !nom.empty()};
    if (nom.empty() || nom.starts_with("http://") || nom.starts_with("https://")) return affiche;
    if (const auto image = m_images.find(affiche.nom); image != m_images.end()) {
        affiche.ou = Ou::Document;
        affiche.rang = image->second;
        return affiche;
    }
    const std::string chemin = util::remplace(sansProtocole(nom), "\\", "/");
    for (std::string_view fin = chemin; !m_entrees.empty() && !fin.empty();) {
        if (const auto entree = m_entrees.find(std::string(fin)); entree != m_entrees.end()) {
            affiche.ou = Ou::Archive;
            affiche.rang = entree->second;
            return affiche;
        }
        const std::size_t barre = fin.find('/');
        fin = barre == std::string_view::npos ? std::string_view() : fin.substr(barre + 1);
    }
    for (const std::string& dossier : m_dossiers)
        if (auto place = fichiers::trouveParLaFin(dossier, chemin, estUnFichier);
            place && fichiers::estDans(*place, dossier)) {
            affiche.ou = Ou::Dossier;
            affiche.nom = std::move(*place);
            return affiche;
        }
    return affiche;
}

Affiches::Lecture Affiches::lis(const AfficheVoisine& affiche, std::int64_t limite) {
    switch (affiche.ou) {
        case AfficheVoisine::Ou::Nulle:
            return {};
        case AfficheVoisine::Ou::Dossier:
            if (fichiers::longueur(affiche.nom) > limite) return {std::nullopt, true};
            return siImage(fichiers::litSansLien(affiche.nom, limite));
        case AfficheVoisine::Ou::Archive:
            return lisDansLArchive(affiche.rang, limite);
        case AfficheVoisine::Ou::Document:
            break;
    }
    return lisDansLeDocument(affiche.rang, limite);
}

Affiches::Lecture Affiches::lisDansLArchive(long rang, std::int64_t limite) {
    if (rang == m_rangGarde) return siImage(m_garde);
    if (!m_ouverte || rang <= m_rangArchive) {
        m_ouverte = archives::Archive::ouvre(m_archive);
        m_rangArchive = -1;
    }
    while (m_ouverte && m_rangArchive < rang) {
        const auto entree = m_ouverte->suivante();
        if (!entree) m_ouverte.reset();
        if (entree) m_rangArchive = entree->rang;
    }
    if (!m_ouverte) return {};
    auto [octets, tropLongue] = m_ouverte->contenu(limite);
    if (!octets) return {std::nullopt, tropLongue};
    m_rangGarde = rang;
    m_garde = *octets;
    return siImage(std::move(octets));
}

Affiches::Lecture Affiches::lisDansLeDocument(long rang, std::int64_t limite) {
    if (rang == m_rangGarde) return siImage(m_garde);
    try {
        if (!m_lue || rang <= m_rangDocument) {
            m_lue.emplace(sourceDuFichier(m_document));
            m_rangDocument = -1;
        }
        while (const xml::Element* element = m_lue->suivant()) {
            if (element->nom == "entry" || element->nom == "fields") m_lue->saute();
            if (element->nom != "image" || ++m_rangDocument < rang) continue;
            auto octets = depuisBase64(m_lue->prends().texte);
            if (octets && static_cast<std::int64_t>(octets->size()) > limite) return {std::nullopt, true};
            if (!octets) return {};
            m_rangGarde = rang;
            m_garde = *octets;
            return siImage(std::move(octets));
        }
    } catch (const xml::Illisible&) {  // by now: another program changes it
    }
    m_lue.reset();
    return {};
}

}  // namespace voisins
