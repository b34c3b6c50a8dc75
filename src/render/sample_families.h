// SPDX-License-Identifier: MIT
// The controls of the panel's sample as one table: what a click, a sheet, an edit and a composition need to
// know of each. A new sample control is a member of SamplePanel and a row here.
#pragma once

#include <span>
#include <string_view>

#include "render/sample_family.h"

namespace ornavo {

std::span<const SampleFamily> SampleFamilies();

/// The family of the control with that name; null for any other control.
const SampleFamily* FindSample(std::string_view controlName);

/// The control that is selected when this one of the family is clicked: of a pool the template.
Control& SelectedBy(Control& clicked, SamplePanel& sample, const SampleFamily& family);

/// The family's button as its preferences say; nothing for a family without one.
void StyleButton(SamplePanel& sample, const SampleFamily& family);

/// After an edit of `prefix` + "_TransparentColor": the family's controls take the stored colour when they
/// are next styled, also where they would otherwise write theirs to the preference.
void TakeTransparentColor(SamplePanel& sample, std::string_view prefix);

}  // namespace ornavo
