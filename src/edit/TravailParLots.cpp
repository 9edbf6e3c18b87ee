#include "edit/TravailParLots.h"

#include "platform/dao/LigneSupprimee.h"

namespace edit {

TravailParLots::TravailParLots(const db::Contexte& c, db::NumeroErreur numero, long total)
    : m_c(c), m_numero(numero), m_travail(std::in_place, c.ecran) {
    m_c.travaux.ProgressBar3.Max = total;
    m_c.travaux.ProgressBar3.Value = 0;
    m_c.travaux.ProgressBar3.Visible = true;
}

dao::Recordset TravailParLots::ouvre(const std::string& enonce) {
    try {
        return m_c.base.base.OpenRecordset(enonce);
    } catch (const dao::ErreurDao&) {
        throw EnonceRefuse{};
    }
}

bool TravailParLots::execute(long nombre, const Etape& etape) {
    try {
        for (long rang = 0; rang < nombre && !m_fini;)
            rang = executeLot(rang, nombre, etape);
    } catch (const dao::ErreurDao& erreur) {
        m_echec = {erreur.texte()};
    } catch (const EnonceRefuse&) {
        m_echec = {db::texteErreurRequete(m_numero), dialogues::kCritique};
    }
    m_fini = m_fini || m_echec;
    return !m_fini;
}

// Answers the step that comes after the lot.
long TravailParLots::executeLot(long debut, long nombre, const Etape& etape) {
    dao::Transaction lot(m_c.base.base);
    const auto fin = m_c.montre() + kDuree;
    long rang = debut, faits = 0;
    do {
        const Pas pas = executePas(rang++, etape);
        faits += pas.faits;
        ++m_c.travaux.ProgressBar3.Value;
        m_fini = pas.dernier || !m_c.ecran.respire();
    } while (!m_fini && rang < nombre && rang - debut < kPas && m_c.montre() < fin);
    lot.confirme();
    m_faits += faits;
    return rang;
}

// A row that someone else deleted meanwhile needs no more work.
TravailParLots::Pas TravailParLots::executePas(long rang, const Etape& etape) {
    Pas pas;
    dao::siPresente([&] { pas = etape(rang); });
    return pas;
}

void TravailParLots::termine() {
    m_c.travaux.ProgressBar3.Visible = false;
    m_travail.reset();
    if (m_echec) m_c.dialogues.MsgBox(m_echec->texte, m_echec->style);
    m_echec.reset();
}

}  // namespace edit
