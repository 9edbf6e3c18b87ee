#include "platform/jet/Memos.h"

namespace jet::interne {

namespace {

constexpr std::size_t kTailleTete = 12;
constexpr std::uint32_t kDansLaLigne = 0x80000000, kSurUnePage = 0x40000000, kLongueur = 0x3FFFFFFF;
constexpr std::uint32_t kProprietaire = 0x4C41564C;  // "LVAL", in the place of a table

[[noreturn]] void refuse(std::uint64_t annonces, std::uint64_t trouves) {
    throw Dommage(std::to_string(annonces) + " octets sont annoncés, " + std::to_string(trouves) + " trouvés");
}

}  // namespace

Octets Memos::lit(Octets champ) {
    if (champ.empty()) return champ;
    const std::uint32_t tete = u32(champ, 0);
    const std::uint32_t longueur = tete & kLongueur;
    const Pointeur pointeur = litPointeur(champ, 4);
    const Octets suite = morceau(champ, kTailleTete, champ.size() - kTailleTete);
    if ((tete & kDansLaLigne) != 0) {
        if (suite.size() != longueur) refuse(longueur, suite.size());
        return suite;
    }
    if (longueur == 0) return {};
    if (longueur > m_pages.taille()) refuse(longueur, 0);
    return suit(pointeur, longueur, (tete & kSurUnePage) == 0);
}

// The pieces of a value that is lost may be another's.
Octets Memos::suit(Pointeur pointeur, std::uint64_t longueur, bool enChaine) {
    m_octets.clear();
    m_pieces.clear();
    try {
        rassemble(pointeur, longueur, enChaine);
    } catch (const Dommage&) {
        for (const Pointeur piece : m_pieces)
            m_reserve.libere(piece);
        throw;
    }
    return m_octets;
}

void Memos::rassemble(Pointeur pointeur, std::uint64_t longueur, bool enChaine) {
    do {
        Octets lue = trancheA(m_pages, pointeur, kProprietaire).octets;
        m_reserve.prend(lue.size());
        m_reserve.marque(pointeur);
        m_pieces.push_back(pointeur);
        pointeur = {};
        if (enChaine) {  // each row starts with the pointer to the next; 0 in the last
            pointeur = litPointeur(lue, 0);
            lue = lue.subspan(4);
            if (lue.empty()) refuse(longueur, m_octets.size());
        }
        m_octets.insert(m_octets.end(), lue.begin(), lue.end());
    } while (pointeur != Pointeur{} && m_octets.size() < longueur);
    if (pointeur != Pointeur{} || m_octets.size() != longueur) refuse(longueur, m_octets.size());
}

}  // namespace jet::interne
