#pragma once

#include <QTest>

namespace essais {

// Longer than a state takes to come on any machine, however busy: only a failing test waits so long.
inline constexpr int kPatience = 120'000;  // milliseconds

// Lets the program live until it is so; false when it never is.
template <typename Etat>
[[nodiscard]] bool attends(Etat etat) {
    return QTest::qWaitFor(etat, kPatience);
}

}  // namespace essais
