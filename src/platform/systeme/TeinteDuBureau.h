#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace systeme {

enum class Teinte { SansSouhait, Claire, Sombre };

// Which colours the desktop wishes for, and whether it wants things to move, as its settings portal tells over the
// session's bus. Everything happens in
// GLib's main loop, which the window's runs; where there is no bus, no portal or no such loop nothing is ever told.
class TeinteDuBureau {
  public:
    // `suite` is told the answer and each change after it, as long as this lives; so is `mouvement`, where the desktop
    // says anything of that.
    explicit TeinteDuBureau(std::function<void(Teinte)> suite, std::function<void(bool)> mouvement = nullptr);
    ~TeinteDuBureau();

    // Waits for the answer, no longer than that. True when it came, also that there is nobody to ask.
    bool attends(std::chrono::milliseconds auPlus);

  private:
    struct Suivi;
    std::shared_ptr<Suivi> m_suivi;  // what is under way holds it too
};

}  // namespace systeme
