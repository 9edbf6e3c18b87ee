#include "edit/TravailParLots.h"

namespace edit {

TravailParLots::TravailParLots(const OutilsTravail& outils, db::NumeroErreur numero, long total)
    : m_outils(outils), m_numero(numero), m_travail(std::in_place, outils.ecran) {
    m_outils.progression.Max = total;
    m_outils.progression.Value = 0;
    m_outils.progression.Visible = true;
}

dao::Recordset TravailParLots::ouvre(const std::string& enonce) {
    try {
        return m_outils.base.OpenRecordset(enonce);
    } catch (const dao::ErreurDao&) {
        throw EnonceRefuse{};
    }
}

bool TravailParLots::execute(long nombre, const Etape& etape) {
    try {
        for (long rang = 0; rang < nombre && !m_fini;)
            rang = executeLot(rang, nombre, etape);
    } catch (const dao::ErreurDao& erreur) {
        m_echec = {"Erreur " + std::to_string(erreur.numero) + " : " + erreur.description};
    } catch (const EnonceRefuse&) {
        m_echec = {db::texteErreurRequete(m_numero), dialogues::kCritique};
    }
    m_fini = m_fini || m_echec;
    return !m_fini;
}

// Answers the step that comes after the lot.
long TravailParLots::executeLot(long debut, long nombre, const Etape& etape) {
    dao::Transaction lot(m_outils.base);
    const auto fin = m_outils.montre() + kDuree;
    long rang = debut, faits = 0;
    do {
        const Pas pas = executePas(rang++, etape);
        faits += pas.faits;
        ++m_outils.progression.Value;
        m_fini = pas.dernier || !m_outils.ecran.respire();
    } while (!m_fini && rang < nombre && rang - debut < kPas && m_outils.montre() < fin);
    lot.confirme();
    m_faits += faits;
    return rang;
}

// A row that someone else deleted meanwhile needs no more work.
TravailParLots::Pas TravailParLots::executePas(long rang, const Etape& etape) {
    try {
        return etape(rang);
    } catch (const dao::ErreurDao& erreur) {
        if (erreur.numero != dao::kErreurEnregistrementSupprime) throw;
    }
    return {};
}

void TravailParLots::termine() {
    m_outils.progression.Visible = false;
    m_travail.reset();
    if (m_echec) m_outils.dialogues.MsgBox(m_echec->texte, m_echec->style);
    m_echec.reset();
}

}  // namespace edit
