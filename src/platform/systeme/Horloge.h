#pragma once

#include <ctime>
#include <string>

namespace systeme {

// What day it is, as text, and what time: a service, so that a test can choose them.
class Horloge {
  public:
    virtual ~Horloge() = default;
    // Today in the user's short date form ("21/11/2026"); French where the locale is C or POSIX.
    [[nodiscard]] virtual std::string dateDuJour() const = 0;
    // The moment, for dating files; it may go back.
    [[nodiscard]] virtual std::time_t maintenant() const { return std::time(nullptr); }
};

class HorlogeSysteme final : public Horloge {
  public:
    [[nodiscard]] std::string dateDuJour() const override;
};

// A moment's day in the same form, in the machine's time zone.
[[nodiscard]] std::string dateCourte(std::time_t instant);

// The user's decimal separator; the comma where the locale is C or POSIX.
[[nodiscard]] std::string separateurDecimal();

}  // namespace systeme
