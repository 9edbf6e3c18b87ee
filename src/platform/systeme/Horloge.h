#pragma once

#include <chrono>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

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

// Which of two numbers a day's short form begins with, where it does not begin with the year.
enum class OrdreDate { JourMois, MoisJour };
[[nodiscard]] OrdreDate ordreDesDates();  // the user's
// The day that a text says in figures: what dateCourte writes, with any punctuation, the year first or last, of four
// figures or of two (1970 to 2069). Day and month change places where only that makes a day. Nothing for any other text.
[[nodiscard]] std::optional<std::chrono::year_month_day> dateLue(std::string_view texte, OrdreDate ordre);

// The user's decimal separator; the comma where the locale is C or POSIX.
[[nodiscard]] std::string separateurDecimal();

}  // namespace systeme
