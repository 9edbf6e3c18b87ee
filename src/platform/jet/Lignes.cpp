#include "platform/jet/Lignes.h"

#include "platform/jet/CarteDesPages.h"

namespace jet::interne {

namespace {

constexpr std::uint8_t kPageDonnees = 0x01;
constexpr std::size_t kPlaceProprietaire = 4;
constexpr std::uint16_t kPlace = 0x1FFF, kSupprimee = 0x8000, kRenvoi = 0x4000;
constexpr std::size_t kLignesMax = 256;  // a pointer's rank is a byte
constexpr int kRenvoisMax = 16;          // Jet makes one, and mends it when the row moves again

constexpr const char* kTropCourte = "la ligne est trop courte pour ses champs";
constexpr const char* kDejaAtteint = "des renvois mènent plusieurs fois au même endroit";

bool estAuProprietaire(Octets page, std::uint32_t proprietaire) {
    return page[0] == kPageDonnees && u32(page, kPlaceProprietaire) == proprietaire;
}

}  // namespace

void Reserve::prend(std::uint64_t octets) {
    if (octets > m_reste) throw Dommage(kDejaAtteint);
    m_reste -= octets;
}

void Reserve::marque(Pointeur pointeur) {
    if (m_atteints.at(place(pointeur))) throw Dommage(kDejaAtteint);
    m_atteints[place(pointeur)] = true;
}

Tranche tranche(const Format& format, Octets page, std::size_t rang) {
    if (rang >= u16(page, format.nombreDeLignes)) throw Dommage("un renvoi mène à une ligne qui n'existe pas");
    const std::size_t entree = format.nombreDeLignes + 2 + 2 * rang;
    const std::uint16_t place = u16(page, entree);
    // Rows fill a page from its end: each one ends where the one before starts.
    const std::size_t fin = rang == 0 ? page.size() : u16(page, entree - 2) & kPlace;
    const Tranche lue{entre(page, place & kPlace, fin), (place & kSupprimee) != 0, (place & kRenvoi) != 0};
    if (!lue.supprimee && (place & kPlace) < entree + 2) throw Dommage("une ligne commence dans la tête de sa page");
    return lue;
}

Tranche trancheA(Pages& pages, Pointeur pointeur, std::uint32_t proprietaire) {
    const Octets page = pages.lit(pointeur.page);
    if (!estAuProprietaire(page, proprietaire)) throw Dommage("un renvoi mène à une page étrangère");
    return tranche(pages.format(), page, pointeur.rang);
}

void Lignes::suitLaCarte() {
    m_liste = pagesDeLaCarte(m_pages, m_definition.carte);
}

void Lignes::chercheAilleurs() {
    std::vector<bool> vues(m_pages.nombre());
    for (const std::uint32_t page : m_liste)
        if (page < vues.size()) vues[page] = true;
    m_liste.clear();
    for (std::uint32_t page = 1; page < vues.size(); ++page)
        if (!vues[page]) m_liste.push_back(page);
    m_prochainePage = 0;
    m_ailleurs = true;
}

bool Lignes::changeDePage() {
    while (m_prochainePage < m_liste.size())
        if (entreDans(m_liste[m_prochainePage++])) return true;
    return false;
}

bool Lignes::entreDans(std::uint32_t numero) {
    try {
        const Octets page = m_pages.lit(numero);
        if (!estAuProprietaire(page, m_definition.page)) {
            if (m_ailleurs) return false;
            ++m_ecartees;
            if (!m_acharne) return false;
            throw Dommage("la page " + std::to_string(numero) + " n'est pas une page de cette table");
        }
        m_page.assign(page.begin(), page.end());
    } catch (const Dommage& dommage) {
        throw DommagePage(dommage.what());
    }
    m_rang = 0;
    m_nombre = u16(m_page, m_pages.format().nombreDeLignes);
    if (m_nombre <= kLignesMax) return true;
    m_nombre = kLignesMax;
    throw DommagePage("la page " + std::to_string(numero) + " annonce plus de lignes qu'elle n'en contient");
}

Octets Lignes::suitLesRenvois(Octets renvoi) {
    Pointeur pointeur = litPointeur(renvoi, 0);
    for (int i = 0; i < kRenvoisMax; ++i) {
        const Tranche ailleurs = trancheA(m_pages, pointeur, m_definition.page);
        m_reserve.prend(ailleurs.octets.size());
        if (!ailleurs.renvoi) {  // it may be marked deleted: so that only its pointer leads to it
            m_reserve.marque(pointeur);
            m_deplacee.assign(ailleurs.octets.begin(), ailleurs.octets.end());
            return m_deplacee;
        }
        pointeur = litPointeur(ailleurs.octets, 0);
    }
    throw Dommage("des renvois tournent en rond");
}

std::optional<Octets> Lignes::suivante() {
    for (;;) {
        while (m_rang == m_nombre)
            if (!changeDePage()) return std::nullopt;
        const Tranche ligne = tranche(m_pages.format(), m_page, m_rang++);
        if (ligne.supprimee) continue;
        return ligne.renvoi ? suitLesRenvois(ligne.octets) : ligne.octets;
    }
}

// A row: the number of its fields, the fixed fields, the variable ones, the places of these last first, their number,
// the Null mask (a bit set where there is a value).
Decoupe::Decoupe(const Format& format, const Definition& definition, Octets ligne) : m_ligne(ligne) {
    m_debutFixes = format.jet4 ? 2 : 1;
    m_colonnes = entier(ligne, 0, m_debutFixes);
    if (m_colonnes > definition.colonnesMax)
        throw Dommage("la ligne annonce " + std::to_string(m_colonnes) + " champs");
    const std::size_t tailleMasque = (m_colonnes + 7) / 8;
    if (tailleMasque > ligne.size()) throw Dommage(kTropCourte);
    const std::size_t fin = ligne.size() - tailleMasque;
    m_masque = ligne.subspan(fin);
    if (definition.aDesVariables) placeLesVariables(format.jet4, fin);
}

void Decoupe::placeLesVariables(bool jet4, std::size_t fin) {
    const std::size_t taille = jet4 ? 2 : 1;  // of a place and of the number of places
    if (fin < taille) throw Dommage(kTropCourte);
    m_variables = entier(m_ligne, fin - taille, taille);
    if (m_variables > m_colonnes || m_variables + 2 > m_places.size())
        throw Dommage("la ligne annonce " + std::to_string(m_variables) + " champs variables");
    fin -= taille;
    // In Jet 3 a place is one byte; before the number stands, for each 256 bytes of the row, the rank of the field from
    // which places lie 256 further. The last of these may stand for nothing.
    std::size_t sauts = jet4 ? 0 : (m_ligne.size() - 1) / 256;
    if (fin < sauts + (m_variables + 1) * taille) throw Dommage(kTropCourte);
    const std::size_t places = fin - sauts;
    if (sauts > 0 && (places - 1 - m_variables) / 256 < sauts) --sauts;
    std::size_t faits = 0;
    for (std::size_t i = 0; i <= m_variables; ++i) {
        while (faits < sauts && u8(m_ligne, fin - 1 - faits) == i)
            ++faits;
        m_places[i] = static_cast<std::uint16_t>(entier(m_ligne, places - (i + 1) * taille, taille) + 256 * faits);
        if (i > 0 && m_places[i] < m_places[i - 1]) throw Dommage("un champ finit avant son début");
    }
    // A row that was rewritten shorter may have room left there; it never has too little.
    if (m_places[m_variables] > places - (m_variables + 1) * taille) throw Dommage(kTropCourte);
}

bool Decoupe::bit(const Colonne& colonne) const {
    return colonne.numero < m_colonnes && (m_masque[colonne.numero / 8] >> colonne.numero % 8 & 1) != 0;
}

std::optional<Octets> Decoupe::champ(const Colonne& colonne) const {
    if (!bit(colonne)) return std::nullopt;
    if (colonne.fixe) return morceau(m_ligne, m_debutFixes + colonne.placeFixe, colonne.taille);
    if (colonne.variable >= m_variables) return std::nullopt;
    return entre(m_ligne, m_places[colonne.variable], m_places[colonne.variable + 1u]);
}

}  // namespace jet::interne
