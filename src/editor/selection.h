// SPDX-License-Identifier: MIT
// What is selected: one control at a time, and the key of its element.
#pragma once

#include <string>

namespace ornavo {

class Control;

extern Control* SelControl;      // null: nothing is selected
extern std::string SelKey;       // its Tag; "" for nothing, and for a control that has no element
extern bool KeepPropertiesOpen;  // the next HideAnchors leaves the properties panel open

}  // namespace ornavo
