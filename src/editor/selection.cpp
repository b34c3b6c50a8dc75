// SPDX-License-Identifier: MIT
#include "editor/selection.h"

namespace ornavo {

Control* SelControl = nullptr;
std::string SelKey;
bool KeepPropertiesOpen = false;

}  // namespace ornavo
