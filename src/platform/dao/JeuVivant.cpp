#include "platform/dao/JeuVivant.h"

#include <string>

namespace dao::interne {

namespace {

Par<RangChamp, ChampDeJeu> champsDe(const Table& table) {
    Par<RangChamp, ChampDeJeu> champs;
    for (const RangColonne colonne : table.colonnes.rangs())
        champs.push_back({kPremiere, colonne});
    return champs;
}

}  // namespace

JeuVivant::JeuVivant(Connexion& connexion, Table& table) : Jeu(connexion, {&table}, champsDe(table)) {
    premier();
}

std::optional<long long> JeuVivant::rangee(std::optional<long long> depuis, long n, bool avant) {
    const std::string& ligneSql = table(kPremiere).ligneSql;
    const std::string borne = depuis ? " WHERE " + ligneSql + (avant ? "<?2" : ">?2") : "";
    Requete lecture = connexion().prepare("SELECT " + ligneSql + " FROM " + table(kPremiere).nomSql + borne +
                                          " ORDER BY " + ligneSql + (avant ? " DESC" : "") + " LIMIT 1 OFFSET ?1");
    lecture.lie(1, static_cast<long long>(n - 1));
    if (depuis) lecture.lie(2, *depuis);
    return lecture.avance() ? std::optional(lecture.entier(0)) : std::nullopt;
}

void JeuVivant::premier() {
    const auto trouvee = rangee(std::nullopt, 1, false);
    m_ou = trouvee ? Ou::Dedans : Ou::Apres;
    m_ligne = trouvee.value_or(0);
}

void JeuVivant::pas(long nombre) {
    const bool avant = nombre < 0;
    if (nombre == 0 || m_ou == (avant ? Ou::Avant : Ou::Apres)) return;
    if (nombre > 1 && nombre > combien()) {  // past the end from wherever it is: no row has to be walked over
        m_ou = Ou::Apres;
        m_ligne = 0;
        return;
    }
    const auto depuis = m_ou == Ou::Dedans ? std::optional(m_ligne) : std::nullopt;
    const auto trouvee = rangee(depuis, avant ? -nombre : nombre, avant);
    m_ou = trouvee ? Ou::Dedans : avant ? Ou::Avant : Ou::Apres;
    m_ligne = trouvee.value_or(0);
}

long JeuVivant::combien() {
    auto& compte = table(kPremiere).suivi.compte;
    if (!compte) {
        Requete lecture = connexion().prepare("SELECT count(*) FROM " + table(kPremiere).nomSql);
        lecture.avance();
        compte = static_cast<long>(lecture.entier(0));
    }
    return *compte;
}

}  // namespace dao::interne
