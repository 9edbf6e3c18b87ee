#include "platform/dao/JeuVivant.h"

#include <string>

namespace dao::interne {

namespace {

std::vector<ChampDeJeu> champsDe(const Table& table) {
    std::vector<ChampDeJeu> champs;
    for (int c = 0; c < static_cast<int>(table.colonnes.size()); ++c)
        champs.push_back({0, c});
    return champs;
}

}  // namespace

JeuVivant::JeuVivant(Connexion& connexion, Table& table) : Jeu(connexion, {&table}, champsDe(table)) {
    premier();
}

std::optional<long long> JeuVivant::rangee(std::optional<long long> depuis, long n, bool avant) {
    const std::string& ligneSql = table(0).ligneSql;
    const std::string borne = depuis ? " WHERE " + ligneSql + (avant ? "<?2" : ">?2") : "";
    Requete lecture = connexion().prepare("SELECT " + ligneSql + " FROM " + table(0).nomSql() + borne + " ORDER BY " +
                                          ligneSql + (avant ? " DESC" : "") + " LIMIT 1 OFFSET ?1");
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
    const auto depuis = m_ou == Ou::Dedans ? std::optional(m_ligne) : std::nullopt;
    const auto trouvee = rangee(depuis, avant ? -nombre : nombre, avant);
    m_ou = trouvee ? Ou::Dedans : avant ? Ou::Avant : Ou::Apres;
    m_ligne = trouvee.value_or(0);
}

long JeuVivant::combien() {
    auto& compte = table(0).suivi.compte;
    if (!compte) {
        Requete lecture = connexion().prepare("SELECT count(*) FROM " + table(0).nomSql());
        lecture.avance();
        compte = static_cast<long>(lecture.entier(0));
    }
    return *compte;
}

}  // namespace dao::interne
