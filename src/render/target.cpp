// SPDX-License-Identifier: MIT
#include "render/target.h"

namespace ornavo {

CompositionTarget* TargetForm = nullptr;
dbLayoutRef TargetLayout;
Frame TargetFrame;
bool ComposeBusy = false;

void MeasureTarget() {
    TargetFrame.TargetWidth = TargetForm->ScaleWidth();
    TargetFrame.TargetHeight = TargetForm->ScaleHeight();
}

}  // namespace ornavo
