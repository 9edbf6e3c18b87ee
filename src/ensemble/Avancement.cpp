#include "ensemble/Avancement.h"

namespace ensemble {

Avancement::Avancement(const Contexte& c, long total, const std::string& quoi)
    : m_c(c), m_travail(c.ecran), m_prochain(c.montre()) {
    m_c.travaux.ProgressBar3.Max = total;
    m_c.travaux.ProgressBar3.Value = 0;
    m_c.travaux.ProgressBar3.Visible = true;
    m_c.travaux.lblTravail.Caption = quoi;
}

Avancement::~Avancement() {
    m_c.travaux.ProgressBar3.Visible = false;
    m_c.travaux.lblTravail.Caption.clear();
}

bool Avancement::avance(long pas) {
    m_c.travaux.ProgressBar3.Value += pas;
    if (m_arrete || m_c.montre() < m_prochain) return !m_arrete;
    m_arrete = !m_c.ecran.respire();
    m_prochain = m_c.montre() + kEntreSouffles;
    return !m_arrete;
}

}  // namespace ensemble
