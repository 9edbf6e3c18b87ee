#pragma once

#include "browse/ChargeAffiche.h"
#include "browse/FilmCourant.h"
#include "db/Base.h"
#include "db/EtatStockage.h"
#include "db/LotAffiches.h"
#include "platform/dialogues/Dialogues.h"

#include <optional>
#include <string>

namespace view {

// Replaces the poster of the current film by a picture file of the user's choice, kept as new posters are. The picture is
// read and checked before anything of the old one goes; a refused one leaves base, files and window as they were. Another
// film that shares the old poster's file keeps it.
class cmdRemplacerImage_Click {
  public:
    cmdRemplacerImage_Click(db::Base& base, db::EtatStockage& stockage, const db::Chemins& chemins,
                            browse::FilmCourant& film, ecran::Images& images,
                            browse::AfficheTemporaire& afficheTemporaire, browse::ChargeAffiche& chargeAffiche,
                            dialogues::Dialogues& dialogues)
        : m_base(base),
          m_stockage(stockage),
          m_chemins(chemins),
          m_film(film),
          m_images(images),
          m_afficheTemporaire(afficheTemporaire),
          m_chargeAffiche(chargeAffiche),
          m_dialogues(dialogues) {}

    // Throws db::RequeteEchouee after its message, or dao::ErreurDao; the old poster is shown then.
    void operator()();

  private:
    [[nodiscard]] std::optional<std::string> octetsAdmis(const std::string& chemin);
    [[nodiscard]] bool estUneImage(const std::string& octets);
    void remplace(const std::string& octets);
    [[nodiscard]] bool enregistre(const std::string& octets);
    void range(dao::Recordset& film, const std::string& octets, db::LotAffiches& lot);
    void avertit(const std::string& texte) { m_dialogues.MsgBox(texte, dialogues::kExclamation); }

    db::Base& m_base;
    db::EtatStockage& m_stockage;
    const db::Chemins& m_chemins;
    browse::FilmCourant& m_film;
    ecran::Images& m_images;
    browse::AfficheTemporaire& m_afficheTemporaire;
    browse::ChargeAffiche& m_chargeAffiche;
    dialogues::Dialogues& m_dialogues;
};

}  // namespace view
