#include "doubles/DialoguesScript.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using doubles::BoiteInattendue;
using doubles::DialoguesScript;

TEST(DialoguesScript, FailsAndStopsOnAnyBoxButTheExpectedOne) {
    DialoguesScript script;
    dialogues::Dialogues& boites = script;
    const auto montre = [&](const char* texte, int style, const char* titre) {
        EXPECT_THROW(boites.MsgBox(texte, style, titre), BoiteInattendue);
    };
    EXPECT_NONFATAL_FAILURE(montre("texte", 0, "T"), "No box was expected");
    for (const auto& [texte, style, titre] : {std::tuple("autre", 0, "T"), {"texte", 48, "T"}, {"texte", 0, "U"}}) {
        script.attendMsgBox("texte", 0, dialogues::kOk, "T");
        EXPECT_NONFATAL_FAILURE(montre(texte, style, titre), "Another box was expected");
    }
    script.attendInputBox("jamais montrée", "");
    EXPECT_NONFATAL_FAILURE(script.verifie(), "jamais montrée");
}
