#include "app/BaseAbsente.h"

#include "platform/fichiers/Fichiers.h"

namespace app {

void BaseAbsente::annonce() {
    montre("La base " + m_chemins.baseAbsente + " est introuvable : " + m_chemins.base + " est ouverte à sa place.");
}

void BaseAbsente::suisLaBase() {
    if (m_chemins.baseAbsente.empty() && m_numero == m_etat.numero) m_avis.retire();
}

void BaseAbsente::montre(const std::string& texte) {
    m_avis.montre(texte, {{"Réessayer", [this] { reessaie(); }, true},
                          {"Garder celle-ci", [this] { m_chemins.baseAbsente.clear(); }}});
    m_numero = m_etat.numero;
}

void BaseAbsente::reessaie() {
    const std::string absente = m_chemins.baseAbsente;
    if (absente.empty()) return;
    if (fichiers::existe(absente))
        m_ouvre(absente);
    else
        montre("La base " + absente +
               " est toujours introuvable. Branchez le disque où elle se trouve, puis réessayez.");
}

}  // namespace app
