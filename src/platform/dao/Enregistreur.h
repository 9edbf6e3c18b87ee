#pragma once

#include "platform/dao/Connexion.h"
#include "platform/dao/Enregistrement.h"

struct sqlite3_session;

namespace dao::interne {

// Records what the transactions of a connection change. A failure to record never disturbs the change itself: it is
// noted in what is recorded.
class Enregistreur {
  public:
    Enregistreur(Connexion& connexion, Enregistrement& suite) : m_connexion(connexion), m_suite(suite) {}
    Enregistreur(const Enregistreur&) = delete;
    Enregistreur& operator=(const Enregistreur&) = delete;
    ~Enregistreur() { ferme(); }

    void commence() noexcept;  // a transaction was opened
    void noteModification() { m_modifie = true; }
    void soulage() noexcept;          // hands over what is held once it takes much memory
    void avantValidation() noexcept;  // hands over the rest
    void annule() noexcept;           // the transaction left nothing

  private:
    void ouvre();
    void ferme();
    void verse();
    template <typename Geste>
    void essaie(Geste geste) noexcept;

    Connexion& m_connexion;
    Enregistrement& m_suite;
    sqlite3_session* m_session = nullptr;
    std::string m_empeche;      // why the transaction cannot be recorded
    std::string m_manqueAvant;  // what was missing before it
    std::size_t m_premier = 0;  // its first piece
    std::uint64_t m_version = 0;
    bool m_modifie = false;
};

// All the changes or none, in a transaction of its own; what is known of the rows is then as after another program's
// change. Throws ErreurDao, nothing done.
[[nodiscard]] Application applique(Connexion& connexion, Enregistrement& changements, Sens sens, const Avance& avance);

}  // namespace dao::interne
