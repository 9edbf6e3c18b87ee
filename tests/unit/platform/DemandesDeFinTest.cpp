#include "platform/systeme/DemandesDeFin.h"

#include <csignal>

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

namespace {

bool lisible(int descripteur) {
    pollfd attendu{descripteur, POLLIN, 0};
    return poll(&attendu, 1, 0) == 1;
}

TEST(DemandesDeFin, EachSignalWaitsToBeTaken) {
    systeme::DemandesDeFin demandes;
    EXPECT_FALSE(lisible(demandes.descripteur()) || demandes.recue());
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        raise(signal);
        raise(signal);
        EXPECT_TRUE(lisible(demandes.descripteur())) << signal;
        EXPECT_TRUE(demandes.recue()) << signal;
        EXPECT_FALSE(demandes.recue()) << "taken once";
    }
}

TEST(DemandesDeFin, WhatWasIgnoredStaysSoAndAllIsAsBeforeAfterwards) {
    struct sigaction ignore {
    }, pendant{}, apres{};
    ignore.sa_handler = SIG_IGN;
    struct sigaction avant {};
    sigaction(SIGHUP, &ignore, &avant);
    {
        systeme::DemandesDeFin demandes;
        raise(SIGHUP);
        EXPECT_FALSE(demandes.recue());
        sigaction(SIGTERM, nullptr, &pendant);
        EXPECT_NE(pendant.sa_handler, SIG_DFL);
    }
    sigaction(SIGTERM, nullptr, &apres);
    EXPECT_EQ(apres.sa_handler, SIG_DFL);
    sigaction(SIGHUP, &avant, &apres);
    EXPECT_EQ(apres.sa_handler, SIG_IGN);
}

}  // namespace
