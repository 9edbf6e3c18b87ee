#include "platform/systeme/ACote.h"

#include <atomic>
#include <cerrno>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

TEST(ACote, BreathesUntilItIsDoneAndCarriesItsEndBack) {
    std::atomic<int> souffles = 0;
    const auto souffle = [&souffles] {
        ++souffles;
        souffles.notify_all();
    };
    const auto attendsUnSouffle = [&souffles] { souffles.wait(souffles); };
    errno = 0;
    std::thread::id fil;
    systeme::aCote(
        [&] {
            fil = std::this_thread::get_id();
            attendsUnSouffle();
            attendsUnSouffle();
            errno = ENOSPC;
        },
        souffle);
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_NE(fil, std::this_thread::get_id());
    EXPECT_GE(souffles, 2);
    const auto echoue = [&] {
        attendsUnSouffle();
        throw std::runtime_error("disque");
    };
    EXPECT_THROW(systeme::aCote(echoue, souffle), std::runtime_error);
}

// Whoever is left by it may let what the work uses go.
TEST(ACote, ABreathThatFailsWaitsForTheWork) {
    std::atomic<bool> souffle = false, fini = false;
    EXPECT_THROW(systeme::aCote(
                     [&] {
                         souffle.wait(false);
                         fini = true;
                     },
                     [&] {
                         souffle = true;
                         souffle.notify_all();
                         throw std::logic_error("souffle");
                     }),
                 std::logic_error);
    EXPECT_TRUE(fini);
}
