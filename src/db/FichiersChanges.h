#pragma once

#include "db/DepotDAnnulation.h"
#include "platform/dao/Enregistrement.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace db {

// The poster files that one command made or replaced, with what stood there before. Each of them is one ordinary file,
// read and written whole; the bytes are put aside in the command's depot.
class FichiersChanges {
  public:
    explicit FichiersChanges(DepotDAnnulation& depot) : m_depot(depot) {}

    // False when what stands there cannot be put aside.
    [[nodiscard]] bool vaChanger(const std::string& chemin);
    void aEcrit(const std::string& chemin, std::string_view octets);
    void acheve();  // the command is done: what it left as it was is forgotten
    [[nodiscard]] bool vides() const { return m_fichiers.empty(); }

    enum class Issue { Faite, Changes, Echouee, Arretee };
    // The steps of taking back or making again, around the rows: the files that the rows will name stand there and are on
    // the disk when `pose` returns; `retire` removes those that no row names any more, `remets` undoes `pose`. `avance`
    // is told how many of `octetsAPoser` are done; false stops it, nothing done.
    [[nodiscard]] Issue pose(dao::Sens sens, const std::function<bool(std::int64_t faits)>& avance);
    [[nodiscard]] std::int64_t octetsAPoser(dao::Sens sens) const;  // those that are looked at as well
    void retire(dao::Sens sens, const std::function<bool(const std::string& chemin)>& estNomme);
    void remets(dao::Sens sens);
    [[nodiscard]] const std::string& raison() const { return m_raison; }  // of Echouee
    [[nodiscard]] bool retireraDesFichiers(dao::Sens sens) const;

  private:
    struct Contenu {
        std::int64_t octets = 0;
        std::size_t empreinte = 0;
        std::optional<std::int64_t> place{};  // in the depot, once they are there
    };
    using Etat = std::optional<Contenu>;  // nothing: no file
    struct Change {
        Etat avant, apres;
        bool pose = false;
        [[nodiscard]] const Etat& voulu(dao::Sens sens) const { return sens == dao::Sens::Defaire ? avant : apres; }
        [[nodiscard]] const Etat& present(dao::Sens sens) const { return sens == dao::Sens::Defaire ? apres : avant; }
        [[nodiscard]] Etat& present(dao::Sens sens) { return sens == dao::Sens::Defaire ? apres : avant; }
    };
    [[nodiscard]] static Contenu contenuDe(std::string_view octets);
    [[nodiscard]] bool garde(Contenu& contenu, std::string_view octets);
    [[nodiscard]] std::optional<std::string> relit(const Contenu& contenu) const;
    [[nodiscard]] static std::int64_t octetsDe(const Etat& etat) { return etat ? etat->octets : 0; }
    [[nodiscard]] Issue prepare(const std::string& chemin, Change& change, dao::Sens sens);
    [[nodiscard]] Issue ecrit(const std::string& chemin, const Change& change, dao::Sens sens);

    DepotDAnnulation& m_depot;
    std::map<std::string, Change> m_fichiers;  // by their paths
    std::string m_raison;
};

}  // namespace db
