#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace db {

// What of one table of a damaged Jet base did not come into the new base.
struct DommagesJet {
    std::string table{};
    long lues = 0;                              // rows that came
    std::uint32_t annoncees = 0;                // that the file says it has
    long retrouvees = 0;                        // those that came without the table's map leading to them
    long lignes = 0, affiches = 0, champs = 0;  // lost: rows, posters and other fields of rows that came
    std::vector<std::string> details{};  // a sentence for each loss, without their end; not more than kDetailsMax
    long autresDetails = 0;              // the rest of them

    static constexpr std::size_t kDetailsMax = 5000;

    void note(std::string detail);
    [[nodiscard]] bool estEntiere() const;
    // A line for the counts, then one for each of the first `maximum` losses and one for how many more there are; each
    // of them ended by a line break.
    [[nodiscard]] std::string texte(std::size_t maximum = kDetailsMax) const;
};

// Where the losses of that base are kept: a text beside it, which is not there yet.
[[nodiscard]] std::string nomDesPertes(const std::string& base, int numero = 1);
// Makes that text; its name, empty when it could not be written. `lue` is the base that was read, for the reader.
[[nodiscard]] std::optional<std::string> gardeLesPertes(const std::string& base, const std::string& lue,
                                                        const std::vector<DommagesJet>& dommages);

}  // namespace db
