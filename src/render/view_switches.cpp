// SPDX-License-Identifier: MIT
#include "render/view_switches.h"

namespace ornavo {

ViewSwitches viewSwitches;

}  // namespace ornavo
