#pragma once

#include "parcours/Gestes.h"
#include "parcours/Photo.h"

#include <optional>
#include <utility>

namespace parcours {

// A user with an installation and four sheets, who may start the program several times.
class Collectionneur : public testing::Test {
  protected:
    Collectionneur() { ecritFiches(installation); }

    void demarre() {
        execution.emplace(installation.chemin());
        ASSERT_TRUE(execution->demarre());
    }
    [[nodiscard]] app::Session& session() { return execution->session; }
    [[nodiscard]] app::Etats& etats() { return execution->etats; }
    void zone(int indice) { choisitZone(*execution, indice); }
    void tri(int indice) { choisitTri(*execution, indice); }
    void attendRefus(const std::string& texte) { execution->boites.attendMsgBox(texte, dialogues::kExclamation); }
    void demande(const std::string& question, int reponse) {
        execution->boites.attendMsgBox(question, dialogues::kQuestion, reponse);
    }
    // Since the last call.
    [[nodiscard]] std::vector<std::string> changements() {
        Photo apres(installation.chemin("Films.mdb"));
        std::vector<std::string> lignes = apres.depuis(photo);
        photo = std::move(apres);
        return lignes;
    }
    [[nodiscard]] std::string comptes() {
        return etats().liste.Label9[0].Caption + ", " + etats().liste.Label9[1].Caption;
    }
    // What each zone shows under each sort that it takes.
    [[nodiscard]] std::vector<std::vector<std::string>> toutesLesListes() {
        std::vector<std::vector<std::string>> listes;
        for (int indice = 0; indice < 6; ++indice) {
            zone(indice);
            for (int cle = 0; cle < (indice == 1 || indice == 5 ? 8 : 9); ++cle) {
                tri(cle);
                listes.push_back(arbre(etats()));
            }
            tri(0);
        }
        return listes;
    }

    const Installation installation;
    std::optional<Execution> execution;
    Photo photo;
};

}  // namespace parcours
