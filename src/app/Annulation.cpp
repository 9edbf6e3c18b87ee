#include "app/Annulation.h"

#include "app/Saisies.h"
#include "app/Vue.h"
#include "db/CopieVisible.h"
#include "platform/systeme/FinDuProgramme.h"

#include <utility>

namespace app {

namespace {

using Commande = db::Annulations::Commande;

// Before the command, and after it.
struct Vues {
    Vue avant, apres;
};

db::Annulations::Issue appliqueVisiblement(const Contexte& c, bool annule) {
    constexpr std::int64_t kEnUnMoment = 1 << 20;  // bytes that were recorded
    db::OctetsVisibles visibles(c, annule ? "Annulation…" : "Rétablissement…", kEnUnMoment);
    const auto avance = [&visibles](std::int64_t faits, std::int64_t total) { return visibles.avance(faits, total); };
    return annule ? c.annulations.annule(avance) : c.annulations.retablit(avance);
}

void applique(const Contexte& c, bool annule) {
    const Commande* commande = annule ? c.annulations.aAnnuler() : c.annulations.aRetablir();
    if (!commande) return;
    const int numero = commande->numero;
    const std::string quoi = commande->quoi;
    const Vues vues = std::any_cast<const Vues&>(commande->vues);
    const db::Annulations::Issue issue = appliqueVisiblement(c, annule);
    if (!issue.faite) return c.avis.montre(issue.texte);
    (annule ? vues.avant : vues.apres).remets(c);
    c.avis.montre((annule ? "Annulé : " : "Rétabli : ") + quoi + ".",
                  {{annule ? "Rétablir" : "Annuler", [&c, annule, numero] {
                        const Commande* prochaine = annule ? c.annulations.aRetablir() : c.annulations.aAnnuler();
                        if (prochaine && prochaine->numero == numero) applique(c, !annule);
                    }}});
}

// Only the last command can be taken back.
ecran::Avis::Action actionAnnuler(const Contexte& c, int numero) {
    return {"Annuler", [&c, numero] {
                const Commande* derniere = c.annulations.aAnnuler();
                if (derniere && derniere->numero == numero)
                    applique(c, true);
                else
                    c.avis.montre("D'autres modifications ont suivi : annulez-les d'abord (Ctrl+Z).");
            }};
}

}  // namespace

void Annulation::surveille(const std::function<void()>& commande) {
    Avis avis{m_c.etats.avis.numero, m_c.etats.avis.numero};
    const Vue avant = Vue::de(m_c);
    m_c.annulations.commence();
    const auto acheve = [&] {
        const auto fin = m_c.annulations.termine();
        if (fin == db::Annulations::Fin::Perdue && !m_c.annulations.manque().empty())
            m_c.avis.montre(m_c.annulations.manque());
        if (fin == db::Annulations::Fin::Annulable) {
            Commande& faite = *m_c.annulations.aAnnuler();
            faite.vues = Vues{avant, Vue::de(m_c)};
            annonce(faite, avis);
        }
        montreLesBoutons();
    };
    try {
        m_c.saisies.surveille([&] {
            commande();
            avis.commande = m_c.etats.avis.numero;
        });
    } catch (const systeme::FinDuProgramme&) {
        throw;
    } catch (...) {
        avis.commande = m_c.etats.avis.numero;
        acheve();
        throw;
    }
    acheve();
}

// What the command says itself gets the action beside its own; what was told before it, or of what was typed and set
// aside, is not talked over.
void Annulation::annonce(const Commande& faite, const Avis& avis) {
    if (m_parleAvant || m_c.saisies.parle() || m_c.etats.avis.numero != avis.commande) return;
    const ecran::Avis::Action action = actionAnnuler(m_c, faite.numero);
    if (avis.commande == avis.avant)
        m_c.avis.montre(faite.fait, {action});
    else
        m_c.avis.ajoute(action);
}

void Annulation::montreLesBoutons() {
    EtatAnnulation& etat = m_c.etats.annulation;
    const Commande* faite = m_c.annulations.aAnnuler();
    const Commande* defaite = m_c.annulations.aRetablir();
    etat.aAnnuler = faite ? faite->quoi : "";
    etat.aRetablir = defaite ? defaite->quoi : "";
    etat.cmdAnnuler.Enabled = faite != nullptr;
    etat.cmdRetablir.Enabled = defaite != nullptr;
}

void cmdAnnuler_Click(const Contexte& c) {
    applique(c, true);
}

void cmdRetablir_Click(const Contexte& c) {
    applique(c, false);
}

}  // namespace app
