#include "ui/Commande.h"

#include "db/Requete.h"
#include "platform/dao/ErreurDao.h"
#include "platform/systeme/FinDuProgramme.h"

#include <QScopedValueRollback>
#include <exception>
#include <new>

namespace ui {

Commande::Issue Commande::execute(const std::function<void()>& corps) {
    if (m_enCours || m_finie) return Issue::Refusee;
    emit vaCommencer();
    m_enCours = true;
    m_liaison.lit();
    const Issue issue = protege(corps);
    m_liaison.ecrit();
    m_enCours = false;
    if (m_finie)
        emit finDuProgramme();
    else
        emit terminee();
    return issue;
}

void Commande::lis(const std::function<void()>& corps) {
    if (m_enCours || m_finie) return;
    {
        const QScopedValueRollback enCours(m_enCours, true);
        corps();
    }
    emit lectureFinie();
}

Commande::Issue Commande::protege(const std::function<void()>& corps) {
    try {
        if (m_suites.vaCommencer) m_suites.vaCommencer();
        corps();
        return Issue::Faite;
    } catch (const systeme::FinDuProgramme&) {
        m_finie = true;
    } catch (const db::RequeteEchouee& echec) {  // its message was shown
        if (m_suites.expliqueEchec) m_suites.expliqueEchec(echec.raison);
    } catch (const dao::ErreurDao& erreur) {
        annonce(erreur.texte());
    } catch (const std::bad_alloc&) {
        annonce("La mémoire manque pour terminer cette commande.");
    } catch (const std::exception& erreur) {
        annonce(std::string("Cette commande n'a pas pu se terminer.\n(") + erreur.what() + ")");
    } catch (...) {
        annonce("Cette commande n'a pas pu se terminer.");
    }
    return Issue::Echouee;
}

void Commande::annonce(const std::string& texte) {
    try {
        m_dialogues.MsgBox(texte);
    } catch (...) {  // nothing can be told any more, and nothing may cross a slot
    }
}

}  // namespace ui
