#include "db/Requete.h"

#include "platform/systeme/ACote.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace db {

RequeteEchouee::RequeteEchouee(const dao::ErreurDao& erreur) {
    static constexpr std::array kDuFichier{dao::kErreurFichierIntrouvable,
                                           dao::kErreurLectureVerrouillee,
                                           dao::kErreurVerrouille,
                                           dao::kErreurDisque,
                                           dao::kErreurFormat,
                                           dao::kErreurLectureSeule};
    if (std::find(kDuFichier.begin(), kDuFichier.end(), erreur.numero) != kDuFichier.end()) raison = erreur.description;
}

std::string texteErreurRequete(NumeroErreur numero) {
    return "Erreur (" + std::to_string(static_cast<int>(numero)) + ") : Etablissement de requête";
}

namespace {

[[noreturn]] void echoue(const Contexte& c, NumeroErreur numero, const dao::ErreurDao& erreur) {
    c.dialogues.MsgBox(texteErreurRequete(numero), dialogues::kCritique);
    throw RequeteEchouee(erreur);
}

constexpr std::chrono::milliseconds kPatience{30};

dao::Souffle souffleDe(ecran::Ecran& ecran, const systeme::Montre& montre, std::chrono::milliseconds dAbord) {
    return [&ecran, montre, prochain = montre() + dAbord]() mutable {
        if (montre() < prochain) return;
        ecran.patiente();
        prochain = montre() + kPatience;
    };
}

}  // namespace

dao::Recordset ouvreRequete(const Contexte& c, const std::string& enonce, NumeroErreur numero,
                            std::span<const std::string_view> portees) {
    try {
        return c.base.base.OpenRecordset(enonce, portees);
    } catch (const dao::ErreurDao& erreur) {
        echoue(c, numero, erreur);
    }
}

dao::Recordset rouvreRequete(const Contexte& c, const std::string& enonce, NumeroErreur numero,
                             std::span<const std::string_view> portees, dao::Recordset& precedent) {
    try {
        return c.base.base.OpenRecordset(enonce, portees, precedent);
    } catch (const dao::ErreurDao& erreur) {
        echoue(c, numero, erreur);
    }
}

void parcourtTable(const Contexte& c, std::string_view table, std::span<const std::string_view> colonnes,
                   NumeroErreur numero, const dao::Database::Recoit& recoit) {
    try {
        c.base.base.parcourt(table, colonnes, recoit);
    } catch (const dao::ErreurDao& erreur) {
        echoue(c, numero, erreur);
    }
}

dao::Souffle souffle(const Contexte& c) {
    return souffleDe(c.ecran, c.montre, kPatience);
}

dao::Attente attente(const Contexte& c) {
    return [&ecran = c.ecran, montre = c.montre](const std::function<void()>& travail) {
        systeme::aCote(travail, souffleDe(ecran, montre, {}));  // what came before may not have breathed for long
    };
}

}  // namespace db
