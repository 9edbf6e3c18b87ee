#pragma once

#include "platform/dao/ErreurDao.h"
#include "platform/dao/Recordset.h"

namespace dao {

// Gives a statement's records their current one back: a command may be in the middle of a walk while it lets the window
// paint.
class PlaceGardee {
  public:
    explicit PlaceGardee(Recordset& jeu)
        : m_jeu(jeu), m_place(jeu.Eof() ? jeu.RecordCount() : jeu.AbsolutePosition()) {}
    PlaceGardee(const PlaceGardee&) = delete;
    PlaceGardee& operator=(const PlaceGardee&) = delete;
    ~PlaceGardee() {
        if (m_place < 0) return;  // a table's
        try {
            if (m_jeu.RecordCount() == 0) return;
            m_jeu.MoveFirst();
            m_jeu.Move(m_place);
        } catch (const ErreurDao&) {  // the base is gone: the next call says so
        }
    }

  private:
    Recordset& m_jeu;
    const long m_place;
};

}  // namespace dao
