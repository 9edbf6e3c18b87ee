#include "doubles/DialoguesScript.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using dialogues::kNon;
using dialogues::kQuestion;
using doubles::BoiteInattendue;
using doubles::DialoguesScript;

TEST(DialoguesScript, AnswersTheExpectedBoxesInOrder) {
    DialoguesScript script;
    script.attendMsgBox("Souhaitez-vous continuer ?", kQuestion, kNon);
    script.attendInputBox("Support", "DVD", "Nom du support", "K7");
    script.attendFichier({"Choix", "Fichiers JPEG|*.jpg", "/images", true}, "/images/a.jpg");
    script.attendDossier("Dossier", "/ici", "");
    dialogues::Dialogues& boites = script;
    EXPECT_EQ(boites.MsgBox("Souhaitez-vous continuer ?", kQuestion), kNon);
    EXPECT_EQ(boites.InputBox("Support", "Nom du support", "K7"), "DVD");
    EXPECT_EQ(boites.choisitFichier({"Choix", "Fichiers JPEG|*.jpg", "/images", true}), "/images/a.jpg");
    EXPECT_EQ(boites.choisitDossier("Dossier", "/ici"), "");
    EXPECT_EQ(script.restantes(), 0u);
}

TEST(DialoguesScript, FailsAndStopsOnAnotherBox) {
    DialoguesScript script;
    dialogues::Dialogues& boites = script;
    const auto montre = [&](auto boite) { EXPECT_THROW(boite(), BoiteInattendue); };
    EXPECT_NONFATAL_FAILURE(montre([&] { boites.MsgBox("Surprise"); }), "No box was expected");
    const struct {
        const char* texte;
        int style;
        const char* titre;
    } autres[] = {{"autre", 0, "T"}, {"texte", 48, "T"}, {"texte", 0, "U"}};
    for (const auto& autre : autres) {
        script.attendMsgBox("texte", 0, dialogues::kOk, "T");
        EXPECT_NONFATAL_FAILURE(montre([&] { boites.MsgBox(autre.texte, autre.style, autre.titre); }),
                                "Another box was expected");
    }
    script.attendInputBox("texte", "réponse");
    EXPECT_NONFATAL_FAILURE(montre([&] { boites.MsgBox("texte"); }), "Another box was expected");
}

TEST(DialoguesScript, FailsWhenABoxNeverCame) {
    const auto oublie = [] {
        DialoguesScript script;
        script.attendMsgBox("jamais montrée");
    };
    EXPECT_NONFATAL_FAILURE(oublie(), "jamais montrée");
}
