#include "util/Durees.h"

#include <gtest/gtest.h>

namespace {

TEST(DureesTest, ReadsWhatCollectorsWrite) {
    for (const auto& [texte, minutes] : {std::pair{"1H32", 92},
                                         {"2h", 120},
                                         {" 1 h 05 ", 65},
                                         {"92", 92},
                                         {"92 min", 92},
                                         {"92mn", 92},
                                         {"1:32", 92},
                                         {"1h32min", 92},
                                         {"1H5", 65},
                                         {"45'", 45},
                                         {"0H45", 45}})
        EXPECT_EQ(util::minutesDe(texte), minutes) << texte;
    for (const char* texte : {"", "   ", "0", "0H00", "longue", "h32", "1.32", "2 bobines", "1 2 3", "1:32:10", "-5",
                              "99999999999999999999", "92 92"})
        EXPECT_EQ(util::minutesDe(texte), std::nullopt) << texte;
}

TEST(DureesTest, SaysMinutesAsOneReadsThem) {
    EXPECT_EQ(util::texteDesMinutes(45), "45 min");
    EXPECT_EQ(util::texteDesMinutes(120), "2 h");
    EXPECT_EQ(util::texteDesMinutes(125), "2 h 05");
}

}  // namespace
