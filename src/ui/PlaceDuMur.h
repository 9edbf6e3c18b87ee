#pragma once

#include "ensemble/PlanDuMur.h"
#include "ui/MurDAffiches.h"

namespace ui {

// What the files of the wall share.
inline constexpr int kEspaceDuMur = 14;  // between two tiles

[[nodiscard]] inline QRect rectDuMur(const ensemble::PlanDuMur::Place& place, int defilement) {
    return {place.x + MurDAffiches::kAuBord, place.y - defilement, place.largeur, place.hauteur};
}

[[nodiscard]] inline QFont policeDEntete(const QFont& police) {
    QFont grasse = police;
    grasse.setPointSizeF(police.pointSizeF() * 1.15);
    grasse.setWeight(QFont::DemiBold);
    return grasse;
}

}  // namespace ui
