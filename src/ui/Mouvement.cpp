#include "ui/Mouvement.h"

#include <QApplication>

namespace ui {

namespace {

bool souhaiteParDefaut = true;

}  // namespace

int dureeDuMouvement() {
    return souhaiteParDefaut ? kMouvement : 0;
}

void metMouvement(bool souhaite) {
    souhaiteParDefaut = souhaite;
    for (const Qt::UIEffect effet : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip,
                                     Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox})
        if (!souhaite) QApplication::setEffectEnabled(effet, false);
}

}  // namespace ui
