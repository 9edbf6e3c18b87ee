#include "app/BaseAbsente.h"

#include "app/Saisies.h"
#include "db/cmdChargeOuvreBase_Click.h"
#include "platform/fichiers/Fichiers.h"

namespace app {

void BaseAbsente::annonce() {
    montre("La base " + m_c.chemins.baseAbsente + " est introuvable : " + m_c.chemins.base +
           " est ouverte à sa place.");
}

void BaseAbsente::suisLaBase() {
    if (m_c.chemins.baseAbsente.empty() && m_numero == m_c.etats.avis.numero) m_c.avis.retire();
}

void BaseAbsente::montre(const std::string& texte) {
    m_c.avis.montre(texte, {{"Réessayer", [this] { reessaie(); }, true},
                            {"Garder celle-ci", [this] { m_c.chemins.baseAbsente.clear(); }}});
    m_numero = m_c.etats.avis.numero;
}

void BaseAbsente::reessaie() {
    const std::string absente = m_c.chemins.baseAbsente;
    if (absente.empty()) return;
    if (!fichiers::existe(absente))
        montre("La base " + absente +
               " est toujours introuvable. Branchez le disque où elle se trouve, puis réessayez.");
    else if (m_c.saisies.abandonneTout())
        change(absente);
}

// One that is there and cannot be opened can be tried again: why stands in the line.
void BaseAbsente::change(const std::string& absente) {
    db::changeDeBase(m_c, absente);
    if (m_c.chemins.baseAbsente == absente) montre(m_c.etats.avis.lblAvis.Caption);
}

}  // namespace app
