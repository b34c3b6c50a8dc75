// SPDX-License-Identifier: MIT
#include "editor/selection.h"

#include "platform/control.h"

namespace ornavo {

bool IsCorner(const Control& control) {
    return control.Name == "cPointMover";
}

Selection::Selection(ShowCorner showCorner) : showCorner_(std::move(showCorner)) {}

bool Selection::IsCorner() const {
    return control_ && ornavo::IsCorner(*control_);
}

void Selection::Select(Control& control) {
    Become(&control);
    key_ = control.Tag;
    if (IsCorner()) showCorner_(control, true);
}

void Selection::SelectSample(Control& control) {
    Become(&control);
    key_.clear();
}

void Selection::Follow(Control& control) {
    if (&control != control_) Become(&control);
}

void Selection::ForgetControl() {
    Become(nullptr);
}

void Selection::Clear() {
    Become(nullptr);
    key_.clear();
}

void Selection::Become(Control* control) {
    if (IsCorner()) showCorner_(*control_, false);
    control_ = control;
}

}  // namespace ornavo
