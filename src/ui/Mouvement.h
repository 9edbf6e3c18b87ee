#pragma once

namespace ui {

inline constexpr int kMouvement = 120;  // milliseconds: the longest that anything of the window moves

// How long what appears may take to do so: 0 where the desktop asks for no motion.
[[nodiscard]] int dureeDuMouvement();
void metMouvement(bool souhaite);

}  // namespace ui
