#pragma once

#include "db/LotAffiches.h"
#include "db/RapportConversion.h"
#include "platform/dao/Database.h"
#include "platform/fichiers/Fichiers.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace db {

// One way of converting posters, film by film, in lots that are one transaction each. At each moment a film's poster is
// where its row says: the new copy is on the disk before the lot is stored, and the old one goes after.
class SensConversion {
  public:
    virtual ~SensConversion() = default;
    // Ends what an earlier conversion, killed, has left undone.
    virtual void reprend() = 0;
    // The films that may have something to convert.
    [[nodiscard]] virtual std::string enonce() const = 0;
    // How many of them have.
    [[nodiscard]] virtual long aConvertir(const dao::Recordset& films) const = 0;
    // The current film of the recordset. Throws EchecConversion or dao::ErreurDao, with its row as it was.
    [[nodiscard]] virtual RapportConversion convertit(dao::Recordset& films) = 0;
    virtual void avantValidation() = 0;  // throws EchecConversion
    virtual void apresValidation() = 0;
    virtual void apresAnnulation() = 0;  // of the lot: nothing of it is left in the folder
};

// Files of the images folder into the base, and those that came with the base and lie beside it, whatever the films'
// values say. Those beside the base stay; a file of the folder goes once no film names it any more; one that a killed
// conversion has left goes when it bears the name of a film, numbered or not, whose stored poster it is, byte for byte.
class VersLaBase final : public SensConversion {
  public:
    VersLaBase(dao::Database& base, std::string dossier);

    void reprend() override;
    [[nodiscard]] std::string enonce() const override;
    [[nodiscard]] long aConvertir(const dao::Recordset& films) const override;
    [[nodiscard]] RapportConversion convertit(dao::Recordset& films) override;
    void avantValidation() override {}
    void apresValidation() override;
    void apresAnnulation() override { m_inclus.clear(); }

  private:
    using Identite = fichiers::Identite;
    struct Usage {
        long films = 0;
        std::set<std::string> chemins;
    };
    struct Source {
        fichiers::Place place;
        bool reste = false;  // it lies beside the base
    };
    void releveUsages();
    void releve(const std::string& nom);
    [[nodiscard]] std::optional<Source> cherche(const std::string& nom) const;
    [[nodiscard]] bool estNomme(const std::string& nom) const;
    void supprimeSiStocke(const dao::Recordset& films, std::vector<std::string>& noms) const;

    dao::Database& m_base;
    std::string m_dossier;
    std::map<std::string, Source> m_fichiers;  // that stand there, by the names in the films' values
    long m_aConvertir = 0;
    std::map<Identite, Usage> m_usages;
    std::vector<Identite> m_inclus;  // of the lot
};

// Posters of the base into files of the images folder. A file that stands there is shared when it holds the same bytes;
// otherwise it stays, and the poster's file is numbered.
class VersLeDossier final : public SensConversion {
  public:
    VersLeDossier(const Contexte& c, std::string dossier) : m_lot(c, std::move(dossier)) {}

    void reprend() override {}  // what is left is shared, or written again
    [[nodiscard]] std::string enonce() const override;
    [[nodiscard]] long aConvertir(const dao::Recordset& films) const override;
    [[nodiscard]] RapportConversion convertit(dao::Recordset& films) override;
    void avantValidation() override { m_lot.avantValidation(); }
    void apresValidation() override { m_lot.apresValidation(); }
    void apresAnnulation() override { m_lot.apresAnnulation(); }

  private:
    LotAffiches m_lot;
};

}  // namespace db
